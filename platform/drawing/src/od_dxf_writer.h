// Writing a store as a DXF file.
#pragma once

#include <string>
#include "od_db_types.h"
#include "od_dxf_form.h"

struct OdDbStore;

/// The whole file. `leftOut` becomes the count of the entities that the version has no form for.
std::string odWriteDxf(OdDbStore& store, const OdDxfForm& form, int& leftOut);

/// The hexadecimal digits of a handle, as files have them.
std::string odHandleText(OdDbHandle handle);
