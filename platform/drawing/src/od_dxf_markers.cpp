#include "od_dxf_markers.h"

#include <algorithm>
#include <vector>

namespace {

/// One subclass of an entity type and the codes that it claims; an empty list claims what is left over.
struct Subclass {
    const char* marker;
    std::vector<int> codes;
};

struct EntityType {
    const char* type;
    std::vector<Subclass> subclasses;
};

const std::vector<EntityType>& entityTypes() {
    static const std::vector<EntityType> types = {
        {"LINE", {{"AcDbLine", {}}}},
        {"POINT", {{"AcDbPoint", {}}}},
        {"CIRCLE", {{"AcDbCircle", {}}}},
        {"ARC", {{"AcDbCircle", {}}, {"AcDbArc", {50, 51}}}},
        {"ELLIPSE", {{"AcDbEllipse", {}}}},
        {"SOLID", {{"AcDbTrace", {}}}},
        {"TRACE", {{"AcDbTrace", {}}}},
        {"3DFACE", {{"AcDbFace", {}}}},
        {"SHAPE", {{"AcDbShape", {}}}},
        {"LWPOLYLINE", {{"AcDbPolyline", {}}}},
        {"SPLINE", {{"AcDbSpline", {}}}},
        {"TEXT", {{"AcDbText", {}}, {"AcDbText", {73}}}},
        {"MTEXT", {{"AcDbMText", {}}}},
        {"ATTRIB", {{"AcDbText", {}}, {"AcDbAttribute", {2, 70, 73, 74}}}},
        {"ATTDEF", {{"AcDbText", {}}, {"AcDbAttributeDefinition", {3, 2, 70, 73, 74}}}},
        {"INSERT", {{"AcDbBlockReference", {}}}},
        {"VIEWPORT", {{"AcDbViewport", {}}}},
        {"SEQEND", {}},
    };
    return types;
}

const char* vertexMarker(std::int64_t flags) {
    if (flags & 128) return flags & 64 ? "AcDbPolyFaceMeshVertex" : "AcDbFaceRecord";
    if (flags & 64) return "AcDbPolygonMeshVertex";
    return flags & 32 ? "AcDb3dPolylineVertex" : "AcDb2dVertex";
}

const char* polylineMarker(std::int64_t flags) {
    if (flags & 64) return "AcDbPolyFaceMesh";
    if (flags & 16) return "AcDbPolygonMesh";
    return flags & 8 ? "AcDb3dPolyline" : "AcDb2dPolyline";
}

std::vector<Subclass> dimensionSubclasses(std::int64_t type) {
    switch (type & 7) {
        case 0:
            return {{"AcDbDimension", {}},
                    {"AcDbAlignedDimension", {13, 14, 50, 52}},
                    {"AcDbRotatedDimension", {-1}}};
        case 1: return {{"AcDbDimension", {}}, {"AcDbAlignedDimension", {13, 14, 52}}};
        case 2: return {{"AcDbDimension", {}}, {"AcDb2LineAngularDimension", {13, 14, 15, 16}}};
        case 3: return {{"AcDbDimension", {}}, {"AcDbDiametricDimension", {15, 40}}};
        case 4: return {{"AcDbDimension", {}}, {"AcDbRadialDimension", {15, 40}}};
        case 5: return {{"AcDbDimension", {}}, {"AcDb3PointAngularDimension", {13, 14, 15}}};
        default: return {{"AcDbDimension", {}}, {"AcDbOrdinateDimension", {13, 14}}};
    }
}

std::vector<Subclass> subclassesOf(std::string_view type, const OdGroupList& groups, bool& known) {
    known = true;
    const std::int64_t flags = groups.integer(70);
    if (type == "VERTEX") {
        if ((flags & 192) == 128) return {{vertexMarker(flags), {}}};
        return {{"AcDbVertex", {-1}}, {vertexMarker(flags), {}}};
    }
    if (type == "POLYLINE") return {{polylineMarker(flags), {}}};
    if (type == "DIMENSION") return dimensionSubclasses(flags);
    for (const EntityType& entry : entityTypes())
        if (type == entry.type) return entry.subclasses;
    known = false;
    return {};
}

/// A coordinate belongs where its x belongs: 20 and 30 with 10, 21 and 31 with 11, and so on.
int leadingCode(int code) { return code >= 20 && code <= 37 ? 10 + code % 10 : code; }

bool claims(const Subclass& part, int code) {
    return std::find(part.codes.begin(), part.codes.end(), leadingCode(code)) != part.codes.end();
}

bool hasMarker(const OdGroupList& groups) {
    OdGroup group;
    return groups.find(100, group);
}

/// Appends the own groups for which `wanted` is true, with the place where application data ends left out. A
/// later block of such data goes as a whole where its edges go.
template <class Wanted>
void appendOwn(OdGroupList& out, const OdGroupList& groups, std::uint32_t from, Wanted wanted) {
    const std::uint32_t end = groups.ownEnd();
    constexpr int kApplicationData = 102;
    OdGroup group;
    bool inside = false;
    for (std::uint32_t at = from; at < end && groups.read(at, group); at = group.end) {
        if (wanted(inside ? kApplicationData : group.code)) out.add(group);
        if (group.code == kApplicationData) inside = !group.text.empty() && group.text[0] == '{';
    }
}

void appendRange(OdGroupList& out, const OdGroupList& groups, std::uint32_t from, std::uint32_t to) {
    OdGroup group;
    for (std::uint32_t at = from; at < to && groups.read(at, group); at = group.end) out.add(group);
}

struct RecordType {
    const char* type;
    const char* marker;
};

constexpr RecordType kRecordTypes[] = {
    {"VPORT", "AcDbViewportTableRecord"},    {"LTYPE", "AcDbLinetypeTableRecord"},
    {"LAYER", "AcDbLayerTableRecord"},       {"STYLE", "AcDbTextStyleTableRecord"},
    {"VIEW", "AcDbViewTableRecord"},         {"UCS", "AcDbUCSTableRecord"},
    {"APPID", "AcDbRegAppTableRecord"},      {"DIMSTYLE", "AcDbDimStyleTableRecord"},
    {"BLOCK_RECORD", "AcDbBlockTableRecord"}};

/// What a new record of this type holds.
OdGroupList usualRecordGroups(std::string_view type) {
    OdGroupList groups;
    groups.addInteger(70, 0);
    if (type == "BLOCK_RECORD") {
        groups.addInteger(280, 1);
        groups.addInteger(281, 0);
    } else if (type == "LAYER") {
        groups.addInteger(62, 7);
        groups.addText(6, "Continuous");
    } else if (type == "LTYPE") {
        groups.addText(3, "");
        groups.addInteger(72, 65);
        groups.addInteger(73, 0);
        groups.addReal(40, 0);
    } else if (type == "STYLE") {
        for (const int code : {40, 41, 50}) groups.addReal(code, code == 41 ? 1.0 : 0.0);
        groups.addInteger(71, 0);
        groups.addReal(42, 2.5);
        groups.addText(3, "txt");
        groups.addText(4, "");
    } else if (type == "VPORT") {
        groups.addPoint(10, {0, 0, 0}, true);
        groups.addPoint(11, {1, 1, 0}, true);
        groups.addPoint(12, {210, 148.5, 0}, true);
        groups.addPoint(16, {0, 0, 1});
        groups.addPoint(17, {0, 0, 0});
        groups.addReal(40, 297);
        groups.addReal(41, 1.5);
    }
    return groups;
}

}  // namespace

bool odIsEntityPropertyCode(int code) { return code == 6 || code == 8 || code == 67; }

bool odIsCommonEntityCode(int code) {
    switch (code) {
        case 6:
        case 8:
        case 48:
        case 60:
        case 62:
        case 67:
        case 92:
        case 160:
        case 284:
        case 310:
        case 347:
        case 348:
        case 370:
        case 380:
        case 390:
        case 410:
        case 420:
        case 430:
        case 440: return true;
        default: return false;
    }
}

void odCompleteEntityMarkers(std::string_view type, OdGroupList& groups) {
    if (hasMarker(groups)) return;
    bool known = false;
    const std::vector<Subclass> parts = subclassesOf(type, groups, known);
    if (!known) return;
    const std::uint32_t from = groups.applicationDataEnd();
    OdGroupList sorted;
    appendRange(sorted, groups, 0, from);
    sorted.addText(100, "AcDbEntity");
    appendOwn(sorted, groups, from, odIsCommonEntityCode);
    for (const Subclass& part : parts) {
        sorted.addText(100, part.marker);
        appendOwn(sorted, groups, from, [&](int code) {
            if (odIsCommonEntityCode(code)) return false;
            if (!part.codes.empty()) return claims(part, code);
            return std::none_of(parts.begin(), parts.end(),
                                [&](const Subclass& p) { return claims(p, code); });
        });
    }
    appendRange(sorted, groups, groups.ownEnd(), groups.size());
    sorted.shrink();
    groups = std::move(sorted);
}

void odCompleteRecordMarkers(std::string_view type, OdGroupList& groups) {
    if (hasMarker(groups)) return;
    for (const RecordType& entry : kRecordTypes) {
        if (type != entry.type) continue;
        OdGroupList marked;
        const std::uint32_t from = groups.applicationDataEnd();
        appendRange(marked, groups, 0, from);
        marked.addText(100, "AcDbSymbolTableRecord");
        marked.addText(100, entry.marker);
        appendRange(marked, groups, from, groups.size());
        groups = std::move(marked);
        return;
    }
}

void odGiveNewRecordGroups(std::string_view type, OdGroupList& groups) {
    const OdGroupList usual = usualRecordGroups(type);
    OdGroup group, present;
    for (std::uint32_t at = 0; usual.read(at, group); at = group.end) {
        if (groups.find(group.code, present)) continue;
        OdGroupList one;
        one.add(group);
        const std::uint32_t end = groups.ownEnd();
        groups.replace(end, end, one);
    }
    odCompleteRecordMarkers(type, groups);
}

void odGiveNewLayoutGroups(OdGroupList& groups, const wchar_t* name, OdDbHandle block, int tabOrder) {
    constexpr int kModelPlot = 1024;
    constexpr int kUsualFlags = 688;
    groups.addText(100, "AcDbPlotSettings");
    for (const int code : {1, 2}) groups.addText(code, "");
    groups.addText(4, "ISO_A3_(420.00_x_297.00_MM)");
    groups.addText(6, "");
    for (const int code : {40, 41, 42, 43}) groups.addReal(code, 0);
    groups.addReal(44, 420);
    groups.addReal(45, 297);
    for (const int code : {46, 47, 48, 49, 140, 141}) groups.addReal(code, 0);
    groups.addReal(142, 1);
    groups.addReal(143, 1);
    groups.addInteger(70, kUsualFlags | (tabOrder == 0 ? kModelPlot : 0));
    groups.addInteger(72, 1);
    groups.addInteger(73, 0);
    groups.addInteger(74, tabOrder == 0 ? 0 : 5);
    groups.addText(7, "");
    groups.addInteger(75, 16);
    groups.addReal(147, 1);
    groups.addText(100, "AcDbLayout");
    groups.addText(1, name);
    groups.addInteger(70, 1);
    groups.addInteger(71, tabOrder);
    groups.addPoint(10, {0, 0, 0}, true);
    groups.addPoint(11, {420, 297, 0}, true);
    groups.addPoint(12, {0, 0, 0});
    groups.addPoint(14, {0, 0, 0});
    groups.addPoint(15, {420, 297, 0});
    groups.addReal(146, 0);
    groups.addPoint(13, {0, 0, 0});
    groups.addPoint(16, {1, 0, 0});
    groups.addPoint(17, {0, 1, 0});
    groups.addInteger(76, 0);
    groups.addHandle(330, block);
}

void odCompleteBlockEdge(bool begin, OdGroupList& groups) {
    OdGroup group;
    groups.remove(100);
    const std::uint32_t from = groups.applicationDataEnd();
    OdGroupList sorted;
    appendRange(sorted, groups, 0, from);
    sorted.addText(100, "AcDbEntity");
    if (!groups.find(8, group)) sorted.addText(8, "0");
    appendOwn(sorted, groups, from, odIsCommonEntityCode);
    sorted.addText(100, begin ? "AcDbBlockBegin" : "AcDbBlockEnd");
    appendOwn(sorted, groups, from, [](int code) { return !odIsCommonEntityCode(code); });
    appendRange(sorted, groups, groups.ownEnd(), groups.size());
    groups = std::move(sorted);
    if (begin && !groups.find(70, group)) groups.setInteger(70, 0);
    if (begin && !groups.find(10, group)) groups.setPoint(10, {0, 0, 0});
    groups.shrink();
}
