// What controls in a bar or pane tell it.
#pragma once

#include <windows.h>

namespace kmfc {

/// Whether a message of a control that a bar doesn't handle goes on to its owner.
inline bool goes_to_owner(UINT message) {
    switch (message) {
        case WM_COMMAND:
        case WM_NOTIFY:
        case WM_DRAWITEM:
        case WM_MEASUREITEM:
        case WM_DELETEITEM:
        case WM_COMPAREITEM:
        case WM_VKEYTOITEM:
        case WM_CHARTOITEM: return true;
        default: return false;
    }
}

}  // namespace kmfc
