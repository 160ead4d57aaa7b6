// CControlBar: place, lines, hand-over of what its controls tell. CWnd::RepositionBars gives the places.
#include <algorithm>

#include <kmfc/control_bar.h>
#include <kmfc/frame.h>

#include "goes_to_owner.h"

namespace {

constexpr int kUnlimited = 32767;  // pixels: all the room there is

/// Pixels of one of a bar's lines.
int line_width(DWORD style) { return (style & CBRS_BORDER_3D) ? 2 : 1; }

/// Takes the lines of the bar's borders off `rect`.
void take_borders(DWORD style, RECT& rect) {
    const int line = line_width(style);
    if (style & CBRS_BORDER_LEFT) rect.left += line;
    if (style & CBRS_BORDER_TOP) rect.top += line;
    if (style & CBRS_BORDER_RIGHT) rect.right -= line;
    if (style & CBRS_BORDER_BOTTOM) rect.bottom -= line;
}

/// Takes a bar of `size` off `room` along the edge that its style names; where the bar stands.
CRect take_place(DWORD style, CSize size, RECT& room) {
    CRect place(room);
    size.cx = std::min<LONG>(size.cx, std::max(0, place.Width()));
    size.cy = std::min<LONG>(size.cy, std::max(0, place.Height()));
    if (style & CBRS_ALIGN_TOP) {
        place.bottom = room.top += size.cy;
        place.right = place.left + size.cx;
    } else if (style & CBRS_ALIGN_BOTTOM) {
        place.top = room.bottom -= size.cy;
        place.right = place.left + size.cx;
    } else if (style & CBRS_ALIGN_LEFT) {
        place.right = room.left += size.cx;
        place.bottom = place.top + size.cy;
    } else {
        place.left = room.right -= size.cx;
        place.bottom = place.top + size.cy;
    }
    return place;
}

/// Moves a child window as the layout collects its moves; not at all when it is there already.
void move_child(AFX_SIZEPARENTPARAMS& layout, HWND window, const CRect& place) {
    if (layout.hDWP == nullptr) return;
    CRect present;
    ::GetWindowRect(window, &present);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&present), 2);
    if (present == place) return;
    layout.hDWP = ::DeferWindowPos(layout.hDWP, window, nullptr, place.left, place.top, place.Width(),
                                   place.Height(), SWP_NOACTIVATE | SWP_NOZORDER);
}

}  // namespace

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_WM_CREATE()
    ON_WM_NCCALCSIZE()
    ON_WM_NCPAINT()
    ON_WM_CTLCOLOR()
    ON_WM_MOUSELEAVE()
    ON_WM_NCHITTEST()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_DESTROY()
    ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

CControlBar::~CControlBar() {
    m_bAutoDelete = FALSE;
    DestroyWindow();
}

BOOL CControlBar::PreCreateWindow(CREATESTRUCT& cs) {
    if (!CWnd::PreCreateWindow(cs)) return FALSE;
    cs.style |= WS_CLIPSIBLINGS;
    return TRUE;
}

int CControlBar::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CWnd::OnCreate(lpCreateStruct) == -1) return -1;
    EnableToolTips((m_dwStyle & CBRS_TOOLTIPS) != 0);
    return 0;
}

BOOL CControlBar::DestroyWindow() { return m_hWnd != nullptr && CWnd::DestroyWindow(); }

void CControlBar::PostNcDestroy() {
    if (m_bAutoDelete) delete this;
}

void CControlBar::SetBarStyle(DWORD dwStyle) {
    EnableToolTips((dwStyle & CBRS_TOOLTIPS) != 0);
    if (m_dwStyle == dwStyle) return;
    m_dwStyle = dwStyle;
    if (m_hWnd != nullptr)
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CControlBar::IsVisible() const {
    if (m_hWnd == nullptr) return FALSE;
    if (m_pending != Pending::none) return m_pending == Pending::show;
    return (GetStyle() & WS_VISIBLE) != 0;
}

void CControlBar::end_pending() {
    if (m_pending == Pending::none) return;
    const int command = m_pending == Pending::show ? SW_SHOWNA : SW_HIDE;
    m_pending = Pending::none;
    ShowWindow(command);
}

CSize CControlBar::CalcFixedLayout(BOOL bStretch, BOOL bHorz) {
    return CSize(bStretch && bHorz ? kUnlimited : 0, bStretch && !bHorz ? kUnlimited : 0);
}

CSize CControlBar::CalcDynamicLayout(int, DWORD dwMode) {
    return CalcFixedLayout((dwMode & LM_STRETCH) != 0, (dwMode & LM_HORZ) != 0);
}

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam) {
    auto& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    if (layout.hDWP != nullptr) end_pending();
    if (!IsVisible() || !(m_dwStyle & CBRS_ALIGN_ANY)) return 0;
    const bool horizontal = (m_dwStyle & CBRS_ORIENT_HORZ) != 0;
    const DWORD mode = (layout.bStretch ? LM_STRETCH : 0) | (horizontal ? LM_HORZ : 0);
    const CSize size = CalcDynamicLayout(-1, mode);
    const CRect place = take_place(m_dwStyle, size, layout.rect);
    LONG& across = horizontal ? layout.sizeTotal.cy : layout.sizeTotal.cx;
    LONG& along = horizontal ? layout.sizeTotal.cx : layout.sizeTotal.cy;
    across += horizontal ? place.Height() : place.Width();
    along = std::max<LONG>(along, horizontal ? place.Width() : place.Height());
    move_child(layout, m_hWnd, place);
    return 0;
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM) {
    CFrameWnd* frame = GetDockingFrame();
    if (frame != nullptr && IsVisible()) OnUpdateCmdUI(frame, static_cast<BOOL>(wParam));
    return 0;
}

void CControlBar::OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp) {
    CWnd::OnNcCalcSize(bCalcValidRects, lpncsp);
    CRect inside(lpncsp->rgrc[0]);
    CalcInsideRect(inside, (m_dwStyle & CBRS_ORIENT_VERT) == 0);
    lpncsp->rgrc[0] = inside;
}

void CControlBar::CalcInsideRect(CRect& rect, BOOL bHorz) const {
    take_borders(m_dwStyle, rect);
    (bHorz ? rect.left : rect.top) += gripper_extent();
}

void CControlBar::OnNcPaint() {
    CWnd::OnNcPaint();
    CDC* dc = GetWindowDC();
    CRect rect;
    GetWindowRect(&rect);
    rect.OffsetRect(-rect.TopLeft());
    DrawBorders(dc, rect);
    if (gripper_extent() != 0) {
        CRect handle(rect);
        const bool upright = (m_dwStyle & CBRS_ORIENT_VERT) != 0;
        (upright ? handle.bottom : handle.right) = (upright ? rect.top : rect.left) + gripper_extent();
        dc->FillSolidRect(&handle, ::GetSysColor(COLOR_BTNFACE));
        DrawGripper(dc, rect);
    }
    ReleaseDC(dc);
}

void CControlBar::DrawBorders(CDC* pDC, CRect& rect) {
    const int line = line_width(m_dwStyle);
    const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
    const CRect all = rect;
    if (m_dwStyle & CBRS_BORDER_LEFT) pDC->FillSolidRect(0, 0, line, all.bottom, shadow);
    if (m_dwStyle & CBRS_BORDER_TOP) pDC->FillSolidRect(0, 0, all.right, line, shadow);
    if (m_dwStyle & CBRS_BORDER_RIGHT) pDC->FillSolidRect(all.right - line, 0, line, all.bottom, shadow);
    if (m_dwStyle & CBRS_BORDER_BOTTOM) pDC->FillSolidRect(0, all.bottom - line, all.right, line, shadow);
    take_borders(m_dwStyle, rect);
}

HBRUSH CControlBar::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    return CWnd::OnCtlColor(pDC, pWnd, nCtlColor);
}

LRESULT CControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!kmfc::goes_to_owner(message)) return CWnd::WindowProc(message, wParam, lParam);
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result)) return result;
    const CWnd* owner = GetOwner();
    return owner != nullptr && owner->m_hWnd != nullptr ? owner->SendMessage(message, wParam, lParam)
                                                        : DefWindowProc(message, wParam, lParam);
}

void CControlBar::tell_frame(INT_PTR tool) {
    if (tool == m_flyTool) return;
    m_flyTool = tool;
    CFrameWnd* frame = GetDockingFrame();
    if (frame == nullptr) return;
    frame = frame->GetTopLevelFrame();
    const UINT message = tool != -1 ? WM_SETMESSAGESTRING : WM_POPMESSAGESTRING;
    frame->SendMessage(message, tool != -1 ? static_cast<WPARAM>(tool) : AFX_IDS_IDLEMESSAGE);
}

void CControlBar::follow_mouse(const MSG& message) {
    if (!(m_dwStyle & CBRS_FLYBY) || message.message != WM_MOUSEMOVE) return;
    CPoint point(message.pt);
    ScreenToClient(&point);
    tell_frame(OnToolHitTest(point, nullptr));
    // One that leaves the bar goes without a move.
    TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, message.hwnd, 0};
    if (message.hwnd == m_hWnd) ::TrackMouseEvent(&track);
}

void CControlBar::OnMouseLeave() {
    Default();
    tell_frame(-1);
}

BOOL CControlBar::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) return TRUE;
    follow_mouse(*pMsg);
    // The frame's accelerators come before the keys of the bar, or a dialog would swallow them.
    CFrameWnd* const docking = GetDockingFrame();
    CFrameWnd* const top = docking != nullptr ? docking->GetTopLevelFrame() : nullptr;
    if (top != nullptr && top->PreTranslateMessage(pMsg)) return TRUE;
    return PreTranslateInput(pMsg);
}

void CWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag, LPRECT lpRectParam,
                          LPCRECT lpRectClient, BOOL bStretch) {
    AFX_SIZEPARENTPARAMS layout = {};
    layout.bStretch = bStretch;
    if (lpRectClient != nullptr)
        layout.rect = *lpRectClient;
    else
        GetClientRect(&layout.rect);
    const CRect all(layout.rect);
    constexpr int kUsualBars = 8;
    if (nFlag != reposQuery) layout.hDWP = ::BeginDeferWindowPos(kUsualBars);
    HWND leftOver = nullptr;
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        const UINT id = static_cast<UINT>(static_cast<WORD>(::GetDlgCtrlID(child)));
        if (id == nIDLeftOver)
            leftOver = child;
        else if (id >= nIDFirst && id <= nIDLast && FromHandlePermanent(child) != nullptr)
            ::SendMessageW(child, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
    }
    if (nFlag == reposQuery) {
        if (bStretch)
            ::CopyRect(lpRectParam, &layout.rect);
        else
            ::SetRect(lpRectParam, 0, 0, std::min<LONG>(layout.sizeTotal.cx, all.Width()),
                      std::min<LONG>(layout.sizeTotal.cy, all.Height()));
        return;
    }
    if (leftOver != nullptr) {
        if (nFlag == reposExtra && lpRectParam != nullptr) {
            layout.rect.left += lpRectParam->left;
            layout.rect.top += lpRectParam->top;
            layout.rect.right -= lpRectParam->right;
            layout.rect.bottom -= lpRectParam->bottom;
        }
        move_child(layout, leftOver, CRect(layout.rect));
    }
    if (layout.hDWP != nullptr) ::EndDeferWindowPos(layout.hDWP);
}
