#include "od_db_mline.h"

#include "od_group_cursor.h"

namespace {

void place(OdGePoint3d& point, int first, const OdGroup& group) {
    if (group.code == first) point.x = group.real;
    if (group.code == first + 10) point.y = group.real;
    if (group.code == first + 20) point.z = group.real;
}

void setTrueColor(OdCmColor& color, std::int64_t value) {
    color.setRGB(static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8),
                 static_cast<std::uint8_t>(value));
}

}  // namespace

OdCmColor OdDbMlineStyle::fillColor() const {
    OdCmColor color;
    OdGroupCursor cursor(m_groups);
    OdGroup group;
    while (cursor.next(group) && group.code != 49) {
        if (group.code == 62) color.setColorIndex(static_cast<int>(group.integer));
        if (group.code == 420) setTrueColor(color, group.integer);
    }
    return color;
}

std::vector<OdDbMlineElement> OdDbMlineStyle::elements() const {
    std::vector<OdDbMlineElement> all;
    OdGroupCursor cursor(m_groups);
    OdGroup group;
    while (cursor.next(group)) {
        if (group.code == 49) {
            all.emplace_back();
            all.back().offset = group.real;
        }
        if (all.empty()) continue;
        if (group.code == 62) all.back().color.setColorIndex(static_cast<int>(group.integer));
        if (group.code == 420) setTrueColor(all.back().color, group.integer);
        if (group.code == 6) all.back().linetype = group.wide();
    }
    return all;
}

std::vector<OdDbMlineVertex> OdDbMline::vertices() const {
    std::vector<OdDbMlineVertex> all;
    OdGroupCursor cursor(m_groups);
    OdGroup group;
    while (cursor.next(group)) {
        if (group.code == 11) all.emplace_back();
        if (all.empty()) continue;
        OdDbMlineVertex& vertex = all.back();
        place(vertex.point, 11, group);
        place(vertex.direction, 12, group);
        place(vertex.miter, 13, group);
        if (group.code == 74) {
            vertex.lines.emplace_back();
            vertex.fills.emplace_back();
        }
        if (group.code == 41 && !vertex.lines.empty()) vertex.lines.back().push_back(group.real);
        if (group.code == 42 && !vertex.fills.empty()) vertex.fills.back().push_back(group.real);
    }
    return all;
}

OdDbMlineStylePtr OdDbMline::style() const {
    return OdDbObjectId(database(), m_groups.handle(340)).open<OdDbMlineStyle>();
}
