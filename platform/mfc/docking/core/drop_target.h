// What a drop at a point means: the guides that a drag shows, and the targets behind them.
#pragma once

#include "arrangement.h"

namespace kmfc::docking {

enum class DropKind {
    none,       ///< it floats where it is
    frameEdge,  ///< a row outside all others
    innerEdge,  ///< a row around the middle
    beside,     ///< at a side of a pane
    tab,        ///< a tab with a pane
};

struct Drop {
    DropKind kind = DropKind::none;
    Side side = Side::left;
    PaneKey pane = 0;
    bool operator==(const Drop&) const = default;
};

struct Guide {
    CRect rect{0, 0, 0, 0};
    Drop drop;
};

/// A pane that something can be dropped on, as it stands on the screen.
struct DropPane {
    PaneKey pane = 0;
    CRect rect{0, 0, 0, 0};
    CRect caption{0, 0, 0, 0};  ///< dropping on it makes a tab
    CRect tabs{0, 0, 0, 0};     ///< and on these
    bool takesSides = true;
    bool takesTabs = true;
};

/// Where a drag is going on; screen coordinates.
struct DropScene {
    CRect frame{0, 0, 0, 0};                        ///< what bars leave of the main frame
    CRect center{0, 0, 0, 0};                       ///< what panes leave of it
    std::vector<DropPane> panes;                    ///< topmost first
    bool sides[kSides] = {true, true, true, true};  ///< where the dragged pane may dock in the main frame
    bool tabs = true;                               ///< it may become a tab
    int guide = 32;                                 ///< edge of a guide, pixels
};

/// The guides for a pointer: those of the frame's edges while it is over the frame, and a cross over the pane
/// under it, or over the middle.
KMFC_API std::vector<Guide> guides_at(const DropScene& scene, const CPoint& point);
/// What a drop there means: the guide under the pointer, else the caption or tabs of a pane.
KMFC_API Drop drop_at(const DropScene& scene, const CPoint& point);
/// The same without guides: the edges of the frame and of panes within `reach` pixels, captions and tabs.
KMFC_API Drop drop_near(const DropScene& scene, const CPoint& point, int reach);

}  // namespace kmfc::docking
