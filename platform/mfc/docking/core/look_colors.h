// The colours of the flat look, from the few of the system that it follows.
#pragma once

#include <kmfc/platform.h>

namespace kmfc {

/// What the system says.
struct SystemColors {
    COLORREF face, text, window, windowText, highlight, highlightText;
    bool highContrast;
};

/// What is painted in which colour.
struct LookColors {
    COLORREF bar;                           ///< behind bars and tabs
    COLORREF captionFill, captionText;      ///< of a pane that isn't active
    COLORREF activeFill, activeText;        ///< of the active pane
    COLORREF border;                        ///< lines around panes, tabs and frames
    COLORREF hotFill, hotText;              ///< a button or tab under the mouse
    COLORREF pressedFill, pressedText;      ///< a button that is held down
    COLORREF activeTabFill, activeTabText;  ///< the tab whose window shows
    COLORREF tabText, disabledText;
};

/// `part` hundredths of `over` on `under`, each channel rounded to the nearest.
KMFC_API COLORREF blend(COLORREF under, COLORREF over, int part);

/// Contrast of two colours as the accessibility guidelines measure it: 1 for equal ones, 21 for black on
/// white.
KMFC_API double contrast(COLORREF one, COLORREF other);

/// Whether a background is dark, which calls for light texts and signs.
KMFC_API bool is_dark(COLORREF color);

/// In high contrast every colour is one of the system's own. Otherwise fills are mixed, and each text keeps a
/// contrast of 4.5 on its fill as long as the system's text on its face has it.
KMFC_API LookColors look_colors(const SystemColors& system);

}  // namespace kmfc
