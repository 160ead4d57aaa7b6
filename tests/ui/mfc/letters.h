// A picture as rows of letters, one for each colour, as tests write down what has to be drawn.
#pragma once

#include <map>
#include <string>

#include "canvas.h"

namespace ui_test {

/// The pixels of `area`, row by row, each ended by a line break; '?' for a colour without a letter.
inline std::string letters(const Canvas& canvas, const CRect& area, const std::map<COLORREF, char>& names) {
    std::string rows;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            const auto found = names.find(canvas.at(x, y));
            rows += found != names.end() ? found->second : '?';
        }
        rows += '\n';
    }
    return rows;
}

}  // namespace ui_test
