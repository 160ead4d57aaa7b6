// Reading an ASCII DXF file into a new store.
#pragma once

#include <string_view>
#include "od_dxf_error.h"

struct OdDbStore;

/// Fills `store`, which has its tables and nothing else, from the text of a DXF file. False with `error` set
/// on failure; the store is to be thrown away then.
bool odReadDxf(std::string_view text, OdDbStore& store, OdDbDxfError& error);
