#include "od_code_page.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#ifdef _WIN32
#include <windows.h>
#else
#include <iconv.h>
#include <map>
#include <memory>
#endif

namespace {

struct NamedPage {
    const char* name;
    int page;
};

constexpr NamedPage kPages[] = {{"ASCII", 1252},      {"ISO8859-1", 28591}, {"ISO8859-2", 28592},
                                {"ISO8859-3", 28593}, {"ISO8859-4", 28594}, {"ISO8859-5", 28595},
                                {"ISO8859-6", 28596}, {"ISO8859-7", 28597}, {"ISO8859-8", 28598},
                                {"ISO8859-9", 28599}, {"GB2312", 936},      {"BIG5", 950},
                                {"KSC5601", 949},     {"JOHAB", 1361},      {"MACINTOSH", 10000},
                                {"UTF-8", 65001},     {"UTF8", 65001}};

/// The pages that names with a number may mean; others (those with shift states among them) are no drawing's.
constexpr int kNumberedPages[] = {437,  720,  737,  775,  850,  852,  855,  857,  860, 861, 862,
                                  863,  864,  865,  866,  869,  874,  932,  936,  949, 950, 1250,
                                  1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258, 1361};

std::string upperAscii(std::string_view text) {
    std::string upper(text);
    for (char& c : upper)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    return upper;
}

#ifndef _WIN32

/// A converter of the system, opened once and kept.
class Converter {
public:
    Converter(const std::string& to, const std::string& from)
        : m_handle(iconv_open(to.c_str(), from.c_str())) {}
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    ~Converter() {
        if (isOpen()) iconv_close(m_handle);
    }

    /// Converts all of `size` bytes, into as many bytes as come out; false on an illegal or missing
    /// character.
    bool run(const char* in, std::size_t size, std::string& out) {
        if (!isOpen()) return false;
        iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
        out.resize(size * 4 + 16);
        char* from = const_cast<char*>(in);
        char* to = out.data();
        std::size_t room = out.size();
        const bool whole = iconv(m_handle, &from, &size, &to, &room) == 0 && size == 0;
        out.resize(out.size() - room);
        return whole;
    }

private:
    bool isOpen() const { return m_handle != reinterpret_cast<iconv_t>(-1); }
    iconv_t m_handle;
};

std::string systemName(int page) {
    if (page >= 28591 && page <= 28599) return "ISO-8859-" + std::to_string(page - 28590);
    switch (page) {
        case 932: return "CP932";
        case 936: return "GBK";
        case 949: return "CP949";
        case 950: return "CP950";
        case 1361: return "JOHAB";
        case 10000: return "MACINTOSH";
        case 65001: return "UTF-8";
        default: return "CP" + std::to_string(page);
    }
}

Converter& converter(int page, bool toPage) {
    // Each thread has its own, because a converter has a state.
    thread_local std::map<int, std::unique_ptr<Converter>> converters[2];
    std::unique_ptr<Converter>& slot = converters[toPage ? 1 : 0][page];
    if (!slot)
        slot = toPage ? std::make_unique<Converter>(systemName(page), "WCHAR_T")
                      : std::make_unique<Converter>("WCHAR_T", systemName(page));
    return *slot;
}

#endif

}  // namespace

int odCodePageFromName(std::string_view name) {
    const std::string upper = upperAscii(name);
    for (const NamedPage& entry : kPages)
        if (upper == entry.name) return entry.page;
    const std::size_t digits = upper.find_first_of("0123456789");
    if (digits == std::string::npos || (upper.rfind("ANSI", 0) != 0 && upper.rfind("DOS", 0) != 0))
        return 1252;
    int page = 0;
    std::from_chars(upper.data() + digits, upper.data() + upper.size(), page);
    const bool known =
        std::find(std::begin(kNumberedPages), std::end(kNumberedPages), page) != std::end(kNumberedPages);
    return known ? page : 1252;
}

#ifdef _WIN32

bool odDecodeBytes(int codePage, std::string_view bytes, std::wstring& text) {
    text.clear();
    if (bytes.empty()) return true;
    const int size = static_cast<int>(bytes.size());
    const auto page = static_cast<UINT>(codePage);
    const int count = MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes.data(), size, nullptr, 0);
    if (count <= 0) return false;
    text.resize(static_cast<std::size_t>(count));
    return MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes.data(), size, text.data(), count) == count;
}

bool odEncodeCharacter(int codePage, std::wstring_view character, std::string& bytes) {
    char buffer[16];
    BOOL missing = FALSE;
    const auto page = static_cast<UINT>(codePage);
    const bool unicode = page == CP_UTF8;
    const int count = WideCharToMultiByte(page, unicode ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS,
                                          character.data(), static_cast<int>(character.size()), buffer,
                                          sizeof buffer, nullptr, unicode ? nullptr : &missing);
    if (count <= 0 || missing) return false;
    bytes.assign(buffer, static_cast<std::size_t>(count));
    return true;
}

#else

bool odDecodeBytes(int codePage, std::string_view bytes, std::wstring& text) {
    std::string raw;
    if (!converter(codePage, false).run(bytes.data(), bytes.size(), raw)) return false;
    text.assign(reinterpret_cast<const wchar_t*>(raw.data()), raw.size() / sizeof(wchar_t));
    return true;
}

bool odEncodeCharacter(int codePage, std::wstring_view character, std::string& bytes) {
    return converter(codePage, true)
        .run(reinterpret_cast<const char*>(character.data()), character.size() * sizeof(wchar_t), bytes);
}

#endif
