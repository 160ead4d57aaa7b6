// CDockState: where the control bars of a frame stand, to be kept and brought back.
#pragma once

#include <afxcoll.h>
#include <kmfc/app.h>

/// What is kept of one bar.
class KMFC_API CControlBarInfo {
public:
    UINT m_nBarID = 0;  ///< its control id
    BOOL m_bVisible = FALSE;
    BOOL m_bFloating = FALSE;
    BOOL m_bHorz = TRUE;       ///< of a floating bar: along a row
    CPoint m_pointPos{0, 0};   ///< of a floating bar: its frame's corner on the screen, pixels
    UINT m_nMRUWidth = 32767;  ///< the width that its tools are arranged for when it floats, pixels
    UINT m_nDockBarID = 0;  ///< AFX_IDW_DOCKBAR_TOP and so on, where it is docked or was last; 0 for nowhere
    int m_nRow = 0;         ///< there, from the outside of the frame
    int m_nOffset = 0;      ///< wanted in the row, pixels from its beginning
    BOOL m_bOwnRow = TRUE;  ///< alone in it

    BOOL LoadState(LPCTSTR lpszProfileName, int nIndex);
    BOOL SaveState(LPCTSTR lpszProfileName, int nIndex) const;
    void Serialize(CArchive& ar);
};

/// In the program's profile the state of "name" stands in "name-Summary" and "name-Bar0" and so on. What
/// can't be read whole is left out.
class KMFC_API CDockState : public CObject {
    DECLARE_SERIAL(CDockState)
public:
    CDockState() = default;
    ~CDockState() override;

    void Clear();
    /// 2: what is written and read now.
    DWORD GetVersion() const { return 2; }
    void LoadState(LPCTSTR lpszProfileName);
    void SaveState(LPCTSTR lpszProfileName) const;
    /// Throws CArchiveException for what no state has written; the state is then empty.
    void Serialize(CArchive& ar) override;

    CPtrArray m_arrBarInfo;  ///< of CControlBarInfo, which are the state's own; in the order of their rows
};
