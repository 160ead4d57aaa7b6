// Small pictures from their pixels onto a device context.
#pragma once

#include <kmfc/dc.h>

#include "core/picture_pixels.h"

namespace kmfc {

/// What GDI is told of 32-bit pixels in rows from the top.
BITMAPINFO rows_from_the_top(const CSize& size);
/// Draws a picture with its corner at `at`, over what is there by its alpha. Nothing for an empty one.
void draw_picture(CDC& dc, const CPoint& at, const PicturePixels& picture);

}  // namespace kmfc
