#include "title_palette.h"

#include <algorithm>

#include "drafter/panel_keys.h"
#include "resource.h"
#include "title_fields.h"

CTitlePanel::CTitlePanel(HINSTANCE module, CDrafterServices& services)
    : CKtUiDialog(IDD_TITLE_PALETTE, nullptr, module), m_services(services) {
    SetDialogName(L"Title Block");
    SetDialogHelpTag(L"TitleBlock");
}

BOOL CTitlePanel::OnInitDialog() {
    CKtUiDialog::OnInitDialog();
    for (const unsigned id : {IDC_PROJECT, IDC_DRAWN_BY, IDC_CHECKED_BY, IDC_TITLE_MESSAGE})
        StretchControlX(id, 100);
    ShowTitleFields(*this);
    // The drawing keeps the focus.
    return FALSE;
}

void CTitlePanel::OnOK() {
    const int bad = BadTitleField(*this);
    if (bad != 0) return GotoDlgCtrl(GetDlgItem(bad));
    const int filled = FillFromTitleFields(*this);
    CString words;
    words.Format(TitleText(filled == 1 ? IDS_FILLED_ONE : IDS_FILLED), filled);
    SetDlgItemText(IDC_TITLE_MESSAGE, words);
    if (filled > 0) m_services.DrawingChanged(TitleText(IDS_TITLE_PAGE));
}

/// Escape goes back to the drawing.
void CTitlePanel::OnCancel() { AfxGetMainWnd()->SetFocus(); }

BOOL CTitlePanel::PreTranslateMessage(MSG* message) {
    return FrameTakesKey(*message) || CKtUiDialog::PreTranslateMessage(message);
}

BEGIN_MESSAGE_MAP(CTitlePalette, CKbUiPalette)
    ON_WM_SIZE()
END_MESSAGE_MAP()

CTitlePalette::CTitlePalette(HINSTANCE module, CDrafterServices& services) : m_panel(module, services) {
    SetName(TitleText(IDS_TITLE_PAGE));
}

int CTitlePalette::Create(CKbUiPaletteSet* set) {
    if (!CKbUiPalette::Create(set)) return 0;
    if (!m_panel.Create(IDD_TITLE_PALETTE, this)) {
        DestroyWindow();
        return 0;
    }
    m_panel.ShowWindow(SW_SHOWNA);
    return 1;
}

void CTitlePalette::OnSize(UINT type, int cx, int cy) {
    CKbUiPalette::OnSize(type, cx, cy);
    constexpr int kLeast = 120;  // pixels
    if (m_panel.m_hWnd != nullptr) m_panel.MoveWindow(0, 0, std::max(cx, kLeast), std::max(cy, kLeast));
}
