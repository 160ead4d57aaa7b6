// CMFCStatusBar: painting.
#include <kmfc/mem_dc.h>
#include <kmfc/status_bar_ex.h>
#include <kmfc/visual_manager.h>

#include "look.h"
#include "picture_drawing.h"
#include "status_bar_sizes.h"

void CMFCStatusBar::OnPaint() {
    CPaintDC dc(this);
    CMemDC memory(dc, this);
    DoPaint(&memory.GetDC());
}

void CMFCStatusBar::DoPaint(CDC* pDC) {
    CPane::DoPaint(pDC);
    CFont* const former = pDC->SelectObject(&afxGlobalData.fontTooltip);
    const int mode = pDC->SetBkMode(TRANSPARENT);
    for (CMFCStatusBarPaneInfo& each : m_panes)
        if (!each.rect.IsRectEmpty()) OnDrawPane(pDC, &each);
    pDC->SetBkMode(mode);
    pDC->SelectObject(former);
    const CRect corner = grip();
    if (!corner.IsRectEmpty()) CMFCVisualManager::GetInstance()->OnDrawStatusBarSizeBox(pDC, this, corner);
}

void CMFCStatusBar::OnDrawPane(CDC* pDC, CMFCStatusBarPaneInfo* pPane) {
    CMFCVisualManager& look = *CMFCVisualManager::GetInstance();
    if ((pPane->nStyle & SBPS_NOBORDERS) == 0)
        look.OnDrawStatusBarPaneBorder(pDC, this, pPane->rect, pPane->nID, pPane->nStyle);
    if (pPane->clrBackground != CMFCStatusBarPaneInfo::kUsual) {
        CRect inside(pPane->rect);
        inside.DeflateRect(1, 1);
        pDC->FillSolidRect(inside, pPane->clrBackground);
    }
    CRect rest(pPane->rect);
    rest.DeflateRect(afxGlobalData.scaled(kmfc::kStatusMargin), afxGlobalData.scaled(kmfc::kStatusInside));
    draw_pictures(*pDC, *pPane, rest);
    if (pPane->nProgressTotal > 0) {
        look.OnDrawStatusBarProgress(pDC, this, rest, static_cast<int>(pPane->nProgressTotal),
                                     static_cast<int>(pPane->nProgressCurr), pPane->clrProgressBar,
                                     pPane->clrProgressBarDest, pPane->clrProgressText, pPane->bProgressText);
        return;
    }
    const COLORREF before = pDC->SetTextColor(look.GetStatusBarPaneTextColor(this, pPane));
    pDC->DrawText(pPane->strText, rest, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
    pDC->SetTextColor(before);
}

void CMFCStatusBar::draw_pictures(CDC& dc, const CMFCStatusBarPaneInfo& shown, CRect& rest) const {
    if (shown.pictures.empty()) return;
    const kmfc::PicturePixels& source = *shown.pictures[shown.picture];
    const CSize size = kmfc::shown_size(source, shown.rect.Height());
    kmfc::PicturePixels picture = kmfc::resized(source, size);
    if (kmfc::is_dark(kmfc::present_look().bar) && shown.clrBackground == CMFCStatusBarPaneInfo::kUsual)
        picture = kmfc::look_on_dark(std::move(picture));
    if ((shown.nStyle & SBPS_DISABLED) != 0) picture = kmfc::disabled_look(std::move(picture));
    kmfc::draw_picture(dc, CPoint(rest.left, rest.top + (rest.Height() - size.cy) / 2), picture);
    rest.left += size.cx + afxGlobalData.scaled(kmfc::kStatusPictureGap);
}
