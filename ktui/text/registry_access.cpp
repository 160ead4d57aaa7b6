#include <ktui/text/registry_access.h>

#include <vector>

namespace {

constexpr DWORD kReadRights = 0x20019;
constexpr DWORD kNameSize = 256;       // characters of an enumerated name, terminator included
constexpr DWORD kFirstTextSize = 260;  // characters
constexpr DWORD kNoSuchValueError = 1011;

HKEY OpenForReading(HKEY parent, const CString& name) {
    HKEY key = nullptr;
    return ::RegOpenKeyExW(parent, name.GetString(), 0, kReadRights, &key) == ERROR_SUCCESS ? key : nullptr;
}

/// Reads `size` bytes at most; answers the platform's status and leaves the real size in `size`.
LSTATUS Query(HKEY key, const CString& name, wchar_t* buffer, DWORD& size) {
    return ::RegQueryValueExW(key, name.GetString(), nullptr, nullptr, reinterpret_cast<BYTE*>(buffer),
                              &size);
}

}  // namespace

CKbUiRegistryAccess::CKbUiRegistryAccess(HKEY parent, const CString& name)
    : m_key(OpenForReading(parent, name)) {}

CKbUiRegistryAccess::~CKbUiRegistryAccess() { CKbUiRegistryAccess::Close(); }

BOOL CKbUiRegistryAccess::Open(HKEY parent, const CString& name) {
    const HKEY key = OpenForReading(parent, name);
    if (!key) return FALSE;
    adopt(key);
    return TRUE;
}

void CKbUiRegistryAccess::Close() {
    if (!m_key) return;
    ::RegCloseKey(m_key);
    m_key = nullptr;
}

void CKbUiRegistryAccess::adopt(HKEY key) {
    Close();
    m_key = key;
}

BOOL CKbUiRegistryAccess::EnumKeyNames(DWORD index, CString& name) const {
    DWORD length = kNameSize;
    const LSTATUS status =
        ::RegEnumKeyExW(m_key, index, name.GetBuffer(kNameSize), &length, nullptr, nullptr, nullptr, nullptr);
    name.ReleaseBuffer(status == ERROR_SUCCESS ? static_cast<int>(length) : 0);
    return status == ERROR_SUCCESS;
}

BOOL CKbUiRegistryAccess::EnumValueNames(DWORD index, CString& name, DWORD* type) const {
    DWORD length = kNameSize;
    const LSTATUS status =
        ::RegEnumValueW(m_key, index, name.GetBuffer(kNameSize), &length, nullptr, type, nullptr, nullptr);
    name.ReleaseBuffer(status == ERROR_SUCCESS ? static_cast<int>(length) : 0);
    return status == ERROR_SUCCESS;
}

DWORD CKbUiRegistryAccess::ValueType(const CString& name) const {
    DWORD type = REG_NONE;
    const LSTATUS status = ::RegQueryValueExW(m_key, name.GetString(), nullptr, &type, nullptr, nullptr);
    return status == ERROR_SUCCESS ? type : REG_NONE;
}

CString CKbUiRegistryAccess::GetString(const CString& name) const {
    wchar_t first[kFirstTextSize + 1] = {};
    DWORD size = kFirstTextSize * sizeof(wchar_t);
    LSTATUS status = Query(m_key, name, first, size);
    if (status == ERROR_SUCCESS) return first;
    if (status == ERROR_MORE_DATA) {
        std::vector<wchar_t> text(size / sizeof(wchar_t) + 2, L'\0');
        status = Query(m_key, name, text.data(), size);
        if (status == ERROR_SUCCESS) return text.data();
    }
    ::SetLastError(kNoSuchValueError);
    return {};
}

DWORD CKbUiRegistryAccess::GetDWord(const CString& name) const {
    DWORD value = 0;
    DWORD size = sizeof value;
    const LSTATUS status =
        ::RegQueryValueExW(m_key, name.GetString(), nullptr, nullptr, reinterpret_cast<BYTE*>(&value), &size);
    ::SetLastError(status == ERROR_SUCCESS ? 0 : 1);
    return status == ERROR_SUCCESS ? value : 0;
}
