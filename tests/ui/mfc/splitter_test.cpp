// Splitters: panes, lines, split boxes, shared scroll bars.
#include "splitter_fixture.h"

namespace documents_test {

TEST_F(SplitterTest, AStaticOneGivesEachPaneItsSizeAndTheLastTheRest) {
    make(false);
    EXPECT_EQ(place(0, 0), CRect(kBorder, kBorder, kBorder + 100, 300 - kBorder));
    EXPECT_EQ(place(0, 1), CRect(kBorder + 100 + kGap, kBorder, 400 - kBorder, 300 - kBorder));
    int present = 0, least = 0;
    splitter().GetColumnInfo(1, present, least);
    EXPECT_EQ(present, 400 - 2 * kBorder - 100 - kGap);
    EXPECT_EQ(splitter().GetScrollStyle(), 0u);
    int row = -1, col = -1;
    EXPECT_TRUE(splitter().IsChildPane(splitter().GetPane(0, 1), &row, &col));
    EXPECT_EQ(col, 1);
    EXPECT_FALSE(splitter().IsChildPane(frame, &row, &col));
    EXPECT_EQ(col, -1);
    splitter().SetColumnInfo(0, 150, 20);
    splitter().RecalcLayout();
    EXPECT_EQ(place(0, 0).Width(), 150);
    splitter().SetColumnInfo(0, 10, 20);
    splitter().RecalcLayout();
    EXPECT_EQ(place(0, 0).Width(), 0) << "below its least size a column goes";
}

TEST_F(SplitterTest, ALineIsDraggedAndStaysInside) {
    make(false);
    drag({kBorder + 100 + 3, 150}, {203, 150});
    EXPECT_EQ(place(0, 0).Width(), 200 - kBorder);
    EXPECT_EQ(place(0, 1).left, 200 + kGap);
    EXPECT_EQ(place(0, 1).right, 400 - kBorder);
    drag({203, 150}, {-500, 150});
    EXPECT_EQ(place(0, 0).Width(), 0);
    drag({kBorder + 3, 10}, {900, 10});
    EXPECT_EQ(place(0, 1).Width(), 0);
    EXPECT_EQ(columns(), 2) << "panes of a static one stay";
}

TEST_F(SplitterTest, EscapeLeavesALineWhereItWas) {
    make(false);
    const CRect before = place(0, 0);
    splitter().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(kBorder + 103, 150));
    splitter().SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(250, 150));
    EXPECT_EQ(::GetCapture(), splitter().m_hWnd);
    splitter().SendMessage(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_FALSE(splitter().IsTracking());
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(place(0, 0), before);
    splitter().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 150));
    EXPECT_FALSE(splitter().IsTracking()) << "a pane is no line";
}

TEST_F(SplitterTest, ADynamicOneBeginsWithOnePaneItsBarsAndTwoBoxes) {
    make(true);
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(columns(), 1);
    EXPECT_EQ(place(0, 0), CRect(kBorder, kBorder, 400 - bar - kBorder, 300 - bar - kBorder));
    splitter().drawn.clear();
    splitter().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    const std::string edge = std::to_string(400 - bar), floor = std::to_string(300 - bar);
    EXPECT_EQ(splitter().drawn,
              (std::vector<std::string>{"border 0,0," + edge + "," + floor, "box " + edge + ",0,400,7",
                                        "box 0," + floor + ",7,300"}));
    CRect shared;
    ::GetWindowRect(::GetDlgItem(splitter().m_hWnd, AFX_IDW_HSCROLL_FIRST), &shared);
    frame->ScreenToClient(&shared);
    EXPECT_EQ(shared, CRect(7, 300 - bar, 400 - bar, 300));
    ::GetWindowRect(::GetDlgItem(splitter().m_hWnd, AFX_IDW_VSCROLL_FIRST), &shared);
    frame->ScreenToClient(&shared);
    EXPECT_EQ(shared, CRect(400 - bar, 7, 400, 300 - bar));
    EXPECT_EQ(splitter().GetScrollStyle(), static_cast<DWORD>(WS_HSCROLL | WS_VSCROLL));
}

TEST_F(SplitterTest, DraggingABoxSplitsAndDraggingTheLineOutTakesThePaneAway) {
    make(true);
    Leaf::updated = 0;
    drag({400 - bar + 3, 3}, {400 - bar + 3, 103});
    ASSERT_EQ(rows(), 2);
    EXPECT_EQ(Leaf::updated, 1) << "the new pane has its first update";
    EXPECT_EQ(Leaf::alive, 2);
    EXPECT_EQ(static_cast<CView*>(splitter().GetPane(1, 0))->GetDocument(), &document);
    EXPECT_EQ(place(0, 0), CRect(kBorder, kBorder, 400 - bar - kBorder, 100));
    EXPECT_EQ(place(1, 0).top, 100 + kGap);
    EXPECT_EQ(place(1, 0).bottom, 300 - bar - kBorder);
    EXPECT_NE(::GetDlgItem(splitter().m_hWnd, AFX_IDW_VSCROLL_FIRST + 1), nullptr);
    drag({3, 300 - bar + 3}, {150, 300 - bar + 3});
    ASSERT_EQ(columns(), 2);
    EXPECT_EQ(Leaf::alive, 4);
    EXPECT_EQ(place(1, 1).TopLeft(), CPoint(147 + kGap, 100 + kGap));
    // Up to where the upper row is too low.
    CWnd* kept = splitter().GetPane(1, 1);
    drag({200, 103}, {200, 8});
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(Leaf::alive, 2);
    EXPECT_EQ(splitter().GetPane(0, 1), kept) << "the lower panes moved up";
    EXPECT_EQ(::GetDlgItem(splitter().m_hWnd, AFX_IDW_VSCROLL_FIRST + 1), nullptr);
    EXPECT_EQ(place(0, 1).top, kBorder);
    // The other way the right column goes.
    drag({150, 50}, {395, 50});
    EXPECT_EQ(columns(), 1);
    EXPECT_EQ(Leaf::alive, 1);
}

TEST_F(SplitterTest, TooLittleRoomSplitsNothing) {
    make(true);
    EXPECT_FALSE(splitter().SplitRow(kBorder + 19));
    EXPECT_TRUE(splitter().SplitRow(kBorder + 20));
    EXPECT_FALSE(splitter().SplitRow(100)) << "there are as many as there may be";
    EXPECT_FALSE(splitter().SplitColumn(kBorder + 29));
    EXPECT_TRUE(splitter().SplitColumn(kBorder + 30));
    splitter().DeleteColumn(0);
    splitter().DeleteRow(1);
    EXPECT_FALSE(splitter().SplitRow(300 - bar - kBorder - kGap - 19));
    EXPECT_EQ(Leaf::alive, 1);
}

TEST_F(SplitterTest, ADoubleClickSplitsInTheMiddleAndOnALineTakesAway) {
    make(true);
    splitter().SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(400 - bar + 3, 3));
    ASSERT_EQ(rows(), 2);
    EXPECT_NEAR(place(0, 0).Height(), place(1, 0).Height(), 4);
    splitter().SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(50, place(0, 0).bottom + 3));
    EXPECT_EQ(rows(), 1);
}

TEST_F(SplitterTest, PanesOfAColumnScrollTogetherAcrossAndAloneUpright) {
    make(true);
    ASSERT_TRUE(splitter().SplitRow(120));
    auto* upper = static_cast<Leaf*>(splitter().GetPane(0, 0));
    auto* lower = static_cast<Leaf*>(splitter().GetPane(1, 0));
    HWND across = ::GetDlgItem(splitter().m_hWnd, AFX_IDW_HSCROLL_FIRST);
    HWND first = ::GetDlgItem(splitter().m_hWnd, AFX_IDW_VSCROLL_FIRST);
    EXPECT_EQ(upper->GetScrollBarCtrl(SB_HORZ)->m_hWnd, across);
    EXPECT_EQ(lower->GetScrollBarCtrl(SB_HORZ)->m_hWnd, across);
    EXPECT_EQ(upper->GetScrollBarCtrl(SB_VERT)->m_hWnd, first);
    EXPECT_NE(lower->GetScrollBarCtrl(SB_VERT)->m_hWnd, first);
    splitter().SendMessage(WM_HSCROLL, SB_LINERIGHT, reinterpret_cast<LPARAM>(across));
    EXPECT_EQ(upper->GetScrollPosition(), CPoint(10, 0));
    EXPECT_EQ(lower->GetScrollPosition(), CPoint(10, 0)) << "once, not once for each pane";
    splitter().SendMessage(WM_VSCROLL, SB_LINEDOWN, reinterpret_cast<LPARAM>(first));
    EXPECT_EQ(upper->GetScrollPosition(), CPoint(10, 20));
    EXPECT_EQ(lower->GetScrollPosition(), CPoint(10, 0));
    EXPECT_TRUE(splitter().DoScrollBy(lower, CSize(30, 40)));
    EXPECT_EQ(upper->GetScrollPosition(), CPoint(40, 20));
    EXPECT_EQ(lower->GetScrollPosition(), CPoint(40, 40));
    EXPECT_TRUE(splitter().DoScroll(upper, MAKEWORD(SB_LINELEFT, SB_LINEUP)));
    EXPECT_EQ(upper->GetScrollPosition(), CPoint(30, 0));
    EXPECT_EQ(lower->GetScrollPosition(), CPoint(30, 40));
    EXPECT_EQ(upper->GetStyle() & (WS_HSCROLL | WS_VSCROLL), 0u) << "the bars are the splitter's";
}

TEST_F(SplitterTest, PanesAreGoneThroughInOrder) {
    make(true);
    EXPECT_FALSE(splitter().CanActivateNext());
    splitter().SplitRow(120);
    splitter().SplitColumn(150);
    splitter().SetActivePane(0, 0);
    const auto active = [this] {
        int row = -1, col = -1;
        splitter().GetActivePane(&row, &col);
        return row * 10 + col;
    };
    EXPECT_EQ(active(), 0);
    EXPECT_TRUE(splitter().CanActivateNext());
    std::vector<int> order;
    for (int i = 0; i < 4; ++i) {
        frame->SendMessage(WM_COMMAND, ID_NEXT_PANE);
        order.push_back(active());
    }
    EXPECT_EQ(order, (std::vector<int>{1, 10, 11, 0}));
    frame->SendMessage(WM_COMMAND, ID_PREV_PANE);
    EXPECT_EQ(active(), 11);
    splitter().DeleteRow(1);
    EXPECT_NE(frame->GetActiveView(), nullptr) << "another pane is active then";
}

TEST_F(SplitterTest, SplittingByKeysStartsInTheMiddle) {
    make(true);
    frame->SendMessage(WM_COMMAND, ID_WINDOW_SPLIT);
    ASSERT_TRUE(splitter().IsTracking());
    splitter().SendMessage(WM_KEYDOWN, VK_DOWN);
    splitter().SendMessage(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(columns(), 2);
    const int middle = kBorder + (300 - bar - 2 * kBorder) / 2 - kGap / 2;
    EXPECT_EQ(place(0, 0).bottom, middle + 16);
    splitter().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    CClientDC dc(&splitter());
    EXPECT_EQ(dc.GetPixel(5, place(0, 0).bottom + 3), ::GetSysColor(COLOR_3DFACE));
}

}  // namespace documents_test
