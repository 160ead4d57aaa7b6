// CNavFileDlg: what its own buttons and the hot keys do.
#include <ktui/nav/nav_file_dlg.h>

#include <shlwapi.h>

#include <vector>

#include <kh_security.h>
#include <kh_system.h>
#include <ktdsres/nav_file_dialog_ids.h>
#include <od_string.h>

#include <ktui/host/message_box.h>
#include <ktui/host/string_resources.h>
#include <ktui/nav/file_dialog_rules.h>
#include <ktui/nav/find_file_call.h>
#include <ktui/nav/nav_keyboard_hook.h>
#include <ktui/nav/save_option_sheet.h>
#include <ktui/pickers/config_util.h>

namespace {

struct SupportFolder {
    wchar_t path[kKhPathLength];
};
static_assert(sizeof(SupportFolder) == sizeof(wchar_t[kKhPathLength]));

std::vector<SupportFolder> supportFolders() {
    CKhRuntimeHost& host = *CKhSystem::instance()->runtimeHost();
    std::vector<SupportFolder> folders(static_cast<size_t>(host.supportDirectories(nullptr, 0)));
    if (folders.empty()) return folders;
    const int filled = host.supportDirectories(&folders.front().path, static_cast<int>(folders.size()));
    folders.resize(static_cast<size_t>(filled));
    return folders;
}

/// Whether `name` is a file in `folder`; a folder of that name is none.
bool hasFile(const SupportFolder& folder, const CString& name) {
    SupportFolder file = folder;
    ::PathAppendW(file.path, name);
    return ::PathFileExistsW(file.path) && !::PathIsDirectoryW(file.path);
}

void tell(const CString& text) { KtUiMessageBox(nullptr, text, MB_ICONEXCLAMATION); }

void tellNotFound(const CString& name, const std::vector<SupportFolder>& folders) {
    CString text;
    text.Format(L"\"%s\"\n", name.GetString());
    for (const SupportFolder& folder : folders) text.AppendFormat(L"%s\\\n", folder.path);
    tell(text);
}

/// The format that drawings are saved in unless the user says otherwise.
int defaultSaveFormat() {
    int format = KtApDocument::k2013Dwg;
    CKhSystem::instance()->profileStore()->getProfileInt(L"General", L"DefaultFormatForSave", format, 0);
    return format;
}

/// Where `format` stands in the list of formats; -1 if it doesn't.
int positionOf(int format) {
    OdArray<KtApDocument::SaveFormat> formats;
    KhUtConfigUtil::getSaveFormatList(formats);
    for (int i = 0; i < formats.length(); ++i)
        if (formats[i] == format) return i;
    return -1;
}

void dispatchPending() {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

}  // namespace

void CNavFileDlg::Locate() {
    const NavKeyboardHookAside aside;
    CString name = TypedName();
    if (name.IsEmpty()) return;
    name.Trim();
    if (!IsNameToLocate(name)) {
        CString text;
        text.Format(LoadToolkitString(IDS_NAV_NAME_NOT_VALID, L"文件名无效：\"%s\"").GetString(),
                    name.GetString());
        tell(text);
        return;
    }
    const std::vector<SupportFolder> folders = supportFolders();
    for (const SupportFolder& folder : folders) {
        if (!hasFile(folder, name)) continue;
        NavigateTo(folder.path);
        return;
    }
    tellNotFound(name, folders);
}

void CNavFileDlg::FindFile() {
    const NavKeyboardHookAside aside;
    OdString folder, file;
    if (!CallFindFileDialog(m_ofn.lpstrFilter, static_cast<int>(m_ofn.nFilterIndex), GetFolderPath(), folder,
                            file))
        return;
    NavigateTo(folder.c_str());
    dispatchPending();  // until the view shows the folder
    TypeName(file.c_str());
}

void CNavFileDlg::ShowSaveOptions() {
    const NavKeyboardHookAside aside;
    const int before = defaultSaveFormat();
    CSaveOptionSheet sheet;
    if (sheet.DoModal() != IDOK) return;
    const int after = defaultSaveFormat();
    // Kept: a format that isn't in the list empties the box of types.
    if (after != before) SelectFilterIndex(positionOf(after));
}

void CNavFileDlg::ShowSecurityOptions() {
    const NavKeyboardHookAside aside;
    CKhService* const service = CKhSystem::instance()->serviceManager()->getService(kKhSecurityService);
    if (service != nullptr) static_cast<CKhSecurity*>(service)->showSecurityOptions();
}
