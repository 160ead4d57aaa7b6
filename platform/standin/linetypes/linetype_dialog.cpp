#include "linetypes/linetype_dialog.h"

#include <algorithm>

#include <ktut.h>

#include "dialog_items.h"
#include "linetypes/load_linetypes_dialog.h"
#include "resource.h"
#include "standin_message.h"

namespace {

/// One line of a list of reasons, "layers: 2".
void addReason(CString& reasons, UINT format, int count) {
    if (count == 0) return;
    CString number, line;
    number.Format(L"%d", count);
    AfxFormatString1(line, format, number);
    reasons += L"\n" + line;
}

/// Why the linetype can't be deleted, in words.
CString refusalOf(const OdDbLinetypeUse& use, const CString& name) {
    CString text;
    if (use.isStandard) {
        text.LoadString(IDS_LINETYPE_STANDARD);
        return text;
    }
    CString reasons;
    if (use.isCurrent) {
        CString current;
        current.LoadString(IDS_LINETYPE_IS_CURRENT);
        reasons = L"\n" + current;
    }
    addReason(reasons, IDS_LINETYPE_OF_ENTITIES, use.entities);
    addReason(reasons, IDS_LINETYPE_OF_LAYERS, use.layers);
    addReason(reasons, IDS_LINETYPE_OF_OTHERS, use.others);
    AfxFormatString2(text, IDS_LINETYPE_IN_USE, name, reasons);
    return text;
}

/// What the list is sorted by: ByLayer, ByBlock, and the others by name.
struct Listed {
    int group;
    OdDbLinetypeTableRecordPtr record;
};

bool isBefore(const Listed& a, const Listed& b) {
    if (a.group != b.group) return a.group < b.group;
    return ktutCompareString(a.record->getName(), b.record->getName()) == 1;
}

std::vector<Listed> listedLinetypes(OdDbDatabase& drawing) {
    std::vector<Listed> all;
    OdDbLinetypeTablePtr table;
    drawing.getLinetypeTable(table);
    const OdDbObjectId byLayer = table->getLinetypeByLayerId(), byBlock = table->getLinetypeByBlockId();
    for (auto walk = table->newIterator(); !walk->done(); walk->step()) {
        OdDbObjectId id;
        walk->getRecordId(id);
        const auto record = id.open<OdDbLinetypeTableRecord>();
        if (!record || record->isDependent()) continue;
        all.push_back({id == byLayer ? 0 : id == byBlock ? 1 : 2, record});
    }
    std::sort(all.begin(), all.end(), isBefore);
    return all;
}

LinetypeRow rowOf(const OdDbLinetypeTableRecord& record) {
    LinetypeRow row{record.getName().c_str(), record.comments().c_str(), {}};
    for (const double dash : record.dashes()) row.dashes.push_back(dash);
    return row;
}

}  // namespace

IMPLEMENT_DYNAMIC(CStandinLinetypeDialog, CDialog)

BEGIN_MESSAGE_MAP(CStandinLinetypeDialog, CDialog)
    ON_BN_CLICKED(IDC_LINETYPE_LOAD, &CStandinLinetypeDialog::OnLoad)
    ON_BN_CLICKED(IDC_LINETYPE_DELETE, &CStandinLinetypeDialog::OnDelete)
    ON_NOTIFY(NM_DBLCLK, IDC_LINETYPE_LIST, &CStandinLinetypeDialog::OnDoubleClick)
    ON_NOTIFY(LVN_KEYDOWN, IDC_LINETYPE_LIST, &CStandinLinetypeDialog::OnListKey)
END_MESSAGE_MAP()

CStandinLinetypeDialog::CStandinLinetypeDialog(OdDbDatabase& drawing, const OdDbObjectId& current,
                                               CWnd* parent)
    : CDialog(IDD_LINETYPES, parent), m_drawing(drawing), m_current(current) {}

BOOL CStandinLinetypeDialog::OnInitDialog() {
    // A dialog without its list is of no use to anybody.
    const bool isWhole = HasDialogItems(*this, {IDC_LINETYPE_LOAD, IDC_LINETYPE_DELETE});
    if (!isWhole || !CDialog::OnInitDialog() || !m_list.TakeControl(IDC_LINETYPE_LIST, *this) ||
        !fill(m_current)) {
        EndDialog(-1);
        return FALSE;
    }
    m_list.SetFocus();
    return FALSE;
}

void CStandinLinetypeDialog::OnOK() {
    const int row = selectedRow();
    if (row < 0) {
        ShowStandinMessage(IDS_LINETYPE_CHOOSE_ONE, MB_ICONINFORMATION);
        m_list.SetFocus();
        return;
    }
    m_current = m_ids[static_cast<std::size_t>(row)];
    CDialog::OnOK();
}

void CStandinLinetypeDialog::OnLoad() {
    const int row = selectedRow();
    CLoadLinetypesDialog dialog(m_drawing, this);
    if (dialog.DoModal() == IDOK)
        fill(dialog.loaded().front());
    else if (row >= 0)
        fill(m_ids[static_cast<std::size_t>(row)]);
    m_list.SetFocus();
}

void CStandinLinetypeDialog::OnDelete() {
    const int row = selectedRow();
    if (row < 0) return;
    const auto record = m_ids[static_cast<std::size_t>(row)].open<OdDbLinetypeTableRecord>(OdDb::kForRead);
    if (!record) return;
    const OdDbLinetypeUse use = OdDbLinetypeUses(m_drawing).of(record->objectId());
    if (!use.isErasable()) {
        ShowStandinMessage(refusalOf(use, record->getName().c_str()), MB_ICONINFORMATION);
        return;
    }
    record->erase();
    const int next = std::min(row + 1, static_cast<int>(m_ids.size()) - 1);
    const OdDbObjectId neighbour = m_ids[static_cast<std::size_t>(next == row ? row - 1 : next)];
    fill(neighbour);
}

void CStandinLinetypeDialog::OnDoubleClick(NMHDR*, LRESULT* result) {
    *result = 0;
    if (selectedRow() >= 0) OnOK();
}

void CStandinLinetypeDialog::OnListKey(NMHDR* header, LRESULT* result) {
    *result = 0;
    if (reinterpret_cast<NMLVKEYDOWN*>(header)->wVKey == VK_DELETE) OnDelete();
}

bool CStandinLinetypeDialog::fill(OdDbObjectId id) {
    std::vector<LinetypeRow> rows;
    m_ids.clear();
    int selected = -1;
    for (const Listed& each : listedLinetypes(m_drawing)) {
        if (each.record->objectId() == id) selected = static_cast<int>(rows.size());
        rows.push_back(rowOf(*each.record));
        m_ids.push_back(each.record->objectId());
    }
    // Every drawing has ByLayer at least.
    if (!m_list.SetRows(std::move(rows)) || m_ids.empty()) return false;
    m_list.Select(selected);
    return true;
}

int CStandinLinetypeDialog::selectedRow() const {
    const std::vector<int> rows = m_list.Selected();
    return rows.empty() ? -1 : rows.front();
}
