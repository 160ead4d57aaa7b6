#include "rules/paragraph_columns.h"

#include <algorithm>
#include <string_view>

#include "rules/embedded_object.h"

namespace {

constexpr int kMostColumns = 10000;

enum ColumnKind { kNone, kStatic, kDynamic };

/// What either form of a file says.
struct ColumnGroups {
    int kind = kNone, count = 0;
    bool hasAutomaticHeight = false, isReversed = false;
    double width = 0, gutter = 0, height = 0;
    std::vector<double> heights;
};

int countOf(const OdGroup& group) {
    return static_cast<int>(std::clamp<std::int64_t>(group.integer, 0, kMostColumns));
}

/// As the embedded object of a newer file has them.
ColumnGroups embeddedGroups(const OdGroupList& groups) {
    const OdGroupList embedded = EmbeddedObject(groups);
    ColumnGroups found;
    OdGroup group;
    for (std::uint32_t at = 0; embedded.read(at, group); at = group.end) {
        switch (group.code) {
            case 41: found.height = group.real; break;
            case 44: found.width = group.real; break;
            case 45: found.gutter = group.real; break;
            case 46: found.heights.push_back(group.real); break;
            case 71: found.kind = static_cast<int>(group.integer); break;
            case 72: found.count = countOf(group); break;
            case 73: found.hasAutomaticHeight = group.integer != 0; break;
            case 74: found.isReversed = group.integer != 0; break;
            default: break;
        }
    }
    return found;
}

/// The parts of the extended data of an older file: a text names each, and then numbers of groups and their
/// values take turns.
class ExtendedGroups {
public:
    explicit ExtendedGroups(const OdGroupList& groups) { read(groups); }
    ColumnGroups found;
    std::vector<OdDbHandle> further;  ///< the entities that hold the other columns

private:
    enum class Part { kOther, kInfo, kFurther, kHeight };

    void read(const OdGroupList& groups);
    void beginPart(std::string_view name);
    void takeInfo(const OdGroup& group);
    void set(int code, const OdGroup& value);

    Part m_part = Part::kOther;
    int m_code = 0;              // of the value that comes next
    std::int64_t m_heights = 0;  // how many heights come next
};

void ExtendedGroups::read(const OdGroupList& groups) {
    OdGroup group;
    bool isOwn = false;
    for (std::uint32_t at = groups.ownEnd(); groups.read(at, group); at = group.end) {
        if (group.code == 1001) isOwn = group.text == "ACAD";
        if (!isOwn) continue;
        if (group.code == 1000) beginPart(group.text);
        if (group.code == 1005 && m_part == Part::kFurther) further.push_back(group.handle());
        if (group.code == 1040 && m_part == Part::kHeight) found.height = group.real;
        if (m_part == Part::kInfo && (group.code == 1040 || group.code == 1070)) takeInfo(group);
    }
}

void ExtendedGroups::beginPart(std::string_view name) {
    m_code = 0;
    m_heights = 0;
    m_part = name == "ACAD_MTEXT_COLUMN_INFO_BEGIN"      ? Part::kInfo
             : name == "ACAD_MTEXT_COLUMNS_BEGIN"        ? Part::kFurther
             : name == "ACAD_MTEXT_DEFINED_HEIGHT_BEGIN" ? Part::kHeight
                                                         : Part::kOther;
}

void ExtendedGroups::takeInfo(const OdGroup& group) {
    if (m_heights > 0 && group.code == 1040) {
        --m_heights;
        found.heights.push_back(group.real);
    } else if (m_code == 0) {
        m_code = group.code == 1070 ? static_cast<int>(std::clamp<std::int64_t>(group.integer, 0, 100)) : 0;
    } else {
        set(m_code, group);
        m_code = 0;
    }
}

void ExtendedGroups::set(int code, const OdGroup& value) {
    switch (code) {
        case 75: found.kind = static_cast<int>(value.integer); break;
        case 76: found.count = countOf(value); break;
        case 78: found.isReversed = value.integer != 0; break;
        case 79: found.hasAutomaticHeight = value.integer != 0; break;
        case 48: found.width = value.real; break;
        case 49: found.gutter = value.real; break;
        case 50: m_heights = value.integer; break;
        default: break;
    }
}

ParagraphColumns columnsFrom(const ColumnGroups& groups) {
    ParagraphColumns columns;
    if (groups.kind != kStatic && groups.kind != kDynamic) return columns;
    columns.width = groups.width;
    columns.gutter = groups.gutter;
    columns.isReversed = groups.isReversed;
    const bool hasOwnHeights = groups.kind == kDynamic && !groups.hasAutomaticHeight;
    columns.heights = hasOwnHeights ? groups.heights : std::vector{groups.height};
    // Those of automatic height are as many as the text takes.
    if (groups.kind == kStatic) columns.count = std::max(groups.count, 1);
    if (hasOwnHeights)
        columns.count = groups.count > 0
                            ? groups.count
                            : static_cast<int>(std::min<std::size_t>(groups.heights.size(), kMostColumns));
    return columns;
}

}  // namespace

double ParagraphColumns::heightOf(std::size_t column) const {
    if (heights.empty() || isLast(column)) return 0;
    const double height = heights.size() == 1 ? heights[0] : column < heights.size() ? heights[column] : 0;
    return height > 0 ? height : 0;
}

ParagraphColumns ColumnsOf(const OdDbMText& text) {
    const OdGroupList& groups = text.groups();
    if (const ColumnGroups embedded = embeddedGroups(groups); embedded.kind != kNone)
        return columnsFrom(embedded);
    const ExtendedGroups extended(groups);
    const auto isThere = [&text](OdDbHandle handle) {
        return OdDbObjectId(text.database(), handle).open<OdDbMText>() != nullptr;
    };
    if (std::any_of(extended.further.begin(), extended.further.end(), isThere)) return {};
    return columnsFrom(extended.found);
}
