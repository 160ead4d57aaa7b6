#include "extensions.h"

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
    if (!ktutPathExists(path)) {
        m_problem.Format(IDS_EXTENSION_MISSING, path.GetString());
        return;
    }
    // The system would ask the user about a file that is no library.
    const UINT former = ::SetErrorMode(SEM_FAILCRITICALERRORS);
    m_module = ::LoadLibraryW(path);
    ::SetErrorMode(former);
    const auto version = m_module != nullptr
                             ? entryOf<DrafterExtensionVersion>(m_module, "drafterExtensionVersion")
                             : DrafterExtensionVersion();
    m_addTabs = m_module != nullptr ? entryOf<DrafterExtensionAddTabs>(m_module, "drafterExtensionAddTabs")
                                    : DrafterExtensionAddTabs();
    if (version == nullptr || m_addTabs == nullptr) {
        m_addTabs = nullptr;
        m_problem.Format(IDS_EXTENSION_DAMAGED, path.GetString());
    } else if (version() != kDrafterExtensionVersion) {
        m_addTabs = nullptr;
        m_problem.Format(IDS_EXTENSION_VERSION, path.GetString(), version(), kDrafterExtensionVersion);
    }
}

void CExtensions::AddTabs(CKbUiTabExtensionManager& manager) {
    if (m_addTabs != nullptr) m_addTabs(manager);
}
