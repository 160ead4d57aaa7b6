// By which colour, dashes and weight an entity is drawn, and whether: layers, blocks, and what a viewport
// changes of layers. Internal to the module.
#pragma once

#include <set>
#include <unordered_map>

#include "rules/line_pattern.h"
#include "scene_options.h"

/// A layer as it is drawn in one view.
struct LayerLook {
    OdDbObjectId id;
    OdCmColor color;
    OdDbObjectId linetype;
    int lineWeight = OdDb::kLnWtByLwDefault;
    bool isFrozen = false;  ///< also hides the whole of a block reference on it
    bool isOff = false;     ///< or, on paper, not plotted
    bool isZero = false;    ///< the layer 0, which inside of blocks stands for that of the reference
};

/// How an entity is drawn.
struct Look {
    DisplayStyle style;
    const LinePattern* pattern = nullptr;  ///< null for a continuous line
    double patternScale = 1;
    const LayerLook* layer = nullptr;  ///< the one that counts; null where only what is by block is meant
};

/// What surrounds an entity: the block reference that it is drawn in, if any.
struct SurroundingLook {
    const Look* byBlock = nullptr;  ///< null at the outermost level
    const LayerLook* layer = nullptr;
};

class StyleRules {
public:
    /// The rules of a view; in one of the viewport `viewport` with what it changes.
    StyleRules(OdDbDatabase& drawing, SceneUse use, LinePatterns& patterns,
               const OdDbObjectId& viewport = {});

    Look lookOf(const OdDbEntity& entity, const SurroundingLook& surrounding);
    /// The layer that counts for an entity; a usual one where the drawing lacks it.
    const LayerLook& layerOf(const OdDbEntity& entity, const SurroundingLook& surrounding);
    /// The look of what is by block where there is no block.
    static const Look& outermost();
    /// Factor on all dashes beside that of the entity.
    void setPatternScale(double scale) { m_patternScale = scale; }

    /// A part's own colour, linetype and weight within the look of the whole, which lookOf() gave.
    void setColor(Look& look, const OdCmColor& color, const Look& byBlock) const;
    void setLinetype(Look& look, const OdDbObjectId& linetype, double scale, const Look& byBlock) const;
    void setLineWeight(Look& look, int weight, const Look& byBlock) const;

private:
    LayerLook readLayer(const OdDbObjectId& id) const;

    SceneUse m_use;
    LinePatterns& m_patterns;
    OdDbObjectId m_viewport;
    std::set<OdDbHandle> m_frozen;
    double m_patternScale;
    OdDbObjectId m_byLayer, m_byBlock;
    std::unordered_map<OdDbHandle, LayerLook> m_layers;
};
