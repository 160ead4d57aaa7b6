// The lowest layer of writing a DXF file: pairs of lines, in the encoding and with the groups of one version.
#pragma once

#include <string>
#include "od_group_list.h"

constexpr int kOdFullPrecision = 16;

/// What the groups that are being written belong to; it decides which of them a version has.
enum class OdDxfPart { kHeader, kCommon, kEntity, kRecord, kObject };

/// Appends a real with a decimal point and at most `precision` decimals (0 to 16); with 16, with all the
/// digits that tell it from its neighbours, however many.
void odAppendReal(double value, std::string& text, int precision = kOdFullPrecision);

/// Appends pairs to a text.
class OdDxfOutput {
public:
    OdDxfOutput(OdDb::DwgVersion version, int codePage, int precision = kOdFullPrecision)
        : m_version(version), m_codePage(codePage), m_precision(precision) {}

    OdDb::DwgVersion version() const { return m_version; }
    bool isR12() const { return m_version <= OdDb::kDHL_1009; }
    std::string& text() { return m_text; }
    /// The greatest handle that was written as an object's own.
    OdDbHandle greatestHandle() const { return m_greatest; }

    /// A value as it stands: numbers, names of record types, and words that were read without decoding.
    void put(int code, std::string_view value);
    void putText(int code, std::string_view utf8);
    void putText(int code, const OdString& value) { putText(code, odUtf8(value.view())); }
    void putReal(int code, double value);
    void putInteger(int code, std::int64_t value);
    void putHandle(int code, OdDbHandle value);
    /// The object's own handle: group 5 or the one given.
    void putOwnHandle(OdDbHandle value, int code = 5);
    void putGroup(const OdGroup& group);
    /// The groups from `begin` to `end` that the version has.
    void putGroups(const OdGroupList& groups, OdDxfPart part, std::uint32_t begin = 0,
                   std::uint32_t end = UINT32_MAX);
    /// Whether the version has groups with this code in this part.
    bool has(int code, OdDxfPart part) const;

private:
    void putCode(int code);
    OdDb::DwgVersion m_version;
    int m_codePage;
    int m_precision;
    OdDbHandle m_greatest = 0;
    std::string m_text;
};
