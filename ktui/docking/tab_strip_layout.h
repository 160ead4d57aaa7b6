// Where the tabs of a palette set's strip lie, which of them are shown, and what a point meets.
//
// A strip that stands on its side is laid out lying down, in turned coordinates: x runs along the strip, from
// the lower end of the window to the upper one, and y across it, from the left. All sizes are pixels. Without
// any window, so that each rule can be told by numbers.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <afx.h>

#include <array>
#include <functional>
#include <vector>

namespace strip {

// Bits of a strip's style.
constexpr UINT kPlacementBits = 3;
constexpr UINT kFitsTabs = 4;  ///< computes widths and the visible range
constexpr UINT kHasTips = 8;

constexpr int kLargestClient = 4096;  ///< neither side of a strip that is laid out is longer

/// Whether the strip stands on its side: placement 1 or 2.
bool IsTurned(UINT style);
/// Whether a strip stands at the left of its set: it stands on its side and bit 0 is set.
bool IsAtLeft(UINT style);
/// Whether the tabs hang down from the strip's edge rather than stand on it.
bool IsOverturned(UINT style);
/// Whether a client area of this size is laid out at all.
bool CanBeLaidOut(CSize client);

/// The tabs that are shown, both ends included; `last` is `first - 1` when none is.
struct TabRange {
    int first;
    int last;
    int count() const { return last - first + 1; }
    bool holds(int index) const { return index >= first && index <= last; }
};

/// `range` without what lies outside a list of `count` tabs.
TabRange RangeWithin(TabRange range, int count);
/// What tabs may take of a strip `width` long: four fifths, less the arrow area.
int AvailableWidth(int width, int scrollWidth);
/// `range` grown or shrunk towards `fit` tabs. It grows at both ends in turns, at the end of the list first
/// unless the active tab lies in its second half; it shrinks at its end, then at its start, and never gives
/// up the active tab.
TabRange FitRange(TabRange range, int active, int count, int fit);

/// What a tab with a text this wide asks for.
int WantedWidth(int textWidth, int marginX, int minTabWidth);

/// Sizes that a strip is laid out by.
struct TabSizes {
    int scrollWidth;
    int maxTabWidth;
    int tabHeight;
};

/// Rectangles of the visible tabs, in the order of the list, and of the arrow area, which is empty when every
/// tab is visible.
struct PlacedTabs {
    std::vector<CRect> tabs;
    CRect arrows;
};

/// Lays the visible tabs from the right end of a strip `width` long leftward, all equally wide.
PlacedTabs PlaceTabs(TabRange range, int count, int width, const TabSizes& sizes);

using Outline = std::array<POINT, 6>;

/// The outline of a tab or of the arrow area: cut corners on the side away from the strip's edge.
Outline OutlineOf(const RECT& tab, bool overturned);

/// A point of the window in turned coordinates; `height` is that of the client area.
CPoint Turned(CPoint client, int height);
/// A rectangle in turned coordinates back in those of the window.
CRect TurnedBack(const RECT& turned, int height);

enum class Target { Nothing = 0, Tab = 1, Arrows = 2 };

/// What lies at `point`, in the strip's own coordinates. `tabHolds` tells whether a tab's outline holds the
/// point. `index` becomes the tab, or -1 on the arrow area; otherwise it stays.
Target HitTarget(CPoint point, TabRange range, const RECT& arrows,
                 const std::function<bool(int index)>& tabHolds, int& index);

/// The active tab once the tab at `removed` is gone.
int ActiveAfterRemoving(int active, int removed);

}  // namespace strip
