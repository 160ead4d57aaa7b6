// The settings of a navigation dialog, one getter and setter each.
#include <ktui/nav/nav_dialog.h>

#include <ktui/nav/nav_dialog_imp.h>
#include <ktui/nav/nav_file_dlg.h>

CNavDataArray* CNavDialog::GetDataArray() const { return m_imp->m_dataArray; }
CNavFilterArray* CNavDialog::GetFilterArray() const { return m_imp->m_filterArray; }

const wchar_t* CNavDialog::GetDialogCaption() const { return m_imp->m_dialogCaption; }
void CNavDialog::SetDialogCaption(const wchar_t* caption) { m_imp->m_dialogCaption = caption; }
const wchar_t* CNavDialog::GetDefaultFileExtension() const { return m_imp->m_defaultFileExtension; }
void CNavDialog::SetDefaultFileExtension(const wchar_t* extension) {
    m_imp->m_defaultFileExtension = extension;
}
const wchar_t* CNavDialog::GetForceInitialFolder() const { return m_imp->m_forceInitialFolder; }
void CNavDialog::SetForceInitialFolder(const wchar_t* folder) { m_imp->m_forceInitialFolder = folder; }
const wchar_t* CNavDialog::GetDefaultInitialFolder() const { return m_imp->m_defaultInitialFolder; }
void CNavDialog::SetDefaultInitialFolder(const wchar_t* folder) { m_imp->m_defaultInitialFolder = folder; }
const wchar_t* CNavDialog::GetInitialFileName() const { return m_imp->m_initialFileName; }
void CNavDialog::SetInitialFileName(const wchar_t* name) { m_imp->m_initialFileName = name; }

int CNavDialog::GetDefaultFilterIndex() const { return m_imp->m_defaultFilterIndex; }
void CNavDialog::SetDefaultFilterIndex(int index) { m_imp->m_defaultFilterIndex = index; }
int CNavDialog::GetForceFilterIndex() const { return m_imp->m_forceFilterIndex; }
void CNavDialog::SetForceFilterIndex(int index) { m_imp->m_forceFilterIndex = index; }
int CNavDialog::GetConfirmReplace() const { return m_imp->m_confirmReplace; }
void CNavDialog::SetConfirmReplace(int confirm) { m_imp->m_confirmReplace = confirm; }
int CNavDialog::GetAcceptAnyFileExtension() const { return m_imp->m_acceptAnyFileExtension; }
void CNavDialog::SetAcceptAnyFileExtension(int accept) { m_imp->m_acceptAnyFileExtension = accept; }
int CNavDialog::GetNoURLFileTransfer() const { return m_imp->m_noURLFileTransfer; }
void CNavDialog::SetNoURLFileTransfer(int none) { m_imp->m_noURLFileTransfer = none; }
int CNavDialog::GetNoURLsAllowed() const { return m_imp->m_noURLsAllowed; }
void CNavDialog::SetNoURLsAllowed(int none) { m_imp->m_noURLsAllowed = none; }
int CNavDialog::GetMultiSelectAllowed() const { return m_imp->m_multiSelectAllowed; }
void CNavDialog::SetMultiSelectAllowed(int allowed) { m_imp->m_multiSelectAllowed = allowed; }
int CNavDialog::GetReadOnlyAllowed() const { return m_imp->m_readOnlyAllowed; }
void CNavDialog::SetReadOnlyAllowed(int allowed) { m_imp->m_readOnlyAllowed = allowed; }
int CNavDialog::GetReadOnlyHidden() const { return m_imp->m_readOnlyHidden; }
void CNavDialog::SetReadOnlyHidden(int hidden) { m_imp->m_readOnlyHidden = hidden; }
int CNavDialog::GetReadOnlySpecified() const { return m_imp->m_readOnlySpecified; }
void CNavDialog::SetReadOnlySpecified(int specified) { m_imp->m_readOnlySpecified = specified; }
int CNavDialog::GetCreatingFile() const { return m_imp->m_creatingFile; }
void CNavDialog::SetCreatingFile(int creating) { m_imp->m_creatingFile = creating; }
int CNavDialog::GetFoldersOnly() const { return m_imp->m_foldersOnly; }
void CNavDialog::SetFoldersOnly(int only) { m_imp->m_foldersOnly = only; }
int CNavDialog::GetPreviewPresent() const { return m_imp->m_previewPresent; }
void CNavDialog::SetPreviewPresent(int present) { m_imp->m_previewPresent = present; }

int CNavDialog::GetPreviewVisible() const { return m_imp->m_previewVisible; }
void CNavDialog::SetPreviewVisible(int visible) {
    m_imp->m_previewVisible = visible;
    if (visible) m_imp->m_previewPresent = 1;
}
