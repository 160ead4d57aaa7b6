// What older versions have instead of newer entities, and what R12 knows by name.
#pragma once

#include <string_view>
#include "od_db_entity.h"

/// Whether R12 has a header variable of this name.
bool odIsR12Variable(std::string_view name);

/// Whether `version` has entities of this type. Types that the runtime doesn't know count as R13 and newer.
bool odVersionHasEntity(OdDb::DwgVersion version, std::string_view type);

/// The entities that stand for `entity` in `version`, in no drawing, with the layer, linetype, colour and the
/// other common properties taken over; none if there is no such form.
std::vector<OdDbEntityPtr> odOlderForm(const OdDbEntity& entity, OdDb::DwgVersion version);
