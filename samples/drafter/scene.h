// What a drawing looks like: its entities as lines, filled areas and texts in drawing units, with the colour,
// dashes and weight that layers and blocks give them. Knows no window.
#pragma once

#include <vector>

#include <od_db.h>

/// How a piece of the scene is drawn. "By layer" and "by block" are resolved already.
struct DisplayStyle {
    OdCmColor color;  ///< never by layer or by block
    std::vector<double>
        dashes;          ///< drawing units: positive a dash, negative a gap, 0 a dot; empty for continuous
    int lineWeight = 0;  ///< hundredths of a millimetre
};

/// A line through points, or a filled area within them.
struct ScenePath {
    std::vector<OdGePoint2d> points;
    bool filled = false;
    DisplayStyle style;
    OdDbObjectId entity;  ///< the entity of the space that it belongs to
};

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
struct SceneExtents {
    OdGePoint2d low{1e300, 1e300}, high{-1e300, -1e300};
    bool isEmpty() const { return low.x > high.x; }
    void add(const OdGePoint2d& point);
};

struct Scene {
    std::vector<ScenePath> paths;
    std::vector<SceneText> texts;

    /// The area that everything takes up, text boxes estimated.
    SceneExtents extents() const;
};

/// The visible entities of block `space` of `drawing`.
Scene BuildScene(OdDbDatabase& drawing, const OdDbObjectId& space);
