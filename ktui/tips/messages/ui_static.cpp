#include <ktui/tips/messages/ui_static.h>

#include <ktui/tips/messages/message_colors.h>

void CUiStatic::DrawItem(LPDRAWITEMSTRUCT item) {
    CDC& dc = *CDC::FromHandle(item->hDC);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, MessagePaper());
    CString text;
    GetWindowText(text);
    CFont* const former = dc.SelectObject(m_font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(m_color);
    dc.DrawText(text, &client, DT_WORDBREAK);
    dc.SelectObject(former);
}
