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

/// Whether the bits of a bitmap are its colours, in rows from the top: one of the system's own with 32 bits.
bool HasPlainBits(const BITMAP& bitmap) {
    constexpr WORD kPixelBits = 8 * kPixelBytes;
    return bitmap.bmBits == nullptr && bitmap.bmPlanes == 1 && bitmap.bmBitsPixel == kPixelBits;
}

/// The same as ReadKeyedPixels without a device context, which takes several times as long as all the rest.
void ReadPlainPixels(HBITMAP source, std::uint8_t* pixels, int width, int height, int flags) {
    const std::size_t columns = static_cast<std::size_t>(width), rows = static_cast<std::size_t>(height);
    ::GetBitmapBits(source, static_cast<LONG>(columns * rows * kPixelBytes), pixels);
    MakeTransparentPixels(pixels, width, height, flags, [pixels, columns](int x, int y) {
        const std::uint8_t* bits =
            pixels + (static_cast<std::size_t>(y) * columns + static_cast<std::size_t>(x)) * kPixelBytes;
        return static_cast<std::uint32_t>(RGB(bits[2], bits[1], bits[0]));
    });
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
    else if (HasPlainBits(bitmap))
        ReadPlainPixels(source, pixels.get(), width, height, flags);
    else
        ReadKeyedPixels(source, pixels.get(), width, height, flags);
    return ::CreateBitmap(width, height, 1, 32, pixels.get());
}
