// CKbUiDialogBar: a dialog bar that takes part in the notification protocol like a dialog does. Its controls
// ask it for tips and tell it of changes.
//
// It steps aside for no editor command, and the verdict about a control is the notification itself.
#pragma once

#include <afxcmn.h>
#include <afxext.h>

#include <ktui/host/notification.h>
#include <ktui/ktui_api.h>

class CKbUiTextTip;
class TipHolder;

class KTUI_API CKbUiDialogBar : public CDialogBar {
    DECLARE_DYNAMIC(CKbUiDialogBar)

public:
    CKbUiDialogBar();
    ~CKbUiDialogBar() override;

    BOOL PreTranslateMessage(MSG* message) override;

    /// 1 means that tips are on.
    int GetUseTips() const { return m_useTips; }
    /// Makes the tip windows with 1 unless they are there, and destroys them with any other value.
    void SetUseTips(int useTips);

protected:
    /// Decides about a notification that no child answered.
    virtual KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 data);
    virtual KBUI_REPLY OnNotifyControlChange(unsigned id, __int64 data);
    virtual KBUI_REPLY OnNotifyControlValid(unsigned id, int valid);
    virtual KBUI_REPLY OnNotifyGeneric(unsigned id, __int64 data);
    /// Shows, keeps or hides the tip for the place of the pointer in `control`.
    virtual KBUI_REPLY OnNotifyUpdateTip(CWnd* control);
    /// The host application's main window, or null.
    virtual CWnd* AppMainWindow();
    virtual HINSTANCE AppResourceInstance();
    virtual const wchar_t* AppRootKey();

    void PostNcDestroy() override;

    afx_msg LRESULT OnKbUiMessage(WPARAM wParam, LPARAM lParam);
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg BOOL OnNotify_ToolTipText(UINT id, NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

    int m_useTips = 1;
    CKbUiTextTip* m_textTip = nullptr;
    CToolTipCtrl* m_toolTip = nullptr;
    CString m_appRootKey;

private:
    friend class NotificationHolder;

    TipHolder tips();
};

/// The same by the name that an application uses.
class KTUI_API CKtUiDialogBar : public CKbUiDialogBar {
    DECLARE_DYNAMIC(CKtUiDialogBar)

public:
    CKtUiDialogBar();
    ~CKtUiDialogBar() override;
};
