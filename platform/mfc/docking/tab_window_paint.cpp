// Tab windows: what they show.
#include <kmfc/global_data.h>
#include <kmfc/mem_dc.h>
#include <kmfc/menu_images.h>
#include <kmfc/tab_window.h>
#include <kmfc/visual_manager.h>
#include <kmfc/window_dc.h>

BOOL CMFCTabCtrl::OnEraseBkgnd(CDC*) { return TRUE; }

void CMFCTabCtrl::OnPaint() {
    CPaintDC dc(this);
    CMemDC buffer(dc, this);
    paint(buffer.GetDC());
}

LRESULT CMFCTabCtrl::OnPrintClient(WPARAM wParam, LPARAM) {
    paint(*CDC::FromHandle(reinterpret_cast<HDC>(wParam)));
    return 0;
}

void CMFCTabCtrl::paint(CDC& dc) {
    paint_frame(dc);
    if (m_rectTabsArea.IsRectEmpty()) return;
    CMFCVisualManager::GetInstance()->OnEraseTabsArea(&dc, m_rectTabsArea, this);
    paint_tabs(dc);
    paint_buttons(dc);
}

/// The border around the windows, and what they leave of the client area.
void CMFCTabCtrl::paint_frame(CDC& dc) {
    CMFCVisualManager* const look = CMFCVisualManager::GetInstance();
    CRect client;
    GetClientRect(&client);
    CRect page = client;
    if (m_location == LOCATION_TOP)
        page.top += m_rectTabsArea.Height();
    else
        page.bottom -= m_rectTabsArea.Height();
    COLORREF dark, black, highlight, face, darkShadow, light;
    CBrush *faceBrush, *blackBrush;
    look->GetTabFrameColors(this, dark, black, highlight, face, darkShadow, light, faceBrush, blackBrush);
    if (!look->OnEraseTabsFrame(&dc, page, this)) dc.FillSolidRect(page, face);
    if (!m_bDrawFrame || m_nTabBorderSize == 0) return;
    if (m_bFlatFrame)
        dc.Draw3dRect(page, dark, dark);
    else
        dc.Draw3dRect(page, highlight, darkShadow);
}

/// The active tab comes last: it lies over its neighbours.
void CMFCTabCtrl::paint_tabs(CDC& dc) {
    CMFCVisualManager* const look = CMFCVisualManager::GetInstance();
    const int saved = dc.SaveDC();
    // The active tab reaches over the line around its page, and so joins it.
    const int join = m_bDrawFrame && m_nTabBorderSize > 0 ? 1 : 0;
    const auto joined = [&](CRect rect) {
        (m_location == LOCATION_TOP ? rect.bottom : rect.top) += m_location == LOCATION_TOP ? join : -join;
        return rect;
    };
    dc.IntersectClipRect(joined(m_tabsRoom));
    for (int i = GetTabsNum() - 1; i >= 0; --i)
        if (i != m_iActiveTab && !tab(i)->m_rect.IsRectEmpty())
            look->OnDrawTab(&dc, tab(i)->m_rect, i, FALSE, this);
    const CMFCTabInfo* const active = tab(m_iActiveTab);
    if (active != nullptr && !active->m_rect.IsRectEmpty())
        look->OnDrawTab(&dc, joined(active->m_rect), m_iActiveTab, TRUE, this);
    dc.RestoreDC(saved);
}

void CMFCTabCtrl::paint_buttons(CDC& dc) {
    CMFCVisualManager* const look = CMFCVisualManager::GetInstance();
    const auto draw = [&](Button button, CMenuImages::IMAGES_IDS sign) {
        if (button_rect(button).IsRectEmpty()) return;
        look->draw_flat_button(&dc, button_rect(button), sign, m_hotButton == button,
                               m_pressedButton == button && m_hotButton == button, is_enabled(button));
    };
    draw(Button::scroll_left, CMenuImages::IdArrowLeft);
    draw(Button::scroll_right, CMenuImages::IdArrowRight);
    draw(Button::menu, CMenuImages::IdArrowDown);
    draw(Button::close, CMenuImages::IdClose);
}
