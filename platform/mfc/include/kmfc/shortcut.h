// AfxResolveShortcut: what a shortcut stands for.
#pragma once

#include <kmfc/wnd.h>

/// Puts the path that the shortcut `pszShortcutFile` leads to into `pszPath`, which has room for `cchPath`
/// characters. FALSE, with an empty path, if there is no such shortcut or its target cannot be found. `pWnd`
/// owns what the system asks the user on the way; null asks nothing. COM has to be initialised in the thread.
KMFC_API BOOL AFXAPI AfxResolveShortcut(CWnd* pWnd, LPCTSTR pszShortcutFile, LPTSTR pszPath, int cchPath);
