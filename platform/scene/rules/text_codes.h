// The codes in texts of one line: signs, characters by number, and lines over, under and through letters.
// Internal to the module.
#pragma once

#include <string>
#include <string_view>
#include <vector>

enum class TextMarkKind { kUnder, kOver, kThrough };

/// A line along some letters.
struct TextMark {
    TextMarkKind kind;
    std::size_t from, to;  ///< places of letters
};

struct DecodedText {
    std::wstring letters;
    std::vector<TextMark> marks;
};

/// Resolves "%%d", "%%p", "%%c", "%%u", "%%o", "%%k", "%%%", "%%065" and "\U+0041". A line that nothing ends
/// goes to the end of the text.
DecodedText DecodeText(std::wstring_view text);

/// How high a line stands above the base line, in the height of capitals.
double MarkHeight(TextMarkKind kind);

/// The number of `digits` digits of the base at the start of `text`; -1 if there are not so many.
int DigitsAt(std::wstring_view text, std::size_t digits, int base);

/// Appends a character by its number in Unicode.
void AppendCharacter(std::wstring& text, int number);
