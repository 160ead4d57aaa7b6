#include <ktui/pickers/arrow_head_combo_box.h>

#include <ktui/res/resource_ids.h>

#include "strip_fixture.h"

using ui_test::Canvas;
using ui_test::InHolder;
using ui_test::kUntouched;
using ui_test::LibraryStrip;

namespace {

constexpr int kCount = 20;
constexpr int kListedByDefault = 19;
constexpr UINT kFirstText = 54163;
/// Row of the strip for each cargo.
constexpr int kStripRows[kCount] = {0, 15, 9, 1, 19, 12, 6, 4, 5, 7, 8, 2, 3, 10, 14, 13, 17, 16, 18, 11};

class Picker : public CKtUiArrowHeadComboBox {
public:
    const MruStore& store() const { return m_mru; }
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

bool DrawsNothing(Picker& picker, __int64 cargo) {
    Canvas canvas(30, 30, kUntouched);
    ui_test::drawImage(canvas, picker, cargo);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 30; ++x)
            if (canvas.dc.GetPixel(x, y) != kUntouched) return false;
    return true;
}

}  // namespace

TEST(ArrowheadPicker, ListsAllButTheObliqueOne) {
    InHolder<Picker> in;
    ASSERT_EQ(in.picker.GetCount(), kListedByDefault);
    for (int index = 0; index < kListedByDefault; ++index) {
        const int cargo = index < 5 ? index : index + 1;
        EXPECT_EQ(in.picker.GetItemCargo(index), cargo);
        EXPECT_EQ(in.texts()[static_cast<std::size_t>(index)],
                  Resource(kFirstText + static_cast<UINT>(cargo)));
    }
    EXPECT_EQ(in.picker.FindItemByCargo(5), -1);
    EXPECT_EQ(in.picker.FindItemByCargo(8), 7) << "the flag isn't about the second origin arrowhead";
}

TEST(ArrowheadPicker, FlagAddsTheObliqueOne) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.GetUseOrigin2(), 0);
    in.picker.SetUseOrigin2(1);
    EXPECT_EQ(in.picker.GetUseOrigin2(), 1);
    in.picker.ResetContent();
    in.picker.AddItems();
    EXPECT_EQ(in.picker.GetCount(), kCount);
    EXPECT_EQ(in.picker.FindItemByCargo(5), 5);
    EXPECT_EQ(in.texts()[5], Resource(54168));
}

TEST(ArrowheadPicker, StartsWithoutFlagsAndWithTheSecondItemToFallBackTo) {
    const Picker picker;
    EXPECT_EQ(picker.lastSelection(), 1);
    EXPECT_EQ(picker.flags(), 0u);
}

TEST(ArrowheadPicker, ItemsAreAsHighAsTheirPictures) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.CalcItemHeight(), 15);
    EXPECT_EQ(in.picker.ItemHeight(), 15);
    EXPECT_EQ(in.picker.ImageWidth(), 15);
    EXPECT_EQ(in.picker.GetItemHeight(0), 15);
}

TEST(ArrowheadPicker, UserArrowheadsGetCargosFrom20On) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.AddArrowHeadToMRU(L"mine"), 19);
    EXPECT_EQ(in.picker.AddArrowHeadToMRU(L"other"), 20);
    EXPECT_EQ(in.picker.GetItemCargo(19), 20);
    EXPECT_EQ(in.picker.GetItemCargo(20), 21);
    EXPECT_EQ(in.texts()[19], L"mine");
}

TEST(ArrowheadPicker, FullStoreFreesTheCargoOfTheOldest) {
    InHolder<Picker> in;
    for (const wchar_t* name : {L"a", L"b", L"c", L"d", L"e", L"f"}) in.picker.AddArrowHeadToMRU(name);
    EXPECT_EQ(in.picker.store().count(), 6);
    EXPECT_EQ(in.picker.AddArrowHeadToMRU(L"g"), 25);
    EXPECT_EQ(in.picker.GetItemCargo(25), 26);
    EXPECT_FALSE(in.picker.store().contains(20));
    EXPECT_EQ(in.picker.GenerateCargoFromMRU(20), 20);
}

TEST(ArrowheadPicker, FreedCargoStillListedAnswersTheOldItem) {
    InHolder<Picker> in;
    for (const wchar_t* name : {L"a", L"b", L"c", L"d", L"e", L"f", L"g"}) in.picker.AddArrowHeadToMRU(name);
    EXPECT_EQ(in.picker.AddArrowHeadToMRU(L"h"), 19);
    EXPECT_EQ(in.texts()[19], L"a");
    EXPECT_EQ(in.picker.GetCount(), 26);
    EXPECT_FALSE(in.picker.store().contains(20));
    in.picker.ResetContent();
    in.picker.AddItems();
    EXPECT_EQ(in.picker.AddArrowHeadToMRU(L"h"), 25) << "a list filled anew has lost the old item";
    EXPECT_EQ(in.picker.GetItemCargo(25), 20);
}

TEST(ArrowheadOther, NamesGoByTheFlagOfTheFirst) {
    InHolder<Picker> in;
    CString text;
    EXPECT_EQ(in.picker.GetOtherName(0, text), 1);
    EXPECT_STREQ(text, L"User arrow");
    EXPECT_EQ(in.picker.GetOtherName(1, text), 1);
    EXPECT_EQ(text.GetString(), Resource(54183));
    in.picker.SetUseOther(1);
    EXPECT_EQ(in.picker.GetOtherName(0, text), 1);
    EXPECT_EQ(text.GetString(), Resource(54185));
    in.picker.GetOtherName(7, text);
    EXPECT_EQ(text.GetString(), Resource(54183));
}

TEST(ArrowheadOther, SecondFlagAloneAddsOther) {
    InHolder<Picker> in;
    in.picker.SetUseOther2(1);
    in.dropDown();
    in.closeUp();
    EXPECT_EQ(in.picker.GetCount(), kListedByDefault + 1);
    EXPECT_EQ(in.texts().back(), Resource(54183));
}

TEST(ArrowheadOther, FirstFlagAddsTheUserArrowhead) {
    InHolder<Picker> in;
    in.picker.SetUseOther(1);
    in.dropDown();
    in.closeUp();
    EXPECT_EQ(in.picker.GetCount(), kListedByDefault + 1);
    EXPECT_EQ(in.texts().back(), Resource(54185));
    EXPECT_EQ(in.picker.GetItemCargo(kListedByDefault), kCargoOther);
}

TEST(ArrowheadImages, StripIsOneImageWideAndItsImagesShareARow) {
    LibraryStrip strip(IDB_ARROWHEADS);
    EXPECT_EQ(strip.size(), CSize(15, 14 * kCount + 1));
    for (int row = 0; row < kCount; ++row) {
        EXPECT_TRUE(strip.hasInk(14 * row + 1, 13)) << row;
        EXPECT_FALSE(strip.hasInk(14 * row, 1)) << "the shared row is blank";
    }
}

TEST(ArrowheadImages, EachCargoShowsItsRowOfTheStrip) {
    InHolder<Picker> in;
    LibraryStrip strip(IDB_ARROWHEADS);
    for (int cargo = 0; cargo < kCount; ++cargo) {
        Canvas canvas(30, 30, kUntouched);
        ui_test::drawImage(canvas, in.picker, cargo);
        const int top = 14 * kStripRows[cargo];
        EXPECT_TRUE(ui_test::showsPicture(canvas, strip, CPoint(3, 4), top, CSize(15, 15))) << cargo;
    }
}

TEST(ArrowheadImages, EntriesBeyondTheRangeShowNone) {
    InHolder<Picker> in;
    for (const int cargo : {-1, kCargoOther, 20, 21}) EXPECT_TRUE(DrawsNothing(in.picker, cargo)) << cargo;
    EXPECT_TRUE(DrawsNothing(in.picker, 0x100000000)) << "no cargo is cut to 32 bits first";
}

TEST(ArrowheadImages, AnotherSizeTakesAnotherStrip) {
    constexpr int kSize = 20;
    InHolder<Picker> in;
    CBitmap strip;
    ui_test::makeRowStrip(strip, kSize, (kSize - 1) * kCount + 1);
    in.picker.useLargerPictures(strip, kSize);
    EXPECT_EQ(in.picker.CalcItemHeight(), kSize);
    for (const int cargo : {0, 1, 4, 19}) {
        Canvas canvas(30, 30, kUntouched);
        ui_test::drawImage(canvas, in.picker, cargo);
        const int top = (kSize - 1) * kStripRows[cargo];
        EXPECT_EQ(canvas.dc.GetPixel(3, 4), ui_test::rowColor(top)) << cargo;
        EXPECT_EQ(canvas.dc.GetPixel(22, 23), ui_test::rowColor(top + kSize - 1)) << cargo;
        EXPECT_EQ(canvas.dc.GetPixel(22, 24), kUntouched) << cargo;
        EXPECT_EQ(canvas.dc.GetPixel(23, 23), kUntouched) << cargo;
    }
}

TEST(ArrowheadImages, WithoutTheStripTextsStillWork) {
    InHolder<Picker> in;
    in.picker.dropStrip();
    EXPECT_TRUE(DrawsNothing(in.picker, 0));
    EXPECT_EQ(in.texts()[0], Resource(54163));
}

TEST(ArrowheadPicker, OpeningAndClosingLeavesNothingBehind) {
    const auto openAndClose = [] {
        InHolder<Picker> in;
        in.dropDown();
        ui_test::pump();
        in.closeUp();
    };
    ui_test::expectNothingLeft(openAndClose);
}
