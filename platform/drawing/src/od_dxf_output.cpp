#include "od_dxf_output.h"

#include <algorithm>
#include <charconv>

#include "od_code_page.h"
#include "od_dxf_writer.h"

namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// Codes that R12 knows, whatever they stand in.
bool r12Has(int code, OdDxfPart part) {
    if (part == OdDxfPart::kCommon && (code == 48 || code == 60)) return false;
    return code < 80 || (code >= 140 && code < 150) || (code >= 170 && code < 180) ||
           (code >= 210 && code < 240) || code >= 1000;
}

/// The first version that has this code in the common part of entities and in table records.
OdDb::DwgVersion firstVersionOf(int code) {
    switch (code) {
        case 290:
        case 341:
        case 370:
        case 371:
        case 372:
        case 380:
        case 390: return OdDb::kDHL_1015;
        case 420:
        case 430:
        case 440: return OdDb::kDHL_1018;
        case 284:
        case 345:
        case 346:
        case 347:
        case 348: return OdDb::kDHL_1021;
        default: return OdDb::kDHL_1009;
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
    switch (group.kind) {
        case OdGroupKind::kReal: putReal(group.code, group.real); break;
        case OdGroupKind::kInteger: putInteger(group.code, group.integer); break;
        case OdGroupKind::kHandle: putHandle(group.code, group.handle()); break;
        case OdGroupKind::kText: putText(group.code, group.text); break;
    }
}

bool OdDxfOutput::has(int code, OdDxfPart part) const {
    if (isR12()) return r12Has(code, part);
    if (part == OdDxfPart::kCommon || part == OdDxfPart::kRecord) return m_version >= firstVersionOf(code);
    return true;
}

void OdDxfOutput::putGroups(const OdGroupList& groups, OdDxfPart part, std::uint32_t begin,
                            std::uint32_t end) {
    constexpr int kEmbeddedObject = 101;
    constexpr int kFirstExtendedData = 1000;
    bool embedded = false;
    bool application = false;
    OdGroup group;
    for (std::uint32_t at = begin; at < end && groups.read(at, group); at = group.end) {
        if (group.code == kEmbeddedObject) embedded = m_version < OdDb::kDHL_1032;
        if (group.code >= kFirstExtendedData) embedded = false;
        if (group.code == 102) application = !group.text.empty() && group.text[0] == '{';
        const bool leftOut = embedded || (isR12() && application);
        if (!leftOut && has(group.code, part)) putGroup(group);
    }
}
