#include "od_dxf_output.h"

#include <algorithm>
#include <charconv>

#include "od_code_page.h"
#include "od_dxf_writer.h"

namespace {

constexpr std::string_view kLineEnd = "\r\n";

constexpr int kEmbeddedObject = 101;
constexpr int kApplicationData = 102;

/// Whether a group says only what holds without it.
bool saysNothing(const OdGroup& group, const OdGroupRule& rule) {
    switch (rule.loss) {
        case OdDxfLossKind::kLineWeight: return group.integer == -1 || group.integer == -3;
        case OdDxfLossKind::kPlotStyle: return group.integer == (group.code == 290 ? 1 : 0);
        default: break;
    }
    switch (group.kind) {
        // Blocks can be exploded unless they say otherwise, and layouts are told for themselves.
        case OdGroupKind::kInteger:
            return group.integer == (rule.type == "BLOCK_RECORD" && group.code == 280 ? 1 : 0);
        case OdGroupKind::kHandle:
            return group.integer == 0 || (rule.type == "BLOCK_RECORD" && group.code == 340);
        case OdGroupKind::kReal: return group.real == 0;
        default: return group.text.empty();
    }
}

}  // namespace

std::string odHandleText(OdDbHandle handle) {
    char digits[20];
    const auto result = std::to_chars(digits, digits + sizeof digits, handle, 16);
    std::string text(digits, result.ptr);
    for (char& c : text)
        if (c >= 'a') c = static_cast<char>(c - 32);
    return text;
}

void odAppendReal(double value, std::string& text, int precision) {
    // The longest is the greatest number with all its decimals.
    char buffer[360];
    char* const limit = buffer + sizeof buffer;
    const bool full = precision >= kOdFullPrecision;
    const char* end =
        full ? std::to_chars(buffer, limit, value).ptr
             : std::to_chars(buffer, limit, value, std::chars_format::fixed, std::max(precision, 0)).ptr;
    std::string_view digits(buffer, static_cast<std::size_t>(end - buffer));
    const bool hasPoint = digits.find_first_of(".en") != std::string_view::npos;
    if (!full && hasPoint) {
        digits.remove_suffix(digits.size() - 1 - digits.find_last_not_of('0'));
        if (digits.back() == '.') digits.remove_suffix(1);
    }
    if (!full && digits == "-0") digits.remove_prefix(1);
    text += digits;
    if (digits.find_first_of(".en") == std::string_view::npos) text += ".0";
}

void OdDxfOutput::putCode(int code) {
    char digits[12];
    const auto result = std::to_chars(digits, digits + sizeof digits, code);
    const auto count = static_cast<std::size_t>(result.ptr - digits);
    if (count < 3) m_text.append(3 - count, ' ');
    m_text.append(digits, count);
    m_text += kLineEnd;
}

void OdDxfOutput::put(int code, std::string_view value) {
    putCode(code);
    m_text += value;
    m_text += kLineEnd;
}

void OdDxfOutput::putText(int code, std::string_view utf8) {
    putCode(code);
    odEncodeDxfText(utf8, m_codePage, m_version >= OdDb::kDHL_1021, m_text);
    m_text += kLineEnd;
}

void OdDxfOutput::putReal(int code, double value) {
    putCode(code);
    odAppendReal(value, m_text, m_precision);
    m_text += kLineEnd;
}

void OdDxfOutput::putInteger(int code, std::int64_t value) {
    char digits[24];
    const auto result = std::to_chars(digits, digits + sizeof digits, value);
    put(code, std::string_view(digits, static_cast<std::size_t>(result.ptr - digits)));
}

void OdDxfOutput::putHandle(int code, OdDbHandle value) { put(code, odHandleText(value)); }

void OdDxfOutput::putOwnHandle(OdDbHandle value, int code) {
    if (value > m_greatest) m_greatest = value;
    putHandle(code, value);
}

void OdDxfOutput::putGroup(const OdGroup& group) {
    if (m_keepsMended && !group.mended.empty()) return putText(group.code, group.mended);
    switch (group.kind) {
        case OdGroupKind::kReal: putReal(group.code, group.real); break;
        case OdGroupKind::kInteger: putInteger(group.code, group.integer); break;
        case OdGroupKind::kHandle: putHandle(group.code, group.handle()); break;
        case OdGroupKind::kText: putText(group.code, group.text); break;
    }
}

void OdDxfOutput::beginRecord(OdDxfRecordKind kind, std::string_view type) {
    m_losses.beginRecord();
    m_occurrences = 0;
    if (type == m_type && kind == m_kind) return;
    m_kind = kind;
    m_type = type;
    m_own = odGroupRules(type);
    m_heldOfType = m_held ? m_held->find(kind, type) : nullptr;
}

const OdGroupRule* OdDxfOutput::ruleAgainst(const OdGroup& group, OdDxfPart part) {
    for (const OdGroupRule& rule : part == OdDxfPart::kCommon ? m_common : m_own) {
        if (group.code < rule.first || group.code > rule.last) continue;
        if (rule.occurrence > 1 && ++m_occurrences < rule.occurrence) continue;
        if (m_version < rule.since) return &rule;
    }
    return nullptr;
}

/// Whether the version lacks the group; what it says is noted as lost then.
bool OdDxfOutput::leavesOut(const OdGroup& group, OdDxfPart part) {
    if (part == OdDxfPart::kObject && !isR12()) return false;
    const OdGroupRule* rule = part == OdDxfPart::kObject ? nullptr : ruleAgainst(group, part);
    const bool lacksCode = isR12() && !odIsR12Code(group.code);
    if (!rule && !lacksCode) return false;
    if (m_heldOfType && m_heldOfType->has(group.code)) return false;
    if (rule ? !saysNothing(group, *rule) : group.code != 100)
        m_losses.addOnce(rule ? rule->loss : OdDxfLossKind::kSetting,
                         rule && rule->loss != OdDxfLossKind::kSetting ? std::string_view() : m_type);
    return true;
}

void OdDxfOutput::putGroups(const OdGroupList& groups, OdDxfPart part, std::uint32_t begin,
                            std::uint32_t end) {
    bool embedded = false;
    bool application = false;
    OdGroup group;
    for (std::uint32_t at = begin; at < end && groups.read(at, group); at = group.end) {
        if (group.code == kEmbeddedObject) {
            embedded = m_version < OdDb::kDHL_1032;
            if (embedded) m_losses.addOnce(OdDxfLossKind::kSetting, m_type);
        }
        if (odIsExtendedDataCode(group.code)) embedded = false;
        if (group.code == kApplicationData) application = !group.text.empty() && group.text[0] == '{';
        const bool leftOut = embedded || (isR12() && (application || group.code == kApplicationData));
        const bool free = application || odIsExtendedDataCode(group.code);
        if (!leftOut && (free || !leavesOut(group, part))) putGroup(group);
    }
}
