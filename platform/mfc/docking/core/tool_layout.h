// Where the buttons of a toolbar stand: in a row, in a column, or in several rows, and which of them a bar
// that was shortened has room for. No windows here.
#pragma once

#include <vector>

#include <kmfc/geometry.h>

namespace kmfc::docking {

struct ToolItem {
    CSize size{0, 0};  ///< of a button, pixels; a separator takes ToolMetrics::separator instead
    bool separator = false;
    bool hidden = false;  ///< it takes no room
};

/// Pixels of everything beside the buttons.
struct ToolMetrics {
    int gripper = 0;    ///< extent of the gripper along the bar; 0 for none
    int margin = 0;     ///< around all buttons
    int separator = 0;  ///< extent of a gap along the bar
    int more = 0;       ///< extent along the bar of the button for what has no room
};

enum class ToolShape {
    row,      ///< one row, however long
    column,   ///< one below the other
    wrapped,  ///< rows that are no wider than the room
};

struct ToolLayout {
    CSize size{0, 0};           ///< of the whole bar
    CRect gripper{0, 0, 0, 0};  ///< empty for none
    std::vector<CRect> items;   ///< empty for what takes no room
    std::vector<bool> endsRow;  ///< a row ends behind the item
    CRect more{0, 0, 0, 0};     ///< the button for what has no room; empty while all have
};

/// `width` is what a wrapped bar may take at most, margins included; its widest button always gets its room.
/// A separator at which a row ends takes no room.
KMFC_API ToolLayout lay_tools(const std::vector<ToolItem>& items, const ToolMetrics& metrics, ToolShape shape,
                              int width = 0);

/// Makes do with `room` pixels along a row or column, margins included: the first item that doesn't fit
/// before the button for more, and all behind it, take no room, nor does a separator that would be the last.
/// A layout that fits stays as it is, and so do wrapped ones.
KMFC_API void shorten_tools(ToolLayout& layout, const std::vector<ToolItem>& items,
                            const ToolMetrics& metrics, ToolShape shape, int room);

}  // namespace kmfc::docking
