#include <ktui/nav/nav_file_dlg.h>

#include <shlobj.h>

#include <ktui/host/com_reference.h>
#include <ktui/host/loaded_module.h>
#include <ktui/nav/nav_dialog_imp.h>

namespace {

constexpr int kTypeBox = 1136;
constexpr int kNameBox = 1148;
constexpr UINT kGetShellBrowser = WM_USER + 7;  // answers the platform dialog's IShellBrowser, not counted
constexpr DWORD kFirstRefreshed = 6;            // major version of the system

/// Two zeros behind the only text: its match list is empty, and the list ends.
constexpr wchar_t kFoldersOnlyFilter[] = L"Folders Only\0\0";

DWORD systemMajorVersion() { return LoadedToolkit().osVersionCode >> 8 & 0xFF; }

CString textOf(HWND window) {
    CString text;
    const int length = ::GetWindowTextLengthW(window);
    ::GetWindowTextW(window, text.GetBuffer(length), length + 1);
    text.ReleaseBuffer();
    return text;
}

}  // namespace

IMPLEMENT_DYNAMIC(CNavFileDlg, CFileDialog)

CNavFileDlg::CNavFileDlg(CNavDialogImp* owner, int open, const wchar_t* fileName, unsigned long flags,
                         const wchar_t* filter)
    : CFileDialog(open, nullptr, fileName, flags | OFN_HIDEREADONLY | OFN_EXPLORER | OFN_ENABLESIZING, filter,
                  nullptr),
      m_owner(owner) {
    if (open && owner->m_foldersOnly) m_ofn.lpstrFilter = kFoldersOnlyFilter;
}

CNavFileDlg::~CNavFileDlg() = default;

unsigned CNavFileDlg::TemplateId() const {
    return IS_INTRESOURCE(m_ofn.lpTemplateName) ? LOWORD(reinterpret_cast<ULONG_PTR>(m_ofn.lpTemplateName))
                                                : 0;
}

void CNavFileDlg::SelectFilterIndex(int index) {
    const HWND window = platformWindow();
    const HWND box = window != nullptr ? ::GetDlgItem(window, kTypeBox) : nullptr;
    if (box == nullptr) return;
    const auto tell = [&](WORD code) {
        ::SendMessageW(window, WM_COMMAND, MAKEWPARAM(kTypeBox, code), reinterpret_cast<LPARAM>(box));
    };
    // The platform takes a type over when the list closes; where it has not, it does so at the selection's
    // end.
    tell(CBN_DROPDOWN);
    ::SendMessageW(box, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    tell(CBN_CLOSEUP);
    if (index >= 0 && m_ofn.nFilterIndex != static_cast<DWORD>(index) + 1) tell(CBN_SELENDOK);
}

int CNavFileDlg::NavigateTo(const wchar_t* folder) {
    const HWND window = platformWindow();
    if (folder == nullptr || window == nullptr) return 0;
    CString present = GetFolderPath();
    if (present.Right(1) != L"\\") present += L"\\";
    // Kept: an argument without a backslash at its end always navigates.
    if (present.CompareNoCase(folder) == 0) return 1;
    const HWND name = ::GetDlgItem(window, kNameBox);
    if (name == nullptr) return 0;
    const CString typed = textOf(name);
    ::SetFocus(name);
    ::SetWindowTextW(name, folder);
    const HWND ok = ::GetDlgItem(window, IDOK);
    if (ok != nullptr) {
        ::SendMessageW(ok, WM_LBUTTONDOWN, 0, 0);
        ::SendMessageW(ok, WM_LBUTTONUP, 0, 0);
        if (systemMajorVersion() >= kFirstRefreshed) refreshView();
    }
    ::SetWindowTextW(name, typed);
    return ok != nullptr ? 1 : 0;
}

void CNavFileDlg::refreshView() const {
    auto* const browser =
        reinterpret_cast<IShellBrowser*>(::SendMessageW(platformWindow(), kGetShellBrowser, 0, 0));
    ComReference<IShellView> view;
    if (browser != nullptr && SUCCEEDED(browser->QueryActiveShellView(view.place())) && view) view->Refresh();
}

void CNavFileDlg::TypeName(const CString& name) {
    const HWND window = platformWindow();
    const HWND box = window != nullptr ? ::GetDlgItem(window, kNameBox) : nullptr;
    if (box == nullptr) return;
    ::SetWindowTextW(box, name);
    ::SetFocus(box);
}

BOOL CNavFileDlg::OnFileNameOK() {
    for (POSITION at = GetStartPosition(); at != nullptr;) {
        CNavData* const data = m_owner->m_dataArray->AddData();
        const CString path = GetNextPathName(at);
        if (data != nullptr) data->SetText(path);
    }
    SelectFilterIndex(static_cast<int>(m_ofn.nFilterIndex) - 1);
    // Kept: a refusal leaves the results in the array.
    if (m_owner->m_owner->OnFileNameOK()) return TRUE;
    return CFileDialog::OnFileNameOK();
}

void CNavFileDlg::OnFileNameChange() {
    m_owner->m_owner->OnFileNameChange();
    CFileDialog::OnFileNameChange();
}

void CNavFileDlg::OnTypeChange() {
    m_owner->ReactToTypeChange();
    CFileDialog::OnTypeChange();
}
