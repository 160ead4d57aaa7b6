// The layout of a main window's panes, taken and put back. Private to the library.
#pragma once

#include <afxcontrolbars.h>

#include <ktui/docking/layout_record.h>

namespace layouts {

/// The present layout, with all panes that the manager knows and that have an id. False when the manager
/// gives none that can be read.
bool Capture(CDockingManager& manager, Record& record);
/// Puts the panes of a record where it says. All of them must be there, and all that are there in it. False,
/// with nothing changed, when the manager refuses it.
bool Restore(CDockingManager& manager, const Record& record);

/// The pane with an id, or null; not the panes that hold others in tabs.
CDockablePane* PaneOf(CDockingManager& manager, unsigned id);

}  // namespace layouts
