// CMFCStatusBar: what its panes say and show.
#include <commctrl.h>

#include <kmfc/global_data.h>
#include <kmfc/status_bar_ex.h>

#include "picture_drawing.h"

namespace {

UINT_PTR timer_of(int index) { return static_cast<UINT_PTR>(index) + 1; }

}  // namespace

CMFCStatusBarPaneInfo* CMFCStatusBar::pane(int index) {
    return index >= 0 && index < GetCount() ? &m_panes[static_cast<size_t>(index)] : nullptr;
}
const CMFCStatusBarPaneInfo* CMFCStatusBar::pane(int index) const {
    return index >= 0 && index < GetCount() ? &m_panes[static_cast<size_t>(index)] : nullptr;
}

int CMFCStatusBar::text_width(const CString& text) const {
    CClientDC dc(const_cast<CMFCStatusBar*>(this));
    CFont* const former = dc.SelectObject(&afxGlobalData.fontTooltip);
    const CSize size = dc.GetTextExtent(text);
    dc.SelectObject(former);
    return size.cx;
}

BOOL CMFCStatusBar::SetIndicators(const UINT* lpIDArray, int nIDCount) {
    if (m_hWnd == nullptr || nIDCount < 1) return FALSE;
    std::vector<CMFCStatusBarPaneInfo> panes(static_cast<size_t>(nIDCount));
    for (size_t i = 0; i < panes.size() && lpIDArray != nullptr; ++i) {
        CMFCStatusBarPaneInfo& made = panes[i];
        made.nID = lpIDArray[i];
        if (made.nID == ID_SEPARATOR) continue;
        if (!made.strText.LoadString(made.nID)) return FALSE;
        made.cxWidth = text_width(made.strText);
    }
    if (lpIDArray != nullptr) {
        // The first is for messages: it gives way to the others.
        panes[0].nStyle = SBPS_STRETCH | SBPS_NOBORDERS;
        if (panes[0].nID == ID_SEPARATOR) panes[0].cxWidth = ::GetSystemMetrics(SM_CXSCREEN) / 4;
    }
    for (int i = 0; i < GetCount(); ++i) KillTimer(timer_of(i));
    m_panes = std::move(panes);
    RecalcLayout();
    return TRUE;
}

int CMFCStatusBar::CommandToIndex(UINT nIDFind) const {
    for (int i = 0; i < GetCount(); ++i)
        if (pane(i)->nID == nIDFind) return i;
    return -1;
}

UINT CMFCStatusBar::GetItemID(int nIndex) const { return pane(nIndex) != nullptr ? pane(nIndex)->nID : 0; }

void CMFCStatusBar::GetItemRect(int nIndex, LPRECT lpRect) const {
    *lpRect = pane(nIndex) != nullptr ? pane(nIndex)->rect : CRect(0, 0, 0, 0);
}

UINT CMFCStatusBar::GetPaneStyle(int nIndex) const {
    return pane(nIndex) != nullptr ? pane(nIndex)->nStyle : 0;
}

void CMFCStatusBar::SetPaneStyle(int nIndex, UINT nStyle) {
    if (pane(nIndex) == nullptr || pane(nIndex)->nStyle == nStyle) return;
    SetPaneInfo(nIndex, pane(nIndex)->nID, nStyle, pane(nIndex)->cxWidth);
    tell_changed(nIndex, EVENT_OBJECT_STATECHANGE);
}

void CMFCStatusBar::GetPaneInfo(int nIndex, UINT& nID, UINT& nStyle, int& cxWidth) const {
    nID = GetItemID(nIndex);
    nStyle = GetPaneStyle(nIndex);
    cxWidth = GetPaneWidth(nIndex);
}

void CMFCStatusBar::SetPaneInfo(int nIndex, UINT nID, UINT nStyle, int cxWidth) {
    CMFCStatusBarPaneInfo* const changed = pane(nIndex);
    if (changed == nullptr) return;
    const bool moves = changed->cxWidth != cxWidth || ((changed->nStyle ^ nStyle) & SBPS_STRETCH) != 0;
    changed->nID = nID;
    changed->nStyle = nStyle;
    changed->cxWidth = std::max(cxWidth, 0);
    if (moves)
        RecalcLayout();
    else if (m_hWnd != nullptr)
        InvalidateRect(changed->rect, FALSE);
}

int CMFCStatusBar::GetPaneWidth(int nIndex) const {
    return pane(nIndex) != nullptr ? pane(nIndex)->cxWidth : 0;
}

void CMFCStatusBar::SetPaneWidth(int nIndex, int cx) {
    SetPaneInfo(nIndex, GetItemID(nIndex), GetPaneStyle(nIndex), cx);
}

// Texts.

CString CMFCStatusBar::GetPaneText(int nIndex) const {
    return pane(nIndex) != nullptr ? pane(nIndex)->strText : CString();
}

BOOL CMFCStatusBar::SetPaneText(int nIndex, LPCTSTR lpszNewText, BOOL bUpdate) {
    CMFCStatusBarPaneInfo* const changed = pane(nIndex);
    if (changed == nullptr) return FALSE;
    const CString text(lpszNewText);
    if (changed->strText == text && !changed->isChanged) return TRUE;
    changed->strText = text;
    changed->isChanged = true;
    if (bUpdate) InvalidatePaneContent(nIndex);
    tell_changed(nIndex, EVENT_OBJECT_NAMECHANGE);
    return TRUE;
}

CString CMFCStatusBar::GetTipText(int nIndex) const {
    return pane(nIndex) != nullptr ? pane(nIndex)->strTip : CString();
}

void CMFCStatusBar::SetTipText(int nIndex, LPCTSTR pszTipText) {
    if (pane(nIndex) != nullptr) pane(nIndex)->strTip = pszTipText;
}

LRESULT CMFCStatusBar::OnSetText(WPARAM, LPARAM lParam) {
    // Without panes the window has its text.
    if (m_panes.empty()) return Default();
    return SetPaneText(0, reinterpret_cast<LPCTSTR>(lParam));
}

LRESULT CMFCStatusBar::OnGetText(WPARAM wParam, LPARAM lParam) {
    if (m_panes.empty()) return Default();
    if (wParam == 0 || lParam == 0) return 0;
    auto* const buffer = reinterpret_cast<LPTSTR>(lParam);
    ::lstrcpynW(buffer, m_panes.front().strText, static_cast<int>(std::min<WPARAM>(wParam, 0x7FFFFFFF)));
    return ::lstrlenW(buffer);
}

LRESULT CMFCStatusBar::OnGetTextLength(WPARAM, LPARAM) {
    return m_panes.empty() ? Default() : m_panes.front().strText.GetLength();
}

// Colours and pictures.

void CMFCStatusBar::InvalidatePaneContent(int nIndex) {
    CMFCStatusBarPaneInfo* const shown = pane(nIndex);
    if (shown == nullptr || m_hWnd == nullptr) return;
    shown->isChanged = false;
    RedrawWindow(shown->rect, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

void CMFCStatusBar::SetPaneTextColor(int nIndex, COLORREF clrText, BOOL bUpdate) {
    if (pane(nIndex) == nullptr) return;
    pane(nIndex)->clrText = clrText;
    if (bUpdate) InvalidatePaneContent(nIndex);
}

void CMFCStatusBar::SetPaneBackgroundColor(int nIndex, COLORREF clrBackground, BOOL bUpdate) {
    if (pane(nIndex) == nullptr) return;
    pane(nIndex)->clrBackground = clrBackground;
    if (bUpdate) InvalidatePaneContent(nIndex);
}

void CMFCStatusBar::set_pictures(int index, std::vector<std::shared_ptr<const kmfc::PicturePixels>> pictures,
                                 bool update) {
    CMFCStatusBarPaneInfo& changed = *pane(index);
    std::erase_if(pictures, [](const auto& picture) { return picture->pixels.empty(); });
    const auto width = [](const auto& all) { return all.empty() ? 0 : all.front()->size.cx; };
    const bool moves =
        changed.pictures.empty() != pictures.empty() || width(changed.pictures) != width(pictures);
    changed.pictures = std::move(pictures);
    changed.picture = 0;
    if (m_hWnd == nullptr) return;
    KillTimer(timer_of(index));
    if (moves) RecalcLayout();
    if (update) InvalidatePaneContent(index);
}

void CMFCStatusBar::SetPaneIcon(int nIndex, HICON hIcon, BOOL bUpdate) {
    if (pane(nIndex) == nullptr) return;
    set_pictures(nIndex, {std::make_shared<kmfc::PicturePixels>(kmfc::pixels_of(hIcon))}, bUpdate != FALSE);
}

void CMFCStatusBar::SetPaneIcon(int nIndex, HBITMAP hBmp, COLORREF clrTransparent, BOOL bUpdate) {
    if (pane(nIndex) == nullptr) return;
    set_pictures(nIndex, {std::make_shared<kmfc::PicturePixels>(kmfc::pixels_of(hBmp, clrTransparent))},
                 bUpdate != FALSE);
}

void CMFCStatusBar::SetPaneAnimation(int nIndex, HIMAGELIST hImageList, UINT nFrameRate, BOOL bUpdate) {
    if (pane(nIndex) == nullptr) return;
    std::vector<std::shared_ptr<const kmfc::PicturePixels>> pictures;
    const int count = hImageList != nullptr ? ::ImageList_GetImageCount(hImageList) : 0;
    for (int i = 0; i < count; ++i) {
        HICON const icon = ::ImageList_GetIcon(hImageList, i, ILD_TRANSPARENT);
        pictures.push_back(std::make_shared<kmfc::PicturePixels>(kmfc::pixels_of(icon)));
        ::DestroyIcon(icon);
    }
    set_pictures(nIndex, std::move(pictures), bUpdate != FALSE);
    if (pane(nIndex)->pictures.size() > 1 && m_hWnd != nullptr) SetTimer(timer_of(nIndex), nFrameRate);
}

void CMFCStatusBar::OnTimer(UINT_PTR nIDEvent) {
    const int index = static_cast<int>(nIDEvent) - 1;
    CMFCStatusBarPaneInfo* const shown = pane(index);
    if (shown == nullptr || shown->pictures.empty()) return CPane::OnTimer(nIDEvent);
    shown->picture = (shown->picture + 1) % shown->pictures.size();
    InvalidatePaneContent(index);
}

// Progress.

void CMFCStatusBar::EnablePaneProgressBar(int nIndex, long nTotal, BOOL bDisplayText, COLORREF clrBar,
                                          COLORREF clrBarDest, COLORREF clrProgressText) {
    CMFCStatusBarPaneInfo* const changed = pane(nIndex);
    if (changed == nullptr) return;
    changed->nProgressTotal = std::max(nTotal, -1L);
    changed->nProgressCurr = 0;
    changed->bProgressText = bDisplayText;
    changed->clrProgressBar = clrBar;
    changed->clrProgressBarDest = clrBarDest;
    changed->clrProgressText = clrProgressText;
    InvalidatePaneContent(nIndex);
}

void CMFCStatusBar::SetPaneProgress(int nIndex, long nCurr, BOOL bUpdate) {
    CMFCStatusBarPaneInfo* const changed = pane(nIndex);
    if (changed == nullptr || changed->nProgressTotal < 1) return;
    changed->nProgressCurr = std::clamp(nCurr, 0L, changed->nProgressTotal);
    if (bUpdate) InvalidatePaneContent(nIndex);
    tell_changed(nIndex, EVENT_OBJECT_VALUECHANGE);
}

long CMFCStatusBar::GetPaneProgress(int nIndex) const {
    const CMFCStatusBarPaneInfo* const shown = pane(nIndex);
    return shown != nullptr && shown->nProgressTotal > 0 ? shown->nProgressCurr : -1;
}
