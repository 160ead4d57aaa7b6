#include "fields_dialog.h"

#include <ktdb.h>
#include <ktui/host/contrast.h>

#include "../common/invalid_field.h"
#include "resource.h"

namespace {

// On light windows and on dark ones.
constexpr COLORREF kInkOnLight = RGB(160, 0, 0), kInkOnDark = RGB(255, 150, 150);

/// A red for the message that can be read on the dialog, or the dialog's own ink.
COLORREF messageInk() {
    const COLORREF paper = ::GetSysColor(COLOR_BTNFACE);
    const COLORREF onDark = ReadableColor(kInkOnDark, paper, kTextContrast, ::GetSysColor(COLOR_BTNTEXT));
    return ReadableColor(kInkOnLight, paper, kTextContrast, onDark);
}

}  // namespace

IMPLEMENT_DYNAMIC(CFieldsDialog, CKtUiDialog)

BEGIN_MESSAGE_MAP(CFieldsDialog, CKtUiDialog)
    ON_WM_CTLCOLOR()
    ON_WM_SHOWWINDOW()
END_MESSAGE_MAP()

CFieldsDialog::CFieldsDialog(UINT templateId, const wchar_t* name, CWnd* parent)
    : CKtUiDialog(templateId, parent, AfxGetInstanceHandle()) {
    SetDialogName(name);
}

void CFieldsDialog::AddField(unsigned id, CKtUiEdit& edit, UINT badText, const CString& example) {
    m_fields.push_back({id, &edit, badText, example, CString(), false});
}

void CFieldsDialog::DoDataExchange(CDataExchange* exchange) {
    CKtUiDialog::DoDataExchange(exchange);
    for (const Field& field : m_fields) DDX_Control(exchange, static_cast<int>(field.id), *field.edit);
}

BOOL CFieldsDialog::OnInitDialog() {
    const BOOL result = CKtUiDialog::OnInitDialog();
    ShowMessage(CString());
    return result;
}

const CFieldsDialog::Field* CFieldsDialog::fieldOf(unsigned id) const {
    for (const Field& field : m_fields)
        if (field.id == id) return &field;
    return nullptr;
}

CString CFieldsDialog::textOf(const Field& field) {
    CString text;
    field.edit->GetWindowText(text);
    return text;
}

void CFieldsDialog::FillField(unsigned id, const CString& text) {
    for (Field& field : m_fields) {
        if (field.id != id) continue;
        // Known before it is shown: the control reports at once.
        field.before = text;
        field.varies = false;
        field.edit->SetWindowText(text);
    }
}

void CFieldsDialog::SetExample(unsigned id, const CString& example) {
    for (Field& field : m_fields)
        if (field.id == id) field.example = example;
}

void CFieldsDialog::FillVaryingField(unsigned id) {
    CString text;
    text.LoadString(IDS_VARIES);
    FillField(id, text);
    for (Field& field : m_fields)
        if (field.id == id) field.varies = true;
}

void CFieldsDialog::bringBackVaries(const Field& field) {
    if (field.varies && textOf(field).IsEmpty() && !field.edit->Validate())
        field.edit->SetWindowText(field.before);
}

CString CFieldsDialog::FieldText(unsigned id) const {
    const Field* field = fieldOf(id);
    return field != nullptr ? textOf(*field) : CString();
}

bool CFieldsDialog::IsEdited(unsigned id) const {
    const Field* field = fieldOf(id);
    return field != nullptr && isEdited(*field);
}

bool CFieldsDialog::IsBad(unsigned id) const {
    const Field* field = fieldOf(id);
    return field != nullptr && isBad(*field);
}

bool CFieldsDialog::RestoreField(unsigned id) {
    const Field* field = fieldOf(id);
    if (field == nullptr || !isEdited(*field)) return false;
    field->edit->SetWindowText(field->before);
    field->edit->SetSel(0, -1);
    showProblem();
    return true;
}

std::vector<CFieldsDialog::Entry> CFieldsDialog::BadEntries() const {
    std::vector<Entry> entries;
    for (const Field& field : m_fields)
        if (isBad(field)) entries.push_back({field.id, textOf(field)});
    return entries;
}

void CFieldsDialog::TypeAgain(const std::vector<Entry>& entries) {
    for (const Entry& entry : entries)
        if (const Field* field = fieldOf(entry.id)) field->edit->SetWindowText(entry.text);
    showProblem();
}

std::optional<double> CFieldsDialog::EditedDistance(unsigned id) const {
    double number = 0;
    if (!IsEdited(id) || IsBad(id) || ktdbDisToF(FieldText(id), -1, &number) != kKtdbOk) return {};
    return number;
}

std::optional<double> CFieldsDialog::EditedAngle(unsigned id) const {
    double number = 0;
    if (!IsEdited(id) || IsBad(id) || ktdbAngToF2(1, FieldText(id), -1, &number) != kKtdbOk) return {};
    return number;
}

void CFieldsDialog::say(const CString& text, bool isProblem) {
    m_message = text;
    m_messageIsProblem = isProblem;
    showProblem();
}

bool CFieldsDialog::isBad(const Field& field) {
    return field.edit->IsWindowEnabled() && isEdited(field) && !field.edit->Validate();
}

CString CFieldsDialog::problemOf(const Field& field) {
    CString format, text;
    format.LoadString(field.badText);
    text.Format(format, field.example.GetString());
    return text;
}

const CFieldsDialog::Field* CFieldsDialog::badField() const {
    const Field* first = nullptr;
    for (const Field& field : m_fields) {
        if (!isBad(field)) continue;
        if (::GetFocus() == field.edit->m_hWnd) return &field;
        if (first == nullptr) first = &field;
    }
    return first;
}

void CFieldsDialog::showProblem() {
    const Field* bad = badField();
    SetDlgItemText(IDC_MESSAGE, bad != nullptr ? problemOf(*bad) : m_message);
}

BOOL CFieldsDialog::OnCommand(WPARAM wParam, LPARAM lParam) {
    const BOOL handled = CKtUiDialog::OnCommand(wParam, lParam);
    const unsigned notification = HIWORD(wParam);
    if (notification != EN_CHANGE && notification != EN_SETFOCUS && notification != EN_KILLFOCUS)
        return handled;
    const Field* field = lParam != 0 ? fieldOf(LOWORD(wParam)) : nullptr;
    if (field == nullptr) return handled;
    if (notification == EN_KILLFOCUS) bringBackVaries(*field);
    showProblem();
    return handled;
}

KBUI_REPLY CFieldsDialog::OnNotifyControlValid(unsigned id, int) {
    const Field* field = fieldOf(id);
    if (field == nullptr) return kKbUiReplyNone;
    field->edit->Invalidate();
    return kKbUiReplyHandled;
}

void CFieldsDialog::OnShowWindow(BOOL show, UINT status) {
    CKtUiDialog::OnShowWindow(show, status);
    // The screen may be smaller than when the dialog was last closed.
    if (show && (GetStyle() & WS_CHILD) == 0) KtUiBringIntoView(*this);
}

HBRUSH CFieldsDialog::OnCtlColor(CDC* dc, CWnd* control, UINT kind) {
    HBRUSH brush = CKtUiDialog::OnCtlColor(dc, control, kind);
    if (kind == CTLCOLOR_STATIC && control->GetDlgCtrlID() == IDC_MESSAGE) {
        if (m_messageIsProblem || badField() != nullptr) dc->SetTextColor(messageInk());
        return brush;
    }
    // A list that can't be used looks like it below its last row as well.
    if (kind == CTLCOLOR_LISTBOX && !control->IsWindowEnabled()) return ::GetSysColorBrush(COLOR_BTNFACE);
    if (kind != CTLCOLOR_EDIT) return brush;
    for (const Field& field : m_fields) {
        if (field.edit->m_hWnd != control->m_hWnd || !isBad(field)) continue;
        dc->SetBkColor(InvalidPaper());
        m_invalidBrush.DeleteObject();
        m_invalidBrush.CreateSolidBrush(InvalidPaper());
        return m_invalidBrush;
    }
    return brush;
}

bool CFieldsDialog::RefuseInvalid() {
    for (const Field& field : m_fields) {
        if (!isBad(field)) continue;
        KbUiNotify(*this, field.id, kKbUiNotifySetFocusToControl, 0);
        showProblem();
        return true;
    }
    return false;
}

void CFieldsDialog::OnOK() {
    if (RefuseInvalid()) return;
    Apply();
    CKtUiDialog::OnOK();
}

void CFieldsDialog::ResizeRow(unsigned left, unsigned rightLabel, unsigned right) {
    constexpr int kHalf = 50;
    if (left != 0) StretchControlX(left, kHalf);
    if (rightLabel != 0) MoveControlX(rightLabel, kHalf);
    if (right == 0) return;
    MoveControlX(right, kHalf);
    StretchControlX(right, kHalf);
}

void CFieldsDialog::ResizeFrame(std::initializer_list<unsigned> wide) {
    for (const unsigned id : wide) StretchControlX(id, 100);
    StretchControlX(IDC_MESSAGE, 100);
    MoveControlY(IDC_MESSAGE, 100);
    for (const unsigned id : {IDOK, IDCANCEL, IDHELP}) MoveControlXY(id, 100, 100);
}
