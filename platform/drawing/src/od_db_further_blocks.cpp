#include "od_db_further_blocks.h"

#include <charconv>

#include "od_db_store.h"
#include "od_group_cursor.h"

OdDbObjectId OdDbTable::blockTableRecord() const {
    const OdString name = m_groups.text(2);
    const OdDbSymbolTableRecord* record =
        store() && !name.isEmpty() ? store()->record(kBlockTable, name) : nullptr;
    return record ? record->objectId() : OdDbObjectId();
}

std::map<OdDbHandle, OdDbHandle> OdDbSortentsTable::places() const {
    constexpr int kEntity = 331, kPlace = 5, kHexadecimal = 16;
    std::map<OdDbHandle, OdDbHandle> all;
    OdDbHandle entity = 0;
    OdGroupCursor cursor(m_groups);
    OdGroup group;
    while (cursor.next(group)) {
        if (group.code == kEntity) entity = group.handle();
        if (group.code != kPlace || entity == 0) continue;
        OdDbHandle place = 0;
        std::from_chars(group.text.data(), group.text.data() + group.text.size(), place, kHexadecimal);
        all[entity] = place;
        entity = 0;
    }
    return all;
}
