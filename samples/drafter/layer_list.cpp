#include "layer_list.h"

#include <algorithm>
#include <string>

#include <od_db_layer_use.h>

namespace {

constexpr std::size_t kLongestName = 255;
constexpr const wchar_t* kForbidden = L"<>/\\\":;?*|,=`";

std::wstring folded(const OdString& text) {
    std::wstring result(text.view());
    for (wchar_t& c : result) c = odFoldCase(c);
    return result;
}

OdDbLayerTablePtr layersOf(OdDbDatabase& drawing) {
    OdDbLayerTablePtr table;
    drawing.getLayerTable(table);
    return table;
}

bool isGoodName(const OdString& name) {
    const std::wstring_view text = name.view();
    return !text.empty() && text.size() <= kLongestName &&
           text.find_first_of(kForbidden) == std::wstring_view::npos &&
           std::none_of(text.begin(), text.end(), [](wchar_t c) { return c < L' '; });
}

/// The linetype of `drawing` with the name of another drawing's, which is copied if it is missing.
OdDbObjectId needLinetype(OdDbDatabase& drawing, const OdDbObjectId& other) {
    const auto source = other.open<OdDbLinetypeTableRecord>();
    OdDbLinetypeTablePtr table;
    drawing.getLinetypeTable(table);
    OdDbObjectId id = source ? table->getAt(source->getName()) : table->getAt(L"Continuous");
    if (!id.isNull()) return id;
    OdDbLinetypeTableRecordPtr copy(new OdDbLinetypeTableRecord);
    copy->setName(source->getName());
    copy->setComments(source->comments());
    copy->setDashes(source->dashes());
    table->add(OdDbSymbolTableRecordPtr(copy.get()), &id);
    return id;
}

LayerNeed needOf(const OdDbLayerUse& use) {
    if (use.isStandard) return LayerNeed::kIsStandard;
    if (use.isDependent) return LayerNeed::kIsDependent;
    if (use.isCurrent) return LayerNeed::kIsCurrent;
    if (use.entities > 0) return LayerNeed::kHasObjects;
    if (use.blockEntities > 0) return LayerNeed::kIsInBlock;
    return use.others > 0 ? LayerNeed::kIsNamed : LayerNeed::kNone;
}

}  // namespace

std::vector<LayerRow> ListLayers(OdDbDatabase& drawing, const OdString& filter) {
    std::vector<LayerRow> rows;
    const std::wstring wanted = folded(filter);
    for (auto walk = layersOf(drawing)->newIterator(); !walk->done(); walk->step()) {
        OdDbSymbolTableRecordPtr record;
        walk->getRecord(record);
        const auto& layer = static_cast<const OdDbLayerTableRecord&>(*record);
        if (folded(layer.getName()).find(wanted) == std::wstring::npos) continue;
        rows.push_back({layer.objectId(), layer.getName(), layer.color(), layer.linetypeObjectId(),
                        layer.lineWeight(), !layer.isOff(), layer.objectId() == drawing.clayer()});
    }
    std::sort(rows.begin(), rows.end(), [](const LayerRow& a, const LayerRow& b) {
        return odCompareFolded(a.name.view(), b.name.view()) < 0;
    });
    return rows;
}

LayerNameProblem CheckLayerName(OdDbDatabase& drawing, const OdString& name, const OdDbObjectId& layer) {
    const auto record = layer.open<OdDbLayerTableRecord>();
    if (record && (record->isDependent() || record->getName().view() == L"0"))
        return LayerNameProblem::kFixed;
    if (!isGoodName(name)) return LayerNameProblem::kBad;
    const OdDbObjectId taken = layersOf(drawing)->getAt(name);
    return taken.isNull() || taken == layer ? LayerNameProblem::kNone : LayerNameProblem::kTaken;
}

OdString TrimmedLayerName(const OdString& name) {
    std::wstring_view text = name.view();
    while (!text.empty() && text.front() == L' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == L' ') text.remove_suffix(1);
    return OdString(std::wstring(text).c_str());
}

OdString FreeLayerName(OdDbDatabase& drawing, const OdString& base) {
    const OdDbLayerTablePtr layers = layersOf(drawing);
    for (int number = 1;; ++number) {
        const OdString name = base + std::to_wstring(number).c_str();
        if (!layers->has(name)) return name;
    }
}

OdDbObjectId NeedLayer(OdDbDatabase& drawing, const OdString& name) {
    const OdDbLayerTablePtr layers = layersOf(drawing);
    OdDbObjectId id = layers->getAt(name);
    if (!id.isNull()) return id;
    const OdDbSymbolTableRecordPtr layer = layers->newRecord();
    layer->setName(name);
    layers->add(layer, &id);
    return id;
}

void ChangeLayers(const std::vector<OdDbObjectId>& layers, const LayerChange& change) {
    for (const OdDbObjectId& id : layers) {
        const auto layer = id.open<OdDbLayerTableRecord>(OdDb::kForWrite);
        if (!layer) continue;
        if (change.color) layer->setColor(*change.color);
        if (change.isOn) layer->setIsOff(!*change.isOn);
        if (change.linetype) layer->setLinetypeObjectId(*change.linetype);
        if (change.lineWeight) layer->setLineWeight(*change.lineWeight);
    }
}

int TakeLayers(OdDbDatabase& drawing, OdDbDatabase& from) {
    const std::vector<LayerRow> rows = ListLayers(from);
    for (const LayerRow& row : rows) {
        LayerChange change;
        change.isOn = row.isOn;
        change.color = row.color;
        change.lineWeight = row.lineWeight;
        change.linetype = needLinetype(drawing, row.linetype);
        ChangeLayers({NeedLayer(drawing, row.name)}, change);
    }
    return static_cast<int>(rows.size());
}

LayerRefusal DeleteLayers(OdDbDatabase& drawing, const std::vector<OdDbObjectId>& layers) {
    const OdDbLayerUses uses(drawing);
    for (const OdDbObjectId& id : layers) {
        const OdDbLayerUse use = uses.of(id);
        const LayerNeed need = needOf(use);
        const auto layer = id.open<OdDbLayerTableRecord>();
        if (layer && need != LayerNeed::kNone)
            return {need, layer->getName(), need == LayerNeed::kIsInBlock ? use.blockEntities : use.entities,
                    use.block};
    }
    for (const OdDbObjectId& id : layers)
        if (const auto layer = id.open<OdDbLayerTableRecord>(OdDb::kForWrite)) layer->erase();
    return {};
}
