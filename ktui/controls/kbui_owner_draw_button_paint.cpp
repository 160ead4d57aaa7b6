// How CKbUiOwnerDrawButton paints: by visual styles, or in the classic way.
#include <ktui/controls/kbui_owner_draw_button.h>

#include <ktui/host/theme_api.h>
#include <ktui/host/under_cursor.h>

#include <vsstyle.h>

namespace {

/// The first condition that holds decides.
int PushButtonState(bool isDisabled, bool isPressed, bool isHot, bool isDefault) {
    if (isDisabled) return PBS_DISABLED;
    if (isPressed) return PBS_PRESSED;
    if (isHot) return PBS_HOT;
    return isDefault ? PBS_DEFAULTED : PBS_NORMAL;
}

int FocusBorder(UINT metric) {
    UINT pixels = 0;
    ::SystemParametersInfoW(metric, 0, &pixels, 0);
    return static_cast<int>(pixels);
}

}  // namespace

void CKbUiOwnerDrawButton::DrawItem(LPDRAWITEMSTRUCT item) {
    const CRect place(item->rcItem);
    const auto state = [item](UINT bit) { return static_cast<int>(item->itemState & bit); };
    DrawButton(*CDC::FromHandle(item->hDC), place.Width(), place.Height(), state(ODS_DEFAULT),
               state(ODS_DISABLED), state(ODS_SELECTED), state(ODS_FOCUS));
}

void CKbUiOwnerDrawButton::DrawButton(CDC& dc, int width, int height, int isDefault, int isDisabled,
                                      int isPressed, int hasFocus) {
    DrawFrame(dc, width, height, isDefault, isDisabled, isPressed, hasFocus);
    CString text;
    GetWindowText(text);
    CRect rect(0, 0, width, height);
    DrawContentText(dc, text, rect, isDisabled);
}

void CKbUiOwnerDrawButton::DrawFrame(CDC& dc, int width, int height, int isDefault, int isDisabled,
                                     int isPressed, int hasFocus) {
    CRect rect(0, 0, width, height);
    CRect focusRect = rect;
    if (m_visualStylesTheme)
        drawThemedFrame(dc, rect, focusRect, isDefault, isDisabled, isPressed, hasFocus);
    else
        drawClassicFrame(dc, rect, focusRect, isDefault, isPressed, hasFocus);
    if (hasFocus) dc.DrawFocusRect(&focusRect);
}

void CKbUiOwnerDrawButton::drawThemedFrame(CDC& dc, CRect& rect, CRect& focusRect, int isDefault,
                                           int isDisabled, int isPressed, int hasFocus) {
    const ThemeApi& api = ActiveThemeApi();
    const HTHEME theme = m_visualStylesTheme;
    const int state = PushButtonState(isDisabled != 0, isPressed != 0, IsUnderCursor(m_hWnd), isDefault != 0);
    if (api.isThemeBackgroundPartiallyTransparent(theme, BP_PUSHBUTTON, state))
        api.drawThemeParentBackground(m_hWnd, dc.m_hDC, &rect);
    api.drawThemeBackground(theme, dc.m_hDC, BP_PUSHBUTTON, state, &rect, &rect);
    if (hasFocus) api.getThemeBackgroundContentRect(theme, dc.m_hDC, BP_PUSHBUTTON, state, &rect, &focusRect);
}

void CKbUiOwnerDrawButton::drawClassicFrame(CDC& dc, CRect& rect, CRect& focusRect, int isDefault,
                                            int isPressed, int hasFocus) {
    rect.DeflateRect(0, 0, 1, 1);
    DrawPushButtonBorder(dc, rect, isDefault, isPressed);
    rect.InflateRect(0, 0, 1, 1);
    if (!hasFocus) return;
    const int cx = FocusBorder(SPI_GETFOCUSBORDERWIDTH);
    const int cy = FocusBorder(SPI_GETFOCUSBORDERHEIGHT);
    focusRect.DeflateRect(cx + 2, cy + 2, cx + 3, cy + 3);
}

void CKbUiOwnerDrawButton::DrawContentText(CDC& dc, CString text, CRect& rect, int isDisabled) {
    if (text.IsEmpty()) return;
    const COLORREF formerColor = dc.SetTextColor(::GetSysColor(isDisabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
    const int formerMode = dc.SetBkMode(TRANSPARENT);
    dc.DrawText(text, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
    dc.SetBkMode(formerMode);
    dc.SetTextColor(formerColor);
}

void CKbUiOwnerDrawButton::DrawPushButtonBorder(CDC& dc, CRect& rect, int isDefault, int isPressed) {
    if (isDefault) {
        dc.FillSolidRect(&rect, ::GetSysColor(COLOR_BTNFACE));
        DrawBorder(&dc, rect, ::GetSysColor(COLOR_BTNTEXT));
        rect.DeflateRect(1, 1);
    }
    if (isPressed)
        DrawBorder(&dc, rect, ::GetSysColor(COLOR_BTNSHADOW));
    else
        dc.DrawFrameControl(&rect, DFC_BUTTON, DFCS_BUTTONPUSH);
    if (isDefault) rect.InflateRect(1, 1);
}

void CKbUiOwnerDrawButton::DrawBorder(CDC* dc, CRect& rect, COLORREF color) {
    CPen pen(PS_SOLID, 1, color);
    CPen* former = dc->SelectObject(&pen);
    const int right = rect.right - 1;
    const int bottom = rect.bottom - 1;
    dc->MoveTo(rect.left, rect.top);
    dc->LineTo(right, rect.top);
    dc->LineTo(right, bottom);
    dc->LineTo(rect.left, bottom);
    dc->LineTo(rect.left, rect.top);
    dc->SelectObject(former);
}

void CKbUiOwnerDrawButton::DrawHotBorder() {}

void CKbUiOwnerDrawButton::DrawToolButtonBorder(CDC& dc, CRect& rect, int state, int) {
    constexpr int kSunken = 1;
    dc.DrawEdge(&rect, state == kSunken ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
}
