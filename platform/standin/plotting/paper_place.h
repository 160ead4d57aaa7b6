// Where a drawing lies on paper: the page's size and the mapping of drawing units to points, from plot
// settings. Knows no window.
#pragma once

#include <od_db.h>

#include "scene.h"
#include "standin_api.h"

/// A page and the mapping onto it.
struct PaperPlace {
    double width = 0, height = 0;  ///< points
    double scale = 1;              ///< points for one drawing unit
    OdGePoint2d origin;            ///< the point that the drawing's 0, 0 falls on

    OdGePoint2d apply(const OdGePoint2d& p) const { return {origin.x + p.x * scale, origin.y + p.y * scale}; }
};

/// A sheet in the units of its drawing; empty where its settings make no sense.
struct SheetPlace {
    SceneExtents paper;
    SceneExtents printable;  ///< what the margins leave of it
};

constexpr double kPointsPerInch = 72;
constexpr double kPointsPerMillimetre = kPointsPerInch / 25.4;

/// The sheet of a layout: its own 0, 0 in the corner of what can be printed, at the scale of its settings, or
/// fitted by `content` where they say so. Settings without a size of paper take the content's.
STANDIN_API PaperPlace PlaceLayout(const OdDbPlotSettings& settings, const SceneExtents& content);
/// The same from the drawing's side: where its paper lies under what is drawn on it.
STANDIN_API SheetPlace PlaceSheet(const OdDbPlotSettings& settings, const SceneExtents& content);
/// `area` of the drawing in the middle of the sheet, as large as it can be; at the scale of the settings for
/// `keepsScale` unless they fit it as well.
STANDIN_API PaperPlace PlaceArea(const OdDbPlotSettings& settings, const SceneExtents& area, bool keepsScale);
