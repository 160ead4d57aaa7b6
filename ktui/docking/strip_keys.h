// The strip of a palette set as a tab stop. Private to the library.
#pragma once

#include <ktui/docking/pane_stops.h>

/// Whether a WM_KEYDOWN belongs to the strip of the set with the focus: Tab and Shift+Tab go between the
/// palette's first or last control and the strip; on the strip the arrow keys show the next palette, F2
/// renames the one that shows, and Enter goes into it. A strip with the focus has a mark around that tab.
bool TakesKeyOfStrip(const KeyedFrame& keyed, const MSG& message);
