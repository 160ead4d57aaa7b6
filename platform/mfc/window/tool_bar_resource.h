// What a TOOLBAR resource says.
#pragma once

#include <vector>

#include <kmfc/geometry.h>

namespace kmfc {

struct ToolBarResource {
    CSize image{0, 0};           ///< of each picture, in pixels
    std::vector<UINT> commands;  ///< 0 for a gap
};

/// Reads the toolbar resource of that name; false when there is none or it is damaged.
bool read_tool_bar(LPCTSTR name, ToolBarResource& bar);

}  // namespace kmfc
