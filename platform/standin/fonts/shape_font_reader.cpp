#include "shape_font_reader.h"

#include <algorithm>
#include <initializer_list>
#include <string>

#include "byte_source.h"

namespace {

constexpr std::size_t kLongestHeader = 40;  // bytes, the one that ends it included
constexpr char kHeaderEnd = 0x1A;
constexpr const char* kOrigin = "autocad-86 ";  // how each header begins

/// The first line in small letters, and the place behind the byte that ends it. A line that doesn't end goes
/// as far as it may.
std::string headerLine(ByteSource& bytes, std::uint64_t& behind) {
    char text[kLongestHeader];
    const auto length = static_cast<std::size_t>(std::min<std::uint64_t>(bytes.size(), kLongestHeader));
    if (!bytes.read(0, text, length)) return {};
    const char* end = std::find(text, text + length, kHeaderEnd);
    behind = static_cast<std::uint64_t>(end - text) + 1;
    std::string line(text, static_cast<std::size_t>(end - text));
    while (!line.empty() && (line.back() == '\r' || line.back() == '\n')) line.pop_back();
    for (char& c : line)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return line;
}

bool isOneOf(const std::string& line, std::initializer_list<const char*> known) {
    return std::find(known.begin(), known.end(), line) != known.end();
}

FontProblem readShapes(ByteSource& bytes, std::uint64_t at, FontKind& kind) {
    constexpr std::uint64_t kEntry = 4;  // bytes: code, length
    std::uint16_t count = 0;
    if (!bytes.readLittle16(at + 4, count) || !bytes.contains(at + 6, count * kEntry) || count == 0)
        return FontProblem::kDamaged;
    std::string index(count * kEntry, 0);
    if (!bytes.read(at + 6, index.data(), index.size())) return FontProblem::kDamaged;
    std::uint64_t behind = at + 6 + index.size();
    bool describesFont = false;
    for (std::size_t i = 0; i < index.size(); i += kEntry) {
        const auto number = [&index, i](std::size_t place) {
            return static_cast<unsigned char>(index[i + place]) |
                   static_cast<unsigned char>(index[i + place + 1]) << 8;
        };
        describesFont = describesFont || number(0) == 0;
        behind += static_cast<std::uint64_t>(number(2));
    }
    if (behind > bytes.size()) return FontProblem::kDamaged;
    if (!describesFont || count < 2) return FontProblem::kNoLetters;
    kind = FontKind::kShape;
    return FontProblem::kNone;
}

FontProblem readUnifont(ByteSource& bytes, std::uint64_t at, FontKind& kind) {
    // The description comes first: code, length, text and measures.
    constexpr std::uint64_t kEntry = 4;
    std::uint16_t count = 0;
    std::uint16_t description = 0;
    if (!bytes.readLittle16(at, count) || !bytes.readLittle16(at + 4, description) || count == 0)
        return FontProblem::kDamaged;
    const std::uint64_t letters = (count - std::uint64_t{1}) * kEntry;
    if (!bytes.contains(at + 2 + kEntry, description + letters)) return FontProblem::kDamaged;
    if (count < 2) return FontProblem::kNoLetters;
    kind = FontKind::kShape;
    return FontProblem::kNone;
}

FontProblem readBigFont(ByteSource& bytes, std::uint64_t at, FontKind& kind) {
    constexpr std::uint64_t kEntry = 8;  // bytes: code, length, place
    constexpr std::uint64_t kRange = 4;  // bytes: first and last lead byte
    std::uint16_t count = 0;
    std::uint16_t ranges = 0;
    if (!bytes.readLittle16(at + 2, count) || !bytes.readLittle16(at + 4, ranges) || count == 0)
        return FontProblem::kDamaged;
    if (!bytes.contains(at + 6, ranges * kRange + count * kEntry)) return FontProblem::kDamaged;
    kind = FontKind::kBigFont;
    return FontProblem::kNone;
}

}  // namespace

FontProblem readShapeFont(ByteSource& bytes, FontKind& kind) {
    std::uint64_t behind = 0;
    const std::string line = headerLine(bytes, behind);
    if (isOneOf(line, {"autocad-86 shapes 1.0", "autocad-86 shapes 1.1", "autocad-86 shapes v1.0",
                       "autocad-86 shapes v1.1"}))
        return readShapes(bytes, behind, kind);
    if (isOneOf(line, {"autocad-86 unifont 1.0", "autocad-86 unifont v1.0"}))
        return readUnifont(bytes, behind, kind);
    if (isOneOf(line, {"autocad-86 bigfont 1.0", "autocad-86 bigfont v1.0"}))
        return readBigFont(bytes, behind, kind);
    return line.rfind(kOrigin, 0) == 0 ? FontProblem::kDamaged : FontProblem::kNotAFont;
}
