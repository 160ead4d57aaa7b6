// Brings a window back whose place was kept on another screen than today's.
//
// A toolkit dialog comes back where it stood if that touches the desktop by as little as a pixel, agreed with
// hosts of long standing. A host that wants its buttons to be reached calls this once the dialog is placed,
// for example from a message that its OnInitDialog posts.
#pragma once

#include <afxwin.h>

#include <ktui/ktui_api.h>

/// Moves `window` so that all of it lies in the work area of the nearest monitor; one that is larger begins
/// at the area's left top corner. Its size stays. TRUE if it was moved.
KTUI_API BOOL KtUiBringIntoView(CWnd& window);
