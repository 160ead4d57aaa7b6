#include "od_db_leaders.h"

#include "od_group_cursor.h"

OdArray<OdGePoint3d> OdDbLeader::vertices() const { return pointsInOrder(m_groups); }

namespace {

/// Where in the nested groups of a multileader the reader stands.
enum class Level { kOutside, kContext, kBranch, kLine };

constexpr int kContextBegin = 300, kBranchBegin = 302, kLineBegin = 304;

/// Puts a coordinate into a point by its code.
void place(OdGePoint3d& point, int first, const OdGroup& group) {
    if (group.code == first) point.x = group.real;
    if (group.code == first + 10) point.y = group.real;
    if (group.code == first + 20) point.z = group.real;
}

class ContextReader {
public:
    void take(const OdGroup& group);
    OdDbMLeaderContent content;
    Level level = Level::kOutside;
    bool isOver = false;

private:
    void takeContext(const OdGroup& group);
    void takeBranch(const OdGroup& group);
    void takeLine(const OdGroup& group);
    bool beginsOrEnds(const OdGroup& group);
};

bool ContextReader::beginsOrEnds(const OdGroup& group) {
    switch (level) {
        case Level::kOutside:
            if (group.code != kContextBegin || isOver) return false;
            level = Level::kContext;
            return true;
        case Level::kContext:
            if (group.code == 301) {
                level = Level::kOutside;
                isOver = true;
                return true;
            }
            if (group.code != kBranchBegin) return false;
            level = Level::kBranch;
            content.branches.emplace_back();
            return true;
        case Level::kBranch:
            if (group.code == 303) {
                level = Level::kContext;
                return true;
            }
            if (group.code != kLineBegin) return false;
            level = Level::kLine;
            content.branches.back().lines.emplace_back();
            return true;
        case Level::kLine:
            if (group.code != 305) return false;
            level = Level::kBranch;
            return true;
    }
    return false;
}

void ContextReader::takeContext(const OdGroup& group) {
    place(content.textLocation, 12, group);
    place(content.textDirection, 13, group);
    place(content.blockLocation, 15, group);
    place(content.blockScale, 16, group);
    switch (group.code) {
        case 41: content.textHeight = group.real; break;
        case 140: content.arrowSize = group.real; break;
        case 290: content.hasText = group.integer != 0; break;
        case 304: content.text = group.wide(); break;
        case 340: content.textStyle = group.handle(); break;
        case 42: content.textRotation = group.real; break;
        case 43: content.textWidth = group.real; break;
        case 45: content.lineSpacing = group.real; break;
        case 171: content.textAlignment = static_cast<int>(group.integer); break;
        case 296: content.hasBlock = group.integer != 0; break;
        case 341: content.block = group.handle(); break;
        case 46: content.blockRotation = group.real; break;
        default: break;
    }
}

void ContextReader::takeBranch(const OdGroup& group) {
    OdDbMLeaderBranch& branch = content.branches.back();
    place(branch.end, 10, group);
    place(branch.doglegDirection, 11, group);
    if (group.code == 290) branch.hasEnd = group.integer != 0;
    if (group.code == 40) branch.doglegLength = group.real;
}

void ContextReader::takeLine(const OdGroup& group) {
    std::vector<OdGePoint3d>& vertices = content.branches.back().lines.back().vertices;
    if (group.code == 10) vertices.emplace_back();
    if (!vertices.empty()) place(vertices.back(), 10, group);
}

void ContextReader::take(const OdGroup& group) {
    if (beginsOrEnds(group)) return;
    if (level == Level::kContext) takeContext(group);
    if (level == Level::kBranch) takeBranch(group);
    if (level == Level::kLine) takeLine(group);
}

/// The first group with `code` behind the nested ones.
bool findBehindContext(const OdGroupList& groups, int code, OdGroup& found) {
    ContextReader reader;
    OdGroupCursor cursor(groups);
    while (cursor.next(found)) {
        if (reader.isOver && found.code == code) return true;
        reader.take(found);
    }
    return false;
}

}  // namespace

OdDbMLeaderContent OdDbMLeader::content() const {
    ContextReader reader;
    OdGroupCursor cursor(m_groups);
    OdGroup group;
    while (cursor.next(group)) reader.take(group);
    return std::move(reader.content);
}

int OdDbMLeader::lineKind() const {
    OdGroup group;
    return findBehindContext(m_groups, 170, group) ? static_cast<int>(group.integer) : 1;
}

bool OdDbMLeader::hasDogleg() const {
    OdGroup group;
    return !findBehindContext(m_groups, 291, group) || group.integer != 0;
}

OdDbObjectId OdDbMLeader::arrowBlock() const {
    OdGroup group;
    return findBehindContext(m_groups, 342, group) ? OdDbObjectId(database(), group.handle())
                                                   : OdDbObjectId();
}
