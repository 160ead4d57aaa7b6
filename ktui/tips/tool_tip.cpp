#include <ktui/tips/tool_tip.h>

namespace {

constexpr int kWidestTip = 32767;  // pixels

}  // namespace

BEGIN_MESSAGE_MAP(CToolTip, CWnd)
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
END_MESSAGE_MAP()

CToolTip::CToolTip(CWnd& control) {
    CreateEx(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
             CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, control.m_hWnd, nullptr);
    if (m_hWnd == nullptr) return;
    SetFont(control.GetFont(), FALSE);
    m_toolInfo.cbSize = sizeof m_toolInfo;
    m_toolInfo.uFlags = TTF_TRACK | TTF_ABSOLUTE;
    m_toolInfo.hwnd = control.m_hWnd;
    m_toolInfo.lpszText = const_cast<wchar_t*>(m_text.GetString());
    SendMessage(TTM_SETMAXTIPWIDTH, 0, kWidestTip);
    tell(TTM_ADDTOOLW);
    SendMessage(TTM_SETTIPBKCOLOR, ::GetSysColor(COLOR_WINDOW));
    SendMessage(TTM_SETTIPTEXTCOLOR, ::GetSysColor(COLOR_WINDOWTEXT));
}

CToolTip::~CToolTip() { DestroyWindow(); }

void CToolTip::Show(const CPoint& point, const CString& text) {
    if (text == m_text) return;
    if (m_shown) Hide();
    m_text = text;
    m_toolInfo.lpszText = const_cast<wchar_t*>(m_text.GetString());
    tell(TTM_UPDATETIPTEXTW);
    SendMessage(TTM_TRACKPOSITION, 0, MAKELPARAM(point.x, point.y));
    tell(TTM_TRACKACTIVATE, TRUE);
    m_shown = 1;
}

void CToolTip::Hide() {
    tell(TTM_TRACKACTIVATE, FALSE);
    ShowWindow(SW_HIDE);
    m_text.Empty();
    m_shown = 0;
}

void CToolTip::OnLButtonDown(UINT flags, CPoint point) {
    ClientToScreen(&point);
    Hide();
    HWND target = ::WindowFromPoint(point);
    if (target == nullptr) target = ::GetParent(m_hWnd);
    if (target == nullptr) return;
    ::ScreenToClient(target, &point);
    ::SendMessageW(target, WM_LBUTTONDOWN, flags, MAKELPARAM(point.x, point.y));
}

void CToolTip::OnMouseMove(UINT flags, CPoint point) {
    CWnd::OnMouseMove(flags, point);
    TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&track);
}

void CToolTip::OnMouseLeave() { Hide(); }
