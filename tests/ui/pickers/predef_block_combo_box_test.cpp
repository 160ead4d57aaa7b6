#include <ktui/pickers/predef_block_combo_box.h>

#include <ktdsres/resource_ids.h>
#include <ktui/host/appearance.h>
#include <ktui/res/resource_ids.h>

#include "replaced_import.h"
#include "scheme_color.h"
#include "strip_fixture.h"

using ui_test::Canvas;
using ui_test::InHolder;
using ui_test::kUntouched;
using ui_test::LibraryStrip;

namespace {

class Picker : public CKtUiPredefBlockComboBox {
public:
    int lastSelection() const { return m_lastSelection; }
    unsigned flags() const { return m_mruFlags; }
    void useLargerPictures(CBitmap& strip, int size) {
        m_strip.DeleteObject();
        m_strip.Attach(strip.Detach());
        m_imageSize = size;
    }
    void dropStrip() { m_strip.DeleteObject(); }
};

std::wstring Resource(UINT id) {
    CString text;
    EXPECT_TRUE(text.LoadString(id)) << id;
    return text.GetString();
}

}  // namespace

TEST(BlockPicker, ListsSixBlocksAndTheUsers) {
    InHolder<Picker> in;
    EXPECT_EQ(in.cargos(), (std::vector<__int64>{0, 1, 2, 3, 4, 5, 6}));
    for (UINT i = 0; i < 7; ++i) EXPECT_EQ(in.texts()[i], Resource(57098 + i));
}

TEST(BlockPicker, StartsWithoutFlagsAndWithTheSecondItemToFallBackTo) {
    const Picker picker;
    EXPECT_EQ(picker.lastSelection(), 1);
    EXPECT_EQ(picker.flags(), 0u);
}

TEST(BlockPicker, ItemsAre16PixelsHigh) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.CalcItemHeight(), 16);
    EXPECT_EQ(in.picker.ItemHeight(), 16);
    EXPECT_EQ(in.picker.ImageWidth(), 16);
}

TEST(BlockPicker, UserBlocksGetCargosFrom7On) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.AddPredefBlockToMRU(L"mine"), 7);
    EXPECT_EQ(in.picker.AddPredefBlockToMRU(L"other"), 8);
    EXPECT_EQ(in.cargos(), (std::vector<__int64>{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(in.texts()[8], L"other");
}

TEST(BlockPicker, OtherNamesAreTheOnesOfEveryPicker) {
    InHolder<Picker> in;
    CString text;
    in.picker.GetOtherName(0, text);
    EXPECT_EQ(text.GetString(), Resource(IDS_OTHER_ITEM));
    in.picker.GetOtherName(1, text);
    EXPECT_EQ(text.GetString(), Resource(IDS_LINETYPE_MANAGER_ITEM));
}

TEST(BlockImages, StripHasSixImagesAndABlankOne) {
    LibraryStrip strip(IDB_BLOCKS);
    EXPECT_EQ(strip.size(), CSize(16, 17 * 7));
    for (int row = 0; row < 6; ++row) EXPECT_TRUE(strip.hasInk(17 * row, 17)) << row;
    EXPECT_FALSE(strip.hasInk(17 * 6, 17));
}

TEST(BlockImages, EachCargoShowsItsImageAndTheUsersTheRowBelow) {
    InHolder<Picker> in;
    LibraryStrip strip(IDB_BLOCKS);
    for (int cargo = 0; cargo <= 6; ++cargo) {
        Canvas canvas(30, 30, kUntouched);
        ui_test::drawImage(canvas, in.picker, cargo);
        EXPECT_TRUE(ui_test::showsPicture(canvas, strip, CPoint(3, 4), 17 * cargo, CSize(16, 17))) << cargo;
    }
}

TEST(BlockImages, EntriesBeyondTheRangeShowNone) {
    InHolder<Picker> in;
    for (const __int64 cargo : {-1, kCargoOther, 7, 8}) {
        Canvas canvas(30, 30, kUntouched);
        ui_test::drawImage(canvas, in.picker, cargo);
        EXPECT_EQ(canvas.dc.GetPixel(4, 5), kUntouched) << cargo;
        EXPECT_EQ(canvas.dc.GetPixel(11, 12), kUntouched) << cargo;
    }
}

TEST(BlockImages, WithoutTheStripTextsStillWork) {
    InHolder<Picker> in;
    in.picker.dropStrip();
    Canvas canvas(30, 30, kUntouched);
    ui_test::drawImage(canvas, in.picker, 0);
    EXPECT_EQ(canvas.dc.GetPixel(4, 5), kUntouched);
    EXPECT_EQ(in.texts()[0], Resource(57098));
}

TEST(BlockPicker, OpeningAndClosingLeavesNothingBehind) {
    const auto openAndClose = [] {
        InHolder<Picker> in;
        in.dropDown();
        ui_test::pump();
        in.closeUp();
    };
    ui_test::expectNothingLeft(openAndClose);
}

TEST(BlockImages, AnotherSizeTakesAnotherStrip) {
    constexpr int kSize = 20;
    InHolder<Picker> in;
    CBitmap strip;
    ui_test::makeRowStrip(strip, kSize, (kSize + 1) * 7);
    in.picker.useLargerPictures(strip, kSize);
    for (const int cargo : {0, 1, 5, 6}) {
        Canvas canvas(30, 30, kUntouched);
        ui_test::drawImage(canvas, in.picker, cargo);
        const int top = (kSize + 1) * cargo;
        EXPECT_EQ(canvas.dc.GetPixel(3, 4), ui_test::rowColor(top)) << cargo;
        EXPECT_EQ(canvas.dc.GetPixel(22, 24), ui_test::rowColor(top + kSize)) << cargo;
        EXPECT_EQ(canvas.dc.GetPixel(22, 25), kUntouched) << cargo;
    }
}

namespace {

int stripsLoaded = 0;

HANDLE WINAPI CountLoads(HINSTANCE module, LPCWSTR name, UINT type, int width, int height, UINT flags) {
    stripsLoaded += type == IMAGE_BITMAP;
    return ::LoadImageW(module, name, type, width, height, flags);
}

}  // namespace

TEST(BlockImages, OfOneSchemeAreMadeOnce) {
    const ui_test::ReplacedImport load(::GetModuleHandleW(L"ktui.dll"), "LoadImageW", &CountLoads);
    ASSERT_TRUE(load.isThere());
    KtUiFollowSystemAppearance(TRUE);
    {
        InHolder<Picker> in;
        Canvas canvas(30, 30, kUntouched);
        stripsLoaded = 0;
        for (int cargo = 0; cargo < 5; ++cargo) ui_test::drawImage(canvas, in.picker, cargo);
        EXPECT_EQ(stripsLoaded, 1);
        const ui_test::SchemeColor window(COLOR_WINDOW, RGB(20, 22, 26));
        ui_test::drawImage(canvas, in.picker, 0);
        EXPECT_EQ(stripsLoaded, 2) << "and anew in another one";
    }
    KtUiFollowSystemAppearance(FALSE);
}
