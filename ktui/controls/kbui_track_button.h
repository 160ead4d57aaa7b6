// CKbUiTrackButton: a button that is to be drawn by an object of its owner's.
//
// Its interface is there for clients to link and derive from; it paints nothing, and a draw object is never
// called.
#pragma once

#include <ktui/controls/kbui_owner_draw_button.h>

/// What draws a track button. Its operations are the client's; here it is only pointed to.
class CKbUiTrackButtonDraw;

class KTUI_API CKbUiTrackButton : public CKbUiOwnerDrawButton {
    DECLARE_DYNAMIC(CKbUiTrackButton)

public:
    CKbUiTrackButton() = default;
    // Kept: the draw object is not taken over; SetDraw does that.
    explicit CKbUiTrackButton(CKbUiTrackButtonDraw* draw);

    // Kept: both answer 0, and what SetDraw keeps (not owned) is never called.
    int SetDraw(CKbUiTrackButtonDraw* draw);
    int SetDefaultDraw();

    // Kept: a track button has no theme and draws nothing.
    CKbUiTheme* GetTheme() const;
    CKbUiTheme* SetTheme(CKbUiTheme* theme) override;
    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void SetTracking(int tracking) override;
    void DrawBorder(CDC* dc, CRect& rect, COLORREF color) override;
    void DrawHotBorder() override;
    void DrawButton(CDC& dc, int width, int height, int isDefault, int isDisabled, int isPressed,
                    int hasFocus) override;
    void DrawPushButtonBorder(CDC& dc, CRect& rect, int isDefault, int isPressed) override;
    void DrawToolButtonBorder(CDC& dc, CRect& rect, int state, int unused) override;

protected:
    // Kept: does nothing.
    void releaseDraw();

    // Kept: WM_PAINT and WM_NCPAINT are swallowed.
    afx_msg void OnPaint();
    afx_msg void OnNcPaint();
    DECLARE_MESSAGE_MAP()

    CKbUiTrackButtonDraw* m_draw = nullptr;
};
