#include <ktui/nav/place_shell.h>

#include <shellapi.h>
#include <shlobj.h>
#include <shlwapi.h>

#include <vector>

#include <ktui/host/com_reference.h>
#include <ktui/nav/item_id_list.h>
#include <ktui/nav/never_blocked.h>
#include <ktui/text/registry_access.h>

namespace {

constexpr const wchar_t* kVirtualPrefix = L"::";
constexpr int kVirtualPrefixLength = 2;

/// The identifier list of a system folder, given back at the end; none if the shell knows none.
class SystemFolder {
public:
    explicit SystemFolder(int folder) {
        if (FAILED(::SHGetSpecialFolderLocation(nullptr, folder, &m_list))) m_list = nullptr;
    }
    ~SystemFolder() { FreeItemIdList(m_list); }
    SystemFolder(const SystemFolder&) = delete;
    SystemFolder& operator=(const SystemFolder&) = delete;
    LPITEMIDLIST list() const { return m_list; }

private:
    LPITEMIDLIST m_list = nullptr;
};

CString nameOf(LPCITEMIDLIST list, SHGDNF form) {
    ComReference<IShellFolder> desktop;
    STRRET returned = {};
    wchar_t* text = nullptr;
    if (list == nullptr || FAILED(::SHGetDesktopFolder(desktop.place())) || !desktop ||
        FAILED(desktop->GetDisplayNameOf(list, form, &returned)) ||
        FAILED(::StrRetToStrW(&returned, list, &text)))
        return {};
    const CString name(text);
    ::CoTaskMemFree(text);
    return name;
}

/// The text of a key's default value, if it is one and ends with a zero; otherwise empty.
CString defaultText(const CString& path) {
    const CKbUiRegistryAccess key(HKEY_CURRENT_USER, path);
    DWORD type = REG_NONE, size = 0;
    if (!key.IsOpen() || ::RegQueryValueExW(key, nullptr, nullptr, &type, nullptr, &size) != ERROR_SUCCESS ||
        (type != REG_SZ && type != REG_EXPAND_SZ) || size < sizeof(wchar_t) || size % sizeof(wchar_t) != 0)
        return {};
    std::vector<wchar_t> text(size / sizeof(wchar_t));
    if (::RegQueryValueExW(key, nullptr, nullptr, nullptr, reinterpret_cast<BYTE*>(text.data()), &size) !=
            ERROR_SUCCESS ||
        text.back() != L'\0')
        return {};
    return text.data();
}

/// The icon that the user's registry names for a class id, as "FILE,INDEX".
HICON registeredIcon(const CString& classId) {
    CString key;
    key.Format(L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\CLSID\\%s\\DefaultIcon",
               classId.GetString());
    const CString named = defaultText(key);
    if (named.IsEmpty()) return nullptr;
    const int comma = named.Find(L',');
    const CString file = comma < 0 ? named : named.Left(comma);
    const int index = comma < 0 ? 0 : _wtoi(named.Mid(comma + 1));
    HICON icon = nullptr;
    ::ExtractIconExW(file, index, &icon, nullptr, 1);
    return icon;
}

}  // namespace

void SystemFolderNames(int folder, CString& path, CString& display) {
    const SystemFolder found(folder);
    path = ParsingName(found.list());
    display = KtUiNeverBlockedLimit() == 0 ? PlaceDisplayName(path) : CString();
    if (display.IsEmpty()) display = nameOf(found.list(), SHGDN_INFOLDER);
}

CString ParsingName(const _ITEMIDLIST* list) {
    return nameOf(static_cast<LPCITEMIDLIST>(list), SHGDN_FORPARSING);
}

CString PlaceDisplayName(const CString& path) {
    SHFILEINFOW info = {};
    if (!::SHGetFileInfoW(path, 0, &info, sizeof info, SHGFI_DISPLAYNAME)) return {};
    return info.szDisplayName;
}

HICON PlaceIcon(const CString& path) {
    SHFILEINFOW info = {};
    if (::SHGetFileInfoW(path, 0, &info, sizeof info, SHGFI_ICON) && info.hIcon != nullptr) return info.hIcon;
    if (path.Left(kVirtualPrefixLength) != kVirtualPrefix) return nullptr;
    return registeredIcon(path.Mid(kVirtualPrefixLength));
}
