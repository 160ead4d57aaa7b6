// The panes of a main window that the keyboard goes through. Private to the library.
#pragma once

#include <afxcontrolbars.h>

#include <vector>

struct KeyedFrame {
    CFrameWnd* frame;
    CDockingManager* manager;
};

/// All panes that the focus can go to, in the order in which it does; of tabs the pane around them.
std::vector<CDockablePane*> PaneStops(const KeyedFrame& keyed);
/// The one of them that has the focus, or null.
CDockablePane* PaneStopWithFocus(const KeyedFrame& keyed);
/// What shows in a pane: of tabs the active one.
CDockablePane* PaneContent(CDockablePane* pane);
/// The controls in a window that the focus stops at by Tab, in their order.
std::vector<HWND> TabStopsIn(HWND window);
/// Gives the focus to the first of them, or to the window itself.
void FocusFirstStop(HWND window);
CString WindowName(CWnd& window);

/// Brings the focus into a pane, which slides out if it hides at an edge, and names it on the screen.
void GoToPane(CDockablePane* pane);
/// The same with what is left between the panes.
void GoToMiddle(const KeyedFrame& keyed);
