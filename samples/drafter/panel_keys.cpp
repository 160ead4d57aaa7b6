#include "panel_keys.h"

bool HasCommandKey(const MSG& message) {
    return message.message == WM_KEYDOWN && message.wParam != VK_CONTROL && ::GetKeyState(VK_CONTROL) < 0 &&
           ::GetKeyState(VK_MENU) >= 0;
}

bool FrameTakesKey(MSG message) {
    CWnd* const frame = AfxGetMainWnd();
    return HasCommandKey(message) && frame != nullptr && frame->PreTranslateMessage(&message);
}
