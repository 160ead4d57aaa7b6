// CDockablePane: a pane with a caption that docks, floats, and stands beside others.
#pragma once

#include <memory>
#include <vector>

#include <kmfc/arrays.h>
#include <kmfc/pane.h>

/// A pane with a caption and buttons. The caption belongs to the non-client area, yet its hit code is
/// HTCLIENT: the mouse handlers get points above the client area (negative y).
///
///     m_pane.Create(L"Layers", this, CSize(200, 200), TRUE, ID_LAYERS, WS_CHILD | WS_VISIBLE | CBRS_LEFT);
///     m_pane.EnableDocking(CBRS_ALIGN_ANY);
///     DockPane(&m_pane);
class KMFC_API CDockablePane : public CPane {
    DECLARE_DYNCREATE(CDockablePane)
public:
    CDockablePane();
    ~CDockablePane() override;

    static BOOL m_bHideDisabledButtons;  ///< buttons that can't be pressed are left out; else they are grey
    static BOOL m_bDisableAnimation;     ///< auto-hide comes and goes at once
    static int m_nSlideSteps;            ///< the steps it comes in otherwise
    BOOL m_bHideInAutoHideMode = FALSE;  ///< ShowPane hides the pane's auto-hide button too

    virtual BOOL Create(LPCTSTR lpszCaption, CWnd* pParentWnd, const RECT& rect, BOOL bHasGripper, UINT nID,
                        DWORD dwStyle, DWORD dwTabbedStyle = AFX_CBRS_REGULAR_TABS,
                        DWORD dwControlBarStyle = AFX_DEFAULT_DOCKING_PANE_STYLE,
                        CCreateContext* pContext = nullptr);
    virtual BOOL Create(LPCTSTR lpszWindowName, CWnd* pParentWnd, CSize sizeDefault, BOOL bHasGripper,
                        UINT nID, DWORD dwStyle = WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_HIDE_INPLACE,
                        DWORD dwTabbedStyle = AFX_CBRS_REGULAR_TABS,
                        DWORD dwControlBarStyle = AFX_DEFAULT_DOCKING_PANE_STYLE);
    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr) override;
    /// Creates the pane, undocked: `rect` in client coordinates of the frame. CBRS_FLOAT_MULTI in `dwStyle`
    /// lets it share a floating frame with others.
    virtual BOOL CreateEx(DWORD dwStyleEx, LPCTSTR lpszCaption, CWnd* pParentWnd, const RECT& rect,
                          BOOL bHasGripper, UINT nID, DWORD dwStyle,
                          DWORD dwTabbedStyle = AFX_CBRS_REGULAR_TABS,
                          DWORD dwControlBarStyle = AFX_DEFAULT_DOCKING_PANE_STYLE,
                          CCreateContext* pContext = nullptr);
    using CBasePane::CreateEx;

    // Docking.
    BOOL DockToFrameWindow(DWORD dwAlignment, LPCRECT lpRect = nullptr, DWORD dwDockFlags = DT_DOCK_LAST,
                           CBasePane* pRelativeBar = nullptr, int nRelativeIndex = -1,
                           BOOL bOuterEdge = FALSE) override;
    /// Docks at a side of another pane, which is docked or floats. FALSE when one of them refuses.
    virtual BOOL DockToWindow(CDockablePane* pTargetWindow, DWORD dwAlignment, LPCRECT lpRect = nullptr);
    /// Docks where the pane was docked last. FALSE when it never was.
    BOOL DockToRecentPos();
    /// Joins the target in tabs, making them when it is no tabbed pane. Null when one of them refuses.
    virtual CDockablePane* AttachToTabWnd(CDockablePane* pTabControlBarAttachTo, AFX_DOCK_METHOD dockMethod,
                                          BOOL bSetActive = TRUE,
                                          CDockablePane** ppTabbedControlBar = nullptr);
    /// The tabbed pane that replaces this one when another joins it, of the class of GetTabbedPaneRTC; null
    /// when it can't be made.
    virtual CTabbedPane* CreateTabbedPane();
    BOOL FloatPane(CRect rectFloat, AFX_DOCK_METHOD dockMethod = DM_UNKNOWN, bool bShow = true) override;
    void UndockPane(BOOL bDelay = FALSE) override;
    void ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate) override;
    /// Puts another pane in this one's place; this one is left undocked.
    virtual BOOL ReplacePane(CDockablePane* pBarToReplaceWith, AFX_DOCK_METHOD dockMethod,
                             BOOL bRegisterWithFrame = FALSE);
    /// The class of the tabbed pane that CreateTabbedPane makes; not owned.
    CRuntimeClass* GetTabbedPaneRTC() const { return m_pTabbedControlBarRTC; }
    void SetTabbedPaneRTC(CRuntimeClass* pRTC) { m_pTabbedControlBarRTC = pRTC; }
    virtual void SetLastPercentInPaneContainer(int n) { m_nLastPercentInContainer = n; }
    virtual int GetLastPercentInPaneContainer() const { return m_nLastPercentInContainer; }

    // What the pane allows and where it is.
    BOOL CanAcceptPane(const CBasePane* pBar) const override;
    virtual BOOL CanAcceptMiniFrame(CPaneFrameWnd* pMiniFrame) const;
    BOOL CanAutoHide() const override;
    BOOL CanBeAttached() const override { return TRUE; }
    BOOL IsDocked() const override;
    BOOL IsAutoHideMode() const override { return m_bIsAutoHideMode; }
    BOOL IsVisible() const override;
    /// FALSE when the user is never offered to hide the pane at an edge.
    virtual BOOL HasAutoHideMode() const { return (m_dwControlBarStyle & AFX_CBRS_AUTOHIDE) != 0; }
    BOOL IsHideInAutoHideMode() const { return m_bHideInAutoHideMode; }
    BOOL IsAutohideAllEnabled() const { return m_bEnableAutohideAll; }
    void EnableAutohideAll(BOOL bEnable = TRUE) { m_bEnableAutohideAll = bEnable; }
    virtual BOOL IsTracked() const { return m_bCaptionDragging; }
    /// Where tabs of a tabbed pane are, screen coordinates; both empty for a pane without.
    virtual void GetTabArea(CRect& rectTabAreaTop, CRect& rectTabAreaBottom) const;
    virtual BOOL IsTabLocationBottom() const { return FALSE; }
    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    void CopyState(CPane* pOrgBar) override;
    using CPane::CopyState;

    // The caption.
    void EnableGripper(BOOL bEnable) override;
    /// Height in pixels; 0 for a pane without a caption and while something around it has one instead.
    int GetCaptionHeight() const override;
    /// The hit code of a caption button at a screen point; HTCAPTION elsewhere on the caption with
    /// `bDetectCaption`; else HTNOWHERE.
    virtual int HitTest(CPoint point, BOOL bDetectCaption = FALSE);
    /// The shown caption button at a screen point, or null.
    virtual CMFCCaptionButton* FindButton(CPoint ptScreen) const;
    /// The button with a hit code, or null.
    CMFCCaptionButton* FindButtonByHit(LRESULT nHit) const;
    /// Gives the tips of caption buttons their rectangles.
    void UpdateTooltips();
    void OnPressCloseButton() override;
    BOOL OnShowControlBarMenu(CPoint point) override;

    // Hiding at an edge.
    /// Hides a docked pane at its side, or puts it back where it was. FALSE when the pane may not.
    BOOL ToggleAutoHide() override;
    /// The same, named: the strip that the pane hides at, or null. With `bUseTimer` it slides.
    virtual CMFCAutoHideBar* SetAutoHideMode(BOOL bMode, DWORD dwAlignment,
                                             CMFCAutoHideBar* pCurrAutoHideBar = nullptr,
                                             BOOL bUseTimer = TRUE);
    /// Slides a hidden pane out or in.
    virtual void Slide(BOOL bSlideOut, BOOL bUseTimer = TRUE);
    /// Slides the pane in when neither focus nor mouse is in it; TRUE when it did.
    virtual BOOL CheckAutoHideCondition();
    /// The pane's size when it slid last, pixels.
    CSize auto_hide_size() const { return m_autoHideSize; }

    BOOL LoadState(LPCTSTR lpszProfileName = nullptr, int nIndex = -1,
                   UINT uiID = static_cast<UINT>(-1)) override;
    BOOL SaveState(LPCTSTR lpszProfileName = nullptr, int nIndex = -1,
                   UINT uiID = static_cast<UINT>(-1)) override;
    void Serialize(CArchive& ar) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    /// Makes the caption buttons by the styles.
    virtual void SetCaptionButtons();
    void RemoveCaptionButtons();
    /// Draws caption and text in `rectCaption`, coordinates of the window's corner. Buttons come after.
    virtual void DrawCaption(CDC* pDC, CRect rectCaption);
    /// A press on a caption button other than close and pin.
    virtual void OnPressButtons(UINT nHit);
    /// Moves the caption buttons to where they stand in a window of that size.
    virtual void place_caption_buttons(CSize window);
    /// Whether a caption button can't be used now.
    bool is_button_disabled(LRESULT hit) const;
    /// The caption's rectangle in coordinates of the window's corner; empty without a caption.
    CRect caption_rect() const;
    /// Draws caption and buttons into `pDC`, whose origin is the window's corner.
    void draw_caption_and_buttons(CDC* pDC, CSize window);
    void redraw_caption();

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg void OnNcPaint();
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    DECLARE_MESSAGE_MAP()

    CObArray m_arrButtons;   ///< CMFCCaptionButton objects, owned, in the order of their making
    BOOL m_bActive = FALSE;  ///< the caption is drawn as that of the active pane
    BOOL m_bCaptionButtonsCapture =
        FALSE;  ///< caption buttons follow the mouse: a press on one belongs to it
    BOOL m_bIsAutoHideMode = FALSE;
    CMFCAutoHideBar* m_pAutoHideBar = nullptr;  ///< where it hides
    CSize m_autoHideSize{0, 0};
    /// Forgets about hiding; the place among the docked panes stays.
    void leave_auto_hide();
    friend class CMFCAutoHideBar;
    BOOL m_bEnableAutohideAll = TRUE;
    BOOL m_bCaptionDragging = FALSE;  ///< the caption is held; the pane floats once the mouse has moved
    UINT m_nHit = HTNOWHERE;          ///< hit code of the button that is pressed
    UINT m_nHot = HTNOWHERE;          ///< hit code of the button under the mouse
    int m_nLastPercentInContainer = 50;
    CSize m_sizeDefault{0, 0};  ///< what CreateEx was given
    DWORD m_dwTabbedStyle = AFX_CBRS_REGULAR_TABS;
    CRuntimeClass* m_pTabbedControlBarRTC = nullptr;
    CPoint m_ptClickPos{0, 0};  ///< where the caption was pressed, screen coordinates

private:
    /// The tips of caption buttons.
    struct Tips;
    void press_button(UINT hit);
    void do_menu_command(UINT command);
    void follow_buttons(CPoint screen);
    void tear_off(CPoint screen);
    void move_to(CPaneFrameWnd* frame, bool show);
    /// Leaves tabs, floating frame or row; of the row the place stays with `keepPlace`.
    void leave_home(bool keepPlace);
    void become_child_of(CWnd* parent);
    void show_docked(bool show, bool later);
    void show_hidden_name();

    std::unique_ptr<Tips> m_tips;

    friend class CDockingManager;
    friend class CPaneFrameWnd;
    friend class CMultiPaneFrameWnd;
};
