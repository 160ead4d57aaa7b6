#include "frame_layout.h"

#include <algorithm>

namespace kmfc::docking {

namespace {

/// The extent of a row: what it wants, as far as it and what lies further inside keep their least extents;
/// without room for both they share by these.
int fit(int wanted, int least, int room, int leastInside) {
    if (room <= 0) return 0;
    const std::int64_t needed = std::int64_t{least} + leastInside;
    if (room >= needed) return std::clamp(wanted, least, room - leastInside);
    return static_cast<int>(std::int64_t{room} * least / needed);
}

/// Cuts a strip off `rest` at a side, and the divider behind it.
void cut_off(CRect& rest, Side side, int extent, int line, CRect& strip, CRect& divider) {
    strip = divider = rest;
    switch (side) {
        case Side::left:
            strip.right = divider.left = rest.left + extent;
            rest.left = divider.right = rest.left + extent + line;
            break;
        case Side::top:
            strip.bottom = divider.top = rest.top + extent;
            rest.top = divider.bottom = rest.top + extent + line;
            break;
        case Side::right:
            strip.left = divider.right = rest.right - extent;
            rest.right = divider.left = rest.right - extent - line;
            break;
        case Side::bottom:
            strip.top = divider.bottom = rest.bottom - extent;
            rest.bottom = divider.top = rest.bottom - extent - line;
            break;
    }
}

/// What the rows from each on and the middle need at least: one more entry than rows.
std::vector<CSize> needs(const std::vector<const FrameLayout::Row*>& rows, const Rules& rules) {
    std::vector<CSize> sizes(rows.size() + 1, rules.center);
    for (std::size_t i = rows.size(); i-- > 0;) {
        const CSize own = rows[i]->panes.least(rules), inside = sizes[i + 1];
        if (is_upright(rows[i]->side))
            sizes[i] = CSize(own.cx + rules.divider + inside.cx, std::max(own.cy, inside.cy));
        else
            sizes[i] = CSize(std::max(own.cx, inside.cx), own.cy + rules.divider + inside.cy);
    }
    return sizes;
}

}  // namespace

const FrameLayout::Row* FrameLayout::row_of(PaneKey pane) const {
    for (const Row& row : m_rows)
        if (row.panes.contains(pane)) return &row;
    return nullptr;
}
FrameLayout::Row* FrameLayout::row_of(PaneKey pane) {
    return const_cast<Row*>(static_cast<const FrameLayout*>(this)->row_of(pane));
}

bool FrameLayout::shows(PaneKey pane) const {
    const Row* row = row_of(pane);
    return row != nullptr && row->panes.shows(pane);
}

Side FrameLayout::side_of(PaneKey pane) const {
    const Row* row = row_of(pane);
    return row != nullptr ? row->side : Side::left;
}

std::vector<PaneKey> FrameLayout::panes() const {
    std::vector<PaneKey> all;
    for (const Row& row : m_rows) {
        const std::vector<PaneKey> some = row.panes.panes();
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

void FrameLayout::drop_empty_rows() {
    std::erase_if(m_rows, [](const Row& row) { return row.panes.empty(); });
}

bool FrameLayout::dock(SplitTree panes, Side side, int extent, bool outer) {
    if (panes.empty()) return false;
    for (const PaneKey pane : panes.panes()) remove(pane);
    Row row{next_divider_id(), side, extent, std::move(panes)};
    m_rows.insert(outer ? m_rows.begin() : m_rows.end(), std::move(row));
    return true;
}

void FrameLayout::add_row(Row row) { m_rows.push_back(std::move(row)); }

bool FrameLayout::dock_beside(SplitTree panes, PaneKey target, Side side, int extent, int targetExtent) {
    if (panes.empty() || panes.contains(target) || !contains(target)) return false;
    for (const PaneKey pane : panes.panes()) remove(pane);
    return row_of(target)->panes.graft(std::move(panes), target, side, extent, targetExtent);
}

bool FrameLayout::remove(PaneKey pane) {
    Row* row = row_of(pane);
    if (row == nullptr) return false;
    row->panes.remove(pane);
    drop_empty_rows();
    return true;
}

bool FrameLayout::replace(PaneKey pane, PaneKey by) {
    Row* row = row_of(pane);
    if (row == nullptr || pane == by || by == 0) return false;
    remove(by);
    row = row_of(pane);
    return row->panes.replace(pane, by);
}

bool FrameLayout::set_shown(PaneKey pane, bool shown) {
    Row* row = row_of(pane);
    return row != nullptr && row->panes.set_shown(pane, shown);
}

Arrangement FrameLayout::arrange(const CRect& area, const Rules& rules) const {
    std::vector<const Row*> shown;
    for (const Row& row : m_rows)
        if (row.panes.shows_any()) shown.push_back(&row);
    const std::vector<CSize> need = needs(shown, rules);
    Arrangement result;
    CRect rest(area);
    rest.right = std::max(rest.left, rest.right);
    rest.bottom = std::max(rest.top, rest.bottom);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const Row& row = *shown[i];
        const bool upright = is_upright(row.side);
        const CSize own = row.panes.least(rules);
        const int all = upright ? rest.Width() : rest.Height(), line = std::min(rules.divider, all);
        const int extent =
            fit(row.extent, upright ? own.cx : own.cy, all - line, upright ? need[i + 1].cx : need[i + 1].cy);
        CRect strip, divider;
        const CRect around(rest);
        cut_off(rest, row.side, extent, line, strip, divider);
        row.panes.arrange(strip, rules, result);
        result.dividers.push_back({row.id, divider, around, upright, true});
    }
    result.center = rest;
    return result;
}

int FrameLayout::move_divider(int id, int delta, const Arrangement& now, const Rules& rules) {
    const PlacedDivider* placed = now.find_divider(id);
    if (placed == nullptr) return 0;
    for (Row& row : m_rows) {
        if (row.id == id) return move_row(row, delta, now, rules);
        if (const int moved = row.panes.move_divider(*placed, delta, rules)) return moved;
    }
    return 0;
}

int FrameLayout::move_row(Row& row, int delta, const Arrangement& now, const Rules& rules) {
    const PlacedDivider& placed = *now.find_divider(row.id);
    const bool upright = is_upright(row.side);
    const int all = upright ? placed.around.Width() : placed.around.Height();
    const int start = upright ? placed.rect.left - placed.around.left : placed.rect.top - placed.around.top;
    const int extent = comes_first(row.side) ? start : std::max(0, all - start - rules.divider);
    const CSize own = row.panes.least(rules);
    const int least = std::min(extent, static_cast<int>(upright ? own.cx : own.cy));
    // Growing takes from the middle alone.
    const int spare = upright ? now.center.Width() - rules.center.cx : now.center.Height() - rules.center.cy;
    const int wanted = comes_first(row.side) ? extent + delta : extent - delta;
    const int next = std::clamp(wanted, least, extent + std::max(0, spare));
    row.extent = next;
    return comes_first(row.side) ? next - extent : extent - next;
}

}  // namespace kmfc::docking
