// Writing a store as a DXF file.
#pragma once

#include <string>
#include <vector>
#include "od_db_types.h"
#include "od_dxf_form.h"
#include "od_dxf_loss.h"

struct OdDbStore;

/// The whole file. `leftOut` becomes the count of the entities that the version has no form for.
std::string odWriteDxf(OdDbStore& store, const OdDxfForm& form, int& leftOut);

/// What writing in this version would leave out or replace.
std::vector<OdDxfLoss> odDxfLosses(OdDbStore& store, OdDb::DwgVersion version);

/// The oldest version that holds all that a store has; the newest where none does.
OdDb::DwgVersion odVersionThatHolds(OdDbStore& store);

/// The hexadecimal digits of a handle, as files have them.
std::string odHandleText(OdDbHandle handle);
