#include "outline_font_reader.h"

#include "byte_source.h"
#include "font_names.h"

namespace {

constexpr std::uint32_t tagOf(const char (&text)[5]) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(text[0])) << 24 |
           static_cast<std::uint32_t>(static_cast<unsigned char>(text[1])) << 16 |
           static_cast<std::uint32_t>(static_cast<unsigned char>(text[2])) << 8 |
           static_cast<std::uint32_t>(static_cast<unsigned char>(text[3]));
}

constexpr std::uint32_t kCollection = tagOf("ttcf");
constexpr std::uint32_t kWithOutlines = 0x00010000;
constexpr std::uint32_t kHeadMark = 0x5F0F3CF5;

// More than any font has; a file that claims more is damaged, and costs no time.
constexpr std::uint16_t kMostTables = 256;
constexpr std::uint32_t kMostFaces = 64;

constexpr std::uint64_t kDirectoryHeader = 12;  // bytes
constexpr std::uint64_t kDirectoryEntry = 16;   // bytes

struct Table {
    std::uint64_t offset = 0;
    std::uint64_t length = 0;  // 0 if the table isn't there
};

struct Tables {
    Table head, names, metrics, characters;
};

bool isFontMark(std::uint32_t mark) {
    return mark == kWithOutlines || mark == tagOf("OTTO") || mark == tagOf("true");
}

/// Takes down where the tables of the font at `offset` are; false if one lies outside the file.
bool readDirectory(ByteSource& bytes, std::uint64_t offset, Tables& tables) {
    std::uint16_t count = 0;
    if (!bytes.readBig16(offset + 4, count) || count == 0 || count > kMostTables) return false;
    for (std::uint16_t i = 0; i < count; ++i) {
        const std::uint64_t at = offset + kDirectoryHeader + i * kDirectoryEntry;
        std::uint32_t tag = 0;
        std::uint32_t place = 0;
        std::uint32_t length = 0;
        if (!bytes.readBig32(at, tag) || !bytes.readBig32(at + 8, place) || !bytes.readBig32(at + 12, length))
            return false;
        if (!bytes.contains(place, length)) return false;
        const Table table{place, length};
        if (tag == tagOf("head")) tables.head = table;
        if (tag == tagOf("name")) tables.names = table;
        if (tag == tagOf("OS/2")) tables.metrics = table;
        if (tag == tagOf("cmap")) tables.characters = table;
    }
    return true;
}

/// Weight, width and slant, from the metrics table or else from the header.
bool readLooks(ByteSource& bytes, const Tables& tables, FontFace& face) {
    constexpr std::uint64_t kHeadLength = 54;
    constexpr std::uint64_t kLeastMetrics = 64;
    std::uint32_t mark = 0;
    std::uint16_t style = 0;
    if (tables.head.length < kHeadLength || !bytes.readBig32(tables.head.offset + 12, mark) ||
        mark != kHeadMark || !bytes.readBig16(tables.head.offset + 44, style))
        return false;
    face.weight = style & 1 ? 700 : 400;
    face.isItalic = (style & 2) != 0;
    if (tables.metrics.length < kLeastMetrics) return true;
    std::uint16_t weight = 0;
    std::uint16_t width = 0;
    std::uint16_t selection = 0;
    if (!bytes.readBig16(tables.metrics.offset + 4, weight) ||
        !bytes.readBig16(tables.metrics.offset + 6, width) ||
        !bytes.readBig16(tables.metrics.offset + 62, selection))
        return false;
    // Old fonts count weights from 1 to 9.
    if (weight >= 1 && weight <= 9) weight = static_cast<std::uint16_t>(weight * 100);
    if (weight >= 1 && weight <= 1000) face.weight = weight;
    if (width >= 1 && width <= 9) face.width = width;
    face.isItalic = (selection & 0x201) != 0;  // italic or oblique
    return true;
}

/// The style of a font that doesn't name it.
std::wstring styleByLooks(const FontFace& face) {
    constexpr std::uint16_t kBold = 600;
    if (face.weight >= kBold) return face.isItalic ? L"Bold Italic" : L"Bold";
    return face.isItalic ? L"Italic" : L"Regular";
}

FontProblem readFace(ByteSource& bytes, std::uint64_t offset, std::vector<FontFace>& faces) {
    std::uint32_t mark = 0;
    if (!bytes.readBig32(offset, mark)) return FontProblem::kDamaged;
    if (!isFontMark(mark)) return FontProblem::kNotAFont;
    Tables tables;
    FontFace face;
    if (!readDirectory(bytes, offset, tables) || tables.characters.length == 0 ||
        !readLooks(bytes, tables, face))
        return FontProblem::kDamaged;
    FontNames names;
    if (!readFontNames(bytes, tables.names.offset, tables.names.length, names)) return FontProblem::kDamaged;
    face.family = std::move(names.family);
    face.style = names.style.empty() ? styleByLooks(face) : std::move(names.style);
    faces.push_back(std::move(face));
    return FontProblem::kNone;
}

FontProblem readCollection(ByteSource& bytes, std::vector<FontFace>& faces) {
    std::uint32_t count = 0;
    if (!bytes.readBig32(8, count) || count == 0 || count > kMostFaces) return FontProblem::kDamaged;
    const std::size_t before = faces.size();
    for (std::uint32_t i = 0; i < count; ++i) {
        std::uint32_t offset = 0;
        if (!bytes.readBig32(kDirectoryHeader + i * 4, offset)) break;
        readFace(bytes, offset, faces);
    }
    return faces.size() > before ? FontProblem::kNone : FontProblem::kDamaged;
}

}  // namespace

FontProblem readOutlineFont(ByteSource& bytes, std::vector<FontFace>& faces) {
    std::uint32_t mark = 0;
    if (!bytes.readBig32(0, mark)) return FontProblem::kNotAFont;
    return mark == kCollection ? readCollection(bytes, faces) : readFace(bytes, 0, faces);
}
