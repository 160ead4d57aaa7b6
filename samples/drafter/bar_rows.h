// Where the parts of a bar stand: in rows from the left, each with as many parts as there is room for. Knows
// no window.
#pragma once

#include <cstddef>
#include <vector>

/// Place of a part: its row from 0, its left edge and its width in pixels.
struct BarPlace {
    int row;
    int left;
    int width;
};

/// Places of parts of these `widths`, in their order, in `room` pixels: `edge` pixels stay free at either
/// side and `gap` pixels between two of a row. A part that is wider than a row becomes as wide as that, but
/// no narrower than a pixel.
std::vector<BarPlace> PlaceInRows(const std::vector<int>& widths, int room, int edge, int gap);

/// Count of the rows.
int RowCount(const std::vector<BarPlace>& places);
