// An entity as the class that its kind has; null where a program made it of another. Internal to the module.
#pragma once

#include <od_db.h>

template <class Class>
const Class* As(const OdDbEntity& entity) {
    return dynamic_cast<const Class*>(&entity);
}
