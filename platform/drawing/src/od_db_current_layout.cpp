#include "od_db_current_layout.h"

#include "od_db_change_notes.h"

OdResult oddbSetCurrentLayout(const OdDbObjectId& id) {
    const auto layout = id.open<OdDbLayout>();
    const auto block = layout ? layout->getBlockTableRecordId().open<OdDbBlockTableRecord>()
                              : OdSmartPtr<OdDbBlockTableRecord>();
    if (!block) return kOdInvalidInput;
    OdDbStore& store = OdDbStore::of(*id.database());
    store.endSharedReading();
    const bool isModel = block->isModelSpace();
    store.setTileMode(isModel ? 1 : 0);
    const auto shown = id.database()->paperSpaceId().open<OdDbBlockTableRecord>();
    if (isModel || !shown || shown.get() == block.get()) return kOdOk;
    // The numbered name goes to the sheet that was shown before.
    std::swap(store.nameOf(*shown), store.nameOf(*block));
    store.refreshNames();
    return kOdOk;
}
