#include <ktui/dialogs/kbui_tab_child_dialog.h>

#include <ktui/dialogs/kbui_tab.h>
#include <ktui/dialogs/kbui_tab_main_dialog.h>

namespace {

constexpr int kClassNameLength = 32;
constexpr LCID kClassNameLocale = 1033;

bool isEdit(HWND window) {
    wchar_t name[kClassNameLength] = {};
    ::GetClassNameW(window, name, kClassNameLength);
    return ::CompareStringW(kClassNameLocale, NORM_IGNORECASE, name, -1, L"Edit", -1) == CSTR_EQUAL;
}

bool takesReturn(HWND window) {
    return isEdit(window) && (::GetWindowLongW(window, GWL_STYLE) & ES_MULTILINE) != 0;
}

}  // namespace

IMPLEMENT_DYNAMIC(CKbUiTabChildDialog, CKbUiDialog)

// The template comes with the page's place in a strip.
CKbUiTabChildDialog::CKbUiTabChildDialog(CWnd* parent, HINSTANCE resource)
    : CKbUiDialog(0, parent, resource) {}

CKbUiTabChildDialog::~CKbUiTabChildDialog() = default;

BOOL CKbUiTabChildDialog::PreTranslateMessage(MSG* message) {
    const bool returnKey = message->message == WM_KEYDOWN && message->wParam == VK_RETURN;
    if (returnKey && !takesReturn(message->hwnd) && !moveFocusToOK()) return TRUE;
    return CKbUiDialog::PreTranslateMessage(message);
}

bool CKbUiTabChildDialog::moveFocusToOK() {
    CKbUiTabMainDialog* main = GetMainDialog();
    const HWND ok = main != nullptr ? ::GetDlgItem(main->m_hWnd, IDOK) : nullptr;
    if (!::IsWindowEnabled(ok)) return true;  // nor is a button that isn't there
    ::SetFocus(ok);
    // A control that is left with a bad value may have taken the focus back.
    return ::GetFocus() == ok;
}

CKbUiTabMainDialog* CKbUiTabChildDialog::GetMainDialog() {
    return m_tab != nullptr ? m_tab->GetMainDialog() : nullptr;
}

int CKbUiTabChildDialog::GetTabIndex() { return m_tab != nullptr ? m_tab->GetTabIndex(this) : -1; }

void CKbUiTabChildDialog::SetKtdsTabChildFocus(HWND window) {
    ::SetFocus(window);
    m_tabFocus = window;
}

void CKbUiTabChildDialog::SetValidationInfo(CDataExchange* exchange) {
    // Kept: the control is looked for on the tab control, not on the page.
    if (m_tab != nullptr) m_tab->SetValidationInfo(exchange);
}

void CKbUiTabChildDialog::OnTabActivation(int) {}
int CKbUiTabChildDialog::OnTabChanging() { return 1; }
void CKbUiTabChildDialog::OnMainDialogApply() {}
void CKbUiTabChildDialog::OnMainDialogCancel() {}
void CKbUiTabChildDialog::OnMainDialogOK() {}
int CKbUiTabChildDialog::OnMainDialogHelp() { return 0; }

// Help belongs to the main dialog.
int CKbUiTabChildDialog::DoDialogHelp() { return 0; }

void CKbUiTabChildDialog::pressInMainDialog(int id) {
    if (CKbUiTabMainDialog* main = GetMainDialog()) main->SendMessage(WM_COMMAND, static_cast<WPARAM>(id));
}

void CKbUiTabChildDialog::OnOK() { pressInMainDialog(IDOK); }
void CKbUiTabChildDialog::OnCancel() { pressInMainDialog(IDCANCEL); }

int CKbUiTabChildDialog::OnResizePage(unsigned __int64, __int64) { return 0; }
int CKbUiTabChildDialog::TranslateTabKey() { return 0; }
