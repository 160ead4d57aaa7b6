#include "plotting/paper_place.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kLongEdge = 420;      // millimetres, of a page without a size of its own
constexpr double kLeastMargin = 5;     // millimetres, where something is fitted
constexpr double kLargestPage = 5080;  // millimetres; readers take no larger one
constexpr double kLeastLength = 1e-9;

struct Sheet {
    double width, height;  // millimetres, as the drawing is read
    OdDbPlotMargins margins;
};

double lengthOf(double from, double to) { return std::max(to - from, kLeastLength); }

Sheet sheetOf(const OdDbPlotSettings& settings, const SceneExtents& content) {
    Sheet sheet = {settings.getPlotPaperWidth(), settings.getPlotPaperHeight(),
                   settings.getPlotPaperMargins()};
    if (sheet.width <= 0 || sheet.height <= 0) {
        const double x = content.isEmpty() ? 4 : lengthOf(content.low.x, content.high.x);
        const double y = content.isEmpty() ? 3 : lengthOf(content.low.y, content.high.y);
        const double scale = kLongEdge / std::max(x, y);
        sheet = {std::max(x * scale, kLeastMargin * 4), std::max(y * scale, kLeastMargin * 4), {}};
    } else if (settings.isPlotTurned()) {
        std::swap(sheet.width, sheet.height);
    }
    sheet.width = std::min(sheet.width, kLargestPage);
    sheet.height = std::min(sheet.height, kLargestPage);
    return sheet;
}

PaperPlace pageOf(const Sheet& sheet) {
    PaperPlace place;
    place.width = sheet.width * kPointsPerMillimetre;
    place.height = sheet.height * kPointsPerMillimetre;
    return place;
}

double scaleOf(const OdDbPlotSettings& settings) {
    const double unit = settings.isPlotInInches() ? kPointsPerInch : kPointsPerMillimetre;
    return settings.getPlotScale() * unit;
}

/// Puts the middle of `area` into the middle of what is left between margins.
void fit(PaperPlace& place, const Sheet& sheet, const SceneExtents& area, const double* scale) {
    if (area.isEmpty()) return;
    const auto edge = [](double margin) { return std::max(margin, kLeastMargin) * kPointsPerMillimetre; };
    const double left = edge(sheet.margins.left), right = place.width - edge(sheet.margins.right);
    const double bottom = edge(sheet.margins.bottom), top = place.height - edge(sheet.margins.top);
    place.scale = scale != nullptr ? *scale
                                   : std::min(lengthOf(left, right) / lengthOf(area.low.x, area.high.x),
                                              lengthOf(bottom, top) / lengthOf(area.low.y, area.high.y));
    place.origin = {(left + right) / 2 - (area.low.x + area.high.x) / 2 * place.scale,
                    (bottom + top) / 2 - (area.low.y + area.high.y) / 2 * place.scale};
}

}  // namespace

PaperPlace PlaceLayout(const OdDbPlotSettings& settings, const SceneExtents& content) {
    const Sheet sheet = sheetOf(settings, content);
    PaperPlace place = pageOf(sheet);
    const bool hasPaper = settings.getPlotPaperWidth() > 0 && settings.getPlotPaperHeight() > 0;
    if (settings.isPlotFitted() || !hasPaper) {
        fit(place, sheet, content, nullptr);
        return place;
    }
    place.scale = scaleOf(settings);
    const OdGePoint2d moved = settings.getPlotOrigin();
    place.origin = {(sheet.margins.left + moved.x) * kPointsPerMillimetre,
                    (sheet.margins.bottom + moved.y) * kPointsPerMillimetre};
    return place;
}

SheetPlace PlaceSheet(const OdDbPlotSettings& settings, const SceneExtents& content) {
    const PaperPlace place = PlaceLayout(settings, content);
    const OdDbPlotMargins margins = sheetOf(settings, content).margins;
    const auto inUnits = [&place](double left, double bottom, double right, double top) {
        const auto unitsOf = [&place](double x, double y) {
            return OdGePoint2d{(x - place.origin.x) / place.scale, (y - place.origin.y) / place.scale};
        };
        return SceneExtents{
            unitsOf(left * kPointsPerMillimetre, bottom * kPointsPerMillimetre),
            unitsOf(place.width - right * kPointsPerMillimetre, place.height - top * kPointsPerMillimetre)};
    };
    const SheetPlace sheet = {inUnits(0, 0, 0, 0),
                              inUnits(margins.left, margins.bottom, margins.right, margins.top)};
    const auto isFinite = [](const SceneExtents& each) {
        return std::isfinite(each.low.x) && std::isfinite(each.low.y) && std::isfinite(each.high.x) &&
               std::isfinite(each.high.y);
    };
    return isFinite(sheet.paper) && isFinite(sheet.printable) ? sheet : SheetPlace();
}

PaperPlace PlaceArea(const OdDbPlotSettings& settings, const SceneExtents& area, bool keepsScale) {
    const Sheet sheet = sheetOf(settings, area);
    PaperPlace place = pageOf(sheet);
    const double scale = scaleOf(settings);
    fit(place, sheet, area, keepsScale && !settings.isPlotFitted() ? &scale : nullptr);
    return place;
}
