// CKbUiTabExtensionManager: how a module adds a page of its own to another module's tabbed dialog.
//
//     const CString name = manager->GetDialogName();
//     if (name == L"Options") manager->AddTab(ownModule, IDD_PAGE, L"Title block", &page);
//
// Each main dialog holds one (GetXtabPointer). Works from the dialog's OnInitDialog on.
#pragma once

#include <afx.h>

#include <ktui/ktui_api.h>

class CKbUiTab;
class CKbUiTabChildDialog;
class CKbUiTabMainDialog;

class KTUI_API CKbUiTabExtensionManager {
public:
    CKbUiTabExtensionManager();
    CKbUiTabExtensionManager(const CKbUiTabExtensionManager&);
    CKbUiTabExtensionManager& operator=(const CKbUiTabExtensionManager&);
    virtual ~CKbUiTabExtensionManager();

    /// The name of the dialog's data, by which a module knows the dialog. Good until the next call.
    virtual const wchar_t* GetDialogName();
    /// Adds `page` (the caller's) behind all others, its template from module `resource`. 0 for a null page,
    /// before Initialize, and if the page can't be made.
    virtual int AddTab(HINSTANCE resource, unsigned templateId, const wchar_t* name,
                       CKbUiTabChildDialog* page);

    /// Neither is owned.
    void Initialize(CKbUiTab* tab, CKbUiTabMainDialog* dialog);
    CKbUiTab* GetTabControl() const { return m_tabControl; }
    /// Kept: does nothing and answers 0.
    int AddExtendedTabs();

private:
    int AddApplicationTabs(const wchar_t* name);

    CString m_dialogName;
    CKbUiTabMainDialog* m_mainDialog = nullptr;
    CKbUiTab* m_tabControl = nullptr;
};
