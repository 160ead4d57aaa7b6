#include "linetypes/load_linetypes_dialog.h"

#include <afxcmn.h>
#include <commdlg.h>
#include <kh_system.h>

#include "dialog_items.h"
#include "file_bytes.h"
#include "linetypes/linetype_loader.h"
#include "resource.h"
#include "standin_message.h"

namespace {

constexpr const wchar_t* kMetricFile = L"velmora_metric.lin";
constexpr const wchar_t* kImperialFile = L"velmora.lin";
constexpr std::size_t kLongestFile = 8u << 20;  // bytes
constexpr std::size_t kShownProblems = 8;
constexpr int kShownNames = 12;

/// Full path of a file; empty if there is none of that name.
CString pathOf(const CString& name, const OdDbDatabase& drawing) {
    OdString path;
    if (!name.IsEmpty()) CKhSystem::instance()->runtimeHost()->findFile(path, name, &drawing, 0);
    return path.c_str();
}

CString problemText(const CString& fileName, const LinetypeFileProblem& problem) {
    CString fault, line, text;
    AfxFormatString1(fault, IDS_LINETYPE_FAULT_FIRST + static_cast<UINT>(problem.fault), problem.detail);
    line.Format(L"%d", problem.line);
    const wchar_t* const parts[] = {fileName, line, fault};
    CString format;
    format.LoadString(IDS_LINETYPE_PROBLEM);
    AfxFormatStrings(text, format, parts, 3);
    return text;
}

/// Names one after the other, with dots for the ones behind the first few.
class NameList {
public:
    void add(const OdString& name) {
        if (++m_count <= kShownNames) m_text += (m_text.IsEmpty() ? L"" : L", ") + CString(name.c_str());
        if (m_count == kShownNames + 1) m_text += L", ...";
    }
    bool isEmpty() const { return m_count == 0; }
    const CString& text() const { return m_text; }

private:
    CString m_text;
    int m_count = 0;
};

/// Lets the user pick a definition file; empty if cancelled.
CString askForFile(HWND owner, const CString& first) {
    wchar_t path[kKhPathLength] = {};
    wcsncpy(path, first, kKhPathLength - 1);
    CString filter;
    filter.LoadString(IDS_LINETYPE_FILTER);
    filter.Replace(L'|', L'\0');
    OPENFILENAMEW dialog = {};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpstrFilter = filter;
    dialog.lpstrFile = path;
    dialog.nMaxFile = kKhPathLength;
    dialog.lpstrDefExt = L"lin";
    dialog.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR;
    return ::GetOpenFileNameW(&dialog) ? CString(path) : CString();
}

}  // namespace

IMPLEMENT_DYNAMIC(CLoadLinetypesDialog, CDialog)

BEGIN_MESSAGE_MAP(CLoadLinetypesDialog, CDialog)
    ON_BN_CLICKED(IDC_LOAD_BROWSE, &CLoadLinetypesDialog::OnBrowse)
    ON_BN_CLICKED(IDC_LOAD_SELECT_ALL, &CLoadLinetypesDialog::OnSelectAll)
    ON_NOTIFY(NM_DBLCLK, IDC_LOAD_LIST, &CLoadLinetypesDialog::OnDoubleClick)
END_MESSAGE_MAP()

CLoadLinetypesDialog::CLoadLinetypesDialog(OdDbDatabase& drawing, CWnd* parent)
    : CDialog(IDD_LOAD_LINETYPES, parent), m_drawing(drawing) {}

BOOL CLoadLinetypesDialog::OnInitDialog() {
    const bool isWhole = HasDialogItems(*this, {IDC_LOAD_FILE, IDC_LOAD_BROWSE, IDC_LOAD_SELECT_ALL});
    if (!isWhole || !CDialog::OnInitDialog() || !m_list.TakeControl(IDC_LOAD_LIST, *this)) {
        EndDialog(-1);
        return FALSE;
    }
    const wchar_t* standard = m_drawing.getMEASUREMENT() != 0 ? kMetricFile : kImperialFile;
    if (!pathOf(standard, m_drawing).IsEmpty()) {
        SetDlgItemText(IDC_LOAD_FILE, standard);
        readFile(standard);
        m_list.SetFocus();
        return FALSE;
    }
    return TRUE;
}

void CLoadLinetypesDialog::OnOK() {
    CString name;
    GetDlgItemText(IDC_LOAD_FILE, name);
    // Enter behind a newly typed name lists that file.
    if (name.Trim() != m_shownName || m_path.IsEmpty()) {
        readFile(name);
        return;
    }
    const auto definitions = chosen();
    if (definitions.empty()) {
        ShowStandinMessage(IDS_LINETYPE_CHOOSE_SOME, MB_ICONINFORMATION);
        m_list.SetFocus();
        return;
    }
    const int answer = askToReplace(definitions);
    if (answer == IDCANCEL) return;
    CString refused;
    load(definitions, answer == IDYES, refused);
    if (!refused.IsEmpty()) {
        CString text;
        AfxFormatString1(text, IDS_LINETYPE_REFUSED, refused);
        ShowStandinMessage(text, MB_ICONINFORMATION);
    }
    if (!m_loaded.empty()) EndDialog(IDOK);
}

void CLoadLinetypesDialog::OnBrowse() {
    const CString path = askForFile(m_hWnd, m_path);
    if (path.IsEmpty()) return;
    SetDlgItemText(IDC_LOAD_FILE, path);
    readFile(path);
}

void CLoadLinetypesDialog::OnSelectAll() {
    m_list.SetItemState(-1, LVIS_SELECTED, LVIS_SELECTED);
    m_list.SetFocus();
}

void CLoadLinetypesDialog::OnDoubleClick(NMHDR*, LRESULT* result) {
    *result = 0;
    if (!m_list.Selected().empty()) OnOK();
}

void CLoadLinetypesDialog::readFile(const CString& name) {
    m_shownName = name;
    m_path = pathOf(name, m_drawing);
    m_definitions.clear();
    std::string bytes;
    if (m_path.IsEmpty() || !ReadFileBytes(m_path, kLongestFile, bytes)) {
        m_list.SetRows({});
        CString text;
        AfxFormatString1(text, m_path.IsEmpty() ? IDS_LINETYPE_NO_FILE : IDS_LINETYPE_UNREADABLE, name);
        m_path.Empty();
        ShowStandinMessage(text, MB_ICONEXCLAMATION);
        GotoDlgCtrl(GetDlgItem(IDC_LOAD_FILE));
        return;
    }
    LinetypeFile file = ReadLinetypeFile(bytes, static_cast<int>(::GetACP()));
    m_definitions = std::move(file.definitions);
    std::vector<LinetypeRow> rows;
    for (const LinetypeDefinition& each : m_definitions)
        rows.push_back({each.name.c_str(), each.description.c_str(), each.dashes});
    m_list.SetRows(std::move(rows));
    m_list.Select(0);
    m_list.SetFocus();
    showProblems(file);
}

void CLoadLinetypesDialog::showProblems(const LinetypeFile& file) const {
    CString text;
    if (file.problems.empty() && m_definitions.empty()) {
        AfxFormatString1(text, IDS_LINETYPE_EMPTY_FILE, m_path);
        ShowStandinMessage(text, MB_ICONINFORMATION);
    }
    if (file.problems.empty()) return;
    const CString fileName = m_path.Mid(m_path.ReverseFind(L'\\') + 1);
    CString lines;
    for (std::size_t i = 0; i < std::min(file.problems.size(), kShownProblems); ++i)
        lines += L"\n" + problemText(fileName, file.problems[i]);
    if (file.problems.size() > kShownProblems) {
        CString count, more;
        count.Format(L"%d", static_cast<int>(file.problems.size() - kShownProblems));
        AfxFormatString1(more, IDS_LINETYPE_MORE_PROBLEMS, count);
        lines += L"\n" + more;
    }
    AfxFormatString2(text, IDS_LINETYPE_PROBLEMS, m_path, lines);
    ShowStandinMessage(text, MB_ICONEXCLAMATION);
}

std::vector<const LinetypeDefinition*> CLoadLinetypesDialog::chosen() const {
    std::vector<const LinetypeDefinition*> definitions;
    for (const int row : m_list.Selected())
        definitions.push_back(&m_definitions[static_cast<std::size_t>(row)]);
    return definitions;
}

int CLoadLinetypesDialog::askToReplace(const std::vector<const LinetypeDefinition*>& definitions) const {
    NameList known;
    for (const LinetypeDefinition* each : definitions)
        if (CanLoadLinetype(*each) && HasLinetype(m_drawing, *each)) known.add(each->name);
    if (known.isEmpty()) return IDNO;
    CString text;
    AfxFormatString1(text, IDS_LINETYPE_REPLACE, known.text());
    return ShowStandinMessage(text, MB_YESNOCANCEL | MB_ICONQUESTION);
}

void CLoadLinetypesDialog::load(const std::vector<const LinetypeDefinition*>& definitions, bool replace,
                                CString& refused) {
    NameList names;
    for (const LinetypeDefinition* each : definitions) {
        OdDbObjectId id;
        if (LoadLinetype(m_drawing, *each, replace, id) == LinetypeLoad::kRefused)
            names.add(each->name);
        else
            m_loaded.push_back(id);
    }
    refused = names.text();
}
