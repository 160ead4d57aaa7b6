// The pickers of a layer's colour, linetype and lineweight: like those of objects, but a layer follows no
// other layer and no block, so ByLayer and ByBlock are not offered.
#pragma once

#include <optional>

#include <ktui/ktui.h>

#include "varying_picker.h"

class CLayerColorPicker : public CVaryingPicker<CKtUiTrueColorComboBox> {
    DECLARE_DYNAMIC(CLayerColorPicker)

public:
    CLayerColorPicker();
    /// Selects the colour; without one, that it varies.
    void Show(const std::optional<OdCmColor>& color);
    /// The colour picked; nothing while it varies.
    std::optional<OdCmColor> Picked();
};

class CLinetypeOfLayerPicker : public CVaryingPicker<CKtUiLineTypeComboBox> {
    DECLARE_DYNAMIC(CLinetypeOfLayerPicker)

public:
    void Show(const std::optional<OdDbObjectId>& linetype);
    std::optional<OdDbObjectId> Picked();
    void OnAddItems() override;
};

class CWeightOfLayerPicker : public CVaryingPicker<CKtUiLineWeightComboBox> {
    DECLARE_DYNAMIC(CWeightOfLayerPicker)

public:
    CWeightOfLayerPicker();
    void Show(const std::optional<OdDb::LineWeight>& weight);
    std::optional<OdDb::LineWeight> Picked();
};
