// Moving and sizing a pane by the arrow keys: a floating one in its frame, a docked one at its dividers.
// Private to the library.
#pragma once

#include <afxcontrolbars.h>

enum class PaneMove { kPlace, kSize };

/// Whether a pane floats.
bool CanMovePane(CDockablePane& pane);
/// Whether there is something to size: a floating frame, or a divider beside a docked pane.
bool CanSizePane(CDockablePane& pane);

/// From now on the arrow keys move or size the pane, 8 pixels at a time, with Ctrl by one. Enter keeps it,
/// Escape puts it back. Any other key, a press of the mouse and another focus keep it as well.
void BeginMove(CDockablePane& pane, PaneMove what);
/// Whether the message belongs to what BeginMove began.
bool TakesKeyOfMove(const MSG& message);
/// Ends it, if it is under way; without `keep` the pane goes back.
void EndMove(bool keep);
