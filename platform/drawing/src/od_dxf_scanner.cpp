#include "od_dxf_scanner.h"

#include "od_comment_code.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace {

constexpr int kLeastCode = -5;
constexpr int kGreatestCode = 1071;
constexpr std::string_view kBinaryMark = "AutoCAD Binary DXF";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr OdDbHandle kGreatestHandle = OdDbHandle{1} << 60;

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\f' || c == '\v'; }

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
    return text;
}

template <class T>
bool parseWhole(std::string_view digits, T& value, int base) {
    const auto [end, problem] = std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
    return problem == std::errc() && end == digits.data() + digits.size();
}

bool parseReal(std::string_view word, double& value) {
    if (!word.empty() && word.front() == '+') word.remove_prefix(1);
    const auto [end, problem] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (end != word.data() + word.size() || word.empty()) return false;
    // Numbers too small to tell from zero are legal; too large ones aren't.
    if (problem == std::errc::result_out_of_range) {
        const std::size_t exponent = word.find_first_of("eE");
        value = 0;
        return exponent != std::string_view::npos && exponent + 1 < word.size() && word[exponent + 1] == '-';
    }
    return problem == std::errc() && std::isfinite(value);
}

struct VersionName {
    int number;
    OdDb::DwgVersion version;
};

constexpr VersionName kVersions[] = {
    {1032, OdDb::kDHL_1032}, {1027, OdDb::kDHL_1027}, {1024, OdDb::kDHL_1024},
    {1021, OdDb::kDHL_1021}, {1018, OdDb::kDHL_1018}, {1015, OdDb::kDHL_1015},
    {1014, OdDb::kDHL_1014}, {1010, OdDb::kDHL_1012}, {1004, OdDb::kDHL_1009}};

/// The version that "AC1015" and the like name; versions between two releases count as the older one.
OdDb::DwgVersion versionNamed(std::string_view name) {
    int number = 0;
    if (name.substr(0, 2) != "AC" || !parseWhole(name.substr(2), number, 10)) return OdDb::kDHL_Unknown;
    for (const VersionName& entry : kVersions)
        if (number >= entry.number) return entry.version;
    return OdDb::kDHL_Unknown;
}

/// Takes note of the header variables that the rest of the reading depends on.
bool noteHeader(OdDxfScanner& scanner, std::string_view variable, OdDxfOverview& overview) {
    if (variable == "$ACADVER" && scanner.code() == 1) {
        overview.version = versionNamed(scanner.word());
        overview.hasVersion = true;
        if (overview.version == OdDb::kDHL_Unknown)
            return scanner.fail(OdDxfErrorCode::kUnsupportedVersion, L"The file's version is older than R9.");
    } else if (variable == "$DWGCODEPAGE") {
        overview.codePageName = scanner.word();
    }
    return true;
}

bool finishOverview(OdDxfScanner& scanner, bool whole, OdDbDxfError& error) {
    if (!scanner.failed() && !whole)
        scanner.fail(OdDxfErrorCode::kTruncated, L"The file ends before its end mark.");
    error = scanner.error();
    return !scanner.failed();
}

bool refuseAtOnce(std::string_view text, OdDbDxfError& error) {
    if (trimmed(text).find_first_not_of("\r\n") == std::string_view::npos)
        error = {OdDxfErrorCode::kEmpty, 0, L"The file is empty."};
    else if (text.substr(0, kBinaryMark.size()) == kBinaryMark)
        error = {OdDxfErrorCode::kBinary, 1, L"The binary file was changed as if it were a text."};
    else
        return false;
    return true;
}

}  // namespace

OdDxfScanner::OdDxfScanner(std::string_view text, OdDxfReading* reading, bool keepsComments)
    : m_reading(reading),
      m_lineEnd(text.find('\n') == std::string_view::npos ? '\r' : '\n'),
      m_keepsComments(keepsComments),
      m_rest(text) {}

bool OdDxfScanner::takeLine(std::string_view& line) {
    if (m_rest.empty()) return false;
    const std::size_t end = m_rest.find(m_lineEnd);
    line = m_rest.substr(0, end);
    m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    ++m_line;
    return true;
}

/// What comes behind the last line: a missing end mark, once.
bool OdDxfScanner::endOfText() {
    if (m_cutOff || !mends() || m_line == 0) return false;
    m_cutOff = true;
    m_code = 0;
    m_value = "EOF";
    return mend(OdDxfErrorCode::kTruncated, L"The file ends before its end mark.");
}

/// Takes lines until one is a group code. False at the end and on an error.
bool OdDxfScanner::takeCode() {
    std::string_view line;
    while (takeLine(line)) {
        if (parseWhole(trimmed(line), m_code, 10)) {
            if (m_code >= kLeastCode && m_code <= kGreatestCode) return true;
            if (m_line == 1) return fail(OdDxfErrorCode::kNotDxf, L"A group code was expected.");
            if (!mend(OdDxfErrorCode::kBadGroupCode,
                      L"A group code that doesn't exist was passed over with its value."))
                return false;
            takeLine(line);
            continue;
        }
        if (trimmed(line).empty() && m_rest.find_first_not_of(" \t\r\n\x1A") == std::string_view::npos)
            return false;
        if (m_line == 1) return fail(OdDxfErrorCode::kNotDxf, L"A group code was expected.");
        if (!mend(OdDxfErrorCode::kBadGroupCode, L"A line that is no group code was passed over."))
            return false;
    }
    return false;
}

bool OdDxfScanner::next() {
    if (m_line == 0 && m_rest.substr(0, kByteOrderMark.size()) == kByteOrderMark)
        m_rest.remove_prefix(kByteOrderMark.size());
    do {
        if (failed()) return false;
        if (!takeCode()) return !failed() && endOfText();
        if (takeLine(m_value)) {
            if (m_code == kOdComment && m_keepsComments) m_comments.push_back(m_value);
            continue;
        }
        return mends() ? endOfText()
                       : fail(OdDxfErrorCode::kTruncated, L"The file ends before its end mark.");
    } while (m_code == kOdComment);
    return true;
}

std::string_view OdDxfScanner::word() const {
    // Words become zero-terminated names, so that they end where one does.
    return trimmed(m_value.substr(0, m_value.find('\0')));
}

bool OdDxfScanner::real(double& value) {
    if (parseReal(word(), value)) return true;
    value = 0;
    return mend(OdDxfErrorCode::kBadNumber, L"A number was expected; 0 stands for it.");
}

bool OdDxfScanner::integer(std::int64_t& value) {
    std::string_view digits = word();
    if (!digits.empty() && digits.front() == '+') digits.remove_prefix(1);
    if (parseWhole(digits, value, 10)) return true;
    double real = 0;
    constexpr double kLimit = 9e15;
    if (!parseReal(digits, real) || std::fabs(real) >= kLimit) {
        value = 0;
        return mend(OdDxfErrorCode::kBadNumber, L"A whole number was expected; 0 stands for it.");
    }
    value = std::llround(real);
    return real == std::floor(real) ||
           mend(OdDxfErrorCode::kBadNumber, L"A whole number was expected; the nearest stands for it.");
}

bool OdDxfScanner::handle(OdDbHandle& value) {
    if (parseWhole(word(), value, 16)) return true;
    value = 0;
    return mend(OdDxfErrorCode::kBadNumber, L"A handle was expected; 0 stands for it.");
}

bool OdDxfScanner::mend(OdDxfErrorCode code, const wchar_t* text) {
    if (!mends()) return fail(code, text);
    if (m_reading->mends.size() < OdDxfReading::kMostMends) m_reading->mends.push_back({m_line, 0, text});
    ++m_reading->mendCount;
    ++m_mendCount;
    return true;
}

bool OdDxfScanner::fail(OdDxfErrorCode code, const wchar_t* text) {
    if (!failed()) m_error = {code, m_line, text};
    return false;
}

OdDbHandle odHandleFromText(std::string_view digits) {
    OdDbHandle value = 0;
    return parseWhole(trimmed(digits), value, 16) && value < kGreatestHandle ? value : 0;
}

bool odOverviewDxf(std::string_view text, bool strict, OdDxfOverview& overview, OdDbDxfError& error) {
    constexpr int kVariableName = 9;
    if (refuseAtOnce(text, error)) return false;
    OdDxfReading passing;
    passing.strict = strict;
    OdDxfScanner scanner(text, &passing);
    std::string_view variable;
    bool ended = false;
    bool opening = false;
    bool inHeader = false;
    for (bool first = true; !ended && scanner.next(); first = false) {
        if (first && !scanner.isRecord("SECTION") && !scanner.isRecord("EOF")) {
            scanner.fail(OdDxfErrorCode::kNotDxf, L"The file doesn't begin like a DXF file.");
            break;
        }
        if (opening) inHeader = scanner.code() == 2 && scanner.word() == "HEADER";
        opening = scanner.isRecord("SECTION");
        if (inHeader && scanner.code() == kVariableName) variable = scanner.word();
        if (scanner.code() == 0) {
            inHeader = false;
            variable = {};
            ended = scanner.word() == "EOF";
            ++overview.records;
        } else if (!variable.empty()) {
            if (!noteHeader(scanner, variable, overview)) break;
        }
        if (scanner.code() == 5 || scanner.code() == 105) {
            const OdDbHandle handle = odHandleFromText(scanner.value());
            const OdDbHandle free = variable == "$HANDSEED" ? handle : handle + 1;
            if (free > overview.firstFreeHandle) overview.firstFreeHandle = free;
        }
    }
    // Of a file that is cut off, something must be left beside the first section's beginning and the end
    // mark.
    return finishOverview(scanner, ended && (!scanner.cutOff() || overview.records > 2), error);
}
