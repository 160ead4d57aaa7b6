// DockingFrame: what frames with a docking manager share.
#pragma once

#include <kmfc/base_pane.h>
#include <kmfc/docking_manager.h>

/// A frame of class `Frame` with a docking manager. Derived classes name its handlers in their message maps.
/// In a program of class CWinAppEx the frame's place and its panes' layout come back in LoadFrame, and are
/// kept when the main window is asked to close.
template <class Frame>
class DockingFrame : public Frame {
public:
    // See CDockingManager.
    CDockingManager* GetDockingManager() { return &m_dockManager; }
    BOOL EnableDocking(DWORD dwDockStyle) { return m_dockManager.EnableDocking(dwDockStyle); }
    BOOL EnableAutoHidePanes(DWORD dwDockStyle) { return m_dockManager.EnableAutoHidePanes(dwDockStyle); }
    BOOL AddPane(CBasePane* pControlBar, BOOL bTail = TRUE) {
        return m_dockManager.AddPane(pControlBar, bTail);
    }
    BOOL InsertPane(CBasePane* pControlBar, CBasePane* pTarget, BOOL bAfter = TRUE) {
        return m_dockManager.InsertPane(pControlBar, pTarget, bAfter);
    }
    void RemovePaneFromDockManager(CBasePane* pControlBar, BOOL bDestroy, BOOL bAdjustLayout, BOOL bAutoHide,
                                   CBasePane* pBarReplacement) {
        m_dockManager.RemovePaneFromDockManager(pControlBar, bDestroy, bAdjustLayout, bAutoHide,
                                                pBarReplacement);
    }
    void DockPane(CBasePane* pBar, UINT nDockBarID = 0, LPCRECT lpRect = nullptr) {
        m_dockManager.DockPane(pBar, nDockBarID, lpRect);
    }
    BOOL DockPaneLeftOf(CPane* pBar, CPane* pLeftOf) { return m_dockManager.DockPaneLeftOf(pBar, pLeftOf); }
    CBasePane* GetPane(UINT nID) { return m_dockManager.FindPaneByID(nID, TRUE); }
    void ShowPane(CBasePane* pBar, BOOL bShow, BOOL bDelay, BOOL bActivate) {
        pBar->ShowPane(bShow, bDelay, bActivate);
    }
    CBasePane* PaneFromPoint(CPoint point, int nSensitivity, bool bExactBar,
                             CRuntimeClass* pRTCBarType) const {
        return m_dockManager.PaneFromPoint(point, nSensitivity, bExactBar, pRTCBarType);
    }
    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                   CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr) override {
        if (!Frame::LoadFrame(nIDResource, dwDefaultStyle, pParentWnd, pContext)) return FALSE;
        m_dockManager.frame_is_loaded();
        return TRUE;
    }
    virtual void AdjustDockingLayout(HDWP hdwp = nullptr) { m_dockManager.AdjustDockingLayout(hdwp); }
    void RecalcLayout(BOOL bNotify = TRUE) override {
        m_dockManager.layout_frame(this->m_rectBorder, [&] { Frame::RecalcLayout(bNotify); });
    }
    /// The bar that shows the frame's menu; null without one.
    const CMFCMenuBar* GetMenuBar() const { return m_dockManager.menu_bar(); }
    BOOL PreTranslateMessage(MSG* pMsg) override {
        return m_dockManager.ends_drag(*pMsg) || m_dockManager.opens_menu(*pMsg) ||
               Frame::PreTranslateMessage(pMsg);
    }
    void OnSetPreviewMode(BOOL bPreview, CPrintPreviewState* pState) override {
        Frame::OnSetPreviewMode(bPreview, pState);
        m_dockManager.SetPrintPreviewMode(bPreview, pState);
    }
    /// Whether a print preview stands in the frame.
    BOOL IsPrintPreview() { return m_dockManager.IsPrintPreviewValid(); }
    /// Called after panes were shown or hidden together.
    virtual BOOL OnShowPanes(BOOL bShow) {
        m_dockManager.ShowPanes(bShow);
        return TRUE;
    }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct) {
        m_dockManager.Create(this);
        return Frame::OnCreate(lpCreateStruct);
    }
    afx_msg void OnClose() {
        m_dockManager.frame_closes();
        Frame::OnClose();
    }
    afx_msg void OnDestroy() {
        m_dockManager.frame_goes();
        Frame::OnDestroy();
    }
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
        Frame::OnActivate(nState, pWndOther, bMinimized);
        m_dockManager.OnActivateFrame(nState != WA_INACTIVE);
    }
    afx_msg BOOL OnNcActivate(BOOL bActive) {
        return Frame::OnNcActivate(bActive || m_dockManager.stays_active());
    }
    afx_msg void OnSysCommand(UINT nID, LPARAM lParam) {
        if (!m_dockManager.enters_menu(nID, lParam)) Frame::OnSysCommand(nID, lParam);
    }
    afx_msg LRESULT OnFrameMenu(WPARAM wParam, LPARAM) {
        return m_dockManager.show_menu(reinterpret_cast<HMENU>(wParam));
    }
    /// Checks the menu item of the pane with the item's id when the pane is to be seen; shows or hides it.
    /// Classic bars are the frame's.
    afx_msg void OnUpdatePaneMenu(CCmdUI* pCmdUI) {
        if (CBasePane* const pane = GetPane(pCmdUI->m_nID))
            pCmdUI->SetCheck(pane->IsVisible() ? 1 : 0);
        else
            Frame::OnUpdateControlBarMenu(pCmdUI);
    }
    afx_msg BOOL OnPaneCheck(UINT nID) {
        CBasePane* const pane = GetPane(nID);
        if (pane == nullptr) return Frame::OnBarCheck(nID);
        pane->ShowPane(!pane->IsVisible(), FALSE, FALSE);
        return TRUE;
    }
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam) {
        m_dockManager.on_idle();
        return Frame::OnIdleUpdateCmdUI(wParam, lParam);
    }

    CDockingManager m_dockManager;
};
