// CMiniDockFrameWnd: as large as its bar, dragged and sized by its edges.
#include <kmfc/mini_dock_frame.h>

#include <algorithm>

#include "control_bar_desk.h"

IMPLEMENT_DYNCREATE(CMiniDockFrameWnd, CMiniFrameWnd)

BEGIN_MESSAGE_MAP(CMiniDockFrameWnd, CMiniFrameWnd)
    ON_WM_CLOSE()
    ON_WM_SIZE()
    ON_WM_SIZING()
    ON_WM_MOUSEACTIVATE()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONDBLCLK()
END_MESSAGE_MAP()

BOOL CMiniDockFrameWnd::Create(CWnd* pParent, DWORD dwBarStyle) {
    const DWORD edges = (dwBarStyle & CBRS_SIZE_DYNAMIC) ? WS_THICKFRAME | MFS_THICKFRAME
                                                         : static_cast<DWORD>(MFS_4THICKFRAME);
    const DWORD style =
        WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN | MFS_SYNCACTIVE | MFS_BLOCKSYSMENU | edges;
    if (!CMiniFrameWnd::Create(nullptr, L"", style, CRect(0, 0, 0, 0), pParent)) return FALSE;
    if (!m_wndDockBar.Create(this, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | CBRS_ALIGN_TOP,
                             AFX_IDW_DOCKBAR_FLOAT)) {
        DestroyWindow();
        return FALSE;
    }
    return TRUE;
}

CControlBar* CMiniDockFrameWnd::bar() const {
    return DYNAMIC_DOWNCAST(CControlBar, m_wndDockBar.GetWindow(GW_CHILD));
}

CSize CMiniDockFrameWnd::around() const {
    CRect edges(0, 0, 0, 0);
    ::AdjustWindowRectEx(&edges, GetStyle(), FALSE, GetExStyle());
    return edges.Size();
}

void CMiniDockFrameWnd::RecalcLayout(BOOL) {
    CControlBar* const floating = bar();
    if (floating == nullptr) return;
    const bool horizontal = m_wndDockBar.is_horizontal();
    const CSize size =
        floating->CalcDynamicLayout(-1, LM_COMMIT | (horizontal ? LM_HORZ | LM_MRUWIDTH : LM_VERTDOCK));
    const CSize whole = size + around();
    floating->SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    m_wndDockBar.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
    SetWindowPos(nullptr, 0, 0, whole.cx, whole.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CMiniDockFrameWnd::OnClose() {
    CControlBar* const floating = bar();
    if (floating == nullptr)
        DestroyWindow();
    else
        floating->m_pDockSite->ShowControlBar(floating, FALSE, FALSE);
}

void CMiniDockFrameWnd::OnSize(UINT nType, int cx, int cy) {
    // The size is the bar's already.
    CWnd::OnSize(nType, cx, cy);
}

/// Pulled sideways the tools stand in rows of that width; pulled up or down in as many rows as that height
/// has.
void CMiniDockFrameWnd::OnSizing(UINT nSide, LPRECT lpRect) {
    CControlBar* const floating = bar();
    if (floating == nullptr) return;
    const CSize edges = around();
    const bool byHeight = nSide == WMSZ_TOP || nSide == WMSZ_BOTTOM;
    const int wanted =
        byHeight ? lpRect->bottom - lpRect->top - edges.cy : lpRect->right - lpRect->left - edges.cx;
    const DWORD mode = LM_HORZ | LM_COMMIT | (byHeight ? LM_LENGTHY : 0);
    const CSize size = floating->CalcDynamicLayout(std::max(wanted, 1), mode) + edges;
    if (nSide == WMSZ_LEFT || nSide == WMSZ_TOPLEFT || nSide == WMSZ_BOTTOMLEFT)
        lpRect->left = lpRect->right - size.cx;
    else
        lpRect->right = lpRect->left + size.cx;
    if (nSide == WMSZ_TOP || nSide == WMSZ_TOPLEFT || nSide == WMSZ_TOPRIGHT)
        lpRect->top = lpRect->bottom - size.cy;
    else
        lpRect->bottom = lpRect->top + size.cy;
    RecalcLayout();
}

/// The frame behind keeps the keys, unless a control of the bar takes them by itself.
int CMiniDockFrameWnd::OnMouseActivate(CWnd*, UINT, UINT) { return MA_NOACTIVATE; }

void CMiniDockFrameWnd::OnNcLButtonDown(UINT nHitTest, CPoint point) {
    CControlBar* const floating = bar();
    if (nHitTest != HTCAPTION || floating == nullptr) return CMiniFrameWnd::OnNcLButtonDown(nHitTest, point);
    floating->begin_drag(point);
}

void CMiniDockFrameWnd::OnNcLButtonDblClk(UINT nHitTest, CPoint point) {
    CControlBar* const floating = bar();
    if (nHitTest != HTCAPTION || floating == nullptr)
        return CMiniFrameWnd::OnNcLButtonDblClk(nHitTest, point);
    floating->toggle_floating();
}
