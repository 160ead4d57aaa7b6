#include "measure_dialog.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "measurement.h"
#include "path_measure.h"
#include "resource.h"
#include "resource_text.h"
#include "unit_texts.h"

namespace {

constexpr UINT kSceneMessage = WM_APP + 1;
// What is drawn at once to be measured, in the measure of SceneOptions::workLimit.
constexpr std::size_t kWorkAtOnce = 400'000;

// What is drawn for these is no length that anybody means.
constexpr std::string_view kWithoutLength[] = {"HATCH", "TEXT", "MTEXT", "ATTDEF", "TOLERANCE", "DIMENSION"};

std::shared_ptr<const std::set<OdDbObjectId>> measurable(const std::set<OdDbObjectId>& objects) {
    auto found = std::make_shared<std::set<OdDbObjectId>>();
    for (const OdDbObjectId& id : objects) {
        const auto entity = id.open<OdDbEntity>();
        if (entity && std::ranges::find(kWithoutLength, entity->dxfName()) == std::end(kWithoutLength))
            found->insert(id);
    }
    return found;
}

}  // namespace

IMPLEMENT_DYNAMIC(CMeasureDialog, CKtUiDialog)

BEGIN_MESSAGE_MAP(CMeasureDialog, CKtUiDialog)
    ON_BN_CLICKED(IDC_PICK_DISTANCE, &CMeasureDialog::OnPickDistance)
    ON_BN_CLICKED(IDC_PICK_ANGLE, &CMeasureDialog::OnPickAngle)
    ON_BN_CLICKED(IDC_SELECT_OBJECTS, &CMeasureDialog::OnSelectObjects)
    ON_MESSAGE(kSceneMessage, &CMeasureDialog::OnScene)
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
    dropBuild();
    m_measured = measurable(objects);
    SceneOptions options;
    options.only = m_measured;
    options.polylineWidths = false;
    const std::size_t limit = std::exchange(options.workLimit, kWorkAtOnce);
    const OdDbObjectId space = m_drawing.currentSpaceId();
    const Scene scene = BuildScene(m_drawing, space, options);
    if (!scene.isCut) return showLength(scene);
    options.workLimit = limit;
    SetDlgItemText(IDC_MEASURED_LENGTH, L"\x2026");
    m_build = std::make_unique<CSceneBuild>(m_drawing, space, std::move(options), m_hWnd, kSceneMessage);
}

/// Of more than is ever drawn nobody could tell the length.
void CMeasureDialog::showLength(const Scene& scene) {
    const CString length =
        scene.isCut ? textOf(IDS_MEASURED_TOO_MUCH) : FormatDistance(TotalLength(scene, *m_measured));
    SetDlgItemText(IDC_MEASURED_LENGTH, length);
}

void CMeasureDialog::dropBuild() {
    if (!m_build) return;
    m_build.reset();
    SetDlgItemText(IDC_MEASURED_LENGTH, L"");
}

LRESULT CMeasureDialog::OnScene(WPARAM wParam, LPARAM) {
    if (!m_build || m_build->number() != wParam) return 0;
    Scene scene;
    SceneBounds bounds;
    m_build->Take(scene, bounds);
    m_build.reset();
    showLength(scene);
    return 0;
}
