// What units of the toolkit that are linked into a test ask of the loaded library.
#include <kh_system.h>

#include <ktui/host/host_calls.h>
#include <ktui/host/test_door.h>
#include <ktui/nav/nav_dialog_imp.h>
#include <ktui/nav/nav_file_dlg.h>

const ToolkitModule& LoadedToolkit() { return KtUiTestDoor().loadedToolkit(); }

HMODULE StringLibrary() { return KtUiTestDoor().stringLibrary(); }

void ShowHostHelp() {
    if (CKhUiHost* host = CKhSystem::instance()->uiHost()) host->showHelp(nullptr);
}

// By the operation of the dialog's own that leads to the library's.
int CNavFileDlg::NavigateTo(const wchar_t* folder) { return owner()->m_owner->NavigateToFolder(folder); }
