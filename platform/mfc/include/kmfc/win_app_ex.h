// CWinAppEx: an application that keeps its state in the registry.
#pragma once

#include <kmfc/app.h>
#include <kmfc/geometry.h>

class CDockingManager;
class CFrameWndEx;
class CMDIFrameWndEx;

/// Keeps the main window's place, the layout of its panes and what the application adds, under
/// HKEY_CURRENT_USER\SOFTWARE\company\application\Workspace; see SetRegistryBase and CWinApp::SetRegistryKey.
class KMFC_API CWinAppEx : public CWinApp {
    DECLARE_DYNAMIC(CWinAppEx)
public:
    explicit CWinAppEx(BOOL bResourceSmartUpdate = FALSE);
    ~CWinAppEx() override;

    int ExitInstance() override;
    BOOL IsResourceSmartUpdate() const { return m_bResourceSmartUpdate; }

    // Where the state is kept.
    /// Names the key below the application's, "Workspace" for null. The answer is GetRegistryBase.
    LPCTSTR SetRegistryBase(LPCTSTR lpszSectionName = nullptr);
    LPCTSTR GetRegistryBase() const { return m_strRegSection; }
    /// The full path of a key below the base (of the base itself for an empty text), ending in a backslash.
    CString GetRegSectionPath(LPCTSTR szSectionAdd = L"");

    // State. A section is a key below the base.
    /// Calls PreLoadState, brings a frame's place and panes back, and calls LoadCustomState. FALSE when the
    /// panes have no state that can be used.
    virtual BOOL LoadState(LPCTSTR lpszSectionName = nullptr);
    BOOL LoadState(CFrameWndEx* pFrame, LPCTSTR lpszSectionName = nullptr);
    BOOL LoadState(CMDIFrameWndEx* pFrame, LPCTSTR lpszSectionName = nullptr);
    /// Calls PreSaveState, writes a frame's place and panes, and calls SaveCustomState.
    virtual BOOL SaveState(LPCTSTR lpszSectionName = nullptr);
    BOOL SaveState(CFrameWndEx* pFrame, LPCTSTR lpszSectionName = nullptr);
    BOOL SaveState(CMDIFrameWndEx* pFrame, LPCTSTR lpszSectionName = nullptr);
    /// Deletes a section, or the whole base. FALSE when there is none.
    virtual BOOL CleanState(LPCTSTR lpszSectionName = nullptr);
    BOOL IsStateExists(LPCTSTR lpszSectionName);
    /// With FALSE LoadState leaves the frame where it is.
    void EnableLoadWindowPlacement(BOOL bEnable = TRUE) { m_bLoadWindowPlacement = bEnable; }

    // Values of the base, and of sections. The default comes back when there is no such value of that kind.
    int GetInt(LPCTSTR lpszEntry, int nDefault = 0) { return GetSectionInt(L"", lpszEntry, nDefault); }
    CString GetString(LPCTSTR lpszEntry, LPCTSTR lpzDefault = L"") {
        return GetSectionString(L"", lpszEntry, lpzDefault);
    }
    /// `*ppData` is allocated with new[] and belongs to the caller.
    BOOL GetBinary(LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes) {
        return GetSectionBinary(L"", lpszEntry, ppData, pBytes);
    }
    BOOL GetObject(LPCTSTR lpszEntry, CObject& obj) { return GetSectionObject(L"", lpszEntry, obj); }
    BOOL WriteInt(LPCTSTR lpszEntry, int nValue) { return WriteSectionInt(L"", lpszEntry, nValue); }
    BOOL WriteString(LPCTSTR lpszEntry, LPCTSTR lpszValue) {
        return WriteSectionString(L"", lpszEntry, lpszValue);
    }
    BOOL WriteBinary(LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes) {
        return WriteSectionBinary(L"", lpszEntry, pData, nBytes);
    }
    BOOL WriteObject(LPCTSTR lpszEntry, CObject& obj) { return WriteSectionObject(L"", lpszEntry, obj); }
    int GetSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nDefault = 0);
    CString GetSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = L"");
    BOOL GetSectionBinary(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL GetSectionObject(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, CObject& obj);
    BOOL WriteSectionInt(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, int nValue);
    BOOL WriteSectionString(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    BOOL WriteSectionBinary(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    BOOL WriteSectionObject(LPCTSTR lpszSubSection, LPCTSTR lpszEntry, CObject& obj);

    /// Moves a frame to the place that is kept. A place that the desktop no longer has is brought onto the
    /// nearest screen. FALSE when none is kept.
    virtual BOOL ReloadWindowPlacement(CFrameWnd* pFrame);

protected:
    virtual void PreLoadState() {}
    virtual void LoadCustomState() {}
    virtual void PreSaveState() {}
    virtual void SaveCustomState() {}
    /// The normal rectangle in workspace coordinates, WPF_ flags, and an SW_ value, as SetWindowPlacement
    /// takes them.
    virtual BOOL LoadWindowPlacement(CRect& rectNormalPosition, int& nFlags, int& nShowCmd);
    virtual BOOL StoreWindowPlacement(const CRect& rectNormalPosition, int nFlags, int nShowCmd);

private:
    bool load_frame(CFrameWnd* frame, CDockingManager* manager, LPCTSTR section);
    bool save_frame(CFrameWnd* frame, CDockingManager* manager, LPCTSTR section);
    bool store_placement_of(CFrameWnd* frame);
    /// Reads or writes with the settings of a section; false when that isn't there or can't be had.
    template <class Use>
    bool in_section(LPCTSTR section, bool writes, Use use);

    CString m_strRegSection;  ///< the base's name
    CString m_stateSection;   ///< the section of the load or save that is under way
    BOOL m_bResourceSmartUpdate;
    BOOL m_bLoadWindowPlacement = TRUE;

    friend class CDockingManager;
};
