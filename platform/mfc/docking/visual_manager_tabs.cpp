// How tabs are painted.
#include <kmfc/global_data.h>
#include <kmfc/menu_images.h>
#include <kmfc/tab_window.h>
#include <kmfc/visual_manager.h>

#include <algorithm>

#include "look.h"

using kmfc::present_look;

namespace {

constexpr COLORREF kNone = static_cast<COLORREF>(-1);
constexpr int kAccent = 2;  // pixels at 96 dots an inch, of the line along the active tab

int scaled(int pixels) { return afxGlobalData.scaled(pixels); }

/// The outline of a tab that stands up; turned over for tabs at the bottom. Slanted ones begin at their foot.
struct Outline {
    Outline(const CRect& rect, bool slanted, bool bottom) {
        const LONG foot = bottom ? rect.top : rect.bottom - 1, head = bottom ? rect.bottom - 1 : rect.top;
        const int slant = slanted ? rect.Height() / 2 : 0;
        points[0] = CPoint(rect.left, foot);
        points[1] = CPoint(rect.left + slant, head);
        points[2] = CPoint(rect.right - 1, head);
        points[3] = CPoint(rect.right - 1, foot);
    }
    CPoint points[4];
};

void fill_outline(CDC& dc, Outline outline, CBrush& fill) {
    // Without a pen the fill ends before its right and its lower edge.
    const LONG lowest = std::max(outline.points[0].y, outline.points[1].y);
    for (CPoint& point : outline.points) point.y += point.y == lowest ? 1 : 0;
    ++outline.points[2].x, ++outline.points[3].x;
    CPen edge(PS_NULL, 0, RGB(0, 0, 0));
    CPen* const formerPen = dc.SelectObject(&edge);
    CBrush* const formerBrush = dc.SelectObject(&fill);
    dc.Polygon(outline.points, 4);
    dc.SelectObject(formerBrush);
    dc.SelectObject(formerPen);
}

void draw_outline(CDC& dc, const Outline& outline, COLORREF color) {
    CPen edge(PS_SOLID, 1, color);
    CPen* const former = dc.SelectObject(&edge);
    dc.Polyline(outline.points, 4);
    dc.SetPixel(outline.points[3], color);  // a line leaves its last point out
    dc.SelectObject(former);
}

/// The line along the outer edge of the active tab.
void draw_accent(CDC& dc, CRect rect, bool bottom, bool slanted, COLORREF color) {
    if (slanted) rect.left += rect.Height() / 2;
    const int thick = scaled(kAccent);
    if (bottom)
        rect.top = rect.bottom - thick;
    else
        rect.bottom = rect.top + thick;
    dc.FillSolidRect(rect, color);
}

void draw_icon(CDC& dc, const CMFCBaseTabCtrl& tabs, int index, CRect& content) {
    const CMFCTabInfo& shown = *tabs.tab(index);
    CSize size = tabs.GetImageSize();
    if (shown.m_hIcon != nullptr) {
        size = afxGlobalData.m_sizeSmallIcon;
        const int top = content.top + (content.Height() - size.cy) / 2;
        ::DrawIconEx(dc, content.left, top, shown.m_hIcon, size.cx, size.cy, 0, nullptr, DI_NORMAL);
    } else {
        const int top = content.top + (content.Height() - size.cy) / 2;
        ::ImageList_Draw(tabs.GetImageList()->GetSafeHandle(), static_cast<int>(shown.m_uiIcon), dc,
                         content.left, top, ILD_TRANSPARENT);
    }
    content.left += size.cx + scaled(4);
}

void draw_label(CDC& dc, const CMFCBaseTabCtrl& tabs, int index, CRect content, COLORREF color, bool bold) {
    if (content.Width() <= 0) return;  // the icon takes it all
    CFont* const former = dc.SelectObject(bold ? &afxGlobalData.fontBold : &afxGlobalData.fontRegular);
    const COLORREF formerColor = dc.SetTextColor(color);
    const int formerMode = dc.SetBkMode(TRANSPARENT);
    dc.DrawText(tabs.tab(index)->m_strText, &content,
                DT_SINGLELINE | DT_VCENTER | DT_CENTER | DT_END_ELLIPSIS |
                    (tabs.IsDrawNoPrefix() ? DT_NOPREFIX : 0U));
    dc.SetBkMode(formerMode);
    dc.SetTextColor(formerColor);
    dc.SelectObject(former);
}

COLORREF fill_of(const CMFCBaseTabCtrl& tabs, int index, bool active, const kmfc::LookColors& look) {
    if (active && tabs.GetActiveTabColor() != afxGlobalData.clrWindow) return tabs.GetActiveTabColor();
    const COLORREF own = tabs.GetTabBkColor(index);
    if (own != kNone && !afxGlobalData.IsHighContrastMode()) return own;
    if (active) return look.activeTabFill;
    return tabs.GetHighlightedTab() == index ? look.hotFill : look.bar;
}

void draw_close_sign(CDC& dc, CMFCVisualManager& look, const CMFCBaseTabCtrl& tabs) {
    const CRect sign = tabs.GetTabCloseButton();
    if (sign.IsRectEmpty()) return;
    const bool hot = tabs.IsTabCloseButtonHighlighted() != FALSE;
    look.draw_flat_button(&dc, sign, CMenuImages::IdCloseSmall, hot, hot && tabs.IsTabCloseButtonPressed(),
                          true);
}

}  // namespace

void CMFCVisualManager::OnDrawTab(CDC* pDC, CRect rectTab, int iTab, BOOL bIsActive,
                                  const CMFCBaseTabCtrl* pTabWnd) {
    const kmfc::LookColors look = present_look();
    const CMFCBaseTabCtrl& tabs = *pTabWnd;
    const bool bottom = tabs.GetLocation() == CMFCBaseTabCtrl::LOCATION_BOTTOM;
    const bool slanted = tabs.IsOneNoteStyle() != FALSE;
    CBrush fill(fill_of(tabs, iTab, bIsActive != FALSE, look));
    OnFillTab(pDC, rectTab, &fill, iTab, bIsActive, pTabWnd);
    if (bIsActive && !tabs.IsFlatTab()) {
        draw_outline(*pDC, Outline(rectTab, slanted, bottom), look.border);
    }
    if (bIsActive) draw_accent(*pDC, rectTab, bottom, slanted, look.activeFill);
    CRect content = rectTab;
    content.DeflateRect(scaled(8), 0);
    if (slanted) content.left += rectTab.Height() / 3;
    if (bIsActive && !tabs.GetTabCloseButton().IsRectEmpty()) content.right = tabs.GetTabCloseButton().left;
    const int saved = pDC->SaveDC();
    pDC->IntersectClipRect(rectTab);
    if (tabs.HasImage(iTab)) draw_icon(*pDC, tabs, iTab, content);
    pDC->RestoreDC(saved);
    const auto* const window = DYNAMIC_DOWNCAST(CMFCTabCtrl, const_cast<CMFCBaseTabCtrl*>(pTabWnd));
    const bool bold = bIsActive && window != nullptr && window->IsActiveTabBoldFont();
    if (!tabs.IsTabIconOnly(iTab))
        draw_label(*pDC, tabs, iTab, content, GetTabTextColor(pTabWnd, iTab, bIsActive), bold);
    if (bIsActive) draw_close_sign(*pDC, *this, tabs);
    if (bIsActive && tabs.m_hWnd != nullptr && ::GetFocus() == tabs.m_hWnd) {
        content.InflateRect(scaled(3), -scaled(3));
        pDC->DrawFocusRect(content);
    }
}

void CMFCVisualManager::OnFillTab(CDC* pDC, CRect rectFill, CBrush* pbrFill, int, BOOL,
                                  const CMFCBaseTabCtrl* pTabWnd) {
    if (pTabWnd != nullptr && pTabWnd->IsOneNoteStyle())
        fill_outline(*pDC,
                     Outline(rectFill, true, pTabWnd->GetLocation() == CMFCBaseTabCtrl::LOCATION_BOTTOM),
                     *pbrFill);
    else
        pDC->FillRect(rectFill, pbrFill);
}

void CMFCVisualManager::OnEraseTabsArea(CDC* pDC, CRect rect, const CMFCBaseTabCtrl*) {
    pDC->FillSolidRect(rect, present_look().bar);
}

BOOL CMFCVisualManager::OnEraseTabsFrame(CDC*, CRect, const CMFCBaseTabCtrl*) { return FALSE; }

COLORREF CMFCVisualManager::GetTabTextColor(const CMFCBaseTabCtrl* pTabWnd, int iTab, BOOL bIsActive) {
    const kmfc::LookColors look = present_look();
    if (pTabWnd != nullptr) {
        const COLORREF own = pTabWnd->GetTabTextColor(iTab);
        if (own != kNone && !afxGlobalData.IsHighContrastMode()) return own;
        if (bIsActive && pTabWnd->GetActiveTabTextColor() != afxGlobalData.clrWindowText)
            return pTabWnd->GetActiveTabTextColor();
        const COLORREF fill = fill_of(*pTabWnd, iTab, bIsActive != FALSE, look);
        const COLORREF usual = bIsActive ? look.activeTabText : look.tabText;
        if (kmfc::contrast(fill, usual) >= 3) return usual;
        return kmfc::is_dark(fill) ? RGB(255, 255, 255) : RGB(0, 0, 0);
    }
    return bIsActive ? look.activeTabText : look.tabText;
}

void CMFCVisualManager::GetTabFrameColors(const CMFCBaseTabCtrl*, COLORREF& clrDark, COLORREF& clrBlack,
                                          COLORREF& clrHighlight, COLORREF& clrFace, COLORREF& clrDarkShadow,
                                          COLORREF& clrLight, CBrush*& pbrFace, CBrush*& pbrBlack) {
    const kmfc::LookColors look = present_look();
    clrDark = clrDarkShadow = clrBlack = look.border;
    clrHighlight = clrLight = look.activeTabFill;
    clrFace = look.bar;
    pbrFace = &afxGlobalData.brBarFace;
    pbrBlack = &afxGlobalData.brBlack;
}
