// CFrameWnd: a main window with menu, accelerators, status messages and command routing.
#pragma once

#include <afxcoll.h>
#include <kmfc/app.h>

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

    BOOL LoadAccelTable(LPCTSTR lpszResourceName);
    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, LPCTSTR lpszMenuName = nullptr,
                DWORD dwExStyle = 0, void* pContext = nullptr);
    /// Creates the frame with the menu, accelerators, icon and title string of one resource id.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FS_ADDTOTITLE,
                           CWnd* pParentWnd = nullptr, void* pContext = nullptr);
    static constexpr DWORD FS_ADDTOTITLE = 0x8000;

    BOOL IsFrameWnd() const override { return TRUE; }
    virtual CFrameWnd* GetActiveFrame() { return this; }
    CString GetTitle() const { return m_strTitle; }
    void SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; }
    /// Text of command or message `nID`, the part before the line break; empty when there is none.
    virtual void GetMessageString(UINT nID, CString& rMessage) const;
    /// Shows `lpszText` where the frame shows messages.
    void SetMessageText(LPCTSTR lpszText);
    void SetMessageText(UINT nID);
    virtual CWnd* GetMessageBar() { return nullptr; }
    virtual void ActivateFrame(int nCmdShow = -1);
    void BeginModalState();
    void EndModalState();
    BOOL InModalState() const { return m_cModalStack != 0; }

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);
    afx_msg LRESULT OnSetMessageString(WPARAM wParam, LPARAM lParam);

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void PostNcDestroy() override;

    CString m_strTitle;
    UINT m_nIDTracking = 0;
    UINT m_nIDLastMessage = 0;
    int m_cModalStack = 0;
    CDWordArray m_disabledWindows;  ///< windows that BeginModalState disabled (low words of their handles)

    DECLARE_MESSAGE_MAP()
};
