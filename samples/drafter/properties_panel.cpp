#include "properties_panel.h"

#include <utility>

#include "object_kinds.h"
#include "panel_keys.h"
#include "resource.h"

namespace {

constexpr struct {
    UINT control;
    UINT name;  ///< what the menu offers to undo
} kChanges[] = {{IDC_TRUE_COLOR, IDS_TIP_COLOR},
                {IDC_INDEX_COLOR, IDS_TIP_COLOR},
                {IDC_LINETYPE, IDS_TIP_LINETYPE},
                {IDC_LINE_WEIGHT, IDS_TIP_WEIGHT},
                {IDC_PLOT_STYLE, IDS_TIP_PLOT_STYLE},
                {IDC_LAYER, IDS_TIP_LAYER},
                {IDC_LINETYPE_SCALE, IDS_CHANGE_LINETYPE_SCALE},
                {IDC_HYPERLINK, IDS_CHANGE_HYPERLINK},
                {IDC_ELEVATION, IDS_CHANGE_ELEVATION},
                {IDC_THICKNESS, IDS_CHANGE_THICKNESS},
                {IDC_ROTATION, IDS_CHANGE_ROTATION}};

bool isEmpty(const PropertyValues& values) {
    return !values.color && !values.linetype && !values.linetypeScale && !values.lineWeight &&
           !values.plotStyle && !values.layer && !values.hyperlink && !values.elevation &&
           !values.thickness && !values.rotation;
}

}  // namespace

IMPLEMENT_DYNAMIC(CPropertiesPanel, CPropertyFields)

CPropertiesPanel::CPropertiesPanel(std::function<void(UINT name)> changed)
    : CPropertyFields(IDD_PROPERTIES_PANEL, L"PropertiesPalette", nullptr), m_changed(std::move(changed)) {}

BOOL CPropertiesPanel::OnInitDialog() {
    CPropertyFields::OnInitDialog();
    for (const auto& each : kChanges) StretchControlX(each.control, 100);
    for (const unsigned id : {IDC_PANEL_TITLE, IDC_MESSAGE}) StretchControlX(id, 100);
    // The drawing keeps the focus.
    return FALSE;
}

void CPropertiesPanel::showTitle() {
    CString title;
    title.LoadString(m_drawing != nullptr ? IDS_PANEL_CURRENT : IDS_NO_DRAWING);
    if (!m_objects.empty()) title = DescribeObjects(m_objects);
    SetDlgItemText(IDC_PANEL_TITLE, title);
}

void CPropertiesPanel::Show(OdDbDatabase& drawing, std::vector<OdDbObjectId> objects) {
    if (m_hWnd == nullptr) return;
    const bool wasBusy = std::exchange(m_isBusy, true);
    // What can't be written yet stays while other fields are.
    const bool isSame = m_drawing == &drawing && m_objects == objects;
    const std::vector<Entry> bad = isSame ? BadEntries() : std::vector<Entry>();
    m_drawing = &drawing;
    m_objects = std::move(objects);
    showTitle();
    enableFields(true);
    RefillLists(drawing);
    ShowValues(drawing, m_objects);
    TypeAgain(bad);
    m_isBusy = wasBusy;
}

void CPropertiesPanel::ShowNothing() {
    if (m_hWnd == nullptr) return;
    const bool wasBusy = std::exchange(m_isBusy, true);
    m_drawing = nullptr;
    m_objects.clear();
    showTitle();
    ClearValues();
    enableFields(false);
    m_isBusy = wasBusy;
}

void CPropertiesPanel::enableFields(bool enable) {
    for (const auto& each : kChanges) GetDlgItem(static_cast<int>(each.control))->EnableWindow(enable);
}

void CPropertiesPanel::write(UINT control) {
    if (m_isBusy || m_drawing == nullptr) return;
    const PropertyValues values = EnteredValues();
    if (isEmpty(values)) return;
    UINT name = IDS_CHANGE_PROPERTIES;
    for (const auto& each : kChanges)
        if (each.control == control) name = each.name;
    m_isBusy = true;
    WriteProperties(*m_drawing, m_objects, values);
    m_changed(name);
    m_isBusy = false;
}

void CPropertiesPanel::TakeTyped() {
    const HWND focus = ::GetFocus();
    if (m_hWnd != nullptr && ::GetParent(focus) == m_hWnd) write(static_cast<UINT>(::GetDlgCtrlID(focus)));
}

BOOL CPropertiesPanel::OnCommand(WPARAM wParam, LPARAM lParam) {
    const BOOL handled = CPropertyFields::OnCommand(wParam, lParam);
    if (lParam == 0) return handled;
    const UINT control = LOWORD(wParam), notification = HIWORD(wParam);
    // Edits and combo boxes have different numbers for what they tell.
    const bool isField = control == IDC_LINETYPE_SCALE || control == IDC_HYPERLINK ||
                         control == IDC_ELEVATION || control == IDC_THICKNESS || control == IDC_ROTATION;
    const bool isDone =
        isField ? notification == EN_KILLFOCUS : notification == CBN_SELENDOK || notification == CBN_CLOSEUP;
    if (isDone) write(control);
    return handled;
}

/// Enter writes what is being typed.
void CPropertiesPanel::OnOK() {
    CWnd* const focus = GetFocus();
    if (focus == nullptr || focus->GetParent() != this) return;
    TakeTyped();
    if (GetFocus() == focus) focus->SendMessage(EM_SETSEL, 0, -1);
}

/// Escape gives the field its former value back; where there is nothing to give back it goes to the drawing.
void CPropertiesPanel::OnCancel() {
    const HWND focus = ::GetFocus();
    if (focus != nullptr && RestoreField(static_cast<unsigned>(::GetDlgCtrlID(focus)))) return;
    AfxGetMainWnd()->SetFocus();
}

BOOL CPropertiesPanel::PreTranslateMessage(MSG* message) {
    return FrameTakesKey(*message) || CPropertyFields::PreTranslateMessage(message);
}
