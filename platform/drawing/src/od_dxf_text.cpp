// The escapes of texts in DXF files.
//
// A caret with one of A to _ behind it is a control character, and a caret with a blank is a caret. A caret
// is written with a blank only where it would be taken for one of these, so that texts that were never
// escaped stay as they are. For the same reason \U+ with the number of a printable ASCII character is no
// escape.

#include <algorithm>
#include <cstdint>

#include "od_code_page.h"
#include "od_string.h"

namespace {

constexpr char kEscapes[] = "\\^";

bool isPlain(std::string_view value) {
    for (const char c : value)
        if (static_cast<signed char>(c) < 0x20 || c == kEscapes[0] || c == kEscapes[1]) return false;
    return true;
}

bool isControlLetter(wchar_t c) { return c >= L'A' && c <= L'_'; }

int hexDigit(wchar_t c) {
    if (c >= L'0' && c <= L'9') return c - L'0';
    if (c >= L'a' && c <= L'f') return c - L'a' + 10;
    return c >= L'A' && c <= L'F' ? c - L'A' + 10 : -1;
}

/// The number that four hexadecimal digits spell at `at`, or -1.
int fourDigits(std::wstring_view text, std::size_t at) {
    if (at + 4 > text.size()) return -1;
    int value = 0;
    for (std::size_t i = at; i < at + 4; ++i) {
        const int digit = hexDigit(text[i]);
        if (digit < 0) return -1;
        value = value * 16 + digit;
    }
    return value;
}

/// \U+XXXX at `at`: appends the character; answers how many characters it took, or 0.
std::size_t unicodeEscape(std::wstring_view text, std::size_t at, std::wstring& out) {
    if (text.substr(at, 3) != L"\\U+") return 0;
    const int value = fourDigits(text, at + 3);
    if (value <= 0 || (value >= 0x20 && value < 0x7F)) return 0;
    out += static_cast<wchar_t>(value);
    return 7;
}

/// \M+nXXXX at `at`: a character of one of five multibyte code pages.
std::size_t multibyteEscape(std::wstring_view text, std::size_t at, std::wstring& out) {
    constexpr int kPages[] = {932, 950, 949, 1361, 936};
    constexpr int kFirstDoubleByte = 0x8000;
    if (text.substr(at, 3) != L"\\M+" || at + 8 > text.size()) return 0;
    const int page = text[at + 3] - L'1';
    const int value = fourDigits(text, at + 4);
    if (page < 0 || page > 4 || value < kFirstDoubleByte) return 0;
    const char bytes[] = {static_cast<char>(value >> 8), static_cast<char>(value & 0xFF)};
    std::wstring character;
    if (!odDecodeBytes(kPages[page], std::string_view(bytes, 2), character)) return 0;
    for (const wchar_t c : character)
        if (c < 0x80) return 0;
    out += character;
    return 8;
}

/// A caret form at `at`, where a caret stands.
std::size_t caretEscape(std::wstring_view text, std::size_t at, std::wstring& out) {
    if (at + 1 >= text.size()) return 0;
    const wchar_t next = text[at + 1];
    if (next == L' ') {
        out += L'^';
        return 2;
    }
    if (!isControlLetter(next)) return 0;
    out += static_cast<wchar_t>(next - 0x40);
    return 2;
}

std::wstring resolveEscapes(std::wstring_view text) {
    std::wstring out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        std::size_t taken = 0;
        if (text[at] == L'\\') {
            taken = unicodeEscape(text, at, out);
            if (!taken) taken = multibyteEscape(text, at, out);
        } else if (text[at] == L'^') {
            taken = caretEscape(text, at, out);
        }
        if (!taken) out += text[at];
        at += taken ? taken : 1;
    }
    return out;
}

/// The wide text of a value: in the file's encoding, else (a wrongly labelled file) byte by byte.
std::wstring wideOf(std::string_view value, int codePage, bool utf8) {
    constexpr wchar_t kIllegal = 0xFFFD;
    if (utf8) {
        const OdString text = odWide(value);
        if (text.view().find(kIllegal) == std::wstring_view::npos) return std::wstring(text.view());
    }
    std::wstring text;
    if (odDecodeBytes(codePage, value, text)) return text;
    text.clear();
    for (const char c : value) text += static_cast<wchar_t>(static_cast<unsigned char>(c));
    return text;
}

/// The UTF-16 units of a character, whatever the width of wchar_t is.
std::u16string utf16Of(std::wstring_view character) {
    std::u16string units;
    for (const wchar_t c : character) {
        const auto value = static_cast<std::uint32_t>(c);
        if (value > 0xFFFF) {
            units += static_cast<char16_t>(0xD800 + ((value - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + ((value - 0x10000) & 0x3FF));
        } else {
            units += static_cast<char16_t>(value);
        }
    }
    return units;
}

void appendUnicodeEscape(char16_t unit, std::string& out) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    out += "\\U+";
    for (int shift = 12; shift >= 0; shift -= 4) out += kDigits[(static_cast<unsigned>(unit) >> shift) & 15];
}

bool isHigh(wchar_t c) { return c >= 0xD800 && c < 0xDC00; }
bool isLow(wchar_t c) { return c >= 0xDC00 && c < 0xE000; }

/// A character that isn't ASCII: its bytes, or its escape if the file's encoding lacks it.
void appendCharacter(std::wstring_view character, int codePage, bool utf8, std::string& out) {
    std::string bytes;
    const bool lone = character.size() == 1 && (isHigh(character[0]) || isLow(character[0]));
    if (utf8 && !lone) {
        out += odUtf8(character);
    } else if (!lone && odEncodeCharacter(codePage, character, bytes)) {
        out += bytes;
    } else {
        for (const char16_t unit : utf16Of(character)) appendUnicodeEscape(unit, out);
    }
}

}  // namespace

std::string_view OdDxfTextDecoder::decode(std::string_view value) {
    if (isPlain(value)) return value;
    std::wstring text = resolveEscapes(wideOf(value, m_codePage, m_utf8));
    // A zero ends a text.
    text.resize(std::min(text.find(L'\0'), text.size()));
    m_text = odUtf8(text);
    return m_text;
}

void odEncodeDxfText(std::string_view utf8, int codePage, bool fileIsUtf8, std::string& out) {
    if (isPlain(utf8)) {
        out += utf8;
        return;
    }
    const OdString wide = odWide(utf8);
    const std::wstring_view text = wide.view();
    for (std::size_t i = 0; i < text.size(); ++i) {
        const wchar_t c = text[i];
        const wchar_t next = i + 1 < text.size() ? text[i + 1] : L'\0';
        if (c == L'^') {
            const bool controlNext = i + 1 < text.size() && static_cast<char32_t>(next) < 0x20;
            out += next == L' ' || isControlLetter(next) || controlNext ? "^ " : "^";
        } else if (static_cast<char32_t>(c) < 0x20) {
            out += '^';
            out += static_cast<char>(c + 0x40);
        } else if (static_cast<char32_t>(c) < 0x80) {
            out += static_cast<char>(c);
        } else {
            const std::size_t units = isHigh(c) && isLow(next) ? 2 : 1;
            appendCharacter(text.substr(i, units), codePage, fileIsUtf8, out);
            i += units - 1;
        }
    }
}
