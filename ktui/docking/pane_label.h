// The name of a pane, shown over its corner for a moment. Private to the library.
#pragma once

#include <afxwin.h>

/// Shows `text` over the upper left corner of a window, in place of one that shows already. It takes no focus
/// and no clicks, and goes by itself.
void ShowPaneLabel(HWND over, const CString& text);
/// Takes the label away, if one shows.
void HidePaneLabel();
