// CFrameWndEx, and what every frame with a docking manager asks it.
#include <kmfc/frame_ex.h>
#include <kmfc/pane_frame_wnd.h>
#include <kmfc/win_app_ex.h>

#include "../window/frame_menu.h"
#include "frame_state.h"

IMPLEMENT_DYNCREATE(CFrameWndEx, CFrameWnd)

BEGIN_MESSAGE_MAP(CFrameWndEx, CFrameWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_ACTIVATE()
    ON_WM_NCACTIVATE()
    ON_WM_SYSCOMMAND()
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CFrameWndEx::OnIdleUpdateCmdUI)
    ON_REGISTERED_MESSAGE(kmfc::frame_menu_message, &CFrameWndEx::OnFrameMenu)
    ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, &CFrameWndEx::OnUpdatePaneMenu)
    ON_COMMAND_EX(ID_VIEW_TOOLBAR, &CFrameWndEx::OnPaneCheck)
    ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, &CFrameWndEx::OnUpdatePaneMenu)
    ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &CFrameWndEx::OnPaneCheck)
END_MESSAGE_MAP()

CFrameWndEx::CFrameWndEx() = default;
CFrameWndEx::~CFrameWndEx() = default;

void CDockingManager::frame_is_loaded() {
    if (auto* app = dynamic_cast<CWinAppEx*>(AfxGetApp())) app->load_frame(m_pParentWnd, this, nullptr);
}

void CDockingManager::frame_closes() {
    // The main window's state is kept while its panes are still there.
    auto* app = dynamic_cast<CWinAppEx*>(AfxGetApp());
    if (app != nullptr && app->m_pMainWnd == m_pParentWnd) app->save_frame(m_pParentWnd, this, nullptr);
}

bool CDockingManager::ends_drag(const MSG& message) {
    if (!is_dragging() || message.message != WM_KEYDOWN || message.wParam != VK_ESCAPE) return false;
    end_drag(true);
    return true;
}

bool CDockingManager::stays_active() const {
    const MSG* message = CWnd::GetCurrentMessage();
    HWND other = reinterpret_cast<HWND>(message->lParam);
    if (other == nullptr) other = ::GetActiveWindow();
    if (other == m_pParentWnd->m_hWnd || !::IsWindow(other)) return false;
    const CWnd* next = CWnd::FromHandlePermanent(other);
    return next != nullptr && ::GetWindow(other, GW_OWNER) == m_pParentWnd->m_hWnd &&
           next->IsKindOf(RUNTIME_CLASS(CPaneFrameWnd));
}
