#include "od_db_store.h"

namespace {

void setFlag(OdGroupList& groups, int flag, bool on) {
    const std::int64_t flags = groups.integer(70);
    groups.setInteger(70, on ? flags | flag : flags & ~std::int64_t{flag});
}

}  // namespace

OdArray<OdDbPolylineVertex> OdDbPolyline::vertices() const {
    OdArray<OdDbPolylineVertex> corners;
    const double width = constantWidth();
    OdGroup group;
    const std::uint32_t end = m_groups.ownEnd();
    for (std::uint32_t at = 0; at < end && m_groups.read(at, group); at = group.end) {
        if (group.code == 10) corners.append({{group.real, 0}, 0, width, width});
        if (corners.isEmpty()) continue;
        OdDbPolylineVertex& corner = corners[corners.length() - 1];
        if (group.code == 20) corner.point.y = group.real;
        if (group.code == 40) corner.startWidth = group.real;
        if (group.code == 41) corner.endWidth = group.real;
        if (group.code == 42) corner.bulge = group.real;
    }
    return corners;
}

void OdDbPolyline::setVertices(const OdArray<OdDbPolylineVertex>& vertices) {
    OdGroupList& groups = editGroups();
    for (const int code : {10, 20, 40, 41, 42, 91}) groups.remove(code);
    groups.setInteger(90, vertices.length());
    OdGroupList corners;
    for (const OdDbPolylineVertex& vertex : vertices) {
        corners.addPoint(10, {vertex.point.x, vertex.point.y, 0}, true);
        if (vertex.startWidth != 0) corners.addReal(40, vertex.startWidth);
        if (vertex.endWidth != 0) corners.addReal(41, vertex.endWidth);
        if (vertex.bulge != 0) corners.addReal(42, vertex.bulge);
    }
    const std::uint32_t end = groups.ownEnd();
    groups.replace(end, end, corners);
}

void OdDbPolyline::setClosed(bool closed) { setFlag(editGroups(), 1, closed); }

void OdDb2dPolyline::setClosed(bool closed) { setFlag(editGroups(), 1, closed); }

OdArray<OdDbVertex*> OdDb2dPolyline::vertices() const {
    OdArray<OdDbVertex*> corners;
    for (const OdDbEntityPtr& part : m_parts) {
        auto* vertex = dynamic_cast<OdDbVertex*>(part.get());
        if (vertex && !vertex->isErased() && !vertex->isControlPoint()) corners.append(vertex);
    }
    return corners;
}

OdResult OdDb2dPolyline::appendVertex(const OdSmartPtr<OdDbVertex>& vertex) {
    if (!vertex || vertex->database()) return kOdInvalidInput;
    editGroups();
    auto place = m_parts.end();
    if (!m_parts.empty() && dynamic_cast<OdDbSequenceEnd*>(m_parts.back().get())) --place;
    m_parts.insert(place, OdDbEntityPtr(vertex.get()));
    if (store()) store()->adoptEntity(OdDbEntityPtr(vertex.get()), handle());
    return kOdOk;
}
