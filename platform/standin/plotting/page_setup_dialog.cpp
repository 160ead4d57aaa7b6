#include "plotting/page_setup_dialog.h"

#include <od_db.h>

#include <cmath>
#include <cwchar>

#include "dialog_items.h"
#include "resource.h"
#include "standin_message.h"

namespace {

/// A size of paper, upright, in millimetres.
struct Paper {
    const wchar_t* name;
    double width, height;
};
constexpr Paper kPapers[] = {
    {L"A4", 210, 297},  {L"A3", 297, 420},         {L"A2", 420, 594},        {L"A1", 594, 841},
    {L"A0", 841, 1189}, {L"Letter", 215.9, 279.4}, {L"Legal", 215.9, 355.6}, {L"Tabloid", 279.4, 431.8},
};
constexpr int kOther = static_cast<int>(std::size(kPapers));  // the size that the settings have

bool isAbout(double a, double b) { return std::abs(a - b) < 0.5; }

/// Which paper the settings have, and whether the drawing is read across.
int paperOf(const OdDbPlotSettings& settings, bool& landscape) {
    double width = settings.getPlotPaperWidth(), height = settings.getPlotPaperHeight();
    if (settings.isPlotTurned()) std::swap(width, height);
    landscape = width > height;
    if (landscape) std::swap(width, height);
    for (int i = 0; i < kOther; ++i)
        if (isAbout(kPapers[i].width, width) && isAbout(kPapers[i].height, height)) return i;
    return kOther;
}

CString sizeText(const wchar_t* name, double width, double height) {
    CString text;
    text.Format(L"%s (%g x %g mm)", name, width, height);
    return text;
}

CString numberText(double value) {
    CString text;
    text.Format(L"%g", value);
    return text;
}

}  // namespace

IMPLEMENT_DYNAMIC(CStandinPageSetupDialog, CDialog)

BEGIN_MESSAGE_MAP(CStandinPageSetupDialog, CDialog)
    ON_BN_CLICKED(IDC_PAGE_FIT, &CStandinPageSetupDialog::OnScaleChosen)
    ON_BN_CLICKED(IDC_PAGE_SCALE, &CStandinPageSetupDialog::OnScaleChosen)
END_MESSAGE_MAP()

CStandinPageSetupDialog::CStandinPageSetupDialog(OdDbPlotSettings& settings, CWnd* parent)
    : CDialog(IDD_PAGE_SETUP, parent), m_settings(settings) {}

BOOL CStandinPageSetupDialog::OnInitDialog() {
    const bool isWhole =
        HasDialogItems(*this, {IDC_PAGE_PAPER, IDC_PAGE_PORTRAIT, IDC_PAGE_LANDSCAPE, IDC_PAGE_FIT,
                               IDC_PAGE_SCALE, IDC_PAGE_PAPER_LENGTH, IDC_PAGE_DRAWING_LENGTH});
    if (!CDialog::OnInitDialog() || !isWhole) {
        EndDialog(-1);
        return FALSE;
    }
    showPaper();
    showScale();
    return TRUE;
}

void CStandinPageSetupDialog::showPaper() {
    const auto add = [this](const CString& text) {
        SendDlgItemMessage(IDC_PAGE_PAPER, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.GetString()));
    };
    for (const Paper& paper : kPapers) add(sizeText(paper.name, paper.width, paper.height));
    bool landscape = false;
    const int chosen = paperOf(m_settings, landscape);
    if (chosen == kOther) {
        CString name;
        name.LoadString(IDS_PAGE_OWN_SIZE);
        add(sizeText(name, m_settings.getPlotPaperWidth(), m_settings.getPlotPaperHeight()));
    }
    SendDlgItemMessage(IDC_PAGE_PAPER, CB_SETCURSEL, static_cast<WPARAM>(chosen));
    CheckRadioButton(IDC_PAGE_PORTRAIT, IDC_PAGE_LANDSCAPE,
                     landscape ? IDC_PAGE_LANDSCAPE : IDC_PAGE_PORTRAIT);
}

void CStandinPageSetupDialog::showScale() {
    const double scale = m_settings.getPlotScale();
    // As it is said: 1 to many, or many to 1.
    SetDlgItemText(IDC_PAGE_PAPER_LENGTH, numberText(scale < 1 ? 1 : scale));
    SetDlgItemText(IDC_PAGE_DRAWING_LENGTH, numberText(scale < 1 ? 1 / scale : 1));
    CheckRadioButton(IDC_PAGE_FIT, IDC_PAGE_SCALE, m_settings.isPlotFitted() ? IDC_PAGE_FIT : IDC_PAGE_SCALE);
    OnScaleChosen();
}

void CStandinPageSetupDialog::OnScaleChosen() {
    const BOOL hasScale = IsDlgButtonChecked(IDC_PAGE_SCALE) == BST_CHECKED;
    for (const int id : {IDC_PAGE_PAPER_LENGTH, IDC_PAGE_DRAWING_LENGTH})
        ::EnableWindow(::GetDlgItem(m_hWnd, id), hasScale);
}

double CStandinPageSetupDialog::lengthIn(int id) {
    CString text;
    GetDlgItemText(id, text);
    text.Trim();
    wchar_t* end = nullptr;
    const double value = std::wcstod(text, &end);
    if (!text.IsEmpty() && *end == L'\0' && std::isfinite(value) && value > 0) return value;
    ShowStandinMessage(IDS_PAGE_BAD_SCALE, MB_ICONEXCLAMATION);
    GotoDlgCtrl(GetDlgItem(id));
    return 0;
}

void CStandinPageSetupDialog::OnOK() {
    const bool fits = IsDlgButtonChecked(IDC_PAGE_FIT) == BST_CHECKED;
    const double paper = fits ? 1 : lengthIn(IDC_PAGE_PAPER_LENGTH);
    const double drawing = fits || paper == 0 ? 1 : lengthIn(IDC_PAGE_DRAWING_LENGTH);
    if (paper == 0 || drawing == 0) return;
    const int chosen = static_cast<int>(SendDlgItemMessage(IDC_PAGE_PAPER, CB_GETCURSEL));
    const bool landscape = IsDlgButtonChecked(IDC_PAGE_LANDSCAPE) == BST_CHECKED;
    bool wasLandscape = false;
    if (chosen != kOther && chosen >= 0) {
        const Paper& size = kPapers[chosen];
        m_settings.setCanonicalMediaName(size.name);
        m_settings.setPlotPaperSize(size.width, size.height);
        m_settings.setPlotTurned(landscape);
    } else if (paperOf(m_settings, wasLandscape); wasLandscape != landscape) {
        m_settings.setPlotTurned(!m_settings.isPlotTurned());
    }
    if (fits)
        m_settings.setPlotFitted();
    else
        m_settings.setPlotScale(paper, drawing);
    CDialog::OnOK();
}
