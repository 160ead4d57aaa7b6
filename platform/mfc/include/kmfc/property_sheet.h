// CPropertySheet: a dialog of several pages, chosen by tabs or, in a wizard, gone through one after another.
//
//     CPropertySheet sheet(L"Options");
//     GeneralPage general;
//     sheet.AddPage(&general);
//     if (sheet.DoModal() == IDOK) use(general.m_name);
#pragma once

#include <afxcoll.h>
#include <kmfc/property_page.h>

// Buttons of a sheet besides IDOK and IDCANCEL, and what DoModal of a wizard answers.
#ifndef ID_APPLY_NOW
#define ID_APPLY_NOW 0x3021
#endif
#ifndef ID_WIZBACK
#define ID_WIZBACK 0x3023
#endif
#ifndef ID_WIZNEXT
#define ID_WIZNEXT 0x3024
#endif
#ifndef ID_WIZFINISH
#define ID_WIZFINISH 0x3025
#endif

class CTabCtrl;

/// A property sheet. The pages stay the caller's and must outlive the window. Functions that take a page that
/// must not be null, or an index of one, throw CInvalidArgException for what is none.
class KMFC_API CPropertySheet : public CWnd {
    DECLARE_DYNAMIC(CPropertySheet)
public:
    CPropertySheet();
    /// `iSelectPage` is the page shown first. Without a parent the main window is it.
    explicit CPropertySheet(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    explicit CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    /// The same with pictures for a wizard; they stay the caller's.
    CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr);
    CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr);
    ~CPropertySheet() override;

    /// For arrays, whose elements take no arguments: does what the constructors do.
    void Construct(UINT nIDCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd = nullptr, UINT iSelectPage = 0);
    void Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr);
    void Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                   HPALETTE hpalWatermark = nullptr, HBITMAP hbmHeader = nullptr);

    /// What the system is given. Flags and members set before the sheet is shown are passed on, except those
    /// of the parent, the pages and the start page; a pfnCallback is called after the framework's own.
    PROPSHEETHEADER m_psh = {};

    /// Runs the sheet until a button closes it: IDOK, IDCANCEL or ID_WIZFINISH, or what EndDialog was given.
    /// -1 when it could not be made, and at WM_QUIT. Exceptions go as from CDialog::DoModal.
    virtual INT_PTR DoModal();
    /// Shows a modeless sheet, which has no OK, Cancel, Apply and Help buttons. The default style is
    /// WS_SYSMENU | WS_POPUP | WS_CAPTION | DS_MODALFRAME | DS_CONTEXTHELP | WS_VISIBLE, the default extended
    /// style WS_EX_DLGMODALFRAME. With WS_CHILD the sheet stands in its parent.
    virtual BOOL Create(CWnd* pParentWnd = nullptr, DWORD dwStyle = static_cast<DWORD>(-1),
                        DWORD dwExStyle = 0);
    /// Ends DoModal with a result; closes a modeless sheet.
    void EndDialog(int nEndID);

    /// Adds a page behind the others, also while the sheet is shown.
    void AddPage(CPropertyPage* pPage);
    /// Takes a page out and destroys its window; the object stays.
    void RemovePage(CPropertyPage* pPage);
    void RemovePage(int nPage);
    int GetPageCount() const { return static_cast<int>(m_pages.GetSize()); }
    CPropertyPage* GetPage(int nPage) const;
    /// -1 for a page of another sheet.
    int GetPageIndex(CPropertyPage* pPage);
    /// Before the sheet is shown, the page it will start with.
    int GetActiveIndex() const;
    CPropertyPage* GetActivePage() const;
    /// FALSE when the present page refuses to be left, and for a page that is none of the sheet's.
    BOOL SetActivePage(int nPage);
    BOOL SetActivePage(CPropertyPage* pPage);

    /// The caption; with PSH_PROPTITLE the system adds its word for properties.
    void SetTitle(LPCTSTR lpszText, UINT nStyle = 0);
    /// Makes a wizard of the sheet. Before it is shown.
    void SetWizardMode() { m_psh.dwFlags |= PSH_WIZARD; }
    bool IsWizard() const { return (m_psh.dwFlags & (PSH_WIZARD | PSH_WIZARD97 | PSH_WIZARD_LITE)) != 0; }
    /// Enables the buttons of the PSWIZB_ flags. Works when the sheet next takes a message.
    void SetWizardButtons(DWORD dwFlags);
    /// Shows Finish with this text, and neither Back nor Next.
    void SetFinishText(LPCTSTR lpszText);
    /// Presses a PSBTN_ button. Works when the sheet next takes a message.
    void PressButton(int nButton);
    /// Rows of tabs (the default) or one row that scrolls. Before the sheet is shown.
    void EnableStackedTabs(BOOL bStacked) { m_bStacked = bStacked; }
    BOOL IsModeless() const { return m_bModeless; }
    CTabCtrl* GetTabControl() const;
    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }

    /// The sheet is being made. Call the base first.
    virtual BOOL OnInitDialog();

    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnKickIdle(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

    CPtrArray m_pages;
    CString m_strCaption;
    CWnd* m_pParentWnd = nullptr;
    BOOL m_bStacked = TRUE;
    BOOL m_bModeless = FALSE;

private:
    struct Creation;

    void Construct(CWnd* parent, UINT page, HBITMAP watermark, HPALETTE palette, HBITMAP header);
    BOOL create_window(HWND owner, DWORD style, DWORD exStyle);
    /// Whether a button has closed the sheet, whose window is still there.
    bool is_closed();
    void end_closed();
    void take_off_buttons();
    void run_created();
    void end_modal(HWND owner, bool enableOwner);
    static int CALLBACK system_callback(HWND, UINT message, LPARAM parameter);

    int m_closing = 0;          ///< the result that the buttons stand for so far
    int m_depth = 0;            ///< messages of the sheet on the stack
    bool m_hooked = false;      ///< a page waits for its window
    bool m_isComplete = false;  ///< the window is there and no button has closed it
    Creation* m_creation = nullptr;

    friend class CPropertyPage;
};
