// Colours of indexes, from a picker's own palette or from the host. Private to the library.
#pragma once

#include <windows.h>

/// Colour of entry `index` in `palette`; false without a palette or for an index that, taken as an unsigned
/// number, isn't below 256.
bool LookupInPalette(int index, const LOGPALETTE* palette, COLORREF& color);

/// Colour that the host shows for `index`, which may be any number; 0 while there are no colour services.
COLORREF LookupAtHost(int index);
