// The steps of the tour: each is announced, and its picture is taken.
#pragma once

#include <string>

/// Announces what was done and takes a picture named after the step.
void tell(const char* name, const std::wstring& text);

/// Goes through every dialog with its pickers closed and dropped, and the dialogs behind them. 0, or 1 if
/// something did not come up.
int ShowDialogs();
