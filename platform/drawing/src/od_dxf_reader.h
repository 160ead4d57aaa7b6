// Reading a DXF file into a new store.
#pragma once

#include <string_view>
#include "od_dxf_error.h"

struct OdDbStore;

/// Fills `store`, which has its tables and nothing else, from the bytes of a DXF file, a text or a binary
/// one. False with `error` set on failure; the store is to be thrown away then.
bool odReadDxf(std::string_view bytes, OdDbStore& store, OdDbDxfError& error);
