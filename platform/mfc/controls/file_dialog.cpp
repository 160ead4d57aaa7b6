// CFileDialog: the system's file dialog, its hook and its answers.
#include <afxdlgs.h>

#include <algorithm>
#include <vector>

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

BEGIN_MESSAGE_MAP(CFileDialog, CCommonDialog)
END_MESSAGE_MAP()

namespace {

/// The dialog whose window the system is about to make in this thread.
thread_local CFileDialog* opening = nullptr;

/// The part behind the last backslash.
CString name_of(const CString& path) { return path.Mid(path.ReverseFind(L'\\') + 1); }

/// Where the extension's point stands in a file name, or -1.
int point_of(const CString& name) { return name.ReverseFind(L'.'); }

}  // namespace

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd, DWORD dwSize)
    : CCommonDialog(pParentWnd), m_bOpenFileDialog(bOpenFileDialog) {
    m_ofn.lStructSize = dwSize != 0 ? dwSize : static_cast<DWORD>(sizeof m_ofn);
    m_ofn.lpstrFile = m_szFileName;
    m_ofn.nMaxFile = _MAX_PATH;
    m_ofn.lpstrFileTitle = m_szFileTitle;
    m_ofn.nMaxFileTitle = _MAX_FNAME;
    m_ofn.lpstrDefExt = lpszDefExt;
    m_ofn.Flags = dwFlags | OFN_EXPLORER | OFN_ENABLEHOOK;
    m_ofn.lpfnHook = file_hook;
    m_ofn.hInstance = AfxGetResourceHandle();
    if (lpszFileName != nullptr) ::lstrcpynW(m_szFileName, lpszFileName, _MAX_PATH);
    if (lpszFilter != nullptr) {
        m_strFilter = lpszFilter;
        m_strFilter.Replace(L'|', L'\0');
        m_ofn.lpstrFilter = m_strFilter;
    }
}

UINT_PTR CALLBACK CFileDialog::file_hook(HWND window, UINT message, WPARAM, LPARAM) {
    if (message != WM_INITDIALOG) return 0;
    CFileDialog* dialog = opening;
    opening = nullptr;
    // From now on the hook's window is an ordinary window of the class layer, and its messages come that way.
    return dialog != nullptr && dialog->SubclassWindow(window) ? dialog->answer_hook(message) : 0;
}

UINT_PTR CFileDialog::answer_hook(UINT message) { return CCommonDialog::answer_hook(message); }

INT_PTR CFileDialog::DoModal() {
    m_ofn.hwndOwner = PreModal();
    CFileDialog* const outer = opening;
    opening = this;
    const BOOL accepted = m_bOpenFileDialog ? ::GetOpenFileNameW(&m_ofn) : ::GetSaveFileNameW(&m_ofn);
    opening = outer;
    PostModal();
    return accepted ? IDOK : IDCANCEL;
}

// The dialog that the user sees is the system's; it ends like by its Cancel button.
void CFileDialog::end_window(int) {
    if (shown()) ::PostMessageW(::GetParent(m_hWnd), WM_COMMAND, IDCANCEL, 0);
}

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    auto* note = reinterpret_cast<OFNOTIFYW*>(lParam);
    // Controls of the template may notify by numbers of their own.
    if (note->hdr.hwndFrom != ::GetParent(m_hWnd)) return CCommonDialog::OnNotify(wParam, lParam, pResult);
    switch (note->hdr.code) {
        case CDN_INITDONE: OnInitDone(); return TRUE;
        case CDN_SELCHANGE: OnFileNameChange(); return TRUE;
        case CDN_FOLDERCHANGE: OnFolderChange(); return TRUE;
        case CDN_TYPECHANGE: OnTypeChange(); return TRUE;
        case CDN_SHAREVIOLATION: *pResult = static_cast<LRESULT>(OnShareViolation(note->pszFile)); break;
        case CDN_FILEOK: *pResult = OnFileNameOK(); break;
        default: return CCommonDialog::OnNotify(wParam, lParam, pResult);
    }
    ::SetWindowLongPtrW(m_hWnd, DWLP_MSGRESULT, *pResult);
    return TRUE;
}

UINT CFileDialog::OnShareViolation(LPCTSTR) { return OFN_SHAREWARN; }
BOOL CFileDialog::OnFileNameOK() { return FALSE; }
void CFileDialog::OnLBSelChangedNotify(UINT, UINT, UINT) {}
void CFileDialog::OnInitDone() {}
void CFileDialog::OnFileNameChange() {}
void CFileDialog::OnFolderChange() {}
void CFileDialog::OnTypeChange() {}

CString CFileDialog::ask(UINT message) const {
    const HWND dialog = ::GetParent(m_hWnd);
    const LRESULT length = ::SendMessageW(dialog, message, 0, 0);
    std::vector<wchar_t> text(static_cast<size_t>(std::max<LRESULT>(length, 0)) + MAX_PATH, L'\0');
    ::SendMessageW(dialog, message, text.size(), reinterpret_cast<LPARAM>(text.data()));
    return text.data();
}

CString CFileDialog::GetPathName() const {
    if (shown()) return ask(CDM_GETFILEPATH);
    if (!(m_ofn.Flags & OFN_ALLOWMULTISELECT)) return m_ofn.lpstrFile;
    POSITION first = GetStartPosition();
    return GetNextPathName(first);
}

CString CFileDialog::GetFileName() const {
    if (shown()) return ask(CDM_GETSPEC);
    return name_of(GetPathName());
}

CString CFileDialog::GetFileTitle() const {
    const CString name = GetFileName();
    const int point = point_of(name);
    return point >= 0 ? name.Left(point) : name;
}

CString CFileDialog::GetFileExt() const {
    const CString name = GetFileName();
    const int point = point_of(name);
    return point >= 0 ? name.Mid(point + 1) : CString();
}

CString CFileDialog::GetFolderPath() const { return shown() ? ask(CDM_GETFOLDERPATH) : CString(); }

CString CFileDialog::GetNextPathName(POSITION& pos) const {
    const wchar_t* const folder = m_ofn.lpstrFile;
    const wchar_t* at = reinterpret_cast<const wchar_t*>(pos);
    pos = nullptr;
    if (at == nullptr) return {};
    // Several files: the folder, then the names, each with a zero behind it, and one more zero. One: its
    // path.
    const bool several = (m_ofn.Flags & OFN_ALLOWMULTISELECT) && folder[::lstrlenW(folder) + 1] != L'\0';
    if (!several) return folder;
    if (at == folder) at += ::lstrlenW(folder) + 1;
    const wchar_t* const next = at + ::lstrlenW(at) + 1;
    if (*next != L'\0') pos = reinterpret_cast<POSITION>(const_cast<wchar_t*>(next));
    CString path(folder);
    if (path.Right(1) != L"\\") path += L"\\";
    return path + at;
}

void CFileDialog::SetTemplate(UINT nWin3ID, UINT nWin4ID) {
    SetTemplate(MAKEINTRESOURCEW(nWin3ID), MAKEINTRESOURCEW(nWin4ID));
}

void CFileDialog::SetTemplate(LPCTSTR, LPCTSTR lpWin4ID) {
    m_ofn.lpTemplateName = lpWin4ID;
    m_ofn.hInstance = AfxFindResourceHandle(lpWin4ID, RT_DIALOG);
    m_ofn.Flags |= OFN_ENABLETEMPLATE;
}

void CFileDialog::SetControlText(int nID, LPCSTR lpsz) { SetControlText(nID, CString(lpsz).GetString()); }

void CFileDialog::SetControlText(int nID, LPCWSTR lpsz) {
    ::SendMessageW(::GetParent(m_hWnd), CDM_SETCONTROLTEXT, static_cast<WPARAM>(nID),
                   reinterpret_cast<LPARAM>(lpsz));
}

void CFileDialog::HideControl(int nID) {
    ::SendMessageW(::GetParent(m_hWnd), CDM_HIDECONTROL, static_cast<WPARAM>(nID), 0);
}

void CFileDialog::SetDefExt(LPCSTR lpsz) {
    ::SendMessageW(::GetParent(m_hWnd), CDM_SETDEFEXT, 0,
                   reinterpret_cast<LPARAM>(CString(lpsz).GetString()));
}
