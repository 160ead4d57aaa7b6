// ktuiTransparentBitmap on real bitmaps; its arithmetic is tested without windows.
#include <ktui/controls/transparent_bitmap.h>

#include <array>
#include <vector>

#include "ui_test.h"

namespace {

using Bits = std::vector<DWORD>;

/// A bitmap of `bits`, top row first; each 0xAARRGGBB.
struct Source {
    Source(int width, int height, const Bits& bits)
        : handle(::CreateBitmap(width, height, 1, 32, bits.data())) {}
    ~Source() { ::DeleteObject(handle); }
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;
    HBITMAP handle;
};

/// The bits of a result, which is deleted.
Bits taken(HBITMAP result, int width, int height) {
    BITMAP bitmap = {};
    EXPECT_EQ(::GetObjectW(result, sizeof bitmap, &bitmap), static_cast<int>(sizeof bitmap));
    EXPECT_EQ(bitmap.bmWidth, width);
    EXPECT_EQ(bitmap.bmHeight, height);
    EXPECT_EQ(bitmap.bmBitsPixel, 32);
    EXPECT_EQ(bitmap.bmWidthBytes, 4 * width);
    Bits bits(static_cast<std::size_t>(width * height));
    ::GetBitmapBits(result, static_cast<LONG>(4 * bits.size()), bits.data());
    ::DeleteObject(result);
    return bits;
}

TEST(TransparentBitmap, TheCornersColorBecomesTransparent) {
    const Source source(3, 2, {0x00FF00FF, 0x00102030, 0x00FF00FF, 0x00C0C0C0, 0x00FF00FF, 0x00000000});
    EXPECT_EQ(taken(ktuiTransparentBitmap(source.handle, 1), 3, 2),
              (Bits{0, 0xFF102030, 0, 0xFFC0C0C0, 0, 0xFF000000}));
    EXPECT_EQ(taken(ktuiTransparentBitmap(source.handle, 0), 3, 2),
              (Bits{0xFFFF00FF, 0xFF102030, 0xFFFF00FF, 0, 0xFFFF00FF, 0xFF000000}));
    EXPECT_EQ(taken(ktuiTransparentBitmap(source.handle, 3), 3, 2),
              (Bits{0xFFFFFFFF, 0x00102030, 0xFFFFFFFF, 0x00C0C0C0, 0xFFFFFFFF, 0}));
}

TEST(TransparentBitmap, RedIsGreyOfSeventySix) {
    const Source source(2, 1, {0x00FF00FF, 0x00FF0000});
    EXPECT_EQ(taken(ktuiTransparentBitmap(source.handle, 5), 2, 1), (Bits{0, 0xFF4C4C4C}));
}

TEST(TransparentBitmap, ASourceWithAlphaLosesOnlyWhatIsInvisible) {
    const Source source(2, 2, {0x00102030, 0x80102030, 0xFF102030, 0x01FFFFFF});
    for (const int flags : {8, 15})
        EXPECT_EQ(taken(ktuiTransparentBitmap(source.handle, flags), 2, 2),
                  (Bits{0, 0x80102030, 0xFF102030, 0x01FFFFFF}));
    const Source opaque(2, 1, {0xFF123456, 0xFF654321});
    EXPECT_EQ(taken(ktuiTransparentBitmap(opaque.handle, 8), 2, 1), (Bits{0xFF123456, 0xFF654321}));
}

TEST(TransparentBitmap, TheSourceIsNotChanged) {
    const Bits bits = {0x00FF00FF, 0x00102030};
    const Source source(2, 1, bits);
    for (const int flags : {1, 7, 8}) ::DeleteObject(ktuiTransparentBitmap(source.handle, flags));
    Bits after(2);
    ::GetBitmapBits(source.handle, 8, after.data());
    EXPECT_EQ(after, bits);
}

TEST(TransparentBitmap, ASectionWithItsRowsFromTheBottomIsReadAsItShows) {
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof info.bmiHeader, 2, 2, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* rows = nullptr;
    const HBITMAP section = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &rows, nullptr, 0);
    const DWORD fromTheBottom[] = {0x00102030, 0x00C0C0C0, 0x00FF00FF, 0x00405060};
    memcpy(rows, fromTheBottom, sizeof fromTheBottom);
    EXPECT_EQ(taken(ktuiTransparentBitmap(section, 1), 2, 2), (Bits{0, 0xFF405060, 0xFF102030, 0xFFC0C0C0}));
    ::DeleteObject(section);
}

TEST(TransparentBitmap, FewerColorsAreReadAsTheyShow) {
    const BYTE rows[] = {0x40, 0x00, 0x80, 0x00};
    const HBITMAP monochrome = ::CreateBitmap(2, 2, 1, 1, rows);
    EXPECT_EQ(taken(ktuiTransparentBitmap(monochrome, 1), 2, 2), (Bits{0, 0xFFFFFFFF, 0xFFFFFFFF, 0}));
    ::DeleteObject(monochrome);
}

TEST(TransparentBitmap, NoSourceGivesNone) {
    EXPECT_EQ(ktuiTransparentBitmap(nullptr, 1), nullptr);
    EXPECT_EQ(ktuiTransparentBitmap(static_cast<HBITMAP>(::GetStockObject(WHITE_BRUSH)), 1), nullptr);
}

}  // namespace
