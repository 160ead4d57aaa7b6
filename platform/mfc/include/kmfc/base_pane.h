// CBasePane: what every pane of a frame has, docked, floating or fixed.
#pragma once

#include <kmfc/docking_types.h>

/// A bar that a docking manager lays out. Panes of this class stand fixed at an edge of the frame (by
/// CalcFixedLayout) in the order in which AddPane registered them; derived classes dock and float.
class KMFC_API CBasePane : public CWnd {
    DECLARE_DYNAMIC(CBasePane)
public:
    CBasePane();
    ~CBasePane() override;

    static BOOL m_bSetTooltipTopmost;  ///< tips of caption buttons stand above all windows

    /// Creates the window: CBRS_ bits of `dwStyle` become the pane's style, the others the window's.
    virtual BOOL CreateEx(DWORD dwStyleEx, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd, UINT nID, DWORD dwControlBarStyle = 0,
                          CCreateContext* pContext = nullptr);

    // Styles.
    virtual DWORD GetPaneStyle() const { return m_dwStyle; }
    /// Changes the CBRS_ styles and draws anew; the place changes at the next layout.
    virtual void SetPaneStyle(DWORD dwNewStyle);
    virtual DWORD GetCurrentAlignment() const { return m_dwStyle & CBRS_ALIGN_ANY; }
    /// Replaces the CBRS_ALIGN_ bits of the style.
    virtual void SetPaneAlignment(DWORD dwAlignment);
    /// The sides at which the pane may dock, CBRS_ALIGN_ bits.
    virtual DWORD GetEnabledAlignment() const { return m_dwEnabledAlignment; }
    virtual void EnableDocking(DWORD dwAlignment) { m_dwEnabledAlignment = dwAlignment; }
    virtual DWORD GetControlBarStyle() const { return m_dwControlBarStyle; }
    virtual void SetControlBarStyle(DWORD dwNewStyle);
    AFX_DOCK_TYPE GetDockingMode() const;
    void SetDockingMode(AFX_DOCK_TYPE dockModeNew) { m_dockMode = dockModeNew; }
    BOOL IsHorizontal() const { return (m_dwStyle & CBRS_ORIENT_HORZ) != 0; }
    virtual void EnableGripper(BOOL bEnable) { m_bHasGripper = bEnable; }
    virtual int GetCaptionHeight() const { return 0; }
    virtual HICON GetPaneIcon(BOOL bBigIcon);

    // What the pane allows.
    virtual BOOL CanAcceptPane(const CBasePane* pBar) const;
    virtual BOOL CanAutoHide() const { return FALSE; }
    virtual BOOL CanBeAttached() const { return FALSE; }
    virtual BOOL CanBeClosed() const { return (m_dwControlBarStyle & AFX_CBRS_CLOSE) != 0; }
    virtual BOOL CanBeDocked(CBasePane* pDockBar) const;
    virtual BOOL CanBeResized() const { return (m_dwControlBarStyle & AFX_CBRS_RESIZE) != 0; }
    virtual BOOL CanFloat() const { return (m_dwControlBarStyle & AFX_CBRS_FLOAT) != 0; }
    virtual BOOL CanFocus() const { return TRUE; }
    virtual BOOL IsResizable() const { return TRUE; }
    virtual BOOL HideInPrintPreviewMode() const { return TRUE; }

    // Where the pane is.
    virtual BOOL IsAutoHideMode() const { return FALSE; }
    virtual BOOL IsDocked() const;
    virtual BOOL IsFloating() const;
    virtual BOOL IsInFloatingMultiPaneFrameWnd() const { return FALSE; }
    virtual BOOL IsTabbed() const;
    /// Whether the pane is meant to be seen, though its frame or another tab may hide it.
    virtual BOOL IsVisible() const;
    BOOL IsPaneVisible() const { return m_hWnd != nullptr && (GetStyle() & WS_VISIBLE) != 0; }
    /// Whether the pane was to be seen when its state was saved.
    virtual BOOL GetRecentVisibleState() const { return m_bRecentVisibleState; }
    BOOL IsRestoredFromRegistry() const { return m_bRestoredFromRegistry; }
    /// The frame that floats the pane, or null; with `bNoAssert` nothing is checked (kept for callers).
    virtual CPaneFrameWnd* GetParentMiniFrame(BOOL bNoAssert = FALSE) const;
    /// The frame window whose docking manager lays the pane out, also while it floats.
    virtual CWnd* GetDockSiteFrameWnd() const { return m_pDockSite; }
    /// The tabbed pane that holds the pane, or null; the tab control in it, or null.
    CBaseTabbedPane* GetParentTabbedPane() const;
    CMFCBaseTabCtrl* GetParentTabWnd(HWND& hWndTab) const;
    void GetPaneName(CString& strName) const { GetWindowText(strName); }

    // Docking.
    /// Registers the pane with the manager of its frame.
    virtual void AddPane(CBasePane* pBar);
    virtual BOOL DockPane(CBasePane*, LPCRECT, AFX_DOCK_METHOD) { return FALSE; }
    virtual BOOL DockToFrameWindow(DWORD dwAlignment, LPCRECT lpRect = nullptr,
                                   DWORD dwDockFlags = DT_DOCK_LAST, CBasePane* pRelativeBar = nullptr,
                                   int nRelativeIndex = -1, BOOL bOuterEdge = FALSE);
    virtual BOOL FloatPane(CRect rectFloat, AFX_DOCK_METHOD dockMethod = DM_UNKNOWN, bool bShow = true);
    virtual void UndockPane(BOOL bDelay = FALSE);
    /// Shows or hides the pane and lays the frame out, with `bDelay` when the program is next idle.
    virtual void ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate);
    virtual void RemovePaneFromDockManager(CBasePane* pBar, BOOL bDestroy, BOOL bAdjustLayout,
                                           BOOL bAutoHide = FALSE, CBasePane* pBarReplacement = nullptr);
    /// Lays out everything in the frame of the pane; several changes may share one by a batch.
    virtual void AdjustDockingLayout(HDWP hdwp = nullptr);
    /// The inside of the pane.
    virtual void AdjustLayout() {}
    virtual void RecalcLayout() {}
    virtual CPaneFrameWnd* CreateDefaultMiniframe(CRect rectInitial);
    virtual void CopyState(CBasePane* pOrgBar);
    /// The size of a fixed pane in pixels; 32767 for all the room.
    virtual CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz);
    virtual void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler);
    virtual void OnAfterChangeParent(CWnd* pWndOldParent);
    virtual void OnBeforeChangeParent(CWnd* pWndNewParent, BOOL bDelay = FALSE);
    virtual HDWP MoveWindow(CRect& rect, BOOL bRepaint = TRUE, HDWP hdwp = nullptr);
    virtual HDWP SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags,
                              HDWP hdwp = nullptr);
    /// The pane's rectangle in screen coordinates.
    virtual void GetPaneRect(CRect& rect) const { GetWindowRect(rect); }
    void SetDockSite(CWnd* pDockSite) { m_pDockSite = pDockSite; }
    CDockingManager* GetDockingManager() const;

    // State under "BasePanes" of the profile; a key for each pane. FALSE, and nothing changed, when there is
    // none or it is damaged.
    virtual BOOL LoadState(LPCTSTR lpszProfileName = nullptr, int nIndex = -1,
                           UINT uiID = static_cast<UINT>(-1));
    virtual BOOL SaveState(LPCTSTR lpszProfileName = nullptr, int nIndex = -1,
                           UINT uiID = static_cast<UINT>(-1));

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL DestroyWindow() override { return CWnd::DestroyWindow(); }
    BOOL PreTranslateMessage(MSG* pMsg) override;

    /// Whether panes inside this one are tabs.
    virtual bool holds_tabs() const { return false; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    /// Fills the pane where it draws nothing else.
    virtual void DoPaint(CDC* pDC);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg LRESULT OnSizeParent(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    DWORD m_dwStyle = 0;             ///< CBRS_ styles
    DWORD m_dwControlBarStyle = 0;   ///< AFX_CBRS_ styles
    DWORD m_dwEnabledAlignment = 0;  ///< CBRS_ALIGN_ bits
    AFX_DOCK_TYPE m_dockMode = DT_UNDEFINED;
    CWnd* m_pDockSite = nullptr;  ///< the frame window
    BOOL m_bHasGripper = FALSE;   ///< there is a caption
    BOOL m_bRecentVisibleState = TRUE;
    BOOL m_bRestoredFromRegistry = FALSE;
    bool m_isShown = true;  ///< to be seen, as ShowPane left it

    friend class CDockingManager;
    friend class CPaneFrameWnd;
    friend class CMultiPaneFrameWnd;
};
