// CMDIFrameWndEx and CMDIChildWndEx.
#include "../window/frame_menu.h"
#include "document_groups.h"
#include "document_tabs.h"
#include "frame_state.h"

using kmfc::docking::DocumentGroups;
using kmfc::docking::DocumentHolder;
using kmfc::docking::DocumentTabs;

IMPLEMENT_DYNCREATE(CMDIFrameWndEx, CMDIFrameWnd)
IMPLEMENT_DYNCREATE(CMDIChildWndEx, CMDIChildWnd)

BEGIN_MESSAGE_MAP(CMDIFrameWndEx, CMDIFrameWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_CLOSE()
    ON_WM_ACTIVATE()
    ON_WM_NCACTIVATE()
    ON_WM_SYSCOMMAND()
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CMDIFrameWndEx::OnIdleUpdateCmdUI)
    ON_REGISTERED_MESSAGE(kmfc::frame_menu_message, &CMDIFrameWndEx::OnFrameMenu)
    ON_UPDATE_COMMAND_UI(ID_VIEW_TOOLBAR, &CMDIFrameWndEx::OnUpdatePaneMenu)
    ON_COMMAND_EX(ID_VIEW_TOOLBAR, &CMDIFrameWndEx::OnPaneCheck)
    ON_UPDATE_COMMAND_UI(ID_VIEW_STATUS_BAR, &CMDIFrameWndEx::OnUpdatePaneMenu)
    ON_COMMAND_EX(ID_VIEW_STATUS_BAR, &CMDIFrameWndEx::OnPaneCheck)
    ON_REGISTERED_MESSAGE(AFX_WM_CHANGE_ACTIVE_TAB, &CMDIFrameWndEx::OnChangeActiveTab)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_ARRANGE, &CMDIFrameWndEx::OnUpdateArranging)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_CASCADE, &CMDIFrameWndEx::OnUpdateArranging)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_TILE_HORZ, &CMDIFrameWndEx::OnUpdateArranging)
    ON_UPDATE_COMMAND_UI(ID_WINDOW_TILE_VERT, &CMDIFrameWndEx::OnUpdateArranging)
END_MESSAGE_MAP()

CMDIFrameWndEx::CMDIFrameWndEx()
    : m_tabs(std::make_unique<DocumentTabs>(*this)), m_groups(std::make_unique<DocumentGroups>(*this)) {}
CMDIFrameWndEx::~CMDIFrameWndEx() = default;

void CMDIFrameWndEx::EnableMDITabs(BOOL bEnable, BOOL bIcons, CMFCTabCtrl::Location tabLocation,
                                   BOOL bTabCloseButton, CMFCTabCtrl::Style style, BOOL bTabCustomTooltips,
                                   BOOL bActiveTabCloseButton) {
    if (m_hWnd == nullptr) return;
    if (bEnable) m_groups->stop();
    if (bEnable)
        m_tabs->start(bIcons != FALSE, tabLocation, bTabCloseButton != FALSE, style,
                      bTabCustomTooltips != FALSE, bActiveTabCloseButton != FALSE);
    else
        m_tabs->stop();
}

void CMDIFrameWndEx::EnableMDITabsLastActiveActivation(BOOL bLastActiveTab) {
    m_tabs->EnableActivateLastActive(bLastActiveTab);
    m_groups->activate_last(bLastActiveTab != FALSE);
}

BOOL CMDIFrameWndEx::AreMDITabs(int* pnMDITabsType) const {
    const int type = m_tabs->is_on() ? 1 : m_groups->is_on() ? 2 : 0;
    if (pnMDITabsType != nullptr) *pnMDITabsType = type;
    return type != 0;
}

void CMDIFrameWndEx::EnableMDITabbedGroups(BOOL bEnable, const CMDITabInfo& params) {
    if (m_hWnd == nullptr) return;
    if (!bEnable) return m_groups->stop();
    m_tabs->stop();
    m_groups->start(params);
}

BOOL CMDIFrameWndEx::IsMDITabbedGroup() const { return m_groups->is_on(); }
void CMDIFrameWndEx::MDITabNewGroup(BOOL bVert) { m_groups->new_group(bVert != FALSE); }
void CMDIFrameWndEx::MDITabMoveToNextGroup(BOOL bNext) { m_groups->move_active(bNext != FALSE); }
const CObList& CMDIFrameWndEx::GetMDITabGroups() const { return m_groups->list(); }
BOOL CMDIFrameWndEx::IsMemberOfMDITabGroup(CWnd* pWnd) { return m_groups->list().Find(pWnd) != nullptr; }
DWORD CMDIFrameWndEx::GetMDITabsContextMenuAllowedItems() { return m_groups->allowed(); }

DocumentHolder* CMDIFrameWndEx::document_holder() {
    if (m_tabs->is_on()) return m_tabs.get();
    return m_groups->is_on() ? m_groups.get() : nullptr;
}

BOOL CMDIFrameWndEx::PreTranslateMessage(MSG* pMsg) {
    return m_groups->ends_drag(*pMsg) || DockingFrame<CMDIFrameWnd>::PreTranslateMessage(pMsg);
}

CMFCTabCtrl& CMDIFrameWndEx::GetMDITabs() { return *m_tabs; }

void CMDIFrameWndEx::RecalcLayout(BOOL bNotify) {
    m_dockManager.layout_frame(m_rectBorder, [&] {
        if (!IsPrintPreview()) m_tabs->take_room(m_rectBorder);
        CMDIFrameWnd::RecalcLayout(bNotify);
        m_tabs->place();
    });
    m_groups->place();
    if (m_hWndMDIClient == nullptr) return;
    CRect now;
    ::GetWindowRect(m_hWndMDIClient, &now);
    ScreenToClient(&now);
    if (now == m_clientRect) return;
    const CRect former = m_clientRect;
    m_clientRect = now;
    OnSizeMDIClient(former, now);
}

BOOL CMDIFrameWndEx::OnSizeMDIClient(const CRect&, const CRect&) { return FALSE; }

LRESULT CMDIFrameWndEx::OnChangeActiveTab(WPARAM wParam, LPARAM lParam) {
    if (m_groups->chosen(reinterpret_cast<const CMFCBaseTabCtrl*>(lParam), static_cast<int>(wParam)))
        return 0;
    if (reinterpret_cast<CMFCBaseTabCtrl*>(lParam) != m_tabs.get()) return Default();
    m_tabs->chosen(static_cast<int>(wParam));
    return 0;
}

/// With tabs every document has all the room.
void CMDIFrameWndEx::OnUpdateArranging(CCmdUI* pCmdUI) {
    if (AreMDITabs())
        pCmdUI->Enable(FALSE);
    else
        OnUpdateMDIWindowCmd(pCmdUI);
}

BEGIN_MESSAGE_MAP(CMDIChildWndEx, CMDIChildWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_MDIACTIVATE()
    ON_WM_SYSCOMMAND()
    ON_MESSAGE(WM_SETTEXT, &CMDIChildWndEx::OnSetText)
END_MESSAGE_MAP()

CMDIChildWndEx::CMDIChildWndEx() = default;
CMDIChildWndEx::~CMDIChildWndEx() = default;

CDockingManager* CMDIChildWndEx::GetDockingManager() const {
    for (HWND window = m_hWnd; window != nullptr; window = ::GetAncestor(window, GA_PARENT))
        if (CDockingManager* manager = kmfc::docking::manager_of(CWnd::FromHandlePermanent(window)))
            return manager;
    return nullptr;
}

/// Null while there are none.
DocumentHolder* CMDIChildWndEx::tabs() const {
    HWND const main = m_hWnd != nullptr ? ::GetParent(::GetParent(m_hWnd)) : nullptr;
    auto* frame = DYNAMIC_DOWNCAST(CMDIFrameWndEx, CWnd::FromHandlePermanent(main));
    return frame != nullptr ? frame->document_holder() : nullptr;
}

CString CMDIChildWndEx::GetFrameText() const {
    CString text;
    GetWindowText(text);
    return text;
}

HICON CMDIChildWndEx::GetFrameIcon() const {
    if (m_hWnd == nullptr) return nullptr;
    auto icon = reinterpret_cast<HICON>(::SendMessageW(m_hWnd, WM_GETICON, ICON_SMALL, 0));
    if (icon == nullptr) icon = reinterpret_cast<HICON>(::GetClassLongPtrW(m_hWnd, GCLP_HICONSM));
    if (icon == nullptr) icon = reinterpret_cast<HICON>(::GetClassLongPtrW(m_hWnd, GCLP_HICON));
    return icon;
}

int CMDIChildWndEx::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    const int answer = CMDIChildWnd::OnCreate(lpCreateStruct);
    DocumentHolder* const all = tabs();
    if (answer != -1 && all != nullptr) all->add(*this);
    return answer;
}

void CMDIChildWndEx::OnDestroy() {
    if (DocumentHolder* all = tabs()) all->remove(*this);
    CMDIChildWnd::OnDestroy();
}

BOOL CMDIChildWndEx::DestroyWindow() {
    if (DocumentHolder* all = tabs()) all->make_way(*this);
    return CMDIChildWnd::DestroyWindow();
}

void CMDIChildWndEx::ActivateFrame(int nCmdShow) {
    if (const DocumentHolder* const all = tabs(); all != nullptr && !IsWindowVisible())
        nCmdShow = all->maximizes() ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
    CMDIChildWnd::ActivateFrame(nCmdShow);
}

void CMDIChildWndEx::OnUpdateFrameTitle(BOOL bAddToTitle) {
    CMDIChildWnd::OnUpdateFrameTitle(bAddToTitle);
    if (DocumentHolder* all = tabs()) all->rename(*this);
}

void CMDIChildWndEx::OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd) {
    CMDIChildWnd::OnMDIActivate(bActivate, pActivateWnd, pDeactivateWnd);
    DocumentHolder* const all = tabs();
    if (bActivate && all != nullptr) all->activate(*this);
}

LRESULT CMDIChildWndEx::OnSetText(WPARAM, LPARAM) {
    const LRESULT answer = Default();
    if (DocumentHolder* all = tabs()) all->rename(*this);
    return answer;
}

void CMDIChildWndEx::OnSysCommand(UINT nID, LPARAM lParam) {
    const UINT command = nID & 0xFFF0;
    const DocumentHolder* const all = tabs();
    // With tabs every document has all the room, or that of its group.
    if (all != nullptr && (command == SC_RESTORE || command == SC_MINIMIZE || command == SC_MOVE ||
                           command == SC_SIZE || (command == SC_MAXIMIZE && !all->maximizes())))
        return;
    CMDIChildWnd::OnSysCommand(nID, lParam);
}
