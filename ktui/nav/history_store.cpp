#include <ktui/nav/history_store.h>

#include <ktui/nav/stored_values.h>
#include <ktui/text/dialog_root.h>
#include <ktui/text/registry_access.h>

CString HistoryStore::key() const { return DialogDataKey(ProductDialogRoot(), m_section); }

CString HistoryStore::valueName(int index) const {
    CString name;
    name.Format(m_valueFormat, index);
    return name;
}

void HistoryStore::Load() {
    m_items.RemoveAll();
    const CKbUiRegistryAccess access(HKEY_CURRENT_USER, key());
    for (const CString& text : HistoryIn(m_valueFormat, m_maximum,
                                         [&access](const CString& name) { return access.GetString(name); }))
        m_items.Add(text);
}

void HistoryStore::Save() const {
    CKbUiRegistryWriteAccess access(HKEY_CURRENT_USER, key());
    // Kept: values beyond the present count are left behind.
    for (int index = 0; index < m_items.GetSize(); ++index)
        access.SetString(valueName(index), m_items.GetAt(index));
}
