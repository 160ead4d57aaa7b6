// CPropertySheet: the system's property sheet, run by the framework's own modal loop.
#include <kmfc/property_sheet.h>

#include <exception>
#include <utility>
#include <vector>

#include <kmfc/tab_ctrl.h>

#include "command_route.h"
#include "thread_state.h"

IMPLEMENT_DYNAMIC(CPropertySheet, CWnd)

BEGIN_MESSAGE_MAP(CPropertySheet, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CPropertySheet::HandleInitDialog)
    ON_MESSAGE(WM_COMMANDHELP, &CPropertySheet::OnCommandHelp)
    ON_MESSAGE(WM_KICKIDLE, &CPropertySheet::OnKickIdle)
END_MESSAGE_MAP()

/// What the system asks for while the window is made.
struct CPropertySheet::Creation {
    DWORD style;    ///< of the window, 0 for the system's own
    DWORD exStyle;  ///< when `style` is given
};

namespace {

constexpr int kTabControl = 0x3020;  // the system's id of the row of tabs
constexpr int kHelpButton = 9;       // and of Help

/// The sheet that is being made on this thread; the system's callback has no other way to find it.
thread_local CPropertySheet* sheet_in_creation = nullptr;

/// Sets the styles in a dialog template, plain or extended.
void set_template_style(void* bytes, DWORD style, DWORD exStyle) {
    auto* words = static_cast<WORD*>(bytes);
    const bool extended = words[0] == 1 && words[1] == 0xFFFF;
    // An extended template has version, signature and help id first, and the extended style before the other.
    DWORD* styles = reinterpret_cast<DWORD*>(extended ? words + 4 : words);
    // The template's font, and the members behind the styles, are told by a style too.
    const DWORD kept = styles[extended ? 1 : 0] & DS_SHELLFONT;
    styles[extended ? 1 : 0] = style | kept;
    styles[extended ? 0 : 1] = exStyle;
}

}  // namespace

CPropertySheet::CPropertySheet() { Construct(nullptr, 0, nullptr, nullptr, nullptr); }
CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage) {
    Construct(nIDCaption, pParentWnd, iSelectPage);
}
CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage) {
    Construct(pszCaption, pParentWnd, iSelectPage);
}
CPropertySheet::CPropertySheet(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader) {
    Construct(nIDCaption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}
CPropertySheet::CPropertySheet(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader) {
    Construct(pszCaption, pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}

CPropertySheet::~CPropertySheet() {
    if (m_hWnd != nullptr) DestroyWindow();
    for (INT_PTR i = 0; i < m_pages.GetSize(); ++i) {
        auto* page = static_cast<CPropertyPage*>(m_pages[i]);
        if (page != nullptr && page->m_sheet == this) page->m_sheet = nullptr;
    }
}

void CPropertySheet::Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage) {
    Construct(nIDCaption, pParentWnd, iSelectPage, nullptr, nullptr, nullptr);
}
void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage) {
    Construct(pszCaption, pParentWnd, iSelectPage, nullptr, nullptr, nullptr);
}
void CPropertySheet::Construct(UINT nIDCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader) {
    if (!m_strCaption.LoadString(nIDCaption)) m_strCaption.Empty();
    Construct(pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}
void CPropertySheet::Construct(LPCTSTR pszCaption, CWnd* pParentWnd, UINT iSelectPage, HBITMAP hbmWatermark,
                               HPALETTE hpalWatermark, HBITMAP hbmHeader) {
    m_strCaption = pszCaption;
    Construct(pParentWnd, iSelectPage, hbmWatermark, hpalWatermark, hbmHeader);
}

void CPropertySheet::Construct(CWnd* parent, UINT page, HBITMAP watermark, HPALETTE palette, HBITMAP header) {
    m_psh = {};
    m_psh.dwSize = sizeof m_psh;
    m_psh.dwFlags = PSH_PROPSHEETPAGE;
    m_psh.nStartPage = page;
    m_psh.pszCaption = m_strCaption;
    m_pParentWnd = parent;
    m_bStacked = TRUE;
    m_bModeless = FALSE;
    if (watermark != nullptr) {
        m_psh.dwFlags |= PSH_WATERMARK | PSH_USEHBMWATERMARK;
        m_psh.hbmWatermark = watermark;
    }
    if (palette != nullptr) {
        m_psh.dwFlags |= PSH_USEHPLWATERMARK;
        m_psh.hplWatermark = palette;
    }
    if (header != nullptr) {
        m_psh.dwFlags |= PSH_HEADER | PSH_USEHBMHEADER;
        m_psh.hbmHeader = header;
    }
}

int CALLBACK CPropertySheet::system_callback(HWND window, UINT message, LPARAM parameter) {
    CPropertySheet* sheet = sheet_in_creation;
    if (sheet == nullptr) sheet = DYNAMIC_DOWNCAST(CPropertySheet, CWnd::FromHandlePermanent(window));
    if (sheet == nullptr) return 0;
    if (message == PSCB_PRECREATE && sheet->m_creation != nullptr && sheet->m_creation->style != 0)
        set_template_style(reinterpret_cast<void*>(parameter), sheet->m_creation->style,
                           sheet->m_creation->exStyle);
    const PROPSHEETHEADER& given = sheet->m_psh;
    return (given.dwFlags & PSH_USECALLBACK) && given.pfnCallback != nullptr
               ? given.pfnCallback(window, message, parameter)
               : 0;
}

BOOL CPropertySheet::create_window(HWND owner, DWORD style, DWORD exStyle) {
    if (m_pages.IsEmpty() || m_hWnd != nullptr) return FALSE;
    std::vector<PROPSHEETPAGE> pages;
    for (INT_PTR i = 0; i < m_pages.GetSize(); ++i) {
        pages.push_back(static_cast<CPropertyPage*>(m_pages[i])->for_system());
        // The system finds the next one by the size of this.
        pages.back().dwSize = sizeof(PROPSHEETPAGE);
    }
    PROPSHEETHEADER header = m_psh;
    header.dwFlags |= PSH_MODELESS | PSH_PROPSHEETPAGE | PSH_USECALLBACK;
    header.dwFlags &= ~static_cast<DWORD>(PSH_USEPSTARTPAGE);
    header.hwndParent = owner;
    header.pfnCallback = system_callback;
    header.nPages = static_cast<UINT>(pages.size());
    if (header.nStartPage >= header.nPages) header.nStartPage = 0;
    header.ppsp = pages.data();
    if (header.hInstance == nullptr) header.hInstance = AfxGetResourceHandle();

    Creation creation = {style, exStyle};
    m_creation = &creation;
    m_closing = m_depth = 0;
    m_isComplete = false;
    CPropertySheet* outer = std::exchange(sheet_in_creation, this);
    AfxHookWindowCreate(this);
    const INT_PTR made = ::PropertySheetW(&header);
    AfxUnhookWindowCreate();
    sheet_in_creation = outer;
    m_creation = nullptr;
    m_isComplete = made != 0 && made != -1 && m_hWnd != nullptr;
    return m_isComplete;
}

LRESULT CPropertySheet::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto leave = [this, window = m_hWnd] {
        // The object may have gone with its window.
        if (CWnd::FromHandlePermanent(window) != this) return false;
        --m_depth;
        if (std::exchange(m_hooked, false)) AfxUnhookWindowCreate();
        return true;
    };
    ++m_depth;
    LRESULT result = 0;
    try {
        result = CWnd::WindowProc(message, wParam, lParam);
    } catch (...) {
        leave();
        throw;
    }
    if (leave() && m_depth == 0 && is_closed()) end_closed();
    return result;
}

bool CPropertySheet::is_closed() {
    // A sheet that runs without the system's loop tells by this that a button closed it.
    return m_isComplete && DefWindowProc(PSM_GETCURRENTPAGEHWND, 0, 0) == 0;
}

void CPropertySheet::end_closed() {
    m_isComplete = false;
    if (m_bModeless) {
        DestroyWindow();
        return;
    }
    EndModalLoop(m_closing != 0 ? m_closing : static_cast<int>(DefWindowProc(PSM_GETRESULT, 0, 0)));
}

INT_PTR CPropertySheet::DoModal() {
    if (m_pages.IsEmpty() || m_hWnd != nullptr) return -1;
    CWinApp* app = AfxGetApp();
    if (app != nullptr) app->EnableModeless(FALSE);
    HWND top = nullptr;
    const HWND owner = kmfc::safe_handle(CWnd::GetSafeOwner(m_pParentWnd, &top));
    const bool enableOwner = owner != nullptr && owner != ::GetDesktopWindow() && ::IsWindowEnabled(owner);
    if (enableOwner) ::EnableWindow(owner, FALSE);
    m_bModeless = FALSE;
    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL;
    std::exception_ptr failure;
    try {
        if (create_window(owner, 0, 0)) run_created();
    } catch (CException* e) {
        e->Delete();
        m_nModalResult = IDABORT;
    } catch (...) {
        failure = std::current_exception();
    }
    end_modal(owner, enableOwner);
    if (top != nullptr && ::IsWindow(top)) ::EnableWindow(top, TRUE);
    if (app != nullptr) app->EnableModeless(TRUE);
    if (failure) std::rethrow_exception(failure);
    return m_nModalResult;
}

void CPropertySheet::run_created() {
    if (m_nFlags & WF_CONTINUEMODAL) RunModalLoop(MLF_SHOWONIDLE);
    if (m_hWnd != nullptr)
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
}

void CPropertySheet::end_modal(HWND owner, bool enableOwner) {
    m_nFlags &= ~WF_CONTINUEMODAL;
    m_isComplete = false;
    // The owner is enabled before the sheet goes, or the activation would go to another application.
    if (enableOwner) ::EnableWindow(owner, TRUE);
    const HWND active = ::GetActiveWindow();
    if (owner != nullptr && (active == nullptr || active == m_hWnd)) ::SetActiveWindow(owner);
    if (m_hWnd != nullptr) DestroyWindow();
}

BOOL CPropertySheet::Create(CWnd* pParentWnd, DWORD dwStyle, DWORD dwExStyle) {
    constexpr DWORD kDefault = static_cast<DWORD>(-1);
    if (dwStyle == kDefault) {
        dwStyle = WS_SYSMENU | WS_POPUP | WS_CAPTION | DS_MODALFRAME | DS_CONTEXTHELP | WS_VISIBLE;
        if (dwExStyle == 0) dwExStyle = WS_EX_DLGMODALFRAME;
    }
    // The Tab key of the parent goes through the controls of a sheet that stands in it.
    if (dwStyle & WS_CHILD) dwExStyle |= WS_EX_CONTROLPARENT;
    m_bModeless = TRUE;
    const HWND before = m_hWnd;
    if (create_window(kmfc::safe_handle(pParentWnd), dwStyle, dwExStyle)) return TRUE;
    if (before == nullptr && m_hWnd != nullptr) DestroyWindow();
    return FALSE;
}

void CPropertySheet::EndDialog(int nEndID) {
    if (m_hWnd == nullptr) return;
    if (m_bModeless) {
        DestroyWindow();
        return;
    }
    m_isComplete = false;
    EndModalLoop(nEndID);
}

LRESULT CPropertySheet::HandleInitDialog(WPARAM, LPARAM) { return OnInitDialog(); }

BOOL CPropertySheet::OnInitDialog() {
    // Before the system lays out the sheet by the height of the tabs.
    if (HWND tabs = ::GetDlgItem(m_hWnd, kTabControl)) {
        const LONG_PTR style = ::GetWindowLongPtrW(tabs, GWL_STYLE);
        ::SetWindowLongPtrW(tabs, GWL_STYLE, m_bStacked ? style | TCS_MULTILINE : style & ~TCS_MULTILINE);
    }
    const BOOL result = static_cast<BOOL>(Default());
    if (m_bModeless)
        take_off_buttons();
    else
        CenterWindow();
    return result;
}

/// Hides the buttons of a modeless sheet and gives up the room they had.
void CPropertySheet::take_off_buttons() {
    if (IsWizard()) return;
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW, kHelpButton}) {
        const HWND button = ::GetDlgItem(m_hWnd, id);
        if (button == nullptr) continue;
        ::ShowWindow(button, SW_HIDE);
        ::EnableWindow(button, FALSE);
    }
    const HWND tabs = ::GetDlgItem(m_hWnd, kTabControl);
    if (tabs == nullptr) return;
    CRect area, client, window;
    ::GetWindowRect(tabs, &area);
    ScreenToClient(&area);
    GetClientRect(&client);
    GetWindowRect(&window);
    const int spare = client.bottom - (area.bottom + area.top);
    SetWindowPos(nullptr, 0, 0, window.Width(), window.Height() - spare,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CPropertySheet::AddPage(CPropertyPage* pPage) {
    ENSURE_VALID(pPage);
    if (m_hWnd != nullptr) {
        const PROPSHEETPAGE page = pPage->for_system();
        HPROPSHEETPAGE handle = ::CreatePropertySheetPageW(&page);
        if (handle == nullptr) AfxThrowMemoryException();
        m_pages.Add(pPage);
        pPage->m_sheet = this;
        if (SendMessage(PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(handle))) return;
        ::DestroyPropertySheetPage(handle);
        m_pages.RemoveAt(m_pages.GetUpperBound());
        pPage->m_sheet = nullptr;
        AfxThrowMemoryException();
    }
    m_pages.Add(pPage);
    pPage->m_sheet = this;
}

void CPropertySheet::RemovePage(CPropertyPage* pPage) {
    ENSURE_VALID(pPage);
    const int index = GetPageIndex(pPage);
    if (index >= 0) RemovePage(index);
}

void CPropertySheet::RemovePage(int nPage) {
    CPropertyPage* page = GetPage(nPage);
    if (m_hWnd != nullptr) SendMessage(PSM_REMOVEPAGE, static_cast<WPARAM>(nPage), 0);
    page->m_sheet = nullptr;
    m_pages.RemoveAt(nPage);
}

CPropertyPage* CPropertySheet::GetPage(int nPage) const {
    ENSURE_ARG(nPage >= 0 && nPage < GetPageCount());
    return static_cast<CPropertyPage*>(m_pages[nPage]);
}

int CPropertySheet::GetPageIndex(CPropertyPage* pPage) {
    for (int i = 0; i < GetPageCount(); ++i)
        if (m_pages[i] == pPage) return i;
    return -1;
}

int CPropertySheet::GetActiveIndex() const {
    if (m_hWnd == nullptr) return static_cast<int>(m_psh.nStartPage);
    const HWND window = reinterpret_cast<HWND>(SendMessage(PSM_GETCURRENTPAGEHWND));
    for (int i = 0; i < GetPageCount(); ++i)
        if (window != nullptr && GetPage(i)->m_hWnd == window) return i;
    const CTabCtrl* tabs = GetTabControl();
    return tabs != nullptr ? tabs->GetCurSel() : -1;
}

CPropertyPage* CPropertySheet::GetActivePage() const {
    const int index = GetActiveIndex();
    return index >= 0 && index < GetPageCount() ? GetPage(index) : nullptr;
}

BOOL CPropertySheet::SetActivePage(int nPage) {
    if (nPage < 0 || nPage >= GetPageCount()) return FALSE;
    if (m_hWnd != nullptr) return static_cast<BOOL>(SendMessage(PSM_SETCURSEL, static_cast<WPARAM>(nPage)));
    m_psh.nStartPage = static_cast<UINT>(nPage);
    return TRUE;
}

BOOL CPropertySheet::SetActivePage(CPropertyPage* pPage) {
    ENSURE_VALID(pPage);
    return SetActivePage(GetPageIndex(pPage));
}

void CPropertySheet::SetTitle(LPCTSTR lpszText, UINT nStyle) {
    ENSURE_ARG((nStyle & ~PSH_PROPTITLE) == 0);
    if (m_hWnd != nullptr) {
        SendMessage(PSM_SETTITLEW, nStyle, reinterpret_cast<LPARAM>(lpszText));
        return;
    }
    m_strCaption = lpszText;
    m_psh.pszCaption = m_strCaption;
    m_psh.dwFlags = (m_psh.dwFlags & ~static_cast<DWORD>(PSH_PROPTITLE)) | nStyle;
}

void CPropertySheet::SetWizardButtons(DWORD dwFlags) {
    if (m_hWnd != nullptr) PostMessage(PSM_SETWIZBUTTONS, 0, static_cast<LPARAM>(dwFlags));
}

void CPropertySheet::SetFinishText(LPCTSTR lpszText) {
    if (m_hWnd != nullptr) SendMessage(PSM_SETFINISHTEXTW, 0, reinterpret_cast<LPARAM>(lpszText));
}

void CPropertySheet::PressButton(int nButton) {
    if (m_hWnd != nullptr) PostMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(nButton));
}

CTabCtrl* CPropertySheet::GetTabControl() const {
    return static_cast<CTabCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(PSM_GETTABCONTROL))));
}

BOOL CPropertySheet::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) return TRUE;
    const bool key = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
    const bool mouse = pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST;
    // Beside the keys of dialogs there are those that change the page.
    return (key || mouse) && SendMessage(PSM_ISDIALOGMESSAGE, 0, reinterpret_cast<LPARAM>(pMsg)) != 0;
}

BOOL CPropertySheet::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
    return kmfc::route_to_owner(*this, nID, nCode, pExtra, pHandlerInfo);
}

LRESULT CPropertySheet::OnCommandHelp(WPARAM wParam, LPARAM lParam) {
    const CPropertyPage* page = GetActivePage();
    return page != nullptr && page->m_hWnd != nullptr ? page->SendMessage(WM_COMMANDHELP, wParam, lParam)
                                                      : FALSE;
}

LRESULT CPropertySheet::OnKickIdle(WPARAM wParam, LPARAM lParam) {
    // Pages bring their controls up to date when idle, as dialogs do.
    const CPropertyPage* page = GetActivePage();
    return page != nullptr && page->m_hWnd != nullptr ? page->SendMessage(WM_KICKIDLE, wParam, lParam)
                                                      : FALSE;
}
