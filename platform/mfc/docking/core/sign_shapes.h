// The signs of menus and captions as coverage: how much of each pixel a sign takes.
#pragma once

#include <vector>

#include <kmfc/platform.h>

namespace kmfc {

/// The shapes. Arrows are filled triangles, the others strokes.
enum class Sign {
    arrow_down,
    arrow_right,
    arrow_up,
    arrow_left,
    large_arrow_down,
    large_arrow_right,
    large_arrow_up,
    large_arrow_left,
    first,
    last,
    check,
    radio,
    minimize,
    restore,
    maximize,
    close,
    small_close,
    pin_lying,
    pin_standing,
    more,
    count,
};

/// Coverage of `width` by `height` pixels, row by row from the top, 0 to 255. Straight strokes fall on whole
/// pixels. Empty for a size below one.
KMFC_API std::vector<BYTE> sign_coverage(Sign sign, int width, int height);

}  // namespace kmfc
