// CTabbedPane: panes in tabs.
#pragma once

#include <kmfc/base_tabbed_pane.h>
#include <kmfc/tab_window.h>

/// What CDockablePane::AttachToTabWnd makes, or an application itself. Its tabs can be torn off.
class KMFC_API CTabbedPane : public CBaseTabbedPane {
    DECLARE_DYNCREATE(CTabbedPane)
public:
    explicit CTabbedPane(BOOL bAutoDestroy = FALSE);
    ~CTabbedPane() override;

    static BOOL m_bTabsAlwaysTop;  ///< of panes that are made from here on: tabs are at the top
    static CRuntimeClass*
        m_pTabWndRTC;  ///< class of the tab control, derived from CMFCTabCtrl; null for that

    CMFCTabCtrl* GetTabWnd() const { return static_cast<CMFCTabCtrl*>(m_pTabWnd); }
    BOOL IsTabLocationBottom() const override;

    // For all tabbed panes of the program.
    static void EnableTabAutoColor(BOOL bEnable = TRUE);
    static void SetTabAutoColors(const CArray<COLORREF, COLORREF>& arColors);
    /// Border sizes and automatic colours are as they were at first.
    static void ResetTabs();

protected:
    CMFCBaseTabCtrl* create_tab_window() override;
    DECLARE_MESSAGE_MAP()

    static BOOL m_bTabsAutoColor;
};
