#include "rules/text_codes.h"

namespace {

constexpr std::size_t kOpen = static_cast<std::size_t>(-1);

/// Begins a line at the end of the letters, or ends the one that is open.
class Marks {
public:
    void toggle(TextMarkKind kind, std::size_t place) {
        std::size_t& open = m_open[static_cast<std::size_t>(kind)];
        if (open == kOpen) {
            open = place;
            return;
        }
        if (place > open) all.push_back({kind, open, place});
        open = kOpen;
    }
    void end(std::size_t place) {
        for (const TextMarkKind kind : {TextMarkKind::kUnder, TextMarkKind::kOver, TextMarkKind::kThrough})
            if (m_open[static_cast<std::size_t>(kind)] != kOpen) toggle(kind, place);
    }
    std::vector<TextMark> all;

private:
    std::size_t m_open[3] = {kOpen, kOpen, kOpen};
};

/// What the letter behind "%%" stands for; 0 for no sign.
wchar_t signOf(wchar_t code) {
    switch (code) {
        case L'd':
        case L'D': return L'\u00B0';
        case L'p':
        case L'P': return L'\u00B1';
        case L'c':
        case L'C': return L'\u00D8';
        case L'%': return L'%';
        default: return 0;
    }
}

int digitOf(wchar_t letter) {
    if (letter >= L'0' && letter <= L'9') return letter - L'0';
    if (letter >= L'a' && letter <= L'f') return letter - L'a' + 10;
    if (letter >= L'A' && letter <= L'F') return letter - L'A' + 10;
    return 16;
}

/// Takes the code behind "%%"; answers how many characters it has.
std::size_t takeCode(std::wstring_view rest, std::wstring& letters, Marks& marks) {
    if (rest.empty()) return 0;
    if (const wchar_t sign = signOf(rest[0])) {
        letters += sign;
        return 1;
    }
    switch (rest[0]) {
        case L'u':
        case L'U': marks.toggle(TextMarkKind::kUnder, letters.size()); return 1;
        case L'o':
        case L'O': marks.toggle(TextMarkKind::kOver, letters.size()); return 1;
        case L'k':
        case L'K': marks.toggle(TextMarkKind::kThrough, letters.size()); return 1;
        default: break;
    }
    if (const int number = DigitsAt(rest, 3, 10); number > 0) {
        AppendCharacter(letters, number);
        return 3;
    }
    return 1;
}

}  // namespace

int DigitsAt(std::wstring_view text, std::size_t digits, int base) {
    if (text.size() < digits) return -1;
    int number = 0;
    for (std::size_t i = 0; i < digits; ++i) {
        const int digit = digitOf(text[i]);
        if (digit >= base) return -1;
        number = number * base + digit;
    }
    return number;
}

void AppendCharacter(std::wstring& text, int number) {
    constexpr int kFirstWide = 0x10000;
    if (sizeof(wchar_t) == 2 && number >= kFirstWide) {
        text += static_cast<wchar_t>(0xD800 + ((number - kFirstWide) >> 10));
        text += static_cast<wchar_t>(0xDC00 + ((number - kFirstWide) & 0x3FF));
    } else if (number > 0) {
        text += static_cast<wchar_t>(number);
    }
}

double MarkHeight(TextMarkKind kind) {
    return kind == TextMarkKind::kUnder ? -0.2 : kind == TextMarkKind::kOver ? 1.2 : 0.5;
}

DecodedText DecodeText(std::wstring_view text) {
    DecodedText decoded;
    Marks marks;
    for (std::size_t i = 0; i < text.size();) {
        if (text.substr(i, 2) == L"%%") {
            i += 2;
            i += takeCode(text.substr(i), decoded.letters, marks);
            continue;
        }
        if (text.substr(i, 3) == L"\\U+")
            if (const int number = DigitsAt(text.substr(i + 3), 4, 16); number > 0) {
                AppendCharacter(decoded.letters, number);
                i += 7;
                continue;
            }
        decoded.letters += text[i++];
    }
    marks.end(decoded.letters.size());
    decoded.marks = std::move(marks.all);
    return decoded;
}
