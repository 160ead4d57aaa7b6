#include <ktui/text/text_fitting.h>

namespace {

constexpr int kShortestFitted = 5;  // characters; shorter texts are taken whole
constexpr const wchar_t* kEllipsis = L"...";
constexpr int kEllipsisLength = 3;

unsigned Width(const CString& text, const TextMeasurer& measure) {
    return static_cast<unsigned>(measure(text));
}

/// Puts the ellipsis in the place of the middle characters.
void MarkCut(CString& text) {
    int index = text.GetLength() / 2 - 1;
    if (index < 0) index = 0;
    text.Delete(index, kEllipsisLength);
    text.Insert(index, kEllipsis);
}

CString Copies(const CString& text, unsigned count) {
    CString copies;
    for (unsigned i = 0; i < count; ++i) copies += text;
    return copies;
}

CString CutMiddle(CString text, unsigned width, const TextMeasurer& measure) {
    while (!text.IsEmpty() && Width(text, measure) > width) text.Delete(text.GetLength() / 2, 1);
    MarkCut(text);
    return text;
}

/// The piece between the copies: one or two texts, cut to `budget` pixels.
CString MiddlePiece(const CString& text, bool twice, unsigned budget, const TextMeasurer& measure) {
    CString piece = twice ? text + text : text;
    // Kept: the first character is taken out by the length of the text, not of the piece.
    int length = text.GetLength();
    while (!piece.IsEmpty() && Width(piece, measure) > budget) {
        piece.Delete(length / 2, 1);
        length = piece.GetLength();
    }
    MarkCut(piece);
    return piece;
}

}  // namespace

CString ShortenToWidth(const CString& text, unsigned width, const TextMeasurer& measure) {
    if (text.GetLength() < kShortestFitted || Width(text, measure) <= width) return text;
    return CutMiddle(text, width, measure);
}

CString RepeatToWidth(const CString& text, unsigned width, const TextMeasurer& measure) {
    if (text.GetLength() < kShortestFitted) return text;
    const unsigned own = Width(text, measure);
    if (own == width) return text;
    if (own > width) return CutMiddle(text, width, measure);

    const unsigned count = width / own;
    if (width % own == 0) return Copies(text, count);
    const unsigned half = count / 2;
    const unsigned budget = half ? width - (count - 1) * own : width - count * own;
    const CString ends = Copies(text, half);
    return ends + MiddlePiece(text, half != 0, budget, measure) + ends;
}
