// CMDIChildWnd: a document's frame inside the main window.
#include <kmfc/doc_template.h>
#include <kmfc/mdi_frame.h>
#include <kmfc/view.h>

#include "frame_menu.h"

IMPLEMENT_DYNCREATE(CMDIChildWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIChildWnd, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_MDIACTIVATE()
    ON_WM_MOUSEACTIVATE()
END_MESSAGE_MAP()

CMDIChildWnd::CMDIChildWnd() {
    // The line of messages is the main window's, which says by itself that the program is ready.
    m_nIDTracking = m_nIDLastMessage;
}
CMDIChildWnd::~CMDIChildWnd() = default;

LRESULT CMDIChildWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefMDIChildProcW(m_hWnd, message, wParam, lParam);
}

BOOL CMDIChildWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    return CFrameWnd::PreCreateWindow(cs);
}

void CMDIChildWnd::SetHandles(HMENU hMenu, HACCEL hAccel) {
    m_hMenuShared = hMenu;
    m_hAccelTable = hAccel;
}

BOOL CMDIChildWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                          CMDIFrameWnd* pParentWnd, CCreateContext* pContext) {
    if (pParentWnd == nullptr) pParentWnd = DYNAMIC_DOWNCAST(CMDIFrameWnd, AfxGetMainWnd());
    ENSURE_ARG(pParentWnd != nullptr && pParentWnd->m_hWndMDIClient != nullptr);
    m_strTitle = lpszWindowName;
    CREATESTRUCT cs = {};
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle | WS_CHILD);
    cs.x = rect.left;
    cs.y = rect.top;
    // The distances wrap around, so that CW_USEDEFAULT without a right edge is that width.
    cs.cx = static_cast<int>(static_cast<UINT>(rect.right) - static_cast<UINT>(rect.left));
    cs.cy = static_cast<int>(static_cast<UINT>(rect.bottom) - static_cast<UINT>(rect.top));
    cs.hwndParent = pParentWnd->m_hWnd;
    cs.hInstance = AfxGetInstanceHandle();
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    MDICREATESTRUCTW request = {};
    request.szClass = cs.lpszClass;
    request.szTitle = cs.lpszName;
    request.hOwner = cs.hInstance;
    request.x = cs.x;
    request.y = cs.y;
    request.cx = cs.cx;
    request.cy = cs.cy;
    request.style = static_cast<DWORD>(cs.style) & ~static_cast<DWORD>(WS_MAXIMIZE | WS_VISIBLE);
    request.lParam = reinterpret_cast<LPARAM>(pContext);
    AfxHookWindowCreate(this);
    auto window = reinterpret_cast<HWND>(
        ::SendMessageW(pParentWnd->m_hWndMDIClient, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&request)));
    if (!AfxUnhookWindowCreate()) PostNcDestroy();  // no handle came
    if (window == nullptr) return FALSE;
    if ((dwStyle & WS_VISIBLE) != 0) {
        ::BringWindowToTop(window);
        // A child beside a maximised one comes maximised as well.
        BOOL maximized = FALSE;
        ::SendMessageW(pParentWnd->m_hWndMDIClient, WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&maximized));
        ShowWindow(maximized || (dwStyle & WS_MAXIMIZE) != 0 ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL);
        ::SendMessageW(pParentWnd->m_hWndMDIClient, WM_MDIREFRESHMENU, 0, 0);
    }
    return TRUE;
}

BOOL CMDIChildWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                             CCreateContext* pContext) {
    m_nIDHelp = nIDResource;
    auto* kind =
        pContext != nullptr ? DYNAMIC_DOWNCAST(CMultiDocTemplate, pContext->m_pNewDocTemplate) : nullptr;
    if (m_hMenuShared == nullptr && m_hAccelTable == nullptr && kind != nullptr)
        SetHandles(kind->m_hMenuShared, kind->m_hAccelTable);
    CString full, title;
    if (full.LoadString(nIDResource)) AfxExtractSubString(title, full, 0);
    const LPCTSTR name = MAKEINTRESOURCEW(nIDResource);
    HICON icon = ::LoadIconW(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                                    reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), icon);
    auto* parent = pParentWnd != nullptr ? DYNAMIC_DOWNCAST(CMDIFrameWnd, pParentWnd) : nullptr;
    return Create(windowClass, title, dwDefaultStyle & ~static_cast<DWORD>(WS_VISIBLE), rectDefault, parent,
                  pContext);
}

int CMDIChildWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    const auto* request = static_cast<const MDICREATESTRUCTW*>(lpCreateStruct->lpCreateParams);
    return OnCreateHelper(lpCreateStruct, reinterpret_cast<CCreateContext*>(request->lParam));
}

CMDIFrameWnd* CMDIChildWnd::GetMDIFrame() {
    return static_cast<CMDIFrameWnd*>(CWnd::FromHandle(::GetParent(::GetParent(m_hWnd))));
}

void CMDIChildWnd::MDIDestroy() {
    ::SendMessageW(::GetParent(m_hWnd), WM_MDIDESTROY, reinterpret_cast<WPARAM>(m_hWnd), 0);
}
void CMDIChildWnd::MDIActivate() {
    ::SendMessageW(::GetParent(m_hWnd), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}
void CMDIChildWnd::MDIMaximize() {
    ::SendMessageW(::GetParent(m_hWnd), WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}
void CMDIChildWnd::MDIRestore() {
    ::SendMessageW(::GetParent(m_hWnd), WM_MDIRESTORE, reinterpret_cast<WPARAM>(m_hWnd), 0);
}

BOOL CMDIChildWnd::DestroyWindow() {
    if (m_hWnd == nullptr) return FALSE;
    // The object goes with its window; what follows needs the frame.
    HWND const window = m_hWnd;
    CMDIFrameWnd* frame = GetMDIFrame();
    MDIDestroy();
    if (::IsWindow(frame->m_hWnd)) frame->OnUpdateFrameTitle(TRUE);
    return !::IsWindow(window);
}

void CMDIChildWnd::ActivateFrame(int nCmdShow) {
    const bool visible = IsWindowVisible() != FALSE;
    if (nCmdShow == -1) {
        if (!visible)
            nCmdShow = SW_SHOWNORMAL;
        else if (IsIconic())
            nCmdShow = SW_RESTORE;
    }
    CMDIFrameWnd* frame = GetMDIFrame();
    BOOL maximized = FALSE;
    CMDIChildWnd* active = frame->MDIGetActive(&maximized);
    if (!visible && maximized && active != this) nCmdShow = SW_SHOWMAXIMIZED;
    BringWindowToTop();
    if (nCmdShow != -1) {
        ShowWindow(nCmdShow);
        // A child that is shown for the first time is not the active one for the system.
        MDIActivate();
        ::SendMessageW(frame->m_hWndMDIClient, WM_MDIREFRESHMENU, 0, 0);
    } else {
        MDIActivate();
    }
    frame->OnUpdateFrameTitle(TRUE);
}

void CMDIChildWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
    GetMDIFrame()->OnUpdateFrameTitle(bAddToTitle);
    if ((GetStyle() & FWS_ADDTOTITLE) == 0) return;
    CDocument* document = bAddToTitle ? GetActiveDocument() : nullptr;
    CString text = m_strTitle;
    if (document != nullptr) {
        text = document->GetTitle();
        if (m_nWindow > 0) text.AppendFormat(L":%d", m_nWindow);
    }
    AfxSetWindowText(m_hWnd, text);
}

BOOL CMDIChildWnd::PreTranslateMessage(MSG* pMsg) {
    // Only what this window's own accelerators say: the walk goes on to the main window.
    if (CWnd::PreTranslateMessage(pMsg)) return TRUE;
    const bool key = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    return key && m_hAccelTable != nullptr &&
           ::TranslateAcceleratorW(GetMDIFrame()->m_hWnd, m_hAccelTable, pMsg);
}

CWnd* CMDIChildWnd::GetMessageBar() { return GetMDIFrame()->GetMessageBar(); }

void CMDIChildWnd::OnSize(UINT nType, int cx, int cy) {
    CFrameWnd::OnSize(nType, cx, cy);
    GetMDIFrame()->OnUpdateFrameTitle(TRUE);
}

int CMDIChildWnd::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) {
    const int answer = CFrameWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
    if (answer != MA_NOACTIVATE && answer != MA_NOACTIVATEANDEAT && GetMDIFrame()->MDIGetActive() != this)
        MDIActivate();
    return answer;
}

void CMDIChildWnd::OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd) {
    CFrameWnd::OnMDIActivate(bActivate, pActivateWnd, pDeactivateWnd);
    CMDIFrameWnd* frame = GetMDIFrame();
    CView* view = GetActiveView();
    if (view != nullptr) {
        view->OnActivateFrame(bActivate ? WA_ACTIVE : WA_INACTIVE, this);
        if (bActivate)
            view->OnActivateView(TRUE, view, view);
        else
            view->OnActivateView(FALSE, view, view);
    }
    HMENU menu = nullptr;
    if (bActivate)
        menu = m_hMenuShared != nullptr ? m_hMenuShared : frame->m_hMenuDefault;
    else if (pActivateWnd == nullptr)
        menu = frame->m_hMenuDefault;  // the last child goes
    if (menu != nullptr && menu != kmfc::menu_of_frame(frame->m_hWnd))
        kmfc::set_frame_menu(frame->m_hWnd, frame->m_hWndMDIClient, menu, frame->GetWindowMenuPopup(menu));
    frame->OnUpdateFrameTitle(TRUE);
}
