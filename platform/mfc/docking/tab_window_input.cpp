// Tab windows: mouse and keys.
#include <algorithm>
#include <cstdlib>

#include <kmfc/global_data.h>
#include <kmfc/tab_window.h>

#include "core/tab_layout.h"

namespace {

constexpr UINT kFirstMenuItem = 1;
constexpr int kTearOffReach = 6;  // pixels at 96 dots an inch that the mouse may leave the strip by

bool is_beyond_drag(CPoint from, CPoint to) {
    return std::abs(from.x - to.x) > ::GetSystemMetrics(SM_CXDRAG) ||
           std::abs(from.y - to.y) > ::GetSystemMetrics(SM_CYDRAG);
}

}  // namespace

CMFCTabCtrl::Button CMFCTabCtrl::button_at(CPoint point) const {
    for (const Button button : {Button::scroll_left, Button::scroll_right, Button::menu, Button::close})
        if (button_rect(button).PtInRect(point)) return button;
    return Button::none;
}

bool CMFCTabCtrl::is_enabled(Button button) const {
    switch (button) {
        case Button::scroll_left: return m_offset > 0;
        case Button::scroll_right: return m_offset < m_maxOffset;
        case Button::close: return m_iActiveTab != -1;
        default: return true;
    }
}

void CMFCTabCtrl::press(Button button) {
    switch (button) {
        case Button::scroll_left: return scroll_by_step(-1);
        case Button::scroll_right: return scroll_by_step(1);
        case Button::close: return close_tab(m_iActiveTab);
        case Button::menu: {
            CPoint corner(button_rect(button).left, button_rect(button).bottom);
            ClientToScreen(&corner);
            return OnShowTabDocumentsMenu(corner);
        }
        case Button::none: return;
    }
}

/// The owner knows how its panes are closed; another window is told to.
void CMFCTabCtrl::close_tab(int index) {
    CWnd* const window = GetTabWnd(index);
    if (window->GetSafeHwnd() == nullptr) return;
    if (m_owner != nullptr)
        m_owner->close_tab(index);
    else
        window->SendMessage(WM_CLOSE);
}

void CMFCTabCtrl::OnShowTabDocumentsMenu(CPoint point) {
    CMenu menu;
    menu.CreatePopupMenu();
    for (int i = 0; i < GetTabsNum(); ++i) {
        if (!tab(i)->m_bVisible) continue;
        CString label = tab(i)->m_strText;
        if (m_bDrawNoPrefix) label.Replace(L"&", L"&&");
        menu.AppendMenu(MF_STRING | (i == m_iActiveTab ? MF_CHECKED : 0U),
                        kFirstMenuItem + static_cast<UINT>(i), label);
    }
    const auto chosen = static_cast<UINT>(
        ::TrackPopupMenu(menu, TPM_RETURNCMD | TPM_NONOTIFY, point.x, point.y, 0, m_hWnd, nullptr));
    if (chosen >= kFirstMenuItem) ActivateMDITab(static_cast<int>(chosen - kFirstMenuItem));
}

void CMFCTabCtrl::OnLButtonDown(UINT nFlags, CPoint point) {
    CMFCBaseTabCtrl::OnLButtonDown(nFlags, point);
    const Button button = button_at(point);
    if (button != Button::none) {
        if (!is_enabled(button)) return;
        m_pressedButton = m_hotButton = button;
        SetCapture();
        InvalidateRect(button_rect(button), FALSE);
        return;
    }
    if (m_rectCloseButton.PtInRect(point)) {
        m_bTabCloseButtonPressed = TRUE;
        SetCapture();
        InvalidateRect(m_rectCloseButton, FALSE);
        return;
    }
    const int hit = GetTabFromPoint(point);
    if (hit == -1) return;
    if (hit == m_iActiveTab)
        EnsureVisible(hit);
    else if (!SetActiveTab(hit))
        return;
    if (m_bEnableActivate && GetActiveWnd() != nullptr) GetActiveWnd()->SetFocus();
    if (!m_bIsTabSwapEnabled && !IsTabDetachable(m_iActiveTab)) return;
    m_isPressed = true;
    m_pressPoint = point;
    SetCapture();
}

void CMFCTabCtrl::OnMouseMove(UINT nFlags, CPoint point) {
    CMFCBaseTabCtrl::OnMouseMove(nFlags, point);
    highlight(point);
    if (!m_isPressed || (nFlags & MK_LBUTTON) == 0) return;
    if (!m_isDragging && !is_beyond_drag(m_pressPoint, point)) return;
    m_isDragging = true;
    drag_tab(point);
}

/// Moves the active tab under the mouse, or tears it off once the mouse has left the strip.
void CMFCTabCtrl::drag_tab(CPoint point) {
    CRect reach = m_rectTabsArea;
    reach.InflateRect(afxGlobalData.scaled(kTearOffReach), afxGlobalData.scaled(kTearOffReach));
    if (!reach.PtInRect(point)) {
        if (!IsTabDetachable(m_iActiveTab)) return;
        const int torn = m_iActiveTab;
        end_drag();
        DetachTab(DM_MOUSE, torn);
        return;
    }
    if (!m_bIsTabSwapEnabled) return;
    std::vector<int> widths;
    for (int i = 0; i < GetTabsNum(); ++i) widths.push_back(tab(i)->m_rect.Width());
    int start = m_tabsRoom.left;
    for (int i = 0; i < GetTabsNum(); ++i)
        if (!tab(i)->m_rect.IsRectEmpty()) {
            start = tab(i)->m_rect.left;
            break;
        }
    const int former = m_iActiveTab;
    const int target = kmfc::tabs::drop_index(widths, start, overlap(), former, point.x);
    if (target == former) return;
    MoveTab(former, target);
    if (CWnd* const parent = GetParent())
        parent->SendMessage(AFX_WM_ON_MOVE_TAB, static_cast<WPARAM>(former), target);
}

void CMFCTabCtrl::end_drag() {
    m_isPressed = m_isDragging = false;
    m_pressedButton = Button::none;
    m_bTabCloseButtonPressed = FALSE;
    if (::GetCapture() == m_hWnd) ::ReleaseCapture();
    InvalidateRect(m_rectTabsArea, FALSE);
}

void CMFCTabCtrl::OnLButtonUp(UINT nFlags, CPoint point) {
    CMFCBaseTabCtrl::OnLButtonUp(nFlags, point);
    const Button pressed = m_pressedButton;
    const bool closes = m_bTabCloseButtonPressed && m_rectCloseButton.PtInRect(point);
    end_drag();
    if (closes) return close_tab(m_iActiveTab);
    if (pressed != Button::none && button_at(point) == pressed) press(pressed);
}

void CMFCTabCtrl::OnCancelMode() {
    CMFCBaseTabCtrl::OnCancelMode();
    end_drag();
}

void CMFCTabCtrl::OnCaptureChanged(CWnd* pWnd) {
    if (pWnd->GetSafeHwnd() != m_hWnd) end_drag();
    CMFCBaseTabCtrl::OnCaptureChanged(pWnd);
}

void CMFCTabCtrl::OnLButtonDblClk(UINT nFlags, CPoint point) {
    CMFCBaseTabCtrl::OnLButtonDblClk(nFlags, point);
    // A second press on a button is a press like the first.
    if (button_at(point) != Button::none || m_rectCloseButton.PtInRect(point))
        return OnLButtonDown(nFlags, point);
    const int hit = GetTabFromPoint(point);
    if (hit == -1) return;
    end_drag();
    if (StartRenameTab(hit))
        edit_label(hit);
    else if (IsTabDetachable(hit))
        DetachTab(DM_DBL_CLICK, hit);
}

void CMFCTabCtrl::OnRButtonDown(UINT nFlags, CPoint point) {
    CMFCBaseTabCtrl::OnRButtonDown(nFlags, point);
    const int hit = GetTabFromPoint(point);
    if (m_bActivateTabOnRightClick && hit != -1) SetActiveTab(hit);
}

void CMFCTabCtrl::OnContextMenu(CWnd*, CPoint pos) {
    // The owner's, as if the owner had been clicked itself.
    if (CWnd* const parent = GetParent())
        parent->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_hWnd), MAKELPARAM(pos.x, pos.y));
}

/// Shows what is under the mouse.
void CMFCTabCtrl::highlight(CPoint point) {
    const int hot = ::GetCapture() == m_hWnd && m_isPressed ? m_iActiveTab : GetTabFromPoint(point);
    const Button button = button_at(point);
    const BOOL onSign = m_rectCloseButton.PtInRect(point);
    if (hot == m_iHighlighted && button == m_hotButton && onSign == m_bTabCloseButtonHighlighted) return;
    m_iHighlighted = hot;
    m_hotButton = button;
    m_bTabCloseButtonHighlighted = onSign;
    InvalidateRect(m_rectTabsArea, FALSE);
    TRACKMOUSEEVENT leave = {sizeof(leave), TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&leave);
}

void CMFCTabCtrl::OnMouseLeave() {
    CMFCBaseTabCtrl::OnMouseLeave();
    m_iHighlighted = -1;
    m_hotButton = Button::none;
    m_bTabCloseButtonHighlighted = FALSE;
    InvalidateRect(m_rectTabsArea, FALSE);
}

BOOL CMFCTabCtrl::OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) {
    CPoint inside = pt;
    ScreenToClient(&inside);
    if (!scrolls() || !m_rectTabsArea.PtInRect(inside))
        return CMFCBaseTabCtrl::OnMouseWheel(nFlags, zDelta, pt);
    scroll_by_step(zDelta > 0 ? -1 : 1);
    return TRUE;
}

// Keys.

/// The next tab that shows in a direction; -1 when there is none and it doesn't go around.
int CMFCTabCtrl::neighbour(int index, int step, bool around) const {
    const int count = GetTabsNum();
    for (int i = 1; i <= count; ++i) {
        const int next = index + step * i;
        if (!around && (next < 0 || next >= count)) return -1;
        const int turned = (next % count + count) % count;
        if (tab(turned)->m_bVisible) return turned;
    }
    return -1;
}

bool CMFCTabCtrl::choose_by_key(UINT key) {
    int chosen = -1;
    switch (key) {
        case VK_LEFT: chosen = neighbour(m_iActiveTab, -1, false); break;
        case VK_RIGHT: chosen = neighbour(m_iActiveTab, 1, false); break;
        case VK_HOME: GetFirstVisibleTab(chosen); break;
        case VK_END: GetLastVisibleTab(chosen); break;
        default: return false;
    }
    if (chosen != -1) SetActiveTab(chosen);
    return true;
}

void CMFCTabCtrl::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (choose_by_key(nChar)) return;
    if (nChar == VK_F2 && StartRenameTab(m_iActiveTab)) return edit_label(m_iActiveTab);
    if (nChar == VK_ESCAPE && m_isPressed) return end_drag();
    CMFCBaseTabCtrl::OnKeyDown(nChar, nRepCnt, nFlags);
}

BOOL CMFCTabCtrl::PreTranslateMessage(MSG* pMsg) {
    const bool forward = pMsg->wParam == VK_TAB ? ::GetKeyState(VK_SHIFT) >= 0 : pMsg->wParam == VK_NEXT;
    if (pMsg->message == WM_KEYDOWN && ::GetKeyState(VK_CONTROL) < 0 && GetVisibleTabsNum() > 1 &&
        m_pInPlaceEdit == nullptr &&
        (pMsg->wParam == VK_TAB || pMsg->wParam == VK_NEXT || pMsg->wParam == VK_PRIOR)) {
        SetActiveTab(neighbour(m_iActiveTab, forward ? 1 : -1, true));
        return TRUE;
    }
    return CMFCBaseTabCtrl::PreTranslateMessage(pMsg);
}

UINT CMFCTabCtrl::OnGetDlgCode() { return DLGC_WANTARROWS; }

void CMFCTabCtrl::OnSetFocus(CWnd* pOldWnd) {
    CMFCBaseTabCtrl::OnSetFocus(pOldWnd);
    InvalidateTab(m_iActiveTab);
}

void CMFCTabCtrl::OnKillFocus(CWnd* pNewWnd) {
    CMFCBaseTabCtrl::OnKillFocus(pNewWnd);
    InvalidateTab(m_iActiveTab);
}
