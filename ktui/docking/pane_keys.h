// Going through the panes of a main window by keyboard. Nothing changes without the call.
#pragma once

#include <afxcontrolbars.h>

#include <ktui/ktui_api.h>

/// With TRUE, F6 and Shift+F6 move the focus through the middle of a main window and its panes: docked ones
/// from the outside in, then those that hide at an edge, which slide out, then floating ones; of tabs the
/// active one. Ctrl+F6 and Ctrl+Shift+F6 show the next or former palette of the set with the focus, or else
/// tab of the pane with the focus; elsewhere they go on to the program, which may change documents by them. A
/// label names where the focus went, and goes by itself.
///
/// Alt+- opens the menu of the pane with the focus: moved and sized by arrow keys, docked, floated, joined to
/// others as a tab, hidden at an edge, closed. The strip of a palette set is a tab stop behind the controls
/// of its palette: arrow keys show another palette, Enter goes into it, F2 renames it.
///
/// Keys in dialogs and menus are left alone. `enable` FALSE ends all of it, as the window's end does. FALSE
/// for a window that isn't there or has no docking manager.
KTUI_API BOOL KtUiEnablePaneKeys(CFrameWnd& frame, BOOL enable);
