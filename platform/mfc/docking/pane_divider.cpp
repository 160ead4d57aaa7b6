// CPaneDivider: a line that the mouse moves.
#include <kmfc/docking_manager.h>
#include <kmfc/pane_divider.h>
#include <kmfc/pane_frame_wnd.h>
#include <kmfc/visual_manager.h>

#include "place_dividers.h"

using namespace kmfc::docking;

IMPLEMENT_DYNCREATE(CPaneDivider, CBasePane)
IMPLEMENT_DYNCREATE(CDefaultPaneDivider, CPaneDivider)

BEGIN_MESSAGE_MAP(CPaneDivider, CBasePane)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_CANCELMODE()
    ON_WM_CAPTURECHANGED()
    ON_WM_SETCURSOR()
END_MESSAGE_MAP()

int CPaneDivider::m_nDefaultWidth = 4;

CPaneDivider::~CPaneDivider() {
    if (m_hWnd != nullptr) CWnd::DestroyWindow();
}

void CPaneDivider::Init(BOOL bDefaultSlider, CWnd* pParent) {
    m_bDefaultSlider = bDefaultSlider;
    m_pDockSite = pParent;
    m_nWidth = m_nDefaultWidth;
}

BOOL CPaneDivider::CreateEx(DWORD dwStyleEx, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID,
                            CCreateContext* pContext) {
    m_dwDividerStyle = dwStyle & (SS_VERT | SS_HORZ);
    return CBasePane::CreateEx(dwStyleEx, nullptr, nullptr, WS_CHILD, rect, pParentWnd, nID, 0, pContext);
}

void CPaneDivider::DoPaint(CDC* pDC) {
    CRect client;
    GetClientRect(&client);
    CMFCVisualManager::GetInstance()->OnDrawPaneDivider(pDC, this, client, FALSE);
}

void CPaneDivider::OnLButtonDown(UINT, CPoint point) {
    ClientToScreen(&point);
    m_ptTrack = point;
    m_moved = 0;
    m_isTracking = true;
    SetCapture();
}

void CPaneDivider::OnMouseMove(UINT, CPoint point) {
    if (!m_isTracking) return;
    ClientToScreen(&point);
    const int way = IsHorizontal() ? point.y - m_ptTrack.y : point.x - m_ptTrack.x;
    // What the limits held back is made up for when the mouse comes back.
    if (way != m_moved) m_moved += move_edge(way - m_moved);
}

void CPaneDivider::Move(CPoint& ptOffset, BOOL) { move_edge(IsHorizontal() ? ptOffset.y : ptOffset.x); }

int CPaneDivider::move_edge(int delta) {
    CRect before, after;
    GetWindowRect(&before);
    CWnd* const parent = GetParent();
    if (auto* floating = DYNAMIC_DOWNCAST(CMultiPaneFrameWnd, parent))
        floating->move_divider(m_id, delta);
    else if (CDockingManager* manager = manager_of(parent))
        manager->move_divider(m_id, delta);
    if (m_hWnd == nullptr) return 0;
    GetWindowRect(&after);
    return IsHorizontal() ? after.top - before.top : after.left - before.left;
}

void CPaneDivider::OnLButtonUp(UINT, CPoint) { stop(true); }

void CPaneDivider::stop(bool keep) {
    if (!m_isTracking) return;
    m_isTracking = false;
    ReleaseCapture();
    if (!keep && m_moved != 0) move_edge(-m_moved);
}

void CPaneDivider::OnCancelMode() {
    stop(false);
    CBasePane::OnCancelMode();
}

void CPaneDivider::OnCaptureChanged(CWnd* pWnd) {
    m_isTracking = false;
    CBasePane::OnCaptureChanged(pWnd);
}

BOOL CPaneDivider::PreTranslateMessage(MSG* pMsg) {
    if (m_isTracking && pMsg->message == WM_KEYDOWN && pMsg->wParam == VK_ESCAPE) {
        stop(false);
        return TRUE;
    }
    return CBasePane::PreTranslateMessage(pMsg);
}

BOOL CPaneDivider::OnSetCursor(CWnd*, UINT, UINT) {
    ::SetCursor(::LoadCursorW(nullptr, IsHorizontal() ? IDC_SIZENS : IDC_SIZEWE));
    return TRUE;
}

HDWP kmfc::docking::place_dividers(Dividers& dividers, const Arrangement& arrangement, CWnd* parent,
                                   bool planned, HDWP batch) {
    constexpr UINT kId = 0xFFFF;
    for (const PlacedDivider& placed : arrangement.dividers) {
        auto& divider = dividers[placed.id];
        if (divider == nullptr) {
            divider =
                placed.atEdge ? std::make_unique<CDefaultPaneDivider>() : std::make_unique<CPaneDivider>();
            divider->CreateEx(0, placed.upright ? CPaneDivider::SS_VERT : CPaneDivider::SS_HORZ, placed.rect,
                              parent, kId);
            divider->set_id(placed.id);
        }
        const CRect& rect = placed.rect;
        if (!planned && batch != nullptr)
            batch = ::DeferWindowPos(batch, divider->m_hWnd, nullptr, rect.left, rect.top, rect.Width(),
                                     rect.Height(), SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    }
    for (auto at = dividers.begin(); at != dividers.end();)
        at = arrangement.find_divider(at->first) != nullptr ? std::next(at) : dividers.erase(at);
    return batch;
}
