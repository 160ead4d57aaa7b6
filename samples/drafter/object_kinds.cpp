#include "object_kinds.h"

#include <cstring>

#include "resource.h"

namespace {

struct Kind {
    const char* name;  ///< in drawing files
    UINT one;          ///< strings
    UINT many;
};

constexpr Kind kKinds[] = {
    {"LINE", IDS_KIND_LINE, IDS_KINDS_LINE},
    {"CIRCLE", IDS_KIND_CIRCLE, IDS_KINDS_CIRCLE},
    {"ARC", IDS_KIND_ARC, IDS_KINDS_ARC},
    {"LWPOLYLINE", IDS_KIND_POLYLINE, IDS_KINDS_POLYLINE},
    {"POLYLINE", IDS_KIND_POLYLINE, IDS_KINDS_POLYLINE},
    {"TEXT", IDS_KIND_TEXT, IDS_KINDS_TEXT},
    {"MTEXT", IDS_KIND_TEXT, IDS_KINDS_TEXT},
    {"INSERT", IDS_KIND_INSERT, IDS_KINDS_INSERT},
    {"ELLIPSE", IDS_KIND_ELLIPSE, IDS_KINDS_ELLIPSE},
    {"SPLINE", IDS_KIND_SPLINE, IDS_KINDS_SPLINE},
    {"DIMENSION", IDS_KIND_DIMENSION, IDS_KINDS_DIMENSION},
    {"SOLID", IDS_KIND_SOLID, IDS_KINDS_SOLID},
    {"POINT", IDS_KIND_POINT, IDS_KINDS_POINT},
};

const Kind* kindNamed(const char* name) {
    for (const Kind& kind : kKinds)
        if (std::strcmp(kind.name, name) == 0) return &kind;
    return nullptr;
}

CString counted(UINT format, std::size_t count) {
    CString text;
    text.Format(format, static_cast<int>(count));
    return text;
}

}  // namespace

CString KindOf(const OdDbEntity& entity) {
    CString text(entity.dxfName());
    if (const Kind* kind = kindNamed(entity.dxfName())) text.LoadString(kind->one);
    return text;
}

CString DescribeObjects(const std::vector<OdDbObjectId>& objects) {
    UINT many = 0;
    for (const OdDbObjectId& id : objects) {
        const auto entity = id.open<OdDbEntity>();
        const Kind* kind = entity ? kindNamed(entity->dxfName()) : nullptr;
        if (objects.size() == 1 && entity) return KindOf(*entity);
        if (kind == nullptr || (many != 0 && kind->many != many)) return counted(IDS_OBJECTS, objects.size());
        many = kind->many;
    }
    return counted(many != 0 ? many : IDS_OBJECTS, objects.size());
}
