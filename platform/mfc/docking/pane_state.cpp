// What panes keep in the registry: their places, whether they are seen.
#include <kmfc/docking_manager.h>
#include <kmfc/dockable_pane.h>
#include <kmfc/settings_store.h>

namespace {

/// The key of a pane: by its number, by its control id where that is -1, with the frame's id behind.
CString key_of_pane(const CBasePane& pane, LPCTSTR profile, int index, UINT id) {
    const CString path = AFXGetRegPath(L"BasePanes", profile);
    if (index == -1) index = pane.GetDlgCtrlID();
    CString key;
    if (id == static_cast<UINT>(-1))
        key.Format(L"%sBasePane-%d", path.GetString(), index);
    else
        key.Format(L"%sBasePane-%d%x", path.GetString(), index, id);
    return key;
}

CString key_of_kind(LPCTSTR kind, const CBasePane& pane, LPCTSTR profile, int index, UINT id) {
    const CString path = AFXGetRegPath(kind, profile);
    if (index == -1) index = pane.GetDlgCtrlID();
    CString key;
    if (id == static_cast<UINT>(-1))
        key.Format(L"%s%s-%d", path.GetString(), kind, index);
    else
        key.Format(L"%s%s-%d%x", path.GetString(), kind, index, id);
    return key;
}

constexpr int kVersion = 1;
constexpr int kFarthest = 100'000;  // pixels

bool is_sound(const CRect& rect) {
    return rect.left >= -kFarthest && rect.top >= -kFarthest && rect.left <= rect.right &&
           rect.top <= rect.bottom && rect.right <= 2 * kFarthest && rect.bottom <= 2 * kFarthest;
}

}  // namespace

BOOL CBasePane::SaveState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    CSettingsStoreSP store;
    CSettingsStore& settings = store.Create(FALSE, FALSE);
    if (!settings.CreateKey(key_of_pane(*this, lpszProfileName, nIndex, uiID))) return TRUE;
    settings.Write(L"IsVisible", static_cast<DWORD>(IsVisible()));
    return TRUE;
}

BOOL CBasePane::LoadState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    CSettingsStoreSP store;
    CSettingsStore& settings = store.Create(FALSE, TRUE);
    DWORD visible = TRUE;
    if (!settings.Open(key_of_pane(*this, lpszProfileName, nIndex, uiID)) ||
        !settings.Read(L"IsVisible", visible))
        return FALSE;
    m_bRecentVisibleState = visible != 0;
    m_bRestoredFromRegistry = TRUE;
    return TRUE;
}

BOOL CPane::SaveState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    m_recentDockInfo.StoreDockInfo();
    CSettingsStoreSP store;
    CSettingsStore& settings = store.Create(FALSE, FALSE);
    if (settings.CreateKey(key_of_kind(L"Pane", *this, lpszProfileName, nIndex, uiID))) {
        const CRecentPaneContainerInfo& docked = m_recentDockInfo.m_recentSliderInfo;
        const CRecentPaneContainerInfo& floating = m_recentDockInfo.m_recentMiniFrameInfo;
        settings.Write(L"Version", kVersion);
        settings.Write(L"RectRecentFloat", m_recentDockInfo.m_rectRecentFloatingRect);
        settings.Write(L"RectRecentDocked", docked.m_rectDockedRect);
        settings.Write(L"RecentPercent", docked.m_nRecentPercent);
        settings.Write(L"RectRecentMiniFrame", floating.m_rectDockedRect);
        settings.Write(L"RecentMiniFramePercent", floating.m_nRecentPercent);
        settings.Write(L"RecentFrameAlignment", m_recentDockInfo.m_dwRecentAlignmentToFrame);
        settings.Write(L"IsFloating", static_cast<DWORD>(IsFloating()));
    }
    return CBasePane::SaveState(lpszProfileName, nIndex, uiID);
}

BOOL CPane::LoadState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    CSettingsStoreSP store;
    CSettingsStore& settings = store.Create(FALSE, TRUE);
    if (!settings.Open(key_of_kind(L"Pane", *this, lpszProfileName, nIndex, uiID))) return FALSE;
    int version = 0;
    CRecentDockSiteInfo read(this);
    CRecentPaneContainerInfo docked, floating;
    const bool whole = settings.Read(L"Version", version) && version == kVersion &&
                       settings.Read(L"RectRecentFloat", read.m_rectRecentFloatingRect) &&
                       settings.Read(L"RectRecentDocked", docked.m_rectDockedRect) &&
                       settings.Read(L"RecentPercent", docked.m_nRecentPercent) &&
                       settings.Read(L"RectRecentMiniFrame", floating.m_rectDockedRect) &&
                       settings.Read(L"RecentMiniFramePercent", floating.m_nRecentPercent) &&
                       settings.Read(L"RecentFrameAlignment", read.m_dwRecentAlignmentToFrame);
    const bool sound = whole && is_sound(read.m_rectRecentFloatingRect) &&
                       is_sound(docked.m_rectDockedRect) && is_sound(floating.m_rectDockedRect) &&
                       docked.m_nRecentPercent >= 0 && docked.m_nRecentPercent <= 100 &&
                       floating.m_nRecentPercent >= 0 && floating.m_nRecentPercent <= 100;
    if (!sound || !CBasePane::LoadState(lpszProfileName, nIndex, uiID)) return FALSE;
    docked.m_dwRecentAlignment = read.m_dwRecentAlignmentToFrame;
    read.m_recentSliderInfo = docked;
    read.m_recentMiniFrameInfo = floating;
    m_recentDockInfo = read;
    m_dwStateVersion = static_cast<DWORD>(version);
    return TRUE;
}

BOOL CDockablePane::SaveState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    return CPane::SaveState(lpszProfileName, nIndex, uiID);
}

BOOL CDockablePane::LoadState(LPCTSTR lpszProfileName, int nIndex, UINT uiID) {
    return CPane::LoadState(lpszProfileName, nIndex, uiID);
}

void CDockablePane::Serialize(CArchive& ar) {
    CPane::Serialize(ar);
    if (ar.IsStoring()) {
        ar << m_nLastPercentInContainer << m_bEnableAutohideAll;
        return;
    }
    int percent = 0;
    BOOL all = TRUE;
    ar >> percent >> all;
    m_nLastPercentInContainer = percent;
    m_bEnableAutohideAll = all;
}
