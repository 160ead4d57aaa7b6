// CControlBar: as a bar that docks: its handle, and where a drag begins.
#include <kmfc/frame.h>
#include <kmfc/global_data.h>

#include "control_bar_desk.h"

namespace {

constexpr int kGripperExtent = 8;  // pixels at 96 dots an inch, with its room
constexpr int kGripperWidth = 3;

}  // namespace

void CControlBar::EnableDocking(DWORD dwDockStyle) {
    m_dwDockStyle = dwDockStyle;
    if (m_pDockSite == nullptr) m_pDockSite = GetParentFrame();
    if (m_pDockSite != nullptr) m_pDockSite->bars().know(*this);
}

BOOL CControlBar::IsFloating() const { return m_pDockBar != nullptr && m_pDockBar->m_bFloating; }

CFrameWnd* CControlBar::GetDockingFrame() const {
    return m_pDockSite != nullptr ? m_pDockSite : GetParentFrame();
}

int CControlBar::gripper_extent() const {
    const bool has = (m_dwStyle & CBRS_GRIPPER) != 0 && m_pDockBar != nullptr && !IsFloating();
    return has ? afxGlobalData.scaled(kGripperExtent) : 0;
}

void CControlBar::DrawGripper(CDC* pDC, const CRect& rect) {
    const bool upright = (m_dwStyle & CBRS_ORIENT_VERT) != 0;
    const int width = afxGlobalData.scaled(kGripperWidth), edge = afxGlobalData.scaled(2);
    CRect handle(rect);
    if (upright)
        handle.SetRect(rect.left + edge, rect.top + edge, rect.right - edge, rect.top + edge + width);
    else
        handle.SetRect(rect.left + edge, rect.top + edge, rect.left + edge + width, rect.bottom - edge);
    pDC->Draw3dRect(&handle, ::GetSysColor(COLOR_BTNHIGHLIGHT), ::GetSysColor(COLOR_BTNSHADOW));
}

void CControlBar::begin_drag(CPoint screen) { m_pDockSite->bars().begin_drag(*this, screen); }

void CControlBar::toggle_floating() { m_pDockSite->bars().toggle(*this); }

/// A bar that docks is held wherever it has no tool, by its handle and lines too.
LRESULT CControlBar::OnNcHitTest(CPoint) {
    const LRESULT hit = Default();
    return m_pDockBar != nullptr && hit != HTTRANSPARENT ? HTCLIENT : hit;
}

bool CControlBar::is_held_at(CPoint point) const {
    return m_pDockBar != nullptr && m_pDockSite != nullptr && OnToolHitTest(point, nullptr) == -1;
}

void CControlBar::OnLButtonDown(UINT nFlags, CPoint point) {
    if (!is_held_at(point)) return CWnd::OnLButtonDown(nFlags, point);
    ClientToScreen(&point);
    begin_drag(point);
}

void CControlBar::OnLButtonDblClk(UINT nFlags, CPoint point) {
    if (!is_held_at(point)) return CWnd::OnLButtonDblClk(nFlags, point);
    toggle_floating();
}

void CControlBar::OnDestroy() {
    if (m_pDockSite != nullptr) m_pDockSite->bars().forget(*this);
    CWnd::OnDestroy();
}
