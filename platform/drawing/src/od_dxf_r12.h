// What older versions have instead of newer entities.
#pragma once

#include "od_db_entity.h"

/// The entities that stand for `entity` in `version`, in no drawing, with colour and the other common
/// properties but layer and linetype taken over, the first of them with the extended data; none if there is
/// no such form.
std::vector<OdDbEntityPtr> odOlderForm(const OdDbEntity& entity, OdDb::DwgVersion version);
