#include "group_tabs.h"

#include "document_groups.h"

namespace kmfc::docking {

BEGIN_MESSAGE_MAP(GroupTabs, CMFCTabCtrl)
    ON_WM_DESTROY()
    ON_WM_MOUSEMOVE()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

void GroupTabs::go_later() {
    ShowWindow(SW_HIDE);
    PostMessage(WM_CLOSE);
}

void GroupTabs::OnDestroy() {
    m_groups.forget(*this);
    CMFCTabCtrl::OnDestroy();
}

BOOL GroupTabs::DetachTab(AFX_DOCK_METHOD dockMethod, int nTabNum, BOOL) {
    if (dockMethod != DM_MOUSE || !IsTabDetachable(nTabNum)) return FALSE;
    m_groups.begin_drag(*this, nTabNum);
    return TRUE;
}

void GroupTabs::OnMouseMove(UINT nFlags, CPoint point) {
    if (!m_groups.is_dragging()) return CMFCTabCtrl::OnMouseMove(nFlags, point);
    ClientToScreen(&point);
    m_groups.drag_to(point);
}

void GroupTabs::OnLButtonUp(UINT nFlags, CPoint point) {
    if (!m_groups.is_dragging()) return CMFCTabCtrl::OnLButtonUp(nFlags, point);
    ClientToScreen(&point);
    m_groups.drag_to(point);
    m_groups.end_drag(true);
}

void GroupTabs::OnCaptureChanged(CWnd* pWnd) {
    if (pWnd->GetSafeHwnd() != m_hWnd) m_groups.end_drag(false);
    CMFCTabCtrl::OnCaptureChanged(pWnd);
}

void GroupTabs::OnContextMenu(CWnd*, CPoint pos) { m_groups.show_menu(*this, pos); }

}  // namespace kmfc::docking
