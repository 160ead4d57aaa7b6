// CMFCCaptionButton: a button in the caption of a pane or of its floating frame. It has no window.
#pragma once

#include <kmfc/hit_codes.h>
#include <kmfc/menu_images.h>

// Buttons of a floating frame, see CPaneFrameWnd::SetCaptionButtons.
constexpr UINT AFX_CAPTION_BTN_CLOSE = 0x0001;      ///< a close button, see CPaneFrameWnd
constexpr UINT AFX_CAPTION_BTN_PIN = 0x0002;        ///< a button that hides the pane at the edge
constexpr UINT AFX_CAPTION_BTN_MENU = 0x0004;       ///< a button that opens the pane's menu
constexpr UINT AFX_CAPTION_BTN_CUSTOMIZE = 0x0008;  ///< a button that opens what customizes the pane

class KMFC_API CMFCCaptionButton : public CObject {
    DECLARE_DYNCREATE(CMFCCaptionButton)
public:
    CMFCCaptionButton();
    /// A button of a hit code above, HTMAXBUTTON for the pin, or HTNOWHERE.
    explicit CMFCCaptionButton(UINT nHit, BOOL bLeftAlign = FALSE);

    UINT GetHit() const { return m_nHit; }
    /// The sign. For the pin `bMaximized` tells that the pane hides itself.
    virtual CMenuImages::IMAGES_IDS GetIconID(BOOL bHorz, BOOL bMaximized = FALSE) const;
    /// The place in the window (its upper left corner is the origin), empty for a hidden button.
    virtual CRect GetRect() const;
    /// The size of every button, margins and borders included.
    static CSize GetSize();
    /// Sets the place of the upper left corner, and whether the button shows.
    void Move(const CPoint& ptTo, BOOL bHide = FALSE);
    /// Draws the button by the visual manager. `bActive` says whether the caption is active, `bMaximized` is
    /// for the sign.
    virtual void OnDraw(CDC* pDC, BOOL bActive, BOOL bHorz = TRUE, BOOL bMaximized = TRUE,
                        BOOL bDisabled = FALSE);
    BOOL IsMiniFrameButton() const { return m_bMiniFrame; }
    void SetMiniFrameButton(BOOL bSet = TRUE) { m_bMiniFrame = bSet; }

    BOOL m_bPushed = FALSE;   ///< the mouse button is down on it
    BOOL m_bFocused = FALSE;  ///< the mouse is over it
    BOOL m_bHidden = FALSE;
    BOOL m_bEnabled = TRUE;
    BOOL m_bLeftAlign = FALSE;
    UINT m_nHit = HTNOWHERE;

    static int m_nButtonMarginHorz;  ///< pixels between the sign and the button's edge
    static int m_nButtonMarginVert;

private:
    CPoint m_ptLocation;
    BOOL m_bMiniFrame = FALSE;
};
