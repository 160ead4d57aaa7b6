#include "color_dialog.h"

#include <wchar.h>

#include "dialog_items.h"
#include "resource.h"

namespace {

// The palette: indexes 10 to 249 in ten rows of 24 hues, below them 1 to 9 and the greys 250 to 255.
constexpr int kHues = 24;
constexpr int kShades = 10;
constexpr int kRows = kShades + 2;
constexpr int kPlainFirst = 1, kPlainLast = 9, kGreyFirst = 250, kGreyLast = 255;
constexpr int kGreyColumn = 12;

}  // namespace

IMPLEMENT_DYNAMIC(CStandinColorDialog, CDialog)

BEGIN_MESSAGE_MAP(CStandinColorDialog, CDialog)
    ON_WM_DRAWITEM()
    ON_STN_CLICKED(IDC_COLOR_PALETTE, &CStandinColorDialog::OnPalette)
    ON_BN_CLICKED(IDC_COLOR_BYLAYER, &CStandinColorDialog::OnByLayer)
    ON_BN_CLICKED(IDC_COLOR_BYBLOCK, &CStandinColorDialog::OnByBlock)
    ON_EN_CHANGE(IDC_COLOR_INDEX, &CStandinColorDialog::OnIndexChange)
    ON_EN_CHANGE(IDC_COLOR_RED, &CStandinColorDialog::OnRgbChange)
    ON_EN_CHANGE(IDC_COLOR_GREEN, &CStandinColorDialog::OnRgbChange)
    ON_EN_CHANGE(IDC_COLOR_BLUE, &CStandinColorDialog::OnRgbChange)
END_MESSAGE_MAP()

CStandinColorDialog::CStandinColorDialog(ColorDialogSettings& settings, CWnd* parent)
    : CDialog(IDD_COLOR, parent), m_settings(settings), m_color(settings.color) {}

BOOL CStandinColorDialog::OnInitDialog() {
    const bool isWhole = HasDialogItems(
        *this, {IDC_COLOR_PALETTE, IDC_COLOR_SAMPLE, IDC_COLOR_BYLAYER, IDC_COLOR_BYBLOCK, IDC_COLOR_INDEX,
                IDC_COLOR_RGB_LABEL, IDC_COLOR_RED, IDC_COLOR_GREEN, IDC_COLOR_BLUE});
    if (!CDialog::OnInitDialog() || !isWhole) {
        EndDialog(-1);
        return FALSE;
    }
    GetDlgItem(IDC_COLOR_BYLAYER)->EnableWindow(m_settings.allowMeta);
    GetDlgItem(IDC_COLOR_BYBLOCK)->EnableWindow(m_settings.allowMeta);
    if (!m_settings.allowTrueColor) {
        for (const int id : {IDC_COLOR_RGB_LABEL, IDC_COLOR_RED, IDC_COLOR_GREEN, IDC_COLOR_BLUE})
            GetDlgItem(id)->ShowWindow(SW_HIDE);
    }
    showColor();
    CWnd* index = GetDlgItem(IDC_COLOR_INDEX);
    index->SetFocus();
    index->SendMessage(EM_SETSEL, 0, -1);
    return FALSE;
}

void CStandinColorDialog::OnOK() {
    if (const int field = takeColor()) {
        refuse(field);
        return;
    }
    m_settings.color = m_color;
    CDialog::OnOK();
}

void CStandinColorDialog::refuse(int field) {
    AfxMessageBox(field == IDC_COLOR_INDEX ? IDS_COLOR_REFUSED : IDS_COLOR_PART_REFUSED, MB_ICONINFORMATION);
    CWnd* control = GetDlgItem(field);
    control->SetFocus();
    control->SendMessage(EM_SETSEL, 0, -1);
}

void CStandinColorDialog::OnDrawItem(int id, LPDRAWITEMSTRUCT item) {
    CDC* dc = CDC::FromHandle(item->hDC);
    const CRect area(item->rcItem);
    if (id == IDC_COLOR_PALETTE) {
        drawPalette(*dc, area);
        return;
    }
    dc->FillSolidRect(&area, ::GetSysColor(COLOR_BTNTEXT));
    CRect inner = area;
    inner.DeflateRect(1, 1);
    dc->FillSolidRect(&inner, shown(m_color));
}

void CStandinColorDialog::OnPalette() {
    CPoint point;
    CRect area;
    ::GetCursorPos(&point);
    CWnd* palette = GetDlgItem(IDC_COLOR_PALETTE);
    palette->ScreenToClient(&point);
    palette->GetClientRect(&area);
    const int index = indexAt(point, area);
    if (index == 0) return;
    OdCmColor color;
    color.setColorIndex(index);
    choose(color);
}

void CStandinColorDialog::OnByLayer() {
    OdCmColor color;
    color.setColorIndex(OdCmColor::kByLayerIndex);
    choose(color);
}

void CStandinColorDialog::OnByBlock() {
    OdCmColor color;
    color.setColorIndex(OdCmColor::kByBlockIndex);
    choose(color);
}

void CStandinColorDialog::OnIndexChange() {
    if (m_filling) return;
    m_source = Source::kIndex;
    takeColor();
    GetDlgItem(IDC_COLOR_SAMPLE)->Invalidate();
    GetDlgItem(IDC_COLOR_PALETTE)->Invalidate(FALSE);
}

void CStandinColorDialog::OnRgbChange() {
    if (m_filling) return;
    m_source = Source::kParts;
    takeColor();
    m_filling = true;
    SetDlgItemText(IDC_COLOR_INDEX, L"");
    m_filling = false;
    GetDlgItem(IDC_COLOR_SAMPLE)->Invalidate();
}

int CStandinColorDialog::takeColor() { return m_source == Source::kIndex ? takeIndex() : takeParts(); }

int CStandinColorDialog::takeIndex() {
    CString text;
    GetDlgItemText(IDC_COLOR_INDEX, text);
    text.Trim();
    wchar_t* end = nullptr;
    long index = wcstol(text, &end, 10);
    bool valid = !text.IsEmpty() && *end == 0 && index >= kPlainFirst && index <= kGreyLast;
    if (m_settings.allowMeta && text.CompareNoCase(L"ByLayer") == 0) {
        index = OdCmColor::kByLayerIndex;
        valid = true;
    } else if (m_settings.allowMeta && text.CompareNoCase(L"ByBlock") == 0) {
        index = OdCmColor::kByBlockIndex;
        valid = true;
    }
    if (!valid) return IDC_COLOR_INDEX;
    if (!m_color.isByACI() || m_color.colorIndex() != index) m_color.setColorIndex(static_cast<int>(index));
    return 0;
}

int CStandinColorDialog::takeParts() {
    constexpr UINT kMostOfAPart = 255;
    BYTE parts[3] = {};
    int at = 0;
    for (const int id : {IDC_COLOR_RED, IDC_COLOR_GREEN, IDC_COLOR_BLUE}) {
        BOOL isNumber = FALSE;
        const UINT value = GetDlgItemInt(id, &isNumber, FALSE);
        if (!isNumber || value > kMostOfAPart) return id;
        parts[at++] = static_cast<BYTE>(value);
    }
    // A colour that the fields show already keeps its name.
    const bool isShown = !m_color.isByACI() && m_color.red() == parts[0] && m_color.green() == parts[1] &&
                         m_color.blue() == parts[2];
    if (!isShown) m_color.setRGB(parts[0], parts[1], parts[2]);
    return 0;
}

void CStandinColorDialog::choose(const OdCmColor& color) {
    m_color = color;
    showColor();
}

void CStandinColorDialog::showColor() {
    m_source = m_color.isByACI() || !m_settings.allowTrueColor ? Source::kIndex : Source::kParts;
    m_filling = true;
    CString index;
    if (m_color.isByLayer())
        index = L"ByLayer";
    else if (m_color.isByBlock())
        index = L"ByBlock";
    else if (m_color.isByACI())
        index.Format(L"%d", m_color.colorIndex());
    SetDlgItemText(IDC_COLOR_INDEX, index);
    const COLORREF rgb = shown(m_color);
    SetDlgItemInt(IDC_COLOR_RED, GetRValue(rgb), FALSE);
    SetDlgItemInt(IDC_COLOR_GREEN, GetGValue(rgb), FALSE);
    SetDlgItemInt(IDC_COLOR_BLUE, GetBValue(rgb), FALSE);
    m_filling = false;
    GetDlgItem(IDC_COLOR_SAMPLE)->Invalidate();
    GetDlgItem(IDC_COLOR_PALETTE)->Invalidate(FALSE);
}

COLORREF CStandinColorDialog::shown(const OdCmColor& color) const {
    const OdCmColor& visible = color.isByLayer() ? m_settings.layerColor : color;
    if (!visible.isByACI()) return visible.color();
    const int index =
        visible.isByBlock() || visible.isByLayer() ? OdCmColor::kForeground : visible.colorIndex();
    return odcmLookupRGB(index, m_settings.palette);
}

CRect CStandinColorDialog::cellOf(int index, const CRect& area) const {
    int row, column;
    if (index >= kGreyFirst) {
        row = kRows - 1;
        column = kGreyColumn + index - kGreyFirst;
    } else if (index <= kPlainLast) {
        row = kRows - 1;
        column = index - kPlainFirst;
    } else {
        column = index / 10 - 1;
        // Odd indexes are pale: they lie above, from pale to full; the even ones below, from full to dark.
        const int shade = index % 10;
        row = shade % 2 ? 4 - shade / 2 : 5 + shade / 2;
    }
    const int width = area.Width() / kHues, height = area.Height() / kRows;
    return CRect(CPoint(area.left + column * width, area.top + row * height), CSize(width, height));
}

int CStandinColorDialog::indexAt(CPoint point, const CRect& area) const {
    for (int index = 1; index <= 255; ++index)
        if (cellOf(index, area).PtInRect(point)) return index;
    return 0;
}

void CStandinColorDialog::drawPalette(CDC& dc, const CRect& area) {
    dc.FillSolidRect(&area, ::GetSysColor(COLOR_BTNFACE));
    for (int index = 1; index <= 255; ++index) {
        CRect cell = cellOf(index, area);
        const bool chosen = m_color.isByACI() && m_color.colorIndex() == index;
        if (chosen) dc.FillSolidRect(&cell, ::GetSysColor(COLOR_WINDOWTEXT));
        cell.DeflateRect(1, 1);
        if (chosen) {
            dc.FillSolidRect(&cell, ::GetSysColor(COLOR_WINDOW));
            cell.DeflateRect(1, 1);
        }
        dc.FillSolidRect(&cell, odcmLookupRGB(index, m_settings.palette));
    }
}
