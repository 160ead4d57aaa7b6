// CPrintDialog: the system's dialog for printing, and what it leaves in two blocks of memory.
#include <kmfc/print_dialog.h>

IMPLEMENT_DYNAMIC(CPrintDialog, CCommonDialog)

BEGIN_MESSAGE_MAP(CPrintDialog, CCommonDialog)
END_MESSAGE_MAP()

namespace {

/// A block of memory, locked as long as the object lives.
template <class T>
class Locked {
public:
    explicit Locked(HGLOBAL block)
        : m_block(block), m_data(block != nullptr ? static_cast<const T*>(::GlobalLock(block)) : nullptr) {}
    ~Locked() {
        if (m_data != nullptr) ::GlobalUnlock(m_block);
    }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;
    const T* get() const { return m_data; }

private:
    HGLOBAL m_block;
    const T* m_data;
};

/// One of the names, which follow the structure at their places in characters.
CString name_at(HGLOBAL names, WORD DEVNAMES::*place) {
    const Locked<DEVNAMES> locked(names);
    if (locked.get() == nullptr) return CString();
    return reinterpret_cast<const wchar_t*>(locked.get()) + locked.get()->*place;
}

}  // namespace

CPrintDialog::CPrintDialog(BOOL bPrintSetupOnly, DWORD dwFlags, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd) {
    m_pd.lStructSize = sizeof m_pd;
    m_pd.Flags = dwFlags | PD_ENABLEPRINTHOOK | PD_ENABLESETUPHOOK;
    m_pd.lpfnPrintHook = dialog_hook;
    m_pd.lpfnSetupHook = dialog_hook;
    m_pd.Flags &= ~static_cast<DWORD>(PD_RETURNIC);
    m_pd.Flags |= bPrintSetupOnly ? PD_PRINTSETUP : PD_RETURNDC;
}

INT_PTR CPrintDialog::DoModal() {
    return run([](void* data) { return ::PrintDlgW(static_cast<PRINTDLGW*>(data)); }, &m_pd, m_pd.hwndOwner);
}

BOOL CPrintDialog::GetDefaults() {
    m_pd.Flags |= PD_RETURNDEFAULT;
    const BOOL found = ::PrintDlgW(&m_pd);
    m_pd.Flags &= ~static_cast<DWORD>(PD_RETURNDEFAULT);
    return found;
}

HDC CPrintDialog::CreatePrinterDC() {
    if (m_pd.hDevNames == nullptr) return nullptr;
    const Locked<DEVMODEW> mode(m_pd.hDevMode);
    m_pd.hDC = ::CreateDCW(GetDriverName(), GetDeviceName(), GetPortName(), mode.get());
    return m_pd.hDC;
}

int CPrintDialog::GetCopies() const {
    // A driver that prints several copies by itself keeps their number.
    const Locked<DEVMODEW> mode((m_pd.Flags & PD_USEDEVMODECOPIES) != 0 ? m_pd.hDevMode : nullptr);
    return mode.get() != nullptr ? mode.get()->dmCopies : m_pd.nCopies;
}

LPDEVMODE CPrintDialog::GetDevMode() const {
    return m_pd.hDevMode != nullptr ? static_cast<LPDEVMODE>(::GlobalLock(m_pd.hDevMode)) : nullptr;
}

CString CPrintDialog::GetDriverName() const { return name_at(m_pd.hDevNames, &DEVNAMES::wDriverOffset); }
CString CPrintDialog::GetDeviceName() const { return name_at(m_pd.hDevNames, &DEVNAMES::wDeviceOffset); }
CString CPrintDialog::GetPortName() const { return name_at(m_pd.hDevNames, &DEVNAMES::wOutputOffset); }
