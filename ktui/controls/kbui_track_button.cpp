#include <ktui/controls/kbui_track_button.h>

IMPLEMENT_DYNAMIC(CKbUiTrackButton, CKbUiOwnerDrawButton)

BEGIN_MESSAGE_MAP(CKbUiTrackButton, CKbUiOwnerDrawButton)
    ON_WM_PAINT()
    ON_WM_NCPAINT()
END_MESSAGE_MAP()

CKbUiTrackButton::CKbUiTrackButton(CKbUiTrackButtonDraw*) {}

int CKbUiTrackButton::SetDraw(CKbUiTrackButtonDraw* draw) {
    m_draw = draw;
    return 0;
}

int CKbUiTrackButton::SetDefaultDraw() { return 0; }

CKbUiTheme* CKbUiTrackButton::GetTheme() const { return nullptr; }

CKbUiTheme* CKbUiTrackButton::SetTheme(CKbUiTheme*) { return nullptr; }

void CKbUiTrackButton::DrawItem(LPDRAWITEMSTRUCT) {}

void CKbUiTrackButton::SetTracking(int) {}

void CKbUiTrackButton::DrawBorder(CDC*, CRect&, COLORREF) {}

void CKbUiTrackButton::DrawHotBorder() {}

void CKbUiTrackButton::DrawButton(CDC&, int, int, int, int, int, int) {}

void CKbUiTrackButton::DrawPushButtonBorder(CDC&, CRect&, int, int) {}

void CKbUiTrackButton::DrawToolButtonBorder(CDC&, CRect&, int, int) {}

void CKbUiTrackButton::releaseDraw() {}

void CKbUiTrackButton::OnPaint() {}

void CKbUiTrackButton::OnNcPaint() {}
