// The pickers of Format > Properties: colour, linetype, lineweight and plot style, filled from property
// values and read back into them. A value that differs between objects shows "*VARIES*", and what is picked
// counts only if it differs from what was shown.
#pragma once

#include <ktui/ktui.h>

#include "property_values.h"
#include "varying_picker.h"

/// A linetype picker whose ByLayer sample is that of the drawing's current layer.
class CLayerLineTypePicker : public CVaryingPicker<CKtUiLineTypeComboBox> {
    DECLARE_DYNAMIC(CLayerLineTypePicker)

public:
    bool GetCurrentLayerLineType(OdDbObjectId& id) override;
    /// Selects the linetype; without one, that it varies.
    void Show(const std::optional<OdDbObjectId>& linetype);
    /// The linetype picked; nothing while it varies.
    std::optional<OdDbObjectId> Picked();
};

/// A lineweight picker that shows a weight, or that it varies.
class CLineWeightPicker : public CVaryingPicker<CKtUiLineWeightComboBox> {
    DECLARE_DYNAMIC(CLineWeightPicker)

public:
    void Show(const std::optional<OdDb::LineWeight>& weight);
    std::optional<OdDb::LineWeight> Picked();
};

/// Fills a list of plot styles anew for a drawing that has them by name; that of another drawing becomes
/// empty.
void RefillPlotStyles(CKtUiPlotStyleNamesComboBox& picker, const OdDbDatabase& drawing);

class CPropertyPickers {
public:
    /// Binds the controls IDC_TRUE_COLOR, IDC_INDEX_COLOR, IDC_LINETYPE, IDC_LINE_WEIGHT and IDC_PLOT_STYLE.
    void Exchange(CDataExchange* exchange);
    /// Fills the lists of linetypes and plot styles anew from the drawing, which is the working one.
    void Refill(const OdDbDatabase& drawing);
    /// Shows the values of the drawing's objects or settings.
    void Show(const OdDbDatabase& drawing, const PropertyValues& values);
    /// Shows no value.
    void Clear();
    /// Puts what was picked into `values`.
    void Collect(PropertyValues& values);

    // What the owner calls when a colour was picked: the other colour picker follows.
    void OnTrueColor();
    void OnIndexColor();

private:
    void showColor(const std::optional<OdCmColor>& color);
    void showPlotStyle(const OdDbDatabase& drawing, const std::optional<OdString>& name);
    std::optional<OdString> pickedPlotStyle();

    CVaryingPicker<CKtUiTrueColorComboBox> m_trueColor;
    CVaryingPicker<CKtUiColorComboBox> m_indexColor;
    CLayerLineTypePicker m_linetype;
    CLineWeightPicker m_lineWeight;
    CVaryingPicker<CKtUiPlotStyleNamesComboBox> m_plotStyle;
    PropertyValues m_shown;
};
