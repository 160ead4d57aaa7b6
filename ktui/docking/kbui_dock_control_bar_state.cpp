// What the framework keeps of a bar between two runs.
#include <ktui/docking/kbui_dock_control_bar.h>

#include <afxsettingsstore.h>
#include <kh_system.h>

namespace {

constexpr UINT kNoId = static_cast<UINT>(-1);

/// The rectangle of the application's main window; empty without one.
CRect mainWindowRect() {
    CRect rect(0, 0, 0, 0);
    CKhUiHost* host = CKhSystem::instance()->uiHost();
    CWinApp* application = host != nullptr ? host->application() : nullptr;
    if (application != nullptr && application->m_pMainWnd != nullptr)
        application->m_pMainWnd->GetWindowRect(&rect);
    return rect;
}

bool meet(const CRect& one, const CRect& other) { return CRect().IntersectRect(one, other) != FALSE; }

}  // namespace

BOOL CKbUiDockControlBar::SaveState(LPCTSTR profile, int index, UINT id) {
    if (!CDockablePane::SaveState(profile, index, id)) return FALSE;
    const CString path = AFXGetRegPath(L"BasePanes", profile);
    if (index == -1) index = GetDlgCtrlID();
    CString key;
    if (id != kNoId)
        key.Format(L"%sBasePane-%d%x", static_cast<LPCTSTR>(path), index, id);
    else
        key.Format(L"%sBasePane-%d", static_cast<LPCTSTR>(path), index);
    CSettingsStoreSP store;
    CSettingsStore& settings = store.Create(FALSE, FALSE);
    if (settings.CreateKey(key)) settings.Write(L"IsVisible", isVisible() ? 1 : 0);
    return TRUE;
}

BOOL CKbUiDockControlBar::LoadState(LPCTSTR profile, int index, UINT id) {
    if (!CDockablePane::LoadState(profile, index, id)) return FALSE;
    setVisible(GetRecentVisibleState() != FALSE);
    bringFrameBack();
    m_floatingRect = m_recentDockInfo.m_rectRecentFloatingRect;
    // Kept: the docked place is that of the floating frame.
    m_dockingRect = m_recentDockInfo.GetRecentDockedRect(FALSE);
    return TRUE;
}

void CKbUiDockControlBar::bringFrameBack() {
    CPaneFrameWnd* frame = GetParentMiniFrame();
    if (m_recentDockInfo.m_recentMiniFrameInfo.m_nRecentPercent == 0 || frame == nullptr) return;
    CRect desktop;
    ::GetWindowRect(::GetDesktopWindow(), &desktop);
    const CRect main = mainWindowRect();
    CRect rect = m_recentDockInfo.m_rectRecentFloatingRect;
    // Kept: what doesn't meet the main window counts as lost, also when it shows on another monitor. It is
    // put in the middle of a rectangle of the main window's size at the screen's origin.
    if (meet(main, desktop) && !meet(main, rect))
        rect.MoveToXY((main.Width() - rect.Width()) / 2, (main.Height() - rect.Height()) / 2);
    // Kept: one that isn't lost is written to both places and moved to it as well.
    m_recentDockInfo.m_rectRecentFloatingRect = rect;
    m_recentDockInfo.GetRecentDockedRect(FALSE) = rect;
    frame->MoveWindow(&rect, TRUE);
}
