// Lists of checks: styles, what is drawn, and what becomes of an item's data.
#include <afxwin.h>
#include <kmfc/check_list_box.h>

#include <vector>

#include "canvas.h"
#include "ui_test.h"

namespace {

using ui_test::Canvas;

class List : public CCheckListBox {
public:
    std::vector<ULONG_PTR> gone;
    void DeleteItem(LPDELETEITEMSTRUCT item) override { gone.push_back(item->itemData); }
};

class CheckList : public ::testing::Test {
protected:
    CheckList() {
        list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, CRect(10, 10, 160, 120),
                    &parent, 5);
        for (const wchar_t* text : {L"one & all", L"two"}) list.AddString(text);
    }
    static constexpr int kWidth = 140, kHeight = 20;
    /// Draws item `index` in `state` on a canvas.
    void draw(Canvas& canvas, UINT index, UINT state) {
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_LISTBOX;
        item.itemID = index;
        item.itemState = state;
        item.hwndItem = list.m_hWnd;
        item.hDC = canvas.dc.m_hDC;
        item.rcItem = CRect(0, 0, kWidth, kHeight);
        list.DrawItem(&item);
    }
    static constexpr int kText = 25;  // where texts stand, behind the box
    /// Pixels of a system colour among the texts.
    static int inked(const Canvas& canvas, int color) {
        int found = 0;
        for (int x = kText; x < kWidth; ++x)
            for (int y = 0; y < kHeight; ++y) found += canvas.at(x, y) == ::GetSysColor(color);
        return found;
    }
    static int lastInked(const Canvas& canvas, int color) {
        int last = -1;
        for (int x = kText; x < kWidth; ++x)
            for (int y = 0; y < kHeight; ++y)
                if (canvas.at(x, y) == ::GetSysColor(color)) last = x;
        return last;
    }
    ui_test::ParentWindow parent;
    List list;
};

/// The rightmost column in which two canvases differ; -1 if they are the same.
int lastDifference(const Canvas& a, const Canvas& b, int width, int height) {
    int last = -1;
    for (int x = 0; x < width; ++x)
        for (int y = 0; y < height; ++y)
            if (a.at(x, y) != b.at(x, y)) last = x;
    return last;
}

}  // namespace

TEST_F(CheckList, RowsOfTheirOwnHeightsAreKept) {
    CCheckListBox variable;
    ASSERT_TRUE(variable.Create(WS_CHILD | LBS_OWNERDRAWVARIABLE, CRect(0, 0, 50, 50), &parent, 6));
    EXPECT_EQ(variable.GetStyle() & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE),
              static_cast<DWORD>(LBS_OWNERDRAWVARIABLE));
    CCheckListBox plain;
    ASSERT_TRUE(plain.Create(WS_CHILD, CRect(0, 0, 50, 50), &parent, 7));
    EXPECT_TRUE(plain.GetStyle() & LBS_OWNERDRAWFIXED);
}

TEST_F(CheckList, OnlyStylesOfCheckBoxesCount) {
    list.SetCheckStyle(BS_3STATE);
    list.SetCheckStyle(BS_GROUPBOX);
    EXPECT_EQ(list.GetCheckStyle(), static_cast<UINT>(BS_3STATE));
}

TEST_F(CheckList, WhatChangesIsPaintedAnew) {
    const auto isDirty = [&] { return ::GetUpdateRect(list.m_hWnd, nullptr, FALSE) != FALSE; };
    list.UpdateWindow();
    ASSERT_FALSE(isDirty());
    list.SetCheck(0, 1);
    EXPECT_TRUE(isDirty());
    list.UpdateWindow();
    list.Enable(1, FALSE);
    EXPECT_TRUE(isDirty());
    list.UpdateWindow();
    list.SetItemHeight(0, 30);
    EXPECT_TRUE(isDirty());
}

TEST_F(CheckList, AnItemThatGoesIsToldWithTheCallersData) {
    list.SetItemData(0, 4711);
    list.SetCheck(0, 1);
    list.DeleteString(0);
    EXPECT_EQ(list.gone, std::vector<ULONG_PTR>{4711});
}

TEST_F(CheckList, ADisabledItemIsGreyInBoxAndText) {
    Canvas on(kWidth, kHeight), off(kWidth, kHeight), offSelected(kWidth, kHeight);
    draw(on, 0, 0);
    EXPECT_EQ(inked(on, COLOR_GRAYTEXT), 0);
    list.Enable(0, FALSE);
    draw(off, 0, 0);
    EXPECT_GT(inked(off, COLOR_GRAYTEXT), 0);
    draw(offSelected, 0, ODS_SELECTED);
    EXPECT_EQ(inked(offSelected, COLOR_HIGHLIGHTTEXT), 0);
    // The box: in the columns before the text.
    Canvas bare(kWidth, kHeight), bareOff(kWidth, kHeight);
    list.DeleteString(0);
    list.InsertString(0, L"");
    draw(bare, 0, 0);
    list.Enable(0, FALSE);
    draw(bareOff, 0, 0);
    EXPECT_GE(lastDifference(bare, bareOff, kWidth, kHeight), 0);
    EXPECT_LT(lastDifference(bare, bareOff, kWidth, kHeight), kText);
}

TEST_F(CheckList, ADisabledListHasDisabledItems) {
    list.EnableWindow(FALSE);
    Canvas canvas(kWidth, kHeight);
    draw(canvas, 0, 0);
    EXPECT_GT(inked(canvas, COLOR_GRAYTEXT), 0);
}

TEST_F(CheckList, AnAmpersandIsOne) {
    const auto end = [&](const wchar_t* text) {
        list.DeleteString(0);
        list.InsertString(0, text);
        Canvas canvas(kWidth, kHeight);
        draw(canvas, 0, 0);
        return lastInked(canvas, COLOR_WINDOWTEXT);
    };
    const int without = end(L"oneall"), one = end(L"one&all"), two = end(L"one&&all");
    EXPECT_GT(without, kText);
    EXPECT_GT(one, without + 3);
    EXPECT_EQ(two - one, one - without) << "and two are two";
}

TEST_F(CheckList, TheFocusIsMarked) {
    Canvas plain(kWidth, kHeight), focused(kWidth, kHeight);
    draw(plain, 1, 0);
    draw(focused, 1, ODS_FOCUS);
    EXPECT_GT(lastDifference(plain, focused, kWidth, kHeight), kWidth - 5);
}
