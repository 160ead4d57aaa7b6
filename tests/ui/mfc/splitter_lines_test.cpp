// Lines of a dynamic splitter that are dragged out at any end, and panes that can't be made.
#include "splitter_fixture.h"

namespace documents_test {

namespace {

/// A view that refuses to be made once told to.
class Refusing : public CScrollView {
    DECLARE_DYNCREATE(Refusing)
public:
    static inline bool refuses = false;

protected:
    void OnDraw(CDC*) override {}
    BOOL PreCreateWindow(CREATESTRUCT& cs) override { return !refuses && CScrollView::PreCreateWindow(cs); }
};
IMPLEMENT_DYNCREATE(Refusing, CScrollView)

}  // namespace

TEST_F(SplitterTest, ALineThatIsDraggedOutBelowTakesTheLowerPane) {
    make(true);
    ASSERT_TRUE(splitter().SplitRow(120));
    ASSERT_EQ(rows(), 2);
    CWnd* const upper = splitter().GetPane(0, 0);
    const int y = place(0, 0).bottom + kGap / 2;
    drag(CPoint(50, y), CPoint(50, 299));
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(splitter().GetPane(0, 0), upper);
    EXPECT_EQ(place(0, 0).top, kBorder);
}

TEST_F(SplitterTest, ALineThatIsDraggedOutAboveTakesTheUpperPane) {
    make(true);
    ASSERT_TRUE(splitter().SplitRow(120));
    CWnd* const lower = splitter().GetPane(1, 0);
    drag(CPoint(50, place(0, 0).bottom + kGap / 2), CPoint(50, 3));
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(splitter().GetPane(0, 0), lower);
}

TEST_F(SplitterTest, ALineThatIsDraggedOutAtASideTakesThatPane) {
    make(true);
    ASSERT_TRUE(splitter().SplitColumn(150));
    CWnd* const left = splitter().GetPane(0, 0);
    drag(CPoint(place(0, 0).right + kGap / 2, 50), CPoint(399, 50));
    EXPECT_EQ(columns(), 1);
    EXPECT_EQ(splitter().GetPane(0, 0), left);
    ASSERT_TRUE(splitter().SplitColumn(150));
    CWnd* const right = splitter().GetPane(0, 1);
    drag(CPoint(place(0, 0).right + kGap / 2, 50), CPoint(3, 50));
    EXPECT_EQ(columns(), 1);
    EXPECT_EQ(splitter().GetPane(0, 0), right);
}

TEST_F(SplitterTest, ADoubleClickOnEachBoxSplitsThatWay) {
    make(true);
    CRect client;
    splitter().GetClientRect(&client);
    const auto twice = [&](CPoint at) {
        splitter().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
        splitter().SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    };
    twice(CPoint(client.right - bar / 2, 2));
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(columns(), 1);
    EXPECT_NEAR(place(0, 0).Height(), place(1, 0).Height(), 3);
    twice(CPoint(2, client.bottom - bar / 2));
    EXPECT_EQ(columns(), 2);
    EXPECT_NEAR(place(0, 0).Width(), place(0, 1).Width(), 3);
    twice(CPoint(place(0, 0).right + kGap / 2, 50));
    EXPECT_EQ(columns(), 1);
    EXPECT_EQ(rows(), 2);
    EXPECT_FALSE(splitter().IsTracking());
}

TEST_F(SplitterTest, OnlySoManyPanesAsAreAllowed) {
    make(true);
    EXPECT_TRUE(splitter().SplitRow(120));
    EXPECT_FALSE(splitter().SplitRow(60)) << "two are the most";
    EXPECT_EQ(rows(), 2);
    EXPECT_TRUE(splitter().SplitColumn(150));
    EXPECT_FALSE(splitter().SplitColumn(60));
    EXPECT_EQ(columns(), 2);
    EXPECT_FALSE(splitter().DoKeyboardSplit() && !splitter().IsTracking());
    splitter().SendMessage(WM_CANCELMODE);
    EXPECT_FALSE(splitter().IsTracking());
    splitter().DeleteRow(1);
    splitter().DeleteColumn(0);
    EXPECT_EQ(rows(), 1);
    EXPECT_EQ(columns(), 1);
    EXPECT_FALSE(splitter().SplitRow(10)) << "above the line is less than the least";
    EXPECT_FALSE(splitter().SplitColumn(10));
    EXPECT_FALSE(splitter().SplitRow(270)) << "and below it";
    EXPECT_FALSE(splitter().SplitColumn(370));
    EXPECT_EQ(rows() * columns(), 1);
}

TEST_F(DocumentsTest, APaneThatCannotBeMadeLeavesTheSplitterAsItWas) {
    Refusing::refuses = false;
    auto* const frame = new CFrameWnd;
    frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 500, 400));
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(Refusing);
    CSplitterWnd splitter;
    ASSERT_TRUE(splitter.Create(frame, 2, 2, CSize(30, 20), &context));
    splitter.MoveWindow(0, 0, 400, 300);
    CWnd* const only = splitter.GetPane(0, 0);
    Refusing::refuses = true;
    EXPECT_FALSE(splitter.SplitRow(120));
    EXPECT_EQ(splitter.GetRowCount(), 1);
    EXPECT_FALSE(splitter.SplitColumn(120));
    EXPECT_EQ(splitter.GetColumnCount(), 1);
    EXPECT_EQ(splitter.GetPane(0, 0), only);
    EXPECT_EQ(splitter.GetDlgItem(AFX_IDW_VSCROLL_FIRST + 1), nullptr) << "its bar went as well";
    EXPECT_EQ(splitter.GetDlgItem(AFX_IDW_HSCROLL_FIRST + 1), nullptr);
    Refusing::refuses = false;
    EXPECT_TRUE(splitter.SplitRow(120));
    EXPECT_EQ(splitter.GetRowCount(), 2);
    frame->DestroyWindow();
}

TEST(SplitterDefaults, ASplitterHasNoBarsBeforeItIsMade) {
    CSplitterWnd splitter;
    EXPECT_EQ(splitter.GetScrollStyle(), 0U);
    EXPECT_EQ(splitter.GetRowCount(), 0);
    EXPECT_EQ(splitter.GetColumnCount(), 0);
}

}  // namespace documents_test
