// Fonts of a few hundred bytes, made in memory: what the readers look at is there, and nothing else.
//
//     TinyFont font;
//     font.name(3, 1, 0x409, 1, "Sample").name(3, 1, 0x409, 2, "Bold");
//     write(font.bytes());
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace font_bytes {

inline void big16(std::string& out, unsigned value) {
    out += static_cast<char>(value >> 8);
    out += static_cast<char>(value);
}
inline void big32(std::string& out, unsigned value) {
    big16(out, value >> 16);
    big16(out, value & 0xFFFF);
}
inline void little16(std::string& out, unsigned value) {
    out += static_cast<char>(value);
    out += static_cast<char>(value >> 8);
}

/// Text as a name record holds it: two bytes a character, the high one first.
inline std::string utf16(const std::u16string& text) {
    std::string bytes;
    for (const char16_t unit : text) big16(bytes, unit);
    return bytes;
}
inline std::string utf16(const std::string& ascii) {
    return utf16(std::u16string(ascii.begin(), ascii.end()));
}

/// An outline font; parts can be left out or spoiled.
class TinyFont {
public:
    struct Name {
        unsigned platform, encoding, language, id;
        std::string bytes;
    };

    std::uint32_t mark = 0x00010000;
    unsigned weight = 400;
    unsigned width = 5;
    unsigned selection = 0x40;  // regular
    unsigned headStyle = 0;
    unsigned headMark = 0x5F0F3CF5;
    bool hasMetrics = true;
    bool hasCharacters = true;
    std::vector<Name> names;

    /// Adds a name with these very bytes.
    TinyFont& raw(unsigned platform, unsigned encoding, unsigned language, unsigned id, std::string bytes) {
        names.push_back({platform, encoding, language, id, std::move(bytes)});
        return *this;
    }
    /// Adds a Unicode name.
    template <class Text>
    TinyFont& name(unsigned platform, unsigned encoding, unsigned language, unsigned id, const Text& text) {
        return raw(platform, encoding, language, id, utf16(text));
    }
    /// Family and style in English.
    template <class Text>
    TinyFont& called(const Text& family, const Text& style) {
        return name(3, 1, 0x409, 1, family).name(3, 1, 0x409, 2, style);
    }

    std::string nameTable() const {
        std::string records, texts;
        for (const Name& n : names) {
            for (const unsigned part : {n.platform, n.encoding, n.language, n.id}) big16(records, part);
            big16(records, static_cast<unsigned>(n.bytes.size()));
            big16(records, static_cast<unsigned>(texts.size()));
            texts += n.bytes;
        }
        std::string table;
        big16(table, 0);
        big16(table, static_cast<unsigned>(names.size()));
        big16(table, static_cast<unsigned>(6 + records.size()));
        return table + records + texts;
    }

    /// The font; `base` is where it will stand in a collection.
    std::string bytes(std::size_t base = 0) const {
        std::vector<std::pair<std::string, std::string>> tables{{"head", head()}};
        if (hasMetrics) tables.emplace_back("OS/2", metrics());
        if (hasCharacters) tables.emplace_back("cmap", std::string(8, '\0'));
        tables.emplace_back("name", nameTable());
        std::string directory, content;
        big32(directory, mark);
        big16(directory, static_cast<unsigned>(tables.size()));
        directory.append(6, '\0');
        const std::size_t start = base + 12 + tables.size() * 16;
        for (const auto& [tag, table] : tables) {
            directory += tag;
            big32(directory, 0);
            big32(directory, static_cast<unsigned>(start + content.size()));
            big32(directory, static_cast<unsigned>(table.size()));
            content += table;
        }
        return directory + content;
    }

private:
    std::string head() const {
        std::string table(12, '\0');
        big32(table, headMark);
        table.append(28, '\0');
        big16(table, headStyle);
        return table.append(8, '\0');
    }
    std::string metrics() const {
        std::string table(4, '\0');
        big16(table, weight);
        big16(table, width);
        table.append(54, '\0');
        big16(table, selection);
        return table;
    }
};

/// An outline font with one face.
template <class Text>
std::string outlineFont(const Text& family, const Text& style, unsigned weight = 400, bool isItalic = false) {
    TinyFont font;
    font.weight = weight;
    font.selection = isItalic ? 1 : 0x40;
    return font.called(family, style).bytes();
}

/// A collection of fonts.
inline std::string collection(const std::vector<TinyFont>& fonts) {
    std::string header = "ttcf", content;
    big32(header, 0x00010000);
    big32(header, static_cast<unsigned>(fonts.size()));
    const std::size_t start = 12 + fonts.size() * 4;
    for (const TinyFont& font : fonts) {
        big32(header, static_cast<unsigned>(start + content.size()));
        content += font.bytes(start + content.size());
    }
    return header + content;
}

using Shapes = std::vector<std::pair<unsigned, std::string>>;  // code and body

/// A description and the letters A and B.
inline Shapes letters() {
    return {
        {0, std::string("NAME\0\x06\x02\x00\x00", 9)}, {65, std::string("\0\x14\0", 3)}, {66, "\x01\x24"}};
}

/// A stroke font with an index in front; without a shape 0 it is a library of shapes.
inline std::string shapes(const Shapes& all, const std::string& header = "AutoCAD-86 shapes 1.0") {
    std::string out = header + "\r\n\x1A", bodies;
    little16(out, all.empty() ? 0 : all.front().first);
    little16(out, all.empty() ? 0 : all.back().first);
    little16(out, static_cast<unsigned>(all.size()));
    for (const auto& [code, body] : all) {
        little16(out, code);
        little16(out, static_cast<unsigned>(body.size()));
        bodies += body;
    }
    return out + bodies;
}

/// A stroke font by Unicode.
inline std::string unifont(const Shapes& all) {
    std::string out = "AutoCAD-86 unifont 1.0\r\n\x1A";
    little16(out, static_cast<unsigned>(all.size()));
    for (const auto& [code, body] : all) {
        little16(out, code);
        little16(out, static_cast<unsigned>(body.size()));
        out += body;
    }
    return out;
}

/// A stroke font by two-byte codes, with one range of lead bytes.
inline std::string bigFont(const Shapes& all) {
    std::string out = "AutoCAD-86 bigfont 1.0\r\n\x1A", bodies;
    for (const unsigned part : {8u, static_cast<unsigned>(all.size()), 1u, 0xB0u, 0xF7u}) little16(out, part);
    const std::size_t start = out.size() + all.size() * 8;
    for (const auto& [code, body] : all) {
        little16(out, code);
        little16(out, static_cast<unsigned>(body.size()));
        const auto place = static_cast<unsigned>(start + bodies.size());
        little16(out, place & 0xFFFF);
        little16(out, place >> 16);
        bodies += body;
    }
    return out + bodies;
}

}  // namespace font_bytes
