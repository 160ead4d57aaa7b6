// The forms in which a drawing can be written.
#pragma once

#include "od_db_types.h"

/// Version, encoding and precision of a DXF file.
struct OdDxfForm {
    /// kDHL_Unknown for the version that the drawing was read from.
    OdDb::DwgVersion version = OdDb::kDHL_Unknown;
    /// A binary file: reals whole and in their own eight bytes, about a fifth smaller.
    bool binary = false;
    /// Decimals of the reals of a text file, 0 to 16 (others count as the nearer of the two). With 16 every
    /// real is written with all the digits that tell it from its neighbours. Binary files don't know it.
    int precision = 16;
};
