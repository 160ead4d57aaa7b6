#include "property_pickers.h"

#include <ktdb.h>

#include "resource.h"

IMPLEMENT_DYNAMIC(CLayerLineTypePicker, CKtUiLineTypeComboBox)
IMPLEMENT_DYNAMIC(CLineWeightPicker, CKtUiLineWeightComboBox)

bool CLayerLineTypePicker::GetCurrentLayerLineType(OdDbObjectId& id) {
    const OdDbDatabase* drawing = getLTLocalMapDB();
    const auto layer =
        drawing != nullptr ? drawing->clayer().open<OdDbLayerTableRecord>() : OdDbLayerTableRecordPtr();
    if (!layer) return false;
    id = layer->linetypeObjectId();
    return true;
}

void CLayerLineTypePicker::Show(const std::optional<OdDbObjectId>& linetype) {
    if (!linetype) return ShowVaries();
    ForgetVaries();
    setCurSelByOID(*linetype);
}

std::optional<OdDbObjectId> CLayerLineTypePicker::Picked() {
    const OdDbObjectId id = getOIDCurSel();
    if (id.isNull()) return {};
    return id;
}

void CLineWeightPicker::Show(const std::optional<OdDb::LineWeight>& weight) {
    if (!weight) return ShowVaries();
    ForgetVaries();
    SetCurSel(FindItemByLineWeight(*weight));
}

std::optional<OdDb::LineWeight> CLineWeightPicker::Picked() {
    if (GetCurSel() < 0 || IsVaries()) return {};
    return static_cast<OdDb::LineWeight>(GetCurrentItemLineWeight());
}

void RefillPlotStyles(CKtUiPlotStyleNamesComboBox& picker, const OdDbDatabase& drawing) {
    const bool byName = drawing.getPSTYLEMODE() == 0;
    // After a drawing that plots by colour the picker has to be told, which leaves ByColor in its list.
    if (byName) picker.SetNamedMode();
    picker.ResetContent();
    if (byName) picker.AddItems();
}

void CPropertyPickers::Exchange(CDataExchange* exchange) {
    DDX_Control(exchange, IDC_TRUE_COLOR, m_trueColor);
    DDX_Control(exchange, IDC_INDEX_COLOR, m_indexColor);
    DDX_Control(exchange, IDC_LINETYPE, m_linetype);
    DDX_Control(exchange, IDC_LINE_WEIGHT, m_lineWeight);
    DDX_Control(exchange, IDC_PLOT_STYLE, m_plotStyle);
}

void CPropertyPickers::Refill(const OdDbDatabase& drawing) {
    m_linetype.ShowLTypes(true);
    RefillPlotStyles(m_plotStyle, drawing);
}

void CPropertyPickers::Show(const OdDbDatabase& drawing, const PropertyValues& values) {
    showColor(values.color);
    m_linetype.Show(values.linetype);
    m_lineWeight.Show(values.lineWeight);
    showPlotStyle(drawing, values.plotStyle);
    m_shown = values;
    m_shown.plotStyle = pickedPlotStyle();
}

void CPropertyPickers::Clear() {
    for (CComboBox* picker : std::initializer_list<CComboBox*>{&m_trueColor, &m_indexColor, &m_linetype,
                                                               &m_lineWeight, &m_plotStyle})
        picker->SetCurSel(-1);
    m_shown = {};
}

void CPropertyPickers::showColor(const std::optional<OdCmColor>& color) {
    if (!color) {
        m_trueColor.ShowVaries();
        m_indexColor.ShowVaries();
        return;
    }
    m_trueColor.ForgetVaries();
    m_indexColor.ForgetVaries();
    m_trueColor.SetCurSel(m_trueColor.AddColorToMRU(*color));
    m_indexColor.SetCurSel(color->isByACI() ? m_indexColor.AddColorToMRU(color->colorIndex()) : -1);
}

void CPropertyPickers::showPlotStyle(const OdDbDatabase& drawing, const std::optional<OdString>& name) {
    if (drawing.getPSTYLEMODE() != 0) {
        // The filled list would offer its first name in place of ByColor.
        m_plotStyle.ResetContent();
        m_plotStyle.SetColorDependentMode();
        return;
    }
    m_plotStyle.EnableWindow();
    if (!name) {
        m_plotStyle.ShowVaries();
        return;
    }
    m_plotStyle.ForgetVaries();
    const bool isNormal = ktdbIsReservedString(*name, kKtdbNormal);
    const OdString shown = isNormal ? ktdbGetReservedString(kKtdbNormal, true) : *name;
    const int item = m_plotStyle.FindStringExact(-1, shown);
    // A style that the layout's style sheet lacks is still the object's own.
    m_plotStyle.SetCurSel(item >= 0 ? item : m_plotStyle.AddString(shown));
}

std::optional<OdString> CPropertyPickers::pickedPlotStyle() {
    if (!m_plotStyle.IsWindowEnabled() || m_plotStyle.GetCurSel() < 0 || m_plotStyle.IsVaries()) return {};
    CString text;
    m_plotStyle.GetLBText(m_plotStyle.GetCurSel(), text);
    return ktdbIsReservedString(text, kKtdbNormal) ? ktdbGetReservedString(kKtdbNormal, false)
                                                   : OdString(text);
}

void CPropertyPickers::Collect(PropertyValues& values) {
    if (m_trueColor.GetCurrentItemCargo() >= 0) {
        OdCmColor color;
        m_trueColor.GetCurrentItemColor(color);
        if (!(m_shown.color && *m_shown.color == color)) values.color = color;
    }
    if (const auto linetype = m_linetype.Picked(); linetype && linetype != m_shown.linetype)
        values.linetype = linetype;
    if (const auto weight = m_lineWeight.Picked(); weight && weight != m_shown.lineWeight)
        values.lineWeight = weight;
    const auto style = pickedPlotStyle();
    if (style && !(m_shown.plotStyle && m_shown.plotStyle->iCompare(*style) == 0)) values.plotStyle = style;
}

void CPropertyPickers::OnTrueColor() {
    if (m_trueColor.IsVaries()) m_indexColor.ShowVaries();
    if (m_trueColor.GetCurrentItemCargo() < 0) return;
    OdCmColor color;
    m_trueColor.GetCurrentItemColor(color);
    m_indexColor.SetCurSel(color.isByACI() ? m_indexColor.AddColorToMRU(color.colorIndex()) : -1);
}

void CPropertyPickers::OnIndexColor() {
    if (m_indexColor.IsVaries()) m_trueColor.ShowVaries();
    const __int64 index = m_indexColor.GetCurrentItemColorIndex();
    if (index < 0) return;
    OdCmColor color;
    color.setColorIndex(static_cast<int>(index));
    m_trueColor.SetCurSel(m_trueColor.AddColorToMRU(color));
}
