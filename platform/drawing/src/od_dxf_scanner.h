// The lowest layer of reading a DXF file: lines in pairs, a group code and its value.
#pragma once

#include <string_view>
#include "od_dxf_error.h"
#include "od_group_list.h"

/// Walks the pairs of a DXF text. After a false answer, `error()` says why if it wasn't the plain end.
class OdDxfScanner {
public:
    explicit OdDxfScanner(std::string_view text) : m_rest(text) {}

    /// Goes on to the next pair; comments (999) are passed over. False at the end of the text and on an
    /// error.
    bool next();
    int code() const { return m_code; }
    /// The value's line without its end, blanks and all.
    std::string_view value() const { return m_value; }
    /// The value without blanks around it.
    std::string_view word() const;
    /// Line of the value, counted from 1.
    int line() const { return m_line; }
    /// Whether this pair is a group 0 of this type.
    bool isRecord(std::string_view type) const { return m_code == 0 && word() == type; }

    /// The value as a number; false (with the error set) if it isn't one.
    bool real(double& value);
    bool integer(std::int64_t& value);
    bool handle(OdDbHandle& value);

    /// Notes a failure at the present line. Always false.
    bool fail(OdDxfErrorCode code, const wchar_t* text);
    const OdDbDxfError& error() const { return m_error; }
    bool failed() const { return m_error.code != OdDxfErrorCode::kNone; }

private:
    bool takeLine(std::string_view& line);
    std::string_view m_rest;
    std::string_view m_value;
    int m_code = 0;
    int m_line = 0;
    OdDbDxfError m_error;
};

/// A handle's value of its hexadecimal digits; 0 for anything else and for numbers too large to be followed.
OdDbHandle odHandleFromText(std::string_view digits);

/// What a first look at a DXF text tells.
struct OdDxfOverview {
    OdDb::DwgVersion version = OdDb::kDHL_1009;
    std::string codePageName;
    OdDbHandle firstFreeHandle = 1;
    std::size_t records = 0;
};

/// Looks through the whole text: whether it is a complete DXF file, its version and code page, and which
/// handles are taken. False with `error` set if it isn't.
bool odOverviewDxf(std::string_view text, OdDxfOverview& overview, OdDbDxfError& error);
