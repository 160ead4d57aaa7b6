// ktuiTransparentBitmap: a plain bitmap made into one with alpha.
#pragma once

#include <windows.h>

#include <ktui/ktui_api.h>

/// A new 32-bit bitmap of the size of `source`, which is not changed. The caller owns it. Null for a null or
/// empty source, and without memory. `flags`, added up:
///   1  the key colour is that of the left top pixel; without it 0xC0C0C0
///   2  key pixels become all ones and others get alpha 0; without it key pixels become all zeros and others
///      get alpha 255
///   4  the other pixels become grey
///   8  the source has 32 bits with alpha: what has alpha 0 loses its colour, and the other flags don't count
KTUI_API HBITMAP ktuiTransparentBitmap(HBITMAP source, int flags);
