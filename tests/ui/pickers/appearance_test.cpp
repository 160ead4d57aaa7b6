// Pickers of a host that follows the system's resolution, and of one that doesn't.
#include <ktui/host/appearance.h>
#include <ktui/pickers/arrow_head_combo_box.h>
#include <ktui/pickers/font_combo_box.h>
#include <ktui/pickers/predef_block_combo_box.h>

#include <set>
#include <tuple>

#include "fake_resolution.h"
#include "picker_fixture.h"

using namespace ui_test;

namespace {

/// Last row and column of the image column that the picture of `cargo` reaches.
template <class Picker>
CSize pictureSize(Picker& picker, __int64 cargo) {
    constexpr COLORREF kUntouched = RGB(200, 100, 50);
    constexpr int kSide = 40;
    Canvas canvas(kSide, kSide, kUntouched);
    CRect rect(0, 0, kSide, kSide);
    picker.DrawItemImage(canvas.dc, rect, cargo);
    CSize size(0, 0);
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            if (canvas.dc.GetPixel(x, y) != kUntouched) {
                size.cx = std::max<LONG>(size.cx, x + 1);
                size.cy = std::max<LONG>(size.cy, y + 1);
            }
    return size;
}

}  // namespace

TEST(Appearance, IsTheAgreedOneUntilAHostAsks) {
    EXPECT_FALSE(KtUiFollowsSystemAppearance());
    const FakeResolution resolution(192, FALSE);
    EXPECT_EQ(KtUiAppearanceColor(RGB(1, 2, 3), COLOR_HIGHLIGHT), RGB(1, 2, 3));
    EXPECT_EQ(KtUiAppearancePixels(nullptr, 15), 15);
    InHolder<CKtUiArrowHeadComboBox> in;
    EXPECT_EQ(in.picker.ItemHeight(), 15);
    EXPECT_EQ(pictureSize(in.picker, 0), CSize(15, 15));
}

TEST(Appearance, FollowsTheSystemsColorsAndTheWindowsResolution) {
    const FakeResolution resolution(144);
    EXPECT_EQ(KtUiAppearanceColor(RGB(1, 2, 3), COLOR_HIGHLIGHT), ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(KtUiAppearancePixels(nullptr, 200), 300);
}

TEST(Appearance, StripsComeInTheSizeForTheResolution) {
    for (const auto& [dpi, arrow, block] : std::vector<std::tuple<UINT, int, int>>{
             {96, 15, 16}, {120, 20, 20}, {144, 24, 24}, {192, 32, 32}, {288, 32, 32}}) {
        const FakeResolution resolution(dpi);
        InHolder<CKtUiArrowHeadComboBox> arrows;
        EXPECT_EQ(arrows.picker.ItemHeight(), arrow) << dpi;
        EXPECT_EQ(pictureSize(arrows.picker, 0), CSize(arrow, arrow)) << dpi;
        EXPECT_EQ(pictureSize(arrows.picker, 19), CSize(arrow, arrow)) << dpi;
        InHolder<CKtUiPredefBlockComboBox> blocks;
        EXPECT_EQ(blocks.picker.ItemHeight(), block) << dpi;
        EXPECT_EQ(pictureSize(blocks.picker, 6), CSize(block, block + 1)) << dpi;
    }
}

TEST(Appearance, EveryPictureOfALargerStripIsWholeAndItsOwn) {
    const FakeResolution resolution(144);
    InHolder<CKtUiArrowHeadComboBox> in;
    std::set<std::vector<COLORREF>> pictures;
    for (int cargo = 0; cargo < 20; ++cargo) {
        Canvas canvas(24, 24, RGB(255, 255, 255));
        CRect rect(0, 0, 24, 24);
        in.picker.DrawItemImage(canvas.dc, rect, cargo);
        std::vector<COLORREF> pixels;
        for (int i = 0; i < 24 * 24; ++i) pixels.push_back(canvas.dc.GetPixel(i % 24, i / 24));
        EXPECT_EQ(std::count(pixels.begin(), pixels.begin() + 24, RGB(255, 255, 255)), 24)
            << "nothing of the neighbour above, " << cargo;
        pictures.insert(pixels);
    }
    EXPECT_EQ(pictures.size(), 20u);
}

TEST(Appearance, APickerGrowsWhenItsWindowGoesToAnotherMonitor) {
    const FakeResolution resolution(96);
    InHolder<CKtUiArrowHeadComboBox> in;
    ASSERT_EQ(in.picker.GetItemHeight(0), 15);
    resolution.show(192);
    in.picker.SendMessage(0x02E3);  // WM_DPICHANGED_AFTERPARENT
    EXPECT_EQ(in.picker.GetItemHeight(0), 32);
}

TEST(Appearance, FontItemsHaveRoomForTheirIcon) {
    const FakeResolution resolution(192);
    InHolder<CKtUiFontComboBox> in;
    EXPECT_GE(in.picker.ItemHeight(), 32);
    EXPECT_EQ(in.picker.ImageWidth(), in.picker.ItemHeight());
}
