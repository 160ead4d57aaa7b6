// Writing a store as the text of an ASCII DXF file.
#pragma once

#include <string>
#include "od_db_types.h"

struct OdDbStore;

/// The whole text, in the form and encoding of `version`. `leftOut` becomes the count of the entities that
/// the version has no form for.
std::string odWriteDxf(OdDbStore& store, OdDb::DwgVersion version, int& leftOut);

/// The hexadecimal digits of a handle, as files have them.
std::string odHandleText(OdDbHandle handle);
