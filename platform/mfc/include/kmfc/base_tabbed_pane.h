// CBaseTabbedPane: a pane whose inside is a tab control with panes.
#pragma once

#include <memory>

#include <kmfc/base_tab_ctrl.h>
#include <kmfc/dockable_pane.h>
#include <kmfc/lists.h>

/// What holds panes in tabs. Derive from CTabbedPane. When one pane is left by the user's doing, it takes
/// this one's place and this one goes; when none is left, this one goes too (see SetAutoDestroy).
class KMFC_API CBaseTabbedPane : public CDockablePane {
    DECLARE_DYNAMIC(CBaseTabbedPane)
public:
    explicit CBaseTabbedPane(BOOL bAutoDestroy = FALSE);
    ~CBaseTabbedPane() override;

    /// The tab control; null before the pane has a window.
    CMFCBaseTabCtrl* GetUnderlyingWindow() { return m_pTabWnd; }
    virtual BOOL IsHideSingleTab() const { return TRUE; }

    /// Adds a pane as a tab. Of another tabbed pane it takes all tabs and destroys it; then the answer is
    /// FALSE.
    virtual BOOL AddTab(CWnd* pNewBar, BOOL bVisible = TRUE, BOOL bSetActive = TRUE, BOOL bDetachable = TRUE);
    /// Takes a pane out of the tabs. It stays a hidden child of the frame. FALSE when it has no tab here.
    virtual BOOL RemovePane(CWnd* pBar);
    virtual BOOL ShowTab(CWnd* pBar, BOOL bShow, BOOL bDelay, BOOL bActivate);
    /// Takes a pane out and makes it float, or hides it. FALSE for a pane that isn't here.
    virtual BOOL DetachPane(CWnd* pBar, BOOL bHide = FALSE);
    /// The same for a detachable tab, which is dragged from here on with DM_MOUSE, and goes to the place
    /// where it floated last with DM_DBL_CLICK.
    virtual BOOL FloatTab(CWnd* pBar, int nTabID, AFX_DOCK_METHOD dockMethod, BOOL bHide = FALSE);
    virtual CWnd* FindPaneByID(UINT uBarID);
    virtual CWnd* FindBarByTabNumber(int nTabNum, BOOL bGetWrappedBar = FALSE);
    /// Adds the panes to a list; with a class, those of that class.
    virtual void GetPaneList(CObList& lst, CRuntimeClass* pRTCFilter = nullptr);
    virtual int GetTabsNum() const;
    virtual int GetVisibleTabsNum() const;
    virtual CWnd* GetFirstVisibleTab(int& iTabNum);
    /// With TRUE the pane is deleted when its last tab has gone.
    void SetAutoDestroy(BOOL bAutoDestroy = TRUE) { m_bAutoDestroy = bAutoDestroy; }
    virtual BOOL AllowDestroyEmptyTabbedPane() const { return TRUE; }
    /// The caption shows the active tab's label. It does unless this is called with FALSE.
    virtual void EnableSetCaptionTextToTabName(BOOL bEnable);
    virtual BOOL CanSetCaptionTextToTabName() const { return m_bSetCaptionTextToTabName; }
    virtual void ApplyRestoredTabInfo(BOOL bUseTabIndexes = FALSE);
    /// The tab control's part of Serialize.
    virtual void SerializeTabWindow(CArchive& ar);
    void Serialize(CArchive& ar) override;

    BOOL CanFloat() const override;
    BOOL HasAutoHideMode() const override;
    void GetMinSize(CSize& size) const override;
    HICON GetPaneIcon(BOOL bBigIcon) override;
    void GetTabArea(CRect& rectTabAreaTop, CRect& rectTabAreaBottom) const override;
    void RecalcLayout() override;
    /// Hides the active tab; with the last one this pane hides too.
    void OnPressCloseButton() override;
    bool holds_tabs() const override { return true; }
    /// Takes a pane's present name over to its tab.
    void rename_tab(const CDockablePane& pane);

    /// A tab's pane is being destroyed.
    void forget_tab(CDockablePane* pane);

protected:
    void PostNcDestroy() override;
    /// Ends this pane or puts the one that is left in its place.
    virtual void tabs_have_gone();
    void show_active_name();
    void take_tabs_of(CBaseTabbedPane& other);
    void go_later();
    BOOL show_hidden_tabs(bool any);

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnGoLater(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnChangeActiveTab(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    /// Makes the tab control, which fills this pane from here on and is deleted with it.
    virtual CMFCBaseTabCtrl* create_tab_window() = 0;
    /// The pane of a tab, or null.
    CDockablePane* pane_of_tab(int index) const;

    CMFCBaseTabCtrl* m_pTabWnd = nullptr;  ///< owned
    BOOL m_bAutoDestroy;
    BOOL m_bSetCaptionTextToTabName = TRUE;

private:
    struct Owner;
    std::unique_ptr<kmfc::TabOwner> m_tabOwner;
};
