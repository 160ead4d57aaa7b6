// AFX_GLOBAL_DATA: what windows of every kind share, taken from the system's settings.
#pragma once

#include <kmfc/gdi_objects.h>
#include <kmfc/geometry.h>
#include <kmfc/string.h>

class CDC;
class CWnd;

/// One object serves the process; afxGlobalData names it. Colours, brushes and pens are the system's at the
/// last UpdateSysColors, fonts those at the last UpdateFonts.
struct KMFC_API AFX_GLOBAL_DATA {
    CFont fontRegular;         ///< the system's font of menus, for texts of the framework's own windows
    CFont fontTooltip;         ///< the system's font of tips and status bars
    CFont fontBold;            ///< fontRegular in bold
    CFont fontUnderline;       ///< fontRegular, underlined
    CFont fontDefaultGUIBold;  ///< the system's default font for controls in bold
    CFont fontVert;            ///< fontRegular running downward
    CFont fontVertCaption;     ///< fontRegular running upward, for captions that stand

    // System colours.
    COLORREF clrBtnFace, clrBtnShadow, clrBtnHilite, clrBtnText, clrBtnDkShadow, clrBtnLight;
    COLORREF clrWindow, clrWindowText, clrWindowFrame;
    COLORREF clrGrayedText, clrMenuText, clrHilite, clrTextHilite, clrHotText;
    COLORREF clrActiveCaption, clrInactiveCaption, clrCaptionText, clrInactiveCaptionText;
    COLORREF clrActiveCaptionGradient, clrInactiveCaptionGradient;
    /// Colours of bars and panes.
    COLORREF clrBarFace, clrBarShadow, clrBarHilite, clrBarText, clrBarWindow, clrBarDkShadow, clrBarLight;

    CBrush brBtnFace, brHilite, brLight, brBlack, brActiveCaption, brInactiveCaption, brWindow, brBarFace;
    CPen penHilite, penBarFace, penBarShadow;

    HCURSOR m_hcurStretch = nullptr;      ///< over a divider that is moved sideways
    HCURSOR m_hcurStretchVert = nullptr;  ///< over a divider that is moved up and down
    HCURSOR m_hcurHand = nullptr;
    HCURSOR m_hcurSizeAll = nullptr;
    HCURSOR m_hcurMoveTab = nullptr;    ///< while a tab is dragged
    HCURSOR m_hcurNoMoveTab = nullptr;  ///< where a tab can't be dropped

    int m_nBitsPerPixel = 32;             ///< of the screen
    int m_nDpi = 96;                      ///< dots an inch of the screen
    CSize m_sizeSmallIcon;                ///< pixels
    CRect m_rectVirtual;                  ///< the desktop over all screens, in screen coordinates
    BOOL m_bIsBlackHighContrast = FALSE;  ///< high contrast with light text on a dark background
    BOOL m_bIsWhiteHighContrast = FALSE;  ///< high contrast with dark text on a light background
    BOOL m_bMenuAnimation = FALSE;        ///< the user wants animation
    BOOL m_bUseSystemFont = FALSE;
    BOOL bIsOSAlphaBlendingSupport = TRUE;
    BOOL bIsWindows7 = TRUE;
    int m_nAutoHideToolBarSpacing = 14;  ///< pixels between groups of buttons of hidden panes
    int m_nAutoHideToolBarMargin = 4;    ///< pixels before the first of them
    int m_nDragFrameThicknessFloat = 4;  ///< pixels of the frame that shows where a pane will float
    int m_nDragFrameThicknessDock = 3;   ///< pixels of the frame that shows where a pane will dock

    AFX_GLOBAL_DATA();
    ~AFX_GLOBAL_DATA();
    AFX_GLOBAL_DATA(const AFX_GLOBAL_DATA&) = delete;
    AFX_GLOBAL_DATA& operator=(const AFX_GLOBAL_DATA&) = delete;

    /// Makes the fonts anew from the system's settings; call it at WM_SETTINGCHANGE.
    void UpdateFonts();
    /// Reads the colours, the depth and the contrast anew; call it at WM_SYSCOLORCHANGE and at start.
    void UpdateSysColors();
    /// Reads animation and the desktop's size anew; call it at WM_SETTINGCHANGE and WM_DISPLAYCHANGE.
    void OnSettingChange();
    /// Makes the fonts of menus from one description: regular, bold, underlined, and the upright ones too
    /// unless `bHorz`.
    BOOL SetMenuFont(LPLOGFONT lpLogFont, BOOL bHorz);
    /// Deletes brushes, pens and fonts; UpdateSysColors and UpdateFonts make them again.
    void CleanUp();

    COLORREF GetColor(int nColor) const { return ::GetSysColor(nColor); }
    BOOL IsHighContrastMode() const { return m_bIsBlackHighContrast || m_bIsWhiteHighContrast; }
    BOOL Is32BitIcons() const { return m_nBitsPerPixel > 16 && !IsHighContrastMode(); }
    /// Height of a line of fontRegular (of fontVert for FALSE), in pixels.
    int GetTextHeight(BOOL bHorz = TRUE);
    HCURSOR GetHandCursor();
    BOOL GetNonClientMetrics(NONCLIENTMETRICS& info);
    /// Registers a window class with the arrow and the face colour, that answers double clicks, once in the
    /// process. The result is its full name: "prefix:instance:cursor:brush". Throws CResourceException.
    CString RegisterWindowClass(LPCTSTR lpszClassNamePrefix);
    BOOL DrawParentBackground(CWnd* pWnd, CDC* pDC, LPRECT lpRect = nullptr);
    BOOL SetLayeredAttrib(HWND hwnd, COLORREF crKey, BYTE bAlpha, DWORD dwFlags) {
        return ::SetLayeredWindowAttributes(hwnd, crKey, bAlpha, dwFlags);
    }
    /// Pixels on the screen for as many at 96 dots an inch.
    int scaled(int pixels) const { return ::MulDiv(pixels, m_nDpi, 96); }

private:
    void make_brushes();
};

/// The process's object, which is filled at the first call.
KMFC_API AFX_GLOBAL_DATA* GetGlobalData();

#define afxGlobalData (*GetGlobalData())
