#include <ktui/tips/kbui_tip_window.h>

#include <ktui/host/appearance.h>
#include <ktui/host/control_font.h>
#include <ktui/host/text_extent.h>

namespace {

const wchar_t* const kTipWindowClass = L"CKbUiTipWindow";
constexpr UINT_PTR kTipTimer = 1;
constexpr UINT kTipPeriod = 50;           // milliseconds between two looks at the pointer
constexpr COLORREF kTipInk = 0x4B4846;    // border and text
constexpr COLORREF kTipPaper = 0xF9F9F9;  // background

void registerTipClass() {
    WNDCLASS present;
    if (::GetClassInfoW(AfxGetInstanceHandle(), kTipWindowClass, &present)) return;
    WNDCLASS windowClass = {};
    windowClass.style = CS_SAVEBITS;
    windowClass.lpfnWndProc = ::DefWindowProcW;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = kTipWindowClass;
    if (!AfxRegisterClass(&windowClass)) AfxThrowResourceException();
}

}  // namespace

IMPLEMENT_DYNAMIC(CKbUiTipWindow, CWnd)

BEGIN_MESSAGE_MAP(CKbUiTipWindow, CWnd)
    ON_WM_PAINT()
    ON_WM_ACTIVATEAPP()
    ON_WM_TIMER()
    ON_WM_NCDESTROY()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONDBLCLK()
    ON_WM_MBUTTONDOWN()
    ON_WM_MBUTTONDBLCLK()
END_MESSAGE_MAP()

CKbUiTipWindow::CKbUiTipWindow() = default;

void CKbUiTipWindow::OnPaint() {
    // Kept: without a control not even the paint context is taken, so the update region stays.
    if (m_control == nullptr) return;
    CPaintDC dc(this);
    CRect client, inner;
    GetClientRect(&client);
    DrawBorder(dc, client, inner);
    DrawContent(dc, inner);
}

void CKbUiTipWindow::OnActivateApp(BOOL active, DWORD threadId) {
    CWnd::OnActivateApp(active, threadId);
    // Kept: only the window goes; the timer runs on until its next look.
    if (!active) ShowWindow(SW_HIDE);
}

void CKbUiTipWindow::OnTimer(UINT_PTR id) {
    CWnd::OnTimer(id);
    if (m_control != nullptr && m_control->m_hWnd != nullptr) {
        CPoint cursor;
        CRect area;
        ::GetCursorPos(&cursor);
        m_control->GetWindowRect(&area);
        if (area.PtInRect(cursor) && m_control->IsWindowVisible()) return;
    }
    Hide();
}

void CKbUiTipWindow::OnNcDestroy() {
    StopTimer();
    CWnd::OnNcDestroy();
}

void CKbUiTipWindow::OnLButtonDown(UINT flags, CPoint point) { forwardButton(WM_LBUTTONDOWN, flags, point); }
void CKbUiTipWindow::OnLButtonDblClk(UINT flags, CPoint point) {
    forwardButton(WM_LBUTTONDBLCLK, flags, point);
}
void CKbUiTipWindow::OnRButtonDown(UINT flags, CPoint point) { forwardButton(WM_RBUTTONDOWN, flags, point); }
void CKbUiTipWindow::OnRButtonDblClk(UINT flags, CPoint point) {
    forwardButton(WM_RBUTTONDBLCLK, flags, point);
}
void CKbUiTipWindow::OnMButtonDown(UINT flags, CPoint point) { forwardButton(WM_MBUTTONDOWN, flags, point); }
void CKbUiTipWindow::OnMButtonDblClk(UINT flags, CPoint point) {
    forwardButton(WM_MBUTTONDBLCLK, flags, point);
}

void CKbUiTipWindow::forwardButton(UINT message, UINT flags, CPoint point) {
    Hide();
    if (m_control == nullptr) return;
    ClientToScreen(&point);
    m_control->ScreenToClient(&point);
    m_control->SendMessage(message, flags, MAKELPARAM(point.x, point.y));
}

void CKbUiTipWindow::GetTextExtent(const wchar_t* text, int& width, int& height) {
    width = height = 0;
    if (m_owner != nullptr) MeasureControlText(*m_owner, text, width, height);
}

void CKbUiTipWindow::DrawBorder(CDC& dc, CRect& rect, CRect& inner) {
    CBrush border(KtUiAppearanceColor(kTipInk, COLOR_INFOTEXT));
    dc.FrameRect(&rect, &border);
    inner = rect;
    inner.left += 2;
    inner.top += 2;
}

void CKbUiTipWindow::DrawContent(CDC& dc, CRect& rect) {
    if (m_control == nullptr || m_useText != 1) return;
    rect.left -= 2;
    rect.top -= 2;
    rect.DeflateRect(1, 1);
    dc.FillSolidRect(&rect, KtUiAppearanceColor(kTipPaper, COLOR_INFOBK));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(KtUiAppearanceColor(kTipInk, COLOR_INFOTEXT));
    ControlFont font(dc, *m_control);
    CString text;
    GetWindowText(text);
    dc.DrawText(text, &rect, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

BOOL CKbUiTipWindow::Create(CWnd* owner) {
    registerTipClass();
    const CRect empty(0, 0, 0, 0);
    if (!CreateEx(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, kTipWindowClass, nullptr, WS_POPUP, empty, owner, 0))
        return FALSE;
    m_owner = owner;
    return TRUE;
}

void CKbUiTipWindow::Hide() {
    StopTimer();
    ShowWindow(SW_HIDE);
}

void CKbUiTipWindow::Show() {
    if (::GetFocus() == nullptr) return;
    SetWindowPos(&wndTopMost, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOREDRAW | SWP_NOACTIVATE);
    ShowWindow(SW_SHOWNOACTIVATE);
    StartTimer(kTipPeriod);
}

void CKbUiTipWindow::StartTimer(UINT milliseconds) {
    KillTimer(kTipTimer);
    m_timer = SetTimer(kTipTimer, milliseconds);
}

void CKbUiTipWindow::StopTimer() { KillTimer(kTipTimer); }
