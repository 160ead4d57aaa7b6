// The caption of a bar that is docked at the bottom: it stands upright at the left edge.
#include <ktui/docking/kbui_dock_control_bar.h>

#include <afxcaptionbutton.h>
#include <afxglobals.h>
#include <afxmenuimages.h>
#include <afxvisualmanager.h>

#include <algorithm>

namespace {

const CSize kButtonOffset(2, 2);  // pixels from the bar's corner to the first button
constexpr int kButtonGap = 1;
constexpr int kCaptionOverlap = 2;  // pixels by which the client area reaches into the caption
constexpr UINT kMenuButton = 8, kPinButton = 9, kCloseButton = 19;  // hit codes

CMFCCaptionButton* buttonAt(const CObArray& buttons, INT_PTR index) {
    return static_cast<CMFCCaptionButton*>(buttons[index]);
}

int buttonHeight() {
    return static_cast<int>(CMenuImages::Size().cy) + 2 * CMFCCaptionButton::m_nButtonMarginVert +
           static_cast<int>(CMFCVisualManager::GetInstance()->GetCaptionButtonExtraBorder().cy);
}

}  // namespace

bool CKbUiDockControlBar::hasUprightCaption() const {
    return IsDocked() && GetCurrentAlignment() == CBRS_ALIGN_BOTTOM;
}

bool CKbUiDockControlBar::hidesButton(const CMFCCaptionButton& button) const {
    const UINT hit = button.GetHit();
    if (hit == kMenuButton && !CDockingManager::m_bDockBarMenu) return true;
    if (!CDockablePane::m_bHideDisabledButtons) return false;
    return (hit == kPinButton && !CanAutoHide()) ||
           (hit == kCloseButton && (GetControlBarStyle() & AFX_CBRS_CLOSE) == 0);
}

void CKbUiDockControlBar::placeUprightButtons(CPoint place, int captionHeight) {
    const int height = buttonHeight();
    for (INT_PTR index = 0; index < m_arrButtons.GetSize(); ++index) {
        CMFCCaptionButton* button = buttonAt(m_arrButtons, index);
        const bool hidden = captionHeight < 1 || hidesButton(*button);
        button->Move(place, hidden);
        if (!hidden) place.y += height + kButtonGap;
    }
}

void CKbUiDockControlBar::OnNcCalcSize(BOOL calculatesValidRects, NCCALCSIZE_PARAMS* params) {
    if (!hasUprightCaption()) {
        CDockablePane::OnNcCalcSize(calculatesValidRects, params);
        return;
    }
    const int height = GetCaptionHeight();
    RECT& area = params->rgrc[0];
    // Kept: without a caption the area grows by the overlap.
    area.left += height - kCaptionOverlap;
    placeUprightButtons(CPoint(0, 0) + kButtonOffset, height);
    area.right = std::max(area.right, area.left);
    area.bottom = std::max(area.bottom, area.top);
    UpdateTooltips();
}

void CKbUiDockControlBar::OnNcPaint() {
    if (!hasUprightCaption()) {
        CDockablePane::OnNcPaint();
        return;
    }
    // Kept: the pane counts as not active from here on.
    m_bActive = FALSE;
    CWindowDC dc(this);
    CRect window, client, update;
    GetWindowRect(&window);
    GetClientRect(&client);
    ClientToScreen(&client);
    client.OffsetRect(-window.left, -window.top);
    CRgn clip;
    if (GetUpdateRect(&update) && !update.IsRectEmpty()) {
        clip.CreateRectRgn(0, 0, window.Width(), window.Height());
        dc.SelectClipRgn(&clip);
    }
    // After the region, which would put the client area back.
    dc.ExcludeClipRect(&client);
    CDC memory;
    CBitmap bitmap;
    if (!memory.CreateCompatibleDC(&dc) ||
        !bitmap.CreateCompatibleBitmap(&dc, window.Width(), window.Height()))
        return;
    CBitmap* former = memory.SelectObject(&bitmap);
    drawUprightCaption(memory, window.Size());
    dc.BitBlt(0, 0, window.Width(), window.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(former);
    dc.SelectClipRgn(nullptr);
}

void CKbUiDockControlBar::drawUprightCaption(CDC& dc, CSize size) {
    const CRect caption(0, 0, GetCaptionHeight(), static_cast<int>(size.cy));
    CRect buttons(0, 0, 0, 0);
    for (INT_PTR index = 0; index < m_arrButtons.GetSize(); ++index)
        buttons.UnionRect(buttons, buttonAt(m_arrButtons, index)->GetRect());
    const COLORREF ink =
        CMFCVisualManager::GetInstance()->OnDrawPaneCaption(&dc, this, m_bActive, caption, buttons);
    for (INT_PTR index = 0; index < m_arrButtons.GetSize(); ++index) {
        CMFCCaptionButton* button = buttonAt(m_arrButtons, index);
        const UINT hit = button->GetHit();
        // Kept: the menu button is always drawn as one that can be held down, the pin as the pane hides.
        const bool held = hit == kMenuButton || (hit == kPinButton && IsAutoHideMode());
        if (!button->m_bHidden)
            button->OnDraw(&dc, m_bActive, IsHorizontal(), held,
                           is_button_disabled(static_cast<LRESULT>(hit)));
    }
    CRect name = caption;
    name.top = buttons.bottom;
    drawName(dc, name, ink);
}

void CKbUiDockControlBar::drawName(CDC& dc, CRect caption, COLORREF ink) {
    CString name;
    GetWindowText(name);
    CFont* former = dc.SelectObject(&afxGlobalData.fontVertCaption);
    const int lineHeight = afxGlobalData.GetTextHeight();
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(ink);
    caption.DeflateRect(0, kButtonOffset.cy);
    dc.ExtTextOut(caption.left + (caption.Width() - kCaptionOverlap - lineHeight) / 2, caption.bottom,
                  ETO_CLIPPED, &caption, name, nullptr);
    dc.SelectObject(former);
}

LRESULT CKbUiDockControlBar::OnNcHitTest(CPoint point) {
    if (!hasUprightCaption()) return CDockablePane::OnNcHitTest(point);
    CRect window;
    GetWindowRect(&window);
    const int height = GetCaptionHeight();
    for (INT_PTR index = 0; height >= 1 && index < m_arrButtons.GetSize(); ++index) {
        const CMFCCaptionButton* button = buttonAt(m_arrButtons, index);
        if ((button->GetRect() + window.TopLeft()).PtInRect(point))
            return static_cast<LRESULT>(button->GetHit());
    }
    // Kept: the rectangle that counts as client area.
    const CRect inside(window.left, window.top + 2 * height, window.right + height, window.bottom);
    return inside.PtInRect(point) ? HTCLIENT : CDockablePane::OnNcHitTest(point);
}

bool CKbUiDockControlBar::isOnUprightButton(CPoint screen) const {
    return hasUprightCaption() && FindButton(screen) != nullptr;
}

// The hit codes of upright buttons lead outside of the client area, where an ordinary caption's lead into it.

void CKbUiDockControlBar::OnNcMouseMove(UINT hit, CPoint point) {
    if (!hasUprightCaption()) {
        CDockablePane::OnNcMouseMove(hit, point);
        return;
    }
    ScreenToClient(&point);
    OnMouseMove(::GetKeyState(VK_LBUTTON) < 0 ? MK_LBUTTON : 0, point);
}

void CKbUiDockControlBar::OnNcMouseLeave() { CDockablePane::OnMouseLeave(); }

void CKbUiDockControlBar::OnNcLButtonDown(UINT hit, CPoint point) {
    if (!isOnUprightButton(point)) {
        CDockablePane::OnNcLButtonDown(hit, point);
        return;
    }
    ScreenToClient(&point);
    OnLButtonDown(MK_LBUTTON, point);
}

void CKbUiDockControlBar::OnNcLButtonDblClk(UINT hit, CPoint point) {
    if (!isOnUprightButton(point)) {
        CDockablePane::OnNcLButtonDblClk(hit, point);
        return;
    }
    ScreenToClient(&point);
    OnLButtonDblClk(MK_LBUTTON, point);
}
