#include "picker_bar.h"

#include <utility>

#include <ktdb.h>

#include "layer_list.h"
#include "resource.h"

namespace {

constexpr struct {
    UINT id;
    UINT name;  ///< of what it picks: its tip, and what the menu offers to undo
} kPickers[] = {{IDC_TRUE_COLOR, IDS_TIP_COLOR},
                {IDC_LINETYPE, IDS_TIP_LINETYPE},
                {IDC_LINE_WEIGHT, IDS_TIP_WEIGHT},
                {IDC_PLOT_STYLE, IDS_TIP_PLOT_STYLE},
                {IDC_LAYER, IDS_TIP_LAYER}};

constexpr int kInOrder[] = {IDC_TRUE_COLOR, IDC_LINETYPE, IDC_LINE_WEIGHT,
                            IDC_PLOT_STYLE, IDC_LAYER,    IDC_LAYER_SEARCH};

/// The height to be given to a control so that it stays what it is: that of a combo box counts its list.
int heightOf(CWnd& control) {
    CRect rect;
    if (control.SendMessage(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&rect)) == 0)
        control.GetWindowRect(&rect);
    return rect.Height();
}

}  // namespace

IMPLEMENT_DYNAMIC(CPickerBar, CKtUiDialogBar)

BEGIN_MESSAGE_MAP(CPickerBar, CKtUiDialogBar)
    ON_WM_SIZE()
END_MESSAGE_MAP()

BOOL CPickerBar::CreateBar(CWnd* frame) {
    if (!Create(frame, IDD_PICKER_BAR, CBRS_TOP, AFX_IDW_DIALOGBAR)) return FALSE;
    rememberTemplate();
    bindPickers();
    addTips();
    return TRUE;
}

void CPickerBar::bindPickers() {
    m_color.SubclassDlgItem(IDC_TRUE_COLOR, this);
    m_linetype.SubclassDlgItem(IDC_LINETYPE, this);
    m_lineWeight.SubclassDlgItem(IDC_LINE_WEIGHT, this);
    m_plotStyle.SubclassDlgItem(IDC_PLOT_STYLE, this);
    m_layer.SubclassDlgItem(IDC_LAYER, this);
    m_search.SubclassDlgItem(IDC_LAYER_SEARCH, this);
    CString prompt;
    prompt.LoadString(IDS_SEARCH_LAYERS);
    m_search.SetDefaultText(prompt);
    m_search.SetNotification(prompt);
    m_search.ClearEditor();
}

void CPickerBar::rememberTemplate() {
    std::vector<CRect> rects;
    for (const int id : kInOrder) {
        CRect rect;
        GetDlgItem(id)->GetWindowRect(&rect);
        ScreenToClient(&rect);
        rects.push_back(rect);
        m_widths.push_back(rect.Width());
    }
    m_edge = rects[0].left;
    m_gap = rects[1].left - rects[0].right;
    m_rowTop = rects[0].top;
    m_rowPitch = m_sizeDefault.cy;
}

std::vector<BarPlace> CPickerBar::placesIn(int room) const {
    return PlaceInRows(m_widths, room, m_edge, m_gap);
}

CSize CPickerBar::CalcFixedLayout(BOOL stretch, BOOL horizontal) {
    CSize size = CKtUiDialogBar::CalcFixedLayout(stretch, horizontal);
    CRect frame;
    GetParent()->GetClientRect(&frame);
    size.cy = m_rowPitch * RowCount(placesIn(frame.Width()));
    return size;
}

void CPickerBar::OnSize(UINT type, int cx, int cy) {
    CKtUiDialogBar::OnSize(type, cx, cy);
    std::size_t index = 0;
    for (const BarPlace& place : placesIn(cx)) {
        CWnd& picker = *GetDlgItem(kInOrder[index++]);
        CRect present;
        picker.GetWindowRect(&present);
        // The height of a drop-down list stays that of its template.
        const UINT keeps = present.Width() == place.width ? SWP_NOSIZE : 0;
        picker.SetWindowPos(nullptr, place.left, m_rowTop + place.row * m_rowPitch, place.width,
                            heightOf(picker), keeps | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void CPickerBar::addTips() {
    for (const auto& each : kPickers) {
        CString text;
        text.LoadString(each.name);
        if (m_toolTip != nullptr) m_toolTip->AddTool(GetDlgItem(static_cast<int>(each.id)), text);
    }
}

UINT CPickerBar::nameOf(UINT id) {
    for (const auto& each : kPickers)
        if (each.id == id) return each.name;
    return IDS_CHANGE_PROPERTIES;
}

void CPickerBar::fillLists() {
    m_linetype.ShowLTypes(true);
    RefillPlotStyles(m_plotStyle, *m_drawing);
}

void CPickerBar::fillLayers() {
    CString filter;
    if (!m_search.IsEditEmpty()) m_search.GetWindowText(filter);
    m_layer.Fill(*m_drawing, OdString(filter));
    m_layer.SetCurSel(-1);
    if (m_shown.layer) m_layer.Show(*m_shown.layer);
}

void CPickerBar::Show(OdDbDatabase& drawing, std::vector<OdDbObjectId> objects) {
    if (m_hWnd == nullptr) return;
    m_showing = true;
    if (m_drawing == nullptr) enablePickers(true);
    m_drawing = &drawing;
    m_objects = std::move(objects);
    fillLists();
    m_shown = ReadProperties(drawing, m_objects);
    m_color.SetCurSel(m_shown.color ? m_color.AddColorToMRU(*m_shown.color) : -1);
    if (m_shown.linetype)
        m_linetype.setCurSelByOID(*m_shown.linetype);
    else
        m_linetype.SetCurSel(-1);
    m_lineWeight.SetCurSel(m_shown.lineWeight ? m_lineWeight.FindItemByLineWeight(*m_shown.lineWeight) : -1);
    showPlotStyle(m_shown.plotStyle);
    m_shown.plotStyle = pickedPlotStyle();
    fillLayers();
    m_showing = false;
}

void CPickerBar::ShowNothing() {
    if (m_hWnd == nullptr) return;
    m_showing = true;
    m_drawing = nullptr;
    m_objects.clear();
    m_shown = {};
    for (CComboBox* picker :
         std::initializer_list<CComboBox*>{&m_color, &m_linetype, &m_lineWeight, &m_plotStyle, &m_layer})
        picker->SetCurSel(-1);
    m_search.ClearEditor();
    enablePickers(false);
    m_showing = false;
}

void CPickerBar::enablePickers(bool enable) {
    for (const int id : kInOrder) GetDlgItem(id)->EnableWindow(enable);
}

void CPickerBar::showPlotStyle(const std::optional<OdString>& name) {
    const bool byColor = m_drawing->getPSTYLEMODE() != 0;
    m_plotStyle.EnableWindow(!byColor);
    if (byColor) {
        m_plotStyle.ResetContent();
        m_plotStyle.SetColorDependentMode();
        return;
    }
    if (!name) {
        m_plotStyle.SetCurSel(-1);
        return;
    }
    const bool isNormal = ktdbIsReservedString(*name, kKtdbNormal);
    const OdString shown = isNormal ? ktdbGetReservedString(kKtdbNormal, true) : *name;
    const int item = m_plotStyle.FindStringExact(-1, shown);
    m_plotStyle.SetCurSel(item >= 0 ? item : m_plotStyle.AddString(shown));
}

std::optional<OdString> CPickerBar::pickedPlotStyle() {
    if (!m_plotStyle.IsWindowEnabled() || m_plotStyle.GetCurSel() < 0) return {};
    CString text;
    m_plotStyle.GetLBText(m_plotStyle.GetCurSel(), text);
    return ktdbIsReservedString(text, kKtdbNormal) ? ktdbGetReservedString(kKtdbNormal, false)
                                                   : OdString(text);
}

PropertyValues CPickerBar::picked(UINT id) {
    PropertyValues values;
    if (id == IDC_TRUE_COLOR && m_color.GetCurrentItemCargo() >= 0) {
        OdCmColor color;
        m_color.GetCurrentItemColor(color);
        if (!(m_shown.color && *m_shown.color == color)) values.color = color;
    } else if (id == IDC_LINETYPE) {
        values.linetype = m_linetype.Picked();
        if (values.linetype == m_shown.linetype) values.linetype.reset();
    } else if (id == IDC_LINE_WEIGHT) {
        values.lineWeight = m_lineWeight.Picked();
        if (values.lineWeight == m_shown.lineWeight) values.lineWeight.reset();
    } else if (id == IDC_PLOT_STYLE) {
        values.plotStyle = pickedPlotStyle();
        if (values.plotStyle && m_shown.plotStyle && m_shown.plotStyle->iCompare(*values.plotStyle) == 0)
            values.plotStyle.reset();
    } else if (id == IDC_LAYER) {
        values.layer = m_layer.Picked();
        if (values.layer == m_shown.layer) values.layer.reset();
    }
    return values;
}

void CPickerBar::allowTips(bool allow) {
    if (m_toolTip == nullptr) return;
    // For Wine, where a tip that waits comes up although tips are off: the pointer is told to be elsewhere.
    MSG elsewhere = {m_hWnd, WM_MOUSEMOVE, 0, 0, ::GetTickCount(), {}};
    if (!allow) m_toolTip->RelayEvent(&elsewhere);
    m_toolTip->Activate(allow);
}

BOOL CPickerBar::OnCommand(WPARAM wParam, LPARAM lParam) {
    const BOOL result = CKtUiDialogBar::OnCommand(wParam, lParam);
    // A tip would lie on the list.
    if (HIWORD(wParam) == CBN_DROPDOWN) allowTips(false);
    if (HIWORD(wParam) == CBN_CLOSEUP) allowTips(true);
    if (m_showing || m_drawing == nullptr) return result;
    if (LOWORD(wParam) == IDC_LAYER_SEARCH && HIWORD(wParam) == EN_CHANGE) {
        m_showing = true;
        fillLayers();
        m_showing = false;
        return TRUE;
    }
    const bool chosen = HIWORD(wParam) == CBN_SELENDOK || HIWORD(wParam) == CBN_CLOSEUP;
    return chosen && write(picked(LOWORD(wParam)), nameOf(LOWORD(wParam))) ? TRUE : result;
}

bool CPickerBar::write(const PropertyValues& values, UINT name) {
    if (!values.color && !values.linetype && !values.lineWeight && !values.plotStyle && !values.layer)
        return false;
    WriteProperties(*m_drawing, m_objects, values);
    m_changed(name);
    return true;
}

BOOL CPickerBar::PreTranslateMessage(MSG* message) {
    const CWnd* focus = GetFocus();
    const bool isSearching = focus != nullptr && (focus == &m_search || focus->GetParent() == &m_search);
    if (isSearching && message->message == WM_KEYDOWN && searchByKey(static_cast<UINT>(message->wParam)))
        return TRUE;
    return CKtUiDialogBar::PreTranslateMessage(message);
}

/// Serves the keys that mean something for the search; false for one that the box or the bar takes.
bool CPickerBar::searchByKey(UINT key) {
    switch (key) {
        case VK_ESCAPE:
            m_search.ClearEditor();
            GetParentFrame()->SetFocus();
            return true;
        case VK_DOWN:
            m_layer.SetFocus();
            m_layer.ShowDropDown(TRUE);
            return true;
        case VK_RETURN: {
            PropertyValues values;
            if (const auto first = firstFound()) values.layer = first;
            if (values.layer == m_shown.layer) values.layer.reset();
            m_search.ClearEditor();
            if (m_drawing != nullptr) write(values, IDS_TIP_LAYER);
            return true;
        }
        default: return false;
    }
}

std::optional<OdString> CPickerBar::firstFound() {
    if (m_search.IsEditEmpty() || m_drawing == nullptr) return {};
    CString filter;
    m_search.GetWindowText(filter);
    const auto found = ListLayers(*m_drawing, OdString(filter));
    if (found.empty()) return {};
    return found.front().name;
}
