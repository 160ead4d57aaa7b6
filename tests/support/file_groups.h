// Groups of an exchange file, written short.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace ui_test {

/// Groups of a file from a short form: "0 LINE|8 0|10 1.5" are three groups. A sign of paragraph (\x14) in a
/// value stands for a bar.
inline std::string fileGroups(std::string_view brief) {
    std::string text;
    while (!brief.empty()) {
        const std::size_t end = std::min(brief.find('|'), brief.size());
        const std::string_view one = brief.substr(0, end);
        const std::size_t gap = std::min(one.find(' '), one.size());
        std::string value(gap < one.size() ? one.substr(gap + 1) : std::string_view());
        std::replace(value.begin(), value.end(), '\x14', '|');
        text.append(one.substr(0, gap)).append("\n").append(value).append("\n");
        brief.remove_prefix(std::min(end + 1, brief.size()));
    }
    return text;
}

}  // namespace ui_test
