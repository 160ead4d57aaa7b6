#include <afxdlgs.h>

#include <algorithm>
#include <iterator>

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)
IMPLEMENT_DYNAMIC(CColorDialog, CCommonDialog)
IMPLEMENT_DYNAMIC(CFontDialog, CCommonDialog)

BEGIN_MESSAGE_MAP(CCommonDialog, CDialog)
END_MESSAGE_MAP()

BEGIN_MESSAGE_MAP(CColorDialog, CCommonDialog)
END_MESSAGE_MAP()

namespace {

constexpr int kCustomColors = 16;

UINT set_color_message() {
    static const UINT message = ::RegisterWindowMessageW(SETRGBSTRINGW);
    return message;
}

UINT color_ok_message() {
    static const UINT message = ::RegisterWindowMessageW(COLOROKSTRINGW);
    return message;
}

}  // namespace

CCommonDialog::CCommonDialog(CWnd* pParentWnd) { m_pParentWnd = pParentWnd; }

UINT_PTR CALLBACK CCommonDialog::dialog_hook(HWND window, UINT message, WPARAM, LPARAM) {
    auto* dialog = DYNAMIC_DOWNCAST(CCommonDialog, CWnd::FromHandlePermanent(window));
    return dialog ? dialog->answer_hook(message) : 0;
}

UINT_PTR CCommonDialog::answer_hook(UINT message) {
    return message == WM_INITDIALOG ? static_cast<UINT_PTR>(OnInitDialog()) : 0;
}

// The system's own dialog procedure ends the dialog, so the buttons are passed on to it.
void CCommonDialog::OnOK() {
    if (UpdateData(TRUE)) Default();
}

void CCommonDialog::OnCancel() { Default(); }

/// Shows the system's dialog with this object on its window. `show` is called with the owner and answers the
/// system's result.
INT_PTR CCommonDialog::run(BOOL (*show)(void* data), void* data, HWND& owner) {
    owner = PreModal();
    AfxHookWindowCreate(this);
    const BOOL accepted = show(data);
    AfxUnhookWindowCreate();
    PostModal();
    return accepted ? IDOK : IDCANCEL;
}

CColorDialog::CColorDialog(COLORREF clrInit, DWORD dwFlags, CWnd* pParentWnd) : CCommonDialog(pParentWnd) {
    m_cc.lStructSize = sizeof m_cc;
    m_cc.lpCustColors = GetSavedCustomColors();
    m_cc.Flags = dwFlags | CC_ENABLEHOOK;
    m_cc.lpfnHook = dialog_hook;
    m_cc.rgbResult = clrInit;
    if (clrInit != 0) m_cc.Flags |= CC_RGBINIT;
}

INT_PTR CColorDialog::DoModal() {
    return run([](void* data) { return ::ChooseColorW(static_cast<CHOOSECOLORW*>(data)); }, &m_cc,
               m_cc.hwndOwner);
}

void CColorDialog::SetCurrentColor(COLORREF clr) {
    SendMessage(set_color_message(), 0, static_cast<LPARAM>(clr));
}

BOOL CColorDialog::OnColorOK() { return FALSE; }

UINT_PTR CColorDialog::answer_hook(UINT message) {
    if (message == color_ok_message()) return static_cast<UINT_PTR>(OnColorOK());
    return CCommonDialog::answer_hook(message);
}

COLORREF* PASCAL CColorDialog::GetSavedCustomColors() {
    static COLORREF* const colors = [] {
        static COLORREF list[kCustomColors];
        std::fill(std::begin(list), std::end(list), RGB(255, 255, 255));
        return list;
    }();
    return colors;
}

CFontDialog::CFontDialog(LPLOGFONT lplfInitial, DWORD dwFlags, CDC* pdcPrinter, CWnd* pParentWnd)
    : CCommonDialog(pParentWnd) {
    m_cf.lStructSize = sizeof m_cf;
    m_cf.Flags = dwFlags | CF_ENABLEHOOK | CF_USESTYLE;
    m_cf.lpfnHook = dialog_hook;
    m_cf.lpLogFont = &m_lf;
    m_cf.lpszStyle = m_szStyleName;
    if (lplfInitial) {
        m_lf = *lplfInitial;
        m_cf.Flags |= CF_INITTOLOGFONTSTRUCT;
    }
    if (pdcPrinter) {
        m_cf.hDC = pdcPrinter->m_hDC;
        m_cf.Flags |= CF_PRINTERFONTS;
    }
}

INT_PTR CFontDialog::DoModal() {
    return run([](void* data) { return ::ChooseFontW(static_cast<CHOOSEFONTW*>(data)); }, &m_cf,
               m_cf.hwndOwner);
}

void CFontDialog::GetCurrentFont(LPLOGFONT lplf) {
    if (m_hWnd) {
        SendMessage(WM_CHOOSEFONT_GETLOGFONT, 0, reinterpret_cast<LPARAM>(lplf));
    } else {
        *lplf = m_lf;
    }
}
