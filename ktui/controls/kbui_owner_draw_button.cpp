#include <ktui/controls/kbui_owner_draw_button.h>

#include <ktdsres/resource_ids.h>
#include <ktui/host/accessible.h>
#include <ktui/host/registered_messages.h>
#include <ktui/host/string_resources.h>
#include <ktui/host/theme_api.h>

namespace {

constexpr DWORD kKeptStyles = 0xFFF4;  // of the style that a button had before

}  // namespace

IMPLEMENT_DYNAMIC(CKbUiOwnerDrawButton, CButton)

BEGIN_MESSAGE_MAP(CKbUiOwnerDrawButton, CButton)
    ON_MESSAGE(WM_GETOBJECT, &CKbUiOwnerDrawButton::OnGetObject)
    ON_REGISTERED_MESSAGE(accessibleMessage, &CKbUiOwnerDrawButton::OnAccessible)
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_KILLFOCUS()
    ON_WM_TIMER()
    ON_WM_DROPFILES()
    ON_WM_THEMECHANGED()
    ON_WM_DESTROY()
    ON_WM_NCDESTROY()
    ON_REGISTERED_MESSAGE(kbUiMessage, &CKbUiOwnerDrawButton::OnKbUiMessage)
END_MESSAGE_MAP()

const UINT_PTR CKbUiOwnerDrawButton::m_timerEvent;

CKbUiOwnerDrawButton::CKbUiOwnerDrawButton() : m_lastMousePoint(0, 0), m_tipRect(0, 0, 0, 0) {}

CKbUiOwnerDrawButton::~CKbUiOwnerDrawButton() { closeTheme(); }

void CKbUiOwnerDrawButton::SetIsPointedAt(int pointedAt) {
    setFlag(kPointedAt, pointedAt);
    OnPointedAt(pointedAt & 1);
}

void CKbUiOwnerDrawButton::SetTracking(int tracking) { setFlag(kTracking, tracking); }

CKbUiTheme* CKbUiOwnerDrawButton::SetTheme(CKbUiTheme* theme) {
    m_theme = theme;
    return m_theme;
}

int CKbUiOwnerDrawButton::OnAutoLoad() { return 0; }

void CKbUiOwnerDrawButton::OnDragDrop(HDROP) {}

void CKbUiOwnerDrawButton::OnPointedAt(int) { Invalidate(); }

int CKbUiOwnerDrawButton::OnReload(const wchar_t*) {
    Invalidate();
    return 1;
}

void CKbUiOwnerDrawButton::ThemeModified(KbUiThemeElement) {}

void CKbUiOwnerDrawButton::StartTimer(DWORD milliseconds) {
    StopTimer();
    m_timerId = SetTimer(m_timerEvent, milliseconds);
}

void CKbUiOwnerDrawButton::StopTimer() {
    KillTimer(m_timerEvent);
    m_timerId = 0;
}

void CKbUiOwnerDrawButton::OnDrawTip(CDC& dc) {
    if (m_tipRect.IsRectEmpty() || (GetStyle() & BS_OWNERDRAW) == 0) return;
    CBrush fill(::GetSysColor(COLOR_BTNFACE));
    CPen frame(PS_SOLID, 1, RGB(0, 0, 0));
    CBrush* formerBrush = dc.SelectObject(&fill);
    CPen* formerPen = dc.SelectObject(&frame);
    dc.Rectangle(&m_tipRect);
    dc.SelectObject(formerPen);
    dc.SelectObject(formerBrush);
}

BOOL CKbUiOwnerDrawButton::OnDrawTipText(CKbUiDrawTipText& tip) {
    tip.m_dc.DrawText(tip.m_text, &tip.m_rect, DT_SINGLELINE | DT_VCENTER);
    return FALSE;
}

KBUI_REPLY CKbUiOwnerDrawButton::OnGetTipSupport(CPoint&) { return kKbUiReplyNone; }

BOOL CKbUiOwnerDrawButton::OnGetTipRect(CRect& rect) {
    rect.SetRectEmpty();
    m_tipRect = rect;
    return FALSE;
}

BOOL CKbUiOwnerDrawButton::OnGetTipText(CString& text) {
    GetWindowText(text);
    return TRUE;
}

BOOL CKbUiOwnerDrawButton::OnHitTipRect(CPoint& point) { return m_tipRect.PtInRect(point); }

void CKbUiOwnerDrawButton::PreSubclassWindow() {
    // Kept: styles above the lowest 16 bits are not sent.
    SendMessage(BM_SETSTYLE, (GetStyle() & kKeptStyles) | BS_OWNERDRAW, TRUE);
    openTheme();
    CButton::PreSubclassWindow();
}

void CKbUiOwnerDrawButton::openTheme() {
    closeTheme();
    m_visualStylesTheme = ActiveThemeApi().openThemeData(m_hWnd, L"BUTTON");
}

void CKbUiOwnerDrawButton::closeTheme() {
    if (m_visualStylesTheme) ActiveThemeApi().closeThemeData(m_visualStylesTheme);
    m_visualStylesTheme = nullptr;
}

void CKbUiOwnerDrawButton::askForTip(CPoint point) {
    KbUiNotify(GetKbUiParent(), static_cast<unsigned>(GetDlgCtrlID()), kKbUiNotifyGetTipSupport,
               static_cast<unsigned __int64>(m_tipState));
    if (m_tipState == 0) m_tipState = 1;
    m_lastMousePoint = point;
}

void CKbUiOwnerDrawButton::endPointedAt() {
    setFlag(kPointedAt, 0);
    Invalidate();
}

LRESULT CKbUiOwnerDrawButton::OnGetObject(WPARAM wParam, LPARAM lParam) {
    const LRESULT answer = AnswerGetObject(*this, wParam, lParam);
    return answer ? answer : Default();
}

LRESULT CKbUiOwnerDrawButton::OnAccessible(WPARAM wParam, LPARAM lParam) {
    if (static_cast<KbUiAccessibleRequest>(wParam) == KbUiAccessibleRequest::kAct)
        return !GetIsStatic() && PostMessage(BM_CLICK);
    auto& item = *reinterpret_cast<KbUiAccessibleItem*>(lParam);
    CString name;
    if (!OnGetTipText(name) || name.IsEmpty()) GetWindowText(name);
    item.name = WithoutAccessKey(name);
    item.role = GetIsStatic() ? ROLE_SYSTEM_GRAPHIC : ROLE_SYSTEM_PUSHBUTTON;
    if (GetIsStatic()) {
        item.statesWithout = STATE_SYSTEM_FOCUSABLE;
        return 1;
    }
    item.defaultAction = LoadToolkitString(IDS_ACTION_PRESS, L"按下");
    if (GetState() & BST_PUSHED) item.states |= STATE_SYSTEM_PRESSED;
    if (GetIsPointedAt()) item.states |= STATE_SYSTEM_HOTTRACKED;
    return 1;
}

void CKbUiOwnerDrawButton::OnMouseMove(UINT flags, CPoint point) {
    CButton::OnMouseMove(flags, point);
    if (point != m_lastMousePoint) askForTip(point);
    const bool isLeftDown = (flags & MK_LBUTTON) != 0;
    // A press that began elsewhere does not light the button.
    if (GetIsStatic() || (isLeftDown && !GetIsPointedAt())) return;
    if (::GetCapture() != m_hWnd && GetOwner()) {
        // Kept: OnPointedAt is not called.
        setFlag(kPointedAt, 1);
        SetCapture();
        Invalidate();
        return;
    }
    CRect client;
    GetClientRect(&client);
    if (client.PtInRect(point)) return;
    endPointedAt();
    if (!isLeftDown) ::ReleaseCapture();
}

void CKbUiOwnerDrawButton::OnMouseLeave() {
    if (!GetIsStatic() && GetIsPointedAt()) endPointedAt();
}

void CKbUiOwnerDrawButton::OnKillFocus(CWnd* next) {
    CButton::OnKillFocus(next);
    if (!GetIsStatic() && GetIsPointedAt()) endPointedAt();
}

void CKbUiOwnerDrawButton::OnTimer(UINT_PTR event) {
    if (event == m_timerEvent) {
        setFlag(kPointedAt, 0);
        OnPointedAt(0);
    }
    CButton::OnTimer(event);
}

void CKbUiOwnerDrawButton::OnDropFiles(HDROP files) {
    OnDragDrop(files);
    CButton::OnDropFiles(files);
}

LRESULT CKbUiOwnerDrawButton::OnThemeChanged() {
    openTheme();
    Invalidate();
    return 0;
}

void CKbUiOwnerDrawButton::OnDestroy() {
    CButton::OnDestroy();
    closeTheme();
}

void CKbUiOwnerDrawButton::OnNcDestroy() {
    StopTimer();
    CButton::OnNcDestroy();
}
