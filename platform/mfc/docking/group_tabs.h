// GroupTabs: the strip of tabs of a group of documents.
#pragma once

#include <kmfc/tab_window.h>

namespace kmfc::docking {

class DocumentGroups;

/// Deletes itself with its window. A tab that the mouse drags away from the strip is the groups' matter.
class GroupTabs : public CMFCTabCtrl {
public:
    explicit GroupTabs(DocumentGroups& groups) : m_groups(groups) {
        m_bIsMDITab = TRUE;
        m_bActivateTabOnRightClick = TRUE;
    }
    /// Goes when none of its handlers is at work any more.
    void go_later();
    BOOL DetachTab(AFX_DOCK_METHOD dockMethod, int nTabNum = -1, BOOL bHide = FALSE) override;
    /// The window that becomes active when that tab has gone; null for none.
    CWnd* next_after(int tab) const { return GetTabWnd(successor_of(tab)); }
    /// Client coordinates of the frame, as laid out last.
    CRect place{0, 0, 0, 0};

protected:
    void PostNcDestroy() override { delete this; }
    afx_msg void OnDestroy();
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    DECLARE_MESSAGE_MAP()

private:
    DocumentGroups& m_groups;
};

}  // namespace kmfc::docking
