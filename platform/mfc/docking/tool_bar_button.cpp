#include <kmfc/tool_bar_button.h>

#include <kmfc/global_data.h>
#include <kmfc/tool_bar_images.h>
#include <kmfc/visual_manager.h>

IMPLEMENT_DYNCREATE(CMFCToolBarButton, CObject)

namespace {

constexpr int kTextMargin = 4;  // pixels at 96 dots an inch, beside a text and between it and the picture

CSize extent_of(CDC& dc, const CString& text) {
    CFont* const former = dc.SelectObject(&afxGlobalData.fontRegular);
    CRect rect(0, 0, 0, 0);
    dc.DrawText(text, &rect, DT_SINGLELINE | DT_CALCRECT);
    dc.SelectObject(former);
    return rect.Size();
}

}  // namespace

CMFCToolBarButton::CMFCToolBarButton() = default;

CMFCToolBarButton::CMFCToolBarButton(UINT uiID, int iImage, LPCTSTR lpszText)
    : m_nID(uiID), m_strText(lpszText != nullptr ? lpszText : L"") {
    SetImage(iImage);
    m_bText = !m_bImage;
    if (uiID == 0) m_nStyle = TBBS_SEPARATOR;
}

void CMFCToolBarButton::SetImage(int iImage) {
    m_iImage = iImage;
    m_bImage = iImage >= 0;
}

SIZE CMFCToolBarButton::OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) {
    if (!m_bText || m_strText.IsEmpty() || (m_bImage && !bHorz)) return sizeDefault;
    const CSize text = extent_of(*pDC, m_strText);
    const int margin = afxGlobalData.scaled(kTextMargin);
    const int beside = m_bImage ? sizeDefault.cx : margin;
    return CSize(std::max<int>(beside + text.cx + margin, sizeDefault.cx),
                 std::max<int>(sizeDefault.cy, text.cy + margin));
}

void CMFCToolBarButton::OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages* pImages, BOOL bHorz,
                               BOOL bHighlight, const CSize& sizeImage) {
    CMFCVisualManager* const look = CMFCVisualManager::GetInstance();
    CMFCVisualManager::AFX_BUTTON_STATE state = CMFCVisualManager::ButtonsIsRegular;
    if (IsEnabled() && IsPressed())
        state = CMFCVisualManager::ButtonsIsPressed;
    else if (bHighlight)
        state = CMFCVisualManager::ButtonsIsHighlighted;
    look->OnFillButtonInterior(pDC, this, rect, state);
    look->OnDrawButtonBorder(pDC, this, rect, state);

    const bool hasText = m_bText && !m_strText.IsEmpty() && !(m_bImage && !bHorz);
    const int margin = afxGlobalData.scaled(kTextMargin);
    CRect text(rect);
    if (m_bImage && pImages != nullptr) {
        const CSize size = sizeImage == CSize(0, 0) ? pImages->GetImageSize() : sizeImage;
        const int edge = (rect.Height() - size.cy) / 2;
        const int x = rect.left + (hasText ? edge : (rect.Width() - size.cx) / 2);
        CAfxDrawState drawing;
        if (pImages->PrepareDrawImage(drawing, size)) {
            pImages->Draw(pDC, x, rect.top + edge, m_iImage, !IsEnabled());
            pImages->EndDrawImage(drawing);
        }
        text.left = x + size.cx + margin / 2;
    }
    if (!hasText) return;
    CFont* const former = pDC->SelectObject(&afxGlobalData.fontRegular);
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(look->GetToolbarButtonTextColor(this, state));
    pDC->DrawText(m_strText, &text, DT_SINGLELINE | DT_VCENTER | (m_bImage ? DT_LEFT : DT_CENTER));
    pDC->SelectObject(former);
}
