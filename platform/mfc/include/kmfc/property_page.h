// CPropertyPage: one page of a property sheet or wizard.
//
// A page is told by the sheet that it became active, is about to be left, should take over its values, and so
// on; each is a virtual function. The window is made when the page is first shown, and goes with the sheet.
#pragma once

#include <kmfc/dialog.h>

#include <prsht.h>

class CPropertySheet;

/// A page. The template is a child dialog; its caption is the text of the tab unless another is given. The
/// values are exchanged (DoDataExchange) when the page becomes active and when it is left.
class KMFC_API CPropertyPage : public CDialog {
    DECLARE_DYNAMIC(CPropertyPage)
public:
    CPropertyPage();
    /// `nIDCaption` is the string of the tab, 0 for the template's caption. `dwSize` is the size of the
    /// structure handed to the system.
    explicit CPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0, DWORD dwSize = sizeof(PROPSHEETPAGE));
    explicit CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption = 0,
                           DWORD dwSize = sizeof(PROPSHEETPAGE));
    /// The same with the title and subtitle of a wizard page's header.
    CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0,
                  DWORD dwSize = sizeof(PROPSHEETPAGE));
    CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0,
                  DWORD dwSize = sizeof(PROPSHEETPAGE));
    ~CPropertyPage() override;

    /// For arrays, whose elements take no arguments: does what the constructors do.
    void Construct(UINT nIDTemplate, UINT nIDCaption = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption = 0);
    void Construct(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle = 0);
    void Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle,
                   UINT nIDHeaderSubTitle = 0);

    /// What the system is given. Flags and members set before the sheet is shown are passed on; lParam and
    /// pfnDlgProc are the framework's, and a pfnCallback of the caller's is called after its own.
    PROPSHEETPAGE m_psp = {};
    const PROPSHEETPAGE& GetPSP() const { return m_psp; }
    PROPSHEETPAGE& GetPSP() { return m_psp; }

    /// Makes OK read Close and disables Cancel: what was done cannot be taken back. Nothing in a modeless
    /// sheet.
    void CancelToClose();
    /// Says whether the page has values to apply; Apply is enabled while any page of the sheet has.
    void SetModified(BOOL bChanged = TRUE);
    /// Sends PSM_QUERYSIBLINGS to each page that has a window until one answers other than 0; that answer.
    LRESULT QuerySiblings(WPARAM wParam, LPARAM lParam);

    /// The page was chosen. FALSE sends the user on to the next page. The base brings the controls up to
    /// date.
    virtual BOOL OnSetActive();
    /// The page is about to be left. FALSE keeps it. The base exchanges and validates the values.
    virtual BOOL OnKillActive();
    /// OK or Apply: FALSE keeps the sheet open. The base calls OnOK.
    virtual BOOL OnApply();
    /// Cancel was pressed. The base calls OnCancel.
    virtual void OnReset();
    void OnOK() override;      ///< the base says that there is nothing more to apply
    void OnCancel() override;  ///< the base does nothing
    /// Whether Cancel may close the sheet.
    virtual BOOL OnQueryCancel();
    /// Back and Next of a wizard: 0 goes on, -1 stays, the template's id of another page goes there.
    virtual LRESULT OnWizardBack();
    virtual LRESULT OnWizardNext();
    /// Finish of a wizard: whether it may close.
    virtual BOOL OnWizardFinish();

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    void end_window(int nResult) override;

    CString m_strCaption;
    CString m_strHeaderTitle;
    CString m_strHeaderSubTitle;

private:
    void Construct(LPCTSTR name, UINT caption, UINT headerTitle, UINT headerSubTitle, DWORD size);
    /// The sheet that shows the page, or null.
    CPropertySheet* shown_in() const;
    /// The structure for the system, with texts and callbacks that are the page's own.
    PROPSHEETPAGE for_system();
    bool answer(const NMHDR& header, LRESULT& result);
    static UINT CALLBACK system_callback(HWND, UINT message, PROPSHEETPAGE* page);

    CPropertySheet* m_sheet = nullptr;  ///< the one it was added to last

    friend class CPropertySheet;
};
