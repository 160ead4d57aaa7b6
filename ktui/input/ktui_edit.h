// CKtUiEdit: an edit control whose text is a value - a text, a symbol name, a distance or an angle.
//
// What is legal is told by the style mask (KTUI_EDIT_STYLE) and the range. A bad value never opens a message:
// validity is kept as a flag at every keystroke and on focus loss, the text stays as typed, and the client
// asks by Validate, ValidateData or ConvertData when it needs to know. A subclass that wants to show a mark
// overrides DoKbUiMessage and waits for kKbUiNotifyControlValid and kKbUiNotifyControlInvalid.
#pragma once

#include <ktui/input/kbui_edit.h>
#include <ktui/input/value_validation.h>

class KTUI_API CKtUiEdit : public CKbUiEdit {
    DECLARE_DYNAMIC(CKtUiEdit)

public:
    CKtUiEdit();
    ~CKtUiEdit() override;

    /// Stores `mask`. A mask of both families is told to its programmer by a message and stored all the same.
    void SetStyleMask(DWORD mask) override;
    /// Sets the kKtUiEditRange bit by SetStyleMask, then the range, both ends included, in drawing units or
    /// as an angle is parsed. A minimum above the maximum makes every number out of range.
    void SetRange(double minimum, double maximum);

    /// Validates `text`; on kKtUiErrorNone a number or angle is rewritten into its canonical spelling. The
    /// control isn't touched.
    KTUI_ERROR_CODE ValidateData(CString& text);
    /// FALSE without a numeric or angle bit, with `text` untouched; otherwise TRUE if ValidateData passes.
    BOOL ConvertData(CString& text);
    /// Validates the control's text on a copy and stores and answers the result. TRUE without a window.
    BOOL Validate();
    /// Rewrites the control's text into its canonical spelling if it is a legal number or angle. Sends the
    /// change notifications of SetWindowText; leaves the valid flag alone. Nothing without a window.
    void Convert();
    /// TRUE once the text has changed; never cleared.
    BOOL HasChanged() const { return m_changed; }
    /// Sets a mark for subclasses.
    void SetDirty() { m_dirty = 1; }

protected:
    KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 datum) override;

    /// Stores `mask` with `typeBit`, with a message if it has a bit of `otherFamily`. For the typed classes.
    void storeTypedMask(DWORD mask, DWORD otherFamily, DWORD typeBit);

    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg BOOL OnChange();
    afx_msg BOOL OnErrSpace();
    DECLARE_MESSAGE_MAP()

    int m_focusRestored = 0;
    int m_valid = 1;
    int m_changed = 0;
    double m_rangeMinimum = 0;
    double m_rangeMaximum = 0;
    CString m_spareText;  ///< for subclasses
    int m_dirty = 0;

private:
    void DisplayError(unsigned code);
    KBUI_REPLY takeFocus();
    KBUI_REPLY validateForHolder();
};
