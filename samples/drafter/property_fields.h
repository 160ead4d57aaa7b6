// CPropertyFields: the fields and pickers of object properties, as Format > Properties and the properties
// palette show them: colour, linetype, lineweight, plot style, linetype scale, layer, hyperlink, elevation,
// thickness and rotation of objects, or of the current settings.
//
// A field or picker that the user leaves alone has no value, so objects that differ in it keep their own.
#pragma once

#include "fields_dialog.h"
#include "layer_picker.h"
#include "property_pickers.h"

class CPropertyFields : public CFieldsDialog {
    DECLARE_DYNAMIC(CPropertyFields)

public:
    /// `name` is what the dialog's place is remembered under, and its help topic.
    CPropertyFields(UINT templateId, const wchar_t* name, CWnd* parent);

protected:
    /// Shows the values of `objects`, or the current settings without objects; nothing counts as edited then.
    void ShowValues(OdDbDatabase& drawing, const std::vector<OdDbObjectId>& objects);
    /// Shows no value anywhere; nothing counts as edited then.
    void ClearValues();
    /// What the user entered or picked since; a bad value is left out.
    PropertyValues EnteredValues();
    /// Fills the lists anew from the drawing.
    void RefillLists(const OdDbDatabase& drawing) { m_pickers.Refill(drawing); }
    void SetRotation(double radians);
    bool HasRotation() const { return m_rotation.IsWindowEnabled() != FALSE; }

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;

    afx_msg void OnTrueColor() { m_pickers.OnTrueColor(); }
    afx_msg void OnIndexColor() { m_pickers.OnIndexColor(); }
    DECLARE_MESSAGE_MAP()

private:
    void showField(unsigned id, const std::optional<CString>& text);
    void showExamples();

    CPropertyPickers m_pickers;
    CReportingEdit<CKtUiNumericEdit> m_linetypeScale;
    CLayerPicker m_layer;
    std::optional<OdString> m_shownLayer;  ///< nothing while it varies
    CReportingEdit<CKtUiStringEdit> m_hyperlink;
    CReportingEdit<CKtUiNumericEdit> m_elevation;
    CReportingEdit<CKtUiNumericEdit> m_thickness;
    CReportingEdit<CKtUiAngleEdit> m_rotation;
};
