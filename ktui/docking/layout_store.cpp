#include <ktui/docking/layout_store.h>

#include <algorithm>

#include <ktui/text/dialog_root.h>
#include <ktui/text/registry_access.h>

namespace layouts {

LayoutStore::LayoutStore(const wchar_t* name) : m_key(ProductDialogRoot() + name) {}

std::vector<CString> LayoutStore::names() const {
    const CKbUiRegistryAccess key(HKEY_CURRENT_USER, m_key);
    std::vector<CString> names;
    for (DWORD index = 0; key.IsOpen(); ++index) {
        CString name;
        DWORD type = REG_NONE;
        if (!key.EnumValueNames(index, name, &type)) break;
        if (type == REG_SZ && !name.IsEmpty()) names.push_back(name);
    }
    std::ranges::sort(names, [](const CString& one, const CString& other) {
        return ::CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, one, -1, other, -1) == CSTR_LESS_THAN;
    });
    return names;
}

CString LayoutStore::storedName(const CString& name) const {
    for (const CString& each : names())
        if (each.CompareNoCase(name) == 0) return each;
    return {};
}

CString LayoutStore::text(const CString& name) const {
    return CKbUiRegistryAccess(HKEY_CURRENT_USER, m_key).GetString(name);
}

bool LayoutStore::put(const CString& name, const CString& text, const CString& former) {
    const auto write = [&](const CString& as, const CString& what) {
        return CKbUiRegistryWriteAccess(HKEY_CURRENT_USER, m_key).SetString(as, what) != FALSE;
    };
    if (former.IsEmpty() || former == name) return write(name, text);
    // A value that is there keeps its own case, so one that differs in that has to go first.
    const bool goesFirst = former.CompareNoCase(name) == 0;
    const CString before = this->text(former);
    if (goesFirst && !remove(former)) return false;
    if (!write(name, text)) {
        if (goesFirst) write(former, before);
        return false;
    }
    return goesFirst || remove(former);
}

bool LayoutStore::remove(const CString& name) {
    return CKbUiRegistryDeleteAccess(HKEY_CURRENT_USER, m_key).DeleteValue(name) != FALSE;
}

}  // namespace layouts
