#include <kmfc/auto_hide_bar.h>
#include <kmfc/global_data.h>
#include <kmfc/visual_manager.h>
#include <kmfc/window_dc.h>

namespace {

constexpr int kPadding = 6;  // pixels at 96 dots an inch, before and after the name
constexpr int kAround = 3;   // above and below it
constexpr int kEdge = 4;     // the coloured edge at the frame's side

}  // namespace

IMPLEMENT_DYNCREATE(CMFCAutoHideButton, CObject)

BOOL CMFCAutoHideButton::Create(CMFCAutoHideBar* pParentBar, CDockablePane* pAutoHideWnd, DWORD dwAlignment) {
    m_pParentBar = pParentBar;
    m_pAutoHideWindow = pAutoHideWnd;
    m_dwAlignment = dwAlignment;
    return TRUE;
}

CSize CMFCAutoHideButton::GetTextSize() const {
    CString name;
    m_pAutoHideWindow->GetWindowText(name);
    CClientDC dc(m_pParentBar);
    CFont* const former = dc.SelectObject(&afxGlobalData.fontRegular);
    const CSize size = dc.GetTextExtent(name);
    dc.SelectObject(former);
    return size;
}

CSize CMFCAutoHideButton::GetSize() const {
    const CSize text = GetTextSize();
    const int along = text.cx + 2 * afxGlobalData.scaled(kPadding);
    const int across =
        afxGlobalData.GetTextHeight() + 2 * afxGlobalData.scaled(kAround) + afxGlobalData.scaled(kEdge);
    return IsHorizontal() ? CSize(along, across) : CSize(across, along);
}

void CMFCAutoHideButton::Move(int nOffset) {
    m_rect = CRect(IsHorizontal() ? CPoint(nOffset, 0) : CPoint(0, nOffset), GetSize());
}

BOOL CMFCAutoHideButton::IsActive() const {
    const CDockablePane* const out = m_pParentBar->slid_out();
    return out != nullptr &&
           (out == m_pAutoHideWindow || ::IsChild(out->m_hWnd, m_pAutoHideWindow->m_hWnd)) &&
           m_pAutoHideWindow->IsPaneVisible();
}

void CMFCAutoHideButton::ShowAttachedWindow(BOOL bShow) {
    m_pParentBar->ShowAutoHideWindow(m_pAutoHideWindow, bShow, TRUE);
}

void CMFCAutoHideButton::UnSetAutoHideMode(CDockablePane* pFirstBarInGroup) {
    (pFirstBarInGroup != nullptr ? pFirstBarInGroup : m_pAutoHideWindow)
        ->SetAutoHideMode(FALSE, GetAlignment(), m_pParentBar, FALSE);
}

void CMFCAutoHideButton::OnDraw(CDC* pDC) {
    CMFCVisualManager* const look = CMFCVisualManager::GetInstance();
    look->OnFillAutoHideButtonBackground(pDC, m_rect, this);
    const int edge = afxGlobalData.scaled(kEdge);
    CRect border(0, 0, 0, 0);
    switch (GetAlignment()) {
        case CBRS_ALIGN_LEFT: border.left = edge; break;
        case CBRS_ALIGN_RIGHT: border.right = edge; break;
        case CBRS_ALIGN_TOP: border.top = edge; break;
        default: border.bottom = edge; break;
    }
    look->OnDrawAutoHideButtonBorder(pDC, m_rect, border, this);
    CRect text = m_rect;
    text.DeflateRect(border);
    CString name;
    m_pAutoHideWindow->GetWindowText(name);
    const CSize size = GetTextSize();
    CFont* const former =
        pDC->SelectObject(IsHorizontal() ? &afxGlobalData.fontRegular : &afxGlobalData.fontVert);
    const COLORREF formerColor = pDC->SetTextColor(look->GetAutoHideButtonTextColor(this));
    const int formerMode = pDC->SetBkMode(TRANSPARENT);
    // A text that runs downward begins at its upper right corner.
    const CPoint at =
        IsHorizontal()
            ? CPoint(text.left + (text.Width() - size.cx) / 2, text.top + (text.Height() - size.cy) / 2)
            : CPoint(text.left + (text.Width() + size.cy) / 2, text.top + (text.Height() - size.cx) / 2);
    ::ExtTextOutW(*pDC, at.x, at.y, ETO_CLIPPED, &m_rect, name, static_cast<UINT>(name.GetLength()), nullptr);
    pDC->SetBkMode(formerMode);
    pDC->SetTextColor(formerColor);
    pDC->SelectObject(former);
}
