// CBasePane: styles, where it is, and what it passes on to its frame.
#include <kmfc/base_pane.h>
#include <kmfc/base_tabbed_pane.h>
#include <kmfc/docking_manager.h>
#include <kmfc/pane_frame_wnd.h>
#include <kmfc/visual_manager.h>

#include "../window/goes_to_owner.h"
#include "frame_state.h"

IMPLEMENT_DYNAMIC(CBasePane, CWnd)

BEGIN_MESSAGE_MAP(CBasePane, CWnd)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_CONTEXTMENU()
    ON_WM_WINDOWPOSCHANGING()
    ON_MESSAGE(WM_SIZEPARENT, &CBasePane::OnSizeParent)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CBasePane::OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

BOOL CBasePane::m_bSetTooltipTopmost = TRUE;

CBasePane::CBasePane() = default;
CBasePane::~CBasePane() {
    if (m_hWnd != nullptr) CWnd::DestroyWindow();
}

BOOL CBasePane::CreateEx(DWORD dwStyleEx, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                         const RECT& rect, CWnd* pParentWnd, UINT nID, DWORD dwControlBarStyle,
                         CCreateContext* pContext) {
    m_dwStyle = dwStyle & CBRS_ALL;
    m_dwControlBarStyle = dwControlBarStyle;
    m_isShown = (dwStyle & WS_VISIBLE) != 0;
    CWnd* frame = pParentWnd;
    while (frame != nullptr && !frame->IsFrameWnd()) frame = frame->GetParent();
    m_pDockSite = frame != nullptr ? frame : pParentWnd;
    return CWnd::CreateEx(dwStyleEx, lpszClassName, lpszWindowName, dwStyle & ~CBRS_ALL, rect, pParentWnd,
                          nID, pContext);
}

BOOL CBasePane::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    if (!CWnd::PreCreateWindow(cs)) return FALSE;
    cs.style |= WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    return TRUE;
}

int CBasePane::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) return -1;
    if (m_pDockSite != nullptr) SetOwner(m_pDockSite);
    return 0;
}

void CBasePane::OnDestroy() {
    if (CDockingManager* manager = GetDockingManager()) manager->forget(this);
    CWnd::OnDestroy();
}

CDockingManager* CBasePane::GetDockingManager() const { return kmfc::docking::manager_of(m_pDockSite); }

AFX_DOCK_TYPE CBasePane::GetDockingMode() const {
    return m_dockMode != DT_UNDEFINED ? m_dockMode : CDockingManager::GetDockingMode();
}

void CBasePane::SetPaneStyle(DWORD dwNewStyle) {
    if (m_dwStyle == dwNewStyle) return;
    m_dwStyle = dwNewStyle;
    if (m_hWnd != nullptr)
        ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0,
                       SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CBasePane::SetPaneAlignment(DWORD dwAlignment) {
    SetPaneStyle((m_dwStyle & ~CBRS_ALIGN_ANY) | dwAlignment);
}

void CBasePane::SetControlBarStyle(DWORD dwNewStyle) { m_dwControlBarStyle = dwNewStyle; }

HICON CBasePane::GetPaneIcon(BOOL bBigIcon) { return GetIcon(bBigIcon); }

BOOL CBasePane::CanAcceptPane(const CBasePane*) const { return FALSE; }

BOOL CBasePane::CanBeDocked(CBasePane* pDockBar) const {
    const DWORD side = pDockBar != nullptr ? pDockBar->GetCurrentAlignment() : CBRS_ALIGN_ANY;
    return (GetEnabledAlignment() & side) != 0;
}

CPaneFrameWnd* CBasePane::GetParentMiniFrame(BOOL) const {
    for (HWND window = m_hWnd; window != nullptr; window = ::GetAncestor(window, GA_PARENT))
        if (auto* frame = DYNAMIC_DOWNCAST(CPaneFrameWnd, CWnd::FromHandlePermanent(window))) return frame;
    return nullptr;
}

CBaseTabbedPane* CBasePane::GetParentTabbedPane() const {
    if (m_hWnd == nullptr) return nullptr;
    for (HWND window = ::GetAncestor(m_hWnd, GA_PARENT); window != nullptr;
         window = ::GetAncestor(window, GA_PARENT)) {
        auto* pane = DYNAMIC_DOWNCAST(CBasePane, CWnd::FromHandlePermanent(window));
        if (pane != nullptr) return pane->holds_tabs() ? static_cast<CBaseTabbedPane*>(pane) : nullptr;
    }
    return nullptr;
}

CMFCBaseTabCtrl* CBasePane::GetParentTabWnd(HWND& hWndTab) const {
    CBaseTabbedPane* tabbed = GetParentTabbedPane();
    CMFCBaseTabCtrl* control = tabbed != nullptr ? tabbed->GetUnderlyingWindow() : nullptr;
    hWndTab = control != nullptr ? control->m_hWnd : nullptr;
    return control;
}

BOOL CBasePane::IsTabbed() const { return GetParentTabbedPane() != nullptr; }
BOOL CBasePane::IsDocked() const { return GetParentMiniFrame() == nullptr; }
BOOL CBasePane::IsFloating() const { return GetParentMiniFrame() != nullptr; }
BOOL CBasePane::IsVisible() const { return m_hWnd != nullptr && m_isShown; }

void CBasePane::AddPane(CBasePane* pBar) {
    if (CDockingManager* manager = GetDockingManager()) manager->AddPane(pBar);
}

BOOL CBasePane::DockToFrameWindow(DWORD, LPCRECT, DWORD, CBasePane*, int, BOOL) { return FALSE; }
BOOL CBasePane::FloatPane(CRect, AFX_DOCK_METHOD, bool) { return FALSE; }
void CBasePane::UndockPane(BOOL) {}
CPaneFrameWnd* CBasePane::CreateDefaultMiniframe(CRect) { return nullptr; }

void CBasePane::ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate) {
    m_isShown = bShow != FALSE;
    if (m_hWnd == nullptr) return;
    ShowWindow(bShow ? SW_SHOWNA : SW_HIDE);
    CDockingManager* manager = GetDockingManager();
    if (manager != nullptr && bDelay)
        manager->layout_later();
    else
        AdjustDockingLayout();
    if (bShow && bActivate) SetFocus();
}

void CBasePane::RemovePaneFromDockManager(CBasePane* pBar, BOOL bDestroy, BOOL bAdjustLayout, BOOL bAutoHide,
                                          CBasePane* pBarReplacement) {
    if (CDockingManager* manager = GetDockingManager())
        manager->RemovePaneFromDockManager(pBar, bDestroy, bAdjustLayout, bAutoHide, pBarReplacement);
}

void CBasePane::AdjustDockingLayout(HDWP hdwp) {
    if (CDockingManager* manager = GetDockingManager()) manager->AdjustDockingLayout(hdwp);
}

void CBasePane::CopyState(CBasePane* pOrgBar) {
    m_dwStyle = pOrgBar->m_dwStyle;
    m_dwControlBarStyle = pOrgBar->m_dwControlBarStyle;
    m_dwEnabledAlignment = pOrgBar->m_dwEnabledAlignment;
    m_dockMode = pOrgBar->m_dockMode;
    m_pDockSite = pOrgBar->m_pDockSite;
    m_bRecentVisibleState = pOrgBar->m_bRecentVisibleState;
}

CSize CBasePane::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    constexpr int kUnlimited = 32767;
    return CSize(bStretch && bHorz ? kUnlimited : 0, bStretch && !bHorz ? kUnlimited : 0);
}

void CBasePane::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    UpdateDialogControls(pTarget, bDisableIfNoHndler);
}

void CBasePane::OnAfterChangeParent(CWnd*) {}
void CBasePane::OnBeforeChangeParent(CWnd*, BOOL) {}

HDWP CBasePane::MoveWindow(CRect& rect, BOOL bRepaint, HDWP hdwp) {
    return SetWindowPos(nullptr, rect.left, rect.top, rect.Width(), rect.Height(),
                        SWP_NOZORDER | SWP_NOACTIVATE | (bRepaint ? 0u : SWP_NOREDRAW), hdwp);
}

HDWP CBasePane::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags,
                             HDWP hdwp) {
    if (hdwp != nullptr)
        return ::DeferWindowPos(hdwp, m_hWnd, kmfc::safe_handle(pWndInsertAfter), x, y, cx, cy, nFlags);
    CWnd::SetWindowPos(pWndInsertAfter, x, y, cx, cy, nFlags);
    return nullptr;
}

BOOL CBasePane::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) return TRUE;
    CDockingManager* manager = GetDockingManager();
    if (manager == nullptr || !manager->is_dragging() || pMsg->message != WM_KEYDOWN) return FALSE;
    if (pMsg->wParam != VK_ESCAPE) return FALSE;
    manager->end_drag(true);
    return TRUE;
}

LRESULT CBasePane::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!kmfc::goes_to_owner(message)) return CWnd::WindowProc(message, wParam, lParam);
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result)) return result;
    CWnd* owner = GetOwner();
    if (owner != nullptr && owner != this) return owner->SendMessage(message, wParam, lParam);
    return DefWindowProc(message, wParam, lParam);
}

BOOL CBasePane::OnCommand(WPARAM wParam, LPARAM lParam) { return CWnd::OnCommand(wParam, lParam); }

void CBasePane::DoPaint(CDC* pDC) {
    CRect client;
    GetClientRect(&client);
    CMFCVisualManager::GetInstance()->OnFillBarBackground(pDC, this, client, client);
}

void CBasePane::OnPaint() {
    CPaintDC dc(this);
    DoPaint(&dc);
}

BOOL CBasePane::OnEraseBkgnd(CDC*) { return TRUE; }
void CBasePane::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    RecalcLayout();
}
void CBasePane::OnContextMenu(CWnd*, CPoint) { Default(); }
void CBasePane::OnWindowPosChanging(WINDOWPOS* lpwndpos) { CWnd::OnWindowPosChanging(lpwndpos); }

LRESULT CBasePane::OnSizeParent(WPARAM, LPARAM lParam) {
    auto& batch = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    const CDockingManager* manager = GetDockingManager();
    CRect place;
    if (batch.hDWP == nullptr || manager == nullptr || !manager->planned_rect(this, place)) return 0;
    CRect now;
    GetWindowRect(&now);
    ::MapWindowPoints(nullptr, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&now), 2);
    const bool visible = IsPaneVisible() != FALSE;
    if (now == place && visible) return 0;
    batch.hDWP =
        ::DeferWindowPos(batch.hDWP, m_hWnd, nullptr, place.left, place.top, place.Width(), place.Height(),
                         SWP_NOZORDER | SWP_NOACTIVATE | (visible ? 0u : SWP_SHOWWINDOW));
    return 0;
}

LRESULT CBasePane::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM) {
    if (!IsPaneVisible()) return 0;
    auto* frame = DYNAMIC_DOWNCAST(CFrameWnd, m_pDockSite);
    OnUpdateCmdUI(frame, wParam != 0);
    return 0;
}
