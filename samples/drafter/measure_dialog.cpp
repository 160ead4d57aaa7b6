#include "measure_dialog.h"

#include "measurement.h"
#include "resource.h"
#include "unit_texts.h"

IMPLEMENT_DYNAMIC(CMeasureDialog, CKtUiDialog)

BEGIN_MESSAGE_MAP(CMeasureDialog, CKtUiDialog)
    ON_BN_CLICKED(IDC_PICK_DISTANCE, &CMeasureDialog::OnPickDistance)
    ON_BN_CLICKED(IDC_PICK_ANGLE, &CMeasureDialog::OnPickAngle)
    ON_BN_CLICKED(IDC_SELECT_OBJECTS, &CMeasureDialog::OnSelectObjects)
END_MESSAGE_MAP()

CMeasureDialog::CMeasureDialog(OdDbDatabase& drawing, CDrawingPicker& picker, CWnd* parent)
    : CKtUiDialog(IDD_MEASURE, parent, AfxGetInstanceHandle()), m_drawing(drawing), m_picker(picker) {
    SetDialogName(L"Measure");
}

BOOL CMeasureDialog::OnInitDialog() {
    const BOOL result = CKtUiDialog::OnInitDialog();
    const auto attach = [this](CKtUiPickButton& button, UINT id) {
        button.SubclassDlgItem(id, this);
        button.AutoLoad();
    };
    attach(m_pickDistance, IDC_PICK_DISTANCE);
    attach(m_pickAngle, IDC_PICK_ANGLE);
    attach(m_selectObjects, IDC_SELECT_OBJECTS);
    return result;
}

void CMeasureDialog::OnPickDistance() {
    BeginEditorCommand();
    m_picker.PickPlaces(2, IDS_PICK_FROM, [this](const std::vector<OdGePoint2d>& places) {
        CompleteEditorCommand(TRUE);
        if (places.size() < 2) return;
        const LineMeasure line = MeasureLine(places[0], places[1]);
        SetDlgItemText(IDC_MEASURED_DISTANCE, FormatDistance(line.distance));
        SetDlgItemText(IDC_MEASURED_DX, FormatDistance(line.dx));
        SetDlgItemText(IDC_MEASURED_DY, FormatDistance(line.dy));
        SetDlgItemText(IDC_MEASURED_DIRECTION, FormatAngle(line.direction));
    });
}

void CMeasureDialog::OnPickAngle() {
    BeginEditorCommand();
    m_picker.PickPlaces(3, IDS_PICK_VERTEX, [this](const std::vector<OdGePoint2d>& places) {
        CompleteEditorCommand(TRUE);
        if (places.size() < 3) return;
        SetDlgItemText(IDC_MEASURED_ANGLE, FormatTilt(MeasureAngle(places[0], places[1], places[2])));
    });
}

void CMeasureDialog::OnSelectObjects() {
    BeginEditorCommand();
    m_picker.PickObjects(IDS_PICK_OBJECTS, [this](const std::set<OdDbObjectId>* objects) {
        CompleteEditorCommand(TRUE);
        if (objects) showObjects(*objects);
    });
}

void CMeasureDialog::showObjects(const std::set<OdDbObjectId>& objects) {
    SetDlgItemInt(IDC_MEASURED_COUNT, static_cast<UINT>(objects.size()));
    const Scene scene = BuildScene(m_drawing, m_drawing.currentSpaceId());
    SetDlgItemText(IDC_MEASURED_LENGTH, FormatDistance(TotalLength(scene, objects)));
}
