#include <ktui/tips/messages/ui_button.h>

#include <afxext.h>

#include <ktdsres/resource_ids.h>
#include <ktui/host/accessible.h>
#include <ktui/host/appearance.h>
#include <ktui/host/loaded_module.h>
#include <ktui/host/registered_messages.h>
#include <ktui/host/string_resources.h>
#include <ktui/res/resource_ids.h>
#include <ktui/tips/messages/message_colors.h>

namespace {

constexpr int kGlyphWidth = 40;  // what the arrow takes, in pixels at 96 dots an inch
constexpr int kExtendedGap = 5;  // between title and second text
constexpr COLORREF kGlyphMask = 0xFF00FF;
constexpr int kGlyphSize = 20;  // at 96 dots an inch
constexpr int kLargerGlyphs[] = {40, 30, 25};

/// The largest picture of the arrow that is no larger than wanted.
UINT glyphFor(int size) {
    for (const int larger : kLargerGlyphs)
        if (size >= larger) return static_cast<UINT>(IDB_LARGER_LINK_ARROWS + larger);
    return IDB_LINK_ARROW;
}

void frame(CDC& dc, const CRect& rect, int color) { ::FrameRect(dc.m_hDC, &rect, ::GetSysColorBrush(color)); }

/// Draws a text from the top of `area` in `font`; its height.
int drawText(CDC& dc, const CString& text, CRect area, CFont* font) {
    CFont* const former = dc.SelectObject(font);
    const int height = dc.DrawText(text, &area, DT_WORDBREAK);
    dc.SelectObject(former);
    return height;
}

}  // namespace

BEGIN_MESSAGE_MAP(CUiButton, CButton)
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(WM_GETOBJECT, &CUiButton::OnGetObject)
    ON_REGISTERED_MESSAGE(accessibleMessage, &CUiButton::OnAccessible)
END_MESSAGE_MAP()

BOOL CUiButton::CreateIn(CWnd& dialog) {
    if (!Create(m_title, m_style, m_rect, &dialog, static_cast<UINT>(m_id))) return FALSE;
    SetFont(isLink() ? m_titleFont : m_textFont);
    return TRUE;
}

void CUiButton::DrawItem(LPDRAWITEMSTRUCT item) {
    CDC& target = *CDC::FromHandle(item->hDC);
    const CRect client(item->rcItem);
    CMemDC buffer(target, client);
    CDC& dc = buffer.GetDC();
    dc.FillSolidRect(&client, MessagePaper());
    drawFrames(dc, client, item->itemState);
    if (m_glyph) drawGlyph(dc);
    drawTexts(dc, client);
}

void CUiButton::drawFrames(CDC& dc, const CRect& client, UINT state) const {
    if (m_hover) frame(dc, client, COLOR_HOTLIGHT);
    if (!(state & ODS_FOCUS)) return;
    CRect focus = client;
    focus.DeflateRect(1, 1);
    if (state & ODS_SELECTED) {
        UINT width = 1, height = 1;
        ::SystemParametersInfoW(SPI_GETFOCUSBORDERWIDTH, 0, &width, 0);
        ::SystemParametersInfoW(SPI_GETFOCUSBORDERHEIGHT, 0, &height, 0);
        focus.DeflateRect(static_cast<int>(width), static_cast<int>(height));
    }
    frame(dc, focus, COLOR_HIGHLIGHT);
}

void CUiButton::drawGlyph(CDC& dc) const {
    const UINT id = glyphFor(KtUiAppearancePixels(m_hWnd, kGlyphSize));
    CBitmap bitmap;
    if (!bitmap.Attach(::LoadBitmapW(KtUiOwnModule(), MAKEINTRESOURCEW(id)))) return;
    BITMAP size = {};
    ::GetObjectW(bitmap.m_hObject, sizeof size, &size);
    CDC memory;
    memory.CreateCompatibleDC(&dc);
    CBitmap* const former = memory.SelectObject(&bitmap);
    const int width = static_cast<int>(size.bmWidth), height = static_cast<int>(size.bmHeight);
    const int x = (KtUiAppearancePixels(m_hWnd, kGlyphWidth) - width) / 2;
    ::TransparentBlt(dc.m_hDC, x, m_margin, width, height, memory.m_hDC, 0, 0, width, height, kGlyphMask);
    memory.SelectObject(former);
}

void CUiButton::drawTexts(CDC& dc, const CRect& client) const {
    CRect area = client;
    area.DeflateRect(m_margin / 2, m_margin);
    if (m_glyph) area.left += KtUiAppearancePixels(m_hWnd, kGlyphWidth) - m_margin / 2;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(MessageInk(m_hover ? kMessageLinkHover : kMessageLink));
    const int height = drawText(dc, m_title, area, m_titleFont);
    if (m_extendedText.IsEmpty()) return;
    area.top += height + KtUiAppearancePixels(m_hWnd, kExtendedGap);
    drawText(dc, m_extendedText, area, m_textFont);
}

void CUiButton::OnMouseMove(UINT flags, CPoint point) {
    if (isLink()) {
        m_hover = 1;
        Invalidate();
        TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, m_hWnd, 0};
        ::TrackMouseEvent(&track);
    }
    CButton::OnMouseMove(flags, point);
}

void CUiButton::OnMouseLeave() {
    endHover();
    CButton::OnMouseLeave();
}

void CUiButton::OnKillFocus(CWnd* next) {
    CButton::OnKillFocus(next);
    endHover();
}

void CUiButton::endHover() {
    if (!isLink()) return;
    m_hover = 0;
    Invalidate();
}

LRESULT CUiButton::OnGetObject(WPARAM wParam, LPARAM lParam) {
    const LRESULT answer = isLink() ? AnswerGetObject(*this, wParam, lParam) : 0;
    return answer != 0 ? answer : Default();
}

LRESULT CUiButton::OnAccessible(WPARAM wParam, LPARAM lParam) {
    if (static_cast<KbUiAccessibleRequest>(wParam) == KbUiAccessibleRequest::kAct)
        return IsWindowEnabled() && PostMessage(BM_CLICK);
    auto& item = *reinterpret_cast<KbUiAccessibleItem*>(lParam);
    item.name = WithoutAccessKey(m_title);
    item.description = m_extendedText;
    item.role = ROLE_SYSTEM_PUSHBUTTON;
    item.defaultAction = LoadToolkitString(IDS_ACTION_PRESS, L"按下");
    return 1;
}
