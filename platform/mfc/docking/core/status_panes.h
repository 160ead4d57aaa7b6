// Where the panes of a status bar stand, and how far its progress bars go.
#pragma once

#include <vector>

#include <kmfc/platform.h>

namespace kmfc {

/// One pane, with the margins beside its text.
struct StatusPane {
    int width = 0;  ///< pixels that it wants
    bool stretches = false;
};

/// The right edges of panes that begin at `left` with `spacing` pixels between them. The first one that
/// stretches takes what the others leave of `room` (which holds the spacing too), and nothing when they leave
/// none.
KMFC_API std::vector<int> pane_edges(const std::vector<StatusPane>& panes, int left, int room, int spacing);

/// The part of `width` that `current` of `total` fills; nothing for a total below 1.
KMFC_API int filled_part(long current, long total, int width);
/// The same in hundredths.
KMFC_API int percent_of(long current, long total);

}  // namespace kmfc
