// The keys of the frame while a palette has the focus: a dialog would keep them to itself.
#pragma once

#include <afxwin.h>

/// Whether `message` is a key with Ctrl alone held, as those of commands are.
bool HasCommandKey(const MSG& message);
/// Offers such a key to the main window; true if it has a command for it.
bool FrameTakesKey(MSG message);
