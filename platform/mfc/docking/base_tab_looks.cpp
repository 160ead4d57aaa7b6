// Labels, icons and colours of tabs.
#include <algorithm>

#include <kmfc/base_tab_ctrl.h>
#include <kmfc/global_data.h>

namespace {

// Pale colours that dark text can be read on.
constexpr COLORREF kAutoColors[] = {RGB(121, 210, 231), RGB(190, 218, 153), RGB(255, 170, 100),
                                    RGB(240, 200, 235), RGB(255, 219, 117), RGB(189, 205, 159),
                                    RGB(156, 173, 214), RGB(212, 188, 168)};

constexpr COLORREF kNone = static_cast<COLORREF>(-1);

}  // namespace

BOOL CMFCBaseTabCtrl::GetTabLabel(int iTab, CString& strLabel) const {
    if (tab(iTab) == nullptr) return FALSE;
    strLabel = tab(iTab)->m_strText;
    return TRUE;
}

BOOL CMFCBaseTabCtrl::SetTabLabel(int iTab, const CString& strLabel) {
    if (tab(iTab) == nullptr) return FALSE;
    if (tab(iTab)->m_strText == strLabel) return TRUE;
    tab(iTab)->m_strText = strLabel;
    RecalcLayout();
    return TRUE;
}

BOOL CMFCBaseTabCtrl::SetImageList(UINT uiID, int cx, COLORREF clrTransp) {
    CImageList loaded;
    if (!loaded.Create(uiID, cx, 1, clrTransp)) return FALSE;
    ClearImageList();
    m_Images.Attach(loaded.Detach());
    return SetImageList(m_Images.m_hImageList);
}

BOOL CMFCBaseTabCtrl::SetImageList(HIMAGELIST hImageList) {
    int width = 0, height = 0;
    if (hImageList == nullptr || !::ImageList_GetIconSize(hImageList, &width, &height)) return FALSE;
    if (hImageList != m_Images.m_hImageList) m_Images.DeleteImageList();
    m_hImageList = hImageList;
    m_sizeImage = CSize(width, height);
    SetTabsHeight();
    return TRUE;
}

const CImageList* CMFCBaseTabCtrl::GetImageList() const { return CImageList::FromHandle(m_hImageList); }

void CMFCBaseTabCtrl::ClearImageList() {
    m_Images.DeleteImageList();
    m_hImageList = nullptr;
}

void CMFCBaseTabCtrl::ResetImageList() {
    ClearImageList();
    m_sizeImage = CSize(0, 0);
    SetTabsHeight();
}

UINT CMFCBaseTabCtrl::GetTabIcon(int iTab) const {
    return tab(iTab) != nullptr ? tab(iTab)->m_uiIcon : kNone;
}

BOOL CMFCBaseTabCtrl::SetTabIcon(int iTab, UINT uiIcon) {
    if (tab(iTab) == nullptr) return FALSE;
    tab(iTab)->m_uiIcon = uiIcon;
    RecalcLayout();
    return TRUE;
}

HICON CMFCBaseTabCtrl::GetTabHicon(int iTab) const {
    return tab(iTab) != nullptr ? tab(iTab)->m_hIcon : nullptr;
}

BOOL CMFCBaseTabCtrl::SetTabHicon(int iTab, HICON hIcon) {
    if (tab(iTab) == nullptr) return FALSE;
    tab(iTab)->m_hIcon = hIcon;
    SetTabsHeight();
    return TRUE;
}

BOOL CMFCBaseTabCtrl::SetTabIconOnly(int iTab, BOOL bIconOnly, BOOL) {
    if (tab(iTab) == nullptr) return FALSE;
    tab(iTab)->m_bIconOnly = bIconOnly;
    RecalcLayout();
    return TRUE;
}

BOOL CMFCBaseTabCtrl::IsTabIconOnly(int iTab) const { return tab(iTab) != nullptr && tab(iTab)->m_bIconOnly; }

BOOL CMFCBaseTabCtrl::HasImage(int iTab) const {
    const CMFCTabInfo* const shown = tab(iTab);
    return shown != nullptr && (shown->m_hIcon != nullptr ||
                                (m_hImageList != nullptr && shown->m_uiIcon != static_cast<UINT>(-1)));
}

void CMFCBaseTabCtrl::SetDrawNoPrefix(BOOL bNoPrefix, BOOL bRedraw) {
    m_bDrawNoPrefix = bNoPrefix;
    if (m_hWnd == nullptr) return;
    RecalcLayout();
    if (bRedraw) Invalidate();
}

COLORREF CMFCBaseTabCtrl::GetTabBkColor(int iTab) const {
    const CMFCTabInfo* const shown = tab(iTab);
    if (shown == nullptr || shown->m_clrBack != kNone || !m_bAutoColor)
        return shown == nullptr ? kNone : shown->m_clrBack;
    return m_arAutoColors[shown->m_iTabID % m_arAutoColors.GetSize()];
}

BOOL CMFCBaseTabCtrl::SetTabBkColor(int iTab, COLORREF color) {
    if (tab(iTab) == nullptr) return FALSE;
    tab(iTab)->m_clrBack = color;
    InvalidateTab(iTab);
    return TRUE;
}

COLORREF CMFCBaseTabCtrl::GetTabTextColor(int iTab) const {
    return tab(iTab) != nullptr ? tab(iTab)->m_clrText : kNone;
}

BOOL CMFCBaseTabCtrl::SetTabTextColor(int iTab, COLORREF color) {
    if (tab(iTab) == nullptr) return FALSE;
    tab(iTab)->m_clrText = color;
    InvalidateTab(iTab);
    return TRUE;
}

COLORREF CMFCBaseTabCtrl::GetActiveTabColor() const {
    return m_clrActiveTabBk != kNone ? m_clrActiveTabBk : afxGlobalData.clrWindow;
}

void CMFCBaseTabCtrl::SetActiveTabColor(COLORREF clr) {
    m_clrActiveTabBk = clr;
    InvalidateTab(m_iActiveTab);
}

COLORREF CMFCBaseTabCtrl::GetActiveTabTextColor() const {
    return m_clrActiveTabFg != kNone ? m_clrActiveTabFg : afxGlobalData.clrWindowText;
}

void CMFCBaseTabCtrl::SetActiveTabTextColor(COLORREF clr) {
    m_clrActiveTabFg = clr;
    InvalidateTab(m_iActiveTab);
}

void CMFCBaseTabCtrl::EnableAutoColor(BOOL bEnable) {
    m_bAutoColor = bEnable;
    if (m_hWnd != nullptr) Invalidate();
}

void CMFCBaseTabCtrl::SetAutoColors(const CArray<COLORREF, COLORREF>& arColors) {
    m_arAutoColors.RemoveAll();
    if (arColors.GetSize() != 0)
        m_arAutoColors.Copy(arColors);
    else
        for (const COLORREF color : kAutoColors) m_arAutoColors.Add(color);
    if (m_hWnd != nullptr) Invalidate();
}

void CMFCBaseTabCtrl::SetTabsHeight() {
    const int text = afxGlobalData.GetTextHeight();
    int icon = m_sizeImage.cy;
    for (int i = 0; i < GetTabsNum(); ++i)
        if (tab(i)->m_hIcon != nullptr) icon = std::max<int>(icon, afxGlobalData.m_sizeSmallIcon.cy);
    m_nTabsHeight = std::max(text, icon) + 2 * afxGlobalData.scaled(4);
    if (m_hWnd != nullptr) RecalcLayout();
}
