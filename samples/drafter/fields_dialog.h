// CFieldsDialog: a dialog with typed fields. An invalid field turns red while it is typed in, the line
// IDC_MESSAGE says why; OK refuses and puts the focus there. A field that the user leaves alone counts as
// unedited, whatever it shows.
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
    /// Shows a text in a field, which counts as unedited then.
    void FillField(unsigned id, const CString& text);
    CString FieldText(unsigned id) const;
    bool IsEdited(unsigned id) const;
    /// The value of an edited field: drawing units, or radians. Nothing for an unedited or unusable one.
    std::optional<double> EditedDistance(unsigned id) const;
    std::optional<double> EditedAngle(unsigned id) const;
    /// Tells the problem of the first invalid field and puts the focus there; false if there is none.
    bool RefuseInvalid();
    void ShowMessage(const CString& text);

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
    KBUI_REPLY OnNotifyControlValid(unsigned id, int valid) override;

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
    };

    const Field* fieldOf(unsigned id) const;
    static CString textOf(const Field& field);
    static bool isEdited(const Field& field) { return textOf(field) != field.before; }
    void showProblem(const Field& field);

    std::vector<Field> m_fields;
    CBrush m_invalidBrush;
};
