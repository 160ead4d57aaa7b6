#include <kmfc/shortcut.h>

#include <shlobj.h>

#include <kmfc/safe_handle.h>

namespace {

/// Releases an interface at its end.
template <class Interface>
class Held {
public:
    Held() = default;
    ~Held() {
        if (m_pointer != nullptr) m_pointer->Release();
    }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;
    Interface* operator->() const { return m_pointer; }
    void** place() { return reinterpret_cast<void**>(&m_pointer); }

private:
    Interface* m_pointer = nullptr;
};

}  // namespace

BOOL AFXAPI AfxResolveShortcut(CWnd* pWnd, LPCTSTR pszShortcutFile, LPTSTR pszPath, int cchPath) {
    if (pszPath == nullptr || cchPath <= 0) return FALSE;
    *pszPath = L'\0';
    Held<IShellLinkW> link;
    Held<IPersistFile> file;
    const HWND owner = kmfc::safe_handle(pWnd);
    const DWORD asking = owner != nullptr ? SLR_ANY_MATCH : SLR_NO_UI;
    if (FAILED(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                                  link.place())) ||
        FAILED(link->QueryInterface(IID_IPersistFile, file.place())) ||
        FAILED(file->Load(pszShortcutFile, STGM_READ)) || FAILED(link->Resolve(owner, asking)))
        return FALSE;
    return link->GetPath(pszPath, cchPath, nullptr, 0) == S_OK && *pszPath != L'\0';
}
