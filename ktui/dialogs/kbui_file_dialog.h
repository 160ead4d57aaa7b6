// CKbUiFileDialog: the system's file dialog with the notification and the editor command protocol of the
// dialogs.
//
//     CKtUiFileDialog dialog(TRUE, L"dxf", nullptr, OFN_FILEMUSTEXIST, L"Drawings|*.dxf||", this);
//     if (dialog.DoModal() == IDOK) open(dialog.GetPathName());
//
// It has no tips, and most of its settings are there for clients to link against.
#pragma once

#include <afxdlgs.h>

#include <ktui/host/notification.h>
#include <ktui/ktui_api.h>

class KTUI_API CKbUiFileDialog : public CFileDialog {
    DECLARE_DYNAMIC(CKbUiFileDialog)

public:
    /// `open` 1 to open and 0 to save; `flags` are OFN_ values. `resource` is the module that is current
    /// while the dialog runs; null leaves the current one in force.
    CKbUiFileDialog(int open, const wchar_t* defaultExtension, const wchar_t* fileName, unsigned long flags,
                    const wchar_t* filter, CWnd* parent, HINSTANCE resource);
    ~CKbUiFileDialog() override;

    INT_PTR DoModal() override;
    BOOL PreTranslateMessage(MSG* message) override;

    /// Hides this dialog and its parent dialogs for work in the drawing, and tells the main window.
    void BeginEditorCommand();
    /// Gives the work up: tells the main window and ends the dialog with IDCANCEL.
    void CancelEditorCommand();
    /// Ends the work. With `restoreDialogs` 0 the dialogs stay hidden and nobody is told.
    void CompleteEditorCommand(int restoreDialogs);
    /// Hides (0) or shows (1) this dialog and its parents up to the main window.
    void MakeDialogsVisible(int show);
    /// 1 exactly when the last editor command was cancelled.
    int EditorCommandCancelled() const { return m_editorState == -1 ? 1 : 0; }

    void GetDialogHelpTag(CString& tag) const { tag = m_dialogHelpTag; }
    void SetDialogHelpTag(const wchar_t* tag) { m_dialogHelpTag = tag; }
    /// Kept: always the empty string.
    void GetDialogName(CString& name) const { name = m_dialogName; }

    // Kept: these do nothing.
    void SetUseTips(int useTips);
    void SetDialogIcon(HICON icon);
    void SetDialogName(const wchar_t* name);
    void SetContextHelpFileName(const wchar_t* name);
    void SetContextHelpFullPathName(const wchar_t* path);
    void SetContextHelpPrefix(const wchar_t* prefix);
    // Kept: fixed answers.
    HICON GetDialogIcon() const { return nullptr; }
    int GetContextHelpFileName(CString&) const { return 0; }
    int GetContextHelpFullPathName(CString&) const { return 0; }
    int GetContextHelpPrefix(CString&) const { return 0; }
    int GetUseTips() const { return 1; }

protected:
    /// Decides about a notification that no child answered.
    virtual KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 data);
    virtual KBUI_REPLY OnNotifyControlChange(unsigned id, __int64 data);
    virtual KBUI_REPLY OnNotifyControlValid(unsigned id, int valid);
    virtual KBUI_REPLY OnNotifyGeneric(unsigned id, __int64 data);
    virtual KBUI_REPLY OnNotifyUpdateTip(CWnd* control);
    /// Puts the full path of help file `name` into `path`; 0 if it is not found.
    virtual int FindContextHelpFullPath(const wchar_t* name, CString& path);
    virtual void OnInitDialogBegin();
    virtual void OnInitDialogFinish();
    /// The host application's main window, or null.
    virtual CWnd* AppMainWindow();
    virtual HINSTANCE AppResourceInstance();
    virtual const wchar_t* AppRootKey();
    virtual void EnableFloatingWindows(int enable);
    virtual void OnDialogHelp();
    /// Opens help if the host has any; answers 1.
    virtual int DoDialogHelp();

    BOOL OnInitDialog() override;

    afx_msg LRESULT OnKbUiMessage(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    afx_msg BOOL OnNotify_ToolTipText(UINT id, NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

    int m_wasEnabled = 1;
    HWND m_savedFocus = nullptr;
    int m_editorState = 0;  ///< 1 running, 0 none or completed, -1 cancelled
    // No operation reads these three.
    CString m_contextHelpFileName;
    CString m_contextHelpFullPathName;
    CString m_contextHelpPrefix;
    HINSTANCE m_savedResource = nullptr;
    CString m_dialogHelpTag;
    CString m_dialogName;
    HINSTANCE m_resourceInstance;
    HICON m_icon = nullptr;
    CString m_spareText;  ///< no operation reads it

private:
    friend class NotificationHolder;
};

/// The same, bound to the host application.
class KTUI_API CKtUiFileDialog : public CKbUiFileDialog {
    DECLARE_DYNAMIC(CKtUiFileDialog)

public:
    CKtUiFileDialog(int open, const wchar_t* defaultExtension = nullptr, const wchar_t* fileName = nullptr,
                    unsigned long flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                    const wchar_t* filter = nullptr, CWnd* parent = nullptr);
    ~CKtUiFileDialog() override;

protected:
    CWnd* AppMainWindow() override;
    HINSTANCE AppResourceInstance() override;
    void OnOK() override;
    void OnCancel() override;
};
