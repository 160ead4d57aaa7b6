// CMFCVisualManager: toolbars.
#include <kmfc/global_data.h>
#include <kmfc/tool_bar_button.h>
#include <kmfc/visual_manager.h>

#include "look.h"

using kmfc::present_look;

namespace {

constexpr int kDot = 2, kDotStep = 4;  // pixels of the gripper at 96 dots an inch
constexpr int kSeparatorEnds = 3;      // pixels that a separator leaves free at each end

bool is_marked(const CMFCToolBarButton& button, CMFCVisualManager::AFX_BUTTON_STATE state) {
    return state != CMFCVisualManager::ButtonsIsRegular || button.IsChecked();
}

}  // namespace

void CMFCVisualManager::OnDrawBarGripper(CDC* pDC, CRect rectGripper, BOOL bHorz, CBasePane*) {
    const COLORREF color = present_look().border;
    const int dot = afxGlobalData.scaled(kDot), step = afxGlobalData.scaled(kDotStep);
    const CPoint middle = rectGripper.CenterPoint();
    const int length = bHorz ? rectGripper.Height() : rectGripper.Width();
    const int count = std::max(0, (length - step) / step);
    const int begin = (length - (count - 1) * step - dot) / 2;
    for (int i = 0; i < count; ++i) {
        const int along = begin + i * step;
        if (bHorz)
            pDC->FillSolidRect(middle.x - dot / 2, rectGripper.top + along, dot, dot, color);
        else
            pDC->FillSolidRect(rectGripper.left + along, middle.y - dot / 2, dot, dot, color);
    }
}

void CMFCVisualManager::OnDrawSeparator(CDC* pDC, CBasePane*, CRect rect, BOOL bIsHoriz) {
    const COLORREF color = present_look().border;
    const int ends = afxGlobalData.scaled(kSeparatorEnds), line = std::max(1, afxGlobalData.scaled(1));
    const CPoint middle = rect.CenterPoint();
    if (bIsHoriz)
        pDC->FillSolidRect(middle.x, rect.top + ends, line, rect.Height() - 2 * ends, color);
    else
        pDC->FillSolidRect(rect.left + ends, middle.y, rect.Width() - 2 * ends, line, color);
}

void CMFCVisualManager::OnFillButtonInterior(CDC* pDC, CMFCToolBarButton* pButton, CRect rect,
                                             AFX_BUTTON_STATE state) {
    if (!is_marked(*pButton, state)) return;
    const kmfc::LookColors look = present_look();
    const bool deep = state == ButtonsIsPressed || (state == ButtonsIsHighlighted && pButton->IsChecked());
    pDC->FillSolidRect(rect, deep ? look.pressedFill : look.hotFill);
}

void CMFCVisualManager::OnDrawButtonBorder(CDC* pDC, CMFCToolBarButton* pButton, CRect rect,
                                           AFX_BUTTON_STATE state) {
    if (!is_marked(*pButton, state)) return;
    const COLORREF border = pButton->IsEnabled() ? present_look().activeFill : present_look().border;
    pDC->Draw3dRect(rect, border, border);
}

COLORREF CMFCVisualManager::GetToolbarButtonTextColor(CMFCToolBarButton* pButton, AFX_BUTTON_STATE state) {
    const kmfc::LookColors look = present_look();
    if (!pButton->IsEnabled()) return look.disabledText;
    if (state == ButtonsIsPressed) return look.pressedText;
    return is_marked(*pButton, state) ? look.hotText : look.tabText;
}
