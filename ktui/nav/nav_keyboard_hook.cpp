#include <ktui/nav/nav_keyboard_hook.h>

#include <ktdsres/nav_file_dialog_ids.h>

#include <ktui/host/host_calls.h>
#include <ktui/nav/nav_file_dlg.h>

namespace {

CNavFileDlg* hookDialog = nullptr;
HHOOK keyboardHook = nullptr;

/// A letter that acts with Alt while its button is to be seen.
struct HotKey {
    wchar_t letter;  ///< capital
    int button;
    void (CNavFileDlg::*act)();
};

constexpr HotKey kHotKeys[] = {
    {L'F', IDC_NAV_FIND, &CNavFileDlg::FindFile},
    {L'L', IDC_NAV_LOCATE, &CNavFileDlg::Locate},
    {L'O', IDC_NAV_OPTIONS, &CNavFileDlg::ShowSaveOptions},
    {L'E', IDC_NAV_SECURITY, &CNavFileDlg::ShowSecurityOptions},
};
constexpr wchar_t kLowerCase = L'a' - L'A';

const HotKey* hotKeyOf(WPARAM key) {
    for (const HotKey& each : kHotKeys)
        // Kept: the code of the small letter counts too, though it is that of another key.
        if (key == each.letter || key == static_cast<WPARAM>(each.letter + kLowerCase)) return &each;
    return nullptr;
}

bool isAltHeld() { return ::GetKeyState(VK_MENU) < 0; }

/// Whether the key was the dialog's.
bool takesKey(WPARAM key) {
    if (key == VK_F1) {
        ShowHostHelp();
        return true;
    }
    const HotKey* const found = hotKeyOf(key);
    if (found == nullptr || hookDialog == nullptr || !isAltHeld() ||
        !::IsWindowVisible(::GetDlgItem(hookDialog->m_hWnd, found->button)))
        return false;
    (hookDialog->*found->act)();
    return true;
}

/// Kept: neither the code nor whether the key goes down or up counts.
LRESULT CALLBACK onKey(int code, WPARAM key, LPARAM state) {
    return takesKey(key) ? 1 : ::CallNextHookEx(keyboardHook, code, key, state);
}

}  // namespace

void SetNavHookDialog(CNavFileDlg* dialog) { hookDialog = dialog; }

CNavFileDlg* NavHookDialog() { return hookDialog; }

void SetNavKeyboardHook() {
    if (hookDialog != nullptr && keyboardHook == nullptr)
        keyboardHook = ::SetWindowsHookExW(WH_KEYBOARD, onKey, nullptr, ::GetCurrentThreadId());
}

void RemoveNavKeyboardHook() {
    if (keyboardHook != nullptr) ::UnhookWindowsHookEx(keyboardHook);
    keyboardHook = nullptr;
}
