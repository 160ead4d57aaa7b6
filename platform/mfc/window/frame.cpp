// CFrameWnd: menu, accelerators, messages, command routing, modal state.
#include <kmfc/control_bar.h>
#include <kmfc/doc_template.h>
#include <kmfc/document.h>
#include <kmfc/frame.h>
#include <kmfc/status_bar.h>
#include <kmfc/mini_frame.h>
#include <kmfc/preview_view.h>
#include <kmfc/view.h>

#include "../bars/control_bar_desk.h"
#include "thread_state.h"

const CRect CFrameWnd::rectDefault(CW_USEDEFAULT, CW_USEDEFAULT, 0, 0);

IMPLEMENT_DYNCREATE(CFrameWnd, CWnd)

BEGIN_MESSAGE_MAP(CFrameWnd, CWnd)
    ON_WM_CREATE()
    ON_WM_CLOSE()
    ON_WM_DESTROY()
    ON_WM_SIZE()
    ON_WM_ACTIVATE()
    ON_WM_SETFOCUS()
    ON_WM_DROPFILES()
    ON_WM_QUERYENDSESSION()
    ON_WM_ENDSESSION()
    ON_WM_INITMENUPOPUP()
    ON_WM_MENUSELECT()
    ON_MESSAGE(WM_SETMESSAGESTRING, &CFrameWnd::OnSetMessageString)
    ON_MESSAGE(WM_COMMANDHELP, &CFrameWnd::OnCommandHelp)
    ON_MESSAGE(WM_POPMESSAGESTRING, &CFrameWnd::OnPopMessageString)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWnd::OnIdleUpdateCmdUI)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, &CFrameWnd::OnToolTipText)
    ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_COMMAND_EX(ID_VIEW_TOOLBAR, &CFrameWnd::OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, &CFrameWnd::OnUpdateControlBarMenu)
    ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &CFrameWnd::OnBarCheck)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_CAPS, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_NUM, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_SCRL, &CFrameWnd::OnUpdateKeyIndicator)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_KANA, &CFrameWnd::OnUpdateKeyIndicator)
END_MESSAGE_MAP()

CFrameWnd::CFrameWnd() = default;
CFrameWnd::~CFrameWnd() = default;

BOOL CFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1));
    if ((static_cast<DWORD>(cs.style) & FWS_ADDTOTITLE) != 0) cs.style |= static_cast<LONG>(FWS_PREFIXTITLE);
    return TRUE;
}

BOOL CFrameWnd::LoadAccelTable(LPCTSTR lpszResourceName) {
    m_hAccelTable =
        ::LoadAcceleratorsW(AfxFindResourceHandle(lpszResourceName, RT_ACCELERATOR), lpszResourceName);
    return m_hAccelTable != nullptr;
}

BOOL CFrameWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                       CWnd* pParentWnd, LPCTSTR lpszMenuName, DWORD dwExStyle, CCreateContext* pContext) {
    HMENU menu = nullptr;
    if (lpszMenuName != nullptr) {
        menu = ::LoadMenuW(AfxFindResourceHandle(lpszMenuName, RT_MENU), lpszMenuName);
        if (menu == nullptr) {
            PostNcDestroy();
            return FALSE;
        }
    }
    m_strTitle = lpszWindowName;
    // The distances wrap around, so that CW_USEDEFAULT without a right edge is that width.
    const UINT width = static_cast<UINT>(rect.right) - static_cast<UINT>(rect.left);
    const UINT height = static_cast<UINT>(rect.bottom) - static_cast<UINT>(rect.top);
    if (CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                 static_cast<int>(width), static_cast<int>(height), kmfc::safe_handle(pParentWnd), menu,
                 pContext))
        return TRUE;
    if (menu != nullptr) ::DestroyMenu(menu);
    return FALSE;
}

BOOL CFrameWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                          CCreateContext* pContext) {
    m_nIDHelp = nIDResource;
    CString full, title;
    if (full.LoadString(nIDResource)) AfxExtractSubString(title, full, 0);
    const LPCTSTR name = MAKEINTRESOURCEW(nIDResource);
    HICON icon = ::LoadIconW(AfxFindResourceHandle(name, RT_GROUP_ICON), name);
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                                    reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), icon);
    if (!Create(windowClass, title, dwDefaultStyle, rectDefault, pParentWnd, name, 0, pContext)) return FALSE;
    LoadAccelTable(name);
    return TRUE;
}

int CFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    return OnCreateHelper(lpCreateStruct, static_cast<CCreateContext*>(lpCreateStruct->lpCreateParams));
}

int CFrameWnd::OnCreateHelper(LPCREATESTRUCT lpcs, CCreateContext* pContext) {
    if (Default() == -1 || !OnCreateClient(lpcs, pContext)) return -1;
    RecalcLayout();
    return 0;
}

void CFrameWnd::OnClose() {
    if (m_pPreviewState != nullptr && !m_pPreviewState->lpfnCloseProc(this)) return;
    CDocument* document = GetActiveDocument();
    if (document != nullptr && !document->CanCloseFrame(this)) return;
    CWinApp* app = AfxGetApp();
    HWND const window = m_hWnd;
    if (app != nullptr && app->m_pMainWnd == this) {
        if (document == nullptr && !app->SaveAllModified()) return;
        app->HideApplication();
        // A document takes the frames that show it along, and this may be one.
        app->CloseAllDocuments(FALSE);
        if (::IsWindow(window)) DestroyWindow();
        return;
    }
    // The last frame of a document closes that.
    if (document != nullptr && document->m_bAutoDelete && m_nWindow == -1)
        document->OnCloseDocument();
    else
        DestroyWindow();
}

BOOL CFrameWnd::OnQueryEndSession() {
    CWinApp* app = AfxGetApp();
    return app == nullptr || app->m_pMainWnd != this || app->SaveAllModified();
}

void CFrameWnd::OnEndSession(BOOL bEnding) {
    CWinApp* app = AfxGetApp();
    if (!bEnding || app == nullptr || app->m_pMainWnd != this) return;
    // The session may end as soon as this returns.
    app->CloseAllDocuments(TRUE);
    app->ExitInstance();
}

void CFrameWnd::OnDropFiles(HDROP hDropInfo) {
    SetActiveWindow();
    const UINT count = ::DragQueryFileW(hDropInfo, 0xFFFFFFFF, nullptr, 0);
    CWinApp* app = AfxGetApp();
    for (UINT i = 0; i < count && app != nullptr; ++i) {
        CString path;
        ::DragQueryFileW(hDropInfo, i, path.GetBuffer(MAX_PATH * 4), MAX_PATH * 4);
        path.ReleaseBuffer();
        app->OpenDocumentFile(path);
    }
    ::DragFinish(hDropInfo);
}

void CFrameWnd::OnDestroy() {
    // The menu belongs to the window and goes with it.
    CWnd::OnDestroy();
}

void CFrameWnd::PostNcDestroy() { delete this; }

namespace {

struct Activation {
    HWND owner;
    BOOL active;
};

/// Captions of mini frames follow that of their owner.
BOOL CALLBACK follow_owner(HWND window, LPARAM activation) {
    const auto& change = *reinterpret_cast<const Activation*>(activation);
    const bool follows = ::GetWindow(window, GW_OWNER) == change.owner &&
                         (::GetWindowLongPtrW(window, GWL_STYLE) & MFS_SYNCACTIVE) != 0 &&
                         DYNAMIC_DOWNCAST(CMiniFrameWnd, CWnd::FromHandlePermanent(window)) != nullptr;
    if (follows) ::SendMessageW(window, WM_NCACTIVATE, static_cast<WPARAM>(change.active), 0);
    return TRUE;
}

}  // namespace

void CFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
    CWnd::OnActivate(nState, pWndOther, bMinimized);
    Activation change{m_hWnd, nState != WA_INACTIVE};
    ::EnumThreadWindows(::GetCurrentThreadId(), follow_owner, reinterpret_cast<LPARAM>(&change));
    CFrameWnd* active = GetActiveFrame();
    CView* view = active != nullptr ? active->GetActiveView() : nullptr;
    if (view == nullptr) return;
    if (nState != WA_INACTIVE && !bMinimized) view->OnActivateView(TRUE, view, view);
    view->OnActivateFrame(nState, this);
}

void CFrameWnd::OnSetFocus(CWnd* pOldWnd) {
    if (m_pViewActive != nullptr)
        m_pViewActive->SetFocus();
    else
        CWnd::OnSetFocus(pOldWnd);
}

void CFrameWnd::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    if (nType != SIZE_MINIMIZED) RecalcLayout();
}

void CFrameWnd::RecalcLayout(BOOL) {
    m_isLayoutPending = false;
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposExtra, &m_rectBorder);
}

void CFrameWnd::ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay) {
    pBar->delay_show(bShow != FALSE);
    m_isLayoutPending = true;
    if (pBar->IsFloating()) {
        // Nobody's layout waits for it.
        pBar->end_pending();
        m_bars->show_floating(*pBar);
    }
    if (!bDelay) RecalcLayout(FALSE);
}

CControlBar* CFrameWnd::GetControlBar(UINT nID) {
    if (nID == 0) return nullptr;
    CControlBar* const child = DYNAMIC_DOWNCAST(CControlBar, GetDlgItem(static_cast<int>(nID)));
    return child == nullptr && m_bars != nullptr ? m_bars->bar(nID) : child;
}

void CFrameWnd::ActivateFrame(int nCmdShow) {
    if (nCmdShow == -1) nCmdShow = IsIconic() ? SW_RESTORE : SW_SHOW;
    BringWindowToTop();
    ShowWindow(nCmdShow);
    ::SetForegroundWindow(::GetLastActivePopup(m_hWnd));
}

BOOL CFrameWnd::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) return TRUE;
    if (m_bars != nullptr && m_bars->takes(*pMsg)) return TRUE;
    const bool key = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    return key && m_hAccelTable != nullptr && ::TranslateAcceleratorW(m_hWnd, m_hAccelTable, pMsg);
}

BOOL CFrameWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (m_pViewActive != nullptr && m_pViewActive->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
    CWinApp* app = AfxGetApp();
    return app != nullptr && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CFrameWnd::OnCommand(WPARAM wParam, LPARAM lParam) { return CWnd::OnCommand(wParam, lParam); }

void CFrameWnd::OnInitMenuPopup(CMenu* pPopupMenu, UINT, BOOL bSysMenu) {
    Default();
    if (bSysMenu) return;
    CCmdUI request;
    request.m_pMenu = pPopupMenu;
    request.m_nIndexMax = static_cast<UINT>(pPopupMenu->GetMenuItemCount());
    for (request.m_nIndex = 0; request.m_nIndex < request.m_nIndexMax; ++request.m_nIndex) {
        request.m_nID = pPopupMenu->GetMenuItemID(static_cast<int>(request.m_nIndex));
        if (request.m_nID == 0) continue;
        if (request.m_nID == static_cast<UINT>(-1)) {
            // A popup is updated by its first item, which may enable or disable all of it.
            request.m_pSubMenu = pPopupMenu->GetSubMenu(static_cast<int>(request.m_nIndex));
            if (request.m_pSubMenu == nullptr) continue;
            request.m_nID = request.m_pSubMenu->GetMenuItemID(0);
            if (request.m_nID == 0 || request.m_nID == static_cast<UINT>(-1)) continue;
            request.DoUpdate(this, FALSE);
        } else {
            request.m_pSubMenu = nullptr;
            request.DoUpdate(this, m_bAutoMenuEnable && request.m_nID < 0xF000);
        }
        const UINT count = static_cast<UINT>(pPopupMenu->GetMenuItemCount());
        if (count < request.m_nIndexMax) {
            // The handler took items away; go on behind them.
            request.m_nIndex -= request.m_nIndexMax - count;
        }
        request.m_nIndexMax = count;
    }
}

void CFrameWnd::OnMenuSelect(UINT nItemID, UINT nFlags, HMENU) {
    m_isMenuUp = nFlags != 0xFFFF;
    if (nFlags == 0xFFFF) {
        m_nIDTracking = AFX_IDS_IDLEMESSAGE;
        SendMessage(WM_SETMESSAGESTRING, m_nIDTracking);
        return;
    }
    const bool none = nItemID == 0 || (nFlags & (MF_SEPARATOR | MF_POPUP)) != 0;
    m_nIDTracking = none ? 0 : nItemID;
    SendMessage(WM_SETMESSAGESTRING, m_nIDTracking);
}

void CFrameWnd::GetMessageString(UINT nID, CString& rMessage) const {
    CString full;
    rMessage.Empty();
    if (full.LoadString(nID)) AfxExtractSubString(rMessage, full, 0);
}

LRESULT CFrameWnd::OnSetMessageString(WPARAM wParam, LPARAM lParam) {
    const UINT previous = m_nIDLastMessage;
    CString text;
    if (lParam != 0)
        text = reinterpret_cast<LPCTSTR>(lParam);
    else if (wParam != 0)
        GetMessageString(static_cast<UINT>(wParam), text);
    if (CWnd* bar = GetMessageBar()) bar->SetWindowText(text);
    m_nIDLastMessage = m_nIDTracking = static_cast<UINT>(wParam);
    return static_cast<LRESULT>(previous);
}

CWnd* CFrameWnd::GetMessageBar() { return GetDescendantWindow(AFX_IDW_STATUS_BAR, TRUE); }

LRESULT CFrameWnd::OnPopMessageString(WPARAM wParam, LPARAM lParam) {
    return m_isMenuUp ? 0 : SendMessage(WM_SETMESSAGESTRING, wParam, lParam);
}

LRESULT CFrameWnd::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM) {
    if (m_bars != nullptr) m_bars->update_floating(wParam);
    // Bars that are to be shown or hidden wait for this.
    if (m_isLayoutPending) RecalcLayout(FALSE);
    // The first time, or after what is tracked was set by a derived class.
    if (m_nIDTracking != m_nIDLastMessage) SetMessageText(m_nIDTracking);
    return 0;
}

BOOL CFrameWnd::OnToolTipText(UINT, NMHDR* pNMHDR, LRESULT* pResult) {
    auto& question = *reinterpret_cast<NMTTDISPINFOW*>(pNMHDR);
    UINT_PTR id = pNMHDR->idFrom;
    if (question.uFlags & TTF_IDISHWND)
        id = static_cast<UINT_PTR>(static_cast<UINT>(::GetDlgCtrlID(reinterpret_cast<HWND>(id))));
    CString full;
    if (id == 0 || id > 0xFFFF || !full.LoadString(static_cast<UINT>(id))) return FALSE;
    if (!AfxExtractSubString(m_tipText, full, 1)) return FALSE;
    question.lpszText = const_cast<LPWSTR>(m_tipText.GetString());
    question.hinst = nullptr;
    *pResult = 0;
    return TRUE;
}

void CFrameWnd::OnUpdateControlBarMenu(CCmdUI* pCmdUI) {
    const CControlBar* bar = GetControlBar(pCmdUI->m_nID);
    if (bar == nullptr)
        pCmdUI->ContinueRouting();
    else
        pCmdUI->SetCheck(bar->IsVisible() ? 1 : 0);
}

BOOL CFrameWnd::OnBarCheck(UINT nID) {
    CControlBar* bar = GetControlBar(nID);
    if (bar == nullptr) return FALSE;
    ShowControlBar(bar, !bar->IsVisible(), FALSE);
    return TRUE;
}

void CFrameWnd::OnUpdateKeyIndicator(CCmdUI* pCmdUI) {
    int key = 0;
    switch (pCmdUI->m_nID) {
        case ID_INDICATOR_CAPS: key = VK_CAPITAL; break;
        case ID_INDICATOR_NUM: key = VK_NUMLOCK; break;
        case ID_INDICATOR_SCRL: key = VK_SCROLL; break;
        case ID_INDICATOR_KANA: key = VK_KANA; break;
        default: pCmdUI->ContinueRouting(); return;
    }
    pCmdUI->Enable(::GetKeyState(key) & 1);
}

void CFrameWnd::SetMessageText(LPCTSTR lpszText) {
    SendMessage(WM_SETMESSAGESTRING, 0, reinterpret_cast<LPARAM>(lpszText));
}
void CFrameWnd::SetMessageText(UINT nID) { SendMessage(WM_SETMESSAGESTRING, nID); }

void CFrameWnd::BeginModalState() {
    if (++m_cModalStack > 1) return;
    for (HWND other = ::GetWindow(::GetDesktopWindow(), GW_CHILD); other != nullptr;
         other = ::GetWindow(other, GW_HWNDNEXT)) {
        CWnd* wnd = FromHandlePermanent(other);
        if (wnd == nullptr || other == m_hWnd || !::IsWindowEnabled(other) || wnd->GetTopLevelOwner() != this)
            continue;
        ::EnableWindow(other, FALSE);
        m_disabledWindows.Add(static_cast<DWORD>(reinterpret_cast<UINT_PTR>(other)));
    }
    EnableWindow(FALSE);
}

void CFrameWnd::EndModalState() {
    if (m_cModalStack == 0 || --m_cModalStack > 0) return;
    for (INT_PTR i = 0; i < m_disabledWindows.GetSize(); ++i) {
        HWND other = reinterpret_cast<HWND>(static_cast<UINT_PTR>(m_disabledWindows[i]));
        if (::IsWindow(other)) ::EnableWindow(other, TRUE);
    }
    m_disabledWindows.RemoveAll();
    EnableWindow(TRUE);
}

LRESULT CFrameWnd::OnCommandHelp(WPARAM, LPARAM lParam) {
    if (lParam == 0 && m_nIDTracking != 0 && m_nIDTracking != AFX_IDS_IDLEMESSAGE)
        lParam = HID_BASE_COMMAND + static_cast<LPARAM>(m_nIDTracking);
    if (lParam == 0 && m_nIDHelp != 0) lParam = HID_BASE_RESOURCE + static_cast<LPARAM>(m_nIDHelp);
    CWinApp* app = AfxGetApp();
    if (lParam == 0 || app == nullptr) return FALSE;
    app->WinHelp(static_cast<DWORD_PTR>(lParam));
    return TRUE;
}
