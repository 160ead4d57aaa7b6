#include <ktui/nav/history_combo.h>

IMPLEMENT_DYNAMIC(CHistoryCombo, CComboBox)

BEGIN_MESSAGE_MAP(CHistoryCombo, CComboBox)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace {

constexpr int kMostRows = 10;  // Kept: whatever the store's maximum is.

}  // namespace

CHistoryCombo::CHistoryCombo(const wchar_t* section, const wchar_t* valueFormat)
    : m_store(std::make_unique<HistoryStore>(section, valueFormat)) {}

CHistoryCombo::~CHistoryCombo() {
    // The window's end still stores the texts.
    DestroyWindow();
}

void CHistoryCombo::PreSubclassWindow() {
    CComboBox::PreSubclassWindow();
    m_store->Load();
    for (int i = 0; i < m_store->m_items.GetSize(); ++i)
        if (!m_store->m_items[i].IsEmpty()) AddString(m_store->m_items[i]);
}

void CHistoryCombo::OnDestroy() {
    m_store->m_items.RemoveAll();
    for (int row = 0; row < GetCount(); ++row) {
        CString text;
        GetLBText(row, text);
        m_store->m_items.Add(text);
    }
    m_store->Save();
    CComboBox::OnDestroy();
}

int CHistoryCombo::AddText(const wchar_t* text) {
    CString trimmed(text);
    trimmed.Trim();
    if (trimmed.IsEmpty()) return -1;
    const int present = FindStringExact(-1, trimmed);
    if (present != CB_ERR) DeleteString(static_cast<UINT>(present));
    InsertString(0, trimmed);
    while (GetCount() > kMostRows) DeleteString(kMostRows);
    SetCurSel(0);
    return 0;
}
