#include "status_line.h"

#include <afxext.h>

namespace {

constexpr int kPromptPane = 0;
constexpr int kMargin = 4;    // pixels that the control keeps free on either side of a text
constexpr int kEllipsis = 4;  // characters that the system may add to a text, with the one at its end

}  // namespace

IMPLEMENT_DYNAMIC(CStatusLine, CStatusBarCtrl)

BEGIN_MESSAGE_MAP(CStatusLine, CStatusBarCtrl)
    ON_MESSAGE(WM_SETTEXT, &CStatusLine::OnSetText)
    ON_MESSAGE(WM_SIZEPARENT, &CStatusLine::OnSizeParent)
END_MESSAGE_MAP()

void CStatusLine::Say(const CString& prompt) {
    m_prompt = prompt;
    const CString shown = fitted(prompt);
    SetText(shown, kPromptPane, 0);
    SetTipText(kPromptPane, shown == prompt ? L"" : prompt.GetString());
}

void CStatusLine::Part(int count, int* edges) {
    SetParts(count, edges);
    Say(m_prompt);
}

CString CStatusLine::fitted(const CString& prompt) {
    CRect pane;
    if (!GetRect(kPromptPane, &pane)) return prompt;
    pane.DeflateRect(kMargin, 0);
    CClientDC dc(this);
    CFont* former = dc.SelectObject(GetFont());
    CString shown = prompt;
    wchar_t* text = shown.GetBuffer(prompt.GetLength() + kEllipsis);
    ::DrawTextW(dc, text, -1, &pane,
                DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS | DT_MODIFYSTRING);
    shown.ReleaseBuffer();
    dc.SelectObject(former);
    return shown;
}

LRESULT CStatusLine::OnSetText(WPARAM, LPARAM lParam) {
    Say(reinterpret_cast<const wchar_t*>(lParam));
    return TRUE;
}

/// Takes the bottom of what the frame gives away. The control is one of the system, which finds its place by
/// itself.
LRESULT CStatusLine::OnSizeParent(WPARAM, LPARAM lParam) {
    auto& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    if ((GetStyle() & WS_VISIBLE) == 0) return 0;
    if (layout.hDWP != nullptr) SendMessage(WM_SIZE);
    CRect place;
    GetWindowRect(&place);
    layout.rect.bottom -= place.Height();
    return 0;
}
