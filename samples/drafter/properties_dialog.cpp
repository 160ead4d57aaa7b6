#include "properties_dialog.h"

#include <ktut.h>

#include "layer_list.h"
#include "measurement.h"
#include "object_kinds.h"
#include "resource.h"

namespace {

CString layerLinetype(const OdDbLayerTableRecord& layer) {
    const auto linetype = layer.linetypeObjectId().open<OdDbLinetypeTableRecord>();
    return linetype ? CString(linetype->getName().c_str()) : CString();
}

}  // namespace

IMPLEMENT_DYNAMIC(CPropertiesDialog, CPropertyFields)

BEGIN_MESSAGE_MAP(CPropertiesDialog, CPropertyFields)
    ON_BN_CLICKED(IDC_PICK_ROTATION, &CPropertiesDialog::OnPickRotation)
    ON_BN_CLICKED(IDC_SELECT_OBJECTS, &CPropertiesDialog::OnSelectObjects)
END_MESSAGE_MAP()

CPropertiesDialog::CPropertiesDialog(OdDbDatabase& drawing, std::vector<OdDbObjectId> objects, CWnd* parent,
                                     CDrawingPicker* picker)
    : CPropertyFields(IDD_PROPERTIES, L"Properties", parent),
      m_drawing(drawing),
      m_objects(std::move(objects)),
      m_picker(picker) {}

void CPropertiesDialog::DoDataExchange(CDataExchange* exchange) {
    CPropertyFields::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_LAYER_LIST, m_layers);
}

BOOL CPropertiesDialog::OnInitDialog() {
    const BOOL result = CPropertyFields::OnInitDialog();
    showTitle();
    attachPickButtons();
    fillFields();
    fillLayers();
    registerResizing();
    return result;
}

void CPropertiesDialog::showTitle() {
    CString title;
    if (m_objects.empty())
        title.LoadString(IDS_TITLE_CURRENT);
    else
        title.Format(IDS_TITLE_OBJECTS, DescribeObjects(m_objects).GetString());
    SetWindowText(title);
}

void CPropertiesDialog::fillFields() {
    ShowValues(m_drawing, m_objects);
    GetDlgItem(IDC_PICK_ROTATION)->EnableWindow(HasRotation() && m_picker != nullptr);
}

void CPropertiesDialog::fillLayers() {
    constexpr struct {
        UINT title;
        int width;
    } kColumns[] = {{IDS_COLUMN_LAYER, 150},
                    {IDS_COLUMN_COLOR, 100},
                    {IDS_COLUMN_LINETYPE, 140},
                    {IDS_COLUMN_DESCRIPTION, 140}};
    int column = 0;
    for (const auto& each : kColumns) {
        CString title;
        title.LoadString(each.title);
        m_layers.InsertColumn(column++, title, LVCFMT_LEFT, KtUiAppearancePixels(m_hWnd, each.width));
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
    ResizeRow(IDC_TRUE_COLOR, IDC_INDEX_LABEL, IDC_INDEX_COLOR);
    ResizeRow(IDC_LINETYPE, IDC_WEIGHT_LABEL, IDC_LINE_WEIGHT);
    ResizeRow(IDC_PLOT_STYLE, IDC_SCALE_LABEL, IDC_LINETYPE_SCALE);
    ResizeRow(IDC_ELEVATION, IDC_THICKNESS_LABEL, IDC_THICKNESS);
    ResizeRow(IDC_ROTATION, IDC_PICK_ROTATION, 0);
    ResizeRow(0, IDC_OBJECTS_LABEL, 0);
    ResizeRow(0, IDC_SELECT_OBJECTS, 0);
    MoveControlX(IDC_DROP_LABEL, 100);
    MoveControlX(IDC_DROP_LAYERS, 100);
    StretchControlXY(IDC_LAYER_LIST, 100, 100);
    ResizeFrame({IDC_GROUP_GENERAL, IDC_GROUP_GEOMETRY, IDC_LAYER, IDC_HYPERLINK});
}

void CPropertiesDialog::attachPickButtons() {
    m_pickRotation.SubclassDlgItem(IDC_PICK_ROTATION, this);
    m_pickRotation.AutoLoad();
    m_selectObjects.SubclassDlgItem(IDC_SELECT_OBJECTS, this);
    m_selectObjects.AutoLoad();
    m_selectObjects.EnableWindow(m_picker != nullptr);
    m_dropSite.Attach(IDC_DROP_LAYERS, this, [this](const OdDbDatabasePtr& drawing, const CString& words) {
        m_layersFrom = drawing;
        if (drawing)
            ShowNote(words);
        else
            ShowMessage(words);
    });
}

void CPropertiesDialog::OnPickRotation() {
    if (m_picker == nullptr) return;
    BeginEditorCommand();
    m_picker->PickPlaces(2, IDS_PICK_FROM, [this](const std::vector<OdGePoint2d>& places) {
        CompleteEditorCommand(TRUE);
        if (places.size() < 2) return;
        SetRotation(MeasureLine(places[0], places[1]).direction);
    });
}

void CPropertiesDialog::OnSelectObjects() {
    if (m_picker == nullptr) return;
    BeginEditorCommand();
    m_picker->PickObjects(IDS_PICK_OBJECTS, [this](const std::set<OdDbObjectId>* objects) {
        CompleteEditorCommand(TRUE);
        if (objects == nullptr) return;
        m_objects.assign(objects->begin(), objects->end());
        showTitle();
        fillFields();
    });
}

void CPropertiesDialog::Apply() {
    const PropertyValues values = EnteredValues();
    if (m_layersFrom) TakeLayers(m_drawing, *m_layersFrom);
    WriteProperties(m_drawing, m_objects, values);
    SaveColumnSizes(&m_layers);
}
