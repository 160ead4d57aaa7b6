// The object that an entity holds at the end of its groups. Internal to the module.
#pragma once

#include <od_db.h>

/// The groups of the embedded object among those of an entity; empty if there is none.
OdGroupList EmbeddedObject(const OdGroupList& groups);
