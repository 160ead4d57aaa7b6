// CPaneFrameWnd: what the mouse does on the caption and the border.
#include <kmfc/docking_manager.h>
#include <kmfc/global_data.h>
#include <kmfc/pane_frame_wnd.h>

#include "caption_buttons.h"
#include "core/caption_layout.h"

using namespace kmfc::docking;

BEGIN_MESSAGE_MAP(CPaneFrameWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_PAINT()
    ON_WM_SYSCOMMAND()
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_NCHITTEST()
    ON_WM_NCACTIVATE()
    ON_WM_ACTIVATE()
    ON_WM_MOUSEACTIVATE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_CANCELMODE()
    ON_WM_CAPTURECHANGED()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_SETFOCUS()
    ON_WM_GETMINMAXINFO()
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

CMFCCaptionButton* CPaneFrameWnd::FindButton(CPoint ptScreen) const {
    return m_hWnd != nullptr ? button_at(m_arrButtons, to_corner(m_hWnd, ptScreen)) : nullptr;
}

CMFCCaptionButton* CPaneFrameWnd::FindButtonByHit(LRESULT nHit) const {
    return button_with(m_arrButtons, nHit);
}

LRESULT CPaneFrameWnd::HitTest(CPoint point, BOOL bDetectCaption) {
    if (const CMFCCaptionButton* button = FindButton(point)) return static_cast<LRESULT>(button->GetHit());
    CRect window, border, caption;
    GetWindowRect(&window);
    CalcBorderSize(border);
    GetCaptionRect(caption);
    const CPane* pane = leading_pane();
    const bool sizes = pane == nullptr || pane->CanBeResized();
    const int corner = border.left + afxGlobalData.scaled(8);
    const int part = sizes ? border_hit(window, point, border.left, corner) : 0;
    if (part != 0) return part;
    if (!window.PtInRect(point)) return HTNOWHERE;
    const bool onCaption = caption.PtInRect(to_corner(m_hWnd, point)) != FALSE;
    return onCaption && bDetectCaption ? HTCAPTION : HTCLIENT;
}

LRESULT CPaneFrameWnd::OnNcHitTest(CPoint point) {
    const LRESULT hit = HitTest(point, TRUE);
    // The mouse handlers of the frame see what happens on the caption.
    return hit >= HTLEFT && hit <= HTBOTTOMRIGHT ? hit : HTCLIENT;
}

void CPaneFrameWnd::OnLButtonDown(UINT, CPoint point) {
    CPoint screen(point);
    ClientToScreen(&screen);
    const LRESULT hit = HitTest(screen, TRUE);
    SetFocus();
    if (hit == HTCAPTION) {
        CRect window;
        GetWindowRect(&window);
        m_bCaptured = TRUE;
        m_ptHot = screen - window.TopLeft();
        m_pressedAt = screen;
        SetCapture();
    } else if (FindButton(screen) != nullptr) {
        m_nHit = static_cast<UINT>(hit);
        SetCapture();
        follow_buttons(screen);
    } else {
        Default();
    }
}

void CPaneFrameWnd::start_caption_drag(CPoint screen, CDockablePane* torn) {
    CRect window;
    GetWindowRect(&window);
    m_bCaptured = TRUE;
    m_ptHot = screen - window.TopLeft();
    m_pressedAt = screen;
    SetCapture();
    if (m_pDockManager == nullptr) return;
    m_pDockManager->begin_drag(this, torn);
    m_pDockManager->drag_to(screen, ::GetKeyState(VK_CONTROL) < 0);
}

void CPaneFrameWnd::OnMouseMove(UINT nFlags, CPoint point) {
    CPoint screen(point);
    ClientToScreen(&screen);
    if (!m_bCaptured || m_pDockManager == nullptr) {
        follow_buttons(screen);
        Default();
        return;
    }
    const CPoint way = screen - m_pressedAt;
    const bool moved =
        std::abs(way.x) >= ::GetSystemMetrics(SM_CXDRAG) || std::abs(way.y) >= ::GetSystemMetrics(SM_CYDRAG);
    if (!m_pDockManager->is_dragging() && moved) m_pDockManager->begin_drag(this, nullptr);
    if (m_pDockManager->is_dragging()) m_pDockManager->drag_to(screen, (nFlags & MK_CONTROL) != 0);
}

void CPaneFrameWnd::OnLButtonUp(UINT, CPoint point) {
    CPoint screen(point);
    ClientToScreen(&screen);
    const UINT pressed = m_nHit;
    const CMFCCaptionButton* under = FindButton(screen);
    const bool onButton = pressed != HTNOWHERE && under != nullptr && under->GetHit() == pressed;
    if (m_bCaptured) {
        m_bCaptured = FALSE;
        CDockingManager* manager = m_pDockManager;
        ReleaseCapture();
        // This may destroy the frame.
        if (manager != nullptr && manager->is_dragging()) manager->end_drag(false);
        return;
    }
    if (pressed == HTNOWHERE) {
        Default();
        return;
    }
    m_nHit = HTNOWHERE;
    ReleaseCapture();
    follow_buttons(screen);
    if (onButton) press_button(pressed);
}

void CPaneFrameWnd::press_button(UINT hit) {
    if (static_cast<LRESULT>(hit) == AFX_HTCLOSE)
        SendMessage(WM_CLOSE);
    else
        OnPressButtons(hit);
}

void CPaneFrameWnd::OnPressButtons(UINT nHit) {
    const CMFCCaptionButton* button = FindButtonByHit(static_cast<LRESULT>(nHit));
    CPane* pane = leading_pane();
    if (button == nullptr || pane == nullptr || static_cast<LRESULT>(nHit) != AFX_HTMENU) return;
    CRect window;
    GetWindowRect(&window);
    const CRect rect = button->GetRect() + window.TopLeft();
    pane->OnShowControlBarMenu(CPoint(rect.left, rect.bottom));
}

void CPaneFrameWnd::OnLButtonDblClk(UINT nFlags, CPoint point) {
    CPoint screen(point);
    ClientToScreen(&screen);
    const LRESULT hit = HitTest(screen, TRUE);
    if (hit == HTCAPTION)
        OnDockToRecentPos();
    else if (FindButton(screen) != nullptr)
        OnLButtonDown(nFlags, point);
    else
        Default();
}

BOOL CPaneFrameWnd::OnDockToRecentPos() {
    auto* pane = DYNAMIC_DOWNCAST(CDockablePane, leading_pane());
    return pane != nullptr && pane->GetEnabledAlignment() != 0 && pane->DockToRecentPos();
}

BOOL CPaneFrameWnd::CanBeAttached() const {
    const CPane* pane = leading_pane();
    return pane != nullptr && pane->CanBeAttached();
}

BOOL CPaneFrameWnd::CanBeDockedToPane(const CDockablePane* pDockingBar) const {
    const CPane* pane = leading_pane();
    return pane != nullptr && pDockingBar != nullptr && pDockingBar->CanAcceptPane(pane);
}

void CPaneFrameWnd::follow_buttons(CPoint screen) {
    const CMFCCaptionButton* under = FindButton(screen);
    m_nHot = under != nullptr ? under->GetHit() : HTNOWHERE;
    if (m_nHit != HTNOWHERE && m_nHot != m_nHit) m_nHot = HTNOWHERE;
    if (mark_buttons(m_arrButtons, m_nHot, m_nHit)) redraw_caption();
    if (m_nHot == HTNOWHERE) return;
    TRACKMOUSEEVENT leave = {sizeof(leave), TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&leave);
}

void CPaneFrameWnd::OnMouseLeave() {
    m_nHot = HTNOWHERE;
    if (mark_buttons(m_arrButtons, HTNOWHERE, m_nHit)) redraw_caption();
    Default();
}

void CPaneFrameWnd::OnCancelMode() {
    if (::GetCapture() == m_hWnd) ReleaseCapture();
    CWnd::OnCancelMode();
}

void CPaneFrameWnd::OnCaptureChanged(CWnd* pWnd) {
    const bool held = m_bCaptured != FALSE;
    m_bCaptured = FALSE;
    m_nHit = HTNOWHERE;
    if (mark_buttons(m_arrButtons, m_nHot, HTNOWHERE)) redraw_caption();
    CWnd::OnCaptureChanged(pWnd);
    // Something else took the mouse: the drag is off.
    if (held && m_pDockManager != nullptr && m_pDockManager->is_dragging()) m_pDockManager->end_drag(true);
}

void CPaneFrameWnd::OnSetFocus(CWnd* pOldWnd) {
    CPane* pane = leading_pane();
    if (pane != nullptr && pane->CanFocus() && pane->IsPaneVisible())
        pane->SetFocus();
    else
        CWnd::OnSetFocus(pOldWnd);
}

void CPaneFrameWnd::OnContextMenu(CWnd* pWnd, CPoint pos) {
    CPane* pane = leading_pane();
    if (pane == nullptr || !pane->OnShowControlBarMenu(pos)) CWnd::OnContextMenu(pWnd, pos);
}

BOOL CPaneFrameWnd::PreTranslateMessage(MSG* pMsg) {
    if (m_pDockManager != nullptr && m_pDockManager->is_dragging() && pMsg->message == WM_KEYDOWN &&
        pMsg->wParam == VK_ESCAPE) {
        m_pDockManager->end_drag(true);
        return TRUE;
    }
    return CWnd::PreTranslateMessage(pMsg);
}

/// A lone Alt is for the menu bar of the main window.
void CPaneFrameWnd::OnSysCommand(UINT nID, LPARAM lParam) {
    if (m_pDockManager == nullptr || !m_pDockManager->enters_menu(nID, lParam))
        CWnd::OnSysCommand(nID, lParam);
}
