// Letters for tests of plots: each a block as wide as the text says, with an advance of its own.
#pragma once

#include "plotting/scene_plotter.h"

namespace plot_test {

/// A letter of 600 by 700 thousandths of the em, filled.
inline Glyph block(char32_t character) {
    if (character == U' ') return {300, {}};
    const auto piece = [](char kind, double x, double y) { return GlyphPiece{kind, {{x, y}, {}, {}}}; };
    return {600, {piece('m', 0, 0), piece('l', 500, 0), piece('l', 500, 700), piece('l', 0, 700)}};
}

inline PlotFace face(const SceneFont& font) { return {odUtf8(font.family.view()), &block}; }

}  // namespace plot_test
