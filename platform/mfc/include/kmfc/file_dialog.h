// CFileDialog: the system's dialog for opening and saving files.
#pragma once

#include <kmfc/common_dialogs.h>
#include <kmfc/position.h>

/// The Explorer-style dialog. While it is shown, the object's window is the child dialog that the system
/// keeps for its hook (with the controls of SetTemplate's template, if any); its parent is the dialog that
/// the user sees.
///
///     CFileDialog dialog(TRUE, L"dxf", nullptr, OFN_FILEMUSTEXIST, L"Drawings|*.dxf||");
///     if (dialog.DoModal() == IDOK) open(dialog.GetPathName());
class KMFC_API CFileDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFileDialog)
public:
    /// `lpszFilter` has texts and patterns by turns, parted by "|", and ends with "||". `dwSize` is the size
    /// of the OPENFILENAME structure to use, 0 for that of the system's version.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr, DWORD dwSize = 0);

    OPENFILENAMEW m_ofn = {};  ///< for changes before DoModal; its buffers may be replaced
    OPENFILENAMEW& GetOFN() { return m_ofn; }
    const OPENFILENAMEW& GetOFN() const { return m_ofn; }

    INT_PTR DoModal() override;

    // What was chosen; while the dialog is shown, what is named in it.
    CString GetPathName() const;    ///< the whole path; of several files the first
    CString GetFileName() const;    ///< name with extension
    CString GetFileTitle() const;   ///< name without extension
    CString GetFileExt() const;     ///< extension without the point
    CString GetFolderPath() const;  ///< the folder shown, while the dialog is open
    BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }

    /// Goes through the files that were chosen (OFN_ALLOWMULTISELECT): the place of the first, and each next.
    POSITION GetStartPosition() const { return reinterpret_cast<POSITION>(m_ofn.lpstrFile); }
    CString GetNextPathName(POSITION& pos) const;

    /// A template of controls to add; before DoModal. The first is for the dialogs of Windows 3 and isn't
    /// used.
    void SetTemplate(UINT nWin3ID, UINT nWin4ID);
    void SetTemplate(LPCTSTR lpWin3ID, LPCTSTR lpWin4ID);

    // While the dialog is shown: its own controls (edt1, stc3, …) and its extension.
    void SetControlText(int nID, LPCSTR lpsz);
    void SetControlText(int nID, LPCWSTR lpsz);
    void HideControl(int nID);
    void SetDefExt(LPCSTR lpsz);

protected:
    virtual UINT OnShareViolation(LPCTSTR lpszPathName);  ///< an OFN_SHARE… value; at first OFN_SHAREWARN
    virtual BOOL OnFileNameOK();                          ///< non-zero keeps the dialog open
    virtual void OnLBSelChangedNotify(UINT nIDBox, UINT iCurSel, UINT nCode);
    virtual void OnInitDone();        ///< the dialog's controls are in place
    virtual void OnFileNameChange();  ///< another file is selected
    virtual void OnFolderChange();
    virtual void OnTypeChange();  ///< another entry of the list of types

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    UINT_PTR answer_hook(UINT message) override;
    void end_window(int nResult) override;

    BOOL m_bOpenFileDialog;
    CString m_strFilter;  ///< with zeros in the place of the bars
    TCHAR m_szFileTitle[_MAX_FNAME] = {};
    TCHAR m_szFileName[_MAX_PATH] = {};

    DECLARE_MESSAGE_MAP()

private:
    static UINT_PTR CALLBACK file_hook(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// Asks the shown dialog by a message that fills a buffer (CDM_GETSPEC and its like).
    CString ask(UINT message) const;
    bool shown() const { return m_hWnd != nullptr; }
};
