#include "plotting/plot_style_dialog.h"

#include <ktdb.h>

#include "dialog_items.h"
#include "resource.h"
#include "standin_message.h"

namespace {

constexpr const wchar_t* kByLayer = L"ByLayer";
constexpr const wchar_t* kByBlock = L"ByBlock";

/// File name of the style sheet of the layout that shows the current space.
OdString currentSheet(const OdDbDatabase& drawing) {
    const auto layout = drawing.currentLayoutId().open<OdDbLayout>();
    return layout ? layout->getCurrentStyleSheet() : OdString();
}

UINT noteFor(StyleSheetState state) {
    switch (state) {
        case StyleSheetState::kUnnamed: return IDS_SHEET_NONE;
        case StyleSheetState::kNotFound: return IDS_SHEET_NOT_FOUND;
        case StyleSheetState::kUnreadable: return IDS_SHEET_UNREADABLE;
        default: return 0;
    }
}

}  // namespace

IMPLEMENT_DYNAMIC(CStandinPlotStyleDialog, CDialog)

BEGIN_MESSAGE_MAP(CStandinPlotStyleDialog, CDialog)
    ON_LBN_DBLCLK(IDC_PLOT_STYLE_LIST, &CStandinPlotStyleDialog::OnDoubleClick)
END_MESSAGE_MAP()

CStandinPlotStyleDialog::CStandinPlotStyleDialog(OdDbDatabase* drawing, StandinStyleSheets& sheets,
                                                 const CString& current, bool allowMeta, CWnd* parent)
    : CDialog(IDD_PLOT_STYLES, parent),
      m_drawing(drawing),
      m_sheets(sheets),
      m_chosen(current),
      m_allowMeta(allowMeta) {}

BOOL CStandinPlotStyleDialog::OnInitDialog() {
    const bool isWhole =
        HasDialogItems(*this, {IDC_PLOT_STYLE_LIST, IDC_PLOT_STYLE_SHEET, IDC_PLOT_STYLE_NOTE});
    if (!CDialog::OnInitDialog() || !isWhole) {
        EndDialog(-1);
        return FALSE;
    }
    readSheet();
    collectNames();
    const bool isFilled = fill();
    // Whoever asks the service while the dialog is open may make it read the sheet anew.
    m_table = nullptr;
    if (!isFilled) {
        EndDialog(-1);
        return FALSE;
    }
    GetDlgItem(IDC_PLOT_STYLE_LIST)->SetFocus();
    return FALSE;
}

void CStandinPlotStyleDialog::OnOK() {
    const auto row = GetDlgItem(IDC_PLOT_STYLE_LIST)->SendMessage(LB_GETCURSEL);
    if (row < 0) {
        ShowStandinMessage(IDS_PLOT_STYLE_CHOOSE_ONE, MB_ICONINFORMATION);
        GetDlgItem(IDC_PLOT_STYLE_LIST)->SetFocus();
        return;
    }
    m_chosen = m_names[static_cast<std::size_t>(row)];
    CDialog::OnOK();
}

void CStandinPlotStyleDialog::OnDoubleClick() { OnOK(); }

void CStandinPlotStyleDialog::readSheet() {
    const OdString sheet = m_drawing != nullptr ? currentSheet(*m_drawing) : OdString();
    const StyleSheetState state = m_sheets.read(sheet, m_table);
    CString shown = sheet.c_str(), line, note;
    if (sheet.isEmpty()) shown.LoadString(IDS_SHEET_NO_NAME);
    AfxFormatString1(line, IDS_SHEET_ACTIVE, shown);
    SetDlgItemText(IDC_PLOT_STYLE_SHEET, line);
    if (const UINT id = m_drawing != nullptr ? noteFor(state) : IDS_SHEET_NO_DRAWING; id != 0)
        note.LoadString(id);
    else if (m_table->isColorDependent)
        note.LoadString(IDS_SHEET_OF_COLORS);
    SetDlgItemText(IDC_PLOT_STYLE_NOTE, note);
}

bool CStandinPlotStyleDialog::isAllowed(const OdString& name) const {
    if (m_table == nullptr || ktdbIsReservedString(name, kKtdbNormal)) return true;
    for (const PlotStyle& style : m_table->styles)
        if (style.name.iCompare(name) == 0) return true;
    return name.iCompare(kByLayer) == 0 || name.iCompare(kByBlock) == 0;
}

void CStandinPlotStyleDialog::collectNames() {
    if (m_allowMeta) m_names = {kByLayer, kByBlock};
    OdDbDictionaryPtr styles;
    if (m_drawing == nullptr || m_drawing->getPlotStyleNameDictionary(styles) != kOdOk) return;
    for (auto entry = styles->newIterator(); !entry->done(); entry->next()) {
        const OdString name = entry->name();
        const bool isNormal = ktdbIsReservedString(name, kKtdbNormal);
        const CString text = isNormal ? ktdbGetReservedString(kKtdbNormal, true).c_str() : name.c_str();
        // What the object has now can be kept, whatever the sheet says.
        if (isAllowed(name) || text.CompareNoCase(m_chosen) == 0) m_names.push_back(text);
    }
}

bool CStandinPlotStyleDialog::fill() {
    CWnd* list = GetDlgItem(IDC_PLOT_STYLE_LIST);
    CString lacking;
    lacking.LoadString(IDS_SHEET_LACKS_STYLE);
    for (std::size_t row = 0; row < m_names.size(); ++row) {
        CString text = m_names[row];
        if (!isAllowed(text.GetString())) text += lacking;
        if (list->SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.GetString())) < 0) return false;
        if (m_names[row].CompareNoCase(m_chosen) == 0) list->SendMessage(LB_SETCURSEL, row);
    }
    return true;
}
