// The lineweights of a drawing: their names in both units, and the bar that shows one. Weights are hundredths
// of a millimetre.
//
// Rectangles are in pixels. Without any device context.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <afx.h>

#include <array>

/// Name of one lineweight in both units. The names are fixed texts, not computed from the weight.
struct LineWeightName {
    int weight;
    const wchar_t* millimetres;
    const wchar_t* inches;
};

constexpr std::size_t kLineWeightCount = 24;

/// The lineweights that a user may choose, from thin to thick.
const std::array<LineWeightName, kLineWeightCount>& LineWeightNames();

/// Name of `weight` in inches or in millimetres; empty for a weight that isn't in the table.
const wchar_t* LineWeightText(bool inch, int weight);

/// Thickness in pixels of the bar for `weight` in a rectangle of `height` pixels, 0 or more, at `scale`:
/// above 0, more than the height only for a rectangle of less than 2 pixels.
int LineWeightBarThickness(int height, int weight, double scale);

/// Puts the bar for `weight`, centred in the full width of `rect`, into `bar`. False, with `bar` untouched,
/// for a rectangle whose bottom lies above its top.
bool LineWeightBar(const RECT& rect, int weight, double scale, RECT& bar);
