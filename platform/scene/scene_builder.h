// Turns entities into the pieces of a scene, block references and dimensions into those of their blocks.
#pragma once

#include "scene.h"

struct SceneCorner;

/// A mapping of the plane: scale, turn and move.
struct KTSCENE_API PlaneTransform {
    double xx = 1, xy = 0, yx = 0, yy = 1, x = 0, y = 0;
    OdGePoint2d apply(double px, double py) const { return {xx * px + xy * py + x, yx * px + yy * py + y}; }
    OdGePoint2d apply(const OdGePoint3d& p) const { return apply(p.x, p.y); }
    /// A vector without the move.
    OdGePoint2d turned(const OdGePoint2d& v) const { return {xx * v.x + xy * v.y, yx * v.x + yy * v.y}; }
    /// This mapping after `inner`.
    PlaneTransform after(const PlaneTransform& inner) const;
    /// How much it enlarges, the mean of both directions.
    double scale() const;
    /// The angle that the x axis turns to, radians.
    double rotation() const;
};

/// What a scene is for.
enum class SceneUse {
    kScreen,  ///< what the user sees
    kPaper    ///< the same without layers that aren't plotted
};

class KTSCENE_API SceneBuilder {
public:
    explicit SceneBuilder(OdDbDatabase& drawing, SceneUse use = SceneUse::kScreen);

    /// Adds the entities of a block in place, or where `transform` puts them; what is by block in them looks
    /// like `byBlock`, null for the usual look.
    void addBlock(const OdDbObjectId& block, const PlaneTransform& transform = {},
                  const DisplayStyle* byBlock = nullptr);
    Scene take() { return std::move(m_scene); }

private:
    /// What "by block" and the layer 0 of a block stand for inside one block reference.
    struct Context {
        PlaneTransform transform;
        const DisplayStyle* byBlock = nullptr;
        OdDbObjectId layer;
        OdDbObjectId entity;  ///< of the space; null at the outermost level
        int depth = 0;
    };

    void addEntities(const OdDbObjectId& block, const Context& context);
    void addEntity(OdDbEntity& entity, const Context& context);
    void addCurve(OdDbEntity& entity, const Context& context, const DisplayStyle& style);
    void addReference(OdDbBlockReference& reference, const Context& context, const DisplayStyle& style);
    void addText(const OdDbText& text, const Context& context, const DisplayStyle& style);
    void addMText(const OdDbMText& text, const Context& context, const DisplayStyle& style);
    void addPath(std::vector<OdGePoint2d> points, const Context& context, const DisplayStyle& style,
                 bool filled = false, std::vector<SceneArc> arcs = {});
    /// Adds an arc of which the ends of the half axes are `major` and `minor`, from the centre.
    void addArc(const OdGePoint3d& center, const OdGePoint2d& major, const OdGePoint2d& minor, double start,
                double sweep, const Context& context, const DisplayStyle& style);
    void addCorners(const std::vector<SceneCorner>& corners, bool closed, const Context& context,
                    const DisplayStyle& style);
    DisplayStyle styleOf(const OdDbEntity& entity, const Context& context) const;
    std::vector<double> dashesOf(const OdDbObjectId& linetype, double scale) const;
    bool isLayerShown(const OdDbObjectId& layer) const;

    OdDbDatabase& m_drawing;
    SceneUse m_use;
    double m_linetypeScale;
    Scene m_scene;
};
