#include "od_db_store.h"
#include "od_dxf_markers.h"

OdDbObjectId OdDbBlockTableRecord::getLayoutId() const {
    return store() ? store()->id(m_groups.handle(340)) : OdDbObjectId();
}

bool OdDbBlockTableRecord::isLayout() const { return getLayoutId().isValid(); }

bool OdDbBlockTableRecord::isModelSpace() const { return odIsModelSpaceName(getName()); }

bool OdDbBlockTableRecord::isAnonymous() const {
    return getName().getAt(0) == L'*' && !isModelSpace() &&
           odFoldedName(getName()).rfind(L"*PAPER_SPACE", 0) != 0;
}

bool OdDbBlockTableRecord::isFromExternalReference() const { return (m_begin.integer(70) & 4) != 0; }

OdGePoint3d OdDbBlockTableRecord::origin() const { return m_begin.point(10); }

void OdDbBlockTableRecord::setOrigin(const OdGePoint3d& origin) {
    editGroups();
    m_begin.setPoint(10, origin);
}

OdString OdDbBlockTableRecord::pathName() const { return m_begin.text(1); }

OdString OdDbBlockTableRecord::comments() const { return m_begin.text(4); }

OdResult OdDbBlockTableRecord::appendOdDbEntity(const OdDbEntityPtr& entity, OdDbObjectId* id) {
    if (!store()) return kOdNoDatabase;
    if (!entity || entity->database()) return kOdInvalidInput;
    store()->adoptEntity(entity, handle());
    m_entities.push_back(entity.get());
    database()->setModified(true);
    if (id) *id = entity->objectId();
    return kOdOk;
}

int OdDbBlockTableRecord::count() const {
    int count = 0;
    for (const OdDbEntity* entity : m_entities) count += entity->isErased() ? 0 : 1;
    return count;
}
