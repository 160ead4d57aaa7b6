// Where a dragged tab of a document goes: to another group, or to the edge of one as a new group.
#pragma once

#include <optional>

#include "arrangement.h"

namespace kmfc::docking {

/// A group of documents under the mouse.
struct GroupTarget {
    CRect rect{0, 0, 0, 0};   ///< all of it
    CRect strip{0, 0, 0, 0};  ///< its tabs
    bool own = false;         ///< the tab stands there
    bool mayStand = true;     ///< a new group may stand beside it
    bool mayLie = true;       ///< a new group may lie above or below it
};

/// What a drop comes to.
struct GroupDrop {
    std::optional<Side> side;  ///< a new group there; otherwise the tab joins the group
    CRect place{0, 0, 0, 0};   ///< what the tab's document covers then
    bool changes = false;      ///< false where everything stays as it is
};

/// The outer quarter of a group's documents stands for a new group, where there may be one; of two edges the
/// nearer one. The rest and the strip stand for the group.
KMFC_API GroupDrop drop_on_group(const GroupTarget& target, CPoint point);

}  // namespace kmfc::docking
