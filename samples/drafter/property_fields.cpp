#include "property_fields.h"

#include "resource.h"
#include "unit_texts.h"

namespace {

constexpr double kLargestThickness = 10000;  // drawing units
constexpr double kQuarterOfTurn = 0.7853981633974483;

/// The text of a value; nothing for a value that varies.
std::optional<CString> shown(const std::optional<double>& value, CString (*format)(double)) {
    if (!value) return {};
    return format(*value);
}
std::optional<CString> shown(const std::optional<OdString>& value) {
    if (!value) return {};
    return CString(value->c_str());
}

}  // namespace

IMPLEMENT_DYNAMIC(CPropertyFields, CFieldsDialog)

BEGIN_MESSAGE_MAP(CPropertyFields, CFieldsDialog)
    ON_CBN_CLOSEUP(IDC_TRUE_COLOR, &CPropertyFields::OnTrueColor)
    ON_CBN_SELENDOK(IDC_TRUE_COLOR, &CPropertyFields::OnTrueColor)
    ON_CBN_CLOSEUP(IDC_INDEX_COLOR, &CPropertyFields::OnIndexColor)
    ON_CBN_SELENDOK(IDC_INDEX_COLOR, &CPropertyFields::OnIndexColor)
END_MESSAGE_MAP()

CPropertyFields::CPropertyFields(UINT templateId, const wchar_t* name, CWnd* parent)
    : CFieldsDialog(templateId, name, parent) {
    AddField(IDC_LINETYPE_SCALE, m_linetypeScale, IDS_BAD_LINETYPE_SCALE);
    AddField(IDC_HYPERLINK, m_hyperlink, IDS_BAD_HYPERLINK);
    AddField(IDC_ELEVATION, m_elevation, IDS_BAD_ELEVATION);
    AddField(IDC_THICKNESS, m_thickness, IDS_BAD_THICKNESS);
    AddField(IDC_ROTATION, m_rotation, IDS_BAD_ROTATION);
}

void CPropertyFields::DoDataExchange(CDataExchange* exchange) {
    CFieldsDialog::DoDataExchange(exchange);
    m_pickers.Exchange(exchange);
    DDX_Control(exchange, IDC_LAYER, m_layer);
}

BOOL CPropertyFields::OnInitDialog() {
    const BOOL result = CFieldsDialog::OnInitDialog();
    m_linetypeScale.SetStyleMask(kKtUiEditNoNegative | kKtUiEditNoZero);
    m_elevation.SetStyleMask(kKtUiEditValidateOnKillFocus);
    m_thickness.SetStyleMask(kKtUiEditValidateOnKillFocus | kKtUiEditNoNegative);
    m_thickness.SetRange(0, kLargestThickness);
    m_rotation.SetStyleMask(kKtUiEditValidateOnKillFocus);
    return result;
}

/// In the units that the drawing has now.
void CPropertyFields::showExamples() {
    SetExample(IDC_ELEVATION, FormatDistance(12.5));
    SetExample(IDC_THICKNESS, FormatDistance(kLargestThickness));
    SetExample(IDC_ROTATION, FormatAngle(kQuarterOfTurn));
}

void CPropertyFields::showField(unsigned id, const std::optional<CString>& text) {
    if (text)
        FillField(id, *text);
    else if (GetDlgItem(static_cast<int>(id))->IsWindowEnabled())
        FillVaryingField(id);
    else
        FillField(id, CString());
}

void CPropertyFields::ShowValues(OdDbDatabase& drawing, const std::vector<OdDbObjectId>& objects) {
    const PropertyValues values = ReadProperties(drawing, objects);
    showExamples();
    m_pickers.Show(drawing, values);
    m_rotation.EnableWindow(values.hasRotation);
    m_hyperlink.EnableWindow(values.hasHyperlink);
    showField(IDC_LINETYPE_SCALE, shown(values.linetypeScale, FormatNumber));
    if (values.layer) m_layer.ForgetVaries();
    m_layer.Fill(drawing);
    if (values.layer)
        m_layer.Show(*values.layer);
    else
        m_layer.ShowVaries();
    m_shownLayer = values.layer;
    showField(IDC_HYPERLINK, shown(values.hyperlink));
    showField(IDC_ELEVATION, shown(values.elevation, FormatDistance));
    showField(IDC_THICKNESS, shown(values.thickness, FormatDistance));
    showField(IDC_ROTATION, shown(values.rotation, FormatAngle));
    ShowMessage(CString());
}

void CPropertyFields::ClearValues() {
    m_pickers.Clear();
    m_layer.ResetContent();
    m_shownLayer.reset();
    for (const unsigned id : {IDC_LINETYPE_SCALE, IDC_HYPERLINK, IDC_ELEVATION, IDC_THICKNESS, IDC_ROTATION})
        FillField(id, CString());
    ShowMessage(CString());
}

void CPropertyFields::SetRotation(double radians) { m_rotation.SetWindowText(FormatAngle(radians)); }

PropertyValues CPropertyFields::EnteredValues() {
    PropertyValues values;
    m_pickers.Collect(values);
    values.linetypeScale = EditedDistance(IDC_LINETYPE_SCALE);
    if (const auto layer = m_layer.Picked(); layer && layer != m_shownLayer) values.layer = layer;
    if (IsEdited(IDC_HYPERLINK)) values.hyperlink = OdString(FieldText(IDC_HYPERLINK));
    values.elevation = EditedDistance(IDC_ELEVATION);
    values.thickness = EditedDistance(IDC_THICKNESS);
    values.rotation = EditedAngle(IDC_ROTATION);
    return values;
}
