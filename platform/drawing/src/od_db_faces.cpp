#include "od_db_faces.h"

#include "od_group_cursor.h"

OdGePoint3d OdDbFace::pointAt(int corner) const {
    if (corner < 0 || corner > 3) return {};
    OdGroup group;
    if (corner == 3 && !m_groups.find(13, group)) corner = 2;
    return m_groups.point(10 + corner);
}

OdArray<OdGePoint3d> OdDbSubDMesh::vertices() const { return pointsInOrder(m_groups); }

std::vector<std::vector<int>> OdDbSubDMesh::faces() const {
    constexpr int kFaceListSize = 93, kEdgeCount = 94, kEntry = 90;
    const int count = vertices().length();
    std::vector<std::vector<int>> all;
    OdGroupCursor cursor(m_groups);
    OdGroup group;
    bool begun = false;
    std::int64_t left = 0;  // corners of the present face that are still to come
    while (cursor.next(group)) {
        if (group.code == kFaceListSize) begun = true;
        if (group.code == kEdgeCount && begun) break;
        if (!begun || group.code != kEntry) continue;
        if (left == 0) {
            left = group.integer > 0 ? group.integer : 0;
            all.emplace_back();
            continue;
        }
        --left;
        if (group.integer >= 0 && group.integer < count)
            all.back().push_back(static_cast<int>(group.integer));
    }
    return all;
}
