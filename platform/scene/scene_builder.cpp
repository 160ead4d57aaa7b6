#include "scene_builder.h"

#include "block_walk.h"

namespace {

SceneOptions optionsFor(SceneUse use) {
    SceneOptions options;
    options.use = use;
    return options;
}

SpaceTransform inSpace(const PlaneTransform& t) {
    return {{t.xx, t.yx, 0}, {t.xy, t.yy, 0}, {0, 0, 1}, {t.x, t.y, 0}};
}

}  // namespace

SceneBuilder::SceneBuilder(OdDbDatabase& drawing, SceneUse use) : SceneBuilder(drawing, optionsFor(use)) {}
SceneBuilder::SceneBuilder(OdDbDatabase& drawing, const SceneOptions& options)
    : m_work(std::make_unique<SceneWork>(drawing, options)) {}
SceneBuilder::~SceneBuilder() = default;

void SceneBuilder::addBlock(const OdDbObjectId& block, const PlaneTransform& transform,
                            const DisplayStyle* byBlock) {
    StyleRules rules(m_work->drawing(), m_work->options().use, m_work->patterns());
    Look look;
    if (byBlock != nullptr) look.style = *byBlock;
    SceneLevel level;
    level.rules = &rules;
    level.place = inSpace(transform);
    level.surrounding.byBlock = byBlock != nullptr ? &look : nullptr;
    DrawBlock(*m_work, block, level);
}

Scene SceneBuilder::take() { return m_work->take(); }
