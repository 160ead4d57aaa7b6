#include "picture_drawing.h"

#include <algorithm>

namespace kmfc {

BITMAPINFO rows_from_the_top(const CSize& size) {
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = size.cx;
    info.bmiHeader.biHeight = -size.cy;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return info;
}

PicturePixels pixels_of(HBITMAP bitmap, COLORREF transparent) {
    PicturePixels picture;
    BITMAP about = {};
    if (::GetObjectW(bitmap, sizeof(about), &about) == 0) return picture;
    const CSize size(about.bmWidth, std::abs(about.bmHeight));
    std::vector<std::uint32_t> pixels(static_cast<size_t>(size.cx) * static_cast<size_t>(size.cy));
    BITMAPINFO info = rows_from_the_top(size);
    CDC screen;
    screen.CreateCompatibleDC(nullptr);
    if (::GetDIBits(screen, bitmap, 0, static_cast<UINT>(size.cy), pixels.data(), &info, DIB_RGB_COLORS) == 0)
        return picture;
    const bool hasAlpha = about.bmBitsPixel == 32 && std::any_of(pixels.begin(), pixels.end(),
                                                                 [](auto pixel) { return pixel >> 24 != 0; });
    const std::uint32_t key = static_cast<std::uint32_t>(GetRValue(transparent)) << 16 |
                              static_cast<std::uint32_t>(GetGValue(transparent)) << 8 |
                              GetBValue(transparent);
    for (std::uint32_t& pixel : pixels) {
        if (!hasAlpha) pixel = (pixel & 0xFFFFFF) == key ? 0 : pixel | 0xFF000000;
        pixel = premultiplied(pixel);
    }
    picture.size = size;
    picture.pixels = std::move(pixels);
    return picture;
}

namespace {

/// What an icon comes to on a background, 0x00RRGGBB.
std::vector<std::uint32_t> icon_on(HICON icon, const CSize& size, COLORREF background) {
    const BITMAPINFO info = rows_from_the_top(size);
    void* bits = nullptr;
    CBitmap bitmap;
    CDC dc;
    if (!dc.CreateCompatibleDC(nullptr) ||
        !bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0)))
        return {};
    CBitmap* const former = dc.SelectObject(&bitmap);
    dc.FillSolidRect(0, 0, size.cx, size.cy, background);
    ::DrawIconEx(dc, 0, 0, icon, size.cx, size.cy, 0, nullptr, DI_NORMAL);
    ::GdiFlush();
    const auto* const first = static_cast<const std::uint32_t*>(bits);
    std::vector<std::uint32_t> pixels(first, first + static_cast<std::ptrdiff_t>(size.cx) * size.cy);
    dc.SelectObject(former);
    return pixels;
}

CSize size_of(HICON icon) {
    ICONINFO about = {};
    if (icon == nullptr || !::GetIconInfo(icon, &about)) return CSize(0, 0);
    BITMAP bitmap = {};
    ::GetObjectW(about.hbmMask, sizeof(bitmap), &bitmap);
    // Without colours the mask has two halves.
    const CSize size(bitmap.bmWidth, about.hbmColor != nullptr ? bitmap.bmHeight : bitmap.bmHeight / 2);
    ::DeleteObject(about.hbmMask);
    if (about.hbmColor != nullptr) ::DeleteObject(about.hbmColor);
    return size;
}

}  // namespace

/// On black a pixel is its colour times its alpha, and white shines through by the rest.
PicturePixels pixels_of(HICON icon) {
    PicturePixels picture;
    const CSize size = size_of(icon);
    if (size.cx < 1 || size.cy < 1) return picture;
    std::vector<std::uint32_t> onBlack = icon_on(icon, size, RGB(0, 0, 0));
    const std::vector<std::uint32_t> onWhite = icon_on(icon, size, RGB(255, 255, 255));
    if (onBlack.empty() || onWhite.size() != onBlack.size()) return picture;
    for (size_t i = 0; i < onBlack.size(); ++i) {
        const std::uint32_t through = (onWhite[i] >> 8 & 0xFF) - (onBlack[i] >> 8 & 0xFF);
        onBlack[i] = (onBlack[i] & 0xFFFFFF) | (255 - std::min(through, 255u)) << 24;
    }
    picture.size = size;
    picture.pixels = std::move(onBlack);
    return picture;
}

void draw_picture(CDC& dc, const CPoint& at, const PicturePixels& picture) {
    const CSize size = picture.size;
    if (size.cx < 1 || size.cy < 1) return;
    const BITMAPINFO info = rows_from_the_top(size);
    void* bits = nullptr;
    CBitmap bitmap;
    if (!bitmap.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0))) return;
    std::copy(picture.pixels.begin(), picture.pixels.end(), static_cast<std::uint32_t*>(bits));
    CDC source;
    if (!source.CreateCompatibleDC(&dc)) return;
    CBitmap* const former = source.SelectObject(&bitmap);
    constexpr BLENDFUNCTION over = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    ::AlphaBlend(dc, at.x, at.y, size.cx, size.cy, source, 0, 0, size.cx, size.cy, over);
    source.SelectObject(former);
}

}  // namespace kmfc
