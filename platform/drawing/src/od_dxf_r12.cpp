#include "od_dxf_r12.h"

#include <cmath>

#include "od_angle.h"
#include "od_db_curves.h"
#include "od_db_polylines.h"
#include "od_db_store.h"
#include "od_dxf_markers.h"
#include "od_r12_paragraph.h"

namespace {

/// A polyline over points, flat or in space.
OdDbEntityPtr polylineThrough(const OdArray<OdGePoint3d>& points, bool closed, bool inSpace) {
    constexpr int kClosed = 1;
    constexpr int kPolyline3d = 8;
    constexpr int kVertex3d = 32;
    OdSmartPtr<OdDb2dPolyline> polyline(new OdDb2dPolyline);
    polyline->editGroups().addPoint(10, {0, 0, inSpace || points.isEmpty() ? 0 : points[0].z});
    polyline->editGroups().addInteger(70, (closed ? kClosed : 0) | (inSpace ? kPolyline3d : 0));
    for (const OdGePoint3d& point : points) {
        OdSmartPtr<OdDbVertex> vertex(new OdDbVertex);
        vertex->setPosition(point);
        vertex->editGroups().addInteger(70, inSpace ? kVertex3d : 0);
        polyline->appendVertex(vertex);
    }
    return OdDbEntityPtr(polyline.get());
}

OdDbEntityPtr fromFlatPolyline(const OdDbPolyline& source) {
    OdArray<OdGePoint3d> points;
    const OdArray<OdDbPolylineVertex> corners = source.vertices();
    for (const OdDbPolylineVertex& corner : corners)
        points.append({corner.point.x, corner.point.y, source.elevation()});
    const OdDbEntityPtr made = polylineThrough(points, source.isClosed(), false);
    const auto& parts = *made->parts();
    for (int i = 0; i < corners.length(); ++i) {
        OdGroupList& groups = parts[static_cast<std::size_t>(i)]->editGroups();
        if (corners[i].startWidth != 0) groups.setReal(40, corners[i].startWidth);
        if (corners[i].endWidth != 0) groups.setReal(41, corners[i].endWidth);
        if (corners[i].bulge != 0) groups.setReal(42, corners[i].bulge);
    }
    constexpr int kContinuousPattern = 128;
    if (source.groups().integer(70) & kContinuousPattern)
        made->editGroups().setInteger(70, made->groups().integer(70) | kContinuousPattern);
    if (const double width = source.constantWidth(); width != 0)
        for (const int code : {40, 41}) made->editGroups().setReal(code, width);
    if (source.thickness() != 0) made->setThickness(source.thickness());
    const OdGeVector3d normal = source.normal();
    if (normal.z != 1) made->editGroups().setPoint(210, {normal.x, normal.y, normal.z});
    return made;
}

OdDbEntityPtr fromEllipse(const OdDbEllipse& source) {
    constexpr int kPieces = 64;
    const OdGePoint3d c = source.center();
    const OdGePoint3d a = source.majorAxis();
    const OdGeVector3d n = source.normal();
    const double ratio = source.radiusRatio();
    // The minor axis is the normal times the major axis, shortened.
    const OdGePoint3d b{(n.y * a.z - n.z * a.y) * ratio, (n.z * a.x - n.x * a.z) * ratio,
                        (n.x * a.y - n.y * a.x) * ratio};
    const double sweep = source.endParam() - source.startParam();
    const bool whole = std::fabs(std::fabs(sweep) - 2 * kOdPi) < 1e-9;
    OdArray<OdGePoint3d> points;
    for (int i = 0; i < (whole ? kPieces : kPieces + 1); ++i) {
        const double u = source.startParam() + sweep * i / kPieces;
        points.append({c.x + a.x * std::cos(u) + b.x * std::sin(u),
                       c.y + a.y * std::cos(u) + b.y * std::sin(u),
                       c.z + a.z * std::cos(u) + b.z * std::sin(u)});
    }
    return polylineThrough(points, whole, true);
}

/// Gives `form` the properties that all entities have, but not the pictures of entities that a program can't
/// draw.
void takeCommon(const OdGroupList& source, OdGroupList& form) {
    OdGroup group;
    const std::uint32_t end = source.ownEnd();
    int markers = 0;
    for (std::uint32_t at = 0; at < end && source.read(at, group); at = group.end) {
        if (group.code == 100 && ++markers > 1) return;
        const bool picture = group.code == 92 || group.code == 160 || group.code == 310;
        if (odIsCommonEntityCode(group.code) && !odIsEntityPropertyCode(group.code) && !picture)
            form.add(group);
    }
}

/// Appends the extended data.
void takeExtendedData(const OdGroupList& source, OdGroupList& form) {
    OdGroup group;
    bool extended = false;
    for (std::uint32_t at = source.ownEnd(); source.read(at, group); at = group.end) {
        extended = extended || odIsExtendedDataCode(group.code);
        if (extended) form.add(group);
    }
}

}  // namespace

std::vector<OdDbEntityPtr> odOlderForm(const OdDbEntity& entity, OdDb::DwgVersion version) {
    constexpr int kPiecesPerControlPoint = 8;
    std::vector<OdDbEntityPtr> forms;
    if (const auto* polyline = dynamic_cast<const OdDbPolyline*>(&entity))
        forms.push_back(fromFlatPolyline(*polyline));
    else if (version > OdDb::kDHL_1009)
        return forms;
    else if (const auto* ellipse = dynamic_cast<const OdDbEllipse*>(&entity))
        forms.push_back(fromEllipse(*ellipse));
    else if (const auto* spline = dynamic_cast<const OdDbSpline*>(&entity))
        forms.push_back(polylineThrough(
            spline->samplePoints(kPiecesPerControlPoint * spline->controlPoints().length() + 1), false,
            true));
    else if (const auto* paragraph = dynamic_cast<const OdDbMText*>(&entity))
        forms = odLinesOfParagraph(*paragraph);
    for (const OdDbEntityPtr& form : forms) takeCommon(entity.groups(), form->editGroups());
    if (!forms.empty()) takeExtendedData(entity.groups(), forms[0]->editGroups());
    return forms;
}
