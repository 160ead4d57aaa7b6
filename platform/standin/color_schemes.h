// The colours of the stand-in host's schemes. Internal to the module.
#pragma once

#include "standin_settings.h"

/// The scheme that the system is in: high contrast if the user asked for it, else light or dark by the
/// background of its windows.
StandinColorScheme SystemColorScheme();

/// Puts the colour of `scheme` for `role` into `color`. False, and `color` left alone, for a scheme or role
/// that there is none of; kSystem is none.
bool ColorOfScheme(int scheme, int role, COLORREF& color);
