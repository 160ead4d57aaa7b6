// Operations of a navigation dialog that clients link against and that do nothing here.
#include <ktui/nav/nav_dialog.h>

void CNavDialog::SetToolsMenuItemsPresent(int) {}
void CNavDialog::SetNoExtraExtensions(int) {}
void CNavDialog::SetNoExtraExtensionsInPlaces(int) {}
void CNavDialog::SetNoFTP(int) {}
void CNavDialog::SetNoPlacesList(int) {}
void CNavDialog::SetUseRegExtensionFlags(int) {}
void CNavDialog::SetViewMode(int) {}
int CNavDialog::GetOkButtonText(CString&) const { return 0; }
void CNavDialog::SetOkButtonText(const wchar_t*) {}
void CNavDialog::SetOkButtonMenuExists(int) {}
void CNavDialog::SetFolderListCtrl(CListCtrl*) {}
int CNavDialog::SetFolderComboCurSel(int) { return 0; }
int CNavDialog::AddDataToHistory(CNavData*) { return 0; }
int CNavDialog::BrowseCurrentObject(int) { return 0; }
int CNavDialog::InsertUserItemInPlaces(CNavData*) { return 0; }
int CNavDialog::GetPersonalFolderPath(CString&) { return 0; }
OkHandlerErr CNavDialog::CombineDataTextWithFolderName(CNavData&) { return kNavOkHandled; }
OkHandlerErr CNavDialog::PreprocessData(CNavData&) { return kNavOkHandled; }
int CNavDialog::FindInSearchPath(CString&) { return 0; }
int CNavDialog::LaunchBrowserDialog(CString&) { return 0; }
int CNavDialog::OnUrlOK(const wchar_t*) { return 0; }
void CNavDialog::ReportURLTransferStatus(int) {}
int CNavDialog::VerifyURLSave(const wchar_t*) { return 0; }
int CNavDialog::BeginDownloadFiles(int) { return 0; }
int CNavDialog::GetDownloadActionCodes(int&, int&) { return 0; }
int CNavDialog::GetAllDialogsData(const wchar_t*, CString&) { return 0; }
int CNavDialog::GetAllDialogsData(const wchar_t*, unsigned long&) { return 0; }
int CNavDialog::SetAllDialogsData(const wchar_t*, const wchar_t*) { return 0; }
int CNavDialog::SetAllDialogsData(const wchar_t*, unsigned long) { return 0; }
void CNavDialog::DisplaySearchError(const wchar_t*) {}
void CNavDialog::OnDoAddToFavorites() {}
void CNavDialog::OnDoFind() {}
void CNavDialog::OnDoLocate() {}
void CNavDialog::OnURLDownloadSuccess(const wchar_t*, const wchar_t*) {}
void CNavDialog::PrepareOkMenu(CMenu&) {}
void CNavDialog::PrepareToolsMenu(CMenu&) {}
void CNavDialog::PrepareViewsMenu(CMenu&) {}
void CNavDialog::Refresh() {}
void CNavDialog::UpdateUIState() {}
int CNavDialog::LocateFile(const wchar_t*, CString&) { return 0; }
void CNavDialog::OnDialogHelp() {}
void CNavDialog::OnDialogHelp(const wchar_t*) {}
KBUI_REPLY CNavDialog::OnNotifyControlChange(unsigned, __int64) { return kKbUiReplyNone; }
KBUI_REPLY CNavDialog::OnNotifyGeneric(unsigned, __int64) { return kKbUiReplyNone; }
void CNavDialog::DoDataExchange(CDataExchange*) {}
