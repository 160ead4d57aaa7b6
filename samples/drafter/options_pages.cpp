#include "options_pages.h"

#include <cwchar>

#include <ktdb.h>
#include <ktut.h>

#include "messages.h"
#include "resource.h"
#include "resource_text.h"

namespace {

constexpr int kLinearUnits = 5, kAngularUnits = 5, kPrecisions = 9;
constexpr double kSampleDistance = 15.5, kSampleAngle = 0.7853981633974483;

void showColor(CKtUiTrueColorComboBox& picker, COLORREF color) {
    OdCmColor shown;
    shown.setRGB(GetRValue(color), GetGValue(color), GetBValue(color));
    picker.SetCurSel(picker.AddColorToMRU(shown));
}

/// The picked colour, `present` without one.
COLORREF pickedColor(CKtUiTrueColorComboBox& picker, COLORREF present) {
    if (picker.GetCurrentItemCargo() < 0) return present;
    OdCmColor color;
    picker.GetCurrentItemColor(color);
    if (!color.isByColor()) return CKhSystem::instance()->colorServices()->colorOfIndex(color.colorIndex());
    return RGB(color.red(), color.green(), color.blue());
}

/// A whole number that is the whole text; -1 for any other text.
int wholeNumber(const CString& text) {
    wchar_t* end = nullptr;
    const long value = std::wcstol(text, &end, 10);
    return !text.IsEmpty() && *end == 0 && value >= 0 && value < 10000 ? static_cast<int>(value) : -1;
}

CString distanceText(const UnitOptions& units, double value) {
    wchar_t text[kKtdbBufferSize] = {};
    ktdbRToS(value, units.linear, units.linearPrecision, text);
    return text;
}

CString angleText(const UnitOptions& units, double value) {
    wchar_t text[kKtdbBufferSize] = {};
    ktdbAngToS(value, units.angular, units.angularPrecision, text);
    return text;
}

}  // namespace

IMPLEMENT_DYNAMIC(COptionsPage, CKtUiTabChildDialog)
IMPLEMENT_DYNAMIC(CFilesPage, COptionsPage)
IMPLEMENT_DYNAMIC(CDisplayPage, COptionsPage)
IMPLEMENT_DYNAMIC(CUnitsPage, COptionsPage)

BEGIN_MESSAGE_MAP(CFilesPage, COptionsPage)
    ON_BN_CLICKED(IDC_BROWSE_TEMPLATE, &CFilesPage::OnBrowseTemplate)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CDisplayPage, COptionsPage)
    ON_BN_CLICKED(IDC_SHOW_MESSAGES, &CDisplayPage::OnShowMessages)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CUnitsPage, COptionsPage)
    ON_CBN_SELCHANGE(IDC_LINEAR_UNITS, &CUnitsPage::OnChoice)
    ON_CBN_SELCHANGE(IDC_LINEAR_PRECISION, &CUnitsPage::OnChoice)
    ON_CBN_SELCHANGE(IDC_ANGULAR_UNITS, &CUnitsPage::OnChoice)
    ON_CBN_SELCHANGE(IDC_ANGULAR_PRECISION, &CUnitsPage::OnChoice)
END_MESSAGE_MAP()

CString COptionsPage::Problem(int&) { return {}; }

BOOL COptionsPage::PreTranslateMessage(MSG* message) {
    if (m_tab != nullptr && KtUiTurnTabByKey(*m_tab, *message)) return TRUE;
    return CKtUiTabChildDialog::PreTranslateMessage(message);
}

BOOL COptionsPage::OnInitDialog() {
    const BOOL result = CKtUiTabChildDialog::OnInitDialog();
    Show();
    return result;
}

void COptionsPage::DoDataExchange(CDataExchange* exchange) {
    CKtUiTabChildDialog::DoDataExchange(exchange);
    if (exchange->m_bSaveAndValidate && !accept()) exchange->Fail();
}

int COptionsPage::OnTabChanging() { return accept(); }
void COptionsPage::OnMainDialogApply() { Collect(); }
void COptionsPage::OnMainDialogOK() { Collect(); }

BOOL COptionsPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    const BOOL result = CKtUiTabChildDialog::OnCommand(wParam, lParam);
    // The words go as soon as the value is good again.
    int id = 0;
    if (HIWORD(wParam) == EN_CHANGE && Problem(id).IsEmpty()) sayProblem(CString());
    return result;
}

bool COptionsPage::accept() {
    int id = 0;
    const CString problem = Problem(id);
    sayProblem(problem);
    if (problem.IsEmpty()) return true;
    ::MessageBeep(MB_ICONEXCLAMATION);
    // OK and Apply ask the pages behind as well, where the user would see neither the words nor the field.
    if (m_tab != nullptr) m_tab->SetActiveTab(GetTabIndex());
    GotoDlgCtrl(GetDlgItem(id));
    return false;
}

void COptionsPage::sayProblem(const CString& problem) {
    if (CWnd* line = GetDlgItem(IDC_MESSAGE)) line->SetWindowText(problem);
}

CString COptionsPage::FieldText(int id) const {
    CString text;
    GetDlgItemText(id, text);
    text.Trim();
    return text;
}

void CFilesPage::Show() {
    SetDlgItemText(IDC_SUPPORT_FOLDERS, m_options.supportFolders);
    SetDlgItemText(IDC_STYLE_SHEETS, m_options.styleSheets);
    SetDlgItemText(IDC_TEMPLATE, m_options.templateFile);
}

void CFilesPage::Collect() {
    m_options.supportFolders = FieldText(IDC_SUPPORT_FOLDERS);
    m_options.styleSheets = FieldText(IDC_STYLE_SHEETS);
    m_options.templateFile = FieldText(IDC_TEMPLATE);
}

CString CFilesPage::Problem(int& id) {
    CString text;
    for (const int field : {IDC_SUPPORT_FOLDERS, IDC_STYLE_SHEETS}) {
        for (const CString& folder : FoldersOf(FieldText(field))) {
            if (ktutDirectoryExists(folder)) continue;
            id = field;
            text.Format(IDS_BAD_FOLDER, folder.GetString());
            return text;
        }
    }
    const CString file = FieldText(IDC_TEMPLATE);
    if (file.IsEmpty() || (ktutPathExists(file) && !ktutDirectoryExists(file))) return {};
    id = IDC_TEMPLATE;
    text.Format(IDS_BAD_TEMPLATE, file.GetString());
    return text;
}

void CFilesPage::OnBrowseTemplate() {
    const CString filter = textOf(IDS_FILE_FILTER) + L"|";
    CKtUiFileDialog dialog(TRUE, L"dxf", nullptr, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY, filter, this);
    if (dialog.DoModal() == IDOK) SetDlgItemText(IDC_TEMPLATE, dialog.GetPathName());
}

void CDisplayPage::DoDataExchange(CDataExchange* exchange) {
    if (m_background.m_hWnd == nullptr) {
        for (CKtUiTrueColorComboBox* picker : {&m_background, &m_selection}) {
            picker->SetUseByLayer(0);
            picker->SetUseByBlock(0);
        }
        DDX_Control(exchange, IDC_BACKGROUND, m_background);
        DDX_Control(exchange, IDC_SELECTION_COLOR, m_selection);
    }
    COptionsPage::DoDataExchange(exchange);
}

void CDisplayPage::Show() {
    showColor(m_background, m_options.background);
    showColor(m_selection, m_options.selection);
    SetDlgItemInt(IDC_CROSSHAIR, static_cast<UINT>(m_options.crosshair));
    showMessagesState();
}

void CDisplayPage::showMessagesState() {
    const bool answered = AnyMessageAnswered();
    SetDlgItemText(IDC_MESSAGES_STATE, textOf(answered ? IDS_MESSAGES_ANSWERED : IDS_MESSAGES_ALL));
    CWnd* const button = GetDlgItem(IDC_SHOW_MESSAGES);
    // A disabled window that keeps the focus would swallow the keys.
    if (!answered && ::GetFocus() == button->m_hWnd) NextDlgCtrl();
    button->EnableWindow(answered);
}

void CDisplayPage::OnShowMessages() {
    ForgetMessageAnswers();
    showMessagesState();
}

void CDisplayPage::Collect() {
    m_options.background = pickedColor(m_background, m_options.background);
    m_options.selection = pickedColor(m_selection, m_options.selection);
    m_options.crosshair = wholeNumber(FieldText(IDC_CROSSHAIR));
}

CString CDisplayPage::Problem(int& id) {
    const int size = wholeNumber(FieldText(IDC_CROSSHAIR));
    if (size >= 1 && size <= 100) return {};
    id = IDC_CROSSHAIR;
    return textOf(IDS_BAD_CROSSHAIR);
}

void CUnitsPage::Show() {
    for (int i = 0; i < kLinearUnits; ++i)
        SendDlgItemMessage(
            IDC_LINEAR_UNITS, CB_ADDSTRING, 0,
            reinterpret_cast<LPARAM>(textOf(IDS_LINEAR_UNITS + static_cast<UINT>(i)).GetString()));
    for (int i = 0; i < kAngularUnits; ++i)
        SendDlgItemMessage(
            IDC_ANGULAR_UNITS, CB_ADDSTRING, 0,
            reinterpret_cast<LPARAM>(textOf(IDS_ANGULAR_UNITS + static_cast<UINT>(i)).GetString()));
    for (int i = 0; i < kPrecisions; ++i) {
        CString number;
        number.Format(L"%d", i);
        for (const int list : {IDC_LINEAR_PRECISION, IDC_ANGULAR_PRECISION})
            SendDlgItemMessage(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(number.GetString()));
    }
    const auto select = [this](int list, int index) {
        SendDlgItemMessage(list, CB_SETCURSEL, static_cast<WPARAM>(index));
    };
    select(IDC_LINEAR_UNITS, m_options.units.linear - 1);
    select(IDC_LINEAR_PRECISION, m_options.units.linearPrecision);
    select(IDC_ANGULAR_UNITS, m_options.units.angular);
    select(IDC_ANGULAR_PRECISION, m_options.units.angularPrecision);
    if (m_hasDrawing) return showSample();
    for (const int list : {IDC_LINEAR_UNITS, IDC_LINEAR_PRECISION, IDC_ANGULAR_UNITS, IDC_ANGULAR_PRECISION})
        GetDlgItem(list)->EnableWindow(FALSE);
    SetDlgItemText(IDC_UNITS_SAMPLE, textOf(IDS_NO_DRAWING));
}

UnitOptions CUnitsPage::chosen() const {
    const auto selected = [this](int list) {
        return static_cast<int>(::SendDlgItemMessageW(m_hWnd, list, CB_GETCURSEL, 0, 0));
    };
    return {selected(IDC_LINEAR_UNITS) + 1, selected(IDC_LINEAR_PRECISION), selected(IDC_ANGULAR_UNITS),
            selected(IDC_ANGULAR_PRECISION)};
}

void CUnitsPage::Collect() { m_options.units = chosen(); }
void CUnitsPage::OnChoice() { showSample(); }

void CUnitsPage::showSample() {
    const UnitOptions units = chosen();
    SetDlgItemText(IDC_UNITS_SAMPLE, distanceText(units, kSampleDistance) + L"\r\n" +
                                         distanceText(units, kSampleDistance / 8) + L" < " +
                                         angleText(units, kSampleAngle));
}
