#include <ktui/docking/multi_pane_frame_wnd_ex.h>

#include <ktui/docking/kbui_dock_control_bar.h>
#include <ktui/docking/pane_lock.h>
#include <ktui/docking/tabbed_pane_ex.h>

namespace {

void clearVisible(CObject* window) {
    if (auto* bar = DYNAMIC_DOWNCAST(CKbUiDockControlBar, window)) bar->setVisible(false);
}

bool isFloatingLocked() { return PaneLocksInForce().floating && !IsCtrlDown(); }

}  // namespace

IMPLEMENT_DYNCREATE(CMultiPaneFrameWndEx, CMultiPaneFrameWnd)

BEGIN_MESSAGE_MAP(CMultiPaneFrameWndEx, CMultiPaneFrameWnd)
    ON_WM_NCHITTEST()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

CMultiPaneFrameWndEx::CMultiPaneFrameWndEx() = default;

BOOL CMultiPaneFrameWndEx::OnCloseMiniFrame() {
    CObList panes;
    GetPaneList(panes);
    for (POSITION place = panes.GetHeadPosition(); place != nullptr;) {
        CObject* pane = panes.GetNext(place);
        if (auto* tabbed = DYNAMIC_DOWNCAST(CTabbedPaneEx, pane))
            tabbed->ForEachTabWindow(clearVisible);
        else
            clearVisible(pane);
    }
    return CMultiPaneFrameWnd::OnCloseMiniFrame();
}

LRESULT CMultiPaneFrameWndEx::OnNcHitTest(CPoint point) {
    const LRESULT hit = CMultiPaneFrameWnd::OnNcHitTest(point);
    return hit >= HTLEFT && hit <= HTBOTTOMRIGHT && isFloatingLocked() ? HTNOWHERE : hit;
}

void CMultiPaneFrameWndEx::OnLButtonDblClk(UINT flags, CPoint point) {
    const PaneLocks& locks = PaneLocksInForce();
    if ((locks.docked || locks.floating) && !IsCtrlDown())
        SetFocus();
    else
        CMultiPaneFrameWnd::OnLButtonDblClk(flags, point);
}

void CMultiPaneFrameWndEx::OnLButtonDown(UINT flags, CPoint point) {
    // Kept: the button is the one that is hot, not the one at the point that is pressed.
    if (!isFloatingLocked() || FindButtonByHit(m_nHot) != nullptr) {
        CMultiPaneFrameWnd::OnLButtonDown(flags, point);
        return;
    }
    ::SetCursor(::LoadCursorW(nullptr, IDC_NO));
    m_blockedDrag = true;
    SetFocus();
}

void CMultiPaneFrameWndEx::OnLButtonUp(UINT flags, CPoint point) {
    if (m_blockedDrag) {
        ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
        m_blockedDrag = false;
    }
    CMultiPaneFrameWnd::OnLButtonUp(flags, point);
}

void CMultiPaneFrameWndEx::OnMouseMove(UINT flags, CPoint point) {
    if (m_blockedDrag && (flags & MK_LBUTTON) != 0) {
        ::SetCursor(::LoadCursorW(nullptr, IDC_NO));
        return;
    }
    m_blockedDrag = false;
    CMultiPaneFrameWnd::OnMouseMove(flags, point);
}
