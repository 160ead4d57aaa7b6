// What a drawing looks like: its entities as lines, filled areas and texts in drawing units, with the colour,
// dashes and weight that layers and blocks give them. Knows no window.
#pragma once

#include <vector>

#include <od_db.h>

#include "scene_api.h"

/// How a piece of the scene is drawn. "By layer" and "by block" are resolved already.
struct DisplayStyle {
    OdCmColor color;  ///< never by layer or by block
    std::vector<double>
        dashes;          ///< drawing units: positive a dash, negative a gap, 0 a dot; empty for continuous
    int lineWeight = 0;  ///< hundredths of a millimetre
    OdDbObjectId layer;
};

/// A part of a path that is an arc of an ellipse or circle: the points `first` to `last` lie on it.
struct SceneArc {
    std::size_t first = 0, last = 0;
    OdGePoint2d center;
    OdGePoint2d axisX, axisY;     ///< half axes: the place at t is center + axisX cos t + axisY sin t
    double start = 0, sweep = 0;  ///< radians
};

/// A line through points, or a filled area within them.
struct ScenePath {
    std::vector<OdGePoint2d> points;
    bool filled = false;
    DisplayStyle style;
    OdDbObjectId entity;              ///< the entity of the space that it belongs to
    std::vector<SceneArc> arcs = {};  ///< in the order of their points
};

/// Height of capitals in that of their font.
constexpr double kCapitalShare = 0.72;

/// The font of a text, from its style.
struct SceneFont {
    OdString family;  ///< of a TrueType font, where the style names it
    OdString file;
    bool bold = false;
    bool italic = false;
    double oblique = 0;  ///< slant in radians, to the right above 0
};

/// One line of text.
struct SceneText {
    OdString text;
    OdGePoint2d position;  ///< of the alignment point
    double height = 0;     ///< of capitals, drawing units
    double rotation = 0;   ///< radians
    double widthFactor = 1;
    int horizontal = 0;  ///< 0 left, 1 centre, 2 right
    int vertical = 0;    ///< 0 base line, 1 bottom, 2 middle, 3 top
    SceneFont font;
    DisplayStyle style;
    OdDbObjectId entity;  ///< the entity of the space that it belongs to
};

/// A rectangle in drawing units; empty until something is added.
struct KTSCENE_API SceneExtents {
    OdGePoint2d low{1e300, 1e300}, high{-1e300, -1e300};
    bool isEmpty() const { return low.x > high.x; }
    void add(const OdGePoint2d& point);
};

struct KTSCENE_API Scene {
    std::vector<ScenePath> paths;
    std::vector<SceneText> texts;

    /// The area that everything takes up, text boxes estimated.
    SceneExtents extents() const;
};

/// The visible entities of block `space` of `drawing`.
KTSCENE_API Scene BuildScene(OdDbDatabase& drawing, const OdDbObjectId& space);
