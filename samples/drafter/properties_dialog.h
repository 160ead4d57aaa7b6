// Format > Properties: colour, layer, hyperlink, elevation, thickness and rotation of the selected objects,
// or of the current settings, and the list of layers.
//
// A field that the user leaves alone is not written, so objects that differ in it keep their own values. An
// invalid field turns red while it is typed in; OK refuses, says why in words, and puts the focus there.
#pragma once

#include <vector>

#include <ktui/ktui.h>

#include "property_values.h"

/// An edit control that tells its dialog when its text becomes valid or invalid.
template <class Edit>
class CReportingEdit : public Edit {
protected:
    KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 datum) override {
        if (notification != kKbUiNotifyControlValid && notification != kKbUiNotifyControlInvalid)
            return Edit::DoKbUiMessage(notification, id, datum);
        // The dialog offers the message to this very control first, which leaves it to the dialog then.
        if (m_reporting) return kKbUiReplyNone;
        m_reporting = true;
        const KBUI_REPLY reply =
            KbUiNotify(this->GetParent(), id, notification, notification == kKbUiNotifyControlValid);
        m_reporting = false;
        return reply;
    }

private:
    bool m_reporting = false;
};

class CPropertiesDialog : public CKtUiDialog {
    DECLARE_DYNAMIC(CPropertiesDialog)

public:
    /// Edits `objects` of `drawing`; without objects the current settings.
    CPropertiesDialog(OdDbDatabase& drawing, std::vector<OdDbObjectId> objects, CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void DoDataExchange(CDataExchange* exchange) override;
    KBUI_REPLY OnNotifyControlValid(unsigned id, int valid) override;

    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    afx_msg void OnTrueColor();
    afx_msg void OnIndexColor();
    DECLARE_MESSAGE_MAP()

private:
    /// One typed field: its control, the text it began with, and the words for a bad value.
    struct Field {
        unsigned id;
        CKtUiEdit* edit;
        UINT badText;
        const wchar_t* example;
        CString before;
    };

    void fillFields();
    void fillLayers();
    void registerResizing();
    Field& fieldOf(unsigned id);
    CString textOf(const Field& field) const;
    bool isEdited(const Field& field) const { return textOf(field) != field.before; }
    void showProblem(const Field& field);
    /// The first edited field whose text is not valid; null if all are.
    Field* firstInvalid();
    void showColor(const OdCmColor& color);
    PropertyValues editedValues();

    OdDbDatabase& m_drawing;
    std::vector<OdDbObjectId> m_objects;
    CKtUiTrueColorComboBox m_trueColor;
    CKtUiColorComboBox m_indexColor;
    CReportingEdit<CKtUiSymbolEdit> m_layer;
    CReportingEdit<CKtUiStringEdit> m_hyperlink;
    CReportingEdit<CKtUiNumericEdit> m_elevation;
    CReportingEdit<CKtUiNumericEdit> m_thickness;
    CReportingEdit<CKtUiAngleEdit> m_rotation;
    CKbUiListCtrl m_layers;
    std::vector<Field> m_fields;
    bool m_colorPicked = false;
    CBrush m_invalidBrush;
};
