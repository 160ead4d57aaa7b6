#include "color_dialog.h"

#include <wchar.h>

#include "dialog_items.h"
#include "resource.h"
#include "standin_message.h"

namespace {

constexpr int kFirstIndex = 1, kLastIndex = 255;

}  // namespace

IMPLEMENT_DYNAMIC(CStandinColorDialog, CDialog)

BEGIN_MESSAGE_MAP(CStandinColorDialog, CDialog)
    ON_WM_DRAWITEM()
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
    m_palette.SubclassDlgItem(IDC_COLOR_PALETTE, this);
    m_palette.Prepare(m_settings.palette, [this](int index) { chooseIndex(index); });
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
    ShowStandinMessage(field == IDC_COLOR_INDEX ? IDS_COLOR_REFUSED : IDS_COLOR_PART_REFUSED,
                       MB_ICONINFORMATION);
    CWnd* control = GetDlgItem(field);
    control->SetFocus();
    control->SendMessage(EM_SETSEL, 0, -1);
}

void CStandinColorDialog::OnDrawItem(int id, LPDRAWITEMSTRUCT item) {
    if (id != IDC_COLOR_SAMPLE) {
        CDialog::OnDrawItem(id, item);
        return;
    }
    CDC* dc = CDC::FromHandle(item->hDC);
    CRect area(item->rcItem);
    dc->FillSolidRect(&area, ::GetSysColor(COLOR_BTNTEXT));
    area.DeflateRect(1, 1);
    dc->FillSolidRect(&area, shown(m_color));
}

void CStandinColorDialog::chooseIndex(int index) {
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
    if (takeColor() == 0) showParts();
    showSample();
}

void CStandinColorDialog::OnRgbChange() {
    if (m_filling) return;
    m_source = Source::kParts;
    takeColor();
    m_filling = true;
    SetDlgItemText(IDC_COLOR_INDEX, L"");
    m_filling = false;
    showSample();
}

int CStandinColorDialog::takeColor() { return m_source == Source::kIndex ? takeIndex() : takeParts(); }

int CStandinColorDialog::takeIndex() {
    CString text;
    GetDlgItemText(IDC_COLOR_INDEX, text);
    text.Trim();
    wchar_t* end = nullptr;
    long index = wcstol(text, &end, 10);
    bool valid = !text.IsEmpty() && *end == 0 && index >= kFirstIndex && index <= kLastIndex;
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
    m_filling = false;
    showParts();
    showSample();
}

/// Red, green and blue follow the color.
void CStandinColorDialog::showParts() {
    const COLORREF rgb = shown(m_color);
    m_filling = true;
    SetDlgItemInt(IDC_COLOR_RED, GetRValue(rgb), FALSE);
    SetDlgItemInt(IDC_COLOR_GREEN, GetGValue(rgb), FALSE);
    SetDlgItemInt(IDC_COLOR_BLUE, GetBValue(rgb), FALSE);
    m_filling = false;
}

void CStandinColorDialog::showSample() {
    GetDlgItem(IDC_COLOR_SAMPLE)->Invalidate();
    const bool isIndexed = m_color.isByACI() && !m_color.isByLayer() && !m_color.isByBlock();
    m_palette.Select(isIndexed ? m_color.colorIndex() : 0);
}

COLORREF CStandinColorDialog::shown(const OdCmColor& color) const {
    const OdCmColor& visible = color.isByLayer() ? m_settings.layerColor : color;
    if (!visible.isByACI()) return visible.color();
    const int index =
        visible.isByBlock() || visible.isByLayer() ? OdCmColor::kForeground : visible.colorIndex();
    return odcmLookupRGB(index, m_settings.palette);
}
