// Format > Properties: colour, linetype, lineweight, plot style, linetype scale, layer, hyperlink, elevation,
// thickness and rotation of the selected objects, or of the current settings, and the list of layers.
//
// A field or picker that the user leaves alone is not written, so objects that differ in it keep their own
// values.
#pragma once

#include "drawing_picker.h"
#include "fields_dialog.h"
#include "layer_drop_site.h"
#include "layer_picker.h"
#include "property_pickers.h"

class CPropertiesDialog : public CFieldsDialog {
    DECLARE_DYNAMIC(CPropertiesDialog)

public:
    /// Edits `objects` of `drawing`; without objects the current settings. `picker` lets the user pick a
    /// rotation, or other objects to edit; without one there are no buttons for it.
    CPropertiesDialog(OdDbDatabase& drawing, std::vector<OdDbObjectId> objects, CWnd* parent,
                      CDrawingPicker* picker = nullptr);

protected:
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* exchange) override;
    void Apply() override;

    afx_msg void OnTrueColor() { m_pickers.OnTrueColor(); }
    afx_msg void OnIndexColor() { m_pickers.OnIndexColor(); }
    afx_msg void OnPickRotation();
    afx_msg void OnSelectObjects();
    DECLARE_MESSAGE_MAP()

private:
    void showTitle();
    void fillFields();
    void fillField(unsigned id, const std::optional<CString>& text);
    void fillLayers();
    void registerResizing();
    void attachPickButtons();

    OdDbDatabase& m_drawing;
    std::vector<OdDbObjectId> m_objects;
    CDrawingPicker* m_picker;
    CKtUiPickButton m_pickRotation;
    CKtUiSelectButton m_selectObjects;
    CPropertyPickers m_pickers;
    CReportingEdit<CKtUiNumericEdit> m_linetypeScale;
    CLayerPicker m_layer;
    std::optional<OdString> m_shownLayer;  ///< nothing while it varies
    CReportingEdit<CKtUiStringEdit> m_hyperlink;
    CReportingEdit<CKtUiNumericEdit> m_elevation;
    CReportingEdit<CKtUiNumericEdit> m_thickness;
    CReportingEdit<CKtUiAngleEdit> m_rotation;
    CKbUiListCtrl m_layers;
    CLayerDropSite m_dropSite;
    OdDbDatabasePtr m_layersFrom;  ///< whose layer settings are taken with OK; null for none
};
