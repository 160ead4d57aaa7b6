// The lowest layer of reading a DXF file: lines in pairs, a group code and its value.
#pragma once

#include <string_view>
#include <utility>
#include <vector>
#include "od_dxf_error.h"
#include "od_dxf_reading.h"
#include "od_group_list.h"

/// Walks the pairs of a DXF text. After a false answer, `error()` says why if it wasn't the plain end.
class OdDxfScanner {
public:
    /// Lines end with LF or CR LF, or all of them with CR alone. With `reading` (which outlives the scanner)
    /// and unless it is strict, what is wrong is mended and noted there; otherwise it is an error.
    /// `keepsComments` has takeComments() answer.
    explicit OdDxfScanner(std::string_view text, OdDxfReading* reading = nullptr, bool keepsComments = false);

    /// Goes on to the next pair; comments (999) are passed over, and kept for takeComments(). False at the
    /// end of the text and on an error. Where things are mended, an end mark stands behind the last pair if
    /// the text has none.
    bool next();
    /// The comments that were passed over since they were taken last.
    std::vector<std::string_view> takeComments() { return std::exchange(m_comments, {}); }
    int code() const { return m_code; }
    /// The value's line without its end, blanks and all.
    std::string_view value() const { return m_value; }
    /// The value without blanks around it.
    std::string_view word() const;
    /// Line of the value, counted from 1.
    int line() const { return m_line; }
    /// Whether this pair is a group 0 of this type.
    bool isRecord(std::string_view type) const { return m_code == 0 && word() == type; }

    /// The value as a number. What is none becomes 0, and a real that should be whole the nearest; where
    /// nothing is mended, the answer is false with the error set.
    bool real(double& value);
    bool integer(std::int64_t& value);
    bool handle(OdDbHandle& value);

    /// Notes a failure at the present line. Always false.
    bool fail(OdDxfErrorCode code, const wchar_t* text);
    /// Notes at the present line that something was put right, and answers true; where nothing is mended, the
    /// same as fail().
    bool mend(OdDxfErrorCode code, const wchar_t* text);
    /// How often mend() has put something right.
    std::size_t mendCount() const { return m_mendCount; }
    /// Whether the end mark at which the scanner stands was missing.
    bool cutOff() const { return m_cutOff; }
    const OdDbDxfError& error() const { return m_error; }
    bool failed() const { return m_error.code != OdDxfErrorCode::kNone; }

private:
    bool takeLine(std::string_view& line);
    bool takeCode();
    bool endOfText();
    bool mends() const { return m_reading && !m_reading->strict; }

    OdDxfReading* m_reading;
    char m_lineEnd;
    bool m_cutOff = false;
    bool m_keepsComments;
    std::size_t m_mendCount = 0;
    std::vector<std::string_view> m_comments;
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
    bool hasVersion = false;  ///< whether the file says its version; without one it is read as R12
    OdDbHandle firstFreeHandle = 1;
    std::size_t records = 0;
};

/// Looks through the whole text: whether it is a DXF file (a complete one, if `strict`), its version and code
/// page, and which handles are taken. False with `error` set if it isn't.
bool odOverviewDxf(std::string_view text, bool strict, OdDxfOverview& overview, OdDbDxfError& error);
