#include "fields_dialog.h"

#include <ktdb.h>

#include "resource.h"

namespace {

constexpr COLORREF kInvalidPaper = RGB(255, 222, 222);
constexpr COLORREF kInvalidInk = RGB(160, 0, 0);

}  // namespace

IMPLEMENT_DYNAMIC(CFieldsDialog, CKtUiDialog)

BEGIN_MESSAGE_MAP(CFieldsDialog, CKtUiDialog)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CFieldsDialog::CFieldsDialog(UINT templateId, const wchar_t* name, CWnd* parent)
    : CKtUiDialog(templateId, parent, AfxGetInstanceHandle()), m_invalidBrush(kInvalidPaper) {
    SetDialogName(name);
}

void CFieldsDialog::AddField(unsigned id, CKtUiEdit& edit, UINT badText, const CString& example) {
    m_fields.push_back({id, &edit, badText, example, CString()});
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
        field.edit->SetWindowText(text);
    }
}

CString CFieldsDialog::FieldText(unsigned id) const {
    const Field* field = fieldOf(id);
    return field != nullptr ? textOf(*field) : CString();
}

bool CFieldsDialog::IsEdited(unsigned id) const {
    const Field* field = fieldOf(id);
    return field != nullptr && isEdited(*field);
}

std::optional<double> CFieldsDialog::EditedDistance(unsigned id) const {
    double number = 0;
    if (!IsEdited(id) || ktdbDisToF(FieldText(id), -1, &number) != kKtdbOk) return {};
    return number;
}

std::optional<double> CFieldsDialog::EditedAngle(unsigned id) const {
    double number = 0;
    if (!IsEdited(id) || ktdbAngToF2(1, FieldText(id), -1, &number) != kKtdbOk) return {};
    return number;
}

void CFieldsDialog::ShowMessage(const CString& text) { SetDlgItemText(IDC_MESSAGE, text); }

void CFieldsDialog::showProblem(const Field& field) {
    CString format, text;
    format.LoadString(field.badText);
    text.Format(format, field.example.GetString());
    ShowMessage(text);
}

KBUI_REPLY CFieldsDialog::OnNotifyControlValid(unsigned id, int valid) {
    const Field* field = fieldOf(id);
    if (field == nullptr) return kKbUiReplyNone;
    field->edit->Invalidate();
    if (valid)
        ShowMessage(CString());
    else if (isEdited(*field))
        showProblem(*field);
    return kKbUiReplyHandled;
}

HBRUSH CFieldsDialog::OnCtlColor(CDC* dc, CWnd* control, UINT kind) {
    HBRUSH brush = CKtUiDialog::OnCtlColor(dc, control, kind);
    if (kind == CTLCOLOR_STATIC && control->GetDlgCtrlID() == IDC_MESSAGE) {
        dc->SetTextColor(kInvalidInk);
        return brush;
    }
    if (kind != CTLCOLOR_EDIT) return brush;
    for (const Field& field : m_fields) {
        if (field.edit->m_hWnd != control->m_hWnd || !isEdited(field) || field.edit->Validate()) continue;
        dc->SetBkColor(kInvalidPaper);
        return m_invalidBrush;
    }
    return brush;
}

bool CFieldsDialog::RefuseInvalid() {
    for (const Field& field : m_fields) {
        if (!field.edit->IsWindowEnabled() || !isEdited(field) || field.edit->Validate()) continue;
        showProblem(field);
        KbUiNotify(*this, field.id, kKbUiNotifySetFocusToControl, 0);
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
