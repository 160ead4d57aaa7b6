// CMDIFrameWndEx and CMDIChildWndEx: frames of several documents whose panes dock and whose documents have
// tabs.
#pragma once

#include <memory>

#include <kmfc/docking_frame.h>
#include <kmfc/mdi_frame.h>
#include <kmfc/mdi_tab_info.h>
#include <kmfc/tab_window.h>

namespace kmfc::docking {
class DocumentGroups;
class DocumentHolder;
class DocumentTabs;
}  // namespace kmfc::docking

class CMDIChildWndEx;

/// The main window of a program with several documents, with a docking manager.
class KMFC_API CMDIFrameWndEx : public DockingFrame<CMDIFrameWnd> {
    DECLARE_DYNCREATE(CMDIFrameWndEx)
public:
    CMDIFrameWndEx();
    ~CMDIFrameWndEx() override;

    /// Shows a tab for each document window, above or below the documents, which fill all the room then. Call
    /// it when the frame's window is there. With `bTabCustomTooltips` the frame is asked for the tips
    /// (AFX_WM_ON_GET_TAB_TOOLTIP). FALSE takes the tabs away; the documents stay as large as they are.
    void EnableMDITabs(BOOL bEnable = TRUE, BOOL bIcons = TRUE,
                       CMFCTabCtrl::Location tabLocation = CMFCTabCtrl::LOCATION_BOTTOM,
                       BOOL bTabCloseButton = FALSE,
                       CMFCTabCtrl::Style style = CMFCTabCtrl::STYLE_3D_SCROLLED,
                       BOOL bTabCustomTooltips = FALSE, BOOL bActiveTabCloseButton = FALSE);
    /// After the active document has gone, the one that was active before it becomes active, and not its
    /// neighbour.
    void EnableMDITabsLastActiveActivation(BOOL bLastActiveTab = TRUE);
    /// Shows documents in groups side by side or one below the other, each with a strip of tabs and a divider
    /// between them; all are in one group at first. The user drags tabs from group to group, or to the edge
    /// of one as a new group; a group that empties goes. Documents have no frame of their own meanwhile. TRUE
    /// again applies other parameters; FALSE, for which they don't matter, gives the frames back. Tabs of
    /// EnableMDITabs and groups take each other's place. AFX_WM_ON_MOVETOTABGROUP tells the frame of each
    /// document that changes its group.
    void EnableMDITabbedGroups(BOOL bEnable, const CMDITabInfo& params);
    BOOL IsMDITabbedGroup() const;
    /// Moves the active document into a new group behind its own: beside it, or below it for FALSE. Nothing
    /// where GetMDITabsContextMenuAllowedItems doesn't allow it.
    void MDITabNewGroup(BOOL bVert = TRUE);
    /// Moves the active document into the next group or the one before; nothing without one.
    void MDITabMoveToNextGroup(BOOL bNext = TRUE);
    /// The strips of the groups (CMFCTabCtrl), from left to right or from top to bottom; none without groups.
    const CObList& GetMDITabGroups() const;
    BOOL IsMemberOfMDITabGroup(CWnd* pWnd);
    /// What the user may do with the active document, AFX_MDI_ bits: nothing with the only one of a group.
    /// All groups stand, or all lie.
    DWORD GetMDITabsContextMenuAllowedItems();
    /// A menu for the active document of a group at a point of the screen: asked for by a right click, or
    /// (`bTabDrop`) after a tab was dropped on the documents of another group. FALSE, as here, for no menu:
    /// then the click is a WM_CONTEXTMENU of the frame, and the tab goes where it was dropped.
    virtual BOOL OnShowMDITabContextMenu(CPoint /*point*/, DWORD /*dwAllowedItems*/, BOOL /*bTabDrop*/) {
        return FALSE;
    }
    /// `pnMDITabsType` gets 1 with tabs, 2 with groups and 0 without.
    BOOL AreMDITabs(int* pnMDITabsType = nullptr) const;
    /// It has no window while there are no tabs.
    CMFCTabCtrl& GetMDITabs();

    /// Keeps which documents are open, which is active, and in which groups they are, below the registry path
    /// `lpszProfileName` (CWinAppEx::GetRegSectionPath), or the application's own for null. Call it before
    /// the frame closes its documents. Documents without a name are left out, and how wide groups are isn't
    /// kept. FALSE if the registry can't be written.
    virtual BOOL SaveMDIState(LPCTSTR lpszProfileName);
    /// Opens those documents again, by CreateDocumentWindow, and puts them into groups where the frame shows
    /// groups. What can't be opened is left out. FALSE, and nothing is opened, if nothing was kept or it
    /// isn't whole.
    virtual BOOL LoadMDIState(LPCTSTR lpszProfileName);
    /// Opens a document that SaveMDIState kept, whose name is what GetDocumentName answered then; `pObj` is
    /// null. Null if it can't be opened, as here a file that isn't there.
    virtual CMDIChildWndEx* CreateDocumentWindow(LPCTSTR lpcszDocName, CObject* pObj);

    void RecalcLayout(BOOL bNotify = TRUE) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

    /// What shows the documents; null without tabs.
    kmfc::docking::DocumentHolder* document_holder();

protected:
    /// The documents' room changed; client coordinates of the frame.
    virtual BOOL OnSizeMDIClient(const CRect& rectOld, const CRect& rectNew);

    afx_msg LRESULT OnChangeActiveTab(WPARAM wParam, LPARAM lParam);
    afx_msg void OnUpdateArranging(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    std::unique_ptr<kmfc::docking::DocumentTabs> m_tabs;
    std::unique_ptr<kmfc::docking::DocumentGroups> m_groups;
    CRect m_clientRect{0, 0, 0, 0};
};

/// A document window of CMDIFrameWndEx.
class KMFC_API CMDIChildWndEx : public CMDIChildWnd {
    DECLARE_DYNCREATE(CMDIChildWndEx)
public:
    CMDIChildWndEx();
    ~CMDIChildWndEx() override;
    /// The docking manager of the main window, or null.
    CDockingManager* GetDockingManager() const;

    /// FALSE for a window that gets no tab.
    virtual BOOL CanShowOnMDITabs() { return TRUE; }
    /// What the tab says: the window's text.
    virtual CString GetFrameText() const;
    /// The tab's icon, which stays the window's; null for none.
    virtual HICON GetFrameIcon() const;

    /// What SaveMDIState keeps of the document: its path; null or empty for one that isn't kept. `pObj`, if
    /// not null, gets null. Good until the next call.
    virtual LPCTSTR GetDocumentName(CObject** pObj);

    void ActivateFrame(int nCmdShow = -1) override;
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;
    BOOL DestroyWindow() override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg LRESULT OnSetText(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    kmfc::docking::DocumentHolder* tabs() const;

    CString m_documentName;
};
