// The name of a pane, or what keys do to it, shown over its corner. Private to the library.
#pragma once

#include <afxwin.h>

enum class PaneLabelEnd { kByItself, kWhenHidden };

/// Shows `text` over the upper left corner of a window, in place of one that shows already. It takes no focus
/// and no clicks, and goes by itself after a moment unless it has to be taken away.
void ShowPaneLabel(HWND over, const CString& text, PaneLabelEnd end = PaneLabelEnd::kByItself);
/// Takes the label away, if one shows.
void HidePaneLabel();
