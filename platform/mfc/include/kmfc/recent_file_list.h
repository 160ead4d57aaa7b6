// CRecentFileList: the files that a program used last, in its profile and in its menu.
#pragma once

#include <kmfc/cmd_target.h>

constexpr int AFX_ABBREV_FILENAME_LEN = 30;  ///< characters that a long path is shortened to in a menu

class KMFC_API CRecentFileList {
public:
    /// `nSize` names, numbered from `nStart` + 1 in the menu, kept in section `lpszSection` under names made
    /// from `lpszEntryFormat`, which takes a number from 1 up.
    CRecentFileList(UINT nStart, LPCTSTR lpszSection, LPCTSTR lpszEntryFormat, int nSize,
                    int nMaxDispLen = AFX_ABBREV_FILENAME_LEN);
    virtual ~CRecentFileList();
    CRecentFileList(const CRecentFileList&) = delete;
    CRecentFileList& operator=(const CRecentFileList&) = delete;

    int GetSize() const { return m_nSize; }
    /// Throws CInvalidArgException for an index that is not there.
    CString& operator[](int nIndex);

    /// Puts a path first; a file that is in the list already moves there.
    virtual void Add(LPCTSTR lpszPathName);
    virtual void Remove(int nIndex);
    /// The text for the menu: the name alone for a file of the folder `lpszCurDir` (of `nCurDir` characters,
    /// its last a backslash), otherwise the path, shortened. FALSE for an empty place.
    virtual BOOL GetDisplayName(CString& strName, int nIndex, LPCTSTR lpszCurDir, int nCurDir,
                                BOOL bAtLeastName = TRUE) const;
    /// Fills the menu from the item at hand on; without a file that item keeps its first text, disabled.
    virtual void UpdateMenu(CCmdUI* pCmdUI);
    virtual void ReadList();
    virtual void WriteList();

    int m_nSize;
    CString* m_arrNames;
    CString m_strSectionName, m_strEntryFormat;
    UINT m_nStart;
    int m_nMaxDisplayLength;
    CString m_strOriginal;  ///< the menu's text without a file
};
