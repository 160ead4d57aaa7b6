// What is shared while a scene is built: the scene so far, the options, and the measure of work. Internal to
// the module.
#pragma once

#include <set>
#include <vector>

#include <od_code_pages.h>

#include "pictures/picture_files.h"
#include "rules/line_pattern.h"
#include "scene_options.h"
#include "shapes/shape_files.h"
#include "shapes/stroke_fonts.h"

class SceneWork {
public:
    SceneWork(OdDbDatabase& drawing, const SceneOptions& options);

    OdDbDatabase& drawing() const { return m_drawing; }
    const SceneOptions& options() const { return m_options; }
    LinePatterns& patterns() { return m_patterns; }
    ShapeFiles& shapes() { return m_shapes; }
    StrokeFonts& strokes() { return m_strokes; }
    PictureFiles& pictures() { return m_pictures; }
    Scene& scene() { return m_scene; }
    /// The clip of what is added from now on.
    int clip() const { return m_clip; }
    void setClip(int clip) { m_clip = clip; }
    /// Adds a clip within the present one; answers which it is.
    int addClip(std::vector<OdGePoint2d> outline);

    /// Does some work; false when the limit is reached or building was stopped, and the scene says so then.
    bool spend(std::size_t amount);
    /// Notes how many entities of the outermost block are drawn.
    void noteDrawn(std::size_t count, std::size_t ofAll);
    bool isOver() const { return m_scene.isCut; }

    void add(ScenePath path);
    void add(SceneText text);
    /// Notes a text whose strokes were added.
    void addStrokeText(SceneText text);
    void add(SceneImage image);
    /// A line without end: from `base` along `direction`, and backwards too for `bothWays`.
    void addEndless(ScenePath path, const OdGePoint2d& base, const OdGePoint2d& direction, bool bothWays);
    void noteNotDrawn(const char* kind) { ++m_scene.notDrawn[kind]; }

    /// Width of a text whose capitals are 1 high.
    double textWidth(const SceneFont& font, std::wstring_view text);
    /// Size of point marks in drawing units that a setting asks for: 0 and below are shares of the view.
    double markSize(double setting) const;

    /// Begins to draw a block; false if it is being drawn already, which would have no end.
    bool enter(const OdDbObjectId& block) { return m_open.insert(block.handle()).second; }
    void leave(const OdDbObjectId& block) { m_open.erase(block.handle()); }

    /// Lines without end are as long as the rest of the scene asks for.
    Scene take();

private:
    bool isStopped();
    void showPercent() const;

    struct Endless {
        std::size_t path;
        OdGePoint2d base, direction;
        bool bothWays;
    };

    OdDbDatabase& m_drawing;
    SceneOptions m_options;
    LinePatterns m_patterns;
    ShapeFiles m_shapes;
    StrokeFonts m_strokes{m_shapes, m_options.shapeFontInPlace, oddbCodePage(m_drawing)};
    PictureFiles m_pictures;
    Scene m_scene;
    std::vector<Endless> m_endless;
    std::set<OdDbHandle> m_open;
    std::size_t m_spent = 0;
    int m_percentDrawn = 0;  ///< of the entities of the outermost block
    int m_clip = kNoClip;
};
