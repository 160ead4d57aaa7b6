// CMDIFrameWnd: the client window, the menus, and commands on the way to the active child.
#include <kmfc/doc_template.h>
#include <kmfc/document.h>
#include <kmfc/mdi_frame.h>
#include <kmfc/view.h>

#include "frame_menu.h"

IMPLEMENT_DYNCREATE(CMDIFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWnd, CFrameWnd)
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_ACTIVATE()
    ON_UPDATE_COMMAND_UI(ID_WINDOW_ARRANGE, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_CASCADE, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_TILE_HORZ, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_TILE_VERT, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_NEW, &CMDIFrameWnd::OnUpdateMDIWindowCmd)
    ON_COMMAND_EX(ID_WINDOW_ARRANGE, &CMDIFrameWnd::OnMDIWindowCmd)
    ON_COMMAND_EX(ID_WINDOW_CASCADE, &CMDIFrameWnd::OnMDIWindowCmd)
    ON_COMMAND_EX(ID_WINDOW_TILE_HORZ, &CMDIFrameWnd::OnMDIWindowCmd)
    ON_COMMAND_EX(ID_WINDOW_TILE_VERT, &CMDIFrameWnd::OnMDIWindowCmd)
    ON_COMMAND(ID_WINDOW_NEW, &CMDIFrameWnd::OnWindowNew)
END_MESSAGE_MAP()

CMDIFrameWnd::CMDIFrameWnd() = default;
CMDIFrameWnd::~CMDIFrameWnd() = default;

BOOL CMDIFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    if (!CFrameWnd::PreCreateWindow(cs)) return FALSE;
    // The system adds the name of a maximised child behind the title, so that ours stands behind as well.
    cs.style &= ~static_cast<LONG>(FWS_PREFIXTITLE);
    return TRUE;
}

LRESULT CMDIFrameWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefFrameProcW(m_hWnd, m_hWndMDIClient, message, wParam, lParam);
}

BOOL CMDIFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                             CCreateContext* pContext) {
    if (!CFrameWnd::LoadFrame(nIDResource, dwDefaultStyle, pParentWnd, pContext)) return FALSE;
    m_hMenuDefault = kmfc::menu_of_frame(m_hWnd);
    return TRUE;
}

BOOL CMDIFrameWnd::OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext*) {
    CMenu* menu = nullptr;
    if (HMENU bar = lpcs->hMenu) {
        HMENU windows = GetWindowMenuPopup(bar);
        menu = windows != nullptr ? CMenu::FromHandle(windows) : nullptr;
    }
    return CreateClient(lpcs, menu);
}

BOOL CMDIFrameWnd::CreateClient(LPCREATESTRUCT, CMenu* pWindowMenu) {
    CLIENTCREATESTRUCT client = {};
    client.hWindowMenu = pWindowMenu != nullptr ? pWindowMenu->m_hMenu : nullptr;
    client.idFirstChild = AFX_IDM_FIRST_MDICHILD;
    m_hWndMDIClient = ::CreateWindowExW(WS_EX_CLIENTEDGE, L"MDICLIENT", nullptr,
                                        WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS |
                                            WS_HSCROLL | WS_VSCROLL | MDIS_ALLCHILDSTYLES,
                                        0, 0, 0, 0, m_hWnd,
                                        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(AFX_IDW_PANE_FIRST)),
                                        AfxGetInstanceHandle(), &client);
    return m_hWndMDIClient != nullptr;
}

HMENU CMDIFrameWnd::GetWindowMenuPopup(HMENU hMenuBar) {
    const int count = hMenuBar != nullptr ? ::GetMenuItemCount(hMenuBar) : 0;
    // The last is the usual place.
    for (int i = count - 1; i >= 0; --i) {
        HMENU menu = ::GetSubMenu(hMenuBar, i);
        for (int k = menu != nullptr ? ::GetMenuItemCount(menu) - 1 : -1; k >= 0; --k) {
            const UINT id = ::GetMenuItemID(menu, k);
            if (id >= AFX_IDM_WINDOW_FIRST && id <= AFX_IDM_WINDOW_LAST) return menu;
        }
    }
    return nullptr;
}

CMDIChildWnd* CMDIFrameWnd::CreateNewChild(CRuntimeClass* pClass, UINT nResource, HMENU hMenu,
                                           HACCEL hAccel) {
    ENSURE_ARG(pClass != nullptr);
    auto* child = DYNAMIC_DOWNCAST(CMDIChildWnd, pClass->CreateObject());
    if (child == nullptr) return nullptr;
    child->SetHandles(hMenu, hAccel);
    if (!child->LoadFrame(nResource, WS_OVERLAPPEDWINDOW, this)) return nullptr;
    child->ActivateFrame();
    return child;
}

void CMDIFrameWnd::MDIActivate(CWnd* pWndActivate) {
    ::SendMessageW(m_hWndMDIClient, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(pWndActivate->m_hWnd), 0);
}

CMDIChildWnd* CMDIFrameWnd::MDIGetActive(BOOL* pbMaximized) const {
    if (pbMaximized != nullptr) *pbMaximized = FALSE;
    if (m_hWndMDIClient == nullptr) return nullptr;
    BOOL maximized = FALSE;
    auto window = reinterpret_cast<HWND>(
        ::SendMessageW(m_hWndMDIClient, WM_MDIGETACTIVE, 0, reinterpret_cast<LPARAM>(&maximized)));
    auto* child = DYNAMIC_DOWNCAST(CMDIChildWnd, CWnd::FromHandlePermanent(window));
    // A child that is made but not shown yet is none for the user.
    if (child == nullptr || (child->GetStyle() & WS_VISIBLE) == 0) return nullptr;
    if (pbMaximized != nullptr) *pbMaximized = maximized;
    return child;
}

void CMDIFrameWnd::MDIIconArrange() { ::SendMessageW(m_hWndMDIClient, WM_MDIICONARRANGE, 0, 0); }
void CMDIFrameWnd::MDIMaximize(CWnd* pWnd) {
    ::SendMessageW(m_hWndMDIClient, WM_MDIMAXIMIZE, reinterpret_cast<WPARAM>(pWnd->m_hWnd), 0);
}
void CMDIFrameWnd::MDIRestore(CWnd* pWnd) {
    ::SendMessageW(m_hWndMDIClient, WM_MDIRESTORE, reinterpret_cast<WPARAM>(pWnd->m_hWnd), 0);
}
void CMDIFrameWnd::MDINext() { ::SendMessageW(m_hWndMDIClient, WM_MDINEXT, 0, FALSE); }
void CMDIFrameWnd::MDIPrev() { ::SendMessageW(m_hWndMDIClient, WM_MDINEXT, 0, TRUE); }
void CMDIFrameWnd::MDITile() { ::SendMessageW(m_hWndMDIClient, WM_MDITILE, 0, 0); }
void CMDIFrameWnd::MDITile(int nType) {
    ::SendMessageW(m_hWndMDIClient, WM_MDITILE, static_cast<WPARAM>(nType), 0);
}
void CMDIFrameWnd::MDICascade() { ::SendMessageW(m_hWndMDIClient, WM_MDICASCADE, 0, 0); }
void CMDIFrameWnd::MDICascade(int nType) {
    ::SendMessageW(m_hWndMDIClient, WM_MDICASCADE, static_cast<WPARAM>(nType), 0);
}

CMenu* CMDIFrameWnd::MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu) {
    HMENU bar = pFrameMenu != nullptr ? pFrameMenu->m_hMenu : nullptr;
    HMENU windows = pWindowMenu != nullptr ? pWindowMenu->m_hMenu : nullptr;
    return CMenu::FromHandle(kmfc::set_frame_menu(m_hWnd, m_hWndMDIClient, bar, windows));
}

CFrameWnd* CMDIFrameWnd::GetActiveFrame() {
    CMDIChildWnd* child = MDIGetActive();
    return child != nullptr ? static_cast<CFrameWnd*>(child) : this;
}

void CMDIFrameWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
    if ((GetStyle() & FWS_ADDTOTITLE) == 0) return;
    BOOL maximized = FALSE;
    CMDIChildWnd* child = MDIGetActive(&maximized);
    CDocument* document = child != nullptr && bAddToTitle ? child->GetActiveDocument() : nullptr;
    // The system names a maximised child by itself.
    UpdateFrameTitleForDocument(document != nullptr && !maximized ? document->GetTitle().GetString()
                                                                  : nullptr);
}

BOOL CMDIFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    CMDIChildWnd* child = MDIGetActive();
    if (child != nullptr && child->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
    return CFrameWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CMDIFrameWnd::PreTranslateMessage(MSG* pMsg) {
    CMDIChildWnd* child = MDIGetActive();
    const bool key = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    // The child's accelerators go before those of the frame.
    if (key && child != nullptr && child->PreTranslateMessage(pMsg)) return TRUE;
    if (CFrameWnd::PreTranslateMessage(pMsg)) return TRUE;
    const bool systemKey = pMsg->message == WM_KEYDOWN || pMsg->message == WM_SYSKEYDOWN;
    return systemKey && m_hWndMDIClient != nullptr && ::TranslateMDISysAccel(m_hWndMDIClient, pMsg);
}

BOOL CMDIFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (CFrameWnd::OnCommand(wParam, lParam)) return TRUE;
    const UINT id = LOWORD(wParam);
    // The list of windows in the menu, and the commands of a maximised child's buttons.
    if (lParam != 0 || (id < AFX_IDM_FIRST_MDICHILD && (id < SC_SIZE || id > SC_CONTEXTHELP))) return FALSE;
    DefWindowProc(WM_COMMAND, wParam, lParam);
    return TRUE;
}

void CMDIFrameWnd::OnDestroy() {
    // The window takes its menu along, and must not take that of a template.
    if (m_hMenuDefault != nullptr && ::GetMenu(m_hWnd) != m_hMenuDefault) ::SetMenu(m_hWnd, m_hMenuDefault);
    CFrameWnd::OnDestroy();
}

void CMDIFrameWnd::OnSize(UINT nType, int, int) {
    // The default would give the client window all the room.
    if (nType != SIZE_MINIMIZED) RecalcLayout();
}

void CMDIFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
    CFrameWnd::OnActivate(nState, pWndOther, bMinimized);
    CMDIChildWnd* child = MDIGetActive();
    if (child != nullptr && nState != WA_INACTIVE && !bMinimized && child->GetActiveView() == nullptr)
        child->SetFocus();
}

void CMDIFrameWnd::OnUpdateMDIWindowCmd(CCmdUI* pCmdUI) { pCmdUI->Enable(MDIGetActive() != nullptr); }

BOOL CMDIFrameWnd::OnMDIWindowCmd(UINT nID) {
    switch (nID) {
        case ID_WINDOW_ARRANGE: MDIIconArrange(); return TRUE;
        case ID_WINDOW_CASCADE: MDICascade(); return TRUE;
        case ID_WINDOW_TILE_HORZ: MDITile(MDITILE_HORIZONTAL); return TRUE;
        case ID_WINDOW_TILE_VERT: MDITile(MDITILE_VERTICAL); return TRUE;
        default: return FALSE;
    }
}

void CMDIFrameWnd::OnWindowNew() {
    CMDIChildWnd* active = MDIGetActive();
    CDocument* document = active != nullptr ? active->GetActiveDocument() : nullptr;
    CDocTemplate* kind = document != nullptr ? document->GetDocTemplate() : nullptr;
    CFrameWnd* frame = kind != nullptr ? kind->CreateNewFrame(document, active) : nullptr;
    if (frame == nullptr)
        AfxMessageBox(AFX_IDP_COMMAND_FAILURE);
    else
        kind->InitialUpdateFrame(frame, document);
}
