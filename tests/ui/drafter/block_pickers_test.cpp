// The arrowhead and callout pickers of the dimension style dialog, which speak of blocks.
#include "../../../samples/drafter/block_pickers.h"

#include <standin_host.h>

#include "ui_test.h"

namespace {

/// A picker in a window of the test's.
template <class Picker>
class BlockPicker : public ::testing::Test {
protected:
    BlockPicker() : host(*AfxGetApp()) {
        picker.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS,
                      CRect(10, 10, 200, 200), &parent, 5);
    }
    CStandinHost host;
    ui_test::ParentWindow parent;
    Picker picker;
};

using ArrowheadPicker = BlockPicker<CArrowheadPicker>;
using CalloutPicker = BlockPicker<CCalloutPicker>;

TEST_F(ArrowheadPicker, ShowsAndAnswersStandardArrowheadsByBlock) {
    picker.Show(OdString());
    EXPECT_TRUE(picker.Picked().isEmpty()) << "the filled, closed one has no block";
    EXPECT_EQ(picker.GetCurSel(), 0);
    for (const wchar_t* block : {L"_Dot", L"_Oblique", L"_Integral", L"_None"}) {
        picker.Show(block);
        EXPECT_EQ(picker.Picked(), block);
    }
    picker.Show(L"_DOT");
    EXPECT_EQ(picker.Picked(), L"_Dot");
    EXPECT_EQ(picker.GetCount(), 20) << "the oblique one is offered, and nothing was added";
}

TEST_F(ArrowheadPicker, MoreUserBlocksThanTheStoreHoldsAreToldApart) {
    for (int i = 0; i < 10; ++i) {
        CString name;
        name.Format(L"USER%d", i);
        picker.Show(OdString(name));
        EXPECT_EQ(picker.Picked(), OdString(name)) << i;
    }
    picker.Show(L"USER0");
    EXPECT_EQ(picker.Picked(), L"USER0");
    EXPECT_EQ(picker.GetCount(), 30);
}

TEST_F(CalloutPicker, ShowsAndAnswersCalloutsByBlockAndNoneForNone) {
    picker.Show(OdString());
    EXPECT_TRUE(picker.Picked().isEmpty());
    for (const wchar_t* block : {L"_DetailCallout", L"_TagTriangle", L"MINE"}) {
        picker.Show(block);
        EXPECT_EQ(picker.Picked(), block);
    }
}

TEST_F(CalloutPicker, TheEntryForAUsersBlockIsNoCallout) {
    picker.Show(L"_TagBox");
    picker.SetCurSel(picker.FindItemByCargo(6));
    EXPECT_EQ(picker.Picked(), L"_TagBox");
}

}  // namespace
