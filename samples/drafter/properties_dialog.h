// Format > Properties: colour, linetype, lineweight, plot style, linetype scale, layer, hyperlink, elevation,
// thickness and rotation of the selected objects, or of the current settings, and the list of layers.
//
// A field or picker that the user leaves alone is not written, so objects that differ in it keep their own
// values.
#pragma once

#include "fields_dialog.h"
#include "property_pickers.h"

class CPropertiesDialog : public CFieldsDialog {
    DECLARE_DYNAMIC(CPropertiesDialog)

public:
    /// Edits `objects` of `drawing`; without objects the current settings.
    CPropertiesDialog(OdDbDatabase& drawing, std::vector<OdDbObjectId> objects, CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void Apply() override;

    afx_msg void OnTrueColor() { m_pickers.OnTrueColor(); }
    afx_msg void OnIndexColor() { m_pickers.OnIndexColor(); }
    DECLARE_MESSAGE_MAP()

private:
    void showTitle();
    void fillFields();
    void fillField(unsigned id, const std::optional<CString>& text);
    void fillLayers();
    void registerResizing();

    OdDbDatabase& m_drawing;
    std::vector<OdDbObjectId> m_objects;
    CPropertyPickers m_pickers;
    CReportingEdit<CKtUiNumericEdit> m_linetypeScale;
    CReportingEdit<CKtUiSymbolEdit> m_layer;
    CReportingEdit<CKtUiStringEdit> m_hyperlink;
    CReportingEdit<CKtUiNumericEdit> m_elevation;
    CReportingEdit<CKtUiNumericEdit> m_thickness;
    CReportingEdit<CKtUiAngleEdit> m_rotation;
    CKbUiListCtrl m_layers;
};
