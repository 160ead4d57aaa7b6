// The list of tabs.
#include <kmfc/base_tab_ctrl.h>

#include <algorithm>

#include <kmfc/edit.h>
#include <kmfc/frame.h>
#include <kmfc/tool_tip_ctrl.h>

#include "tab_label_edit.h"

IMPLEMENT_DYNAMIC(CMFCBaseTabCtrl, CWnd)

BEGIN_MESSAGE_MAP(CMFCBaseTabCtrl, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_EN_KILLFOCUS(kmfc::kLabelEditId, &CMFCBaseTabCtrl::OnLabelKillFocus)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, &CMFCBaseTabCtrl::OnToolTipText)
END_MESSAGE_MAP()

CMFCBaseTabCtrl::CMFCBaseTabCtrl() { SetAutoColors(CArray<COLORREF, COLORREF>()); }
CMFCBaseTabCtrl::~CMFCBaseTabCtrl() {
    CMFCBaseTabCtrl::CleanUp();
    delete m_pToolTip;
}

int CMFCBaseTabCtrl::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) return -1;
    m_pToolTip = new CToolTipCtrl;
    if (!m_pToolTip->Create(this, TTS_ALWAYSTIP | TTS_NOPREFIX)) return -1;
    m_pToolTip->Activate(TRUE);
    return 0;
}

void CMFCBaseTabCtrl::OnDestroy() {
    close_edit(false);
    CleanUp();
    delete m_pToolTip;
    m_pToolTip = nullptr;
    CWnd::OnDestroy();
}

void CMFCBaseTabCtrl::CleanUp() {
    for (INT_PTR i = 0; i < m_arTabs.GetSize(); ++i) delete m_arTabs[i];
    m_arTabs.RemoveAll();
    m_iActiveTab = m_iHighlighted = -1;
}

CMFCTabInfo* CMFCBaseTabCtrl::tab(int index) {
    return index >= 0 && index < m_arTabs.GetSize() ? static_cast<CMFCTabInfo*>(m_arTabs[index]) : nullptr;
}

const CMFCTabInfo* CMFCBaseTabCtrl::tab(int index) const {
    return const_cast<CMFCBaseTabCtrl*>(this)->tab(index);
}

void CMFCBaseTabCtrl::AddTab(CWnd* pTabWnd, LPCTSTR lpszTabLabel, UINT uiImageId, BOOL bDetachable) {
    InsertTab(pTabWnd, lpszTabLabel, -1, uiImageId, bDetachable);
}

void CMFCBaseTabCtrl::AddTab(CWnd* pTabWnd, UINT uiResTabLabel, UINT uiImageId, BOOL bDetachable) {
    InsertTab(pTabWnd, uiResTabLabel, -1, uiImageId, bDetachable);
}

void CMFCBaseTabCtrl::InsertTab(CWnd* pNewWnd, UINT uiResTabLabel, int nInsertAt, UINT uiImageId,
                                BOOL bDetachable) {
    CString label;
    label.LoadString(uiResTabLabel);
    InsertTab(pNewWnd, label, nInsertAt, uiImageId, bDetachable);
}

void CMFCBaseTabCtrl::InsertTab(CWnd* pNewWnd, LPCTSTR lpszTabLabel, int nInsertAt, UINT uiImageId,
                                BOOL bDetachable) {
    if (pNewWnd->GetSafeHwnd() == nullptr || GetTabFromHwnd(pNewWnd->m_hWnd) != -1) return;
    const int at = nInsertAt < 0 ? GetTabsNum() : std::min(nInsertAt, GetTabsNum());
    auto* const added = new CMFCTabInfo;
    added->m_strText = lpszTabLabel;
    added->m_pWnd = pNewWnd;
    added->m_uiIcon = uiImageId;
    added->m_iTabID = m_nNextTabID++;
    added->m_bIsDetachable = bDetachable;
    m_arTabs.InsertAt(at, added);
    if (!m_bIsMDITab) {
        if (::GetParent(pNewWnd->m_hWnd) != m_hWnd) pNewWnd->SetParent(this);
        pNewWnd->ShowWindow(SW_HIDE);
    }
    if (m_iActiveTab >= at) ++m_iActiveTab;
    tabs_changed(true);
    if (m_iActiveTab == -1) SetActiveTab(at);
}

BOOL CMFCBaseTabCtrl::RemoveTab(int iTab, BOOL bRecalcLayout) {
    CMFCTabInfo* const removed = tab(iTab);
    if (removed == nullptr) return FALSE;
    close_edit(false);
    const bool wasActive = iTab == m_iActiveTab;
    const int next = wasActive ? successor_of(iTab) : m_iActiveTab;
    CWnd* const window = removed->m_pWnd;
    m_arTabs.RemoveAt(iTab);
    delete removed;
    m_iHighlighted = -1;
    m_iActiveTab = wasActive ? -1 : m_iActiveTab - (iTab < m_iActiveTab ? 1 : 0);
    if (window->GetSafeHwnd() != nullptr && ::IsWindow(window->m_hWnd)) {
        if (m_bAutoDestroyWindow)
            window->DestroyWindow();
        else if (!m_bIsMDITab)
            window->ShowWindow(SW_HIDE);
    }
    tabs_changed(bRecalcLayout != FALSE);
    if (wasActive && next != -1) SetActiveTab(next > iTab ? next - 1 : next);
    return TRUE;
}

void CMFCBaseTabCtrl::RemoveAllTabs() {
    close_edit(false);
    CArray<CWnd*, CWnd*> windows;
    for (int i = 0; i < GetTabsNum(); ++i) windows.Add(tab(i)->m_pWnd);
    CleanUp();
    for (INT_PTR i = 0; i < windows.GetSize(); ++i) {
        if (!::IsWindow(windows[i]->GetSafeHwnd())) continue;
        if (m_bAutoDestroyWindow)
            windows[i]->DestroyWindow();
        else if (!m_bIsMDITab)
            windows[i]->ShowWindow(SW_HIDE);
    }
    tabs_changed(true);
}

int CMFCBaseTabCtrl::GetTabsNum() const { return static_cast<int>(m_arTabs.GetSize()); }

int CMFCBaseTabCtrl::GetVisibleTabsNum() const {
    int count = 0;
    for (int i = 0; i < GetTabsNum(); ++i) count += tab(i)->m_bVisible ? 1 : 0;
    return count;
}

int CMFCBaseTabCtrl::successor_of(int index) const {
    if (m_bActivateLastActive) {
        const int last = GetTabByID(m_iLastActiveTab);
        if (last != -1 && last != index && tab(last)->m_bVisible) return last;
    }
    for (int i = index + 1; i < GetTabsNum(); ++i)
        if (tab(i)->m_bVisible) return i;
    for (int i = index - 1; i >= 0; --i)
        if (tab(i)->m_bVisible) return i;
    return -1;
}

BOOL CMFCBaseTabCtrl::ShowTab(int iTab, BOOL bShow, BOOL bRecalcLayout, BOOL bActivate) {
    CMFCTabInfo* const shown = tab(iTab);
    if (shown == nullptr) return FALSE;
    const BOOL former = shown->m_bVisible;
    shown->m_bVisible = bShow;
    if (!bShow && iTab == m_iActiveTab) {
        const int next = successor_of(iTab);
        shown->m_pWnd->ShowWindow(SW_HIDE);
        m_iActiveTab = -1;
        if (next != -1) SetActiveTab(next);
    } else if (bShow && (bActivate || m_iActiveTab == -1)) {
        SetActiveTab(iTab);
    }
    if (former != bShow) tabs_changed(bRecalcLayout != FALSE);
    return TRUE;
}

BOOL CMFCBaseTabCtrl::IsTabVisible(int iTab) const { return tab(iTab) != nullptr && tab(iTab)->m_bVisible; }

void CMFCBaseTabCtrl::SwapTabs(int nFisrtTabID, int nSecondTabID) {
    CMFCTabInfo* const first = tab(nFisrtTabID);
    CMFCTabInfo* const second = tab(nSecondTabID);
    if (first == nullptr || second == nullptr) return;
    m_arTabs[nFisrtTabID] = second;
    m_arTabs[nSecondTabID] = first;
    if (m_iActiveTab == nFisrtTabID)
        m_iActiveTab = nSecondTabID;
    else if (m_iActiveTab == nSecondTabID)
        m_iActiveTab = nFisrtTabID;
    tabs_changed(true);
}

void CMFCBaseTabCtrl::MoveTab(int nSource, int nDest) {
    CMFCTabInfo* const moved = tab(nSource);
    if (nDest < 0) nDest = GetTabsNum() - 1;
    if (moved == nullptr || nDest >= GetTabsNum() || nDest == nSource) return;
    const CMFCTabInfo* const active = tab(m_iActiveTab);
    m_arTabs.RemoveAt(nSource);
    m_arTabs.InsertAt(nDest, moved);
    m_iActiveTab = active == nullptr ? -1 : GetTabByID(active->m_iTabID);
    tabs_changed(true);
}

BOOL CMFCBaseTabCtrl::SetTabsOrder(const CArray<int, int>& arOrder) {
    const INT_PTR count = m_arTabs.GetSize();
    if (arOrder.GetSize() != count) return FALSE;
    std::vector<CObject*> ordered(static_cast<size_t>(count), nullptr);
    for (INT_PTR i = 0; i < count; ++i) {
        CObject* const named = tab(arOrder[i]);
        if (named == nullptr || std::find(ordered.begin(), ordered.end(), named) != ordered.end())
            return FALSE;
        ordered[static_cast<size_t>(i)] = named;
    }
    const CMFCTabInfo* const active = tab(m_iActiveTab);
    for (INT_PTR i = 0; i < count; ++i) m_arTabs[i] = ordered[static_cast<size_t>(i)];
    m_iActiveTab = active == nullptr ? -1 : GetTabByID(active->m_iTabID);
    tabs_changed(true);
    return TRUE;
}

void CMFCBaseTabCtrl::tabs_changed(bool layout) {
    m_iHighlighted = -1;
    if (layout) RecalcLayout();
    OnChangeTabs();
}

CWnd* CMFCBaseTabCtrl::GetActiveWnd() const { return GetTabWnd(m_iActiveTab); }

CWnd* CMFCBaseTabCtrl::GetTabWnd(int iTab) const {
    return tab(iTab) != nullptr ? tab(iTab)->m_pWnd : nullptr;
}

CWnd* CMFCBaseTabCtrl::GetFirstVisibleTab(int& iTabNum) { return GetFirstVisibleTab(0, iTabNum); }

CWnd* CMFCBaseTabCtrl::GetFirstVisibleTab(int iStartFrom, int& iTabNum) {
    iTabNum = -1;
    for (int i = std::max(0, iStartFrom); i < GetTabsNum(); ++i) {
        if (!tab(i)->m_bVisible) continue;
        iTabNum = i;
        return tab(i)->m_pWnd;
    }
    return nullptr;
}

CWnd* CMFCBaseTabCtrl::GetLastVisibleTab(int& iTabNum) {
    iTabNum = -1;
    for (int i = GetTabsNum() - 1; i >= 0; --i) {
        if (!tab(i)->m_bVisible) continue;
        iTabNum = i;
        return tab(i)->m_pWnd;
    }
    return nullptr;
}

int CMFCBaseTabCtrl::GetTabFromHwnd(HWND hwnd) const {
    for (int i = 0; i < GetTabsNum(); ++i)
        if (tab(i)->m_pWnd->GetSafeHwnd() == hwnd) return i;
    return -1;
}

int CMFCBaseTabCtrl::GetTabByID(int id) const {
    for (int i = 0; i < GetTabsNum(); ++i)
        if (tab(i)->m_iTabID == id) return i;
    return -1;
}

int CMFCBaseTabCtrl::GetTabID(int iTab) const { return tab(iTab) != nullptr ? tab(iTab)->m_iTabID : -1; }

CSize CMFCBaseTabCtrl::GetMaxWindowSize() const {
    CSize largest(0, 0);
    for (int i = 0; i < GetTabsNum(); ++i) {
        CRect rect;
        tab(i)->m_pWnd->GetWindowRect(&rect);
        largest.cx = std::max<LONG>(largest.cx, rect.Width());
        largest.cy = std::max<LONG>(largest.cy, rect.Height());
    }
    return largest;
}

void CMFCBaseTabCtrl::tell_owner(UINT message, WPARAM wParam, LPARAM lParam) {
    if (CWnd* const parent = GetParent()) parent->SendMessage(message, wParam, lParam);
}

void CMFCBaseTabCtrl::FireChangeActiveTab(int nNewTab) {
    CWnd* const parent = GetParent();
    if (parent == nullptr) return;
    const auto active = static_cast<WPARAM>(nNewTab);
    const auto self = reinterpret_cast<LPARAM>(this);
    CFrameWnd* const frame = GetParentFrame();
    parent->SendMessage(AFX_WM_CHANGE_ACTIVE_TAB, active, self);
    if (frame->GetSafeHwnd() != nullptr && frame != parent)
        frame->SendMessage(AFX_WM_CHANGE_ACTIVE_TAB, active, self);
}

BOOL CMFCBaseTabCtrl::FireChangingActiveTab(int nNewTab) {
    CWnd* const parent = GetParent();
    if (parent == nullptr) return FALSE;
    const auto coming = static_cast<WPARAM>(nNewTab);
    if (parent->SendMessage(AFX_WM_CHANGING_ACTIVE_TAB, coming, 0) != 0) return TRUE;
    CFrameWnd* const frame = GetParentFrame();
    return frame->GetSafeHwnd() != nullptr && frame != parent &&
           frame->SendMessage(AFX_WM_CHANGING_ACTIVE_TAB, coming, 0) != 0;
}

// Layout that every tab control has.

BOOL CMFCBaseTabCtrl::GetTabRect(int iTab, CRect& rect) const {
    if (tab(iTab) == nullptr) return FALSE;
    rect = tab(iTab)->m_rect;
    return TRUE;
}

int CMFCBaseTabCtrl::GetTabFullWidth(int iTab) const {
    return tab(iTab) != nullptr ? tab(iTab)->m_nFullWidth : -1;
}
void CMFCBaseTabCtrl::GetTabsRect(CRect& rect) const { rect = m_rectTabsArea; }

int CMFCBaseTabCtrl::GetTabFromPoint(CPoint& pt) const {
    for (int i = 0; i < GetTabsNum(); ++i)
        if (tab(i)->m_rect.PtInRect(pt)) return i;
    return -1;
}

void CMFCBaseTabCtrl::SetTabBorderSize(int nTabBorderSize, BOOL bRepaint) {
    m_nTabBorderSize = nTabBorderSize;
    if (m_hWnd == nullptr) return;
    RecalcLayout();
    if (bRepaint) Invalidate();
}

void CMFCBaseTabCtrl::SetLocation(Location location) {
    m_location = location;
    if (m_hWnd != nullptr) RecalcLayout();
}

void CMFCBaseTabCtrl::InvalidateTab(int iTab) {
    if (tab(iTab) != nullptr && m_hWnd != nullptr) InvalidateRect(tab(iTab)->m_rect, FALSE);
}

void CMFCBaseTabCtrl::HideSingleTab(BOOL bHide) {
    m_bHideSingleTab = bHide;
    if (m_hWnd != nullptr) RecalcLayout();
}

// Tearing off.

BOOL CMFCBaseTabCtrl::EnableTabDetach(int iTab, BOOL bEnable) {
    if (tab(iTab) == nullptr) return FALSE;
    tab(iTab)->m_bIsDetachable = bEnable;
    return TRUE;
}

BOOL CMFCBaseTabCtrl::IsTabDetachable(int iTab) const {
    return tab(iTab) != nullptr && tab(iTab)->m_bIsDetachable;
}

BOOL CMFCBaseTabCtrl::DetachTab(AFX_DOCK_METHOD dockMethod, int nTabNum, BOOL bHide) {
    const int index = nTabNum == -1 ? m_iActiveTab : nTabNum;
    return IsTabDetachable(index) && m_owner != nullptr && m_owner->float_tab(index, dockMethod, bHide);
}
