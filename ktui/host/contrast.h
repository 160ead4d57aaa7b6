// How well one colour can be told from another. Without any window.
#pragma once

#include <afx.h>

#include <ktui/ktui_api.h>

constexpr double kTextContrast = 4.5;  ///< what a text needs against its paper
constexpr double kMarkContrast = 3;    ///< what lines and pictures need

/// Ratio of the luminances of two colours: 1 for equal ones to 21 for black and white.
KTUI_API double ContrastRatio(COLORREF a, COLORREF b);

/// `wanted` if it has a contrast of at least `least` to `paper`, otherwise `fallback`.
KTUI_API COLORREF ReadableColor(COLORREF wanted, COLORREF paper, double least, COLORREF fallback);
