// The drafter's extensions: modules that add pages to its tabbed dialogs, and palettes.
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
    /// Lets the extension add its palettes; false if there are none. One that can't be made is a problem.
    bool AddPalettes(CKbUiPaletteSet& set, CDrafterServices& services);
    /// Why there is no extension, or what it fails in, in words; empty if there is nothing to say.
    const CString& problem() const { return m_problem; }

private:
    void load(const CString& path);
    void readEntries(const CString& path);

    HMODULE m_module = nullptr;
    DrafterExtensionAddTabs m_addTabs = nullptr;
    DrafterExtensionAddPalettes m_addPalettes = nullptr;
    CString m_path;
    CString m_problem;
};
