// CKbUiTabChildDialog: one page of a tabbed dialog.
//
// A child dialog (WS_CHILD, DS_CONTROL) whose parent is the main dialog. It is asked before the user leaves
// it, hears when it comes to the front or goes, and hears OK, Cancel and Apply of the main dialog.
#pragma once

#include <ktui/dialogs/kbui_dialog.h>

class CKbUiTab;
class CKbUiTabMainDialog;

class KTUI_API CKbUiTabChildDialog : public CKbUiDialog {
    DECLARE_DYNAMIC(CKbUiTabChildDialog)

public:
    /// `resource` is the module of the page's template; null leaves the current resource module in force.
    CKbUiTabChildDialog(CWnd* parent, HINSTANCE resource);
    ~CKbUiTabChildDialog() override;

    BOOL PreTranslateMessage(MSG* message) override;

    /// The tab control that the page was added to; null before.
    CKbUiTab* GetKtdsTabPointer() const { return m_tab; }
    /// The dialog that the page is on; null before the page was added.
    CKbUiTabMainDialog* GetMainDialog();
    /// The page's place in the list of pages, or -1.
    int GetTabIndex();
    /// Gives `window` the focus and keeps it.
    void SetKtdsTabChildFocus(HWND window);
    /// Non-zero once the page has been in front, unless it was set otherwise.
    int IsDirty() const { return m_dirty; }
    void SetDirty(int dirty) { m_dirty = dirty; }
    /// Gives the focus to the tab control's child that the exchange had last.
    void SetValidationInfo(CDataExchange* exchange);

    // Kept: these do nothing and answer 0.
    int OnResizePage(unsigned __int64 width, __int64 height);
    int TranslateTabKey();

protected:
    /// The page came to the front (1) or goes from it (0).
    virtual void OnTabActivation(int active);
    /// Asked before the user leaves the page; 0 refuses. A page that refuses says why and where.
    virtual int OnTabChanging();
    virtual void OnMainDialogApply();
    virtual void OnMainDialogCancel();
    /// The data of every page has been taken over by now.
    virtual void OnMainDialogOK();
    virtual int OnMainDialogHelp();

    int DoDialogHelp() override;
    void OnOK() override;
    void OnCancel() override;

    int m_dirty = 0;
    HWND m_tabFocus = nullptr;
    CKbUiTab* m_tab = nullptr;

private:
    friend class CKbUiTab;
    friend class CKbUiTabMainDialog;

    void SetKtdsTabPointer(CKbUiTab* tab) { m_tab = tab; }
    void pressInMainDialog(int id);
    /// Gives the focus to the main dialog's OK button; false if it is there and refuses to take it.
    bool moveFocusToOK();
};
