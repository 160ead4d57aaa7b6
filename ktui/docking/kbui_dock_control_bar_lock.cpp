// How a locked bar answers the mouse and the docking framework.
#include <ktui/docking/kbui_dock_control_bar.h>

#include <ktui/docking/pane_lock.h>

bool CKbUiDockControlBar::isLocked() const { return IsPaneLocked(GetParentMiniFrame()); }

BOOL CKbUiDockControlBar::CanFloat() const { return isLocked() ? FALSE : CDockablePane::CanFloat(); }

DWORD CKbUiDockControlBar::GetEnabledAlignment() const {
    // Kept: Ctrl doesn't help a floating bar to dock into a locked frame.
    if (isLocked() || (PaneLocksInForce().docked && IsToolkitFrame(GetParentMiniFrame()))) return 0;
    return CDockablePane::GetEnabledAlignment();
}

void CKbUiDockControlBar::OnLButtonDblClk(UINT flags, CPoint point) {
    if (isLocked())
        SetFocus();
    else
        CDockablePane::OnLButtonDblClk(flags, point);
}

void CKbUiDockControlBar::OnLButtonDown(UINT flags, CPoint point) {
    CPoint screen = point;
    ClientToScreen(&screen);
    if (!isLocked() || (m_bCaptionButtonsCapture && FindButton(screen) != nullptr)) {
        CDockablePane::OnLButtonDown(flags, point);
        return;
    }
    ::SetCursor(::LoadCursorW(nullptr, IDC_NO));
    m_dockFlags |= kBlockedDragFlag;
    SetFocus();
}

void CKbUiDockControlBar::OnLButtonUp(UINT flags, CPoint point) {
    if (m_dockFlags & kBlockedDragFlag) {
        ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
        m_dockFlags &= ~kBlockedDragFlag;
    }
    CDockablePane::OnLButtonUp(flags, point);
}

void CKbUiDockControlBar::OnMouseMove(UINT flags, CPoint point) {
    if ((m_dockFlags & kBlockedDragFlag) != 0 && (flags & MK_LBUTTON) != 0) {
        ::SetCursor(::LoadCursorW(nullptr, IDC_NO));
        return;
    }
    m_dockFlags &= ~kBlockedDragFlag;
    CDockablePane::OnMouseMove(flags, point);
}
