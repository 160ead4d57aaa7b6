#include "block_list.h"

#include <algorithm>

#include "arrowhead_blocks.h"

std::vector<BlockRow> ListBlocks(OdDbDatabase& drawing) {
    std::vector<BlockRow> rows;
    OdDbBlockTablePtr blocks;
    drawing.getBlockTable(blocks);
    for (const OdString& name : ChoosableBlocks(drawing))
        if (ArrowheadOfBlock(name) < 0 && CalloutOfBlock(name) < 0)
            rows.push_back({blocks->getAt(name), name});
    std::sort(rows.begin(), rows.end(),
              [](const BlockRow& one, const BlockRow& other) { return one.name.iCompare(other.name) < 0; });
    return rows;
}

OdDbObjectId InsertBlock(OdDbDatabase& drawing, const OdDbObjectId& block, const OdGePoint2d& place) {
    if (block.database() != &drawing || !block.open<OdDbBlockTableRecord>()) return {};
    const auto space = drawing.currentSpaceId().open<OdDbBlockTableRecord>(OdDb::kForWrite);
    const OdSmartPtr<OdDbBlockReference> reference(new OdDbBlockReference);
    reference->setDatabaseDefaults(&drawing);
    OdDbObjectId id;
    if (space->appendOdDbEntity(OdDbEntityPtr(reference.get()), &id) != kOdOk) return {};
    reference->setBlockTableRecord(block);
    reference->setPosition({place.x, place.y, drawing.getELEVATION()});
    return id;
}
