// Copies one picture of a vertical strip into the image column of a picker. Private to the library.
#pragma once

#include <afxwin.h>

/// Copies `width` by `height` pixels of `strip` from its left edge at `top` to the left top corner of `image`
/// (logical units of `dc`). Nothing for an empty strip.
void DrawStripPicture(CDC& dc, const RECT& image, CBitmap& strip, int top, int width, int height);

/// Loads the library's own bitmap `id` into `strip`, which stays empty if there is no such bitmap.
void LoadStrip(CBitmap& strip, UINT id);
