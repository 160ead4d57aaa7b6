#include <ktui/dialogs/kbui_tab_extension_manager.h>

#include <ktui/dialogs/kbui_tab.h>
#include <ktui/dialogs/kbui_tab_main_dialog.h>

CKbUiTabExtensionManager::CKbUiTabExtensionManager() = default;
CKbUiTabExtensionManager::CKbUiTabExtensionManager(const CKbUiTabExtensionManager&) = default;
CKbUiTabExtensionManager& CKbUiTabExtensionManager::operator=(const CKbUiTabExtensionManager&) = default;
CKbUiTabExtensionManager::~CKbUiTabExtensionManager() = default;

void CKbUiTabExtensionManager::Initialize(CKbUiTab* tab, CKbUiTabMainDialog* dialog) {
    m_tabControl = tab;
    m_mainDialog = dialog;
}

const wchar_t* CKbUiTabExtensionManager::GetDialogName() {
    if (m_mainDialog != nullptr) m_mainDialog->GetDialogName(m_dialogName);
    return m_dialogName;
}

int CKbUiTabExtensionManager::AddTab(HINSTANCE resource, unsigned templateId, const wchar_t* name,
                                     CKbUiTabChildDialog* page) {
    if (page == nullptr || m_tabControl == nullptr || m_mainDialog == nullptr) return 0;
    const int index = m_tabControl->GetItemCount();
    // Kept: not put back when making the page throws.
    const HINSTANCE former = AfxGetResourceHandle();
    AfxSetResourceHandle(resource);
    const int result = m_mainDialog->AddTab(index, name, templateId, page);
    AfxSetResourceHandle(former);
    return result;
}

int CKbUiTabExtensionManager::AddExtendedTabs() { return 0; }
int CKbUiTabExtensionManager::AddApplicationTabs(const wchar_t*) { return 0; }
