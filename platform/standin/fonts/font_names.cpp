#include "font_names.h"

#include <algorithm>
#include <string_view>
#include <tuple>
#include <vector>

#include "byte_source.h"
#include "mac_roman.h"

namespace {

// What a name is of.
constexpr std::uint16_t kFamily = 1;
constexpr std::uint16_t kStyle = 2;
constexpr std::uint16_t kTypographicFamily = 16;
constexpr std::uint16_t kTypographicStyle = 17;

// Whose encodings and languages a record counts by.
constexpr std::uint16_t kUnicode = 0;
constexpr std::uint16_t kMacintosh = 1;
constexpr std::uint16_t kWindows = 3;

constexpr std::uint64_t kRecordSize = 12;
constexpr std::uint16_t kMostRecords = 4096;
constexpr std::uint16_t kLongestName = 512;  // bytes
constexpr int kMostTries = 8;                // names of one kind that are looked at

struct NameRecord {
    std::uint16_t name;
    int rank;  // the higher the better; 0 for an encoding that isn't read
    bool isRoman;
    std::uint16_t language;
    std::uint16_t length;
    std::uint16_t offset;
};

int rankOf(std::uint16_t platform, std::uint16_t encoding, std::uint16_t language) {
    constexpr std::uint16_t kPrimary = 0x3FF;
    if (platform == kUnicode) return 7;
    if (platform == kMacintosh) return encoding != 0 ? 0 : language == 0 ? 6 : 2;
    if (platform != kWindows || (encoding != 0 && encoding != 1 && encoding != 10)) return 0;
    if (language == 0x0409) return 9;
    if ((language & kPrimary) == 0x09) return 8;
    if (language == 0x0804) return 5;
    return (language & kPrimary) == 0x04 ? 4 : 3;
}

/// The record at `at`; false if the file ends before its end.
bool readRecord(ByteSource& bytes, std::uint64_t at, NameRecord& record) {
    std::uint8_t b[kRecordSize];
    if (!bytes.read(at, b, sizeof b)) return false;
    const auto number = [&b](int index) {
        return static_cast<std::uint16_t>(b[index * 2] << 8 | b[index * 2 + 1]);
    };
    const std::uint16_t platform = number(0);
    record = {number(3), rankOf(platform, number(1), number(2)), platform == kMacintosh, number(2), number(4),
              number(5)};
    return true;
}

bool isWanted(const NameRecord& record) {
    return record.rank > 0 && (record.name == kFamily || record.name == kStyle ||
                               record.name == kTypographicFamily || record.name == kTypographicStyle);
}

void append(std::wstring& text, char32_t character) {
    if (character < 0x20 || (character >= 0x7F && character < 0xA0)) return;
    if (sizeof(wchar_t) == 2 && character > 0xFFFF) {
        text += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
        text += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
        return;
    }
    text += static_cast<wchar_t>(character);
}

bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

std::wstring fromUtf16(std::string_view bytes) {
    const auto unitAt = [bytes](std::size_t i) {
        return static_cast<char32_t>(static_cast<unsigned char>(bytes[i]) << 8 |
                                     static_cast<unsigned char>(bytes[i + 1]));
    };
    std::wstring text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const char32_t unit = unitAt(i);
        const char32_t next = i + 3 < bytes.size() ? unitAt(i + 2) : 0;
        if (isHighSurrogate(unit) && isLowSurrogate(next)) {
            append(text, 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00));
            i += 2;
        } else {
            append(text, isHighSurrogate(unit) || isLowSurrogate(unit) ? 0xFFFD : unit);
        }
    }
    return text;
}

std::wstring fromRoman(std::string_view bytes) {
    std::wstring text;
    for (const char one : bytes) append(text, macRomanCharacter(static_cast<unsigned char>(one)));
    return text;
}

std::wstring trimmed(const std::wstring& text) {
    constexpr const wchar_t* kBlanks = L" \x3000\xA0";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::wstring::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// The records of a name table, and the texts that they point to.
class NameTable {
public:
    NameTable(ByteSource& bytes, std::uint64_t offset, std::uint64_t length)
        : m_bytes(bytes), m_offset(offset), m_length(length) {}

    bool read() {
        std::uint16_t count = 0;
        if (m_length < 6 || !m_bytes.readBig16(m_offset + 2, count) ||
            !m_bytes.readBig16(m_offset + 4, m_texts) || count > kMostRecords ||
            6 + count * kRecordSize > m_length)
            return false;
        for (std::uint16_t i = 0; i < count; ++i) {
            NameRecord record{};
            if (!readRecord(m_bytes, m_offset + 6 + i * kRecordSize, record)) return false;
            if (isWanted(record)) m_records.push_back(record);
        }
        // The best first; among equals the lowest language, and then the order of the file.
        std::stable_sort(m_records.begin(), m_records.end(), [](const NameRecord& a, const NameRecord& b) {
            return std::tuple(-a.rank, a.language) < std::tuple(-b.rank, b.language);
        });
        return true;
    }

    /// The best legible text of a kind; empty if there is none.
    std::wstring find(std::uint16_t name) {
        int tries = 0;
        for (const NameRecord& record : m_records) {
            if (record.name != name) continue;
            std::wstring text = textOf(record);
            if (!text.empty()) return text;
            if (++tries == kMostTries) break;
        }
        return {};
    }

private:
    std::wstring textOf(const NameRecord& record) {
        const std::uint64_t within = std::uint64_t{m_texts} + record.offset;
        if (record.length > kLongestName || within + record.length > m_length) return {};
        char text[kLongestName];
        if (!m_bytes.read(m_offset + within, text, record.length)) return {};
        const std::string_view view(text, record.length);
        return trimmed(record.isRoman ? fromRoman(view) : fromUtf16(view));
    }

    ByteSource& m_bytes;
    std::uint64_t m_offset;
    std::uint64_t m_length;
    std::uint16_t m_texts = 0;  // where the texts begin, behind m_offset
    std::vector<NameRecord> m_records;
};

}  // namespace

bool readFontNames(ByteSource& bytes, std::uint64_t offset, std::uint64_t length, FontNames& names) {
    NameTable table(bytes, offset, length);
    if (!table.read()) return false;
    names.family = table.find(kTypographicFamily);
    // The typographic style belongs to the typographic family only: beside the plain one it would name a
    // style twice ("Foo Light", "Light").
    if (!names.family.empty()) names.style = table.find(kTypographicStyle);
    if (names.family.empty()) names.family = table.find(kFamily);
    if (names.style.empty()) names.style = table.find(kStyle);
    return !names.family.empty();
}
