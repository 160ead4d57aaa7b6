// The geometry of a colour swatch: where its frame and its colour area lie, and which colour a pixel has.
//
// Rectangles and distances are in pixels. Without any device context.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <afx.h>

/// Rows and columns of the ramp that stands for "any colour": the chromatic part of the indexed palette.
constexpr int kRampRows = 24;
constexpr int kRampColumns = 10;

/// `rect` with each edge moved in by `pixels`.
constexpr RECT ShrinkRect(const RECT& rect, int pixels) {
    return {rect.left + pixels, rect.top + pixels, rect.right - pixels, rect.bottom - pixels};
}

/// True if nothing can be painted in `rect`.
constexpr bool IsEmptyRect(const RECT& rect) { return rect.left >= rect.right || rect.top >= rect.bottom; }

/// The black frame of the swatch in the image column `image`; it lies behind the colour area.
constexpr RECT SwatchFrame(const RECT& image) { return ShrinkRect(image, 2); }

/// The part of a swatch that shows the colour.
constexpr RECT SwatchArea(const RECT& image) { return ShrinkRect(SwatchFrame(image), 1); }

/// Colour index at `row` and `column` of the ramp; every index from 10 to 249 occurs once.
int RampColorIndex(int row, int column);

/// Colour index of the ramp at `dx`, `dy` from the left top of a colour area of `width` by `height`.
int RampColorIndexAt(int dx, int dy, int width, int height);

/// Colour of the black and white diagonal at `dx`, `dy`: black above the diagonal, white on and below it.
constexpr COLORREF DiagonalColorAt(int dx, int dy) { return dx > dy ? 0x000000 : 0xFFFFFF; }
