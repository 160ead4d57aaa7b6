// LayoutRecord: a layout as it is stored.
#pragma once

#include "frame_layout.h"

namespace kmfc::docking {

/// A floating frame.
struct FloatingRecord {
    CRect rect{0, 0, 0, 0};  ///< screen coordinates
    SplitTree panes;
};

/// A tab: a pane and whether it is shown.
struct TabRecord {
    PaneKey pane = 0;
    bool shown = true;
};

/// Panes that stand in tabs where a tree has the group's id.
struct GroupRecord {
    PaneKey id = 0;  ///< from kFirstGroup on
    int active = 0;  ///< which tab
    std::vector<TabRecord> tabs;
};

/// A pane, or a group of tabs, that hides at an edge. Its place among the docked ones stays, not shown.
struct HiddenRecord {
    PaneKey pane = 0;
    Side side = Side::left;
    CSize size{0, 0};  ///< with which it slides out, pixels
};

/// Ids of groups begin behind all ids of panes.
constexpr PaneKey kFirstGroup = 0x10000;

/// Panes are named by their ids here. A pane that floats may also have its place among the docked ones, where
/// it isn't shown.
struct KMFC_API LayoutRecord {
    FrameLayout docked;
    std::vector<FloatingRecord> floating;
    std::vector<GroupRecord> groups;
    std::vector<HiddenRecord> hidden;  ///< in the order of their names at the edges

    const GroupRecord* find_group(PaneKey id) const;
};

/// As numbers: version first, a sum of all last. The toolkit's named layouts read and write them too, by
/// CDockingManager::Serialize; what changes them needs another version.
KMFC_API std::vector<std::int32_t> encode(const LayoutRecord& record);
/// False, with `record` untouched, for anything that `encode` doesn't write: cut off, longer, another
/// version, an id of 0 or met twice, a side, share or size out of range, a tree too deep, a hidden pane that
/// is shown or has no place, a wrong sum.
KMFC_API bool decode(const std::vector<std::int32_t>& numbers, LayoutRecord& record);

}  // namespace kmfc::docking
