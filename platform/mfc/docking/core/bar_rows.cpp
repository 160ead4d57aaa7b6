#include "bar_rows.h"

#include <algorithm>

namespace kmfc::docking {

namespace {

constexpr int kEdgePart = 6;  // of a row's thickness stands for a new row beside it

struct Span {
    PaneKey bar = 0;
    int begin = 0, length = 0;
};

/// The shown bars of a row, from its beginning: each where it wants to be or behind the former one.
std::vector<Span> pushed_behind(const BarRows::Row& row, const BarExtents& extents) {
    std::vector<Span> spans;
    int end = 0;
    for (const BarRows::Bar& bar : row) {
        if (!bar.shown) continue;
        const int begin = std::max(bar.offset, end), length = extents(bar.bar).length;
        spans.push_back({bar.bar, begin, length});
        end = begin + length;
    }
    return spans;
}

/// From the last one on everything comes ahead that would stand out of the row.
void push_ahead(std::vector<Span>& spans, int length) {
    for (auto span = spans.rbegin(); span != spans.rend(); ++span) {
        span->begin = std::min(span->begin, length - span->length);
        length = span->begin;
    }
}

/// One behind the other from the beginning, the last ones shortened as far as they may be.
void shorten(std::vector<Span>& spans, int length, const BarExtents& extents) {
    int excess = -length;
    for (const Span& span : spans) excess += span.length;
    for (auto span = spans.rbegin(); span != spans.rend() && excess > 0; ++span) {
        const int cut = std::clamp(span->length - extents(span->bar).least, 0, excess);
        span->length -= cut;
        excess -= cut;
    }
    int begin = 0;
    for (Span& span : spans) {
        span.begin = begin;
        begin += span.length;
    }
}

std::vector<Span> spans_of(const BarRows::Row& row, int length, const BarExtents& extents) {
    std::vector<Span> spans = pushed_behind(row, extents);
    push_ahead(spans, length);
    if (!spans.empty() && spans.front().begin < 0) shorten(spans, length, extents);
    return spans;
}

int thickness_of(const BarRows::Row& row, const BarExtents& extents) {
    int thickness = 0;
    for (const BarRows::Bar& bar : row)
        if (bar.shown) thickness = std::max(thickness, extents(bar.bar).thickness);
    return thickness;
}

auto by_key(PaneKey key) {
    return [key](const BarRows::Bar& bar) { return bar.bar == key; };
}

}  // namespace

CPoint along_and_across(Side side, CSize strip, CPoint point) {
    switch (side) {
        case Side::top: return point;
        case Side::bottom: return CPoint(point.x, strip.cy - 1 - point.y);
        case Side::left: return CPoint(point.y, point.x);
        default: return CPoint(point.y, strip.cx - 1 - point.x);
    }
}

CRect in_strip(Side side, CSize strip, const CRect& rect) {
    switch (side) {
        case Side::top: return rect;
        case Side::bottom: return CRect(rect.left, strip.cy - rect.bottom, rect.right, strip.cy - rect.top);
        case Side::left: return CRect(rect.top, rect.left, rect.bottom, rect.right);
        default: return CRect(strip.cx - rect.bottom, rect.left, strip.cx - rect.top, rect.right);
    }
}

const BarRows::Bar* BarRows::find(PaneKey bar) const {
    for (const Row& row : m_rows) {
        const auto found = std::find_if(row.begin(), row.end(), by_key(bar));
        if (found != row.end()) return &*found;
    }
    return nullptr;
}

int BarRows::row_of(PaneKey bar) const {
    for (size_t i = 0; i < m_rows.size(); ++i)
        if (std::any_of(m_rows[i].begin(), m_rows[i].end(), by_key(bar))) return static_cast<int>(i);
    return -1;
}

bool BarRows::shows(PaneKey bar) const {
    const Bar* const found = find(bar);
    return found != nullptr && found->shown;
}

bool BarRows::is_alone(PaneKey bar, int row) const {
    if (row < 0 || row != row_of(bar)) return false;
    return std::count_if(m_rows[static_cast<size_t>(row)].begin(), m_rows[static_cast<size_t>(row)].end(),
                         [](const Bar& one) { return one.shown; }) == 1 &&
           shows(bar);
}

std::optional<BarPlace> BarRows::place_of(PaneKey bar) const {
    const int row = row_of(bar);
    if (row < 0) return std::nullopt;
    return BarPlace{row, m_rows[static_cast<size_t>(row)].size() == 1, find(bar)->offset};
}

void BarRows::drop_empty_rows() {
    std::erase_if(m_rows, [](const Row& row) { return row.empty(); });
}

bool BarRows::remove(PaneKey bar) {
    const int row = row_of(bar);
    if (row < 0) return false;
    std::erase_if(m_rows[static_cast<size_t>(row)], by_key(bar));
    drop_empty_rows();
    return true;
}

bool BarRows::set_shown(PaneKey bar, bool shown) {
    const int row = row_of(bar);
    if (row < 0) return false;
    Row& in = m_rows[static_cast<size_t>(row)];
    std::find_if(in.begin(), in.end(), by_key(bar))->shown = shown;
    return true;
}

void BarRows::dock(PaneKey bar, BarPlace place, int length, const BarExtents& extents) {
    const int former = row_of(bar);
    // An emptied row still counts until the bar stands in its new one.
    if (former >= 0) std::erase_if(m_rows[static_cast<size_t>(former)], by_key(bar));
    const Bar added{bar, std::max(place.offset, 0), true};
    const auto at = static_cast<size_t>(std::clamp(place.row, 0, static_cast<int>(m_rows.size())));
    if (place.isOwnRow || at == m_rows.size()) {
        m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(at), Row{added});
    } else {
        Row& row = m_rows[at];
        PaneKey next = 0;
        for (const Span& span : spans_of(row, length, extents)) {
            if (span.begin + span.length / 2 <= added.offset) continue;
            next = span.bar;
            break;
        }
        row.insert(std::find_if(row.begin(), row.end(), by_key(next)), added);
    }
    drop_empty_rows();
}

bool BarRows::dock_before(PaneKey bar, PaneKey target) {
    if (bar == target || !contains(target)) return false;
    remove(bar);
    Row& row = m_rows[static_cast<size_t>(row_of(target))];
    const auto at = std::find_if(row.begin(), row.end(), by_key(target));
    const Bar added{bar, at->offset, true};
    row.insert(at, added);
    return true;
}

void BarRows::append(const Bar& bar, bool beginsRow) {
    remove(bar.bar);
    if (beginsRow || m_rows.empty()) m_rows.emplace_back();
    m_rows.back().push_back(bar);
}

int BarRows::thickness(const BarExtents& extents) const {
    int all = 0;
    for (const Row& row : m_rows) all += thickness_of(row, extents);
    return all;
}

std::vector<PlacedBar> BarRows::arrange(int length, const BarExtents& extents) const {
    std::vector<PlacedBar> placed;
    int across = 0;
    for (size_t i = 0; i < m_rows.size(); ++i) {
        const int thickness = thickness_of(m_rows[i], extents);
        for (const Span& span : spans_of(m_rows[i], length, extents))
            placed.push_back({span.bar, static_cast<int>(i),
                              CRect(span.begin, across, span.begin + span.length, across + thickness)});
        across += thickness;
    }
    return placed;
}

/// Between two neighbouring rows; one that is alone in either of them stays there.
BarPlace BarRows::between(int outer, int inner, PaneKey bar) const {
    if (is_alone(bar, outer)) return BarPlace{outer, false, 0};
    return BarPlace{inner, !is_alone(bar, inner), 0};
}

std::optional<BarPlace> BarRows::row_at(int across, PaneKey bar, int reach, const BarExtents& extents) const {
    if (across < -reach) return std::nullopt;
    int first = -1, last = -1, end = 0, under = -1, edge = 0;
    for (int i = 0; i < static_cast<int>(m_rows.size()); ++i) {
        const int thickness = thickness_of(m_rows[static_cast<size_t>(i)], extents);
        if (thickness == 0) continue;
        // The row outside of this one was left over its inner edge.
        if (under >= 0) return between(under, i, bar);
        if (first < 0) first = i;
        edge = reach > 0 ? thickness / kEdgePart : 0;
        if (across >= end && across < end + thickness) {
            if (last >= 0 && across < end + edge) return between(last, i, bar);
            if (across < end + thickness - edge) return BarPlace{i, false, 0};
            under = i;
        }
        last = i;
        end += thickness;
    }
    if (under >= 0) return BarPlace{under, false, 0};
    if (across < 0) return is_alone(bar, first) ? BarPlace{first, false, 0} : BarPlace{0, true, 0};
    if (across >= end + reach) return std::nullopt;
    return is_alone(bar, last) ? BarPlace{last, false, 0}
                               : BarPlace{static_cast<int>(m_rows.size()), true, 0};
}

}  // namespace kmfc::docking
