// Binary DXF files, turned into the text form and back. A binary file has the same groups in the same order;
// only codes and values are written as bytes. The reader and the writer know the text form alone.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include "od_dxf_error.h"

/// Whether the bytes begin as those of a binary DXF file do.
bool odIsBinaryDxf(std::string_view bytes);

/// Appends the text form of a binary file to `text`, two lines for each group, reals with all their digits. A
/// file that is cut off gives the groups before the cut and false, with `error` set.
bool odTextOfBinaryDxf(std::string_view bytes, std::string& text, OdDbDxfError& error);

/// Where the groups of a binary file begin that stand at given lines of its text form.
class OdDxfLinePlaces {
public:
    explicit OdDxfLinePlaces(std::string_view bytes);
    ~OdDxfLinePlaces();
    OdDxfLinePlaces(const OdDxfLinePlaces&) = delete;
    OdDxfLinePlaces& operator=(const OdDxfLinePlaces&) = delete;
    /// The byte, counted from 0. Each line asked for must not be before the one before.
    std::size_t byteOf(int line);

private:
    struct Walk;
    std::unique_ptr<Walk> m_walk;
};

/// The binary form of a text that was written here. Codes take one byte up to R12 (`wideCodes` false), two
/// from R13 on. A whole number that has no room in the bytes of its code is written as the nearest that has;
/// hexadecimal digits become bytes.
std::string odBinaryOfDxfText(std::string_view text, bool wideCodes);
