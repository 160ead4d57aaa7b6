#include "plotting/glyph_outlines.h"

#include <od_string.h>

#include "text_face.h"

namespace {

constexpr int kEm = 1000;  // pixels that a letter is traced in, and its units in the file

/// The character as the platform writes it.
std::wstring textOf(char32_t character) {
    if (character < 0x10000) return {static_cast<wchar_t>(character)};
    const char32_t above = character - 0x10000;
    return {static_cast<wchar_t>(0xD800 + (above >> 10)), static_cast<wchar_t>(0xDC00 + (above & 0x3FF))};
}

/// On the screen y grows downwards.
PdfPoint upright(const POINT& point) { return {static_cast<double>(point.x), static_cast<double>(-point.y)}; }

std::vector<GlyphPiece> piecesOf(const std::vector<POINT>& points, const std::vector<BYTE>& kinds) {
    std::vector<GlyphPiece> pieces;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const BYTE kind = kinds[i] & ~PT_CLOSEFIGURE;
        GlyphPiece piece;
        piece.points[0] = upright(points[i]);
        if (kind == PT_BEZIERTO && i + 2 < points.size()) {
            piece.kind = 'c';
            piece.points[1] = upright(points[++i]);
            piece.points[2] = upright(points[++i]);
        } else {
            piece.kind = kind == PT_MOVETO ? 'm' : 'l';
        }
        pieces.push_back(piece);
    }
    return pieces;
}

}  // namespace

GlyphOutlines::GlyphOutlines(SceneFamily family) : m_family(std::move(family)) {
    m_dc.CreateCompatibleDC(nullptr);
    m_dc.SetBkMode(TRANSPARENT);
    m_dc.SetTextAlign(TA_LEFT | TA_BASELINE);
}

PlotFace GlyphOutlines::face(const SceneFont& font) {
    LOGFONT look = TextFaceOf(font, m_family(font));
    look.lfHeight = -kEm;
    look.lfQuality = NONANTIALIASED_QUALITY;
    const std::string name =
        odUtf8(look.lfFaceName) + "/" + std::to_string(look.lfWeight) + "/" + std::to_string(look.lfItalic);
    std::unique_ptr<CFont>& made = m_fonts[name];
    if (!made) {
        made = std::make_unique<CFont>();
        made->CreateFontIndirect(&look);
    }
    CFont* const face = made.get();
    return {name, [this, face](char32_t character) { return glyph(*face, character); }};
}

Glyph GlyphOutlines::glyph(CFont& font, char32_t character) {
    const std::wstring text = textOf(character);
    const int count = static_cast<int>(text.size());
    CFont* const former = m_dc.SelectObject(&font);
    Glyph result;
    SIZE size = {};
    ::GetTextExtentPoint32W(m_dc.m_hDC, text.c_str(), count, &size);
    result.advance = size.cx;
    ::BeginPath(m_dc.m_hDC);
    ::TextOutW(m_dc.m_hDC, 0, 0, text.c_str(), count);
    ::EndPath(m_dc.m_hDC);
    const int points = ::GetPath(m_dc.m_hDC, nullptr, nullptr, 0);
    if (points > 0) {
        std::vector<POINT> places(static_cast<std::size_t>(points));
        std::vector<BYTE> kinds(places.size());
        if (::GetPath(m_dc.m_hDC, places.data(), kinds.data(), points) == points)
            result.pieces = piecesOf(places, kinds);
    }
    m_dc.SelectObject(former);
    return result;
}
