#include "properties_dialog.h"

#include <ktdb.h>
#include <ktut.h>

#include "resource.h"

namespace {

constexpr COLORREF kInvalidPaper = RGB(255, 222, 222);
constexpr COLORREF kInvalidInk = RGB(160, 0, 0);
constexpr double kLargestThickness = 10000;  // drawing units

CString formatDistance(double value) {
    wchar_t text[kKtdbBufferSize];
    return ktdbRToS(value, -1, -1, text) == kKtdbOk ? CString(text) : CString();
}

CString formatAngle(double radians) {
    wchar_t text[kKtdbBufferSize];
    return ktdbAngToS(radians, -1, -1, text) == kKtdbOk ? CString(text) : CString();
}

CString layerLinetype(const OdDbLayerTableRecord& layer) {
    const auto linetype = layer.linetypeObjectId().open<OdDbLinetypeTableRecord>();
    return linetype ? CString(linetype->getName().c_str()) : CString();
}

}  // namespace

IMPLEMENT_DYNAMIC(CPropertiesDialog, CKtUiDialog)

BEGIN_MESSAGE_MAP(CPropertiesDialog, CKtUiDialog)
    ON_WM_CTLCOLOR()
    ON_CBN_CLOSEUP(IDC_TRUE_COLOR, &CPropertiesDialog::OnTrueColor)
    ON_CBN_SELENDOK(IDC_TRUE_COLOR, &CPropertiesDialog::OnTrueColor)
    ON_CBN_CLOSEUP(IDC_INDEX_COLOR, &CPropertiesDialog::OnIndexColor)
    ON_CBN_SELENDOK(IDC_INDEX_COLOR, &CPropertiesDialog::OnIndexColor)
END_MESSAGE_MAP()

CPropertiesDialog::CPropertiesDialog(OdDbDatabase& drawing, std::vector<OdDbObjectId> objects, CWnd* parent)
    : CKtUiDialog(IDD_PROPERTIES, parent, AfxGetInstanceHandle()),
      m_drawing(drawing),
      m_objects(std::move(objects)),
      m_invalidBrush(kInvalidPaper) {
    SetDialogName(L"Properties");
    m_fields = {{IDC_LAYER, &m_layer, IDS_BAD_LAYER, L"", CString()},
                {IDC_HYPERLINK, &m_hyperlink, IDS_BAD_HYPERLINK, L"", CString()},
                {IDC_ELEVATION, &m_elevation, IDS_BAD_ELEVATION, L"12.5", CString()},
                {IDC_THICKNESS, &m_thickness, IDS_BAD_THICKNESS, L"", CString()},
                {IDC_ROTATION, &m_rotation, IDS_BAD_ROTATION, L"45", CString()}};
}

void CPropertiesDialog::DoDataExchange(CDataExchange* exchange) {
    CKtUiDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_TRUE_COLOR, m_trueColor);
    DDX_Control(exchange, IDC_INDEX_COLOR, m_indexColor);
    for (const Field& field : m_fields) DDX_Control(exchange, static_cast<int>(field.id), *field.edit);
    DDX_Control(exchange, IDC_LAYER_LIST, m_layers);
}

BOOL CPropertiesDialog::OnInitDialog() {
    const BOOL result = CKtUiDialog::OnInitDialog();
    CString title;
    if (m_objects.empty())
        title.LoadString(IDS_TITLE_CURRENT);
    else
        title.Format(IDS_TITLE_OBJECTS, static_cast<int>(m_objects.size()));
    SetWindowText(title);
    m_layer.SetStyleMask(kKtUiEditNoBlank);
    m_elevation.SetStyleMask(kKtUiEditValidateOnKillFocus);
    m_thickness.SetStyleMask(kKtUiEditValidateOnKillFocus | kKtUiEditNoNegative);
    m_thickness.SetRange(0, kLargestThickness);
    m_rotation.SetStyleMask(kKtUiEditValidateOnKillFocus);
    fillFields();
    fillLayers();
    registerResizing();
    return result;
}

void CPropertiesDialog::fillFields() {
    const PropertyValues values = ReadProperties(m_drawing, m_objects);
    if (values.color) showColor(*values.color);
    const auto fill = [&](unsigned id, const CString& text) {
        Field& field = fieldOf(id);
        field.edit->SetWindowText(text);
        field.before = text;
    };
    if (values.layer) fill(IDC_LAYER, values.layer->c_str());
    if (values.hyperlink) fill(IDC_HYPERLINK, values.hyperlink->c_str());
    if (values.elevation) fill(IDC_ELEVATION, formatDistance(*values.elevation));
    if (values.thickness) fill(IDC_THICKNESS, formatDistance(*values.thickness));
    if (values.rotation) fill(IDC_ROTATION, formatAngle(*values.rotation));
    m_rotation.EnableWindow(values.hasRotation);
    m_hyperlink.EnableWindow(values.hasHyperlink);
    SetDlgItemText(IDC_MESSAGE, L"");
}

void CPropertiesDialog::fillLayers() {
    constexpr struct {
        UINT title;
        int width;
    } kColumns[] = {{IDS_COLUMN_LAYER, 110},
                    {IDS_COLUMN_COLOR, 80},
                    {IDS_COLUMN_LINETYPE, 90},
                    {IDS_COLUMN_DESCRIPTION, 80}};
    int column = 0;
    for (const auto& each : kColumns) {
        CString title;
        title.LoadString(each.title);
        m_layers.InsertColumn(column++, title, LVCFMT_LEFT, each.width);
    }
    OdDbLayerTablePtr table;
    m_drawing.getLayerTable(table);
    int row = 0;
    for (auto walk = table->newIterator(); !walk->done(); walk->step()) {
        OdDbSymbolTableRecordPtr record;
        walk->getRecord(record);
        const auto* layer = dynamic_cast<const OdDbLayerTableRecord*>(record.get());
        if (layer == nullptr) continue;
        m_layers.InsertItem(row, layer->getName());
        m_layers.SetItemText(row, 1, ktutColorToStr(layer->color()));
        m_layers.SetItemText(row, 2, layerLinetype(*layer));
        m_layers.SetItemText(row, 3, layer->plotStyleName());
        ++row;
    }
    GetColumnSizes(&m_layers);
}

void CPropertiesDialog::registerResizing() {
    for (const unsigned id : {IDC_GROUP_GENERAL, IDC_GROUP_GEOMETRY, IDC_LAYER, IDC_HYPERLINK, IDC_MESSAGE})
        StretchControlX(id, 100);
    StretchControlXY(IDC_LAYER_LIST, 100, 100);
    MoveControlY(IDC_MESSAGE, 100);
    for (const unsigned id : {IDOK, IDCANCEL, IDHELP}) MoveControlXY(id, 100, 100);
}

CPropertiesDialog::Field& CPropertiesDialog::fieldOf(unsigned id) {
    for (Field& field : m_fields)
        if (field.id == id) return field;
    return m_fields.front();
}

CString CPropertiesDialog::textOf(const Field& field) const {
    CString text;
    field.edit->GetWindowText(text);
    return text;
}

KBUI_REPLY CPropertiesDialog::OnNotifyControlValid(unsigned id, int valid) {
    const Field& field = fieldOf(id);
    field.edit->Invalidate();
    if (valid)
        SetDlgItemText(IDC_MESSAGE, L"");
    else if (isEdited(field))
        showProblem(field);
    return kKbUiReplyHandled;
}

void CPropertiesDialog::showProblem(const Field& field) {
    CString format, text;
    format.LoadString(field.badText);
    if (field.id == IDC_THICKNESS)
        text.Format(format, formatDistance(kLargestThickness).GetString());
    else if (field.id == IDC_ELEVATION)
        text.Format(format, formatDistance(12.5).GetString());
    else if (field.id == IDC_ROTATION)
        text.Format(format, formatAngle(0.7853981633974483).GetString());
    else
        text = format;
    SetDlgItemText(IDC_MESSAGE, text);
}

HBRUSH CPropertiesDialog::OnCtlColor(CDC* dc, CWnd* control, UINT kind) {
    HBRUSH brush = CKtUiDialog::OnCtlColor(dc, control, kind);
    const int id = control->GetDlgCtrlID();
    if (kind == CTLCOLOR_STATIC && id == IDC_MESSAGE) {
        dc->SetTextColor(kInvalidInk);
        return brush;
    }
    if (kind != CTLCOLOR_EDIT) return brush;
    for (const Field& field : m_fields) {
        if (field.edit->m_hWnd != control->m_hWnd || !isEdited(field) || field.edit->Validate()) continue;
        dc->SetBkColor(kInvalidPaper);
        return m_invalidBrush;
    }
    return brush;
}

void CPropertiesDialog::showColor(const OdCmColor& color) {
    m_trueColor.SetCurSel(m_trueColor.AddColorToMRU(color));
    m_indexColor.SetCurSel(color.isByACI() ? m_indexColor.AddColorToMRU(color.colorIndex()) : -1);
}

void CPropertiesDialog::OnTrueColor() {
    if (m_trueColor.GetCurrentItemCargo() < 0) return;
    OdCmColor color;
    m_trueColor.GetCurrentItemColor(color);
    m_indexColor.SetCurSel(color.isByACI() ? m_indexColor.AddColorToMRU(color.colorIndex()) : -1);
    m_colorPicked = true;
}

void CPropertiesDialog::OnIndexColor() {
    const __int64 index = m_indexColor.GetCurrentItemColorIndex();
    if (index < 0) return;
    OdCmColor color;
    color.setColorIndex(static_cast<int>(index));
    m_trueColor.SetCurSel(m_trueColor.AddColorToMRU(color));
    m_colorPicked = true;
}

CPropertiesDialog::Field* CPropertiesDialog::firstInvalid() {
    for (Field& field : m_fields)
        if (field.edit->IsWindowEnabled() && isEdited(field) && !field.edit->Validate()) return &field;
    return nullptr;
}

PropertyValues CPropertiesDialog::editedValues() {
    PropertyValues values;
    if (m_colorPicked && m_trueColor.GetCurrentItemCargo() >= 0) {
        OdCmColor color;
        m_trueColor.GetCurrentItemColor(color);
        values.color = color;
    }
    for (const Field& field : m_fields) {
        if (!isEdited(field)) continue;
        const CString text = textOf(field);
        double number = 0;
        switch (field.id) {
            case IDC_LAYER: values.layer = OdString(text); break;
            case IDC_HYPERLINK: values.hyperlink = OdString(text); break;
            case IDC_ROTATION:
                if (ktdbAngToF2(1, text, -1, &number) == kKtdbOk) values.rotation = number;
                break;
            default:
                if (ktdbDisToF(text, -1, &number) != kKtdbOk) break;
                (field.id == IDC_ELEVATION ? values.elevation : values.thickness) = number;
        }
    }
    return values;
}

void CPropertiesDialog::OnOK() {
    if (const Field* bad = firstInvalid()) {
        showProblem(*bad);
        KbUiNotify(*this, bad->id, kKbUiNotifySetFocusToControl, 0);
        return;
    }
    WriteProperties(m_drawing, m_objects, editedValues());
    SaveColumnSizes(&m_layers);
    CKtUiDialog::OnOK();
}
