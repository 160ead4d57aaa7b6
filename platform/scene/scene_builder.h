// Turns entities into the pieces of a scene, block references and dimensions into those of their blocks.
//
//     SceneBuilder builder(drawing, SceneUse::kPaper);
//     builder.addBlock(layoutBlock);
//     Scene scene = builder.take();
#pragma once

#include <memory>

#include "scene_options.h"

class SceneWork;

/// A mapping of the plane: scale, turn and move.
struct PlaneTransform {
    double xx = 1, xy = 0, yx = 0, yy = 1, x = 0, y = 0;
};

class KTSCENE_API SceneBuilder {
public:
    explicit SceneBuilder(OdDbDatabase& drawing, SceneUse use = SceneUse::kScreen);
    SceneBuilder(OdDbDatabase& drawing, const SceneOptions& options);
    ~SceneBuilder();
    SceneBuilder(const SceneBuilder&) = delete;
    SceneBuilder& operator=(const SceneBuilder&) = delete;

    /// Adds the entities of a block in place, or where `transform` puts them; what is by block in them looks
    /// like `byBlock`, null for the usual look. A layout's block brings what its viewports show.
    void addBlock(const OdDbObjectId& block, const PlaneTransform& transform = {},
                  const DisplayStyle* byBlock = nullptr);
    /// The scene so far; the builder is empty then.
    Scene take();

private:
    std::unique_ptr<SceneWork> m_work;
};
