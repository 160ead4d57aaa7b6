// CKbUiTabMainDialog: the outer dialog of a tabbed dialog, with OK, Cancel and, if the application wants it,
// Apply.
//
//     BOOL COptions::OnInitDialog() {
//         const BOOL result = CKtUiTabMainDialog::OnInitDialog();  // DoDataExchange binds m_tabs
//         AddTab(0, L"Files", IDD_FILES, &m_files);
//         AddTab(1, L"Display", IDD_DISPLAY, &m_display);
//         StretchControlXY(IDC_TABS, 100, 100);
//         return result;
//     }
//
// OK takes over the data of every page before any page hears of it, and a page that fails keeps the dialog
// open.
#pragma once

#include <ktui/dialogs/kbui_dialog.h>
#include <ktui/dialogs/kbui_tab_extension_manager.h>

class CKbUiTab;
class CKbUiTabChildDialog;

class KTUI_API CKbUiTabMainDialog : public CKbUiDialog {
    DECLARE_DYNAMIC(CKbUiTabMainDialog)

public:
    CKbUiTabMainDialog(unsigned templateId, CWnd* parent, HINSTANCE resource);
    ~CKbUiTabMainDialog() override;

    // As those of the tab control; 0 without one.
    int AddTab(int index, const wchar_t* name, unsigned templateId, CKbUiTabChildDialog* page);
    int AddTab(int index, unsigned nameId, unsigned templateId, CKbUiTabChildDialog* page);
    int RemoveTab(int index);
    /// The index of `page`, or -1.
    int GetTabIndex(CKbUiTabChildDialog* page);
    /// The tab control; null until one is bound.
    CKbUiTab* GetTabControl() const { return m_tab; }
    /// Through which other modules add pages.
    CKbUiTabExtensionManager* GetXtabPointer() { return &m_xtab; }

    int GetDefaultButton() const { return m_defaultButton; }
    /// Makes the button with `id` the one that Return presses.
    void SetDefaultButton(int id);
    /// Gives `to` the focus and makes it the default button; nothing if it is `from` already.
    void UpdateDefaultButton(HWND from, HWND to);

    /// The page to open on, by number or by the text of its tab.
    void GetInitialTabIndex(CString& index) const { index = m_initialTabIndex; }
    void SetInitialTabIndex(const wchar_t* index) { m_initialTabIndex = index; }
    /// The number of the page that was asked for: -1 if none was, 0 if there is no such page.
    int GetInitialRequestedTabIndex();

    /// Tells every page that Apply was pressed, then takes the focus. Nothing is validated.
    void RaiseApplyEvent();

    // Kept: these do nothing and answer 0.
    int AddExtendedTabs();
    int TranslateTabKey();

protected:
    virtual int AddApplicationTabs(const wchar_t* name);

    void SetKtdsTabPointer(CKbUiTab* tab) { m_tab = tab; }
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;

    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

    int m_defaultButton = 0;
    CKbUiTab* m_tab = nullptr;
    CString m_initialTabIndex;
    CKbUiTabExtensionManager m_xtab;

private:
    friend class CKbUiTab;

    /// Calls `event` of each page that has an item in the strip.
    void tellPages(void (CKbUiTabChildDialog::*event)());
};
