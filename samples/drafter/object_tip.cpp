#include "object_tip.h"

#include <afxwin.h>

#include <cmath>

#include <ktut.h>
#include <od_host_services.h>
#include <od_tool_tip_setting.h>

#include "object_kinds.h"
#include "path_measure.h"
#include "resource.h"
#include "unit_texts.h"

namespace {

void addLine(OdArray<OdString>& lines, UINT id, const wchar_t* value) {
    CString line;
    line.Format(id, value);
    lines.append(OdString(line));
}

bool isClosed(const std::vector<OdGePoint2d>& points) {
    constexpr double kSame = 1e-9;
    return points.size() > 2 &&
           std::hypot(points.front().x - points.back().x, points.front().y - points.back().y) < kSame;
}

/// Adds the area of an object of one closed line or filled area, otherwise the length of its lines.
void addMeasure(OdArray<OdString>& lines, const Scene& scene, const OdDbObjectId& entity) {
    double length = 0, area = 0;
    int paths = 0;
    bool encloses = false;
    for (const ScenePath& path : scene.paths) {
        if (path.entity != entity || path.isLetters) continue;
        ++paths;
        length += LengthOf(path);
        encloses = path.filled || isClosed(path.points);
        area += AreaOf(path);
    }
    if (paths == 0) return;
    if (paths == 1 && encloses)
        addLine(lines, IDS_OBJECT_AREA, FormatNumber(area));
    else
        addLine(lines, IDS_OBJECT_LENGTH, FormatDistance(length));
}

}  // namespace

bool AreTipsOn() {
    const auto* const setting = dynamic_cast<const OdDbToolTipSetting*>(oddbHostApplicationServices());
    return setting == nullptr || setting->toolTips() != 0;
}

OdArray<OdString> DescribeObject(const Scene& scene, const OdDbObjectId& entity) {
    OdArray<OdString> lines;
    const auto object = entity.open<OdDbEntity>();
    if (!object) return lines;
    lines.append(OdString(KindOf(*object)));
    addLine(lines, IDS_OBJECT_LAYER, object->layer().c_str());
    addLine(lines, IDS_OBJECT_COLOR, ktutColorToStr(object->color()).c_str());
    addLine(lines, IDS_OBJECT_LINETYPE, object->linetype().c_str());
    addMeasure(lines, scene, entity);
    return lines;
}
