// PdfFonts: the letters that the texts of a PDF file need, as fonts of outlines. Each face becomes one font
// for every 256 different letters; a letter knows what it stands for, so that texts can be found and copied.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "plotting/pdf_page.h"

/// One piece of an outline: 'm' moves, 'l' draws a line, 'c' a curve by two control points and its end.
struct GlyphPiece {
    char kind = 'm';
    PdfPoint points[3];  ///< the last one used is where the piece ends
};

/// A letter in units of which the em has 1000, its base line at 0; filled by the winding of its pieces.
struct Glyph {
    double advance = 0;
    std::vector<GlyphPiece> pieces;
};

/// Gives the letter for a character of Unicode.
using GlyphSource = std::function<Glyph(char32_t)>;

/// A run of codes of one font.
struct PdfRun {
    int font = 0;
    std::string codes;
    double width = 0;  ///< of the em
};

/// The characters of a text as the platform writes it, surrogate pairs put together.
STANDIN_API std::u32string CharactersOf(std::wstring_view text);

class STANDIN_API PdfFonts {
public:
    /// The runs that show `text` in the face of that name; `source` gives the letters that are new.
    std::vector<PdfRun> encode(const std::string& face, std::wstring_view text, const GlyphSource& source);

    /// A letter of a font, by its place the code.
    struct Entry {
        char32_t character = 0;
        Glyph glyph;
    };
    using Font = std::vector<Entry>;
    const std::vector<Font>& fonts() const { return m_fonts; }

private:
    struct Place {
        int font = 0;
        unsigned char code = 0;
    };
    struct Face {
        std::map<char32_t, Place> places;
        int open = -1;  ///< the font that takes the next letter; -1 for none
    };
    Place place(Face& face, char32_t character, const GlyphSource& source);

    std::map<std::string, Face> m_faces;
    std::vector<Font> m_fonts;
};
