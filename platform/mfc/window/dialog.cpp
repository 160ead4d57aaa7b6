// CDialog: modal and modeless dialog boxes.
#include <exception>

#include <kmfc/dialog.h>

#include "command_route.h"
#include "thread_state.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_MESSAGE(WM_SETFONT, &CDialog::HandleSetFont)
    ON_MESSAGE(WM_COMMANDHELP, &CDialog::OnCommandHelp)
END_MESSAGE_MAP()

namespace {

struct FoundTemplate {
    HINSTANCE module;
    LPCDLGTEMPLATE bytes;  ///< null when there is no such resource
};

FoundTemplate find_template(LPCTSTR name) {
    HINSTANCE module = AfxFindResourceHandle(name, RT_DIALOG);
    HRSRC resource = ::FindResourceW(module, name, RT_DIALOG);
    HGLOBAL loaded = resource != nullptr ? ::LoadResource(module, resource) : nullptr;
    return {module, loaded != nullptr ? static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)) : nullptr};
}

/// A template in the caller's memory, held at its place for as long as the object lives, or in a resource
/// that the caller loaded.
class HeldTemplate {
public:
    explicit HeldTemplate(HGLOBAL memory) : m_memory(memory) {
        if (memory == nullptr) return;
        m_locked = ::GlobalLock(memory);
        m_bytes = static_cast<LPCDLGTEMPLATE>(m_locked != nullptr ? m_locked : ::LockResource(memory));
    }
    ~HeldTemplate() {
        if (m_locked != nullptr) ::GlobalUnlock(m_memory);
    }
    HeldTemplate(const HeldTemplate&) = delete;
    HeldTemplate& operator=(const HeldTemplate&) = delete;
    LPCDLGTEMPLATE bytes() const { return m_bytes; }

private:
    HGLOBAL m_memory;
    void* m_locked = nullptr;
    LPCDLGTEMPLATE m_bytes = nullptr;
};

/// Whether a template gives the dialog no place of its own.
bool leaves_place_open(LPCDLGTEMPLATE bytes) {
    // An extended template starts with version 1 and a signature of ones; its place comes later.
    const auto* words = reinterpret_cast<const WORD*>(bytes);
    const bool extended = words[0] == 1 && words[1] == 0xFFFF;
    const size_t place = extended ? 9 : 5;  // words before x and y
    return words[place] == 0 && words[place + 1] == 0;
}

}  // namespace

CDialog::CDialog() = default;
CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_lpszTemplateName(lpszTemplateName), m_pParentWnd(pParentWnd) {}
CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : m_nIDHelp(nIDTemplate), m_lpszTemplateName(MAKEINTRESOURCEW(nIDTemplate)), m_pParentWnd(pParentWnd) {}

CDialog::~CDialog() {
    if (m_hWnd != nullptr) DestroyWindow();
}

/// The platform's side of the dialog: it only asks for the initial focus.
INT_PTR CALLBACK AfxDlgProc(HWND hWnd, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG) return 0;
    auto* dialog = DYNAMIC_DOWNCAST(CDialog, CWnd::FromHandlePermanent(hWnd));
    if (dialog == nullptr) return 1;
    try {
        return dialog->OnInitDialog();
    } catch (...) {
        // The system's dialog procedure is in between.
        kmfc::carry_exception();
        return 0;
    }
}

BOOL CWnd::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst) {
    const bool modal = (m_nFlags & WF_CONTINUEMODAL) != 0;
    m_nFlags &= ~WF_NEVERSHOWN;
    AfxHookWindowCreate(this);
    HWND hWnd =
        ::CreateDialogIndirectParamW(hInst, lpDialogTemplate, kmfc::safe_handle(pParentWnd), AfxDlgProc, 0);
    const DWORD error = ::GetLastError();
    if (!AfxUnhookWindowCreate() && !modal) PostNcDestroy();
    if (hWnd == nullptr) ::SetLastError(error);
    // The handler of WM_INITDIALOG may have destroyed the window, and its object with it.
    if (hWnd == nullptr || FromHandlePermanent(hWnd) != this) return FALSE;
    // A modal dialog's owner is enabled before its window goes; DoModal sees to both.
    if (modal || !(m_nFlags & WF_NEVERSHOWN)) return TRUE;
    DestroyWindow();
    return FALSE;
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) {
    return Create(MAKEINTRESOURCEW(nIDTemplate), pParentWnd);
}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    m_lpszTemplateName = lpszTemplateName;
    if (IS_INTRESOURCE(lpszTemplateName) && m_nIDHelp == 0)
        m_nIDHelp = static_cast<UINT>(reinterpret_cast<UINT_PTR>(lpszTemplateName));
    const FoundTemplate found = find_template(lpszTemplateName);
    return CreateFromTemplate(found.bytes, pParentWnd, found.module, nullptr);
}

BOOL CDialog::CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst) {
    const HeldTemplate held(hDialogTemplate);
    return CreateFromTemplate(held.bytes(), pParentWnd, hInst, nullptr);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit) {
    return CreateFromTemplate(lpDialogTemplate, pParentWnd, nullptr, lpDialogInit);
}

BOOL CDialog::CreateFromTemplate(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst,
                                 void* lpDialogInit) {
    if (lpDialogTemplate == nullptr) return FALSE;
    if (pParentWnd == nullptr) pParentWnd = AfxGetMainWnd();
    m_lpDialogInit = lpDialogInit;
    return CreateDlgIndirect(lpDialogTemplate, pParentWnd, hInst != nullptr ? hInst : AfxGetResourceHandle());
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, void* lpDialogInit) {
    m_lpDialogTemplate = lpDialogTemplate;
    m_lpDialogInit = lpDialogInit;
    if (m_pParentWnd == nullptr) m_pParentWnd = pParentWnd;
    return TRUE;
}

BOOL CDialog::InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd) {
    m_hDialogTemplate = hDialogTemplate;
    if (m_pParentWnd == nullptr) m_pParentWnd = pParentWnd;
    return TRUE;
}

HWND CDialog::PreModal() {
    CWinApp* app = AfxGetApp();
    if (app != nullptr) app->EnableModeless(FALSE);
    CWnd* owner = CWnd::GetSafeOwner(m_pParentWnd, &m_hWndTop);
    return kmfc::safe_handle(owner);
}

void CDialog::PostModal() {
    Detach();
    if (m_hWndTop != nullptr && ::IsWindow(m_hWndTop)) ::EnableWindow(m_hWndTop, TRUE);
    m_hWndTop = nullptr;
    if (CWinApp* app = AfxGetApp()) app->EnableModeless(TRUE);
}

INT_PTR CDialog::DoModal() {
    LPCDLGTEMPLATE dialogTemplate = m_lpDialogTemplate;
    const HeldTemplate held(m_lpszTemplateName == nullptr ? m_hDialogTemplate : nullptr);
    HINSTANCE module = AfxGetResourceHandle();
    if (m_lpszTemplateName != nullptr) {
        const FoundTemplate found = find_template(m_lpszTemplateName);
        module = found.module;
        dialogTemplate = found.bytes;
    } else if (m_hDialogTemplate != nullptr) {
        dialogTemplate = held.bytes();
    }
    if (dialogTemplate == nullptr) return -1;

    HWND parent = PreModal();
    const bool enableParent =
        parent != nullptr && parent != ::GetDesktopWindow() && ::IsWindowEnabled(parent);
    if (enableParent) ::EnableWindow(parent, FALSE);
    m_nModalResult = -1;
    m_nFlags |= WF_CONTINUEMODAL;
    std::exception_ptr failure;
    try {
        if (CreateDlgIndirect(dialogTemplate, CWnd::FromHandle(parent), module)) RunCreated();
    } catch (CException* e) {
        e->Delete();
        m_nModalResult = IDABORT;
    } catch (...) {
        failure = std::current_exception();
    }
    EndModal(parent, enableParent);
    if (failure) std::rethrow_exception(failure);
    return m_nModalResult;
}

void CDialog::EndModal(HWND parent, bool enableParent) {
    m_nFlags &= ~WF_CONTINUEMODAL;
    // The parent is enabled before the dialog goes, or the activation would go to another application.
    if (enableParent) ::EnableWindow(parent, TRUE);
    const HWND active = ::GetActiveWindow();
    // Without a window of its own active the thread has just lost one that was destroyed by others.
    if (parent != nullptr && (active == nullptr || active == m_hWnd)) ::SetActiveWindow(parent);
    DestroyWindow();
    // EndDialog enables the owner even if it was disabled before the dialog came.
    if (parent != nullptr && !enableParent && parent != ::GetDesktopWindow()) ::EnableWindow(parent, FALSE);
    PostModal();
}

void CDialog::RunCreated() {
    if (m_nFlags & WF_CONTINUEMODAL) {
        DWORD flags = MLF_SHOWONIDLE;
        if (GetStyle() & DS_NOIDLEMSG) flags |= MLF_NOIDLEMSG;
        RunModalLoop(flags);
    }
    if (m_hWnd != nullptr)
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
}

void CDialog::EndDialog(int nResult) {
    // A modal dialog that ends before its loop begins is not shown.
    if ((m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL)) == WF_CONTINUEMODAL) m_nFlags |= WF_NEVERSHOWN;
    if (m_nFlags & (WF_MODALLOOP | WF_CONTINUEMODAL)) EndModalLoop(nResult);
    if (m_hWnd != nullptr) end_window(nResult);
}

void CDialog::end_window(int nResult) { ::EndDialog(m_hWnd, nResult); }

void CDialog::OnOK() {
    if (UpdateData(TRUE)) EndDialog(IDOK);
}

void CDialog::OnCancel() { EndDialog(IDCANCEL); }

void CDialog::PreInitDialog() {}
void CDialog::OnSetFont(CFont*) {}

BOOL CDialog::CheckAutoCenter() {
    // Only a modal dialog whose template leaves the place open is centred.
    if (!(m_nFlags & WF_CONTINUEMODAL)) return FALSE;
    if (GetStyle() & (DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN)) return FALSE;
    LPCDLGTEMPLATE bytes = m_lpDialogTemplate;
    if (m_lpszTemplateName != nullptr) bytes = find_template(m_lpszTemplateName).bytes;
    if (bytes == nullptr) bytes = static_cast<LPCDLGTEMPLATE>(::LockResource(m_hDialogTemplate));
    return bytes != nullptr && leaves_place_open(bytes);
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM) {
    PreInitDialog();
    const BOOL ownInit =
        m_lpDialogInit != nullptr ? ExecuteDlgInit(m_lpDialogInit) : ExecuteDlgInit(m_lpszTemplateName);
    if (!ownInit) {
        EndDialog(-1);
        return FALSE;
    }
    const LRESULT result = Default();
    kmfc::throw_carried();
    return result;
}

LRESULT CDialog::HandleSetFont(WPARAM wParam, LPARAM) {
    OnSetFont(CFont::FromHandle(reinterpret_cast<HFONT>(wParam)));
    return Default();
}

LRESULT CDialog::OnCommandHelp(WPARAM, LPARAM lParam) {
    if (lParam == 0 && m_nIDHelp != 0) lParam = HID_BASE_RESOURCE + static_cast<LPARAM>(m_nIDHelp);
    CWinApp* app = AfxGetApp();
    if (lParam == 0 || app == nullptr) return FALSE;
    app->WinHelp(static_cast<DWORD_PTR>(lParam));
    return TRUE;
}

BOOL CDialog::OnInitDialog() { return UpdateData(FALSE) ? TRUE : (EndDialog(-1), FALSE); }

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
    return kmfc::route_to_owner(*this, nID, nCode, pExtra, pHandlerInfo);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg)) return TRUE;
    const bool cancel =
        pMsg->message == WM_KEYDOWN && (pMsg->wParam == VK_ESCAPE || pMsg->wParam == VK_CANCEL);
    if (cancel && (::GetWindowLongPtrW(pMsg->hwnd, GWL_STYLE) & ES_MULTILINE)) {
        wchar_t name[10] = {};
        ::GetClassNameW(pMsg->hwnd, name, 10);
        if (::lstrcmpiW(name, L"Edit") == 0) {
            // A multi-line edit would close the dialog outright; Cancel is asked for if it may be had.
            HWND item = ::GetDlgItem(m_hWnd, IDCANCEL);
            if (item == nullptr || ::IsWindowEnabled(item)) {
                SendMessage(WM_COMMAND, IDCANCEL, 0);
                return TRUE;
            }
        }
    }
    return PreTranslateInput(pMsg);
}

namespace {

/// Message numbers in a dialog's initial data date from 16-bit Windows; what they stand for now.
UINT current_init_message(WORD stored) {
    switch (stored) {
        case 0x0401: return LB_ADDSTRING;
        case 0x0403: return CB_ADDSTRING;
        case 0x1234: return CBEM_INSERTITEMW;
        default: return stored;
    }
}

LRESULT send_initial_text(HWND control, UINT message, const char* text) {
    const CString wide(text);
    if (message != CBEM_INSERTITEMW)
        return ::SendMessageW(control, message, 0, reinterpret_cast<LPARAM>(wide.GetString()));
    COMBOBOXEXITEMW item = {};
    item.mask = CBEIF_TEXT;
    item.iItem = -1;
    item.pszText = const_cast<LPWSTR>(wide.GetString());
    return ::SendMessageW(control, message, 0, reinterpret_cast<LPARAM>(&item));
}

}  // namespace

BOOL CWnd::ExecuteDlgInit(LPCTSTR lpszResourceName) {
    if (lpszResourceName == nullptr) return ExecuteDlgInit(static_cast<LPVOID>(nullptr));
    const LPCWSTR kDialogInit = MAKEINTRESOURCEW(240);
    HINSTANCE module = AfxFindResourceHandle(lpszResourceName, kDialogInit);
    HRSRC resource = ::FindResourceW(module, lpszResourceName, kDialogInit);
    HGLOBAL loaded = resource != nullptr ? ::LoadResource(module, resource) : nullptr;
    return ExecuteDlgInit(loaded != nullptr ? ::LockResource(loaded) : nullptr);
}

BOOL CWnd::ExecuteDlgInit(LPVOID lpResource) {
    BOOL success = TRUE;
    // Records of id, message, length and that many bytes of text; an id of 0 ends them.
    const auto* at = static_cast<const BYTE*>(lpResource);
    while (success && at != nullptr) {
        WORD id = 0, message = 0;
        DWORD length = 0;
        memcpy(&id, at, sizeof(id));
        if (id == 0) break;
        memcpy(&message, at + 2, sizeof(message));
        memcpy(&length, at + 4, sizeof(length));
        at += 8;
        if (length > 0) {
            const LRESULT added = send_initial_text(::GetDlgItem(m_hWnd, id), current_init_message(message),
                                                    reinterpret_cast<const char*>(at));
            if (added == CB_ERR || added == CB_ERRSPACE) success = FALSE;
        }
        at += length;
    }
    return success;
}
