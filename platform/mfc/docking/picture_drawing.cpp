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
