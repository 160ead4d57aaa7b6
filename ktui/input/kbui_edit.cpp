#include <ktui/input/kbui_edit.h>

#include <ktui/host/registered_messages.h>
#include <ktui/host/text_extent.h>
#include <ktui/host/tip_painting.h>

IMPLEMENT_DYNAMIC(CKbUiEdit, CEdit)

BEGIN_MESSAGE_MAP(CKbUiEdit, CEdit)
    ON_WM_MOUSEMOVE()
    ON_REGISTERED_MESSAGE(kbUiMessage, &CKbUiEdit::OnKbUiMessage)
END_MESSAGE_MAP()

CKbUiEdit::CKbUiEdit() : m_lastMousePoint(0, 0), m_tipRect(0, 0, 0, 0) {}

void CKbUiEdit::OnMouseMove(UINT flags, CPoint point) {
    CEdit::OnMouseMove(flags, point);
    if (point == m_lastMousePoint) return;
    // Kept: a control that is being typed in reports nothing and forgets the move, so that the first move
    // after the focus has gone is reported.
    if (::GetFocus() == m_hWnd) return;
    reportMove(point);
}

void CKbUiEdit::GetContentExtent(const wchar_t* text, int& width, int& height) {
    GetTextExtent(text, width, height);
}

void CKbUiEdit::SetStyleMask(DWORD mask) { m_styleMask = mask; }

BOOL CKbUiEdit::OnDrawTipText(CKbUiDrawTipText& tip) {
    PaintFramedTip(*this, tip);
    return TRUE;
}

KBUI_REPLY CKbUiEdit::OnGetTipSupport(CPoint& point) {
    return contains(point) ? kKbUiReplyHandled : kKbUiReplyNone;
}

BOOL CKbUiEdit::OnGetTipRect(CRect& rect) {
    GetRect(&rect);
    CString text;
    GetWindowText(text);
    int width = 0;
    int height = 0;
    GetContentExtent(text.GetString(), width, height);
    const bool fits = rect.Width() >= width && rect.Height() >= height;
    if (fits)
        rect.SetRectEmpty();
    else
        rect.SetRect(rect.left, rect.top, rect.left + width, rect.top + height);
    m_tipRect = rect;
    return !fits;
}

BOOL CKbUiEdit::OnGetTipText(CString& text) {
    GetWindowText(text);
    return TRUE;
}

BOOL CKbUiEdit::OnHitTipRect(CPoint& point) { return contains(point); }

void CKbUiEdit::GetTextExtent(const wchar_t* text, int& width, int& height) {
    MeasureControlText(*this, text, width, height, TextForm::kDrawn);
}

bool CKbUiEdit::contains(CPoint point) const {
    CRect client;
    GetClientRect(&client);
    return client.PtInRect(point) != FALSE;
}
