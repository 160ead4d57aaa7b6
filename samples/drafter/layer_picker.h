// A drop-down of the drawing's layers. Its last entry asks for the name of a new layer, which is made when
// what was picked is written.
#pragma once

#include <optional>
#include <vector>

#include <ktui/ktui.h>

#include "varying_picker.h"

class CLayerPicker : public CVaryingPicker<CKtUiMRUComboBox> {
    DECLARE_DYNAMIC(CLayerPicker)

public:
    CLayerPicker();

    /// Lists the layers of `drawing` whose name holds `filter`; nothing is selected then.
    void Fill(OdDbDatabase& drawing, const OdString& filter = OdString());
    /// Count of the layers listed.
    std::size_t LayerCount() const { return m_names.size(); }
    /// Selects a layer, which joins the list if the filter has left it out.
    void Show(const OdString& name);
    /// The layer picked, which may be a new one; nothing while it varies or none is selected.
    std::optional<OdString> Picked();

    void OnAddItems() override;
    int GetOtherName(int which, CString& text) override;
    int OnSelectOther(int which, int lastSel, int& newIndex) override;
    int ImageWidth() override { return 0; }

private:
    int enter(const OdString& name);

    OdDbDatabase* m_drawing = nullptr;
    std::vector<OdString> m_names;  ///< by cargo
};
