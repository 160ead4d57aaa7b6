#include <ktui/docking/tab_strip_layout.h>

#include <algorithm>

namespace strip {

namespace {

constexpr int kCorner = 3;  // pixels that a corner is cut by

UINT placementOf(UINT style) { return style & kPlacementBits; }

TabRange widened(TabRange range, int active, int count, int fit) {
    bool atEnd = active <= count / 2;
    while (range.count() < count && range.count() < fit) {
        if (atEnd && range.last < count - 1)
            ++range.last;
        else if (!atEnd && range.first > 0)
            --range.first;
        atEnd = !atEnd;
    }
    return range;
}

TabRange narrowed(TabRange range, int active, int fit) {
    while (range.count() > fit) {
        if (range.last != active)
            --range.last;
        else if (range.first == active)
            break;
        else
            ++range.first;
    }
    return range;
}

/// How wide each of `visible` tabs gets.
int tabWidth(int visible, int available, int maxTabWidth) {
    // Kept: the widths that the texts ask for don't count.
    return maxTabWidth * visible > available ? available / visible : maxTabWidth;
}

}  // namespace

bool IsTurned(UINT style) { return placementOf(style) == 1 || placementOf(style) == 2; }

bool IsAtLeft(UINT style) { return IsTurned(style) && (style & 1) != 0; }

bool IsOverturned(UINT style) { return placementOf(style) == 2; }

bool CanBeLaidOut(CSize client) {
    return client.cx > 0 && client.cy > 0 && client.cx <= kLargestClient && client.cy <= kLargestClient;
}

TabRange RangeWithin(TabRange range, int count) {
    range.last = std::clamp(range.last, -1, count - 1);
    range.first = std::clamp(range.first, 0, range.last + 1);
    return range;
}

int AvailableWidth(int width, int scrollWidth) { return 4 * width / 5 - scrollWidth; }

TabRange FitRange(TabRange range, int active, int count, int fit) {
    if (active >= 0 && active < count) range = {std::min(range.first, active), std::max(range.last, active)};
    return fit > range.count() ? widened(range, active, count, fit) : narrowed(range, active, fit);
}

int WantedWidth(int textWidth, int marginX, int minTabWidth) {
    return std::max(2 * marginX + textWidth, minTabWidth);
}

PlacedTabs PlaceTabs(TabRange range, int count, int width, const TabSizes& sizes) {
    const int visible = range.count();
    PlacedTabs placed;
    int right = width;
    if (visible > 0) {
        const int each = tabWidth(visible, AvailableWidth(width, sizes.scrollWidth), sizes.maxTabWidth);
        for (int i = visible; i > 0; --i, right -= each)
            placed.tabs.emplace_back(right - each, 0, right, sizes.tabHeight);
        std::reverse(placed.tabs.begin(), placed.tabs.end());
    }
    if (visible < count) placed.arrows = CRect(right - sizes.scrollWidth, 0, right, sizes.tabHeight);
    return placed;
}

Outline OutlineOf(const RECT& tab, bool overturned) {
    const LONG base = overturned ? tab.top : tab.bottom;
    const LONG edge = overturned ? tab.bottom : tab.top;
    const LONG cut = overturned ? edge - kCorner : edge + kCorner;
    return {{{tab.left, base},
             {tab.left, cut},
             {tab.left + kCorner, edge},
             {tab.right - kCorner - 1, edge},
             {tab.right - 1, cut},
             {tab.right - 1, base}}};
}

CPoint Turned(CPoint client, int height) {
    // Kept: counted from the height, so the lowest pixel of the window lies at 1.
    return CPoint(height - client.y, client.x);
}

CRect TurnedBack(const RECT& turned, int height) {
    return CRect(turned.top, height - turned.right, turned.bottom, height - turned.left);
}

Target HitTarget(CPoint point, TabRange range, const RECT& arrows,
                 const std::function<bool(int index)>& tabHolds, int& index) {
    for (int tab = range.first; tab <= range.last; ++tab) {
        if (!tabHolds(tab)) continue;
        index = tab;
        return Target::Tab;
    }
    if (!CRect(arrows).PtInRect(point)) return Target::Nothing;
    index = -1;
    return Target::Arrows;
}

int ActiveAfterRemoving(int active, int removed) {
    // Kept: taking away a tab before the active one doesn't move the index.
    return active == removed ? std::max(active - 1, 0) : active;
}

}  // namespace strip
