// Format > Properties: the properties of the selected objects, or of the current settings, and the list of
// layers.
#pragma once

#include "drawing_picker.h"
#include "layer_drop_site.h"
#include "property_fields.h"

class CPropertiesDialog : public CPropertyFields {
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

    afx_msg void OnPickRotation();
    afx_msg void OnSelectObjects();
    DECLARE_MESSAGE_MAP()

private:
    void showTitle();
    void fillFields();
    void fillLayers();
    void registerResizing();
    void attachPickButtons();

    OdDbDatabase& m_drawing;
    std::vector<OdDbObjectId> m_objects;
    CDrawingPicker* m_picker;
    CKtUiPickButton m_pickRotation;
    CKtUiSelectButton m_selectObjects;
    CKbUiListCtrl m_layers;
    CLayerDropSite m_dropSite;
    OdDbDatabasePtr m_layersFrom;  ///< whose layer settings are taken with OK; null for none
};
