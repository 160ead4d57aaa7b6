// What CWinAppEx keeps of frames: their place, and the layout of their panes.
#include <vector>

#include <kmfc/docking_manager.h>
#include <kmfc/frame_ex.h>
#include <kmfc/mdi_frame_ex.h>
#include <kmfc/settings_store.h>
#include <kmfc/win_app_ex.h>

#include "../docking/core/placement.h"
#include "work_areas.h"

namespace {

constexpr const wchar_t* kPlacement = L"WindowPlacement";
constexpr const wchar_t* kRect = L"MainWindowRect";
constexpr const wchar_t* kFlags = L"Flags";
constexpr const wchar_t* kShow = L"ShowCmd";

/// The work areas of all screens, in workspace coordinates as window placements use them: the primary
/// screen's work area begins at the origin.
std::vector<CRect> workspace_areas() {
    std::vector<CRect> areas = kmfc::work_areas();
    const CPoint origin = areas.empty() ? CPoint(0, 0) : areas.front().TopLeft();
    for (CRect& area : areas) area.OffsetRect(-origin.x, -origin.y);
    return areas;
}

}  // namespace

BOOL CWinAppEx::LoadWindowPlacement(CRect& rectNormalPosition, int& nFlags, int& nShowCmd) {
    CSettingsStoreSP keeper;
    CSettingsStore& store = keeper.Create(FALSE, TRUE);
    return store.Open(GetRegSectionPath(m_stateSection + kPlacement)) &&
           store.Read(kRect, rectNormalPosition) && store.Read(kFlags, nFlags) && store.Read(kShow, nShowCmd);
}

BOOL CWinAppEx::StoreWindowPlacement(const CRect& rectNormalPosition, int nFlags, int nShowCmd) {
    CSettingsStoreSP keeper;
    CSettingsStore& store = keeper.Create(FALSE, FALSE);
    return store.CreateKey(GetRegSectionPath(m_stateSection + kPlacement)) &&
           store.Write(kRect, rectNormalPosition) && store.Write(kFlags, nFlags) &&
           store.Write(kShow, nShowCmd);
}

BOOL CWinAppEx::ReloadWindowPlacement(CFrameWnd* pFrame) {
    CRect normal;
    int flags = 0, show = SW_SHOWNORMAL;
    if (pFrame->GetSafeHwnd() == nullptr || !LoadWindowPlacement(normal, flags, show)) return FALSE;
    if (normal.Width() <= 0 || normal.Height() <= 0) return FALSE;
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof(placement);
    pFrame->GetWindowPlacement(&placement);
    // A program doesn't start as an icon; one that was so maximized before comes up maximized.
    if (show == SW_SHOWMINIMIZED || show == SW_MINIMIZE || show == SW_SHOWMINNOACTIVE)
        show = (flags & WPF_RESTORETOMAXIMIZED) != 0 ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL;
    // A frame that isn't shown yet is shown by the application, in this manner.
    m_nCmdShow = show;
    placement.flags = static_cast<UINT>(flags);
    placement.showCmd = pFrame->IsWindowVisible() ? static_cast<UINT>(show) : SW_HIDE;
    placement.rcNormalPosition = kmfc::brought_into_view(normal, workspace_areas());
    return pFrame->SetWindowPlacement(&placement);
}

bool CWinAppEx::store_placement_of(CFrameWnd* frame) {
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof(placement);
    return frame->GetWindowPlacement(&placement) &&
           StoreWindowPlacement(placement.rcNormalPosition, static_cast<int>(placement.flags),
                                static_cast<int>(placement.showCmd));
}

bool CWinAppEx::load_frame(CFrameWnd* frame, CDockingManager* manager, LPCTSTR section) {
    m_stateSection = section != nullptr && *section != L'\0' ? CString(section) + L"\\" : CString();
    PreLoadState();
    bool loaded = true;
    if (frame->GetSafeHwnd() != nullptr) {
        if (m_bLoadWindowPlacement) ReloadWindowPlacement(frame);
        loaded = manager->LoadState(GetRegSectionPath(section)) != FALSE;
    }
    LoadCustomState();
    m_stateSection.Empty();
    return loaded;
}

bool CWinAppEx::save_frame(CFrameWnd* frame, CDockingManager* manager, LPCTSTR section) {
    m_stateSection = section != nullptr && *section != L'\0' ? CString(section) + L"\\" : CString();
    PreSaveState();
    bool saved = true;
    if (frame->GetSafeHwnd() != nullptr) {
        saved = store_placement_of(frame);
        saved = manager->SaveState(GetRegSectionPath(section)) && saved;
    }
    SaveCustomState();
    m_stateSection.Empty();
    return saved;
}

BOOL CWinAppEx::LoadState(LPCTSTR lpszSectionName) { return load_frame(nullptr, nullptr, lpszSectionName); }
BOOL CWinAppEx::LoadState(CFrameWndEx* pFrame, LPCTSTR lpszSectionName) {
    return load_frame(pFrame, pFrame != nullptr ? pFrame->GetDockingManager() : nullptr, lpszSectionName);
}
BOOL CWinAppEx::LoadState(CMDIFrameWndEx* pFrame, LPCTSTR lpszSectionName) {
    return load_frame(pFrame, pFrame != nullptr ? pFrame->GetDockingManager() : nullptr, lpszSectionName);
}
BOOL CWinAppEx::SaveState(LPCTSTR lpszSectionName) { return save_frame(nullptr, nullptr, lpszSectionName); }
BOOL CWinAppEx::SaveState(CFrameWndEx* pFrame, LPCTSTR lpszSectionName) {
    return save_frame(pFrame, pFrame != nullptr ? pFrame->GetDockingManager() : nullptr, lpszSectionName);
}
BOOL CWinAppEx::SaveState(CMDIFrameWndEx* pFrame, LPCTSTR lpszSectionName) {
    return save_frame(pFrame, pFrame != nullptr ? pFrame->GetDockingManager() : nullptr, lpszSectionName);
}
