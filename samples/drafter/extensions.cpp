#include "extensions.h"

#include <ktui/ktui.h>
#include <ktut.h>

#include "resource.h"

namespace {

constexpr const wchar_t* kExtension = L"title_block.dll";

template <class Function>
Function entryOf(HMODULE module, const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(module, name)));
}

}  // namespace

CExtensions::CExtensions(const CString& folder) { load(folder + kExtension); }

CExtensions::~CExtensions() {
    if (m_module != nullptr) ::FreeLibrary(m_module);
}

void CExtensions::load(const CString& path) {
    m_path = path;
    if (!ktutPathExists(path)) {
        m_problem.Format(IDS_EXTENSION_MISSING, path.GetString());
        return;
    }
    // The system would ask the user about a file that is no library.
    const UINT former = ::SetErrorMode(SEM_FAILCRITICALERRORS);
    m_module = ::LoadLibraryW(path);
    ::SetErrorMode(former);
    if (m_module != nullptr) readEntries(path);
    if (m_addTabs == nullptr && m_problem.IsEmpty())
        m_problem.Format(IDS_EXTENSION_DAMAGED, path.GetString());
}

/// The version comes first: another one may have other entries.
void CExtensions::readEntries(const CString& path) {
    const auto version = entryOf<DrafterExtensionVersion>(m_module, "drafterExtensionVersion");
    if (version == nullptr) return;
    if (version() != kDrafterExtensionVersion) {
        m_problem.Format(IDS_EXTENSION_VERSION, path.GetString(), version(), kDrafterExtensionVersion);
        return;
    }
    const auto addTabs = entryOf<DrafterExtensionAddTabs>(m_module, "drafterExtensionAddTabs");
    m_addPalettes = entryOf<DrafterExtensionAddPalettes>(m_module, "drafterExtensionAddPalettes");
    if (m_addPalettes != nullptr) m_addTabs = addTabs;
}

void CExtensions::AddTabs(CKbUiTabExtensionManager& manager) {
    if (m_addTabs != nullptr) m_addTabs(manager);
}

bool CExtensions::AddPalettes(CKbUiPaletteSet& set, CDrafterServices& services) {
    if (m_addTabs == nullptr) return false;
    if (!m_addPalettes(set, services)) m_problem.Format(IDS_EXTENSION_PALETTE, m_path.GetString());
    return set.GetPaletteCount() > 0;
}
