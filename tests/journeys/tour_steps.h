// The steps of the tour: each is announced, and its picture is taken.
#pragma once

#include <string>

namespace journey {
class Drafter;
}

/// Announces what was done and takes a picture named after the step.
void tell(const char* name, const std::wstring& text);

/// Goes through every dialog with its pickers closed and dropped, and the dialogs behind them. 0, or 1 if
/// something did not come up.
int ShowDialogs();

/// Opens two more drawings, goes from one to the other, and closes both. What did not come about, or null.
const char* ShowDrawings(journey::Drafter& drafter);

/// Changes a property, lists layers and drops a block, and takes all of it back. What did not come up, or
/// null.
const char* ShowPalettes(journey::Drafter& drafter);
