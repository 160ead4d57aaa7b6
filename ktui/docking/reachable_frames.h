// Floating frames that can always be reached. Private to the library.
#pragma once

#include <afxcontrolbars.h>

/// Brings the main window and the floating frames of a manager back whose captions can't be grabbed on any
/// screen. Leaves those alone that the user drags, and a main window that is maximized or minimized.
void KeepReachable(CFrameWnd& frame, CDockingManager& manager);
