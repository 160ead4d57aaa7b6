#include <ktui/host/tip_painting.h>

#include <ktui/host/appearance.h>
#include <ktui/host/control_font.h>

namespace {

constexpr COLORREF kTipFill = 0xFBFBFB;
constexpr COLORREF kTipInk = 0x5C5253;
constexpr int kTipPadding = 2;  // pixels between the frame and the text

}  // namespace

void PaintFramedTip(CWnd& control, CKbUiDrawTipText& tip) {
    CDC& dc = tip.m_dc;
    CBrush fill(KtUiAppearanceColor(kTipFill, COLOR_INFOBK));
    const COLORREF ink = KtUiAppearanceColor(kTipInk, COLOR_INFOTEXT);
    CPen frame(PS_SOLID, 1, ink);
    CBrush* formerBrush = dc.SelectObject(&fill);
    CPen* formerPen = dc.SelectObject(&frame);
    dc.Rectangle(&tip.m_rect);
    dc.SelectObject(formerPen);
    dc.SelectObject(formerBrush);

    tip.m_rect.DeflateRect(kTipPadding, kTipPadding);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(ink);
    const ControlFont font(dc, control);
    dc.DrawText(tip.m_text, &tip.m_rect, DT_SINGLELINE | DT_VCENTER);
}
