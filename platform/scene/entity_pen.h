// EntityPen draws the parts of one entity: it knows where the entity's coordinates lie, how it looks, and to
// which entity of the space it belongs. Internal to the module.
#pragma once

#include <optional>

#include "geometry/space_transform.h"
#include "rules/style_rules.h"
#include "scene_work.h"

/// One block that is being drawn: where, by which rules, and within what.
struct SceneLevel {
    StyleRules* rules = nullptr;
    SpaceTransform place;
    SurroundingLook surrounding;
    OdDbObjectId entity;  ///< of the space; null at the outermost level
    int depth = 0;
    bool marksAreDots = false;  ///< within a dimension, whose definition points are dots whatever is set
};

/// A line of text in the coordinates of an entity.
struct PlacedText {
    OdString text;
    OdGePoint3d position;
    SpaceVector along{1, 0, 0}, up{0, 1, 0};  ///< of length 1
    double height = 0;
    double widthFactor = 1;
    int horizontal = 0, vertical = 0;  ///< as in SceneText
    double fitWidth = 0;
    SceneFont font;
};

class EntityPen {
public:
    EntityPen(SceneWork& work, const SceneLevel& level, Look look)
        : m_work(work), m_level(level), m_look(std::move(look)) {}

    SceneWork& work() const { return m_work; }
    const SceneLevel& level() const { return m_level; }
    StyleRules& rules() const { return *m_level.rules; }
    Look& look() { return m_look; }
    const Look& look() const { return m_look; }
    /// What by block means for the entity's own parts.
    const Look& byBlock() const;
    OdGePoint2d onPlane(const OdGePoint3d& point) const { return Flat(m_level.place.apply(point)); }

    /// A pen for coordinates that `inner` maps to those of this one.
    EntityPen within(const SpaceTransform& inner) const;
    /// A pen for coordinates in the plane of the entity's normal.
    EntityPen inPlaneOf(const OdDbEntity& entity) const;

    /// A pen in whose blocks points are dots.
    EntityPen withDots() const {
        EntityPen pen = *this;
        pen.m_level.marksAreDots = true;
        return pen;
    }

    /// How far the points of a curve may leave it, in the pen's coordinates; 0 for the usual steps.
    double tolerance() const;

    /// A line through points.
    void stroke(const std::vector<OdGePoint3d>& points) const;
    void stroke(const OdGePoint3d& from, const OdGePoint3d& to) const { stroke(std::vector{from, to}); }
    /// A line through points of the plane z = 0, with the arcs among them.
    void stroke(const std::vector<OdGePoint2d>& points, std::vector<SceneArc> arcs = {}, double z = 0) const;
    /// Several lines at once; each begins at one of `breaks`, the first at 0.
    void strokes(const std::vector<OdGePoint3d>& points, std::vector<std::size_t> breaks) const;
    /// An arc of an ellipse: center + axisX cos t + axisY sin t.
    void arc(const OdGePoint3d& center, const SpaceVector& axisX, const SpaceVector& axisY, double start,
             double sweep) const;
    /// An area within boundaries, each of which begins at one of `breaks`, the first at 0.
    void fill(const std::vector<OdGePoint3d>& points, std::vector<std::size_t> breaks = {}) const;
    /// An area that hides what is below.
    void wipe(const std::vector<OdGePoint3d>& points) const;
    void endless(const OdGePoint3d& base, const SpaceVector& direction, bool bothWays) const;
    void text(const PlacedText& text) const;
    /// A picture; `image` says which and how it looks. Its corner and sides are given here.
    void image(SceneImage image, const OdGePoint3d& origin, const SpaceVector& across,
               const SpaceVector& up) const;

private:
    bool writeStrokes(const PlacedText& text) const;
    std::optional<SceneText> lettersOf(const PlacedText& text) const;
    void writeLetters(const PlacedText& text) const;
    void noteStrokes(PlacedText text, double width) const;
    ScenePath newPath() const;
    std::vector<OdGePoint2d> flattened(const std::vector<OdGePoint3d>& points) const;
    void addStroke(ScenePath path) const;

    SceneWork& m_work;
    SceneLevel m_level;
    Look m_look;
};
