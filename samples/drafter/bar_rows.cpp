#include "bar_rows.h"

#include <algorithm>

std::vector<BarPlace> PlaceInRows(const std::vector<int>& widths, int room, int edge, int gap) {
    const int right = room - edge;
    std::vector<BarPlace> places;
    int row = 0, left = edge;
    for (const int wanted : widths) {
        const int width = std::max(1, std::min(wanted, right - edge));
        if (left > edge && left + width > right) {
            ++row;
            left = edge;
        }
        places.push_back({row, left, width});
        left += width + gap;
    }
    return places;
}

int RowCount(const std::vector<BarPlace>& places) { return places.empty() ? 0 : places.back().row + 1; }
