#include "kmfc/text_conversion.h"

#ifdef _WIN32

std::wstring kmfc::widen(std::string_view text) {
    const int size = static_cast<int>(text.size());
    std::wstring wide(static_cast<size_t>(MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0)),
                      L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string kmfc::narrow(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    const int needed = WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<size_t>(needed), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), size, result.data(), needed, nullptr, nullptr);
    return result;
}

#else

namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// Decodes one UTF-8 sequence at `at` and moves past it; a malformed one counts as one byte.
char32_t decode(std::string_view text, size_t& at) {
    const auto lead = static_cast<unsigned char>(text[at++]);
    if (lead < 0x80) return lead;
    const size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    if (lead < 0xC2 || lead > 0xF4 || at + more > text.size()) return kReplacement;
    char32_t code = lead & (0x3Fu >> more);
    for (size_t i = 0; i < more; ++i) {
        const auto next = static_cast<unsigned char>(text[at + i]);
        if ((next & 0xC0) != 0x80) return kReplacement;
        code = (code << 6) | (next & 0x3F);
    }
    constexpr char32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
    if (code < kSmallest[more] || code > 0x10FFFF || (code >= 0xD800 && code < 0xE000)) return kReplacement;
    at += more;
    return code;
}

void encode(char32_t code, std::string& out) {
    if (code > 0x10FFFF || (code >= 0xD800 && code < 0xE000)) code = kReplacement;
    if (code < 0x80) {
        out.push_back(static_cast<char>(code));
        return;
    }
    const int more = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr int kLead[] = {0, 0xC0, 0xE0, 0xF0};
    out.push_back(static_cast<char>(kLead[more] | static_cast<int>(code >> (6 * more))));
    for (int i = more - 1; i >= 0; --i) out.push_back(static_cast<char>(0x80 | ((code >> (6 * i)) & 0x3F)));
}

}  // namespace

std::wstring kmfc::widen(std::string_view text) {
    std::wstring wide;
    wide.reserve(text.size());
    for (size_t at = 0; at < text.size();) wide.push_back(static_cast<wchar_t>(decode(text, at)));
    return wide;
}

std::string kmfc::narrow(std::wstring_view text) {
    std::string result;
    result.reserve(text.size());
    for (wchar_t ch : text) encode(static_cast<char32_t>(ch), result);
    return result;
}

#endif
