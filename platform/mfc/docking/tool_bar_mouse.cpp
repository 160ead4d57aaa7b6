// CMFCToolBar: what mouse and keyboard do, and docking.
#include <kmfc/tool_bar_ex.h>

#include <kmfc/bar_frame_wnd.h>
#include <kmfc/dock_site.h>
#include <kmfc/docking_manager.h>
#include <kmfc/frame.h>

#include "../res/kmfc_ids.h"
#include "bar_accessible.h"
#include "docked_bars.h"
#include "frame_state.h"

using namespace kmfc::docking;

BEGIN_MESSAGE_MAP(CMFCToolBar, CPane)
    ON_WM_CREATE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_CANCELMODE()
    ON_WM_CAPTURECHANGED()
    ON_WM_SETCURSOR()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
    ON_WM_SHOWWINDOW()
    ON_MESSAGE(WM_GETOBJECT, &CMFCToolBar::OnGetObject)
    ON_REGISTERED_MESSAGE(press_part_message, &CMFCToolBar::OnPressPart)
END_MESSAGE_MAP()

int CMFCToolBar::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CPane::OnCreate(lpCreateStruct) == -1) return -1;
    EnableToolTips((m_dwStyle & CBRS_TOOLTIPS) != 0);
    SetMiniFrameRTC(RUNTIME_CLASS(CBarFrameWnd));
    return 0;
}

// Hot buttons.

CWnd* CMFCToolBar::frame_of_messages() const { return (m_dwStyle & CBRS_FLYBY) != 0 ? m_pDockSite : nullptr; }

void CMFCToolBar::tell_frame(int index) {
    CWnd* const frame = frame_of_messages();
    // What opens a menu has no command, and nothing to say.
    if (index >= 0 && index < GetCount() && GetItemID(index) == 0) index = -1;
    if (index == m_told || frame->GetSafeHwnd() == nullptr) return;
    m_told = index;
    if (index != -1)
        frame->SendMessage(WM_SETMESSAGESTRING, index == GetCount() ? IDS_BAR_MORE : GetItemID(index));
    else
        frame->SendMessage(WM_POPMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
}

void CMFCToolBar::highlight(int index) {
    const CMFCToolBarButton* const button = GetButton(index);
    if (button != nullptr ? button->IsSeparator() != FALSE : !has_more()) index = -1;
    tell_frame(index);
    if (index != -1 && !is_enabled(index)) index = -1;
    if (index == m_iHighlighted) return;
    redraw_button(m_iHighlighted);
    m_iHighlighted = index;
    redraw_button(m_iHighlighted);
}

void CMFCToolBar::OnMouseMove(UINT nFlags, CPoint point) {
    Default();
    if (m_isDraggable) {
        CPoint screen(point);
        ClientToScreen(&screen);
        const CPoint way = screen - m_pressedAt;
        CDockingManager* const manager = GetDockingManager();
        if (manager == nullptr || (std::abs(way.x) < ::GetSystemMetrics(SM_CXDRAG) &&
                                   std::abs(way.y) < ::GetSystemMetrics(SM_CYDRAG)))
            return;
        m_isDraggable = false;
        manager->bars().begin_drag(*this, m_pressedAt);
        manager->bars().drag_to(screen, (nFlags & MK_CONTROL) != 0);
        return;
    }
    if (m_iPressed != -1) {
        const bool over = HitTest(point) == m_iPressed;
        CMFCToolBarButton* const button = GetButton(m_iPressed);
        SetButtonStyle(m_iPressed, over ? button->m_nStyle | TBBS_PRESSED : button->m_nStyle & ~TBBS_PRESSED);
        return;
    }
    highlight(part_at(point));
    TRACKMOUSEEVENT leave = {sizeof(leave), TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&leave);
}

void CMFCToolBar::OnMouseLeave() {
    Default();
    if (m_iPressed == -1) highlight(-1);
}

// Presses.

void CMFCToolBar::OnLButtonDown(UINT, CPoint point) {
    CRect gripper;
    GetGripperRect(gripper);
    if (gripper.PtInRect(point)) {
        m_isDraggable = true;
        m_pressedAt = point;
        ClientToScreen(&m_pressedAt);
        SetCapture();
        return;
    }
    const int index = part_at(point);
    if (!is_pressable(index)) return;
    highlight(index);
    if (index == GetCount()) return open_more();
    m_iPressed = index;
    SetButtonStyle(index, GetButtonStyle(index) | TBBS_PRESSED);
    SetCapture();
}

void CMFCToolBar::let_go() {
    const int pressed = std::exchange(m_iPressed, -1);
    m_isDraggable = false;
    if (pressed != -1) SetButtonStyle(pressed, GetButtonStyle(pressed) & ~TBBS_PRESSED);
    if (m_hWnd != nullptr && ::GetCapture() == m_hWnd) ::ReleaseCapture();
}

void CMFCToolBar::OnLButtonUp(UINT, CPoint point) {
    const int pressed = m_iPressed;
    let_go();
    highlight(HitTest(point));
    if (pressed != -1 && HitTest(point) == pressed && is_pressable(pressed)) SendCommand(GetButton(pressed));
}

void CMFCToolBar::SendCommand(const CMFCToolBarButton* pButton) {
    const UINT command = pButton->m_nID;
    if (const_cast<CMFCToolBarButton*>(pButton)->OnClick(this)) return;
    CWnd* const owner = GetOwner();
    if (owner->GetSafeHwnd() != nullptr) owner->PostMessage(WM_COMMAND, MAKEWPARAM(command, BN_CLICKED));
}

void CMFCToolBar::OnLButtonDblClk(UINT nFlags, CPoint point) {
    CRect gripper;
    GetGripperRect(gripper);
    if (gripper.PtInRect(point))
        ToggleDocking();
    else
        OnLButtonDown(nFlags, point);
}

void CMFCToolBar::OnCancelMode() {
    let_go();
    CPane::OnCancelMode();
}

void CMFCToolBar::OnCaptureChanged(CWnd* pWnd) {
    let_go();
    CPane::OnCaptureChanged(pWnd);
}

BOOL CMFCToolBar::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    CRect gripper;
    GetGripperRect(gripper);
    if (!gripper.PtInRect(point)) return CPane::OnSetCursor(pWnd, nHitTest, message);
    ::SetCursor(::LoadCursorW(nullptr, IDC_SIZEALL));
    return TRUE;
}

void CMFCToolBar::OnShowWindow(BOOL bShow, UINT nStatus) {
    CPane::OnShowWindow(bShow, nStatus);
    if (bShow) return;
    let_go();
    highlight(-1);
}

// The keyboard.

void CMFCToolBar::OnSetFocus(CWnd* pOldWnd) {
    CPane::OnSetFocus(pOldWnd);
    if (m_iHighlighted == -1) mark_next(-1, 1);
}

void CMFCToolBar::OnKillFocus(CWnd* pNewWnd) {
    CPane::OnKillFocus(pNewWnd);
    highlight(-1);
}

UINT CMFCToolBar::OnGetDlgCode() { return DLGC_WANTARROWS | DLGC_WANTCHARS; }

/// The next button in a direction that can be pressed, around the ends.
void CMFCToolBar::mark_next(int from, int step) {
    // The button for more comes behind the others.
    const int count = GetCount() + 1;
    for (int i = 1; i <= count; ++i) {
        const int index = ((from + i * step) % count + count) % count;
        if (!is_pressable(index)) continue;
        highlight(index);
        if (::GetFocus() == m_hWnd) tell_part_marked(*this, index + 1);
        return;
    }
}

void CMFCToolBar::OnKeyDown(UINT nChar, UINT, UINT) {
    switch (nChar) {
        case VK_LEFT:
        case VK_UP: mark_next(m_iHighlighted == -1 ? 0 : m_iHighlighted, -1); break;
        case VK_RIGHT:
        case VK_DOWN: mark_next(m_iHighlighted, 1); break;
        case VK_HOME: mark_next(-1, 1); break;
        case VK_END: mark_next(0, -1); break;
        case VK_RETURN:
        case VK_SPACE:
            if (is_pressable(m_iHighlighted)) press(m_iHighlighted);
            break;
        case VK_ESCAPE:
            if (m_pDockSite->GetSafeHwnd() != nullptr) m_pDockSite->SetFocus();
            break;
        default: Default();
    }
}

INT_PTR CMFCToolBar::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    const int index = part_at(point);
    const CMFCToolBarButton* const button = GetButton(index);
    if (button != nullptr ? button->IsSeparator() || button->m_nID == 0 : index == -1) return -1;
    const UINT command = button != nullptr ? button->m_nID : IDS_BAR_MORE;
    if (pTI != nullptr && pTI->cbSize >= TTTOOLINFOW_V1_SIZE) {
        pTI->hwnd = m_hWnd;
        pTI->rect = part_rect(index);
        pTI->uId = static_cast<UINT_PTR>(command);
        pTI->lpszText = LPSTR_TEXTCALLBACKW;
    }
    return static_cast<INT_PTR>(command);
}

// Docking.

CDockSite* CMFCToolBar::GetParentDockSite() const {
    return m_hWnd != nullptr ? DYNAMIC_DOWNCAST(CDockSite, GetParent()) : nullptr;
}

BOOL CMFCToolBar::DockToFrameWindow(DWORD dwAlignment, LPCRECT lpRect, DWORD, CBasePane*, int, BOOL) {
    CDockingManager* const manager = GetDockingManager();
    if (manager == nullptr || m_hWnd == nullptr) return FALSE;
    return manager->bars().dock(*this, side_of(dwAlignment), lpRect);
}

BOOL CMFCToolBar::FloatPane(CRect rectFloat, AFX_DOCK_METHOD, bool bShow) {
    CDockingManager* const manager = GetDockingManager();
    if (manager == nullptr || m_hWnd == nullptr || !CanFloat()) return FALSE;
    return manager->bars().float_bar(*this, rectFloat.TopLeft(), rectFloat.Width(), bShow);
}

void CMFCToolBar::ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate) {
    m_isShown = bShow != FALSE;
    CDockingManager* const manager = GetDockingManager();
    if (manager != nullptr && m_hWnd != nullptr) manager->bars().show(*this, bDelay != FALSE);
    if (bShow && bActivate && m_hWnd != nullptr) SetFocus();
}

BOOL CMFCToolBar::DockToRecentPos() {
    CDockingManager* const manager = GetDockingManager();
    return manager != nullptr && m_hWnd != nullptr && manager->bars().dock_at_recent(*this);
}

BOOL CMFCToolBar::ToggleDocking() {
    if (IsFloating()) return DockToRecentPos();
    CRect rect = m_recentDockInfo.m_rectRecentFloatingRect;
    if (rect.IsRectEmpty()) {
        GetWindowRect(&rect);
        rect = CRect(rect.TopLeft() + CSize(20, 20), CSize(0, 0));
    }
    return FloatPane(rect, DM_DBL_CLICK);
}
