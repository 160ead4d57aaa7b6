// What a failed read or write of a DXF file tells.
#pragma once

#include <cstddef>
#include "od_string.h"

/// The reasons why a DXF file is refused or can't be written.
enum class OdDxfErrorCode {
    kNone = 0,
    kCannotOpen,          ///< the file isn't there or can't be read
    kEmpty,               ///< no bytes, or only blanks
    kBinary,              ///< a binary DXF whose mark was changed, as by sending it as a text
    kNotDxf,              ///< doesn't begin like a DXF
    kTruncated,           ///< ends before its end mark
    kBadGroupCode,        ///< a line that should hold a group code doesn't
    kBadNumber,           ///< a value that should be a number isn't
    kBadStructure,        ///< a section, table, block or list doesn't begin or end where it must
    kUnsupportedVersion,  ///< a version older than R12
    kCannotWrite          ///< the file can't be made or replaced
};

/// The reason of a failure, where it lies, and words for it.
struct OdDbDxfError {
    OdDxfErrorCode code = OdDxfErrorCode::kNone;
    int line = 0;          ///< counted from 1; 0 when the failure isn't at a line
    OdString text;         ///< one sentence in English
    int leftOut = 0;       ///< after writing: entities that the version has no form for
    std::size_t byte = 0;  ///< in a binary file, where the group begins, counted from 0; 0 in text files
};
