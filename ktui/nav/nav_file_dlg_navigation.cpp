// CNavFileDlg: moving the platform's dialog by what a user would do.
#include <ktui/nav/nav_file_dlg.h>

#include <ktui/nav/file_dialog_rules.h>
#include <ktui/nav/platform_file_dialog.h>

namespace {

CString textOf(HWND window) {
    CString text;
    const int length = ::GetWindowTextLengthW(window);
    ::GetWindowTextW(window, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer();
    return text;
}

}  // namespace

void CNavFileDlg::SelectFilterIndex(int index) {
    const HWND window = PlatformWindow();
    const HWND box = platformControl(kPlatformTypeBox);
    if (box == nullptr) return;
    const auto tell = [&](WORD code) {
        ::SendMessageW(window, WM_COMMAND, MAKEWPARAM(kPlatformTypeBox, code), reinterpret_cast<LPARAM>(box));
    };
    tell(CBN_DROPDOWN);
    ::SendMessageW(box, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    tell(CBN_CLOSEUP);
    // Wine's dialog takes the type at the end of the selection and no sooner. Where the platform has taken it
    // when the list closed, as Windows does, nothing more is told.
    if (index >= 0 && m_ofn.nFilterIndex != static_cast<DWORD>(index) + 1) tell(CBN_SELENDOK);
}

int CNavFileDlg::NavigateTo(const wchar_t* folder) {
    if (folder == nullptr || PlatformWindow() == nullptr) return 0;
    if (IsFolderShown(GetFolderPath(), folder)) return 1;
    const HWND name = platformControl(kPlatformNameBox);
    if (name == nullptr) return 0;
    const CString typed = textOf(name);
    ::SetFocus(name);
    ::SetWindowTextW(name, folder);
    const HWND ok = platformControl(IDOK);
    if (ok != nullptr) {
        ::SendMessageW(ok, WM_LBUTTONDOWN, 0, 0);
        ::SendMessageW(ok, WM_LBUTTONUP, 0, 0);
        if (IsLaterSystem()) refreshView();
    }
    ::SetWindowTextW(name, typed);
    return ok != nullptr ? 1 : 0;
}

void CNavFileDlg::refreshView() const {
    ComReference<IShellView> view;
    FindShellView(PlatformWindow(), view);
    if (view) view->Refresh();
}

void CNavFileDlg::TypeName(const CString& name) {
    const HWND box = platformControl(kPlatformNameBox);
    if (box == nullptr) return;
    ::SetWindowTextW(box, name);
    ::SetFocus(box);
}
