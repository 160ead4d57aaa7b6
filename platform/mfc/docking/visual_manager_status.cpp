// CMFCVisualManager: status bars.
#include <kmfc/global_data.h>
#include <kmfc/status_bar_ex.h>
#include <kmfc/visual_manager.h>

#include "core/status_panes.h"
#include "look.h"

using kmfc::present_look;

namespace {

constexpr COLORREF kUsual = CMFCStatusBarPaneInfo::kUsual;
constexpr int kLineEnds = 3;        // pixels that a line before a pane leaves free at each end
constexpr int kDot = 2, kStep = 4;  // of the corner that sizes the frame, pixels at 96 dots an inch
constexpr int kCornerDots = 3;      // along each side of it

/// From the left to the right.
void fill_running(CDC& dc, const CRect& rect, COLORREF from, COLORREF to) {
    if (to == kUsual || to == from) {
        dc.FillSolidRect(rect, from);
        return;
    }
    const auto corner = [](LONG x, LONG y, COLORREF color) {
        const auto channel = [](BYTE value) { return static_cast<COLOR16>(value << 8); };
        return TRIVERTEX{
            x, y, channel(GetRValue(color)), channel(GetGValue(color)), channel(GetBValue(color)), 0};
    };
    TRIVERTEX corners[] = {corner(rect.left, rect.top, from), corner(rect.right, rect.bottom, to)};
    GRADIENT_RECT all = {0, 1};
    ::GradientFill(dc, corners, 2, &all, 1, GRADIENT_FILL_RECT_H);
}

}  // namespace

void CMFCVisualManager::OnDrawStatusBarPaneBorder(CDC* pDC, CMFCStatusBar*, CRect rectPane, UINT,
                                                  UINT nStyle) {
    const kmfc::LookColors look = present_look();
    if ((nStyle & SBPS_POPOUT) != 0) {
        pDC->FillSolidRect(rectPane, look.hotFill);
        pDC->Draw3dRect(rectPane, look.activeFill, look.activeFill);
        return;
    }
    const int ends = afxGlobalData.scaled(kLineEnds), line = std::max(1, afxGlobalData.scaled(1));
    pDC->FillSolidRect(rectPane.left, rectPane.top + ends, line, rectPane.Height() - 2 * ends, look.border);
}

void CMFCVisualManager::OnDrawStatusBarProgress(CDC* pDC, CMFCStatusBar*, CRect rectProgress,
                                                int nProgressTotal, int nProgressCurr, COLORREF clrBar,
                                                COLORREF clrProgressBarDest, COLORREF clrProgressText,
                                                BOOL bProgressText) {
    if (nProgressTotal < 1 || rectProgress.IsRectEmpty()) return;
    const kmfc::LookColors look = present_look();
    CRect inside(rectProgress);
    pDC->Draw3dRect(rectProgress, look.border, look.border);
    inside.DeflateRect(1, 1);
    CRect done(inside), open(inside);
    done.right = open.left = inside.left + kmfc::filled_part(nProgressCurr, nProgressTotal, inside.Width());
    // The colours run over all of the bar, of which a part shows.
    const int before = pDC->SaveDC();
    pDC->IntersectClipRect(&done);
    fill_running(*pDC, inside, clrBar == kUsual ? look.activeFill : clrBar, clrProgressBarDest);
    pDC->RestoreDC(before);
    if (!bProgressText) return;
    CString text;
    text.Format(L"%d%%", kmfc::percent_of(nProgressCurr, nProgressTotal));
    const auto write = [&](const CRect& part, COLORREF usual) {
        const int state = pDC->SaveDC();
        pDC->IntersectClipRect(&part);
        pDC->SetBkMode(TRANSPARENT);
        pDC->SetTextColor(clrProgressText == kUsual ? usual : clrProgressText);
        pDC->DrawText(text, inside, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        pDC->RestoreDC(state);
    };
    write(done, clrBar == kUsual        ? look.activeText
                : kmfc::is_dark(clrBar) ? RGB(255, 255, 255)
                                        : RGB(0, 0, 0));
    write(open, look.tabText);
}

void CMFCVisualManager::OnDrawStatusBarSizeBox(CDC* pDC, CMFCStatusBar*, CRect rectSizeBox) {
    const COLORREF color = present_look().border;
    const int dot = afxGlobalData.scaled(kDot), step = afxGlobalData.scaled(kStep);
    for (int row = 0; row < kCornerDots; ++row)
        for (int column = 0; column <= row; ++column)
            pDC->FillSolidRect(rectSizeBox.right - (column + 1) * step,
                               rectSizeBox.bottom - (kCornerDots - row) * step, dot, dot, color);
}

COLORREF CMFCVisualManager::GetStatusBarPaneTextColor(CMFCStatusBar*, CMFCStatusBarPaneInfo* pPane) {
    if (pPane->clrText != kUsual) return pPane->clrText;
    const kmfc::LookColors look = present_look();
    if ((pPane->nStyle & SBPS_DISABLED) != 0) return look.disabledText;
    if ((pPane->nStyle & SBPS_POPOUT) != 0) return look.hotText;
    return look.tabText;
}
