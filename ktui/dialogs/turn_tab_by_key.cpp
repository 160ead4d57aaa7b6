#include <ktui/dialogs/turn_tab_by_key.h>

namespace {

bool isDown(int key) { return ::GetKeyState(key) < 0; }

/// 1 for the next page, -1 for the one before, 0 if the key turns none.
int stepOf(const MSG& message) {
    if (message.message != WM_KEYDOWN || !isDown(VK_CONTROL)) return 0;
    switch (message.wParam) {
        case VK_TAB: return isDown(VK_SHIFT) ? -1 : 1;
        case VK_NEXT: return 1;
        case VK_PRIOR: return -1;
        default: return 0;
    }
}

}  // namespace

BOOL KtUiTurnTabByKey(CKbUiTab& tab, const MSG& message) {
    const int step = stepOf(message);
    const int count = tab.GetItemCount();
    if (step == 0 || count == 0) return FALSE;
    // The control asks and tells by its notifications when its focus mark moves.
    tab.SetCurFocus((tab.GetCurSel() + step + count) % count);
    return TRUE;
}
