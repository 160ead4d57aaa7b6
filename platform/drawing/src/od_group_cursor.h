// Walks the own groups of an object in the order of the file, for kinds whose groups mean something by their
// place.
#pragma once

#include "od_array.h"
#include "od_ge.h"
#include "od_group_list.h"

class OdGroupCursor {
public:
    explicit OdGroupCursor(const OdGroupList& groups) : m_groups(groups), m_end(groups.ownEnd()) {}

    /// The next group, with blocks of application data passed over; false at the end.
    bool next(OdGroup& group) {
        constexpr int kApplicationData = 102;
        bool inside = false;
        while (m_at < m_end && m_groups.read(m_at, group)) {
            m_at = group.end;
            if (group.code == kApplicationData)
                inside = !group.text.empty() && group.text[0] == '{';
            else if (!inside)
                return true;
        }
        return false;
    }

private:
    const OdGroupList& m_groups;
    std::uint32_t m_at = 0;
    std::uint32_t m_end;
};

/// The points whose coordinates have the codes `code`, `code` + 10 and `code` + 20, in the order of the file.
inline OdArray<OdGePoint3d> pointsInOrder(const OdGroupList& groups, int code = 10) {
    OdArray<OdGePoint3d> all;
    OdGroupCursor cursor(groups);
    OdGroup group;
    while (cursor.next(group)) {
        if (group.code == code) all.append({group.real, 0, 0});
        if (all.isEmpty()) continue;
        if (group.code == code + 10) all[all.length() - 1].y = group.real;
        if (group.code == code + 20) all[all.length() - 1].z = group.real;
    }
    return all;
}
