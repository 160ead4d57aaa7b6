// Entry points of a palette set that are there so that callers link.
#include <ktui/docking/kbui_palette_set.h>

#include <ktui/docking/kbui_palette_set_data.h>

void CKbUiPaletteSet::TitleBarLocationUpdated(KbUiTitleBarLocation) {}
int CKbUiPaletteSet::GetTopReservedHeight() { return 5; }
int CKbUiPaletteSet::GetBottomReservedHeight() { return 0; }
void CKbUiPaletteSet::AutoRollupChanged(int) {}
void CKbUiPaletteSet::OnTabDrag(CPtrArray&) {}
void CKbUiPaletteSet::PaletteActivated(CKbUiPalette*, CKbUiPalette*) {}
void CKbUiPaletteSet::PaletteAdded(CKbUiPalette*) {}
void CKbUiPaletteSet::PaletteRemoved(CKbUiPalette*) {}
void CKbUiPaletteSet::ThemeModified(KbUiThemeElement) {}

void CKbUiPaletteSet::RollUp() {}
// Kept: asks whether the set is docked and does nothing with the answer.
void CKbUiPaletteSet::RollOut(bool) { IsDocked(); }
int CKbUiPaletteSet::RolledUp() { return 0; }
int CKbUiPaletteSet::GetAutoRollup() const { return m_data->m_autoRollup; }

int CKbUiPaletteSet::SetAutoRollup(int rollup) {
    if (m_data->m_autoRollup == rollup) return 0;
    m_data->m_autoRollup = rollup;
    return 1;
}

int CKbUiPaletteSet::GetOpacity() const { return m_data->m_opacity; }

int CKbUiPaletteSet::SetOpacity(int percent) {
    if (static_cast<unsigned>(percent) > 100) return 0;
    m_data->m_opacity = percent;
    return 1;
}

bool CKbUiPaletteSet::SetGlobalTransparency(unsigned) { return false; }
unsigned CKbUiPaletteSet::GetGlobalTransparency() { return 0; }
bool CKbUiPaletteSet::SetAllowTransparency(CString, bool) { return false; }
void CKbUiPaletteSet::SetTitleBarLocation(KbUiTitleBarLocation) {}
KbUiTitleBarLocation CKbUiPaletteSet::TitleBarLocation() { return static_cast<KbUiTitleBarLocation>(1); }
void CKbUiPaletteSet::OnTogglePin() {}
CKbUiTheme* CKbUiPaletteSet::GetTheme() { return nullptr; }
CKbUiTheme* CKbUiPaletteSet::SetTheme(CKbUiTheme*) { return nullptr; }
bool CKbUiPaletteSet::CanFrameworkTakeFocus() { return false; }

void CKbUiPaletteSet::OnActivate(UINT, CWnd*, BOOL) {}
void CKbUiPaletteSet::OnLButtonDblClk(UINT, CPoint) {}
void CKbUiPaletteSet::OnLButtonDown(UINT, CPoint) {}
void CKbUiPaletteSet::OnLButtonUp(UINT, CPoint) {}
void CKbUiPaletteSet::OnMouseMove(UINT, CPoint) {}
void CKbUiPaletteSet::OnMenuClose() {}
void CKbUiPaletteSet::OnMenuMove() {}
void CKbUiPaletteSet::OnMenuSize() {}
void CKbUiPaletteSet::OnNcPaint() {}
void CKbUiPaletteSet::OnOptionTranslucency() {}
void CKbUiPaletteSet::OnSetFocus(CWnd*) {}
void CKbUiPaletteSet::OnWindowPosChanging(WINDOWPOS*) {}
LRESULT CKbUiPaletteSet::OnFloatStatus(WPARAM, LPARAM) { return 0; }
int CKbUiPaletteSet::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) { return 0; }
BOOL CKbUiPaletteSet::OnEraseBkgnd(CDC*) { return TRUE; }
LRESULT CKbUiPaletteSet::OnNcHitTest(CPoint) { return 1; }
