// CPaneFrameWnd: a floating frame, its pane and its look.
#include <kmfc/docking_manager.h>
#include <kmfc/global_data.h>
#include <kmfc/mem_dc.h>
#include <kmfc/pane_frame_wnd.h>
#include <kmfc/visual_manager.h>
#include <kmfc/window_dc.h>

#include "caption_buttons.h"
#include "core/caption_layout.h"
#include "frame_state.h"

using namespace kmfc::docking;

IMPLEMENT_DYNCREATE(CPaneFrameWnd, CWnd)

BOOL CPaneFrameWnd::m_bUseSaveBits = TRUE;

namespace {
constexpr int kBorder = 4;  // pixels at 96 dots an inch
}

CPaneFrameWnd::CPaneFrameWnd() = default;

CPaneFrameWnd::~CPaneFrameWnd() { delete_buttons(m_arrButtons); }

BOOL CPaneFrameWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | (m_bUseSaveBits ? CS_SAVEBITS : 0u),
                                           ::LoadCursorW(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    return CWnd::PreCreateWindow(cs);
}

BOOL CPaneFrameWnd::Create(LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                           CCreateContext* pContext) {
    return CreateEx(WS_EX_TOOLWINDOW, lpszWindowName, dwStyle, rect, pParentWnd, pContext);
}

BOOL CPaneFrameWnd::CreateEx(DWORD dwStyleEx, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                             CWnd* pParentWnd, CCreateContext* pContext) {
    const DWORD style = (dwStyle & ~(CBRS_ALL & ~CBRS_GRIPPER)) | WS_POPUP | WS_THICKFRAME | WS_CLIPCHILDREN;
    m_rectRecentFloatingRect = rect;
    return CWnd::CreateEx(dwStyleEx, nullptr, lpszWindowName, style, rect.left, rect.top,
                          rect.right - rect.left, rect.bottom - rect.top, kmfc::safe_handle(pParentWnd),
                          nullptr, pContext);
}

int CPaneFrameWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) return -1;
    SetCaptionButtons(AFX_CAPTION_BTN_CLOSE);
    // The buttons weren't there when the first WM_NCCALCSIZE came.
    ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0,
                   SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return 0;
}

void CPaneFrameWnd::OnDestroy() {
    m_isGoing = true;
    if (m_pDockManager != nullptr) m_pDockManager->RemoveMiniFrame(this);
    CWnd::OnDestroy();
}

void CPaneFrameWnd::PostNcDestroy() { delete this; }

void CPaneFrameWnd::OnClose() {
    if (GetPaneCount() == 0) {
        DestroyWindow();
        return;
    }
    if (OnCloseMiniFrame()) hide_panes();
}

void CPaneFrameWnd::hide_panes() {
    if (CPane* pane = leading_pane()) pane->OnPressCloseButton();
}

// Panes.

CPane* CPaneFrameWnd::leading_pane() const {
    return DYNAMIC_DOWNCAST(CPane,
                            m_hEmbeddedBar != nullptr ? CWnd::FromHandlePermanent(m_hEmbeddedBar) : nullptr);
}

void CPaneFrameWnd::AddPane(CBasePane* pWnd) {
    m_hEmbeddedBar = pWnd->m_hWnd;
    adopt(pWnd);
    AdjustLayout();
}

void CPaneFrameWnd::adopt(CBasePane* pane) {
    CWnd* const former = pane->GetParent();
    pane->OnBeforeChangeParent(this);
    pane->SetParent(this);
    pane->OnAfterChangeParent(former);
    CString name;
    pane->GetWindowText(name);
    if (GetPaneCount() == 1) SetWindowText(name);
    auto* floating = DYNAMIC_DOWNCAST(CPane, pane);
    SetCaptionButtons(floating == nullptr || floating->CanBeClosed() ? AFX_CAPTION_BTN_CLOSE : 0u);
}

void CPaneFrameWnd::let_go(CBasePane* pane) {
    CWnd* const home = pane->GetDockSiteFrameWnd();
    if (pane->m_hWnd == nullptr || home == nullptr || m_isGoing) return;
    pane->OnBeforeChangeParent(home);
    pane->ShowWindow(SW_HIDE);
    pane->SetParent(home);
    pane->OnAfterChangeParent(this);
}

void CPaneFrameWnd::RemovePane(CBasePane* pWnd, BOOL bDestroy, BOOL) {
    if (m_hEmbeddedBar == nullptr || pWnd->m_hWnd != m_hEmbeddedBar) return;
    m_hEmbeddedBar = nullptr;
    let_go(pWnd);
    end_when_empty(bDestroy != FALSE);
}

void CPaneFrameWnd::end_when_empty(bool atOnce) {
    if (GetPaneCount() != 0 || m_isGoing) return;
    ShowWindow(SW_HIDE);
    if (m_pDockManager != nullptr) m_pDockManager->RemoveMiniFrame(this);
    m_isGoing = true;
    // Its own handlers may be at work.
    if (atOnce)
        DestroyWindow();
    else
        PostMessage(WM_CLOSE);
}

void CPaneFrameWnd::ReplacePane(CBasePane* pBarOrg, CBasePane* pBarReplaceWith) {
    if (pBarOrg->m_hWnd != m_hEmbeddedBar) return;
    m_hEmbeddedBar = pBarReplaceWith->m_hWnd;
    let_go(pBarOrg);
    adopt(pBarReplaceWith);
    AdjustLayout();
}

int CPaneFrameWnd::GetVisiblePaneCount() const {
    const CPane* pane = leading_pane();
    return pane != nullptr && pane->IsVisible() ? 1 : 0;
}

CWnd* CPaneFrameWnd::GetFirstVisiblePane() const { return GetVisiblePaneCount() != 0 ? GetPane() : nullptr; }

CBasePane* CPaneFrameWnd::PaneFromPoint(CPoint point, int nSensitivity, BOOL bCheckVisibility) {
    CBasePane* pane = leading_pane();
    CRect rect;
    GetWindowRect(&rect);
    rect.InflateRect(nSensitivity, nSensitivity);
    if (pane == nullptr || !rect.PtInRect(point)) return nullptr;
    return bCheckVisibility && !pane->IsVisible() ? nullptr : pane;
}

void CPaneFrameWnd::OnShowPane(CDockablePane* pBar, BOOL bShow) {
    pBar->ShowWindow(bShow ? SW_SHOWNA : SW_HIDE);
    AdjustLayout();
    if (GetVisiblePaneCount() == 0)
        ShowWindow(SW_HIDE);
    else if (bShow)
        ShowWindow(SW_SHOWNOACTIVATE);
}

void CPaneFrameWnd::RemoveNonValidPanes() {
    if (m_hEmbeddedBar != nullptr && !::IsWindow(m_hEmbeddedBar)) m_hEmbeddedBar = nullptr;
    end_when_empty(false);
}

// Look.

void CPaneFrameWnd::CalcBorderSize(CRect& rectBorderSize) const {
    const int width = afxGlobalData.scaled(kBorder);
    rectBorderSize.SetRect(width, width, width, width);
}

int CPaneFrameWnd::GetCaptionHeight() const {
    return caption_height(afxGlobalData.GetTextHeight(), CMFCCaptionButton::GetSize().cy);
}

void CPaneFrameWnd::GetCaptionRect(CRect& rectCaption) const {
    CRect window, border;
    GetWindowRect(&window);
    CalcBorderSize(border);
    rectCaption.SetRect(border.left, border.top, window.Width() - border.right,
                        border.top + GetCaptionHeight());
}

CString CPaneFrameWnd::GetCaptionText() {
    CString name;
    GetWindowText(name);
    if (const CPane* pane = leading_pane()) pane->GetWindowText(name);
    return name;
}

void CPaneFrameWnd::SetCaptionButtons(DWORD dwButtons) {
    delete_buttons(m_arrButtons);
    if ((dwButtons & AFX_CAPTION_BTN_CLOSE) != 0) add_button(m_arrButtons, AFX_HTCLOSE);
    if ((dwButtons & AFX_CAPTION_BTN_MENU) != 0) add_button(m_arrButtons, AFX_HTMENU);
    for (INT_PTR i = 0; i < m_arrButtons.GetSize(); ++i)
        static_cast<CMFCCaptionButton*>(m_arrButtons[i])->SetMiniFrameButton();
    if (m_hWnd == nullptr) return;
    CRect window;
    GetWindowRect(&window);
    place_caption_buttons(window.Size());
    redraw_caption();
}

void CPaneFrameWnd::place_caption_buttons(CSize window) {
    CRect border;
    CalcBorderSize(border);
    const CRect caption(border.left, border.top, window.cx - border.right, border.top + GetCaptionHeight());
    place_buttons_in(m_arrButtons, caption, [](const CMFCCaptionButton&) { return true; });
}

void CPaneFrameWnd::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS* lpncsp) {
    RECT& area = lpncsp->rgrc[0];
    CRect border;
    CalcBorderSize(border);
    place_caption_buttons(CSize(area.right - area.left, area.bottom - area.top));
    area.left += border.left;
    area.top += border.top + GetCaptionHeight();
    area.right = std::max(area.left, area.right - border.right);
    area.bottom = std::max(area.top, area.bottom - border.bottom);
}

void CPaneFrameWnd::OnDrawBorder(CDC* pDC) {
    CRect window, border;
    GetWindowRect(&window);
    CalcBorderSize(border);
    CMFCVisualManager::GetInstance()->OnDrawMiniFrameBorder(pDC, this, CRect(CPoint(0, 0), window.Size()),
                                                            border);
}

void CPaneFrameWnd::DrawCaption(CDC* pDC, CRect rectCaption) {
    const COLORREF color =
        CMFCVisualManager::GetInstance()->OnFillMiniFrameCaption(pDC, rectCaption, this, m_bActive);
    draw_caption_text(*pDC, GetCaptionText(), text_beside(m_arrButtons, rectCaption), color);
    for (INT_PTR i = 0; i < m_arrButtons.GetSize(); ++i)
        static_cast<CMFCCaptionButton*>(m_arrButtons[i])->OnDraw(pDC, m_bActive, TRUE, FALSE);
}

void CPaneFrameWnd::OnNcPaint() {
    CRect caption;
    GetCaptionRect(caption);
    CWindowDC dc(this);
    CRect window, client;
    GetWindowRect(&window);
    GetClientRect(&client);
    ClientToScreen(&client);
    client -= window.TopLeft();
    dc.ExcludeClipRect(&client);
    CMemDC memory(dc, CRect(CPoint(0, 0), window.Size()));
    OnDrawBorder(&memory.GetDC());
    DrawCaption(&memory.GetDC(), caption);
}

void CPaneFrameWnd::redraw_caption() {
    if (m_hWnd != nullptr)
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_NOERASE | RDW_NOCHILDREN);
}

BOOL CPaneFrameWnd::OnNcActivate(BOOL bActive) {
    m_bActive = bActive;
    redraw_caption();
    return TRUE;
}

void CPaneFrameWnd::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
    CWnd::OnActivate(nState, pWndOther, bMinimized);
    // The main frame looks active as long as one of its windows is.
    CWnd* const main = m_pDockManager != nullptr ? m_pDockManager->GetDockSiteFrameWnd() : nullptr;
    if (main != nullptr && nState != WA_INACTIVE) main->SendMessage(WM_NCACTIVATE, TRUE);
}

int CPaneFrameWnd::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) {
    return CWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
}

BOOL CPaneFrameWnd::OnEraseBkgnd(CDC*) { return TRUE; }

void CPaneFrameWnd::OnPaint() {
    CPaintDC dc(this);
    dc.FillSolidRect(&dc.m_ps.rcPaint, ::GetSysColor(COLOR_BTNFACE));
}

void CPaneFrameWnd::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy);
    AdjustLayout();
    note_place();
}

void CPaneFrameWnd::OnMove(int x, int y) {
    CWnd::OnMove(x, y);
    note_place();
}

/// Nothing floats over a print preview.
void CPaneFrameWnd::OnWindowPosChanging(WINDOWPOS* lpwndpos) {
    CWnd::OnWindowPosChanging(lpwndpos);
    if ((lpwndpos->flags & SWP_SHOWWINDOW) != 0 && m_pDockManager != nullptr &&
        m_pDockManager->waits_for_preview(*this))
        lpwndpos->flags &= ~static_cast<UINT>(SWP_SHOWWINDOW);
}

void CPaneFrameWnd::note_place() {
    if (m_isGoing || m_hWnd == nullptr) return;
    GetWindowRect(&m_rectRecentFloatingRect);
    if (CPane* pane = leading_pane())
        pane->m_recentDockInfo.m_rectRecentFloatingRect = m_rectRecentFloatingRect;
}

void CPaneFrameWnd::AdjustLayout() {
    CPane* pane = leading_pane();
    if (pane == nullptr || m_isGoing) return;
    CRect client;
    GetClientRect(&client);
    const UINT show = pane->IsVisible() ? SWP_SHOWWINDOW : 0u;
    ::SetWindowPos(pane->m_hWnd, nullptr, 0, 0, client.Width(), client.Height(),
                   SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED | show);
}

void CPaneFrameWnd::AdjustPaneFrames() {
    for (HWND window : {m_hWnd, m_hEmbeddedBar})
        if (window != nullptr)
            ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                           SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    redraw_caption();
}

void CPaneFrameWnd::SizeToContent() {
    CPane* pane = leading_pane();
    if (pane == nullptr) return;
    CRect window, client;
    GetWindowRect(&window);
    GetClientRect(&client);
    const CSize wanted = pane->CalcFixedLayout(FALSE, TRUE);
    SetWindowPos(nullptr, 0, 0, window.Width() - client.Width() + wanted.cx,
                 window.Height() - client.Height() + wanted.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

CSize CPaneFrameWnd::least_size() const {
    CSize size(0, 0);
    if (const CPane* pane = leading_pane()) pane->GetMinSize(size);
    return size;
}

void CPaneFrameWnd::OnGetMinMaxInfo(MINMAXINFO* lpMMI) {
    CRect border;
    CalcBorderSize(border);
    const CSize least = least_size();
    const int button = CMFCCaptionButton::GetSize().cx;
    lpMMI->ptMinTrackSize.x = border.left + border.right + std::max<int>(least.cx, 2 * button);
    lpMMI->ptMinTrackSize.y = border.top + border.bottom + GetCaptionHeight() + least.cy;
}
