#include <ktui/input/ktui_edit.h>

#include <ktui/host/message_box.h>

IMPLEMENT_DYNAMIC(CKtUiEdit, CKbUiEdit)

BEGIN_MESSAGE_MAP(CKtUiEdit, CKbUiEdit)
    ON_WM_KILLFOCUS()
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &CKtUiEdit::OnChange)
    ON_CONTROL_REFLECT_EX(EN_ERRSPACE, &CKtUiEdit::OnErrSpace)
END_MESSAGE_MAP()

CKtUiEdit::CKtUiEdit() = default;

CKtUiEdit::~CKtUiEdit() = default;

void CKtUiEdit::OnKillFocus(CWnd* newFocus) {
    CKbUiEdit::OnKillFocus(newFocus);
    if (IsStyleMaskSet(kKtUiEditValidateOnKillFocus)) {
        Convert();
        Validate();
    } else if (IsStyleMaskSet(kKtUiEditConvertOnKillFocus)) {
        Convert();
    }
}

BOOL CKtUiEdit::OnChange() {
    if (!m_hWnd) return FALSE;
    m_changed = 1;
    const int former = m_valid;
    if (Validate() != former)
        DoKbUiMessage(m_valid ? kKbUiNotifyControlValid : kKbUiNotifyControlInvalid,
                      static_cast<unsigned>(GetDlgCtrlID()), 0);
    return FALSE;
}

BOOL CKtUiEdit::OnErrSpace() { return FALSE; }

void CKtUiEdit::SetStyleMask(DWORD mask) {
    if (IsContradictoryMask(mask)) KtUiMessageBox(nullptr, kContradictoryMaskText, 0);
    // Kept: a contradicted mask is stored all the same; the message is the only effect.
    CKbUiEdit::SetStyleMask(mask);
}

void CKtUiEdit::storeTypedMask(DWORD mask, DWORD otherFamily, DWORD typeBit) {
    if (mask & otherFamily) KtUiMessageBox(nullptr, kContradictoryMaskText, 0);
    CKbUiEdit::SetStyleMask(mask | typeBit);
}

void CKtUiEdit::SetRange(double minimum, double maximum) {
    SetStyleMask(GetStyleMask() | kKtUiEditRange);
    m_rangeMinimum = minimum;
    m_rangeMaximum = maximum;
}

KTUI_ERROR_CODE CKtUiEdit::ValidateData(CString& text) {
    return ValidateValue(GetStyleMask(), m_rangeMinimum, m_rangeMaximum, text);
}

BOOL CKtUiEdit::ConvertData(CString& text) {
    return ConvertValue(GetStyleMask(), m_rangeMinimum, m_rangeMaximum, text);
}

BOOL CKtUiEdit::Validate() {
    if (!m_hWnd) return TRUE;
    CString text;
    GetWindowText(text);
    m_valid = ValidateData(text) == kKtUiErrorNone;
    return m_valid;
}

void CKtUiEdit::Convert() {
    // Kept: may be called through a null pointer.
    if (!GetSafeHwnd() || !IsNumberMask(GetStyleMask())) return;
    CString text;
    GetWindowText(text);
    ValidateData(text);
    SetWindowText(text);
}

KBUI_REPLY CKtUiEdit::DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 datum) {
    switch (notification) {
        case kKbUiNotifySetFocusToControl: return takeFocus();
        case kKbUiNotifyValidate: return validateForHolder();
        default: return CKbUiEdit::DoKbUiMessage(notification, id, datum);
    }
}

KBUI_REPLY CKtUiEdit::takeFocus() {
    SetFocus();
    SetSel(0, -1);
    m_focusRestored = 1;
    return kKbUiReplyHandled;
}

KBUI_REPLY CKtUiEdit::validateForHolder() {
    CString text;
    GetWindowText(text);
    // Kept: a number is validated in its canonical spelling, not as typed.
    if (IsNumberMask(GetStyleMask())) ValidateData(text);
    m_valid = ValidateData(text) == kKtUiErrorNone;
    return m_valid ? kKbUiReplyValid : kKbUiReplyInvalid;
}

void CKtUiEdit::DisplayError(unsigned code) {
    if (const wchar_t* text = ValueErrorText(code)) KtUiMessageBox(nullptr, text, 0);
}
