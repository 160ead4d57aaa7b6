// Views: focus kept by forms, text views without text, what scrolls and what is filled around the contents.
#include "view_frame.h"

namespace documents_test {

namespace {

/// A window for tests of what is painted.
class Painted : public CScrollView {
    DECLARE_DYNCREATE(Painted)
public:
    using CScrollView::CenterOnPoint;
    using CScrollView::FillOutsideRect;
    using CScrollView::m_bCenter;

protected:
    void OnDraw(CDC*) override {}
};
IMPLEMENT_DYNCREATE(Painted, CScrollView)

/// A view that only notes by how much it is to scroll.
class Asked : public CScrollView {
    DECLARE_DYNCREATE(Asked)
public:
    CSize asked;

protected:
    void OnDraw(CDC*) override {}
    BOOL OnScrollBy(CSize by, BOOL) override {
        asked = by;
        return TRUE;
    }
};
IMPLEMENT_DYNCREATE(Asked, CScrollView)

}  // namespace

TEST_F(DocumentsTest, AFormGivesTheFocusBackToItsControl) {
    ViewFrame<Form> frame;
    CWnd* second = frame.view->GetDlgItem(IDC_FORM_SECOND);
    frame.frame->ActivateFrame();
    second->SetFocus();
    frame.frame->SendMessage(WM_ACTIVATE, WA_INACTIVE);
    ::SetFocus(frame.frame->GetSafeHwnd());
    frame.frame->SendMessage(WM_ACTIVATE, WA_ACTIVE);
    EXPECT_EQ(::GetFocus(), second->m_hWnd);
}

TEST_F(DocumentsTest, CommandsForTextAreThereAsFarAsThereIsAny) {
    ViewFrame<CEditView> frame;
    CEditView& view = *frame.view;
    view.SetWindowText(L"");
    view.SendMessage(EM_EMPTYUNDOBUFFER);
    EXPECT_FALSE(is_enabled(view, ID_EDIT_SELECT_ALL));
    EXPECT_FALSE(is_enabled(view, ID_EDIT_UNDO));
    EXPECT_FALSE(is_enabled(view, ID_EDIT_CUT));
    view.SendMessage(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"text"));
    EXPECT_TRUE(is_enabled(view, ID_EDIT_SELECT_ALL));
    EXPECT_TRUE(is_enabled(view, ID_EDIT_UNDO));
    EXPECT_FALSE(is_enabled(view, ID_EDIT_COPY));
    view.SendMessage(WM_COMMAND, ID_EDIT_SELECT_ALL);
    EXPECT_TRUE(is_enabled(view, ID_EDIT_COPY));
    view.SendMessage(WM_COMMAND, ID_EDIT_CLEAR);
    EXPECT_EQ(view.GetBufferLength(), 0u);
    view.SendMessage(WM_COMMAND, ID_EDIT_UNDO);
    EXPECT_EQ(view.GetBufferLength(), 4u);
}

TEST_F(DocumentsTest, AnEditViewHasAllTheStylesOfAnEditor) {
    ViewFrame<CEditView> frame;
    const DWORD wanted = WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL | ES_AUTOHSCROLL | ES_AUTOVSCROLL |
                         ES_MULTILINE | ES_NOHIDESEL;
    EXPECT_EQ(frame.view->GetStyle() & wanted, wanted);
}

TEST_F(DocumentsTest, ATextIsFoundForwardsBackwardsAndByCase) {
    ViewFrame<CEditView> frame;
    CEditView& view = *frame.view;
    view.SetWindowText(L"one Two two one");
    view.SendMessage(EM_SETSEL, 0, 0);
    const auto at = [&] {
        DWORD first = 0, end = 0;
        view.SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
        return std::pair(first, end);
    };
    ASSERT_TRUE(view.FindText(L"one"));
    EXPECT_EQ(at(), (std::pair<DWORD, DWORD>(0, 3)));
    ASSERT_TRUE(view.FindText(L"one"));
    EXPECT_EQ(at(), (std::pair<DWORD, DWORD>(12, 15)));
    EXPECT_FALSE(view.FindText(L"one"));
    ASSERT_TRUE(view.FindText(L"Two", FALSE, TRUE));
    EXPECT_EQ(at(), (std::pair<DWORD, DWORD>(4, 7)));
    EXPECT_FALSE(view.FindText(L"Two", TRUE, TRUE));
    ASSERT_TRUE(view.FindText(L"TWO", TRUE, FALSE));
    EXPECT_EQ(at(), (std::pair<DWORD, DWORD>(8, 11)));
    EXPECT_FALSE(view.FindText(L""));
    CString selected;
    view.GetSelectedText(selected);
    EXPECT_STREQ(selected, L"two");
}

TEST_F(DocumentsTest, WhatIsScaledToTheWindowNeverScrolls) {
    ViewFrame<Sheet> frame;
    frame.view->SetScaleToFitSize(CSize(1000, 800));
    EXPECT_FALSE(frame.view->OnScroll(MAKEWORD(SB_LINERIGHT, SB_LINEDOWN), 0));
    EXPECT_FALSE(frame.view->OnScrollBy(CSize(10, 10)));
    EXPECT_FALSE(frame.view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0));
    EXPECT_THROW(frame.view->ResizeParentToFit(), CInvalidArgException*) << "it has no size of its own";
}

TEST_F(DocumentsTest, TheWheelAsksTheViewToScroll) {
    ViewFrame<Asked> frame;
    frame.view->SetScrollSizes(MM_TEXT, CSize(2000, 2000), CSize(200, 300), CSize(20, 10));
    EXPECT_TRUE(frame.view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0));
    EXPECT_EQ(frame.view->asked, CSize(0, 30));
    EXPECT_EQ(frame.view->GetScrollPosition(), CPoint(0, 0)) << "the view decides";
}

TEST_F(DocumentsTest, TheWheelScrollsSidewaysWhereThereIsNoOtherWay) {
    ViewFrame<Sheet> frame;
    frame.view->SetScrollSizes(MM_TEXT, CSize(2000, 10), CSize(200, 5), CSize(20, 1));
    EXPECT_TRUE(frame.view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0));
    EXPECT_EQ(frame.view->GetScrollPosition(), CPoint(60, 0));
    EXPECT_FALSE(frame.view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, static_cast<WORD>(-120)), 0));
    EXPECT_EQ(frame.view->GetScrollPosition(), CPoint(60, 0));
}

TEST_F(DocumentsTest, AnotherMappingModeIsDrawnAnew) {
    ViewFrame<Sheet> frame;
    frame.view->SetScrollSizes(MM_TEXT, CSize(100, 100));
    frame.draw();
    frame.view->SetScrollSizes(MM_LOMETRIC, CSize(100, 100));
    EXPECT_TRUE(frame.view->GetUpdateRect(nullptr));
    frame.draw();
    frame.view->SetScrollSizes(MM_LOMETRIC, CSize(100, 100));
    EXPECT_FALSE(frame.view->GetUpdateRect(nullptr));
}

TEST_F(DocumentsTest, ScrollingMovesWhatIsShown) {
    ViewFrame<Sheet> frame;
    frame.view->SetScrollSizes(MM_TEXT, CSize(2000, 2000));
    frame.draw();
    CClientDC dc(frame.view);
    dc.FillSolidRect(100, 100, 20, 20, RGB(1, 2, 3));
    frame.view->ScrollToPosition(CPoint(30, 50));
    EXPECT_EQ(dc.GetPixel(80, 60), RGB(1, 2, 3)) << "30 to the left, 50 upwards";
    EXPECT_EQ(frame.view->GetScrollPosition(), CPoint(30, 50));
}

TEST_F(DocumentsTest, TheRoomAroundTheContentsIsFilledOnAllFourSides) {
    ViewFrame<Painted> frame;
    frame.view->m_bCenter = TRUE;
    frame.view->SetScrollSizes(MM_TEXT, CSize(100, 80));
    frame.view->Invalidate();
    frame.view->UpdateWindow();
    const CRect room = frame.room();
    CClientDC dc(frame.view);
    dc.FillSolidRect(room, RGB(255, 255, 255));
    CBrush brush(RGB(10, 20, 30));
    frame.view->FillOutsideRect(&dc, &brush);
    const CPoint corner((room.Width() - 100) / 2, (room.Height() - 80) / 2);
    const CRect contents(corner, CSize(100, 80));
    const struct {
        CPoint outside, inside;
    } edges[] = {
        {{contents.left - 1, contents.top + 40}, {contents.left, contents.top + 40}},
        {{contents.right, contents.top + 40}, {contents.right - 1, contents.top + 40}},
        {{contents.left + 50, contents.top - 1}, {contents.left + 50, contents.top}},
        {{contents.left + 50, contents.bottom}, {contents.left + 50, contents.bottom - 1}},
    };
    for (const auto& edge : edges) {
        EXPECT_EQ(dc.GetPixel(edge.outside), RGB(10, 20, 30)) << edge.outside.x << "," << edge.outside.y;
        EXPECT_EQ(dc.GetPixel(edge.inside), RGB(255, 255, 255)) << edge.inside.x << "," << edge.inside.y;
    }
    for (const CPoint& end : {CPoint(0, 0), CPoint(room.right - 1, 0), CPoint(0, room.bottom - 1),
                              CPoint(room.right - 1, room.bottom - 1)})
        EXPECT_EQ(dc.GetPixel(end), RGB(10, 20, 30));
}

TEST_F(DocumentsTest, AFrameIsOnlyMadeSmallerWhenThatIsAsked) {
    ViewFrame<Sheet> frame;
    frame.view->SetScrollSizes(MM_TEXT, CSize(700, 100));
    CRect before, after;
    frame.frame->GetWindowRect(&before);
    frame.view->ResizeParentToFit(TRUE);
    frame.frame->GetWindowRect(&after);
    EXPECT_EQ(after.Width(), before.Width());
    EXPECT_LT(after.Height(), before.Height());
    EXPECT_EQ(after.TopLeft(), before.TopLeft());
    frame.view->ResizeParentToFit(FALSE);
    frame.frame->GetWindowRect(&after);
    EXPECT_GT(after.Width(), before.Width());
}

TEST_F(DocumentsTest, AViewBelongsToOneDocument) {
    ViewFrame<PlanView> frame;
    Plan other;
    EXPECT_THROW(other.AddView(frame.view), CInvalidArgException*);
    EXPECT_THROW(other.AddView(nullptr), CInvalidArgException*);
}

}  // namespace documents_test
