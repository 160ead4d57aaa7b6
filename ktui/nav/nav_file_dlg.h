// CNavFileDlg: the platform's file dialog as a navigation dialog uses it. Private to the library.
#pragma once

#include <afxdlgs.h>

class CNavDialogImp;

class CNavFileDlg : public CFileDialog {
    DECLARE_DYNAMIC(CNavFileDlg)

public:
    /// `owner` outlives this object. `fileName` and `filter` may be null; the filter's pieces are parted by
    /// "|". `open` 0 is a Save dialog.
    CNavFileDlg(CNavDialogImp* owner, int open, const wchar_t* fileName, unsigned long flags,
                const wchar_t* filter);
    ~CNavFileDlg() override;

    /// The state of the dialog that it is run for; never null.
    CNavDialogImp* owner() const { return m_owner; }
    /// Number of the template of own controls; 0 for none.
    unsigned TemplateId() const;

    // While the dialog is shown; without a window they do nothing.
    /// Selects a type, from 0, as the user would.
    void SelectFilterIndex(int index);
    /// Goes to `folder`; 1 if that could be done or the dialog shows it already.
    int NavigateTo(const wchar_t* folder);
    /// What is typed as the name.
    CString TypedName() const { return GetFileName(); }
    /// Puts `name` into the box of the name, which takes the focus.
    void TypeName(const CString& name);

protected:
    BOOL OnFileNameOK() override;
    void OnFileNameChange() override;
    void OnTypeChange() override;

private:
    /// The dialog that the user sees; null while there is none.
    HWND platformWindow() const { return m_hWnd != nullptr ? ::GetParent(m_hWnd) : nullptr; }
    void refreshView() const;

    CNavDialogImp* m_owner;
};
