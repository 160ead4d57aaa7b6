// What a layout of panes comes to in pixels, and what it is made from. No windows here.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include <kmfc/geometry.h>

namespace kmfc::docking {

/// Names a pane; 0 is none. The layout never looks behind it.
using PaneKey = std::uintptr_t;

/// A side of a frame or of a pane.
enum class Side : int { left, top, right, bottom };
constexpr int kSides = 4;

/// Whether a pane docked at that side has its divider upright, so that its width is what is dragged.
constexpr bool is_upright(Side side) { return side == Side::left || side == Side::right; }
/// Whether a pane docked at that side of another comes before it, from the left or from the top.
constexpr bool comes_first(Side side) { return side == Side::left || side == Side::top; }

/// What a layout keeps to.
struct Rules {
    int divider = 4;                      ///< thickness, pixels
    CSize center{0, 0};                   ///< the least that is left in the middle, pixels
    std::function<CSize(PaneKey)> least;  ///< the least size of a pane, pixels; none: 0
    CSize least_of(PaneKey pane) const { return least ? least(pane) : CSize(0, 0); }
};

struct PlacedPane {
    PaneKey pane = 0;
    CRect rect{0, 0, 0, 0};
};

struct PlacedDivider {
    int id = 0;
    CRect rect{0, 0, 0, 0};
    CRect around{0, 0, 0, 0};  ///< what it divides, itself included
    bool upright = true;       ///< it stands between left and right
    bool atEdge = false;       ///< it stands between a row of the frame and what lies further inside
};

/// Where everything stands. Panes, dividers and the middle never overlap and together fill the area.
struct KMFC_API Arrangement {
    std::vector<PlacedPane> panes;
    std::vector<PlacedDivider> dividers;
    CRect center{0, 0, 0, 0};

    const CRect* find(PaneKey pane) const;
    const PlacedDivider* find_divider(int id) const;
};

/// A number that no other divider of the process has.
KMFC_API int next_divider_id();

/// The extent of the first of two neighbours who share `total` pixels: `share` millionths of it, but each
/// keeps its least extent while there is room for both; without, they share by their least extents.
KMFC_API int divide(int total, int share, int least1, int least2);

constexpr int kWhole = 1'000'000;  ///< a share of everything

}  // namespace kmfc::docking
