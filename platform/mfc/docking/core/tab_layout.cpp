#include "tab_layout.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace kmfc::tabs {

namespace {

size_t at(int index) { return static_cast<size_t>(index); }
bool is_in(const std::vector<int>& widths, int index) { return index >= 0 && at(index) < widths.size(); }

/// The common width at which tabs wider than it fit `room` together with the narrower ones.
int common_width(std::vector<int> sorted, int room) {
    std::sort(sorted.begin(), sorted.end());
    int left = room;
    for (size_t i = 0; i < sorted.size(); ++i) {
        const int each = left / static_cast<int>(sorted.size() - i);
        if (sorted[i] > each) return each;
        left -= sorted[i];
    }
    return room;
}

/// Hands out the pixels that whole-numbered division left over, one to each cut tab from the left.
void spend_rest(std::vector<int>& widths, const std::vector<int>& wanted, int rest) {
    for (size_t i = 0; i < widths.size() && rest > 0; ++i) {
        if (widths[i] >= wanted[i]) continue;
        ++widths[i];
        --rest;
    }
}

}  // namespace

std::vector<int> share_room(const std::vector<int>& wanted, int room, int least) {
    if (std::accumulate(wanted.begin(), wanted.end(), 0) <= room) return wanted;
    std::vector<int> shown;
    std::copy_if(wanted.begin(), wanted.end(), std::back_inserter(shown),
                 [](int width) { return width > 0; });
    const int common = std::max(common_width(shown, std::max(room, 0)), least);
    std::vector<int> widths = wanted;
    for (int& width : widths) width = std::min(width, common);
    spend_rest(widths, wanted, room - std::accumulate(widths.begin(), widths.end(), 0));
    return widths;
}

std::vector<Place> place_in_row(const std::vector<int>& widths, int start, int overlap) {
    std::vector<Place> places;
    int x = start;
    bool first = true;
    for (const int width : widths) {
        if (width <= 0) {
            places.push_back({x, x});
            continue;
        }
        if (!first) x -= overlap;
        first = false;
        places.push_back({x, x + width});
        x += width;
    }
    return places;
}

int row_length(const std::vector<int>& widths, int overlap) {
    const auto shown = std::count_if(widths.begin(), widths.end(), [](int width) { return width > 0; });
    return std::accumulate(widths.begin(), widths.end(), 0) -
           overlap * std::max(0, static_cast<int>(shown) - 1);
}

int greatest_offset(const std::vector<int>& widths, int overlap, int room) {
    return std::max(0, row_length(widths, overlap) - std::max(0, room));
}

int offset_to_show(const std::vector<int>& widths, int overlap, int room, int offset, int index) {
    if (!is_in(widths, index) || widths[at(index)] <= 0 || room <= 0) return offset;
    const Place place = place_in_row(widths, 0, overlap)[at(index)];
    const int latest = place.left;            // its beginning is at the start
    const int earliest = place.right - room;  // its end is at the end
    if (earliest > latest) return latest;
    return std::clamp(std::clamp(offset, earliest, latest), 0, greatest_offset(widths, overlap, room));
}

int step_offset(const std::vector<int>& widths, int overlap, int room, int offset, int direction) {
    const int limit = greatest_offset(widths, overlap, room);
    const std::vector<Place> places = place_in_row(widths, 0, overlap);
    int next = direction > 0 ? limit : 0;
    for (const Place& place : places) {
        if (place.width() <= 0) continue;
        if (direction > 0 && place.left > offset) next = std::min(next, place.left);
        if (direction < 0 && place.left < offset) next = std::max(next, place.left);
    }
    return std::clamp(next, 0, limit);
}

int first_whole(const std::vector<Place>& places, int start) {
    for (size_t i = 0; i < places.size(); ++i)
        if (places[i].width() > 0 && places[i].left >= start) return static_cast<int>(i);
    return -1;
}

int tab_at(const std::vector<Place>& places, int start, int end, int x, int active) {
    if (x < start || x >= end) return -1;
    const auto holds = [&](const Place& place) { return x >= place.left && x < place.right; };
    if (active >= 0 && at(active) < places.size() && holds(places[at(active)])) return active;
    for (size_t i = 0; i < places.size(); ++i)
        if (holds(places[i])) return static_cast<int>(i);
    return -1;
}

int drop_index(const std::vector<int>& widths, int start, int overlap, int dragged, int x) {
    if (!is_in(widths, dragged) || widths[at(dragged)] <= 0) return dragged;
    const std::vector<Place> places = place_in_row(widths, start, overlap);
    const int end = start + row_length(widths, overlap);
    const int target = tab_at(places, start, end, x, dragged);
    if (target == -1 || target == dragged) return dragged;
    std::vector<int> moved = widths;
    moved.erase(moved.begin() + dragged);
    moved.insert(moved.begin() + target, widths[at(dragged)]);
    const Place then = place_in_row(moved, start, overlap)[at(target)];
    return x >= then.left && x < then.right ? target : dragged;
}

}  // namespace kmfc::tabs
