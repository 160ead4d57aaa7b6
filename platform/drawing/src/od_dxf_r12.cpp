#include "od_dxf_r12.h"

#include <algorithm>
#include <cmath>

#include "od_angle.h"
#include "od_db_curves.h"
#include "od_db_polylines.h"
#include "od_db_store.h"
#include "od_dxf_markers.h"

namespace {

constexpr std::string_view kR12Variables[] = {
    "ATTDIA",   "ATTREQ",    "AXISMODE", "AXISUNIT",  "BLIPMODE",   "CHAMFERA",   "CHAMFERB",   "COORDS",
    "DIMALT",   "DIMALTD",   "DIMALTF",  "DIMAPOST",  "DIMASO",     "DIMBLK",     "DIMBLK1",    "DIMBLK2",
    "DIMCEN",   "DIMCLRD",   "DIMCLRE",  "DIMCLRT",   "DIMDLE",     "DIMDLI",     "DIMEXE",     "DIMEXO",
    "DIMGAP",   "DIMLFAC",   "DIMLIM",   "DIMPOST",   "DIMRND",     "DIMSAH",     "DIMSE1",     "DIMSE2",
    "DIMSHO",   "DIMSOXD",   "DIMTAD",   "DIMTFAC",   "DIMTIH",     "DIMTIX",     "DIMTM",      "DIMTOFL",
    "DIMTOH",   "DIMTOL",    "DIMTP",    "DIMTSZ",    "DIMTVP",     "DRAGMODE",   "FASTZOOM",   "GRIDMODE",
    "GRIDUNIT", "HANDLING",  "MAXACTVP", "MENU",      "OSMODE",     "PELEVATION", "PEXTMAX",    "PEXTMIN",
    "PINSBASE", "PLIMCHECK", "PLIMMAX",  "PLIMMIN",   "PLINEWID",   "PUCSNAME",   "PUCSORG",    "PUCSXDIR",
    "PUCSYDIR", "SHADEDGE",  "SHADEDIF", "SKETCHINC", "SKPOLY",     "SNAPANG",    "SNAPBASE",   "SNAPISOPAIR",
    "SNAPMODE", "SNAPSTYLE", "SNAPUNIT", "SPLFRAME",  "SPLINESEGS", "SPLINETYPE", "SURFTAB1",   "SURFTAB2",
    "SURFTYPE", "SURFU",     "SURFV",    "TDCREATE",  "TDINDWG",    "TDUPDATE",   "TDUSRTIMER", "UCSNAME",
    "UCSORG",   "UCSXDIR",   "UCSYDIR",  "USERI1",    "USERI2",     "USERI3",     "USERI4",     "USERI5",
    "USERR1",   "USERR2",    "USERR3",   "USERR4",    "USERR5",     "USRTIMER",   "VIEWCTR",    "VIEWDIR",
    "VIEWMODE", "VIEWSIZE",  "WORLDVIEW"};

constexpr std::string_view kR12Entities[] = {"LINE",   "POINT",  "CIRCLE", "ARC",      "TRACE",    "SOLID",
                                             "TEXT",   "SHAPE",  "INSERT", "ATTDEF",   "ATTRIB",   "POLYLINE",
                                             "VERTEX", "SEQEND", "3DFACE", "VIEWPORT", "DIMENSION"};

template <class List>
bool contains(const List& list, std::string_view name) {
    return std::find(std::begin(list), std::end(list), name) != std::end(list);
}

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

std::vector<OdDbEntityPtr> fromParagraph(const OdDbMText& source) {
    constexpr double kLineSpacing = 5.0 / 3.0;
    std::vector<OdDbEntityPtr> lines;
    const OdString plain = source.plainText();
    std::wstring_view rest = plain.view();
    const double angle = source.rotation();
    for (int number = 0; !rest.empty(); ++number) {
        const std::size_t end = std::min(rest.find(L'\n'), rest.size());
        OdSmartPtr<OdDbText> text(new OdDbText);
        const double down = source.textHeight() * (1 + number * kLineSpacing);
        const OdGePoint3d at = source.location();
        text->setPosition({at.x + std::sin(angle) * down, at.y - std::cos(angle) * down, at.z});
        text->setHeight(source.textHeight());
        text->setTextString(OdString(std::wstring(rest.substr(0, end))));
        if (angle != 0) text->setRotation(angle);
        if (const OdString style = source.groups().text(7); !style.isEmpty())
            text->editGroups().setText(7, style);
        lines.push_back(OdDbEntityPtr(text.get()));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return lines;
}

}  // namespace

bool odIsR12Variable(std::string_view name) { return contains(kR12Variables, name); }

bool odVersionHasEntity(OdDb::DwgVersion version, std::string_view type) {
    if (version <= OdDb::kDHL_1009) return contains(kR12Entities, type);
    if (version < OdDb::kDHL_1014) return type != "LWPOLYLINE" && type != "HATCH";
    return true;
}

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
        forms = fromParagraph(*paragraph);
    for (const OdDbEntityPtr& form : forms) {
        if (entity.color() != OdCmColor()) form->setColor(entity.color());
        form->setLinetypeScale(entity.linetypeScale());
    }
    return forms;
}
