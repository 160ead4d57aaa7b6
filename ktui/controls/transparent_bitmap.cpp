#include <ktui/controls/transparent_bitmap.h>

#include <afxwin.h>
#include <ktui/controls/transparent_pixels.h>

#include <memory>
#include <new>

namespace {

void ReadPixelsWithAlpha(HBITMAP source, std::uint8_t* pixels, std::size_t count) {
    ::GetBitmapBits(source, static_cast<LONG>(count * kPixelBytes), pixels);
    ClearInvisiblePixels(pixels, count);
}

void ReadKeyedPixels(HBITMAP source, std::uint8_t* pixels, int width, int height, int flags) {
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    const HGDIOBJ former = ::SelectObject(memory.m_hDC, source);
    MakeTransparentPixels(pixels, width, height, flags,
                          [&memory](int x, int y) { return memory.GetPixel(x, y); });
    ::SelectObject(memory.m_hDC, former);
}

}  // namespace

HBITMAP ktuiTransparentBitmap(HBITMAP source, int flags) {
    BITMAP bitmap = {};
    if (!source || !::GetObjectW(source, sizeof bitmap, &bitmap)) return nullptr;
    const int width = static_cast<int>(bitmap.bmWidth);
    const int height = static_cast<int>(bitmap.bmHeight);
    if (width <= 0 || height <= 0) return nullptr;
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    const std::unique_ptr<std::uint8_t[]> pixels(new (std::nothrow) std::uint8_t[count * kPixelBytes]());
    if (!pixels) return nullptr;
    if (flags & kSourceHasAlpha)
        ReadPixelsWithAlpha(source, pixels.get(), count);
    else
        ReadKeyedPixels(source, pixels.get(), width, height, flags);
    return ::CreateBitmap(width, height, 1, 32, pixels.get());
}
