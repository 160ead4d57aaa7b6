// What a drawing looks like: its entities as lines, filled areas and texts in drawing units, with the colour,
// dashes and weight that layers and blocks give them. Knows no window.
//
//     Scene scene = BuildScene(drawing, drawing.modelSpaceId());
//     for (const ScenePath& path : scene.paths) ...
#pragma once

#include <array>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include <od_db.h>

#include "scene_api.h"

struct SceneOptions;
class ScenePicture;

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

/// The place of a piece outside of every clip.
constexpr int kNoClip = -1;

/// Lines through points, or a filled area within them.
struct ScenePath {
    std::vector<OdGePoint2d> points;
    bool filled = false;
    DisplayStyle style;
    OdDbObjectId entity;              ///< the entity of the space that it belongs to
    std::vector<SceneArc> arcs = {};  ///< in the order of their points
    /// The points at which a further line begins, or a further boundary of the area; ascending, never 0. What
    /// an odd count of boundaries surrounds is filled.
    std::vector<std::size_t> breaks = {};
    bool isLetters = false;  ///< the lines are the strokes of a text
    bool wipes = false;      ///< the area hides what lies below, in the colour of the paper
    bool isEndless = false;  ///< a piece of a line without end, which no extent counts
    int clip = kNoClip;      ///< which of the scene's clips it is seen through
};

/// Height of capitals in that of their font.
constexpr double kCapitalShare = 0.72;
/// How far letters reach below the base line, in the height of capitals.
constexpr double kDescenderShare = 1.0 / 3;

/// The font of a text, from its style.
struct SceneFont {
    OdString family;  ///< of a TrueType font, where the style names it
    OdString file;
    OdString bigFile =
        {};  ///< of the shape font that has the letters of East Asian code pages; empty for none
    bool bold = false;
    bool italic = false;
    double oblique = 0;  ///< slant in radians, to the right above 0
};

/// One line of text.
struct SceneText {
    OdString text;
    OdGePoint2d position;    ///< of the alignment point
    double height = 0;       ///< of capitals, drawing units
    double rotation = 0;     ///< radians
    double widthFactor = 1;  ///< below 0 the letters run backwards, each of them mirrored
    int horizontal = 0;      ///< 0 left, 1 centre, 2 right
    int vertical = 0;        ///< 0 base line, 1 bottom, 2 middle, 3 top
    SceneFont font;
    DisplayStyle style;
    OdDbObjectId entity;         ///< the entity of the space that it belongs to
    double fitWidth = 0;         ///< drawing units that the text takes up, whatever its font; 0 as it comes
    std::size_t pathsBelow = 0;  ///< how many of the scene's paths are drawn before it
    int clip = kNoClip;          ///< which of the scene's clips it is seen through
};

/// How far the base line lies below the alignment point, in drawing units, by the text's vertical alignment.
KTSCENE_API double BaseLineDrop(const SceneText& text);
/// About how wide a text is, in drawing units; below 0 if it runs backwards.
KTSCENE_API double TextExtent(const SceneText& text);

/// A picture, laid over what is below it.
struct SceneImage {
    std::shared_ptr<const ScenePicture> picture;  ///< never null in a scene
    OdGePoint2d origin;                           ///< of the whole picture's lower left corner
    OdGePoint2d across, up;                       ///< from there to the lower right and the upper left corner
    int brightness = 50, contrast = 50;           ///< 0 to 100; as in the file at 50
    int fade = 0;                                 ///< 0 to 100: how far it goes over into the paper
    bool isTransparent = false;                   ///< whether what is clear in the file is clear here
    DisplayStyle style;
    OdDbObjectId entity;         ///< the entity of the space that it belongs to
    std::size_t pathsBelow = 0;  ///< how many of the scene's paths are drawn before it
    std::size_t textsBelow = 0;  ///< how many of the scene's texts are drawn before it
    int clip = kNoClip;          ///< which of the scene's clips it is seen through
};

/// The corners of a whole image: lower left, lower right, upper right, upper left.
KTSCENE_API std::array<OdGePoint2d, 4> CornersOf(const SceneImage& image);

/// An outline through which pieces are seen.
struct SceneClip {
    std::vector<OdGePoint2d> outline;  ///< closed by itself
    int within = kNoClip;              ///< the clip that this one is seen through
};

/// A rectangle in drawing units; empty until something is added.
struct KTSCENE_API SceneExtents {
    OdGePoint2d low{1e300, 1e300}, high{-1e300, -1e300};
    bool isEmpty() const { return low.x > high.x; }
    void add(const OdGePoint2d& point);
    /// Whether they have a place in common, be it on their sides.
    bool meets(const SceneExtents& other) const;
    /// Whether all of `other` lies in these; true for empty ones.
    bool holds(const SceneExtents& other) const;
    /// Keeps what lies in `other` too.
    void cut(const SceneExtents& other);
};

struct KTSCENE_API Scene {
    std::vector<ScenePath> paths;
    std::vector<SceneText> texts;
    /// On paper, the texts whose strokes are among the paths: not to be drawn, but found and copied. Each is
    /// as wide as its strokes (SceneText::fitWidth).
    std::vector<SceneText> strokeTexts;
    std::vector<SceneImage> images;
    std::vector<SceneClip> clips;
    bool showsLineWeights = true;  ///< whether lines are drawn with their weights, or all thin
    /// How many entities of which kind (names as in a file) have no look here.
    std::map<std::string, int> notDrawn;
    /// Shape fonts that were asked for and not found, for which another font stands.
    std::set<std::wstring> missingFonts;
    /// Whether the building ended before everything was drawn: at the work limit, or because it was stopped.
    bool isCut = false;
    /// Whether a picture isn't in it that would be there when it is built anew later.
    bool awaitsPictures = false;
    bool isStopped = false;  ///< whether it was stopped; what was drawn until then is whole

    /// The area that everything takes up, text boxes estimated; lines without end don't count.
    SceneExtents extents() const;
    /// The area that a clip and those around it leave.
    SceneExtents clipExtents(int clip) const;
};

/// The visible entities of block `space` of `drawing`.
KTSCENE_API Scene BuildScene(OdDbDatabase& drawing, const OdDbObjectId& space);
KTSCENE_API Scene BuildScene(OdDbDatabase& drawing, const OdDbObjectId& space, const SceneOptions& options);
