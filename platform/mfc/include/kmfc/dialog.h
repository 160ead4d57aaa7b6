// CDialog: modal and modeless dialog boxes on the framework's own modal loop.
#pragma once

#include <kmfc/app.h>

class KMFC_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    CDialog();
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    /// Creates a modeless dialog. FALSE when the template is missing, creation fails, or an exception leaves
    /// OnInitDialog, which destroys the window.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                                void* lpDialogInit = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr,
                                HINSTANCE hInst = nullptr);
    /// Prepares a modal dialog of a template in memory for DoModal.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                           void* lpDialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);

    /// Runs the dialog until EndDialog; its result. -1 when it could not be created or its initialisation
    /// failed, when its window was destroyed by others, and at WM_QUIT. IDABORT when a CException left the
    /// message loop. Throws what left a handler and is no CException. The window is gone and the owner
    /// enabled in any case.
    ///
    /// An exception of any type that leaves OnInitDialog makes the initialisation fail and goes no further,
    /// except that a CException is reported by CWinThread::ProcessWndProcException. A dialog that has failed
    /// is not shown.
    virtual INT_PTR DoModal();
    /// Ends DoModal with a result. In OnInitDialog: before the dialog is shown.
    void EndDialog(int nResult);

    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }
    void SetHelpID(UINT nIDR) { m_nIDHelp = nIDR; }
    DWORD GetDefID() const { return static_cast<DWORD>(::SendMessageW(m_hWnd, DM_GETDEFID, 0, 0)); }
    void SetDefID(UINT nID) { ::SendMessageW(m_hWnd, DM_SETDEFID, nID, 0); }

    /// TRUE lets the platform set the focus to the first control.
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont* pFont);

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    virtual void OnOK();      ///< UpdateData(TRUE), then EndDialog(IDOK)
    virtual void OnCancel();  ///< EndDialog(IDCANCEL)
    virtual void PreInitDialog();
    virtual BOOL SetOccDialogInfo(void*) { return TRUE; }
    BOOL CheckAutoCenter() override;

    /// Ends the window as EndDialog asks for it.
    virtual void end_window(int nResult);

    HWND PreModal();
    void PostModal();

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);

    UINT m_nIDHelp = 0;
    LPCTSTR m_lpszTemplateName = nullptr;
    HGLOBAL m_hDialogTemplate = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    void* m_lpDialogInit = nullptr;
    CWnd* m_pParentWnd = nullptr;
    HWND m_hWndTop = nullptr;

    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateFromTemplate(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst,
                            void* lpDialogInit);
    void RunCreated();
    void EndModal(HWND parent, bool enableParent);

    friend INT_PTR CALLBACK AfxDlgProc(HWND, UINT, WPARAM, LPARAM);
};
