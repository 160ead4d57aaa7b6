// A static splitter of three by three: what is drawn where, what is under the mouse, how far each line goes,
// by mouse and keys.
#include "splitter_fixture.h"

namespace documents_test {

namespace {

/// Opens what is protected, and notes which tracking lines are inverted.
class GridSplitter : public Splitter {
public:
    std::vector<CRect> inverted;

protected:
    void OnInvertTracker(const CRect& rect) override {
        inverted.push_back(rect);
        CSplitterWnd::OnInvertTracker(rect);
    }
};

constexpr int kRows[] = {40, 60}, kColumns[] = {70, 50};  // the last takes the rest

struct SplitterGrid : ::testing::Test {
    SplitterGrid() {
        parent.GetClientRect(&client);
        splitter.CreateStatic(&parent, 3, 3);
        for (int row = 0; row < 3; ++row)
            for (int col = 0; col < 3; ++col)
                panes[row][col].Create(L"STATIC", L"", WS_CHILD | WS_VISIBLE | SS_NOTIFY, CRect(0, 0, 1, 1),
                                       &splitter, static_cast<UINT>(splitter.IdFromRowCol(row, col)));
        for (int i = 0; i < 2; ++i) {
            splitter.SetRowInfo(i, kRows[i], 10);
            splitter.SetColumnInfo(i, kColumns[i], 10);
        }
        splitter.MoveWindow(0, 0, kWide, kHigh);
        splitter.RecalcLayout();
    }
    ~SplitterGrid() override { splitter.DestroyWindow(); }
    CRect place(int row, int col) const {
        CRect rect;
        panes[row][col].GetWindowRect(&rect);
        splitter.ScreenToClient(&rect);
        return rect;
    }
    std::vector<int> widths() const {
        return {place(0, 0).Width(), place(0, 1).Width(), place(0, 2).Width()};
    }
    std::vector<int> heights() const {
        return {place(0, 0).Height(), place(1, 0).Height(), place(2, 0).Height()};
    }
    void mouse(UINT message, CPoint at, WPARAM keys = MK_LBUTTON) {
        splitter.SendMessage(message, keys, MAKELPARAM(at.x, at.y));
    }
    void drag(CPoint from, CPoint to) {
        mouse(WM_LBUTTONDOWN, from);
        mouse(WM_MOUSEMOVE, to);
        mouse(WM_LBUTTONUP, to, 0);
    }
    void key(UINT code) { splitter.SendMessage(WM_KEYDOWN, code); }
    HCURSOR cursor_at(CPoint at) {
        ::SetCursor(::LoadCursorW(nullptr, IDC_NO));
        splitter.ClientToScreen(&at);
        EXPECT_TRUE(ui_test::move_cursor(at));
        splitter.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(splitter.m_hWnd),
                             MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        return ::GetCursor();
    }
    static HCURSOR shape(LPCWSTR name) { return ::LoadCursorW(nullptr, name); }

    static constexpr int kWide = 300, kHigh = 240;
    // The middles of the lines between the panes.
    const int line1 = kBorder + kColumns[0] + kGap / 2, line2 = line1 + kColumns[1] + kGap;
    const int bar1 = kBorder + kRows[0] + kGap / 2, bar2 = bar1 + kRows[1] + kGap;
    const int rest_wide = kWide - 2 * kBorder - kColumns[0] - kColumns[1] - 2 * kGap;
    const int rest_high = kHigh - 2 * kBorder - kRows[0] - kRows[1] - 2 * kGap;
    ui_test::ParentWindow parent;
    CRect client;
    GridSplitter splitter;
    CWnd panes[3][3];
};

}  // namespace

TEST_F(SplitterGrid, EachPaneHasItsPlaceAndItsBorder) {
    int top = kBorder;
    std::vector<std::string> borders;
    for (int row = 0; row < 3; ++row) {
        const int high = row < 2 ? kRows[row] : rest_high;
        int left = kBorder;
        for (int col = 0; col < 3; ++col) {
            const int wide = col < 2 ? kColumns[col] : rest_wide;
            EXPECT_EQ(place(row, col), CRect(left, top, left + wide, top + high)) << row << ' ' << col;
            borders.push_back("border " + std::to_string(left - kBorder) + "," +
                              std::to_string(top - kBorder) + "," + std::to_string(left + wide + kBorder) +
                              "," + std::to_string(top + high + kBorder));
            left += wide + kGap;
        }
        top += high + kGap;
    }
    splitter.drawn.clear();
    splitter.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    const auto bar = [](int left, int upper, int right, int lower) {
        return "bar " + std::to_string(left) + "," + std::to_string(upper) + "," + std::to_string(right) +
               "," + std::to_string(lower);
    };
    const int inner = kGap / 2 - kBorder;  // of a bar to each side of its middle
    borders.push_back(bar(0, bar1 - inner, kWide, bar1 + inner + 1));
    borders.push_back(bar(0, bar2 - inner, kWide, bar2 + inner + 1));
    borders.push_back(bar(line1 - inner, 0, line1 + inner + 1, kHigh));
    borders.push_back(bar(line2 - inner, 0, line2 + inner + 1, kHigh));
    EXPECT_EQ(splitter.drawn, borders);
}

TEST_F(SplitterGrid, TheCursorTellsWhatCanBeMoved) {
    EXPECT_EQ(cursor_at({line1, 20}), shape(IDC_SIZEWE));
    EXPECT_EQ(cursor_at({line2, 20}), shape(IDC_SIZEWE));
    EXPECT_EQ(cursor_at({20, bar1}), shape(IDC_SIZENS));
    EXPECT_EQ(cursor_at({20, bar2}), shape(IDC_SIZENS));
    EXPECT_EQ(cursor_at({line1, bar2}), shape(IDC_SIZEALL)) << "a crossing";
    EXPECT_EQ(cursor_at({0, 0}), shape(IDC_ARROW)) << "the border around all";
}

TEST_F(SplitterGrid, ALineBeginsAndEndsWithTheBordersBesideIt) {
    const auto hit = [this](int x) {
        mouse(WM_LBUTTONDOWN, {x, 20});
        const bool tracks = splitter.IsTracking() != FALSE;
        key(VK_ESCAPE);
        return tracks;
    };
    const int left = kBorder + kColumns[0];
    EXPECT_FALSE(hit(left - kBorder - 1));
    EXPECT_TRUE(hit(left - kBorder));
    EXPECT_TRUE(hit(left + kGap + kBorder - 1));
    EXPECT_FALSE(hit(left + kGap + kBorder));
    const auto across = [this](int y) {
        mouse(WM_LBUTTONDOWN, {20, y});
        const bool tracks = splitter.IsTracking() != FALSE;
        key(VK_ESCAPE);
        return tracks;
    };
    const int top = kBorder + kRows[0];
    EXPECT_FALSE(across(top - kBorder - 1));
    EXPECT_TRUE(across(top - kBorder));
    EXPECT_TRUE(across(top + kGap + kBorder - 1));
    EXPECT_FALSE(across(top + kGap + kBorder));
}

TEST_F(SplitterGrid, EachLineMovesTheTwoPanesBesideIt) {
    drag({line1, 20}, {line1 + 15, 20});
    EXPECT_EQ(widths(), (std::vector<int>{kColumns[0] + 15, kColumns[1] - 15, rest_wide}));
    drag({line2, 20}, {line2 - 12, 20});
    EXPECT_EQ(widths(), (std::vector<int>{kColumns[0] + 15, kColumns[1] - 27, rest_wide + 12}));
    drag({20, bar1}, {20, bar1 - 9});
    EXPECT_EQ(heights(), (std::vector<int>{kRows[0] - 9, kRows[1] + 9, rest_high}));
    drag({20, bar2}, {20, bar2 + 5});
    EXPECT_EQ(heights(), (std::vector<int>{kRows[0] - 9, kRows[1] + 14, rest_high - 5}));
}

TEST_F(SplitterGrid, ACrossingMovesBothLines) {
    drag({line2, bar1}, {line2 + 11, bar1 + 6});
    EXPECT_EQ(widths(), (std::vector<int>{kColumns[0], kColumns[1] + 11, rest_wide - 11}));
    EXPECT_EQ(heights(), (std::vector<int>{kRows[0] + 6, kRows[1] - 6, rest_high}));
}

TEST_F(SplitterGrid, ALineStaysBetweenItsNeighbours) {
    drag({line1, 20}, {kWide, 20});
    EXPECT_EQ(widths(), (std::vector<int>{kColumns[0] + kColumns[1], 0, rest_wide}));
    splitter.SetColumnInfo(0, kColumns[0], 10);
    splitter.SetColumnInfo(1, kColumns[1], 10);
    splitter.RecalcLayout();
    drag({line2, 20}, {0, 20});
    EXPECT_EQ(widths(), (std::vector<int>{kColumns[0], 0, kColumns[1] + rest_wide}));
    drag({20, bar1}, {20, kHigh});
    EXPECT_EQ(heights(), (std::vector<int>{kRows[0] + kRows[1], 0, rest_high}));
    splitter.SetRowInfo(0, kRows[0], 10);
    splitter.SetRowInfo(1, kRows[1], 10);
    splitter.RecalcLayout();
    drag({20, bar2}, {20, 0});
    EXPECT_EQ(heights(), (std::vector<int>{kRows[0], 0, kRows[1] + rest_high}));
}

TEST_F(SplitterGrid, TheTrackerIsInvertedOnceForEachPlaceAndTakenAway) {
    mouse(WM_LBUTTONDOWN, {line1, 20});
    ASSERT_EQ(splitter.inverted.size(), 1U);
    const CRect first = splitter.inverted[0];
    EXPECT_EQ(first, CRect(line1 - kGap / 2, 0, line1 - kGap / 2 + kGap, kHigh));
    mouse(WM_MOUSEMOVE, {line1, 20});
    EXPECT_EQ(splitter.inverted.size(), 1U) << "the same place";
    mouse(WM_MOUSEMOVE, {line1 + 10, 20});
    ASSERT_EQ(splitter.inverted.size(), 3U);
    EXPECT_EQ(splitter.inverted[1], first);
    EXPECT_EQ(splitter.inverted[2], CRect(first.left + 10, 0, first.right + 10, kHigh));
    key(VK_ESCAPE);
    ASSERT_EQ(splitter.inverted.size(), 4U);
    EXPECT_EQ(splitter.inverted[3], splitter.inverted[2]);
    EXPECT_EQ(widths()[0], kColumns[0]);
    splitter.inverted.clear();
    mouse(WM_LBUTTONDOWN, {20, bar2});
    EXPECT_EQ(splitter.inverted.at(0), CRect(0, bar2 - kGap / 2, kWide, bar2 - kGap / 2 + kGap));
    ::ReleaseCapture();
    splitter.SendMessage(WM_CANCELMODE);
    EXPECT_FALSE(splitter.IsTracking());
    EXPECT_EQ(splitter.inverted.size(), 2U);
}

TEST_F(SplitterGrid, KeysMoveTheLineThatIsHeld) {
    mouse(WM_LBUTTONDOWN, {line1, bar1});
    key(VK_RIGHT);
    key(VK_DOWN);
    key(VK_RETURN);
    EXPECT_FALSE(splitter.IsTracking());
    EXPECT_EQ(widths()[0], kColumns[0] + 16);
    EXPECT_EQ(heights()[0], kRows[0] + 16);
    mouse(WM_LBUTTONDOWN, {line1 + 16, bar1 + 16});
    key(VK_LEFT);
    key(VK_LEFT);
    key(VK_UP);
    key(VK_ESCAPE);
    EXPECT_EQ(widths()[0], kColumns[0] + 16) << "given up";
    BYTE state[256] = {};
    ::GetKeyboardState(state);
    state[VK_CONTROL] = 0x80;
    mouse(WM_LBUTTONDOWN, {line1 + 16, bar1 + 16});
    ::SetKeyboardState(state);
    key(VK_LEFT);
    key(VK_UP);
    key(VK_UP);
    state[VK_CONTROL] = 0;
    ::SetKeyboardState(state);
    key(VK_RETURN);
    EXPECT_EQ(widths()[0], kColumns[0] + 15) << "a pixel at a time with Ctrl";
    EXPECT_EQ(heights()[0], kRows[0] + 14);
}

TEST_F(SplitterGrid, ADoubleClickChangesNothingInAStaticOne) {
    mouse(WM_LBUTTONDOWN, {line1, 20});
    mouse(WM_MOUSEMOVE, {line1 + 20, 20});
    mouse(WM_LBUTTONDBLCLK, {line1 + 20, 20});
    EXPECT_FALSE(splitter.IsTracking());
    EXPECT_EQ(widths(), (std::vector<int>{kColumns[0], kColumns[1], rest_wide}))
        << "what was dragged is given up";
    mouse(WM_MOUSEMOVE, {line1 + 40, 20});
    mouse(WM_LBUTTONUP, {line1 + 40, 20}, 0);
    EXPECT_EQ(widths()[0], kColumns[0]) << "nothing is held";
}

TEST_F(SplitterGrid, TheFocusReturnsWhenALineIsLetGo) {
    CEdit edit;
    edit.Create(WS_CHILD | WS_VISIBLE, CRect(300, 0, 400, 20), &parent, 55);
    parent.SetActiveWindow();
    edit.SetFocus();
    mouse(WM_LBUTTONDOWN, {line1, 20});
    EXPECT_EQ(CWnd::GetFocus(), &splitter);
    EXPECT_EQ(CWnd::GetCapture(), &splitter);
    key(VK_ESCAPE);
    EXPECT_EQ(CWnd::GetFocus(), &edit);
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
}

}  // namespace documents_test
