// CKbUiBaseDialog: the root of every dialog.
//
// Adds to the platform's dialog the routing of the notification protocol, tips for its controls, the editor
// command protocol (a dialog steps aside while the user works in the drawing), a resource module of its own,
// and help. It reports nothing in words.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <ktui/host/notification.h>
#include <ktui/ktui_api.h>

class CKbUiTextTip;
class TipHolder;

class KTUI_API CKbUiBaseDialog : public CDialog {
    DECLARE_DYNAMIC(CKbUiBaseDialog)

public:
    /// `resource` is the module of the template; null leaves the current resource module in force.
    CKbUiBaseDialog(unsigned templateId, CWnd* parent, HINSTANCE resource);
    ~CKbUiBaseDialog() override;

    BOOL Create(const wchar_t* templateName, CWnd* parent) override;
    BOOL Create(unsigned templateId, CWnd* parent) override;
    INT_PTR DoModal() override;
    BOOL PreTranslateMessage(MSG* message) override;

    /// Hides this dialog and its parent dialogs for work in the drawing, and tells the main window if modal.
    void BeginEditorCommand();
    /// Gives the work up: tells the main window and ends the dialog with IDCANCEL.
    void CancelEditorCommand();
    /// Ends the work. With `restoreDialogs` 0 the dialogs stay hidden and nobody is told.
    void CompleteEditorCommand(int restoreDialogs);
    /// Hides (0) or shows (1) this dialog and its parents up to the main window.
    void MakeDialogsVisible(int show);
    /// 1 exactly when the last editor command was cancelled; may be asked after the dialog has ended.
    int EditorCommandCancelled() const { return m_editorState == -1 ? 1 : 0; }

    void GetContextHelpFileName(CString& name) const { name = m_contextHelpFileName; }
    void SetContextHelpFileName(const wchar_t* name) { m_contextHelpFileName = name; }
    void GetContextHelpFullPathName(CString& path) const { path = m_contextHelpFullPathName; }
    void SetContextHelpFullPathName(const wchar_t* path) { m_contextHelpFullPathName = path; }
    void GetContextHelpPrefix(CString& prefix) const { prefix = m_contextHelpPrefix; }
    void SetContextHelpPrefix(const wchar_t* prefix) { m_contextHelpPrefix = prefix; }

    /// The dialog's tool-tip control; null while tips are off. Owned by the dialog.
    CToolTipCtrl* GetToolTipCtrl() const { return m_toolTip; }
    /// Replaces the registry root of the dialog's data.
    void SetAppRootKey(const wchar_t* key) { m_appRootKey = key; }
    /// 1 means that tips are on.
    int GetUseTips() const { return m_useTips; }
    /// Makes the tip windows with 1 unless they are there, and destroys them with any other value.
    void SetUseTips(int useTips);
    HICON GetDialogIcon() const { return m_icon; }
    /// Keeps `icon` (not owned) and sets it as big and small icon at once, so the window must be there.
    void SetDialogIcon(HICON icon);

    /// Moves data to the controls, and from them; non-zero on success.
    int DisplayData() { return ExchangeData(0); }
    int ValidateData() { return ExchangeData(1); }

protected:
    /// Decides about a notification that no child answered.
    virtual KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 data);
    virtual KBUI_REPLY OnNotifyControlChange(unsigned id, __int64 data);
    virtual KBUI_REPLY OnNotifyControlValid(unsigned id, int valid);
    virtual KBUI_REPLY OnNotifyGeneric(unsigned id, __int64 data);
    /// Shows, keeps or hides the tip for the place of the pointer in `control`.
    virtual KBUI_REPLY OnNotifyUpdateTip(CWnd* control);
    /// Puts the full path of help file `name` into `path`; 0 if it is not found.
    virtual int FindContextHelpFullPath(const wchar_t* name, CString& path);
    virtual void OnInitDialogBegin();
    virtual void OnInitDialogFinish();
    /// The parent of dialogs: the host application's main window, or null.
    virtual CWnd* AppMainWindow();
    virtual HINSTANCE AppResourceInstance();
    /// Registry root of the dialog's data, below the current user.
    virtual const wchar_t* AppRootKey();
    virtual void EnableFloatingWindows(int enable);
    virtual int IsMultiDocumentActivationEnabled();
    virtual int EnableMultiDocumentActivation(int enable);
    /// Opens help if the host has any; answers 1.
    virtual int DoDialogHelp();
    virtual int ExchangeData(int save);

    BOOL OnInitDialog() override;
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    void PostNcDestroy() override;
    void DoDataExchange(CDataExchange* exchange) override;

    afx_msg LRESULT OnKbUiMessage(WPARAM wParam, LPARAM lParam);
    afx_msg BOOL OnHelpInfo(HELPINFO* info);
    afx_msg void OnHelp();
    afx_msg BOOL OnNotify_ToolTipText(UINT id, NMHDR* header, LRESULT* result);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg LRESULT OnKbUiTimer(WPARAM wParam, LPARAM lParam);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    DECLARE_MESSAGE_MAP()

    int m_wasEnabled = 1;
    HWND m_savedFocus = nullptr;
    int m_editorState = 0;  ///< 1 running, 0 none or completed, -1 cancelled
    CString m_contextHelpFileName;
    CString m_contextHelpFullPathName;
    CString m_contextHelpPrefix;
    int m_isModal = 0;  ///< 1 for the time of DoModal; enters the dialog's registry name
    HINSTANCE m_savedResource = nullptr;
    CFont m_font;
    int m_useTips = 1;
    HINSTANCE m_resourceInstance;
    HICON m_icon = nullptr;
    CKbUiTextTip* m_textTip = nullptr;
    CToolTipCtrl* m_toolTip = nullptr;
    CString m_appRootKey;

private:
    friend class NotificationHolder;

    TipHolder tips();
    /// Whether the dialog, or the window that holds it as a child, runs a modal loop.
    bool isInModalLoop();
};
