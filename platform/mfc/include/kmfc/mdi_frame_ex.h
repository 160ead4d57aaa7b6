// CMDIFrameWndEx and CMDIChildWndEx: frames of several documents whose panes dock and whose documents have
// tabs.
#pragma once

#include <memory>

#include <kmfc/docking_frame.h>
#include <kmfc/mdi_frame.h>
#include <kmfc/tab_window.h>

namespace kmfc::docking {
class DocumentTabs;
}

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
    /// `pnMDITabsType` gets 1 with tabs and 0 without.
    BOOL AreMDITabs(int* pnMDITabsType = nullptr) const;
    /// It has no window while there are no tabs.
    CMFCTabCtrl& GetMDITabs();

    void RecalcLayout(BOOL bNotify = TRUE) override;

    kmfc::docking::DocumentTabs& document_tabs() { return *m_tabs; }

protected:
    /// The documents' room changed; client coordinates of the frame.
    virtual BOOL OnSizeMDIClient(const CRect& rectOld, const CRect& rectNew);

    afx_msg LRESULT OnChangeActiveTab(WPARAM wParam, LPARAM lParam);
    afx_msg void OnUpdateArranging(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    std::unique_ptr<kmfc::docking::DocumentTabs> m_tabs;
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
    kmfc::docking::DocumentTabs* tabs() const;
};
