// The folder that a file dialog shows. Private to the library.
#pragma once

#include <afxwin.h>

/// The folder shown by the platform's dialog `window`; a virtual one by "::" and its class id. Empty if the
/// dialog can't tell.
CString CurrentFolder(HWND window);
