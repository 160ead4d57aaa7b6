// The menu by which a pane is moved, docked, joined and closed without a mouse. Private to the library.
#pragma once

#include <ktui/docking/pane_stops.h>

/// Shows the menu of the pane with the focus at its upper left corner and does what is chosen; of tabs that
/// is the active one, but all of them hide at an edge together. Nothing happens when no pane has the focus.
void ShowPaneMenu(const KeyedFrame& keyed);
