// Reading a DXF file into a new store.
#pragma once

#include <string_view>
#include "od_dxf_error.h"
#include "od_dxf_reading.h"

struct OdDbStore;

/// Fills `store`, which has its tables and nothing else, from the bytes of a DXF file, a text or a binary
/// one. What can be mended is, unless `reading` is strict. False with `error` set on failure; the store is to
/// be thrown away then.
bool odReadDxf(std::string_view bytes, OdDbStore& store, OdDxfReading& reading, OdDbDxfError& error);
