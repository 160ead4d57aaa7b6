#include "od_string.h"

#include <algorithm>

namespace {

/// Appends one Unicode code point in UTF-8.
void appendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

void appendWide(std::wstring& out, char32_t c) {
    if (sizeof(wchar_t) == 2 && c > 0xFFFF) {
        out += static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10));
        out += static_cast<wchar_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
    } else {
        out += static_cast<wchar_t>(c);
    }
}

/// The code point at `at`, which moves behind it; an illegal byte gives U+FFFD and moves by one.
char32_t readUtf8(std::string_view text, std::size_t& at) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(at++);
    if (lead < 0x80) return lead;
    const int more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    if (lead < 0xC2 || lead > 0xF4 || at + static_cast<std::size_t>(more) > text.size()) return 0xFFFD;
    char32_t value = lead & (0x3Fu >> more);
    for (int i = 0; i < more; ++i) {
        const unsigned next = byte(at + static_cast<std::size_t>(i));
        if ((next & 0xC0) != 0x80) return 0xFFFD;
        value = (value << 6) | (next & 0x3F);
    }
    constexpr char32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
    if (value < kLeast[more] || value > 0x10FFFF) return 0xFFFD;
    at += static_cast<std::size_t>(more);
    return value;
}

bool isHighSurrogate(wchar_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool isLowSurrogate(wchar_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

}  // namespace

int OdString::iCompare(const wchar_t* other) const { return odCompareFolded(m_text, other ? other : L""); }

wchar_t odFoldCase(wchar_t c) {
    if (c < 0x80) return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - 32) : c;
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return static_cast<wchar_t>(c - 32);
    if (c == 0xFF) return 0x178;
    if ((c >= 0x100 && c <= 0x137 && c != 0x130 && c != 0x131) || (c >= 0x14A && c <= 0x177) ||
        (c >= 0x460 && c <= 0x481) || (c >= 0x48A && c <= 0x4BF) || (c >= 0x4D0 && c <= 0x52F) ||
        (c >= 0x1E00 && c <= 0x1E95) || (c >= 0x1EA0 && c <= 0x1EFF))
        return static_cast<wchar_t>(c & ~1);
    if ((c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E))
        return static_cast<wchar_t>(c % 2 == 0 ? c - 1 : c);
    if (c == 0x3C2) return 0x3A3;
    if (c >= 0x3B1 && c <= 0x3CB) return static_cast<wchar_t>(c - 32);
    if (c >= 0x430 && c <= 0x44F) return static_cast<wchar_t>(c - 32);
    if (c >= 0x450 && c <= 0x45F) return static_cast<wchar_t>(c - 80);
    if (c >= 0xFF41 && c <= 0xFF5A) return static_cast<wchar_t>(c - 32);
    return c;
}

int odCompareFolded(std::wstring_view a, std::wstring_view b) {
    const std::size_t count = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < count; ++i) {
        const wchar_t x = odFoldCase(a[i]);
        const wchar_t y = odFoldCase(b[i]);
        if (x != y) return x < y ? -1 : 1;
    }
    if (a.size() == b.size()) return 0;
    return a.size() < b.size() ? -1 : 1;
}

std::string odUtf8(std::wstring_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = static_cast<char32_t>(text[i]);
        if (isHighSurrogate(text[i]) && i + 1 < text.size() && isLowSurrogate(text[i + 1]))
            c = 0x10000 + ((c - 0xD800) << 10) + (static_cast<char32_t>(text[++i]) - 0xDC00);
        appendUtf8(out, c > 0x10FFFF ? 0xFFFD : c);
    }
    return out;
}

OdString odWide(std::string_view utf8) {
    std::wstring out;
    out.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) appendWide(out, readUtf8(utf8, at));
    return OdString(std::move(out));
}
