// Splitters: which panes there are, the bars that come and go, and what goes on to the frame.
#include "splitter_fixture.h"

namespace documents_test {

namespace {

HWND bar_of(const Splitter& splitter, int id) { return ::GetDlgItem(splitter.m_hWnd, id); }
bool shows(HWND window) { return window != nullptr && ::IsWindowVisible(window); }

}  // namespace

TEST_F(SplitterTest, AWindowIsAPaneByItsParentAndItsPlace) {
    make(false);
    int row = 7, col = 7;
    EXPECT_TRUE(splitter().IsChildPane(splitter().GetPane(0, 1), &row, &col));
    EXPECT_EQ(row, 0);
    EXPECT_EQ(col, 1);
    EXPECT_TRUE(splitter().IsChildPane(splitter().GetPane(0, 1), nullptr, nullptr));
    EXPECT_FALSE(splitter().IsChildPane(&splitter(), &row, &col)) << "its parent is another";
    EXPECT_EQ(row, -1);
    EXPECT_EQ(col, -1);
    CStatic third;
    third.Create(L"", WS_CHILD, CRect(0, 0, 1, 1), &splitter(),
                 static_cast<UINT>(splitter().IdFromRowCol(0, 2)));
    EXPECT_FALSE(splitter().IsChildPane(&third, &row, &col)) << "there are two columns";
    CStatic below;
    below.Create(L"", WS_CHILD, CRect(0, 0, 1, 1), &splitter(),
                 static_cast<UINT>(splitter().IdFromRowCol(1, 0)));
    EXPECT_FALSE(splitter().IsChildPane(&below, &row, &col)) << "there is one row";
    EXPECT_EQ(splitter().IdFromRowCol(1, 2), AFX_IDW_PANE_FIRST + 18);
}

TEST_F(SplitterTest, AStaticOneHasNoBarsOfItsOwnAndNoBoxes) {
    make(false);
    EXPECT_EQ(bar_of(splitter(), AFX_IDW_HSCROLL_FIRST), nullptr);
    EXPECT_EQ(bar_of(splitter(), AFX_IDW_VSCROLL_FIRST), nullptr);
    EXPECT_EQ(bar_of(splitter(), AFX_IDW_SIZE_BOX), nullptr);
    EXPECT_EQ(splitter().GetScrollStyle(), 0u);
    EXPECT_EQ(splitter().GetStyle() & (SPLS_DYNAMIC_SPLIT | WS_CHILD | WS_VISIBLE),
              static_cast<DWORD>(WS_CHILD | WS_VISIBLE));
}

TEST_F(SplitterTest, BarsComeAndGoWithTheScrollStyle) {
    make(true);
    EXPECT_EQ(splitter().GetScrollStyle(), static_cast<DWORD>(WS_HSCROLL | WS_VSCROLL));
    EXPECT_TRUE(shows(bar_of(splitter(), AFX_IDW_SIZE_BOX)));
    splitter().SetScrollStyle(WS_VSCROLL);
    EXPECT_FALSE(shows(bar_of(splitter(), AFX_IDW_HSCROLL_FIRST)));
    EXPECT_TRUE(shows(bar_of(splitter(), AFX_IDW_VSCROLL_FIRST)));
    EXPECT_FALSE(shows(bar_of(splitter(), AFX_IDW_SIZE_BOX)));
    EXPECT_EQ(splitter().GetScrollStyle(), static_cast<DWORD>(WS_VSCROLL));
    splitter().SetScrollStyle(WS_HSCROLL | WS_VSCROLL);
    EXPECT_TRUE(shows(bar_of(splitter(), AFX_IDW_HSCROLL_FIRST)));
    EXPECT_TRUE(shows(bar_of(splitter(), AFX_IDW_SIZE_BOX)));
}

TEST_F(SplitterTest, ColumnsGoWithTheirBarsAndTheNextTakesTheirPlace) {
    make(true);
    ASSERT_TRUE(splitter().SplitColumn(150));
    HWND const second = bar_of(splitter(), AFX_IDW_HSCROLL_FIRST + 1);
    CWnd* right = splitter().GetPane(0, 1);
    ASSERT_NE(second, nullptr);
    HWND const first = bar_of(splitter(), AFX_IDW_HSCROLL_FIRST);
    splitter().DeleteColumn(0);
    EXPECT_EQ(columns(), 1);
    EXPECT_FALSE(::IsWindow(first));
    EXPECT_EQ(bar_of(splitter(), AFX_IDW_HSCROLL_FIRST), second);
    EXPECT_EQ(bar_of(splitter(), AFX_IDW_HSCROLL_FIRST + 1), nullptr);
    EXPECT_EQ(splitter().GetPane(0, 0), right);
    EXPECT_EQ(Leaf::alive, 1);
}

TEST_F(SplitterTest, RowsGoWithTheirBarsAndTheNextTakesTheirPlace) {
    make(true);
    ASSERT_TRUE(splitter().SplitRow(120));
    EXPECT_FALSE(splitter().SplitRow(60)) << "there are two already";
    HWND const first = bar_of(splitter(), AFX_IDW_VSCROLL_FIRST);
    HWND const second = bar_of(splitter(), AFX_IDW_VSCROLL_FIRST + 1);
    CWnd* lower = splitter().GetPane(1, 0);
    splitter().DeleteRow(0);
    EXPECT_EQ(rows(), 1);
    EXPECT_FALSE(::IsWindow(first));
    EXPECT_EQ(bar_of(splitter(), AFX_IDW_VSCROLL_FIRST), second);
    EXPECT_EQ(splitter().GetPane(0, 0), lower);
    EXPECT_EQ(Leaf::alive, 1);
}

TEST_F(SplitterTest, SizesAreWhatWasAskedForAndBelowTheLeastNothing) {
    make(false);
    splitter().SetColumnInfo(0, 130, 20);
    splitter().RecalcLayout();
    int now = 0, least = 0;
    splitter().GetColumnInfo(0, now, least);
    EXPECT_EQ(now, 130);
    EXPECT_EQ(least, 20);
    EXPECT_EQ(place(0, 0).Width(), 130);
    EXPECT_EQ(place(0, 1).left, place(0, 0).right + kGap);
    splitter().SetColumnInfo(0, 19, 20);
    splitter().RecalcLayout();
    EXPECT_EQ(place(0, 0).Width(), 0);
    splitter().SetRowInfo(0, 33, 5);
    splitter().RecalcLayout();
    splitter().GetRowInfo(0, now, least);
    EXPECT_EQ(now, 300 - 2 * kBorder) << "the last takes the rest";
    EXPECT_EQ(least, 5);
}

TEST_F(SplitterTest, ScrollingOnlyWhatTheNeighboursShare) {
    make(true);
    ASSERT_TRUE(splitter().SplitColumn(150));
    auto* left = static_cast<Leaf*>(splitter().GetPane(0, 0));
    auto* right = static_cast<Leaf*>(splitter().GetPane(0, 1));
    HWND const shared = bar_of(splitter(), AFX_IDW_VSCROLL_FIRST);
    EXPECT_FALSE(splitter().DoScrollBy(left, CSize(-5, -5))) << "they stand at the beginning";
    EXPECT_TRUE(splitter().DoScrollBy(left, CSize(11, 22), FALSE)) << "they could";
    EXPECT_EQ(left->GetScrollPosition(), CPoint(0, 0));
    EXPECT_TRUE(splitter().DoScrollBy(left, CSize(11, 22)));
    EXPECT_EQ(left->GetScrollPosition(), CPoint(11, 22));
    EXPECT_EQ(right->GetScrollPosition(), CPoint(0, 22));
    EXPECT_EQ(::GetScrollPos(shared, SB_CTL), 22);
    EXPECT_TRUE(left->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0));
    EXPECT_EQ(left->GetScrollPosition().y, right->GetScrollPosition().y);
    EXPECT_GT(left->GetScrollPosition().y, 22);
}

TEST_F(SplitterTest, APaneIsMadeOnceAndOnlyWhereThereIsOne) {
    make(false);
    EXPECT_THROW(splitter().CreateView(0, 0, RUNTIME_CLASS(Leaf), CSize(1, 1), nullptr),
                 CInvalidArgException*);
    EXPECT_THROW(splitter().CreateView(0, 2, RUNTIME_CLASS(Leaf), CSize(1, 1), nullptr),
                 CInvalidArgException*);
    EXPECT_THROW(splitter().SplitRow(50), CInvalidArgException*) << "it is a static one";
}

}  // namespace documents_test
