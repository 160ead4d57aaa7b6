// The lowest layer of writing a DXF file: pairs of lines, in the encoding and with the groups of one version.
#pragma once

#include <span>
#include <string>
#include "od_dxf_losses.h"
#include "od_group_list.h"
#include "od_held_codes.h"
#include "od_version_rules.h"

constexpr int kOdFullPrecision = 16;

/// What the groups that are being written belong to: the part that all entities share, what the record's own
/// type says, or what no version of the format leaves out.
enum class OdDxfPart { kCommon, kOwn, kObject };

/// Appends a real with a decimal point and at most `precision` decimals (0 to 16); with 16, with all the
/// digits that tell it from its neighbours, however many.
void odAppendReal(double value, std::string& text, int precision = kOdFullPrecision);

/// Appends pairs to a text.
class OdDxfOutput {
public:
    OdDxfOutput(OdDb::DwgVersion version, int codePage, int precision = kOdFullPrecision)
        : m_version(version),
          m_codePage(codePage),
          m_precision(precision),
          m_common(odGroupRules(kOdCommonGroups)) {}

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
    /// Begins a record of this kind and type, by whose rules the groups that follow are chosen. `type` has to
    /// live until the next record begins.
    void beginRecord(OdDxfRecordKind kind, std::string_view type);
    /// The groups from `begin` to `end` that the version has; what is left out is noted in losses().
    void putGroups(const OdGroupList& groups, OdDxfPart part, std::uint32_t begin = 0,
                   std::uint32_t end = UINT32_MAX);

    /// Has values that the file didn't have as such written as it had them.
    void keepMended() { m_keepsMended = true; }
    /// What was left out so far.
    OdDxfLosses& losses() { return m_losses; }
    /// Lets groups stay that no version before `version` has, if a file of this version or an older one held
    /// them: `held` outlives the output.
    void keepHeld(const OdHeldCodes& held) { m_held = &held; }

private:
    void putCode(int code);
    /// The rule by which the version lacks this group, or null.
    const OdGroupRule* ruleAgainst(const OdGroup& group, OdDxfPart part);
    bool leavesOut(const OdGroup& group, OdDxfPart part);

    OdDb::DwgVersion m_version;
    int m_codePage;
    int m_precision;
    OdDbHandle m_greatest = 0;
    std::string m_text;
    bool m_keepsMended = false;
    OdDxfLosses m_losses;
    const OdHeldCodes* m_held = nullptr;
    const OdCodeSet* m_heldOfType = nullptr;
    OdDxfRecordKind m_kind = OdDxfRecordKind::kObject;
    std::string_view m_type;
    std::span<const OdGroupRule> m_common;
    std::span<const OdGroupRule> m_own;
    int m_occurrences = 0;  // of the code that a rule counts, in this record
};
