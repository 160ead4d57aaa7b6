#include <kmfc/shortcut.h>

#include <shlobj.h>

#include <kmfc/safe_handle.h>

#include "../core/com_reference.h"

BOOL AFXAPI AfxResolveShortcut(CWnd* pWnd, LPCTSTR pszShortcutFile, LPTSTR pszPath, int cchPath) {
    if (pszPath == nullptr || cchPath <= 0) return FALSE;
    *pszPath = L'\0';
    kmfc::Reference<IShellLinkW> link;
    kmfc::Reference<IPersistFile> file;
    const HWND owner = kmfc::safe_handle(pWnd);
    const DWORD asking = owner != nullptr ? SLR_ANY_MATCH : SLR_NO_UI;
    const HRESULT made = kmfc::fill(link, [](IShellLinkW** place) {
        return ::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                  reinterpret_cast<void**>(place));
    });
    if (FAILED(made)) return FALSE;
    const HRESULT asked = kmfc::fill(file, [&](IPersistFile** place) {
        return link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(place));
    });
    if (FAILED(asked) || FAILED(file->Load(pszShortcutFile, STGM_READ)) ||
        FAILED(link->Resolve(owner, asking)))
        return FALSE;
    return link->GetPath(pszPath, cchPath, nullptr, 0) == S_OK && *pszPath != L'\0';
}
