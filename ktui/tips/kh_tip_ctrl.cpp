#include <ktui/tips/kh_tip_ctrl.h>

#include <afxglobals.h>
#include <kh_system.h>

#include <algorithm>

#include <ktui/host/appearance.h>
#include <ktui/host/window_context.h>

namespace {

const wchar_t* const kTipClass = L"Quorvex Velmora tip";
constexpr DWORD kExStyle = WS_EX_CONTROLPARENT | WS_EX_NOPARENTNOTIFY;
constexpr DWORD kStyle = WS_POPUP | 4;
constexpr int kTipTimer = 1984;
constexpr UINT kDelay = 500;         // milliseconds
constexpr int kWaitingPlace = -500;  // screen pixels, both ways
constexpr int kMargin = 6;           // pixels added to each measure
constexpr int kTextInset = 2;        // from the edge of the window
constexpr int kLineInset = 3;        // of lines, further in
constexpr COLORREF kTransparentKey = 0x00FF00;

void registerTipClass() {
    WNDCLASSW tip = {};
    tip.style = CS_VREDRAW | CS_HREDRAW;
    tip.lpfnWndProc = ::DefWindowProcW;
    tip.hInstance = AfxGetInstanceHandle();
    tip.lpszClassName = kTipClass;
    ::RegisterClassW(&tip);  // one that is there already serves as well
}

/// A colour of the host's scheme; 0 without one.
COLORREF schemeColor(int role) {
    CKhColorServices* const services = CKhSystem::instance()->colorServices();
    COLORREF color = 0;
    if (services != nullptr) services->schemeColor(services->currentColorScheme(1), role, color, 0);
    return color;
}

void fillFrame(CDC& dc, CRect area, COLORREF border, COLORREF paper) {
    dc.FillSolidRect(&area, border);
    area.DeflateRect(1, 1);
    dc.FillSolidRect(&area, paper);
}

CSize measured(CDC& dc, const wchar_t* text) {
    CRect rect(0, 0, 0, 0);
    dc.DrawText(text, -1, &rect, DT_CALCRECT | DT_VCENTER);
    return rect.Size();
}

}  // namespace

BEGIN_MESSAGE_MAP(CKhTipCtrl, CWnd)
    ON_WM_ERASEBKGND()
    ON_WM_PAINT()
    ON_WM_TIMER()
END_MESSAGE_MAP()

CKhTipCtrl::CKhTipCtrl() : m_position(0, 0), m_keyColor(::GetSysColor(COLOR_WINDOW)) {}

CKhTipCtrl::~CKhTipCtrl() {
    endTimer();
    DestroyWindow();
}

BOOL CKhTipCtrl::Create(CWnd* parent) {
    registerTipClass();
    if (!CreateEx(kExStyle, kTipClass, L"", kStyle, CRect(0, 0, 0, 0), parent, 0)) return FALSE;
    SetLayeredAttributes(kTransparentKey, 255, LWA_COLORKEY | LWA_ALPHA);
    return TRUE;
}

void CKhTipCtrl::SetLayeredAttributes(COLORREF key, BYTE alpha, DWORD flags) {
    const HMODULE user = ::LoadLibraryW(L"user32.dll");
    if (user == nullptr) return;
    const auto apply = reinterpret_cast<decltype(&::SetLayeredWindowAttributes)>(
        reinterpret_cast<void*>(::GetProcAddress(user, "SetLayeredWindowAttributes")));
    if (apply != nullptr) {
        m_keyColor = key;
        ModifyStyleEx(0, WS_EX_LAYERED);
        apply(m_hWnd, key, alpha, flags);
        UpdateWindow();
    }
    ::FreeLibrary(user);
}

void CKhTipCtrl::Activate(const CPoint& point, const OdArray<OdString>& lines) {
    // Kept: the point alone tells whether it is the same tip.
    if (IsWindowVisible() && m_multiLine && point == m_position) return;
    m_multiLine = 1;
    Deactivate();
    m_position = point;
    m_lines = lines;
    wait();
}

void CKhTipCtrl::Activate(const CPoint& point, const wchar_t* text, bool delayed) {
    if (IsWindowVisible() && m_text == OdString(text) && point == m_position && !m_multiLine) return;
    m_multiLine = 0;
    if (delayed)
        Deactivate();
    else
        endTimer();
    m_position = point;
    m_text = text;
    if (delayed)
        wait();
    else
        UpdateTip();
}

void CKhTipCtrl::Deactivate() {
    endTimer();
    ShowWindow(SW_HIDE);
}

void CKhTipCtrl::wait() {
    SetWindowPos(nullptr, kWaitingPlace, kWaitingPlace, 0, 0, SWP_SHOWWINDOW | SWP_NOACTIVATE | SWP_NOZORDER);
    m_timer = static_cast<int>(SetTimer(kTipTimer, kDelay));
}

void CKhTipCtrl::endTimer() {
    if (m_timer != 0) KillTimer(kTipTimer);
    m_timer = 0;
}

BOOL CKhTipCtrl::OnEraseBkgnd(CDC*) { return TRUE; }

void CKhTipCtrl::OnTimer(UINT_PTR id) {
    if (id == kTipTimer) {
        endTimer();
        UpdateTip();
    }
    CWnd::OnTimer(id);
}

CSize CKhTipCtrl::measuredLines(CDC& dc) {
    int width = 0;
    m_lineHeight = 0;
    for (const OdString& line : m_lines) {
        const CSize size = measured(dc, line.c_str());
        m_lineHeight = std::max(m_lineHeight, static_cast<int>(size.cy) + kMargin);
        width = std::max(width, static_cast<int>(size.cx) + kMargin);
    }
    return {width + kMargin, m_lines.length() * m_lineHeight + kMargin};
}

void CKhTipCtrl::UpdateTip() {
    CSize inner(0, 0);
    {
        const WindowContext context(*this);
        if (context.dc() == nullptr) return;
        CFont* const former = context.dc()->SelectObject(&afxGlobalData.fontTooltip);
        inner = m_multiLine ? measuredLines(*context.dc()) : measured(*context.dc(), m_text.c_str());
        context.dc()->SelectObject(former);
    }
    SetWindowPos(&wndTop, m_position.x, m_position.y, inner.cx + kMargin, inner.cy + kMargin,
                 SWP_SHOWWINDOW | SWP_NOACTIVATE);
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void CKhTipCtrl::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    CFont* const former = dc.SelectObject(&afxGlobalData.fontTooltip);
    dc.SetBkMode(TRANSPARENT);
    if (m_multiLine)
        paintLines(dc, client);
    else
        paintText(dc, client);
    dc.SelectObject(former);
}

void CKhTipCtrl::paintLines(CDC& dc, CRect area) {
    const COLORREF ink = KtUiAppearanceColor(RGB(0, 0, 0), COLOR_INFOTEXT);
    fillFrame(dc, area, ink, KtUiAppearanceColor(RGB(255, 255, 255), COLOR_INFOBK));
    dc.SetTextColor(ink);
    area.DeflateRect(kTextInset + kLineInset, kTextInset + kLineInset, 0, 0);
    for (const OdString& line : m_lines) {
        area.bottom = area.top + m_lineHeight;
        dc.DrawText(line.c_str(), -1, &area, DT_VCENTER);
        area.top = area.bottom;
    }
}

void CKhTipCtrl::paintText(CDC& dc, CRect area) {
    fillFrame(dc, area, schemeColor(kKhColorRoleTipBorder), schemeColor(kKhColorRoleTipBackground));
    dc.SetTextColor(schemeColor(kKhColorRoleTipText));
    area.DeflateRect(kTextInset, kTextInset, 0, 0);
    dc.DrawText(m_text.c_str(), -1, &area, DT_VCENTER);
}
