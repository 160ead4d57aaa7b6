// CWnd: objects of handles, creation, subclassing, destruction.
#include <kmfc/wnd.h>

#include <kmfc/app.h>
#include <kmfc/data_exchange.h>

#include "thread_state.h"

using kmfc::thread_state;

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_COMPAREITEM()
    ON_WM_MEASUREITEM()
    ON_WM_DRAWITEM()
    ON_WM_DELETEITEM()
    ON_WM_CTLCOLOR()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_VKEYTOITEM()
    ON_WM_CHARTOITEM()
    ON_WM_PARENTNOTIFY()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::CWnd() = default;
CWnd::CWnd(HWND hWnd) : m_hWnd(hWnd) {}

CWnd::~CWnd() {
    const bool isPlacementMark =
        this == &wndTop || this == &wndBottom || this == &wndTopMost || this == &wndNoTopMost;
    if (m_hWnd != nullptr && !isPlacementMark && FromHandlePermanent(m_hWnd) == this) {
        DestroyWindow();
        // A window that is gone already, or of another thread, can't be destroyed from here.
        if (m_hWnd != nullptr) Detach();
    }
}

CWnd* CWnd::FromHandle(HWND hWnd) { return thread_state().m_windows.FromHandle(hWnd); }
CWnd* CWnd::FromHandlePermanent(HWND hWnd) { return thread_state().m_windows.LookupPermanent(hWnd); }
void CWnd::DeleteTempMap() { thread_state().m_windows.DeleteTemp(); }

BOOL CWnd::Attach(HWND hWndNew) {
    if (hWndNew == nullptr) return FALSE;
    if (CWnd* present = FromHandlePermanent(hWndNew)) return present == this;
    if (m_hWnd != nullptr) {
        if (::IsWindow(m_hWnd)) return FALSE;
        Detach();  // Its window went without telling.
    }
    thread_state().m_windows.SetPermanent(hWndNew, this);
    m_hWnd = hWndNew;
    return TRUE;
}

HWND CWnd::Detach() {
    HWND hWnd = m_hWnd;
    DetachFromMap();
    m_hWnd = nullptr;
    return hWnd;
}

void CWnd::DetachFromMap() {
    if (m_hWnd != nullptr) thread_state().m_windows.RemoveHandle(m_hWnd, this);
}

void CWnd::PreSubclassWindow() {}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (!Attach(hWnd)) return FALSE;
    PreSubclassWindow();
    auto previous = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxWndProc)));
    WNDPROC* super = GetSuperWndProcAddr();
    if (previous != AfxWndProc) *super = previous;
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    HWND control = ::GetDlgItem(kmfc::safe_handle(pParent), static_cast<int>(nID));
    return control != nullptr && SubclassWindow(control);
}

HWND CWnd::UnsubclassWindow() {
    WNDPROC* super = GetSuperWndProcAddr();
    if (*super != nullptr) ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
    *super = nullptr;
    return Detach();
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return TRUE;
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext) {
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, kmfc::safe_handle(pParentWnd),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x,
                    int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam) {
    CREATESTRUCT cs = {};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    HWND hWnd =
        ::CreateWindowExW(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y,
                          cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    const DWORD error = ::GetLastError();
    if (!AfxUnhookWindowCreate()) PostNcDestroy();
    if (hWnd == nullptr) ::SetLastError(error);
    return hWnd != nullptr;
}

BOOL CWnd::DestroyWindow() {
    if (m_hWnd == nullptr) return FALSE;
    const HWND hWnd = m_hWnd;
    const bool permanent = FromHandlePermanent(hWnd) != nullptr;
    const BOOL result = ::DestroyWindow(hWnd);
    // A window that is not subclassed never sees WM_NCDESTROY here. One that does may have deleted the
    // object.
    if (!permanent)
        m_hWnd = nullptr;
    else if (result && FromHandlePermanent(hWnd) == this)
        Detach();
    return result;
}

void CWnd::OnNcDestroy() {
    if (CWinThread* thread = AfxGetThread(); thread != nullptr) {
        if (thread->m_pMainWnd == this) {
            thread->m_pMainWnd = nullptr;
            AfxPostQuitMessage(0);
        }
        if (thread->m_pActiveWnd == this) thread->m_pActiveWnd = nullptr;
    }
    if (m_nFlags & (WF_TOOLTIPS | WF_TRACKINGTOOLTIPS)) EnableToolTips(FALSE);
    if (m_nFlags & WF_CONTINUEMODAL) EndDestroyedModalLoop();

    const auto before = reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(m_hWnd, GWLP_WNDPROC));
    Default();
    // Whoever subclassed this window below us has gone by now, unless the procedure is still ours.
    if (m_hWnd != nullptr && reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(m_hWnd, GWLP_WNDPROC)) == before) {
        if (WNDPROC super = *GetSuperWndProcAddr())
            ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(super));
    }
    Detach();
    m_pfnSuper = nullptr;
    PostNcDestroy();
}

void CWnd::PostNcDestroy() {}

void CWnd::DoDataExchange(CDataExchange*) {}

BOOL CWnd::CheckAutoCenter() { return FALSE; }

BOOL CWnd::UpdateData(BOOL bSaveAndValidate) {
    CDataExchange exchange(this, bSaveAndValidate);
    try {
        DoDataExchange(&exchange);
        return TRUE;
    } catch (CUserException* e) {
        e->Delete();  // Fail has told the user already.
    } catch (CException* e) {
        e->ReportError(MB_ICONEXCLAMATION, AFX_IDP_INTERNAL_FAILURE);
        e->Delete();
    }
    return FALSE;
}
