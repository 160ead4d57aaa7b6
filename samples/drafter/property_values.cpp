#include "property_values.h"

#include "layer_list.h"

namespace {

/// Keeps a value while all objects agree on it.
template <class T>
class Common {
public:
    void add(const T& value) {
        if (!m_any)
            m_value = value;
        else if (m_value && !(*m_value == value))
            m_value.reset();
        m_any = true;
    }
    const std::optional<T>& value() const { return m_value; }

private:
    std::optional<T> m_value;
    bool m_any = false;
};

/// Calls `action` with the object as the class that has a rotation; false if it has none.
template <class Action>
bool withRotation(OdDbEntity& entity, Action action) {
    if (auto* text = dynamic_cast<OdDbText*>(&entity))
        action(*text);
    else if (auto* paragraph = dynamic_cast<OdDbMText*>(&entity))
        action(*paragraph);
    else if (auto* reference = dynamic_cast<OdDbBlockReference*>(&entity))
        action(*reference);
    else
        return false;
    return true;
}

/// Whether objects have plot styles by name; in a colour-dependent drawing they follow the colour.
bool hasPlotStyles(const OdDbDatabase& drawing) { return drawing.getPSTYLEMODE() == 0; }

PropertyValues readCurrent(OdDbDatabase& drawing) {
    PropertyValues values;
    values.color = drawing.cecolor();
    values.linetype = drawing.celtype();
    values.linetypeScale = drawing.getCELTSCALE();
    values.lineWeight = drawing.celweight();
    if (hasPlotStyles(drawing)) values.plotStyle = drawing.currentPlotStyleName();
    if (const auto layer = drawing.clayer().open<OdDbLayerTableRecord>()) values.layer = layer->getName();
    values.elevation = drawing.getELEVATION();
    values.thickness = drawing.getTHICKNESS();
    values.hasHyperlink = false;
    return values;
}

/// Makes the plot style known to the drawing; the two that stand for another's need no entry.
void needPlotStyle(OdDbDatabase& drawing, const OdString& name) {
    OdDbDictionaryPtr names;
    if (name.iCompare(L"ByLayer") == 0 || name.iCompare(L"ByBlock") == 0) return;
    if (drawing.getPlotStyleNameDictionary(names, OdDb::kForWrite) == kOdOk && !names->has(name))
        names->setAt(name, new OdDbPlaceHolder);
}

void writeCurrent(OdDbDatabase& drawing, const PropertyValues& values) {
    if (values.color) drawing.setCecolor(*values.color);
    if (values.linetype) drawing.setCeltype(*values.linetype);
    if (values.linetypeScale) drawing.setCELTSCALE(*values.linetypeScale);
    if (values.lineWeight) drawing.setCelweight(*values.lineWeight);
    if (values.plotStyle) drawing.setCurrentPlotStyleName(*values.plotStyle);
    if (values.layer) drawing.setClayer(NeedLayer(drawing, *values.layer));
    if (values.elevation) drawing.setELEVATION(*values.elevation);
    if (values.thickness) drawing.setTHICKNESS(*values.thickness);
}

}  // namespace

PropertyValues ReadProperties(OdDbDatabase& drawing, const std::vector<OdDbObjectId>& objects) {
    if (objects.empty()) return readCurrent(drawing);
    Common<OdCmColor> color;
    Common<OdDbObjectId> linetype;
    Common<OdDb::LineWeight> lineWeight;
    Common<OdString> plotStyle, layer, hyperlink;
    Common<double> linetypeScale, elevation, thickness, rotation;
    PropertyValues values;
    for (const OdDbObjectId& id : objects) {
        const auto entity = id.open<OdDbEntity>();
        if (!entity) continue;
        color.add(entity->color());
        linetype.add(entity->linetypeId());
        linetypeScale.add(entity->linetypeScale());
        lineWeight.add(entity->lineWeight());
        plotStyle.add(entity->plotStyleName());
        layer.add(entity->layer());
        hyperlink.add(entity->hyperlink());
        elevation.add(entity->elevation());
        thickness.add(entity->thickness());
        if (withRotation(*entity, [&](auto& turned) { rotation.add(turned.rotation()); }))
            values.hasRotation = true;
    }
    values.color = color.value();
    values.linetype = linetype.value();
    values.linetypeScale = linetypeScale.value();
    values.lineWeight = lineWeight.value();
    if (hasPlotStyles(drawing)) values.plotStyle = plotStyle.value();
    values.layer = layer.value();
    values.hyperlink = hyperlink.value();
    values.elevation = elevation.value();
    values.thickness = thickness.value();
    values.rotation = rotation.value();
    return values;
}

void WriteProperties(OdDbDatabase& drawing, const std::vector<OdDbObjectId>& objects,
                     const PropertyValues& values) {
    if (values.plotStyle) needPlotStyle(drawing, *values.plotStyle);
    if (objects.empty()) {
        writeCurrent(drawing, values);
        return;
    }
    const OdDbObjectId layer = values.layer ? NeedLayer(drawing, *values.layer) : OdDbObjectId();
    for (const OdDbObjectId& id : objects) {
        const auto entity = id.open<OdDbEntity>(OdDb::kForWrite);
        if (!entity) continue;
        if (values.color) entity->setColor(*values.color);
        if (values.linetype) entity->setLinetype(*values.linetype);
        if (values.linetypeScale) entity->setLinetypeScale(*values.linetypeScale);
        if (values.lineWeight) entity->setLineWeight(*values.lineWeight);
        if (values.plotStyle) entity->setPlotStyleName(*values.plotStyle);
        if (values.layer) entity->setLayer(layer);
        if (values.hyperlink) entity->setHyperlink(*values.hyperlink);
        if (values.elevation) entity->setElevation(*values.elevation);
        if (values.thickness) entity->setThickness(*values.thickness);
        if (values.rotation)
            withRotation(*entity, [&](auto& turned) { turned.setRotation(*values.rotation); });
    }
}
