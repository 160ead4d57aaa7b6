// The drafter's extensions: modules that add pages to its tabbed dialogs.
#pragma once

#include <afxwin.h>

#include "extension_api.h"

class CExtensions {
public:
    /// Loads the extension that the drafter comes with from `folder` (a path with a backslash at its end).
    explicit CExtensions(const CString& folder);
    ~CExtensions();
    CExtensions(const CExtensions&) = delete;
    CExtensions& operator=(const CExtensions&) = delete;

    /// Lets the extension add its pages; nothing without one.
    void AddTabs(CKbUiTabExtensionManager& manager);
    /// Why there is no extension, in words; empty if there is one.
    const CString& problem() const { return m_problem; }

private:
    void load(const CString& path);

    HMODULE m_module = nullptr;
    DrafterExtensionAddTabs m_addTabs = nullptr;
    CString m_problem;
};
