// CFrameWnd: a main window with menu, accelerators, status messages and command routing.
#pragma once

#include <memory>

#include <afxcoll.h>
#include <kmfc/app.h>
#include <kmfc/control_bar.h>
#include <kmfc/create_context.h>

class CDockState;
struct CPrintPreviewState;
namespace kmfc {
class ControlBarDesk;
}  // namespace kmfc

// Styles of frames, beside those of windows.
constexpr DWORD FWS_ADDTOTITLE = 0x8000;   ///< the title names the document
constexpr DWORD FWS_PREFIXTITLE = 0x4000;  ///< ... before the program's name
constexpr DWORD FWS_SNAPTOBARS = 0x2000;   ///< the frame is as large as its bar

/// Sent to a frame when a tool's message is over: shows message `wParam`, unless a menu's is up.
constexpr UINT WM_POPMESSAGESTRING = 0x0375;

class KMFC_API CFrameWnd : public CWnd {
    DECLARE_DYNCREATE(CFrameWnd)
public:
    CFrameWnd();
    ~CFrameWnd() override;

    static const CRect rectDefault;
    HACCEL m_hAccelTable = nullptr;
    BOOL m_bAutoMenuEnable = TRUE;  ///< menu items without a handler are disabled
    UINT m_nIdleFlags = 0;
    BOOL m_bStayDisabled = FALSE;
    int m_nWindow = -1;  ///< number of the frame among those of its document; -1 for an only one

    BOOL LoadAccelTable(LPCTSTR lpszResourceName);
    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, LPCTSTR lpszMenuName = nullptr,
                DWORD dwExStyle = 0, CCreateContext* pContext = nullptr);
    /// Creates the frame with the menu, accelerators, icon and title string of one resource id.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr);

    BOOL IsFrameWnd() const override { return TRUE; }
    virtual CFrameWnd* GetActiveFrame() { return this; }
    CString GetTitle() const { return m_strTitle; }
    void SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; }
    /// Text of command or message `nID`, the part before the line break; empty when there is none.
    virtual void GetMessageString(UINT nID, CString& rMessage) const;
    /// Shows `lpszText` where the frame shows messages.
    void SetMessageText(LPCTSTR lpszText);
    void SetMessageText(UINT nID);
    /// The bar that shows messages: the one with AFX_IDW_STATUS_BAR, or null.
    virtual CWnd* GetMessageBar();
    /// Gives the bars and the view (AFX_IDW_PANE_FIRST) their places; called at each change of size.
    virtual void RecalcLayout(BOOL bNotify = TRUE);
    /// Shows or hides a bar of the frame and lays out anew; with `bDelay` at the next layout that comes.
    void ShowControlBar(CControlBar* pBar, BOOL bShow, BOOL bDelay);
    /// The bar with `nID`, or null; docked and floating ones too.
    CControlBar* GetControlBar(UINT nID);

    // Control bars that dock. Bars take part by CControlBar::EnableDocking.
    /// Lets bars dock at the edges of CBRS_ALIGN_ styles.
    void EnableDocking(DWORD dwDockStyle);
    /// Docks a bar at an edge (AFX_IDW_DOCKBAR_TOP …), or for 0 at the first one of top, bottom, left and
    /// right that bar and frame allow: in a row of its own inside of the others, or in the row that the
    /// middle of `lpRect` (screen coordinates) is in, behind the bars that begin before it. A bar that may
    /// not dock there floats where it is.
    void DockControlBar(CControlBar* pBar, UINT nDockBarID = 0, LPCRECT lpRect = nullptr);
    /// Floats a bar with its frame's corner at a point of the screen: along a row for CBRS_ALIGN_TOP and
    /// CBRS_ALIGN_BOTTOM, upright for the left and the right only.
    void FloatControlBar(CControlBar* pBar, CPoint point, DWORD dwStyle = CBRS_ALIGN_TOP);
    void GetDockState(CDockState& state) const;
    /// Puts the bars that the state knows where it says; the others keep their edge. A floating frame comes
    /// back where its caption can be reached.
    void SetDockState(const CDockState& state);
    /// The same by the program's profile; a profile without the state changes nothing.
    void LoadBarState(LPCTSTR lpszProfileName);
    void SaveBarState(LPCTSTR lpszProfileName) const;
    virtual void ActivateFrame(int nCmdShow = -1);
    /// Into a print preview and out of it: menu, accelerators and main pane go and come back, and the bars
    /// that are shown change with those of `pState`. The caller lays out anew.
    virtual void OnSetPreviewMode(BOOL bPreview, CPrintPreviewState* pState);

    // The document and its views.
    /// A view of the context's class as a child window; null when it can't be made.
    CWnd* CreateView(CCreateContext* pContext, UINT nID = AFX_IDW_PANE_FIRST);
    CView* GetActiveView() const { return m_pViewActive; }
    /// Makes a view of the frame the active one, or none; with `bNotify` both views are told.
    void SetActiveView(CView* pViewNew, BOOL bNotify = TRUE);
    /// The document of the active view, or null.
    virtual CDocument* GetActiveDocument();
    /// Makes the client area of the frame: by default the view that the context names. FALSE fails the frame.
    virtual BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext);
    /// First update of the views in the frame, and with `bMakeVisible` its show.
    void InitialUpdateFrame(CDocument* pDoc, BOOL bMakeVisible);
    /// Sets the window's text, with the document's title if `bAddToTitle`; for frames with FWS_ADDTOTITLE.
    virtual void OnUpdateFrameTitle(BOOL bAddToTitle);
    /// The window's text for a document of that title; null for none.
    void UpdateFrameTitleForDocument(LPCTSTR lpszDocName);
    void BeginModalState() override;
    void EndModalState() override;
    BOOL InModalState() const { return m_cModalStack != 0; }

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnDropFiles(HDROP hDropInfo);
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL bEnding);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg LRESULT OnSetMessageString(WPARAM wParam, LPARAM lParam);
    /// Help for the menu item that is tracked, or else for the frame.
    afx_msg LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPopMessageString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM lParam);
    /// Answers a tip: the second line of the string of the tool's command.
    afx_msg BOOL OnToolTipText(UINT nID, NMHDR* pNMHDR, LRESULT* pResult);
    /// Checks the menu item of the bar with the item's id when the bar is visible.
    afx_msg void OnUpdateControlBarMenu(CCmdUI* pCmdUI);
    /// Shows or hides the bar with that id; FALSE without one.
    afx_msg BOOL OnBarCheck(UINT nID);
    /// Enables the pane of a key that is on.
    afx_msg void OnUpdateKeyIndicator(CCmdUI* pCmdUI);

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

    /// Default processing of WM_CREATE, the client area, the first layout. -1 when the frame is not to be.
    int OnCreateHelper(LPCREATESTRUCT lpcs, CCreateContext* pContext);

    CString m_strTitle;
    CView* m_pViewActive = nullptr;
    CRect m_rectBorder{0, 0, 0, 0};            ///< room to leave around the view, on each side
    UINT m_nIDHelp = 0;                        ///< LoadFrame's resource id
    UINT m_nIDTracking = AFX_IDS_IDLEMESSAGE;  ///< the command whose message is due
    UINT m_nIDLastMessage = 0;
    int m_cModalStack = 0;
    CDWordArray m_disabledWindows;  ///< windows that BeginModalState disabled (low words of their handles)

    DECLARE_MESSAGE_MAP()

private:
    CString m_tipText;                             ///< what the tip that is up shows
    bool m_isMenuUp = false;                       ///< a menu's message is shown
    bool m_isLayoutPending = false;                ///< a bar waits to be shown or hidden
    std::unique_ptr<kmfc::ControlBarDesk> m_bars;  ///< those that dock; made by the first call that needs it

    CPrintPreviewState* m_pPreviewState = nullptr;  ///< the preview's, while there is one

    kmfc::ControlBarDesk& bars();
    friend class CControlBar;
    friend class CView;
};
