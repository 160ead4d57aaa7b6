// CMDIFrameWnd and CMDIChildWnd: a main window with document windows inside it.
#pragma once

#include <kmfc/frame.h>

class CMDIChildWnd;

/// The main window of a program with several documents. The window of class MDICLIENT inside it (see
/// CreateClient) holds the CMDIChildWnd frames. Commands go to the active child first.
class KMFC_API CMDIFrameWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIFrameWnd)
public:
    CMDIFrameWnd();
    ~CMDIFrameWnd() override;

    HWND m_hWndMDIClient = nullptr;

    /// Makes the client window; its menu of windows is `pWindowMenu`.
    virtual BOOL CreateClient(LPCREATESTRUCT lpCreateStruct, CMenu* pWindowMenu);
    /// The submenu of `hMenuBar` with the commands for windows (ID_WINDOW_…), or null.
    virtual HMENU GetWindowMenuPopup(HMENU hMenuBar);
    /// A new child frame of class `pClass` with the resources of `nResource`; null when it can't be made.
    CMDIChildWnd* CreateNewChild(CRuntimeClass* pClass, UINT nResource, HMENU hMenu = nullptr,
                                 HACCEL hAccel = nullptr);

    void MDIActivate(CWnd* pWndActivate);
    /// The active child or null; whether it is maximised.
    CMDIChildWnd* MDIGetActive(BOOL* pbMaximized = nullptr) const;
    void MDIIconArrange();
    void MDIMaximize(CWnd* pWnd);
    void MDINext();
    void MDIPrev();
    void MDIRestore(CWnd* pWnd);
    /// Gives the frame another menu; the former.
    CMenu* MDISetMenu(CMenu* pFrameMenu, CMenu* pWindowMenu);
    void MDITile();
    void MDITile(int nType);  ///< MDITILE_HORIZONTAL, MDITILE_VERTICAL, with MDITILE_SKIPDISABLED
    void MDICascade();
    void MDICascade(int nType);

    CFrameWnd* GetActiveFrame() override;
    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                   CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr) override;
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL OnCreateClient(LPCREATESTRUCT lpcs, CCreateContext* pContext) override;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnUpdateMDIWindowCmd(CCmdUI* pCmdUI);
    afx_msg BOOL OnMDIWindowCmd(UINT nID);
    afx_msg void OnWindowNew();

    HMENU m_hMenuDefault = nullptr;  ///< the menu without a child

    DECLARE_MESSAGE_MAP()

    friend class CMDIChildWnd;
};

/// A frame inside a CMDIFrameWnd. It has no menu of its own: the main window shows m_hMenuShared while the
/// child is active.
class KMFC_API CMDIChildWnd : public CFrameWnd {
    DECLARE_DYNCREATE(CMDIChildWnd)
public:
    CMDIChildWnd();
    ~CMDIChildWnd() override;

    HMENU m_hMenuShared = nullptr;  ///< not owned

    /// `pParentWnd` is the main window, by default the application's.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CMDIFrameWnd* pParentWnd = nullptr,
                        CCreateContext* pContext = nullptr);
    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd,
                   CCreateContext* pContext = nullptr) override;
    CMDIFrameWnd* GetMDIFrame();
    void MDIDestroy();
    void MDIActivate();
    void MDIMaximize();
    void MDIRestore();
    /// Menu and accelerators for while the child is active; the caller's.
    void SetHandles(HMENU hMenu, HACCEL hAccel);

    void ActivateFrame(int nCmdShow = -1) override;
    void OnUpdateFrameTitle(BOOL bAddToTitle) override;
    BOOL DestroyWindow() override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    CWnd* GetMessageBar() override;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);

    DECLARE_MESSAGE_MAP()
};
