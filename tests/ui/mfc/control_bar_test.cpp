// Bars in a frame: places, lines, hand-over of notifications, keys, states of controls.
#include <afxcmn.h>
#include <afxext.h>

#include <memory>
#include <string>
#include <vector>

#include "frame_with_view.h"
#include "sent_messages.h"
#include "ui_test.h"

namespace {

constexpr UINT kOne = 1001, kTwo = 1002, kList = 1003;

/// A bar without controls.
class PlainBar : public CControlBar {
public:
    explicit PlainBar(CSize size) : m_size(size) {}
    BOOL Create(CWnd* parent, DWORD style, UINT id) {
        m_dwStyle = style;
        return CWnd::Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), parent,
                            id);
    }
    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override {
        asked.push_back(std::string(stretch ? "stretch" : "fixed") +
                        (horizontal ? " horizontal" : " vertical"));
        const CSize whole = CControlBar::CalcFixedLayout(stretch, horizontal);
        return CSize(std::max(m_size.cx, whole.cx), std::max(m_size.cy, whole.cy));
    }
    void OnUpdateCmdUI(CFrameWnd* frame, BOOL disable) override {
        updates.push_back(disable);
        updatedBy = frame;
    }
    std::vector<std::string> asked;
    std::vector<BOOL> updates;
    CFrameWnd* updatedBy = nullptr;

private:
    CSize m_size;
};

class Frame : public CFrameWnd {
public:
    int ones = 0, selections = 0;
    BOOL twoEnabled = TRUE;
    int layouts = 0;
    void RecalcLayout(BOOL notify = TRUE) override {
        ++layouts;
        CFrameWnd::RecalcLayout(notify);
    }
    using CFrameWnd::m_rectBorder;

protected:
    afx_msg void OnOne() { ++ones; }
    afx_msg void OnSelection() { ++selections; }
    afx_msg void OnUpdateTwo(CCmdUI* item) { item->Enable(twoEnabled); }
    afx_msg void OnTwo() {}
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Frame, CFrameWnd)
    ON_BN_CLICKED(kOne, &Frame::OnOne)
    ON_BN_CLICKED(kTwo, &Frame::OnTwo)
    ON_CBN_SELCHANGE(kList, &Frame::OnSelection)
    ON_UPDATE_COMMAND_UI(kTwo, &Frame::OnUpdateTwo)
END_MESSAGE_MAP()

using Bars = FrameWithView<Frame>;

TEST_F(Bars, TakeTheirEdgesInTheOrderOfTheWindowsAndTheViewTheRest) {
    PlainBar top(CSize(10, 20)), left(CSize(30, 10)), bottom(CSize(10, 15)), right(CSize(25, 10));
    ASSERT_TRUE(top.Create(frame, CBRS_ALIGN_TOP, 0xE810));
    ASSERT_TRUE(left.Create(frame, CBRS_ALIGN_LEFT, 0xE811));
    ASSERT_TRUE(bottom.Create(frame, CBRS_ALIGN_BOTTOM, 0xE812));
    ASSERT_TRUE(right.Create(frame, CBRS_ALIGN_RIGHT, 0xE813));
    // The order is that of the windows on the screen, from the top.
    for (CWnd* each : {static_cast<CWnd*>(&right), static_cast<CWnd*>(&bottom), static_cast<CWnd*>(&left),
                       static_cast<CWnd*>(&top)})
        each->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    frame->RecalcLayout();
    const int w = client.right, h = client.bottom;
    EXPECT_EQ(rectOf(top), CRect(0, 0, w, 20));
    EXPECT_EQ(rectOf(left), CRect(0, 20, 30, h));
    EXPECT_EQ(rectOf(bottom), CRect(30, h - 15, w, h));
    EXPECT_EQ(rectOf(right), CRect(w - 25, 20, w, h - 15));
    EXPECT_EQ(rectOf(view), CRect(30, 20, w - 25, h - 15));
    EXPECT_EQ(top.asked.back(), "stretch horizontal");
    EXPECT_EQ(left.asked.back(), "stretch vertical");
    EXPECT_EQ(right.asked.back(), "stretch vertical");
}

TEST_F(Bars, AreLaidOutAtEachChangeOfSizeButNotWhenMinimised) {
    PlainBar top(CSize(10, 20));
    top.Create(frame, CBRS_ALIGN_TOP, 0xE810);
    frame->SetWindowPos(nullptr, 0, 0, 420, 300, SWP_NOMOVE | SWP_NOZORDER);
    frame->GetClientRect(&client);
    EXPECT_EQ(rectOf(top), CRect(0, 0, client.right, 20));
    EXPECT_EQ(rectOf(view), CRect(0, 20, client.right, client.bottom));
    const int before = frame->layouts;
    frame->SendMessage(WM_SIZE, SIZE_MINIMIZED, 0);
    EXPECT_EQ(frame->layouts, before);
}

TEST_F(Bars, TheFramesBorderIsLeftAroundTheView) {
    frame->m_rectBorder = CRect(1, 2, 3, 4);
    frame->RecalcLayout();
    EXPECT_EQ(rectOf(view), CRect(1, 2, client.right - 3, client.bottom - 4));
}

TEST_F(Bars, AQueryMovesNothingAndAnswersTheRest) {
    PlainBar top(CSize(10, 20));
    top.Create(frame, CBRS_ALIGN_TOP, 0xE810);
    CRect rest, total, room(0, 0, 200, 100);
    frame->RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CWnd::reposQuery, &rest, &room);
    EXPECT_EQ(rest, CRect(0, 20, 200, 100));
    frame->RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CWnd::reposQuery, &total, &room, FALSE);
    EXPECT_EQ(total, CRect(0, 0, 10, 20));
    EXPECT_EQ(top.asked.back(), "fixed horizontal");
    EXPECT_EQ(rectOf(top), CRect(0, 0, 0, 0));
    frame->RepositionBars(0xE811, 0xFFFF, AFX_IDW_PANE_FIRST, CWnd::reposQuery, &rest, &room);
    EXPECT_EQ(rest, room);
    frame->RepositionBars(0, 0xE80F, AFX_IDW_PANE_FIRST, CWnd::reposQuery, &rest, &room);
    EXPECT_EQ(rest, room);
}

TEST_F(Bars, ABarTakesNoMoreThanThereIs) {
    PlainBar top(CSize(10, 5000));
    top.Create(frame, CBRS_ALIGN_TOP, 0xE810);
    frame->RecalcLayout();
    EXPECT_EQ(rectOf(top), client);
    EXPECT_EQ(rectOf(view).Height(), 0);
}

TEST_F(Bars, AHiddenBarAndOneWithoutAnEdgeTakeNoRoom) {
    PlainBar hidden(CSize(10, 20)), loose(CSize(10, 20));
    hidden.Create(frame, CBRS_ALIGN_TOP, 0xE810);
    loose.Create(frame, 0, 0xE811);
    hidden.ShowWindow(SW_HIDE);
    frame->RecalcLayout();
    EXPECT_EQ(rectOf(view), client);
    frame->ShowControlBar(&hidden, TRUE, FALSE);
    EXPECT_TRUE(hidden.IsWindowVisible());
    EXPECT_EQ(rectOf(view).top, 20);
    frame->ShowControlBar(&hidden, FALSE, TRUE);
    EXPECT_TRUE(hidden.IsWindowVisible());
    EXPECT_FALSE(hidden.IsVisible());
    frame->RecalcLayout();
    EXPECT_FALSE(hidden.IsWindowVisible());
    EXPECT_EQ(rectOf(view), client);
}

TEST_F(Bars, AreFoundByTheirId) {
    PlainBar top(CSize(10, 20));
    top.Create(frame, CBRS_ALIGN_TOP, 0xE810);
    EXPECT_EQ(frame->GetControlBar(0xE810), &top);
    EXPECT_EQ(frame->GetControlBar(AFX_IDW_PANE_FIRST), nullptr);
    EXPECT_EQ(frame->GetControlBar(0xE811), nullptr);
    EXPECT_EQ(top.GetDockingFrame(), frame);
    EXPECT_FALSE(top.IsFloating());
    EXPECT_EQ(top.GetCount(), 0);
    top.SetBorders(1, 2, 3, 4);
    EXPECT_EQ(top.GetBorders(), CRect(1, 2, 3, 4));
}

TEST_F(Bars, LinesAreTakenOffTheInsideAndDrawn) {
    PlainBar top(CSize(10, 20));
    top.Create(frame, CBRS_TOP | CBRS_BORDER_LEFT, 0xE810);
    frame->RecalcLayout();
    CRect inside, window;
    const auto inner = [&] {
        top.GetClientRect(&inside);
        top.ClientToScreen(&inside);
        top.GetWindowRect(&window);
        return CRect(inside.left - window.left, inside.top - window.top, window.right - inside.right,
                     window.bottom - inside.bottom);
    };
    EXPECT_EQ(inner(), CRect(1, 0, 0, 1));
    top.SetBarStyle(CBRS_ALIGN_TOP | CBRS_BORDER_ANY | CBRS_BORDER_3D);
    EXPECT_EQ(inner(), CRect(2, 2, 2, 2));
    top.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
    CWindowDC dc(&top);
    EXPECT_EQ(dc.GetPixel(1, 10), ::GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(dc.GetPixel(50, 19), ::GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(dc.GetPixel(window.Width() - 2, 10), ::GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(dc.GetPixel(50, 0), ::GetSysColor(COLOR_BTNSHADOW));
}

TEST_F(Bars, AreBroughtUpToDateWhenIdle) {
    PlainBar top(CSize(10, 20));
    top.Create(frame, CBRS_ALIGN_TOP, 0xE810);
    top.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    top.SendMessage(WM_IDLEUPDATECMDUI, FALSE);
    EXPECT_EQ(top.updates, (std::vector<BOOL>{TRUE, FALSE}));
    EXPECT_EQ(top.updatedBy, frame);
    top.ShowWindow(SW_HIDE);
    top.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(top.updates.size(), 2u);
}

TEST_F(Bars, AnObjectMayGoWithItsWindow) {
    static int gone = 0;
    gone = 0;
    class Owned : public PlainBar {
    public:
        Owned() : PlainBar(CSize(1, 1)) { m_bAutoDelete = TRUE; }
        ~Owned() override { ++gone; }
    };
    auto* bar = new Owned;
    bar->Create(frame, CBRS_ALIGN_TOP, 0xE810);
    bar->DestroyWindow();
    EXPECT_EQ(gone, 1);
    {
        Owned onStack;
        onStack.Create(frame, CBRS_ALIGN_TOP, 0xE811);
    }
    EXPECT_EQ(gone, 2);
}

class DialogBar : public Bars {
protected:
    DialogBar() { created = bar.Create(frame, 420, CBRS_TOP | CBRS_TOOLTIPS, AFX_IDW_DIALOGBAR); }
    CDialogBar bar;
    BOOL created;
};

TEST_F(DialogBar, ComesFromItsTemplateWithTheInitialEntries) {
    ASSERT_TRUE(created);
    EXPECT_TRUE(bar.IsWindowVisible());
    EXPECT_EQ(bar.GetDlgCtrlID(), AFX_IDW_DIALOGBAR);
    EXPECT_EQ(bar.GetBarStyle(), CBRS_TOP | CBRS_TOOLTIPS);
    EXPECT_EQ(ui_test::text_of(bar.GetDlgItem(kOne)->m_hWnd), L"one");
    EXPECT_EQ(bar.SendDlgItemMessage(kList, CB_GETCOUNT), 1);
    CRect units(0, 0, 150, 24);
    ::MapDialogRect(bar.m_hWnd, &units);
    EXPECT_EQ(bar.m_sizeDefault.cx, units.Width());
    EXPECT_EQ(bar.CalcFixedLayout(FALSE, TRUE), bar.m_sizeDefault);
    EXPECT_EQ(bar.CalcFixedLayout(TRUE, TRUE), CSize(32767, bar.m_sizeDefault.cy));
    EXPECT_EQ(bar.CalcFixedLayout(TRUE, FALSE), CSize(bar.m_sizeDefault.cx, 32767));
}

TEST_F(DialogBar, WithoutATemplateThereIsNone) {
    CDialogBar none;
    EXPECT_FALSE(none.Create(frame, 499, CBRS_TOP, 0xE810));
    EXPECT_EQ(none.m_hWnd, nullptr);
}

TEST_F(DialogBar, StandsAlongItsEdge) {
    frame->RecalcLayout();
    EXPECT_EQ(rectOf(bar), CRect(0, 0, client.right, bar.m_sizeDefault.cy));
    EXPECT_EQ(rectOf(view).top, bar.m_sizeDefault.cy);
}

TEST_F(DialogBar, WhatItsControlsTellGoesOnToTheFrame) {
    bar.GetDlgItem(kOne)->SendMessage(BM_CLICK);
    EXPECT_EQ(frame->ones, 1);
    bar.SendMessage(WM_COMMAND, MAKEWPARAM(kList, CBN_SELCHANGE),
                    reinterpret_cast<LPARAM>(bar.GetDlgItem(kList)->m_hWnd));
    EXPECT_EQ(frame->selections, 1);
}

TEST_F(DialogBar, WhatTheBarHandlesStaysThere) {
    class Own : public CDialogBar {
    public:
        int ones = 0;

    protected:
        BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
            if (LOWORD(wParam) != kOne) return CDialogBar::OnCommand(wParam, lParam);
            ++ones;
            return TRUE;
        }
    } own;
    ASSERT_TRUE(own.Create(frame, 420, CBRS_BOTTOM, 0xE810));
    own.GetDlgItem(kOne)->SendMessage(BM_CLICK);
    EXPECT_EQ(own.ones, 1);
    EXPECT_EQ(frame->ones, 0);
    CWnd other;
    other.Create(AfxRegisterWndClass(0), L"", WS_CHILD, CRect(0, 0, 1, 1), frame, 5);
    own.SetOwner(&other);
    own.SendMessage(WM_COMMAND, MAKEWPARAM(kList, CBN_SELCHANGE),
                    reinterpret_cast<LPARAM>(own.GetDlgItem(kList)->m_hWnd));
    EXPECT_EQ(frame->selections, 0);
}

TEST_F(DialogBar, TheFrameSaysWhichControlsAreEnabled) {
    frame->twoEnabled = FALSE;
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_FALSE(bar.GetDlgItem(kTwo)->IsWindowEnabled());
    EXPECT_TRUE(bar.GetDlgItem(kOne)->IsWindowEnabled());
    frame->twoEnabled = TRUE;
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_TRUE(bar.GetDlgItem(kTwo)->IsWindowEnabled());
}

TEST_F(DialogBar, TheTabKeyGoesRoundInTheBar) {
    const auto press = [&] {
        MSG key = {::GetFocus(), WM_KEYDOWN, VK_TAB, 1, 0, {}};
        return CWnd::WalkPreTranslateTree(frame->m_hWnd, &key);
    };
    ::SetFocus(bar.GetDlgItem(kOne)->m_hWnd);
    std::vector<int> visited;
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(press());
        visited.push_back(::GetDlgCtrlID(::GetFocus()));
    }
    EXPECT_EQ(visited, (std::vector<int>{kTwo, kList, kOne}));
}

TEST_F(DialogBar, TheFramesAcceleratorsComeBeforeItsKeys) {
    ACCEL accelerator = {FVIRTKEY, VK_TAB, static_cast<WORD>(kOne)};
    frame->m_hAccelTable = ::CreateAcceleratorTableW(&accelerator, 1);
    const HWND focused = bar.GetDlgItem(kOne)->m_hWnd;
    ::SetFocus(focused);
    MSG key = {focused, WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_TRUE(CWnd::WalkPreTranslateTree(frame->m_hWnd, &key));
    EXPECT_EQ(::GetFocus(), focused);
    ::DestroyAcceleratorTable(frame->m_hAccelTable);
    frame->m_hAccelTable = nullptr;
}

}  // namespace
