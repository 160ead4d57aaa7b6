#include "rules/style_rules.h"

#include "rules/layer_overrides.h"
#include "rules/viewport_view.h"

StyleRules::StyleRules(OdDbDatabase& drawing, SceneUse use, LinePatterns& patterns,
                       const OdDbObjectId& viewport)
    : m_use(use), m_patterns(patterns), m_viewport(viewport), m_patternScale(drawing.getLTSCALE()) {
    OdDbLinetypeTablePtr linetypes;
    if (drawing.getLinetypeTable(linetypes) == kOdOk) {
        m_byLayer = linetypes->getLinetypeByLayerId();
        m_byBlock = linetypes->getLinetypeByBlockId();
    }
    if (const auto window = viewport.open<OdDbViewport>())
        for (const OdDbHandle layer : ViewOf(*window).frozen) m_frozen.insert(layer);
}

const Look& StyleRules::outermost() {
    static const Look look = [] {
        Look usual;
        usual.style.color.setColorIndex(OdCmColor::kForeground);
        usual.style.lineWeight = OdDb::kLnWt025;
        return usual;
    }();
    return look;
}

LayerLook StyleRules::readLayer(const OdDbObjectId& id) const {
    LayerLook look;
    look.id = id;
    look.color.setColorIndex(OdCmColor::kForeground);
    const auto record = id.open<OdDbLayerTableRecord>();
    if (!record) return look;
    look.color = record->color();
    look.linetype = record->linetypeObjectId();
    look.lineWeight = record->lineWeight();
    look.isFrozen = record->isFrozen() || m_frozen.contains(id.handle());
    // What measures and dimensions are defined by is never plotted, whatever its layer says.
    const bool isPlotted =
        record->isPlottable() && odCompareFolded(record->getName().view(), L"Defpoints") != 0;
    look.isOff = record->isOff() || (m_use == SceneUse::kPaper && !isPlotted);
    look.isZero = record->getName() == L"0";
    if (!m_viewport.isNull()) OverrideLayer(look, *record, m_viewport);
    return look;
}

const LayerLook& StyleRules::layerOf(const OdDbEntity& entity, const SurroundingLook& surrounding) {
    const OdDbObjectId id = entity.layerId();
    auto found = m_layers.find(id.handle());
    if (found == m_layers.end()) found = m_layers.emplace(id.handle(), readLayer(id)).first;
    const LayerLook& own = found->second;
    return own.isZero && surrounding.layer != nullptr ? *surrounding.layer : own;
}

void StyleRules::setColor(Look& look, const OdCmColor& color, const Look& byBlock) const {
    if (color.isByBlock())
        look.style.color = byBlock.style.color;
    else if (!color.isByLayer())
        look.style.color = color;
    else
        look.style.color = look.layer->color;
}

void StyleRules::setLinetype(Look& look, const OdDbObjectId& linetype, double scale,
                             const Look& byBlock) const {
    const OdDbObjectId& counts = linetype == m_byLayer ? look.layer->linetype : linetype;
    if (counts == m_byBlock) {
        look.pattern = byBlock.pattern;
        look.patternScale = byBlock.patternScale;
        look.style.dashes = byBlock.style.dashes;
        return;
    }
    const LinePattern& pattern = m_patterns.of(counts);
    look.pattern = pattern.dashes.empty() ? nullptr : &pattern;
    look.patternScale = m_patternScale * scale;
    look.style.dashes = pattern.dashes;
    for (double& dash : look.style.dashes) dash *= look.patternScale;
}

void StyleRules::setLineWeight(Look& look, int weight, const Look& byBlock) const {
    if (weight == OdDb::kLnWtByLayer) weight = look.layer->lineWeight;
    if (weight == OdDb::kLnWtByBlock) weight = byBlock.style.lineWeight;
    look.style.lineWeight = weight < 0 ? OdDb::kLnWt025 : weight;
}

Look StyleRules::lookOf(const OdDbEntity& entity, const SurroundingLook& surrounding) {
    const Look& byBlock = surrounding.byBlock != nullptr ? *surrounding.byBlock : outermost();
    Look look;
    look.layer = &layerOf(entity, surrounding);
    look.style.layer = look.layer->id;
    setColor(look, entity.color(), byBlock);
    setLinetype(look, entity.linetypeId(), entity.linetypeScale(), byBlock);
    setLineWeight(look, entity.lineWeight(), byBlock);
    return look;
}
