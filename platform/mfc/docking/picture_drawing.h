// Small pictures from their pixels onto a device context.
#pragma once

#include <kmfc/dc.h>

#include "core/picture_pixels.h"

namespace kmfc {

/// What GDI is told of 32-bit pixels in rows from the top.
BITMAPINFO rows_from_the_top(const CSize& size);
/// The pixels of a bitmap: by its alpha channel, or all but those of the transparent colour. Empty when it
/// has none.
PicturePixels pixels_of(HBITMAP bitmap, COLORREF transparent);
/// The pixels of an icon; empty when there is none.
PicturePixels pixels_of(HICON icon);
/// Draws a picture with its corner at `at`, over what is there by its alpha. Nothing for an empty one.
void draw_picture(CDC& dc, const CPoint& at, const PicturePixels& picture);

}  // namespace kmfc
