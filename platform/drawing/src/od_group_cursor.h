// Walks the own groups of an object in the order of the file, for kinds whose groups mean something by their
// place.
#pragma once

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
