#include "status_panes.h"

#include <algorithm>

namespace kmfc {

std::vector<int> pane_edges(const std::vector<StatusPane>& panes, int left, int room, int spacing) {
    const auto stretching =
        std::find_if(panes.begin(), panes.end(), [](const StatusPane& pane) { return pane.stretches; });
    int rest = room;
    for (auto pane = panes.begin(); pane != panes.end(); ++pane) {
        if (pane != panes.begin()) rest -= spacing;
        if (pane != stretching) rest -= pane->width;
    }
    std::vector<int> edges;
    int right = left;
    for (auto pane = panes.begin(); pane != panes.end(); ++pane) {
        right += pane == stretching ? std::max(rest, 0) : pane->width;
        edges.push_back(right);
        right += spacing;
    }
    return edges;
}

int filled_part(long current, long total, int width) {
    if (total < 1 || width < 1) return 0;
    const long long part = std::clamp(current, 0L, total);
    return static_cast<int>(part * width / total);
}

int percent_of(long current, long total) { return filled_part(current, total, 100); }

}  // namespace kmfc
