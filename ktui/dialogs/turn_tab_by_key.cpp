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

/// Tells the tab control's parent what the control would tell it; the parent's answer.
LRESULT notify(const CKbUiTab& tab, UINT code) {
    const auto id = static_cast<UINT_PTR>(tab.GetDlgCtrlID());
    NMHDR header = {tab.m_hWnd, id, code};
    return ::SendMessageW(::GetParent(tab.m_hWnd), WM_NOTIFY, id, reinterpret_cast<LPARAM>(&header));
}

}  // namespace

BOOL KtUiTurnTabByKey(CKbUiTab& tab, const MSG& message) {
    const int step = stepOf(message);
    const int count = tab.GetItemCount();
    if (step == 0 || count == 0) return FALSE;
    // Moving the control's focus mark would ask too, but not every system heeds the answer.
    if (notify(tab, TCN_SELCHANGING) != 0) return TRUE;
    tab.SetCurSel((tab.GetCurSel() + step + count) % count);
    notify(tab, TCN_SELCHANGE);
    return TRUE;
}
