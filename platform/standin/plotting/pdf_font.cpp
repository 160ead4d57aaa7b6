#include "plotting/pdf_font.h"

namespace {

constexpr std::size_t kMostLetters = 256;  // of one font: a code is a byte
constexpr double kEm = 1000;

constexpr bool isLeading(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool isTrailing(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

}  // namespace

std::u32string CharactersOf(std::wstring_view text) {
    std::u32string characters;
    for (const wchar_t each : text) {
        const auto unit = static_cast<char32_t>(each);
        if (isTrailing(unit) && !characters.empty() && isLeading(characters.back()))
            characters.back() = 0x10000 + ((characters.back() - 0xD800) << 10) + (unit - 0xDC00);
        else
            characters += unit;
    }
    return characters;
}

PdfFonts::Place PdfFonts::place(Face& face, char32_t character, const GlyphSource& source) {
    const auto known = face.places.find(character);
    if (known != face.places.end()) return known->second;
    if (face.open < 0 || m_fonts[static_cast<std::size_t>(face.open)].size() == kMostLetters) {
        face.open = static_cast<int>(m_fonts.size());
        m_fonts.emplace_back();
    }
    Font& font = m_fonts[static_cast<std::size_t>(face.open)];
    const Place found = {face.open, static_cast<unsigned char>(font.size())};
    font.push_back({character, source(character)});
    face.places[character] = found;
    return found;
}

std::vector<PdfRun> PdfFonts::encode(const std::string& name, std::wstring_view text,
                                     const GlyphSource& source) {
    Face& face = m_faces[name];
    std::vector<PdfRun> runs;
    for (const char32_t character : CharactersOf(text)) {
        const Place at = place(face, character, source);
        if (runs.empty() || runs.back().font != at.font) runs.emplace_back().font = at.font;
        runs.back().codes += static_cast<char>(at.code);
        runs.back().width += m_fonts[static_cast<std::size_t>(at.font)][at.code].glyph.advance / kEm;
    }
    return runs;
}
