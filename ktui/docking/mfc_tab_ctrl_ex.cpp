#include <ktui/docking/mfc_tab_ctrl_ex.h>

#include <afxcontrolbars.h>

#include <ktui/docking/pane_lock.h>

IMPLEMENT_DYNCREATE(CMFCTabCtrlEx, CMFCTabCtrl)

BOOL CMFCTabCtrlEx::IsTabDetachable(int tab) const {
    const auto* pane = DYNAMIC_DOWNCAST(CBasePane, GetParent());
    if (pane != nullptr && IsPaneLocked(pane->GetParentMiniFrame())) return FALSE;
    return CMFCTabCtrl::IsTabDetachable(tab);
}
