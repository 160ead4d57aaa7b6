// CPropertyPage: what the sheet tells a page, and what the page tells the sheet.
#include <kmfc/property_sheet.h>

INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

IMPLEMENT_DYNAMIC(CPropertyPage, CDialog)

CPropertyPage::CPropertyPage() { m_psp.dwSize = sizeof m_psp; }
CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, DWORD dwSize) {
    Construct(MAKEINTRESOURCEW(nIDTemplate), nIDCaption, 0, 0, dwSize);
}
CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, DWORD dwSize) {
    Construct(lpszTemplateName, nIDCaption, 0, 0, dwSize);
}
CPropertyPage::CPropertyPage(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle, UINT nIDHeaderSubTitle,
                             DWORD dwSize) {
    Construct(MAKEINTRESOURCEW(nIDTemplate), nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle, dwSize);
}
CPropertyPage::CPropertyPage(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle,
                             UINT nIDHeaderSubTitle, DWORD dwSize) {
    Construct(lpszTemplateName, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle, dwSize);
}
CPropertyPage::~CPropertyPage() = default;

void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption) {
    Construct(MAKEINTRESOURCEW(nIDTemplate), nIDCaption, 0, 0, sizeof m_psp);
}
void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption) {
    Construct(lpszTemplateName, nIDCaption, 0, 0, sizeof m_psp);
}
void CPropertyPage::Construct(UINT nIDTemplate, UINT nIDCaption, UINT nIDHeaderTitle,
                              UINT nIDHeaderSubTitle) {
    Construct(MAKEINTRESOURCEW(nIDTemplate), nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle, sizeof m_psp);
}
void CPropertyPage::Construct(LPCTSTR lpszTemplateName, UINT nIDCaption, UINT nIDHeaderTitle,
                              UINT nIDHeaderSubTitle) {
    Construct(lpszTemplateName, nIDCaption, nIDHeaderTitle, nIDHeaderSubTitle, sizeof m_psp);
}

void CPropertyPage::Construct(LPCTSTR name, UINT caption, UINT headerTitle, UINT headerSubTitle, DWORD size) {
    m_lpszTemplateName = name;
    if (IS_INTRESOURCE(name)) m_nIDHelp = static_cast<UINT>(reinterpret_cast<UINT_PTR>(name));
    m_psp = {};
    // A size that the structure doesn't have would make the system read past it.
    m_psp.dwSize = size >= PROPSHEETPAGE_V1_SIZE && size < sizeof m_psp ? size : sizeof m_psp;
    m_psp.hInstance = AfxFindResourceHandle(name, RT_DIALOG);
    m_psp.pszTemplate = name;
    if (caption != 0 && m_strCaption.LoadString(caption)) m_psp.dwFlags |= PSP_USETITLE;
    if (headerTitle != 0 && m_strHeaderTitle.LoadString(headerTitle)) m_psp.dwFlags |= PSP_USEHEADERTITLE;
    if (headerSubTitle != 0 && m_strHeaderSubTitle.LoadString(headerSubTitle))
        m_psp.dwFlags |= PSP_USEHEADERSUBTITLE;
    m_psp.pszTitle = m_strCaption;
    m_psp.pszHeaderTitle = m_strHeaderTitle;
    m_psp.pszHeaderSubTitle = m_strHeaderSubTitle;
}

PROPSHEETPAGE CPropertyPage::for_system() {
    PROPSHEETPAGE page = m_psp;
    page.lParam = reinterpret_cast<LPARAM>(this);
    page.pfnDlgProc = AfxDlgProc;
    page.pfnCallback = system_callback;
    page.dwFlags |= PSP_USECALLBACK;
    if ((page.dwFlags & PSP_USETITLE) && page.pszTitle == nullptr) page.pszTitle = m_strCaption;
    return page;
}

UINT CALLBACK CPropertyPage::system_callback(HWND window, UINT message, PROPSHEETPAGE* page) {
    auto* self = reinterpret_cast<CPropertyPage*>(page->lParam);
    UINT result = 1;
    const PROPSHEETPAGE& given = self->m_psp;
    if ((given.dwFlags & PSP_USECALLBACK) && given.pfnCallback != nullptr)
        result = given.pfnCallback(window, message, page);
    if (message != PSPCB_CREATE || result == 0) return result;
    self->m_nFlags &= ~WF_NEVERSHOWN;
    // The page's window is the next that this thread makes.
    AfxHookWindowCreate(self);
    if (self->m_sheet != nullptr) self->m_sheet->m_hooked = true;
    return result;
}

CPropertySheet* CPropertyPage::shown_in() const {
    return m_hWnd != nullptr
               ? DYNAMIC_DOWNCAST(CPropertySheet, CWnd::FromHandlePermanent(::GetParent(m_hWnd)))
               : nullptr;
}

void CPropertyPage::CancelToClose() {
    const CPropertySheet* sheet = shown_in();
    if (sheet != nullptr && !sheet->IsModeless()) sheet->SendMessage(PSM_CANCELTOCLOSE);
}

void CPropertyPage::SetModified(BOOL bChanged) {
    if (m_hWnd == nullptr) return;
    ::SendMessageW(::GetParent(m_hWnd), bChanged ? PSM_CHANGED : PSM_UNCHANGED,
                   reinterpret_cast<WPARAM>(m_hWnd), 0);
}

LRESULT CPropertyPage::QuerySiblings(WPARAM wParam, LPARAM lParam) {
    return m_hWnd != nullptr ? ::SendMessageW(::GetParent(m_hWnd), PSM_QUERYSIBLINGS, wParam, lParam) : 0;
}

BOOL CPropertyPage::OnSetActive() {
    UpdateData(FALSE);
    return TRUE;
}

BOOL CPropertyPage::OnKillActive() { return UpdateData(TRUE); }

BOOL CPropertyPage::OnApply() {
    OnOK();
    return TRUE;
}

void CPropertyPage::OnReset() { OnCancel(); }
void CPropertyPage::OnOK() { SetModified(FALSE); }
void CPropertyPage::OnCancel() {}
BOOL CPropertyPage::OnQueryCancel() { return TRUE; }
LRESULT CPropertyPage::OnWizardBack() { return 0; }
LRESULT CPropertyPage::OnWizardNext() { return 0; }
BOOL CPropertyPage::OnWizardFinish() { return TRUE; }

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CDialog::OnNotify(wParam, lParam, pResult)) return TRUE;
    const auto& header = *reinterpret_cast<NMHDR*>(lParam);
    LRESULT result = 0;
    if (header.hwndFrom != ::GetParent(m_hWnd) || !answer(header, result)) return FALSE;
    if (pResult != nullptr) *pResult = result;
    return TRUE;
}

/// Answers what the sheet tells by a PSN_ code; false for another notification.
bool CPropertyPage::answer(const NMHDR& header, LRESULT& result) {
    CPropertySheet* sheet = shown_in();
    const auto closing = [sheet](int id) {
        if (sheet != nullptr) sheet->m_closing = id;
    };
    switch (header.code) {
        case PSN_SETACTIVE: result = OnSetActive() ? 0 : -1; return true;
        case PSN_KILLACTIVE: result = OnKillActive() ? FALSE : TRUE; return true;
        case PSN_APPLY:
            closing(IDOK);
            result = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
            return true;
        case PSN_RESET:
            closing(IDCANCEL);
            OnReset();
            return true;
        case PSN_QUERYCANCEL: result = OnQueryCancel() ? FALSE : TRUE; return true;
        case PSN_WIZBACK: result = OnWizardBack(); return true;
        case PSN_WIZNEXT: result = OnWizardNext(); return true;
        case PSN_WIZFINISH:
            closing(ID_WIZFINISH);
            result = OnWizardFinish() ? FALSE : TRUE;
            return true;
        case PSN_HELP: SendMessage(WM_COMMAND, ID_HELP); return true;
        default: return false;
    }
}

void CPropertyPage::end_window(int nResult) {
    if (CPropertySheet* sheet = shown_in()) sheet->EndDialog(nResult);
}

BOOL CPropertyPage::PreTranslateMessage(MSG* pMsg) {
    // The sheet is the dialog that the keys are for: it moves the focus from page to buttons.
    return CWnd::PreTranslateMessage(pMsg);
}
