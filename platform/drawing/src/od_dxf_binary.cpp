#include "od_dxf_binary.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <limits>

#include "od_comment_code.h"
#include "od_dxf_output.h"
#include "od_dxf_scanner.h"

namespace {

constexpr std::string_view kMark("AutoCAD Binary DXF\r\n\x1A\0", 22);
/// What stands before a code of two bytes where codes have one.
constexpr std::uint8_t kWideCode = 255;
constexpr std::size_t kLongestChunk = 255;
constexpr std::string_view kDigits = "0123456789ABCDEF";

/// What the bytes of a value are, decided by its code alone.
enum class Value { kText, kReal, kByte, kInt16, kInt32, kInt64, kChunk };

struct Range {
    int first, last;
    Value value;
};

constexpr Range kRanges[] = {
    {10, 59, Value::kReal},      {60, 79, Value::kInt16},    {90, 99, Value::kInt32},
    {110, 149, Value::kReal},    {160, 169, Value::kInt64},  {170, 179, Value::kInt16},
    {210, 239, Value::kReal},    {270, 289, Value::kInt16},  {290, 299, Value::kByte},
    {310, 319, Value::kChunk},   {370, 389, Value::kInt16},  {400, 409, Value::kInt16},
    {420, 429, Value::kInt32},   {440, 459, Value::kInt32},  {460, 469, Value::kReal},
    {1004, 1004, Value::kChunk}, {1010, 1059, Value::kReal}, {1060, 1070, Value::kInt16},
    {1071, 1071, Value::kInt32}};

Value value_of(int code) {
    for (const Range& range : kRanges)
        if (code >= range.first && code <= range.last) return range.value;
    return Value::kText;
}

/// Size of a number in bytes; 0 for values that tell their own.
std::size_t size_of(Value value) {
    switch (value) {
        case Value::kByte: return 1;
        case Value::kInt16: return 2;
        case Value::kInt32: return 4;
        case Value::kReal:
        case Value::kInt64: return 8;
        default: return 0;
    }
}

/// A group where it stands in the file.
struct Group {
    std::size_t begin = 0;
    int code = 0;
    Value value = Value::kText;
    std::string_view bytes;
};

/// Walks the groups of a binary file.
class Groups {
public:
    explicit Groups(std::string_view bytes) : m_bytes(bytes), m_at(kMark.size()) {
        // The first code is 0 or that of a comment; its second byte tells how many it has.
        const std::uint8_t first = byte(m_at), second = byte(m_at + 1);
        m_wideCodes = first == 0 ? second == 0 : first != kWideCode;
    }

    /// False at the end; `whole()` tells whether that is the end of a group.
    bool next(Group& group) {
        if (m_at >= m_bytes.size()) return false;
        m_whole = false;
        group.begin = m_at;
        if (!code(group.code)) return false;
        group.value = value_of(group.code);
        std::size_t size = size_of(group.value);
        if (group.value == Value::kText) {
            size = m_bytes.find('\0', std::min(m_at, m_bytes.size()));
            if (size == std::string_view::npos) return false;
            size -= m_at;
        } else if (group.value == Value::kChunk) {
            if (m_at >= m_bytes.size()) return false;
            size = byte(m_at++);
        }
        if (size > m_bytes.size() - m_at) return false;
        group.bytes = m_bytes.substr(m_at, size);
        m_at += size + (group.value == Value::kText ? 1 : 0);
        m_whole = true;
        return true;
    }
    bool whole() const { return m_whole; }
    std::size_t place() const { return m_at; }

private:
    std::uint8_t byte(std::size_t at) const {
        return at < m_bytes.size() ? static_cast<std::uint8_t>(m_bytes[at]) : std::uint8_t{0};
    }
    bool code(int& value) {
        const bool wide = m_wideCodes || byte(m_at) == kWideCode;
        if (wide && !m_wideCodes) ++m_at;
        const std::size_t size = wide ? 2 : 1;
        if (m_at + size > m_bytes.size()) return false;
        value = wide ? static_cast<std::int16_t>(byte(m_at) | byte(m_at + 1) << 8) : byte(m_at);
        m_at += size;
        return true;
    }

    std::string_view m_bytes;
    std::size_t m_at;
    bool m_wideCodes;
    bool m_whole = true;
};

std::uint64_t number_in(std::string_view bytes) {
    std::uint64_t number = 0;
    for (std::size_t i = bytes.size(); i-- > 0;) number = number << 8 | static_cast<std::uint8_t>(bytes[i]);
    return number;
}

/// Line ends inside a text are written as the text form writes control characters.
void append_line(std::string_view line, std::string& text) {
    for (const char c : line) {
        if (c == '\r' || c == '\n') text += '^';
        text += c == '\r' ? 'M' : c == '\n' ? 'J' : c;
    }
}

void append_value(const Group& group, std::string& text) {
    const std::uint64_t number = size_of(group.value) != 0 ? number_in(group.bytes) : 0;
    const auto appendInteger = [&](std::int64_t value) { text += std::to_string(value); };
    switch (group.value) {
        case Value::kText: append_line(group.bytes, text); break;
        case Value::kReal: odAppendReal(std::bit_cast<double>(number), text); break;
        case Value::kByte: appendInteger(static_cast<std::uint8_t>(number)); break;
        case Value::kInt16: appendInteger(static_cast<std::int16_t>(number)); break;
        case Value::kInt32: appendInteger(static_cast<std::int32_t>(number)); break;
        case Value::kInt64: appendInteger(static_cast<std::int64_t>(number)); break;
        case Value::kChunk:
            for (const char c : group.bytes) {
                text += kDigits[static_cast<std::uint8_t>(c) >> 4];
                text += kDigits[static_cast<std::uint8_t>(c) & 15];
            }
            break;
    }
}

/// Writes groups in the binary form.
class Output {
public:
    Output(std::string& bytes, bool wideCodes) : m_bytes(bytes), m_wideCodes(wideCodes) {}

    void group(int code, std::string_view line) {
        const Value value = value_of(code);
        switch (value) {
            case Value::kText:
                putCode(code);
                m_bytes += line.substr(0, line.find('\0'));
                m_bytes += '\0';
                break;
            case Value::kReal:
                putCode(code);
                putNumber(std::bit_cast<std::uint64_t>(real(line)), 8);
                break;
            case Value::kChunk: chunks(code, line); break;
            default:
                putCode(code);
                putNumber(static_cast<std::uint64_t>(integer(line, size_of(value))), size_of(value));
        }
    }

private:
    void putNumber(std::uint64_t number, std::size_t size) {
        for (std::size_t i = 0; i < size; ++i) m_bytes += static_cast<char>(number >> 8 * i & 0xFF);
    }
    void putCode(int code) {
        const bool wide = m_wideCodes || code < 0 || code >= kWideCode;
        if (wide && !m_wideCodes) m_bytes += static_cast<char>(kWideCode);
        putNumber(static_cast<std::uint64_t>(code), wide ? 2 : 1);
    }
    static double real(std::string_view line) {
        double value = 0;
        std::from_chars(line.data(), line.data() + line.size(), value);
        return value;
    }
    /// The nearest number that fits the bytes, with or without a sign.
    static std::int64_t integer(std::string_view line, std::size_t size) {
        std::int64_t value = 0;
        std::from_chars(line.data(), line.data() + line.size(), value);
        if (size >= sizeof value) return value;
        const std::int64_t least = size == 1 ? 0 : -(std::int64_t{1} << (8 * size - 1));
        return std::clamp(value, least, (std::int64_t{1} << 8 * size) - 1);
    }
    void chunks(int code, std::string_view line) {
        std::string bytes;
        for (std::size_t i = 0; i + 1 < line.size(); i += 2) {
            std::uint8_t byte = 0;
            const char* end = line.data() + i + 2;
            if (std::from_chars(line.data() + i, end, byte, 16).ptr != end) break;
            bytes += static_cast<char>(byte);
        }
        std::string_view rest = bytes;
        do {
            const std::string_view chunk = rest.substr(0, kLongestChunk);
            putCode(code);
            putNumber(chunk.size(), 1);
            m_bytes += chunk;
            rest.remove_prefix(chunk.size());
        } while (!rest.empty());
    }

    std::string& m_bytes;
    bool m_wideCodes;
};

}  // namespace

bool odIsBinaryDxf(std::string_view bytes) {
    // What follows the words is lost where a file was sent as a text.
    return bytes.starts_with(kMark);
}

bool odTextOfBinaryDxf(std::string_view bytes, std::string& text, OdDbDxfError& error) {
    Groups groups(bytes);
    Group group;
    text.reserve(text.size() + bytes.size() + bytes.size() / 2);
    while (groups.next(group)) {
        text += std::to_string(group.code);
        text += '\n';
        append_value(group, text);
        text += '\n';
        // Whatever stands behind the end mark is no part of the file.
        if (group.code == 0 && group.bytes == "EOF") return true;
    }
    error = {OdDxfErrorCode::kTruncated, 0, L"The file ends before its end mark.", 0, groups.place()};
    return false;
}

struct OdDxfLinePlaces::Walk {
    Groups groups;
    Group group;
    int line = 0;  // of the group's value
};

OdDxfLinePlaces::OdDxfLinePlaces(std::string_view bytes) : m_walk(new Walk{Groups(bytes), {}}) {}
OdDxfLinePlaces::~OdDxfLinePlaces() = default;

std::size_t OdDxfLinePlaces::byteOf(int line) {
    Walk& walk = *m_walk;
    for (; walk.line < line; walk.line += 2)
        if (!walk.groups.next(walk.group)) return walk.groups.place();
    return walk.group.begin;
}

std::string odBinaryOfDxfText(std::string_view text, bool wideCodes) {
    std::string bytes(kMark);
    bytes.reserve(text.size());
    Output output(bytes, wideCodes);
    OdDxfScanner scanner(text, nullptr, true);
    while (scanner.next()) {
        for (const std::string_view comment : scanner.takeComments()) output.group(kOdComment, comment);
        output.group(scanner.code(), scanner.value());
    }
    return bytes;
}
