#include "kinds/draw_functions.h"

#include <string_view>
#include <unordered_map>

DrawFunction DrawFunctionFor(const char* kind) {
    static const std::unordered_map<std::string_view, DrawFunction> functions = {
        {"LINE", DrawLine},
        {"CIRCLE", DrawCircle},
        {"ARC", DrawArc},
        {"ELLIPSE", DrawEllipse},
        {"RAY", DrawRay},
        {"XLINE", DrawRay},
        {"POINT", DrawPoint},
        {"SPLINE", DrawSpline},
        {"HELIX", DrawSpline},
        {"LWPOLYLINE", DrawLightPolyline},
        {"POLYLINE", DrawPolyline},
        {"SOLID", DrawSolid},
        {"TRACE", DrawSolid},
        {"3DFACE", DrawFace},
        {"MESH", DrawMesh},
        {"INSERT", DrawReference},
        {"ACAD_TABLE", DrawTable},
        {"DIMENSION", DrawDimension},
        {"ARC_DIMENSION", DrawDimension},
        {"LARGE_RADIAL_DIMENSION", DrawDimension},
        {"TEXT", DrawTextLine},
        {"ATTDEF", DrawAttributeDefinition},
        {"MTEXT", DrawParagraph},
        {"HATCH", DrawHatch},
        {"LEADER", DrawLeader},
        {"MULTILEADER", DrawMultileader},
        {"MLEADER", DrawMultileader},
        {"MLINE", DrawMultiline},
        {"SHAPE", DrawShape},
        {"TOLERANCE", DrawTolerance},
        {"IMAGE", DrawImage},
        {"WIPEOUT", DrawWipeout},
        {"VIEWPORT", DrawViewport},
    };
    const auto found = functions.find(kind);
    return found != functions.end() ? found->second : nullptr;
}
