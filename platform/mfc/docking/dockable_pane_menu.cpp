// CDockablePane: the menu of its caption, and the focus that its caption shows.
#include <kmfc/docking_manager.h>
#include <kmfc/dockable_pane.h>

#include "../res/kmfc_ids.h"

namespace {

void add_item(CMenu& menu, UINT id, bool enabled, bool checked) {
    CString text;
    if (!text.LoadString(id)) return;
    menu.AppendMenu(MF_STRING | (enabled ? MF_ENABLED : MF_GRAYED) | (checked ? MF_CHECKED : MF_UNCHECKED),
                    id, text);
}

}  // namespace

void CDockablePane::OnContextMenu(CWnd* pWnd, CPoint pos) {
    const bool onCaption = HitTest(pos, TRUE) != HTNOWHERE;
    if (!onCaption || !OnShowControlBarMenu(pos)) CPane::OnContextMenu(pWnd, pos);
}

BOOL CDockablePane::OnShowControlBarMenu(CPoint point) {
    const CDockingManager* manager = GetDockingManager();
    if (manager == nullptr) return FALSE;
    CMenu menu;
    menu.CreatePopupMenu();
    const bool docks = GetEnabledAlignment() != 0 && (IsDocked() || manager->has_place(this));
    add_item(menu, IDS_PANE_FLOAT, CanFloat() != FALSE, IsFloating() != FALSE);
    add_item(menu, IDS_PANE_DOCK, docks, IsDocked() != FALSE);
    add_item(menu, IDS_PANE_HIDE, CanBeClosed() != FALSE, false);
    const UINT flags = TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RETURNCMD | TPM_NONOTIFY;
    do_menu_command(
        static_cast<UINT>(::TrackPopupMenu(menu.m_hMenu, flags, point.x, point.y, 0, m_hWnd, nullptr)));
    return TRUE;
}

void CDockablePane::do_menu_command(UINT command) {
    switch (command) {
        case IDS_PANE_FLOAT:
            if (!IsFloating()) FloatPane(m_recentDockInfo.m_rectRecentFloatingRect);
            break;
        case IDS_PANE_DOCK:
            if (!IsDocked()) DockToRecentPos();
            break;
        case IDS_PANE_HIDE: OnPressCloseButton(); break;
        default: break;
    }
}

void CDockablePane::OnSetFocus(CWnd* pOldWnd) {
    CPane::OnSetFocus(pOldWnd);
    if (CDockingManager* manager = GetDockingManager()) manager->follow_focus();
}

void CDockablePane::OnKillFocus(CWnd* pNewWnd) {
    CPane::OnKillFocus(pNewWnd);
    // Where the focus goes shows at the next idle step.
    redraw_caption();
}
