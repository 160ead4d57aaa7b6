// CListCtrlEx: the list of files in the platform's dialog, which shows the view of the last time and the file
// that the dialog begins with. Private to the library.
#pragma once

#include <afxcmn.h>

class CNavFileDlg;

/// Made on the heap; ends itself with its window.
class CListCtrlEx : public CListCtrl {
    DECLARE_DYNAMIC(CListCtrlEx)

public:
    /// `dialog` outlives the window.
    explicit CListCtrlEx(CNavFileDlg* dialog) : m_dialog(dialog) {}
    ~CListCtrlEx() override;

    /// Puts the view in place and marks the dialog's file; done once, as soon as there are files.
    void ShowFirst();

protected:
    void PostNcDestroy() override;
    afx_msg void OnShowWindow(BOOL shown, UINT status);
    DECLARE_MESSAGE_MAP()

private:
    void markFile(const CString& name);

    CNavFileDlg* m_dialog;
    bool m_done = false;
};
