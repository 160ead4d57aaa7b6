#include <ktui/pickers/current_layer.h>

#include <od_db_layer_table.h>
#include <ktui/pickers/working_drawing.h>

namespace {

/// The current layer of `drawing`, null for the working drawing; null if there is none.
OdDbObjectId CurrentLayerId(const OdDbDatabase* drawing = nullptr) {
    if (!drawing) drawing = WorkingDrawing();
    return drawing ? drawing->clayer() : OdDbObjectId();
}

}  // namespace

int CurrentLayerColorIndex() {
    const OdDbLayerTableRecordPtr layer = CurrentLayerId().open<OdDbLayerTableRecord>();
    return layer ? layer->colorIndex() : -1;
}

bool CurrentLayerColor(OdCmColor& color) {
    const OdDbObjectId id = CurrentLayerId();
    if (id.isNull()) return false;
    if (const OdDbLayerTableRecordPtr layer = id.open<OdDbLayerTableRecord>()) color = layer->color();
    return true;
}

OdDb::LineWeight CurrentLayerLineWeight(const OdDbDatabase* drawing) {
    const OdDbLayerTableRecordPtr layer = CurrentLayerId(drawing).open<OdDbLayerTableRecord>();
    return layer ? layer->lineWeight() : OdDb::kLnWt000;
}
