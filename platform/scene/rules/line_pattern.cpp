#include "rules/line_pattern.h"

#include <numbers>

namespace {

constexpr int kUpright = 1, kText = 2, kShape = 4;

LinePattern patternOf(const OdGroupList& groups) {
    LinePattern pattern;
    const std::uint32_t end = groups.ownEnd();
    OdGroup group;
    bool isMark = false;
    for (std::uint32_t at = 0; at < end && groups.read(at, group); at = group.end) {
        if (group.code == 49) {
            pattern.dashes.push_back(group.real);
            isMark = false;
        }
        if (group.code == 74 && !pattern.dashes.empty() && (group.integer & (kText | kShape)) != 0) {
            PatternMark mark;
            mark.dash = pattern.dashes.size() - 1;
            mark.isUpright = (group.integer & kUpright) != 0;
            pattern.marks.push_back(mark);
            isMark = true;
        }
        if (!isMark) continue;
        PatternMark& mark = pattern.marks.back();
        switch (group.code) {
            case 75: mark.shape = static_cast<int>(group.integer); break;
            case 340: mark.style = group.handle(); break;
            case 46: mark.scale = group.real; break;
            case 50: mark.rotation = group.real * std::numbers::pi / 180; break;
            case 44: mark.offset.x = group.real; break;
            case 45: mark.offset.y = group.real; break;
            case 9: mark.text = group.wide(); break;
            default: break;
        }
    }
    return pattern;
}

}  // namespace

const LinePattern& LinePatterns::of(const OdDbObjectId& linetype) {
    const auto found = m_patterns.find(linetype.handle());
    if (found != m_patterns.end()) return found->second;
    LinePattern pattern;
    if (const auto record = linetype.open<OdDbLinetypeTableRecord>()) pattern = patternOf(record->groups());
    return m_patterns.emplace(linetype.handle(), std::move(pattern)).first->second;
}
