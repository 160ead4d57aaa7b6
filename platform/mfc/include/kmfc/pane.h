// CPane: a pane that floats, and remembers its places.
#pragma once

#include <kmfc/base_pane.h>
#include <kmfc/recent_dock_info.h>

/// A pane that knows how to float and what its least size is. Derive from CDockablePane for one that docks.
class KMFC_API CPane : public CBasePane {
    DECLARE_DYNCREATE(CPane)
public:
    CPane();
    ~CPane() override;

    CRecentDockSiteInfo m_recentDockInfo;

    /// The least size in pixels that dividers and frames leave the pane.
    virtual void GetMinSize(CSize& size) const { size = m_sizeMin; }
    void SetMinSize(const CSize& size) { m_sizeMin = size; }
    /// Class of the frame that floats the pane, derived from CPaneFrameWnd; null for the default.
    virtual void SetMiniFrameRTC(CRuntimeClass* pClass) { m_pMiniFrameRTC = pClass; }
    CPaneFrameWnd* CreateDefaultMiniframe(CRect rectInitial) override;
    /// Called when the user presses the close button: hides the pane.
    virtual void OnPressCloseButton();
    virtual BOOL ToggleAutoHide() { return FALSE; }
    /// FALSE keeps the pane out of the menu of panes.
    virtual BOOL AllowShowOnPaneMenu() const { return TRUE; }
    /// The menu of the pane at `point` (screen); FALSE when there is none.
    virtual BOOL OnShowControlBarMenu(CPoint point);
    virtual BOOL IsDragMode() const { return m_bDragMode; }
    virtual CPoint GetHotSpot() const { return m_ptHotSpot; }
    virtual void CopyState(CPane* pOrgBar);
    using CBasePane::CopyState;
    BOOL IsInFloatingMultiPaneFrameWnd() const override;
    void CalcRecentDockedRect() { m_recentDockInfo.StoreDockInfo(); }
    BOOL FloatPane(CRect rectFloat, AFX_DOCK_METHOD dockMethod = DM_UNKNOWN, bool bShow = true) override;
    BOOL LoadState(LPCTSTR lpszProfileName = nullptr, int nIndex = -1,
                   UINT uiID = static_cast<UINT>(-1)) override;
    BOOL SaveState(LPCTSTR lpszProfileName = nullptr, int nIndex = -1,
                   UINT uiID = static_cast<UINT>(-1)) override;

    /// The frame that floats the pane, also for one that the user may not float; null when it can't be made.
    CPaneFrameWnd* make_miniframe(const CRect& rect);

protected:
    /// Called around docking and floating; FALSE from a question leaves the pane as it is.
    virtual BOOL OnBeforeFloat(CRect& rectFloat, AFX_DOCK_METHOD dockMethod);
    virtual BOOL OnAfterFloat();
    virtual BOOL OnBeforeDock(CBasePane** ppDockBar, LPCRECT lpRect, AFX_DOCK_METHOD dockMethod);
    virtual void OnAfterDock(CBasePane* pBar, LPCRECT lpRect, AFX_DOCK_METHOD dockMethod);

    CSize m_sizeMin{0, 0};
    CRuntimeClass* m_pMiniFrameRTC = nullptr;
    BOOL m_bDragMode = FALSE;    ///< the user drags the pane
    CPoint m_ptHotSpot{0, 0};    ///< where in the window, pixels
    DWORD m_dwStateVersion = 0;  ///< of the state that was read last

    friend class CDockingManager;
    friend class CPaneFrameWnd;
    friend class CMultiPaneFrameWnd;
};
