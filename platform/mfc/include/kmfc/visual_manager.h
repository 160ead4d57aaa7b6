// CMFCVisualManager: paints what the docking classes show. The base is a flat look in the system's colours,
// light, dark and of high contrast alike; an application derives from it and names its class by
// SetDefaultManager.
#pragma once

#include <kmfc/gdi.h>

class CBasePane;
class CDockablePane;
class CMFCAutoHideButton;
class CMFCBaseTabCtrl;
class CMFCCaptionButton;
class CMFCStatusBar;
class CMFCTabCtrl;
class CMFCToolBarButton;
class CPaneDivider;
class CPaneFrameWnd;
class CWnd;
struct CMFCStatusBarPaneInfo;

class KMFC_API CMFCVisualManager : public CObject {
    DECLARE_DYNCREATE(CMFCVisualManager)
public:
    explicit CMFCVisualManager(BOOL bIsTemporary = FALSE);
    ~CMFCVisualManager() override;
    CMFCVisualManager(const CMFCVisualManager&) = delete;
    CMFCVisualManager& operator=(const CMFCVisualManager&) = delete;

    /// How a button of a toolbar is drawn; whether it is checked or disabled, its style says.
    enum AFX_BUTTON_STATE { ButtonsIsRegular, ButtonsIsPressed, ButtonsIsHighlighted };

    /// The process's manager, made at the first call of the class that SetDefaultManager named.
    static CMFCVisualManager* GetInstance();
    /// Ends the present manager and names the class of the next; null for this class. Sends
    /// AFX_WM_ON_CHANGE_VISUAL_MANAGER to the main window and repaints.
    static void SetDefaultManager(CRuntimeClass* pRTI);
    /// Ends the process's manager; GetInstance makes another.
    static void DestroyInstance(BOOL bAutoDestroyOnly = FALSE);
    /// Repaints all windows of the framework.
    static void RedrawAll();
    /// Lays out the main window anew, as after a change of captions or fonts.
    static void AdjustFrames();

    /// The system's colours or fonts have changed.
    virtual void OnUpdateSystemColors();

    // Bars and panes.

    virtual void OnFillBarBackground(CDC* pDC, CBasePane* pBar, CRect rectClient, CRect rectClip,
                                     BOOL bNCArea = FALSE);
    virtual void OnDrawPaneBorder(CDC* pDC, CBasePane* pBar, CRect& rect);
    /// Fills a pane's caption; the result is the colour of its text, which the pane draws.
    virtual COLORREF OnDrawPaneCaption(CDC* pDC, CDockablePane* pBar, BOOL bActive, CRect rectCaption,
                                       CRect rectButtons);
    /// `nImageID` other than -1 is drawn in place of the button's own sign.
    virtual void OnDrawCaptionButton(CDC* pDC, CMFCCaptionButton* pButton, BOOL bActive, BOOL bHorz,
                                     BOOL bMaximized, BOOL bDisabled, int nImageID = -1);
    virtual void OnDrawPaneDivider(CDC* pDC, CPaneDivider* pSlider, CRect rect, BOOL bAutoHideMode);
    /// Pixels that buttons are larger than their signs and margins.
    virtual CSize GetCaptionButtonExtraBorder() const { return CSize(0, 0); }
    /// Pixels that captions of panes are higher than text and buttons.
    virtual int GetDockingPaneCaptionExtraHeight() const { return 0; }

    // Toolbars.

    /// The part that a docked bar is dragged by; `bHorz` for a bar whose buttons stand in a row.
    virtual void OnDrawBarGripper(CDC* pDC, CRect rectGripper, BOOL bHorz, CBasePane* pBar);
    /// A line between groups of buttons, upright in a bar whose buttons stand in a row (`bIsHoriz`).
    virtual void OnDrawSeparator(CDC* pDC, CBasePane* pBar, CRect rect, BOOL bIsHoriz);
    /// Fills a button that is hot, pressed or checked; one that is nothing of it shows the bar.
    virtual void OnFillButtonInterior(CDC* pDC, CMFCToolBarButton* pButton, CRect rect,
                                      AFX_BUTTON_STATE state);
    /// A line around the same buttons.
    virtual void OnDrawButtonBorder(CDC* pDC, CMFCToolBarButton* pButton, CRect rect, AFX_BUTTON_STATE state);
    virtual COLORREF GetToolbarButtonTextColor(CMFCToolBarButton* pButton, AFX_BUTTON_STATE state);

    // Status bars.

    /// A line before a pane, around one that is raised (SBPS_POPOUT), which is filled too. It isn't called
    /// for SBPS_NOBORDERS.
    virtual void OnDrawStatusBarPaneBorder(CDC* pDC, CMFCStatusBar* pBar, CRect rectPane, UINT uiID,
                                           UINT nStyle);
    /// -1 for a colour is the usual one.
    virtual void OnDrawStatusBarProgress(CDC* pDC, CMFCStatusBar* pStatusBar, CRect rectProgress,
                                         int nProgressTotal, int nProgressCurr, COLORREF clrBar,
                                         COLORREF clrProgressBarDest, COLORREF clrProgressText,
                                         BOOL bProgressText);
    /// The corner by which the frame is sized.
    virtual void OnDrawStatusBarSizeBox(CDC* pDC, CMFCStatusBar* pStatBar, CRect rectSizeBox);
    /// The pane's own colour if it has one.
    virtual COLORREF GetStatusBarPaneTextColor(CMFCStatusBar* pStatusBar, CMFCStatusBarPaneInfo* pPane);

    // Floating frames.

    /// Fills the caption; the result is the colour of its text.
    virtual COLORREF OnFillMiniFrameCaption(CDC* pDC, CRect rectCaption, CPaneFrameWnd* pFrameWnd,
                                            BOOL bActive);
    virtual void OnDrawMiniFrameBorder(CDC* pDC, CPaneFrameWnd* pFrameWnd, CRect rectBorder,
                                       CRect rectBorderSize);

    // Tabs.

    virtual void OnDrawTab(CDC* pDC, CRect rectTab, int iTab, BOOL bIsActive, const CMFCBaseTabCtrl* pTabWnd);
    virtual void OnFillTab(CDC* pDC, CRect rectFill, CBrush* pbrFill, int iTab, BOOL bIsActive,
                           const CMFCBaseTabCtrl* pTabWnd);
    /// Fills the strip behind the tabs.
    virtual void OnEraseTabsArea(CDC* pDC, CRect rect, const CMFCBaseTabCtrl* pTabWnd);
    /// Fills the frame around the tabbed windows; FALSE when the frame is to be drawn in the ordinary way.
    virtual BOOL OnEraseTabsFrame(CDC* pDC, CRect rect, const CMFCBaseTabCtrl* pTabWnd);
    /// The colour of a tab's text.
    virtual COLORREF GetTabTextColor(const CMFCBaseTabCtrl* pTabWnd, int iTab, BOOL bIsActive);
    /// The colours that frames of tabs are drawn in.
    virtual void GetTabFrameColors(const CMFCBaseTabCtrl* pTabWnd, COLORREF& clrDark, COLORREF& clrBlack,
                                   COLORREF& clrHighlight, COLORREF& clrFace, COLORREF& clrDarkShadow,
                                   COLORREF& clrLight, CBrush*& pbrFace, CBrush*& pbrBlack);
    /// Pixels between docked tabs and the edge of their pane.
    virtual int GetDockingTabsBordersSize() { return -1; }
    /// Pixels between tabs of documents and the edge of the frame; -1 for the ordinary ones.
    virtual int GetMDITabsBordersSize() { return -1; }
    virtual int GetTabHorzMargin(const CMFCBaseTabCtrl*) { return 0; }
    virtual int GetTabExtraHeight(const CMFCTabCtrl*) { return 0; }
    virtual BOOL AlwaysHighlight3DTabs() const { return FALSE; }

    // Panes hidden at an edge.

    virtual void OnFillAutoHideButtonBackground(CDC* pDC, CRect rect, CMFCAutoHideButton* pButton);
    virtual void OnDrawAutoHideButtonBorder(CDC* pDC, CRect rectBounds, CRect rectBorderSize,
                                            CMFCAutoHideButton* pButton);
    virtual COLORREF GetAutoHideButtonTextColor(CMFCAutoHideButton* pButton);

    /// A button of a tab strip, or any flat button: its background, its border and a sign.
    void draw_flat_button(CDC* pDC, const CRect& rect, int image, bool hot, bool pressed, bool enabled);

protected:
    static CMFCVisualManager* m_pVisManager;
    static CRuntimeClass* m_pRTIDefault;
    BOOL m_bAutoDestroy = FALSE;  ///< made by GetInstance, and ended with the framework
    BOOL m_bIsTemporary;
};
