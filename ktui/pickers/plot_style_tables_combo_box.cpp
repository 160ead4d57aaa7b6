#include <ktui/pickers/plot_style_tables_combo_box.h>

#include <ktdsres/resource_ids.h>
#include <ktui/host/string_resources.h>
#include <ktui/pickers/plot_style_table_scan.h>

IMPLEMENT_DYNAMIC(CKtUiPlotStyleTablesComboBox, CKtUiMRUComboBox)

BEGIN_MESSAGE_MAP(CKtUiPlotStyleTablesComboBox, CKtUiMRUComboBox)
    ON_CONTROL_REFLECT_EX(CBN_DROPDOWN, &CKtUiPlotStyleTablesComboBox::OnDropDown)
END_MESSAGE_MAP()

CKtUiPlotStyleTablesComboBox::CKtUiPlotStyleTablesComboBox()
    : m_showImage(1), m_fileTypeColor(true), m_itemsAdded(1) {}

CKtUiPlotStyleTablesComboBox::CKtUiPlotStyleTablesComboBox(int itemsAdded) : m_itemsAdded(itemsAdded) {}

void CKtUiPlotStyleTablesComboBox::SetFileType(bool color, bool named) {
    m_fileTypeColor = color;
    m_fileTypeNamed = named;
}

bool CKtUiPlotStyleTablesComboBox::IsMissing(int) { return false; }

int CKtUiPlotStyleTablesComboBox::AddMissingStyleTable(const wchar_t*) { return 0; }

void CKtUiPlotStyleTablesComboBox::GetLBText(int index, CString& text) const {
    CComboBox::GetLBText(index, text);
}

int CKtUiPlotStyleTablesComboBox::CalcItemHeight() { return CKtUiMRUComboBox::CalcItemHeight(); }

void CKtUiPlotStyleTablesComboBox::DrawItemImage(CDC&, CRect&, __int64) {}

void CKtUiPlotStyleTablesComboBox::OnAddItems() {}

void CKtUiPlotStyleTablesComboBox::OnComboBoxInit() {
    RecalcHeight();
    InsertItemInList(0, LoadToolkitString(IDS_NONE, L"无"), 0);
    // Kept: the file types aren't looked at, and a folder counts by its extension like a file.
    int position = 0;
    for (const std::wstring& path : FindPlotStyleTables()) {
        // Kept: a path without a name takes its place in the count all the same, so that those behind it find
        // no such index and stay out.
        ++position;
        const std::wstring name = PlotStyleTableName(path);
        if (!name.empty()) InsertItemInList(position, name.c_str(), 0);
    }
    if (m_itemsAdded) OnAddItems();
    if (GetCount() <= 0) return;
    SetCurSel(0);
    m_lastSelection = 0;
}

BOOL CKtUiPlotStyleTablesComboBox::OnDropDown() {
    if (!m_itemsAdded) {
        m_itemsAdded = 1;
        OnAddItems();
    }
    return CKtUiMRUComboBox::OnDropDown();
}

int CKtUiPlotStyleTablesComboBox::ImageWidth() { return m_showImage ? m_itemHeight : 0; }
