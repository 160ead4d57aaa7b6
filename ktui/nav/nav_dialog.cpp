#include <ktui/nav/nav_dialog.h>

#include <kh_system.h>

#include <ktui/nav/nav_dialog_imp.h>
#include <ktui/nav/nav_file_dlg.h>

IMPLEMENT_DYNAMIC(CNavDialog, CKbUiDialog)

CNavDialog::CNavDialog(CNavDataArray& data, CNavFilterArray& filters, unsigned templateId, CWnd* parent,
                       HINSTANCE resource)
    : CKbUiDialog(templateId, parent, resource), m_imp(new CNavDialogImp(*this, data, filters)) {}

CNavDialog::~CNavDialog() { delete m_imp; }

INT_PTR CNavDialog::DoModal() { return m_imp->DoModal(); }

int CNavDialog::GetFilterIndex() const {
    return m_imp->m_fileDialog ? static_cast<int>(m_imp->m_fileDialog->GetOFN().nFilterIndex) - 1 : 0;
}

void CNavDialog::SetFilterIndex(int index) {
    if (m_imp->m_fileDialog) m_imp->m_fileDialog->SelectFilterIndex(index);
}

int CNavDialog::GetInitialFilterIndex() const {
    if (m_imp->m_forceFilterIndex != -1) return m_imp->m_forceFilterIndex;
    return m_imp->m_defaultFilterIndex != 0 ? m_imp->m_defaultFilterIndex : GetFilterIndex();
}

int CNavDialog::NavigateToFolder(const wchar_t* folder) {
    return m_imp->m_fileDialog ? m_imp->m_fileDialog->NavigateTo(folder) : 0;
}

CNavFilter* CNavDialog::GetCurrentFileExtension(CString& extension) const {
    CNavFilter* const filter = m_imp->CurrentFilter();
    if (filter != nullptr) extension = filter->GetAt(0);
    return filter;
}

void CNavDialog::GetCurrentFolderForPersistence(CString& folder) const {
    const CNavData* const first = m_imp->m_dataArray->GetData(0);
    if (first == nullptr) return;
    const CString text = first->GetText();
    const int backslash = text.ReverseFind(L'\\');
    folder = backslash < 0 ? text : text.Left(backslash);
}

void CNavDialog::GetSingleDataFullPath(CString& path) const {
    if (m_imp->m_dataArray->GetCount() == 1) path = m_imp->m_dataArray->GetData(0)->GetText();
}

void CNavDialog::TrimWhiteSpace(CString& text, int both) const {
    if (both)
        text.Trim();
    else
        text.TrimLeft();
}

int CNavDialog::GetToolsMenuItemPosition(NavToolsMenuItem item) const {
    return item == kNavToolsMenuFirst ? 0 : item == kNavToolsMenuSecond ? 1 : -1;
}

int CNavDialog::GetProductName(CString& name) {
    name = CKhSystem::instance()->productInfo()->programName();
    return 1;
}

int CNavDialog::GetDefaultBrowserStartURL(CString& url) {
    url = L"https://www.velmora.example/";
    return 1;
}

int CNavDialog::UpdateFileExtension(CString&) { return 1; }
int CNavDialog::OnFileNameOK() { return 0; }
int CNavDialog::GetRecentDirectory(CString&) { return 0; }
void CNavDialog::OnFileNameChange() {}
void CNavDialog::OnFileNameSelectionChange() {}
void CNavDialog::OnFilterChange() {}
void CNavDialog::OnFolderChange() {}
void CNavDialog::OnFolderItemChange() {}
