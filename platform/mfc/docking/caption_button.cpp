#include <kmfc/caption_button.h>

#include <kmfc/global_data.h>
#include <kmfc/visual_manager.h>

IMPLEMENT_DYNCREATE(CMFCCaptionButton, CObject)

int CMFCCaptionButton::m_nButtonMarginHorz = 3;
int CMFCCaptionButton::m_nButtonMarginVert = 3;

CMFCCaptionButton::CMFCCaptionButton() = default;
CMFCCaptionButton::CMFCCaptionButton(UINT nHit, BOOL bLeftAlign) : m_bLeftAlign(bLeftAlign), m_nHit(nHit) {}

CMenuImages::IMAGES_IDS CMFCCaptionButton::GetIconID(BOOL bHorz, BOOL bMaximized) const {
    switch (m_nHit) {
        case AFX_HTLEFTBUTTON: return bHorz ? CMenuImages::IdArrowLeftLarge : CMenuImages::IdArrowUpLarge;
        case AFX_HTRIGHTBUTTON: return bHorz ? CMenuImages::IdArrowRightLarge : CMenuImages::IdArrowDownLarge;
        case AFX_HTMENU: return CMenuImages::IdArrowDown;
        case HTMAXBUTTON: return bMaximized ? CMenuImages::IdPinHorz : CMenuImages::IdPinVert;
        default: return CMenuImages::IdClose;
    }
}

CSize CMFCCaptionButton::GetSize() {
    const CSize sign = CMenuImages::Size();
    const CSize border = CMFCVisualManager::GetInstance()->GetCaptionButtonExtraBorder();
    return CSize(sign.cx + 2 * m_nButtonMarginHorz + border.cx,
                 sign.cy + 2 * m_nButtonMarginVert + border.cy);
}

CRect CMFCCaptionButton::GetRect() const { return CRect(m_ptLocation, m_bHidden ? CSize(0, 0) : GetSize()); }

void CMFCCaptionButton::Move(const CPoint& ptTo, BOOL bHide) {
    m_ptLocation = ptTo;
    m_bHidden = bHide;
}

void CMFCCaptionButton::OnDraw(CDC* pDC, BOOL bActive, BOOL bHorz, BOOL bMaximized, BOOL bDisabled) {
    if (m_bHidden) return;
    CMFCVisualManager::GetInstance()->OnDrawCaptionButton(pDC, this, bActive, bHorz, bMaximized,
                                                          bDisabled || !m_bEnabled);
}
