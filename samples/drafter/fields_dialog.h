// CFieldsDialog: a dialog with typed fields. An invalid field turns red while it is typed in, the line
// IDC_MESSAGE says why: of the field that has the focus, or else of the first invalid one. OK refuses and
// puts the focus there. A field that the user leaves alone counts as unedited, whatever it shows.
//
//     class CSizeDialog : public CFieldsDialog {
//         CSizeDialog() : CFieldsDialog(IDD_SIZE, L"Size", parent) { AddField(IDC_WIDTH, m_width,
//         IDS_BAD_WIDTH); } void Apply() override { if (const auto width = EditedDistance(IDC_WIDTH))
//         use(*width); }
//     };
#pragma once

#include <optional>
#include <vector>

#include <ktui/ktui.h>

#include "reporting_edit.h"

class CFieldsDialog : public CKtUiDialog {
    DECLARE_DYNAMIC(CFieldsDialog)

public:
    /// `name` is what the dialog's place is remembered under, and its help topic.
    CFieldsDialog(UINT templateId, const wchar_t* name, CWnd* parent);

protected:
    /// Makes `edit` a field; before the dialog is shown. `badText` is a string with the words for a bad
    /// value, in which %s stands for `example`.
    void AddField(unsigned id, CKtUiEdit& edit, UINT badText, const CString& example = CString());
    /// Gives the words for a bad value of the field another example.
    void SetExample(unsigned id, const CString& example);
    /// Shows a text in a field, which counts as unedited then.
    void FillField(unsigned id, const CString& text);
    /// Shows "*VARIES*" in a field, which counts as unedited then. It comes back when the text is deleted, as
    /// far as no text is no value of the field, or when it is typed.
    void FillVaryingField(unsigned id);
    CString FieldText(unsigned id) const;
    bool IsEdited(unsigned id) const;
    /// Whether the field holds a bad value.
    bool IsBad(unsigned id) const;
    /// Gives an edited field back what it showed before, with all of it selected; false if it isn't edited.
    bool RestoreField(unsigned id);
    /// What was typed into a field.
    struct Entry {
        unsigned id;
        CString text;
    };
    /// The bad values that are shown, and typing them again where the fields were filled since.
    std::vector<Entry> BadEntries() const;
    void TypeAgain(const std::vector<Entry>& entries);
    /// The value of an edited field: drawing units, or radians. Nothing for an unedited or unusable one.
    std::optional<double> EditedDistance(unsigned id) const;
    std::optional<double> EditedAngle(unsigned id) const;
    /// Tells the problem of the first invalid field and puts the focus there; false if there is none.
    bool RefuseInvalid();
    /// Words of the dialog's own for the line IDC_MESSAGE, on a problem and on what is none; they show while
    /// no field is invalid. A problem is told in red.
    void ShowMessage(const CString& text) { say(text, true); }
    void ShowNote(const CString& text) { say(text, false); }

    /// Resizing of a row of two columns: label and control at the left, label and control at the right; each
    /// control takes half of the growth. An id of 0 stands for nothing.
    void ResizeRow(unsigned left, unsigned rightLabel, unsigned right);
    /// Controls that take all of the growth in width, and the buttons and message at the bottom.
    void ResizeFrame(std::initializer_list<unsigned> wide);

    /// Puts what was entered into the drawing; every field is valid.
    virtual void Apply() = 0;

    BOOL OnInitDialog() override;
    void OnOK() override;
    void DoDataExchange(CDataExchange* exchange) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    KBUI_REPLY OnNotifyControlValid(unsigned id, int valid) override;

    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    DECLARE_MESSAGE_MAP()

private:
    /// One typed field: its control, the text it began with, and the words for a bad value.
    struct Field {
        unsigned id;
        CKtUiEdit* edit;
        UINT badText;
        CString example;
        CString before;
        bool varies = false;
    };

    const Field* fieldOf(unsigned id) const;
    static CString textOf(const Field& field);
    static bool isEdited(const Field& field) { return textOf(field) != field.before; }
    static bool isBad(const Field& field);
    static CString problemOf(const Field& field);
    /// The invalid field to speak of; null if there is none.
    const Field* badField() const;
    void showProblem();
    void say(const CString& text, bool isProblem);
    static void bringBackVaries(const Field& field);

    std::vector<Field> m_fields;
    CString m_message;  ///< the dialog's own words
    bool m_messageIsProblem = true;
    CBrush m_invalidBrush;
};
