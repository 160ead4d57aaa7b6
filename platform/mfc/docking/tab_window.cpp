// Tab windows: making, measuring, laying out.
#include <kmfc/tab_window.h>

#include <algorithm>

#include <kmfc/dialog.h>
#include <kmfc/global_data.h>
#include <kmfc/tool_tip_ctrl.h>

#include "core/tab_layout.h"

namespace {

constexpr int kTextMargin = 8;   // pixels at 96 dots an inch, on both sides of a label
constexpr int kIconGap = 4;      // between icon and label
constexpr int kLeastWidth = 24;  // of a tab that has to give room
constexpr int kStripMargin = 2;  // before the first tab and after the last button

int scaled(int pixels) { return afxGlobalData.scaled(pixels); }

}  // namespace

IMPLEMENT_DYNCREATE(CMFCTabCtrl, CMFCBaseTabCtrl)

BEGIN_MESSAGE_MAP(CMFCTabCtrl, CMFCBaseTabCtrl)
    ON_WM_SIZE()
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_MESSAGE(WM_PRINTCLIENT, &CMFCTabCtrl::OnPrintClient)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_CANCELMODE()
    ON_WM_CAPTURECHANGED()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_CONTEXTMENU()
    ON_WM_SETTINGCHANGE()
END_MESSAGE_MAP()

BOOL CMFCTabCtrl::m_bEnableActivate = TRUE;

CMFCTabCtrl::CMFCTabCtrl() = default;
CMFCTabCtrl::~CMFCTabCtrl() = default;

BOOL CMFCTabCtrl::Create(Style style, const RECT& rect, CWnd* pParentWnd, UINT nID, Location location,
                         BOOL bCloseBtn) {
    m_style = style;
    m_location = location;
    m_bCloseButton = bCloseBtn;
    m_bIsDlgControl = pParentWnd != nullptr && pParentWnd->IsKindOf(RUNTIME_CLASS(CDialog));
    const CString name = afxGlobalData.RegisterWindowClass(L"kmfc:TabWindow");
    if (!CWnd::Create(name, nullptr, WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
                      rect, pParentWnd, nID))
        return FALSE;
    SetTabsHeight();
    return TRUE;
}

BOOL CMFCTabCtrl::ModifyTabStyle(Style style) {
    m_style = style;
    m_offset = 0;
    if (m_hWnd != nullptr) SetTabsHeight();
    return TRUE;
}

void CMFCTabCtrl::SetFlatFrame(BOOL bFlat, BOOL bRepaint) {
    m_bFlatFrame = bFlat;
    if (bRepaint && m_hWnd != nullptr) Invalidate();
}

void CMFCTabCtrl::SetActiveTabBoldFont(BOOL bIsBold) {
    m_bIsActiveTabBold = bIsBold;
    if (m_hWnd != nullptr) RecalcLayout();
}

void CMFCTabCtrl::SetTabMaxWidth(int nTabMaxWidth) {
    m_nTabMaxWidth = nTabMaxWidth;
    if (m_hWnd != nullptr) RecalcLayout();
}

void CMFCTabCtrl::EnableActiveTabCloseButton(BOOL bEnable) {
    m_bActiveTabCloseButton = bEnable;
    if (m_hWnd != nullptr) RecalcLayout();
}

void CMFCTabCtrl::EnableTabDocumentsMenu(BOOL bEnable) {
    m_bTabDocumentsMenu = bEnable;
    if (m_hWnd != nullptr) RecalcLayout();
}

void CMFCTabCtrl::HideNoTabs(BOOL bHide) {
    m_bHideNoTabs = bHide;
    if (m_hWnd != nullptr) RecalcLayout();
}

void CMFCTabCtrl::HideSingleTab(BOOL bHide) { CMFCBaseTabCtrl::HideSingleTab(bHide); }

BOOL CMFCTabCtrl::SetImageList(UINT uiID, int cx, COLORREF clrTransp) {
    return !IsFlatTab() && CMFCBaseTabCtrl::SetImageList(uiID, cx, clrTransp);
}

BOOL CMFCTabCtrl::SetImageList(HIMAGELIST hImageList) {
    return !IsFlatTab() && CMFCBaseTabCtrl::SetImageList(hImageList);
}

bool CMFCTabCtrl::strip_shows() const {
    const int shown = GetVisibleTabsNum();
    return !(shown == 0 && m_bHideNoTabs) && !(shown == 1 && m_bHideSingleTab);
}

int CMFCTabCtrl::GetTabsHeight() const { return strip_shows() ? m_nTabsHeight : 0; }

void CMFCTabCtrl::GetTabArea(CRect& rectTabAreaTop, CRect& rectTabAreaBottom) const {
    rectTabAreaTop = rectTabAreaBottom = CRect(0, 0, 0, 0);
    (m_location == LOCATION_TOP ? rectTabAreaTop : rectTabAreaBottom) = m_rectTabsArea;
}

/// Widths that labels, icons and the close sign ask for.
void CMFCTabCtrl::measure_tabs() {
    CClientDC dc(this);
    for (int i = 0; i < GetTabsNum(); ++i) {
        CMFCTabInfo& measured = *tab(i);
        const bool bold = m_bIsActiveTabBold && i == m_iActiveTab;
        CFont* const former = dc.SelectObject(bold ? &afxGlobalData.fontBold : &afxGlobalData.fontRegular);
        CRect text(0, 0, 0, 0);
        if (!measured.m_bIconOnly && !measured.m_strText.IsEmpty())
            dc.DrawText(measured.m_strText, &text,
                        DT_CALCRECT | DT_SINGLELINE | (m_bDrawNoPrefix ? DT_NOPREFIX : 0U));
        dc.SelectObject(former);
        const int icon = !HasImage(i)                  ? 0
                         : measured.m_hIcon != nullptr ? afxGlobalData.m_sizeSmallIcon.cx
                                                       : m_sizeImage.cx;
        measured.m_nFullWidth = text.Width() + icon +
                                (icon != 0 && text.Width() != 0 ? scaled(kIconGap) : 0) +
                                2 * scaled(kTextMargin) + overlap();
        if (m_bActiveTabCloseButton && i == m_iActiveTab) measured.m_nFullWidth += m_nTabsHeight / 2;
    }
}

std::vector<int> CMFCTabCtrl::asked_widths() const {
    std::vector<int> widths;
    for (int i = 0; i < GetTabsNum(); ++i) {
        const int full = tab(i)->m_nFullWidth;
        const int width = m_nTabMaxWidth > 0 ? std::min(full, m_nTabMaxWidth) : full;
        widths.push_back(tab(i)->m_bVisible ? width : 0);
    }
    return widths;
}

/// Slanted tabs reach under their neighbours.
int CMFCTabCtrl::overlap() const { return IsOneNoteStyle() ? m_nTabsHeight / 3 : 0; }

/// Shares the client area between the strip and the windows.
void CMFCTabCtrl::split_client() {
    CRect client;
    GetClientRect(&client);
    const int height = std::min(GetTabsHeight(), client.Height());
    m_rectTabsArea = m_rectWndArea = client;
    if (m_location == LOCATION_TOP)
        m_rectTabsArea.bottom = m_rectWndArea.top = client.top + height;
    else
        m_rectTabsArea.top = m_rectWndArea.bottom = client.bottom - height;
    if (height == 0) m_rectTabsArea.SetRectEmpty();
    const int border = m_bDrawFrame ? m_nTabBorderSize : 0;
    m_rectWndArea.DeflateRect(std::min<int>(border, m_rectWndArea.Width() / 2),
                              std::min<int>(border, m_rectWndArea.Height() / 2));
}

CRect CMFCTabCtrl::button_rect(Button button) const { return m_buttonRects[static_cast<int>(button)]; }

/// Puts the buttons at the right end of the strip; the answer is where room for tabs ends.
int CMFCTabCtrl::place_buttons() {
    for (CRect& rect : m_buttonRects) rect.SetRectEmpty();
    const CRect& strip = m_rectTabsArea;
    int right = strip.right - scaled(kStripMargin);
    if (strip.IsRectEmpty()) return right;
    const int side = std::min<int>(strip.Height() - 2 * scaled(1), scaled(18));
    const int top = strip.top + (strip.Height() - side) / 2;
    const auto put = [&](Button button) {
        m_buttonRects[static_cast<int>(button)] = CRect(CPoint(right - side, top), CSize(side, side));
        right -= side;
    };
    if (m_bCloseButton && !m_bActiveTabCloseButton) put(Button::close);
    const int length = kmfc::tabs::row_length(asked_widths(), overlap());
    if (!scrolls() || length <= right - strip.left - scaled(kStripMargin)) return right;
    if (m_bTabDocumentsMenu) {
        put(Button::menu);
    } else {
        put(Button::scroll_right);
        put(Button::scroll_left);
    }
    return right;
}

void CMFCTabCtrl::place_tabs(int right) {
    m_tabsRoom = m_rectTabsArea;
    m_tabsRoom.left = std::min(m_tabsRoom.left + scaled(kStripMargin), m_tabsRoom.right);
    m_tabsRoom.right = std::max<LONG>(m_tabsRoom.left, right);
    const int room = m_tabsRoom.Width();
    std::vector<int> widths = asked_widths();
    if (!scrolls()) widths = kmfc::tabs::share_room(widths, room, scaled(kLeastWidth));
    m_maxOffset = scrolls() ? kmfc::tabs::greatest_offset(widths, overlap(), room) : 0;
    m_offset = std::clamp(m_offset, 0, m_maxOffset);
    const auto places = kmfc::tabs::place_in_row(widths, m_tabsRoom.left - m_offset, overlap());
    for (int i = 0; i < GetTabsNum(); ++i) {
        const auto& place = places[static_cast<size_t>(i)];
        CRect rect(place.left, m_tabsRoom.top, place.right, m_tabsRoom.bottom);
        const bool seen = place.width() > 0 && place.right > m_tabsRoom.left && place.left < m_tabsRoom.right;
        tab(i)->m_rect = seen ? rect : CRect(0, 0, 0, 0);
    }
}

/// The close sign on the active tab.
void CMFCTabCtrl::place_close_sign() {
    m_rectCloseButton.SetRectEmpty();
    const CMFCTabInfo* const active = tab(m_iActiveTab);
    if (!m_bActiveTabCloseButton || active == nullptr || active->m_rect.IsRectEmpty()) return;
    const int side = m_nTabsHeight / 2;
    const CRect& rect = active->m_rect;
    if (rect.Width() < 2 * side) return;
    m_rectCloseButton = CRect(CPoint(rect.right - side - scaled(4), rect.top + (rect.Height() - side) / 2),
                              CSize(side, side));
}

/// Moves the windows to their place in one step.
void CMFCTabCtrl::place_windows() {
    if (!m_bAutoSizeWindow || m_bIsMDITab || GetTabsNum() == 0) return;
    HDWP batch = ::BeginDeferWindowPos(GetTabsNum());
    for (int i = 0; i < GetTabsNum() && batch != nullptr; ++i) {
        const HWND window = tab(i)->m_pWnd->GetSafeHwnd();
        if (!::IsWindow(window) || ::GetParent(window) != m_hWnd) continue;
        batch =
            ::DeferWindowPos(batch, window, nullptr, m_rectWndArea.left, m_rectWndArea.top,
                             m_rectWndArea.Width(), m_rectWndArea.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (batch != nullptr) ::EndDeferWindowPos(batch);
}

void CMFCTabCtrl::RecalcLayout() {
    if (m_hWnd == nullptr) return;
    if (m_nTabsHeight == 0) return SetTabsHeight();  // which comes here again
    measure_tabs();
    split_client();
    place_tabs(place_buttons());
    place_close_sign();
    place_windows();
    update_tips();
    InvalidateRect(nullptr, FALSE);
}

void CMFCTabCtrl::OnSize(UINT nType, int cx, int cy) {
    CMFCBaseTabCtrl::OnSize(nType, cx, cy);
    RecalcLayout();
}

void CMFCTabCtrl::OnSettingChange(UINT uFlags, LPCTSTR lpszSection) {
    CMFCBaseTabCtrl::OnSettingChange(uFlags, lpszSection);
    SetTabsHeight();
}

// Scrolling.

BOOL CMFCTabCtrl::EnsureVisible(int iTab) {
    if (tab(iTab) == nullptr) return FALSE;
    const int offset =
        kmfc::tabs::offset_to_show(asked_widths(), overlap(), m_tabsRoom.Width(), m_offset, iTab);
    if (offset == m_offset || !scrolls()) return TRUE;
    m_offset = offset;
    RecalcLayout();
    return TRUE;
}

void CMFCTabCtrl::scroll_by_step(int direction) {
    m_offset = kmfc::tabs::step_offset(asked_widths(), overlap(), m_tabsRoom.Width(), m_offset, direction);
    RecalcLayout();
}

int CMFCTabCtrl::GetFirstVisibleTabNum() const {
    for (int i = 0; i < GetTabsNum(); ++i)
        if (!tab(i)->m_rect.IsRectEmpty() && tab(i)->m_rect.left >= m_tabsRoom.left) return i;
    return -1;
}

int CMFCTabCtrl::GetTabFromPoint(CPoint& pt) const {
    if (!m_tabsRoom.PtInRect(pt)) return -1;
    std::vector<kmfc::tabs::Place> places;
    for (int i = 0; i < GetTabsNum(); ++i) places.push_back({tab(i)->m_rect.left, tab(i)->m_rect.right});
    return kmfc::tabs::tab_at(places, m_tabsRoom.left, m_tabsRoom.right, pt.x, m_iActiveTab);
}

CWnd* CMFCTabCtrl::FindTargetWnd(const CPoint& pt) {
    if (m_rectTabsArea.PtInRect(pt)) return nullptr;
    CWnd* const active = GetActiveWnd();
    return active != nullptr && m_rectWndArea.PtInRect(pt) ? active : nullptr;
}

void CMFCTabCtrl::CalcRectEdit(CRect& rectEdit) {
    rectEdit.DeflateRect(std::min<int>(m_nTabsHeight / 2, rectEdit.Width() / 4), 1);
}

// The active tab.

BOOL CMFCTabCtrl::SetActiveTab(int iTab) {
    if (tab(iTab) == nullptr) return FALSE;
    if (iTab == m_iActiveTab) return EnsureVisible(iTab);
    const int coming = tab(iTab)->m_iTabID;
    if (FireChangingActiveTab(iTab)) return FALSE;
    iTab = GetTabByID(coming);  // the owner may have changed the tabs meanwhile
    if (iTab == -1) return FALSE;
    close_edit(true);
    CWnd* const former = GetActiveWnd();
    m_iLastActiveTab = GetTabID(m_iActiveTab);
    m_iActiveTab = iTab;
    tab(iTab)->m_bVisible = TRUE;
    RecalcLayout();
    EnsureVisible(iTab);
    show_active_window(former);
    FireChangeActiveTab(iTab);
    return TRUE;
}

/// Shows the active window in the place of the former one, and hands the focus on.
void CMFCTabCtrl::show_active_window(CWnd* former) {
    CWnd* const active = GetActiveWnd();
    const HWND focus = ::GetFocus();
    const bool hadFocus = former->GetSafeHwnd() != nullptr && focus != nullptr &&
                          (focus == former->m_hWnd || ::IsChild(former->m_hWnd, focus));
    if (!m_bIsMDITab) {
        active->ShowWindow(m_bEnableActivate ? SW_SHOW : SW_SHOWNA);
        active->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        if (m_bHideInactiveWnd && former->GetSafeHwnd() != nullptr && former != active)
            former->ShowWindow(SW_HIDE);
    }
    if (hadFocus && m_bEnableActivate) active->SetFocus();
}

void CMFCTabCtrl::ActivateMDITab(int nTab) {
    if (nTab == -1) nTab = m_iActiveTab;
    if (tab(nTab) == nullptr || !SetActiveTab(nTab)) return;
    GetActiveWnd()->SetFocus();
}
