// CDockablePane: what the mouse does on the caption.
#include <kmfc/docking_manager.h>
#include <kmfc/dockable_pane.h>
#include <kmfc/pane_frame_wnd.h>

#include "caption_buttons.h"
#include "core/caption_layout.h"
#include "dockable_pane_tips.h"

using namespace kmfc::docking;

void CDockablePane::OnLButtonDown(UINT, CPoint point) {
    CPoint screen(point);
    ClientToScreen(&screen);
    const int hit = HitTest(screen, TRUE);
    if (hit == HTNOWHERE) {
        Default();
        return;
    }
    if (CanFocus()) SetFocus();
    if (hit != HTCAPTION) {
        if (is_button_disabled(hit)) return;
        m_nHit = static_cast<UINT>(hit);
        SetCapture();
        follow_buttons(screen);
        return;
    }
    m_bCaptionDragging = TRUE;
    m_ptClickPos = screen;
    SetCapture();
}

void CDockablePane::OnMouseMove(UINT nFlags, CPoint point) {
    CPoint screen(point);
    ClientToScreen(&screen);
    if (m_bCaptionDragging && (nFlags & MK_LBUTTON) != 0) {
        const CPoint way = screen - m_ptClickPos;
        if (std::abs(way.x) >= ::GetSystemMetrics(SM_CXDRAG) ||
            std::abs(way.y) >= ::GetSystemMetrics(SM_CYDRAG))
            tear_off(screen);
        return;
    }
    follow_buttons(screen);
    Default();
}

void CDockablePane::tear_off(CPoint screen) {
    // Asked at every step, so that a key held in the meantime counts.
    if (!CanFloat()) return;
    CRect window;
    GetWindowRect(&window);
    CSize size = m_recentDockInfo.m_rectRecentFloatingRect.Size();
    if (size.cx <= 0 || size.cy <= 0) size = window.Size();
    const int grip = std::max(1, GetCaptionHeight() / 2) + ::GetSystemMetrics(SM_CYSIZEFRAME);
    const CRect rect = torn_off(window, size, screen, grip);
    CDockingManager* manager = GetDockingManager();
    m_bCaptionDragging = FALSE;
    ReleaseCapture();
    if (manager == nullptr) return;
    const bool wasDocked = IsDocked() != FALSE;
    m_bDragMode = TRUE;
    if (FloatPane(rect, DM_MOUSE)) {
        if (CPaneFrameWnd* frame = GetParentMiniFrame())
            frame->start_caption_drag(screen, wasDocked ? this : nullptr);
    }
    m_bDragMode = FALSE;
}

void CDockablePane::OnLButtonUp(UINT, CPoint point) {
    CPoint screen(point);
    ClientToScreen(&screen);
    const UINT pressed = m_nHit;
    const CMFCCaptionButton* under = FindButton(screen);
    const bool onButton = pressed != HTNOWHERE && under != nullptr && under->GetHit() == pressed;
    if (m_bCaptionDragging || pressed != HTNOWHERE) {
        m_bCaptionDragging = FALSE;
        m_nHit = HTNOWHERE;
        ReleaseCapture();
        follow_buttons(screen);
        if (onButton) press_button(pressed);
        return;
    }
    Default();
}

void CDockablePane::press_button(UINT hit) {
    switch (static_cast<LRESULT>(hit)) {
        case AFX_HTCLOSE: OnPressCloseButton(); break;
        case AFX_HTMAXBUTTON: ToggleAutoHide(); break;
        default: OnPressButtons(hit); break;
    }
}

void CDockablePane::OnPressButtons(UINT nHit) {
    if (static_cast<LRESULT>(nHit) != AFX_HTMENU) return;
    const CMFCCaptionButton* button = FindButtonByHit(AFX_HTMENU);
    CRect window;
    GetWindowRect(&window);
    const CRect rect = button->GetRect() + window.TopLeft();
    OnShowControlBarMenu(CPoint(rect.left, rect.bottom));
}

void CDockablePane::OnPressCloseButton() {
    // One that hides at an edge comes back docked when it is shown again.
    leave_auto_hide();
    CPane::OnPressCloseButton();
}

void CDockablePane::OnLButtonDblClk(UINT nFlags, CPoint point) {
    CPoint screen(point);
    ClientToScreen(&screen);
    if (HitTest(screen, TRUE) != HTCAPTION) {
        // The second press of a fast pair on a button presses it again.
        if (HitTest(screen, FALSE) != HTNOWHERE)
            OnLButtonDown(nFlags, point);
        else
            Default();
        return;
    }
    m_bCaptionDragging = FALSE;
    if (IsDocked()) {
        if (CanFloat()) FloatPane(m_recentDockInfo.m_rectRecentFloatingRect, DM_DBL_CLICK);
    } else if (GetEnabledAlignment() != 0) {
        DockToRecentPos();
    }
}

void CDockablePane::follow_buttons(CPoint screen) {
    const CMFCCaptionButton* under = FindButton(screen);
    m_nHot = under != nullptr ? under->GetHit() : HTNOWHERE;
    // While one is pressed the others stay cold.
    if (m_nHit != HTNOWHERE && m_nHot != m_nHit) m_nHot = HTNOWHERE;
    m_bCaptionButtonsCapture = m_nHot != HTNOWHERE || m_nHit != HTNOWHERE;
    if (mark_buttons(m_arrButtons, m_nHot, m_nHit)) redraw_caption();
    if (m_nHot == HTNOWHERE) return;
    UpdateTooltips();
    // A pane may give its buttons hit codes outside of the client area; the system tells them apart.
    const LRESULT area = ::SendMessageW(m_hWnd, WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y));
    const DWORD outside = area == HTCLIENT ? 0 : TME_NONCLIENT;
    TRACKMOUSEEVENT leave = {sizeof(leave), TME_LEAVE | outside, m_hWnd, 0};
    ::TrackMouseEvent(&leave);
}

void CDockablePane::OnMouseLeave() {
    m_nHot = HTNOWHERE;
    m_bCaptionButtonsCapture = m_nHit != HTNOWHERE;
    if (mark_buttons(m_arrButtons, HTNOWHERE, m_nHit)) redraw_caption();
    Default();
}

void CDockablePane::OnCancelMode() {
    if (::GetCapture() == m_hWnd) ReleaseCapture();
    CPane::OnCancelMode();
}

void CDockablePane::OnCaptureChanged(CWnd* pWnd) {
    m_bCaptionDragging = FALSE;
    m_nHit = HTNOWHERE;
    m_bCaptionButtonsCapture = m_nHot != HTNOWHERE;
    if (mark_buttons(m_arrButtons, m_nHot, HTNOWHERE)) redraw_caption();
    CPane::OnCaptureChanged(pWnd);
}

BOOL CDockablePane::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    return CPane::OnSetCursor(pWnd, nHitTest, message);
}

BOOL CDockablePane::PreTranslateMessage(MSG* pMsg) {
    if (m_tips != nullptr && m_tips->control.m_hWnd != nullptr && pMsg->hwnd == m_hWnd &&
        pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST)
        m_tips->control.RelayEvent(pMsg);
    // Escape lets a caption go that is held but not yet torn off.
    if (m_bCaptionDragging && pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE) {
        ReleaseCapture();
        return TRUE;
    }
    return CPane::PreTranslateMessage(pMsg);
}
