#include "arrangement.h"

#include <algorithm>

namespace kmfc::docking {

const CRect* Arrangement::find(PaneKey pane) const {
    const auto found =
        std::find_if(panes.begin(), panes.end(), [&](const PlacedPane& p) { return p.pane == pane; });
    return found != panes.end() ? &found->rect : nullptr;
}

const PlacedDivider* Arrangement::find_divider(int id) const {
    const auto found =
        std::find_if(dividers.begin(), dividers.end(), [&](const PlacedDivider& d) { return d.id == id; });
    return found != dividers.end() ? &*found : nullptr;
}

int next_divider_id() {
    static int last = 0;
    return ++last;
}

int divide(int total, int share, int least1, int least2) {
    if (total <= 0) return 0;
    const std::int64_t whole = total;
    if (whole >= std::int64_t{least1} + least2) {
        const auto wanted = static_cast<int>((whole * share + kWhole / 2) / kWhole);
        return std::clamp(wanted, least1, total - least2);
    }
    return static_cast<int>(whole * least1 / (std::int64_t{least1} + least2));
}

}  // namespace kmfc::docking
