#include "picker_bar.h"

#include <utility>

#include <ktdb.h>

#include "resource.h"

IMPLEMENT_DYNAMIC(CPickerBar, CKtUiDialogBar)

BOOL CPickerBar::CreateBar(CWnd* frame) {
    if (!Create(frame, IDD_PICKER_BAR, CBRS_TOP, AFX_IDW_DIALOGBAR)) return FALSE;
    bindPickers();
    addTips();
    return TRUE;
}

void CPickerBar::bindPickers() {
    m_color.SubclassDlgItem(IDC_TRUE_COLOR, this);
    m_linetype.SubclassDlgItem(IDC_LINETYPE, this);
    m_lineWeight.SubclassDlgItem(IDC_LINE_WEIGHT, this);
    m_plotStyle.SubclassDlgItem(IDC_PLOT_STYLE, this);
}

void CPickerBar::addTips() {
    const struct {
        CWnd& picker;
        UINT text;
    } tips[] = {{m_color, IDS_TIP_COLOR},
                {m_linetype, IDS_TIP_LINETYPE},
                {m_lineWeight, IDS_TIP_WEIGHT},
                {m_plotStyle, IDS_TIP_PLOT_STYLE}};
    for (const auto& each : tips) {
        CString text;
        text.LoadString(each.text);
        if (m_toolTip != nullptr) m_toolTip->AddTool(&each.picker, text);
    }
}

void CPickerBar::fillLists() {
    m_linetype.ShowLTypes(true);
    m_plotStyle.ResetContent();
    m_plotStyle.AddItems();
}

void CPickerBar::Show(OdDbDatabase& drawing, std::vector<OdDbObjectId> objects) {
    m_showing = true;
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
    m_showing = false;
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
    }
    return values;
}

BOOL CPickerBar::OnCommand(WPARAM wParam, LPARAM lParam) {
    const BOOL result = CKtUiDialogBar::OnCommand(wParam, lParam);
    const bool chosen = HIWORD(wParam) == CBN_SELENDOK || HIWORD(wParam) == CBN_CLOSEUP;
    if (m_showing || !chosen || m_drawing == nullptr) return result;
    const PropertyValues values = picked(LOWORD(wParam));
    if (!values.color && !values.linetype && !values.lineWeight && !values.plotStyle) return result;
    WriteProperties(*m_drawing, m_objects, values);
    m_changed();
    return TRUE;
}
