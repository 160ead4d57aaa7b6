#include <ktui/pickers/current_layer.h>

#include <od_db_database.h>
#include <od_db_layer_table.h>
#include <od_host_services.h>

namespace {

/// The current layer of the working drawing; null if there is none.
OdDbObjectId CurrentLayerId() {
    OdDbHostAppServices* services = oddbHostApplicationServices();
    OdDbDatabase* drawing = services ? services->workingDatabase() : nullptr;
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
