// What a dialog remembers between its showings: its name and key in the registry, placement, list columns.
#include <ktui/dialogs/kbui_dialog.h>

#include <ktui/dialogs/elastic.h>
#include <ktui/text/dialog_root.h>
#include <ktui/text/registry_access.h>

namespace {

bool touchesDesktop(const CRect& rect) {
    CRect desktop, common;
    ::GetWindowRect(::GetDesktopWindow(), &desktop);
    return ::IntersectRect(&common, &rect, &desktop) != FALSE;
}

}  // namespace

void CKbUiDialog::restorePlacement() {
    CRect window, stored;
    GetWindowRect(&window);
    // A subclass that has placed the dialog itself wins.
    if (window != m_elastic->m_initialRect) return;
    if (!GetPixelData(stored) || !touchesDesktop(stored)) return;
    MoveWindow(stored.left, stored.top, stored.Width(), stored.Height(), TRUE);
}

void CKbUiDialog::restorePosition() {
    CRect window, stored;
    GetWindowRect(&window);
    if (!GetPixelData(stored) || !touchesDesktop(stored)) return;
    MoveWindow(stored.left, stored.top, window.Width(), window.Height(), TRUE);
}

int CKbUiDialog::GetDialogName(CString& name) {
    if (m_dialogName.IsEmpty()) {
        wchar_t path[MAX_PATH] = {};
        ::GetModuleFileNameW(AfxGetResourceHandle(), path, MAX_PATH);
        CString module(path);
        module = module.Mid(module.ReverseFind(L'\\') + 1);
        module.MakeUpper();
        // Kept: modality is part of the name, so a template shown both ways has two placements.
        m_dialogName.Format(L"%s-%X-%d", module.GetString(), m_templateId, m_isModal);
    }
    name = m_dialogName;
    return name.IsEmpty() ? 0 : 1;
}

void CKbUiDialog::SetDialogName(const wchar_t* name) {
    if (!m_dialogName.IsEmpty()) return;
    m_dialogName = name;
    m_dialogName.Trim();
    if (m_dialogHelpTag.IsEmpty()) m_dialogHelpTag = name;
}

int CKbUiDialog::GetDialogKey(CString& key) {
    CString name;
    if (!GetDialogName(name)) return 0;
    key = DialogDataKey(AppRootKey(), name);
    return 1;
}

int CKbUiDialog::GetDialogData(const wchar_t* value, unsigned long& number) {
    number = 0;
    CString key;
    if (!GetDialogKey(key)) return 0;
    const CKbUiRegistryAccess access(HKEY_CURRENT_USER, key);
    if (!access.IsOpen()) return 0;
    DWORD stored = 0;
    DWORD size = sizeof(stored);
    const LSTATUS status =
        ::RegQueryValueExW(access, value, nullptr, nullptr, reinterpret_cast<BYTE*>(&stored), &size);
    number = stored;
    return status == ERROR_SUCCESS ? 1 : 0;
}

int CKbUiDialog::GetDialogData(const wchar_t* value, CString& text) {
    text.Empty();
    CString key;
    if (!GetDialogKey(key)) return 0;
    const CKbUiRegistryAccess access(HKEY_CURRENT_USER, key);
    if (!access.IsOpen()) return 0;
    ::SetLastError(ERROR_SUCCESS);
    text = access.GetString(value);
    return ::GetLastError() == ERROR_SUCCESS ? 1 : 0;
}

int CKbUiDialog::SetDialogData(const wchar_t* value, const wchar_t* text) {
    CString key;
    if (!GetDialogKey(key)) return 0;
    CKbUiRegistryWriteAccess access(HKEY_CURRENT_USER, key);
    return access.SetString(value, text) ? 1 : 0;
}

int CKbUiDialog::SetDialogData(const wchar_t* value, unsigned long number) {
    CString key;
    if (!GetDialogKey(key)) return 0;
    CKbUiRegistryWriteAccess access(HKEY_CURRENT_USER, key);
    return access.SetDWord(value, number) ? 1 : 0;
}

int CKbUiDialog::GetPixelData(CRect& rect) {
    unsigned long x = 0, y = 0, width = 0, height = 0;
    if (!GetDialogData(L"X", x) || !GetDialogData(L"Y", y) || !GetDialogData(L"Width", width) ||
        !GetDialogData(L"Height", height)) {
        if (m_hWnd != nullptr) GetWindowRect(&rect);
        return 0;
    }
    // Stored as 32-bit patterns, so that a place left of the primary monitor survives.
    const int left = static_cast<int>(x), top = static_cast<int>(y);
    rect.SetRect(left, top, left + static_cast<int>(width), top + static_cast<int>(height));
    return 1;
}

int CKbUiDialog::StorePixelData() {
    CRect window;
    GetWindowRect(&window);
    return SetDialogData(L"X", static_cast<unsigned long>(window.left)) &&
                   SetDialogData(L"Y", static_cast<unsigned long>(window.top)) &&
                   SetDialogData(L"Width", static_cast<unsigned long>(window.Width())) &&
                   SetDialogData(L"Height", static_cast<unsigned long>(window.Height()))
               ? 1
               : 0;
}

int CKbUiDialog::getColumnKey(CListCtrl* list, CString& key, int& count) {
    if (list == nullptr || (list->GetStyle() & LVS_NOCOLUMNHEADER)) return 0;
    CHeaderCtrl* header = list->GetHeaderCtrl();
    if (header == nullptr) return 0;
    count = static_cast<int>(header->SendMessage(HDM_GETITEMCOUNT));
    CString dialog;
    GetDialogKey(dialog);
    // Kept: the dialog's key ends in a backslash and this piece begins with one; reader and writer agree on
    // it.
    key.Format(L"%s\\ListView-%d", dialog.GetString(), list->GetDlgCtrlID());
    return 1;
}

int CKbUiDialog::SaveColumnSizes(CListCtrl* list) {
    CString key, value;
    int count = 0;
    if (!getColumnKey(list, key, count)) return 0;
    CKbUiRegistryWriteAccess access(HKEY_CURRENT_USER, key);
    for (int column = 0; column < count; ++column) {
        value.Format(L"Column%d", column + 1);
        access.SetDWord(
            value, static_cast<DWORD>(list->SendMessage(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column))));
    }
    return 1;
}

int CKbUiDialog::GetColumnSizes(CListCtrl* list) {
    CString key, value;
    int count = 0;
    if (!getColumnKey(list, key, count)) return 0;
    const CKbUiRegistryAccess access(HKEY_CURRENT_USER, key);
    for (int column = 0; column < count; ++column) {
        value.Format(L"Column%d", column + 1);
        const DWORD width = access.IsOpen() ? access.GetDWord(value) : 0;
        if (width != 0)
            list->SendMessage(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), MAKELPARAM(width, 0));
    }
    return 1;
}
