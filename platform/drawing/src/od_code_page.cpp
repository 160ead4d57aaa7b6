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

/// Whether a character stands only for a byte that the page doesn't define: some systems answer a control or
/// a private character for it, and others nothing.
bool isNoCharacter(int page, wchar_t c) {
    const bool isIso = page >= 28591 && page <= 28599;
    const bool hasControls = isIso || page == 950 || page == 65001;
    const bool hasPrivate = page == 936 || page == 949 || page == 950 || page == 1361 || page == 65001;
    if (c >= 0x80 && c <= 0x9F) return !hasControls;
    return c >= 0xF880 && c <= 0xF8FF && !hasPrivate;
}

bool decodeBySystem(int page, std::string_view bytes, std::wstring& text);
bool encodeBySystem(int page, std::wstring_view character, std::string& bytes);

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
        // Some converters keep the last character until they know that none is to be joined with it.
        const bool whole = iconv(m_handle, &from, &size, &to, &room) == 0 && size == 0 &&
                           iconv(m_handle, nullptr, nullptr, &to, &room) == 0;
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

/// The upper half of DOS page 720 (Arabic), which the system's converters lack.
constexpr wchar_t kDos720[] = {
    0x0080, 0x0081, 0x00E9, 0x00E2, 0x0084, 0x00E0, 0x0086, 0x00E7, 0x00EA, 0x00EB, 0x00E8, 0x00EF, 0x00EE,
    0x008D, 0x008E, 0x008F, 0x0090, 0x0651, 0x0652, 0x00F4, 0x00A4, 0x0640, 0x00FB, 0x00F9, 0x0621, 0x0622,
    0x0623, 0x0624, 0x00A3, 0x0625, 0x0626, 0x0627, 0x0628, 0x0629, 0x062A, 0x062B, 0x062C, 0x062D, 0x062E,
    0x062F, 0x0630, 0x0631, 0x0632, 0x0633, 0x0634, 0x0635, 0x00AB, 0x00BB, 0x2591, 0x2592, 0x2593, 0x2502,
    0x2524, 0x2561, 0x2562, 0x2556, 0x2555, 0x2563, 0x2551, 0x2557, 0x255D, 0x255C, 0x255B, 0x2510, 0x2514,
    0x2534, 0x252C, 0x251C, 0x2500, 0x253C, 0x255E, 0x255F, 0x255A, 0x2554, 0x2569, 0x2566, 0x2560, 0x2550,
    0x256C, 0x2567, 0x2568, 0x2564, 0x2565, 0x2559, 0x2558, 0x2552, 0x2553, 0x256B, 0x256A, 0x2518, 0x250C,
    0x2588, 0x2584, 0x258C, 0x2590, 0x2580, 0x0636, 0x0637, 0x0638, 0x0639, 0x063A, 0x0641, 0x00B5, 0x0642,
    0x0643, 0x0644, 0x0645, 0x0646, 0x0647, 0x0648, 0x0649, 0x064A, 0x2261, 0x064B, 0x064C, 0x064D, 0x064E,
    0x064F, 0x0650, 0x2248, 0x00B0, 0x2219, 0x00B7, 0x221A, 0x207F, 0x00B2, 0x25A0, 0x00A0,
};

constexpr int kDosArabic = 720, kJohab = 1361, kHebrew = 1255, kVietnamese = 1258, kIsoGreek = 28597,
              kIsoHebrew = 28598, kMacintosh = 10000;

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

bool odDecodeBytes(int codePage, std::string_view bytes, std::wstring& text) {
    text.clear();
    if (bytes.empty()) return true;
    return decodeBySystem(codePage, bytes, text) &&
           std::none_of(text.begin(), text.end(), [&](wchar_t c) { return isNoCharacter(codePage, c); });
}

bool odEncodeCharacter(int codePage, std::wstring_view character, std::string& bytes) {
    std::wstring again;
    return encodeBySystem(codePage, character, bytes) && odDecodeBytes(codePage, bytes, again) &&
           again == character;
}

namespace {

#ifdef _WIN32

bool decodeBySystem(int page, std::string_view bytes, std::wstring& text) {
    const int size = static_cast<int>(bytes.size());
    const auto number = static_cast<UINT>(page);
    const int count = MultiByteToWideChar(number, MB_ERR_INVALID_CHARS, bytes.data(), size, nullptr, 0);
    if (count <= 0) return false;
    text.resize(static_cast<std::size_t>(count));
    return MultiByteToWideChar(number, MB_ERR_INVALID_CHARS, bytes.data(), size, text.data(), count) == count;
}

bool encodeBySystem(int page, std::wstring_view character, std::string& bytes) {
    char buffer[16];
    BOOL missing = FALSE;
    const auto number = static_cast<UINT>(page);
    const bool unicode = number == CP_UTF8;
    const int count = WideCharToMultiByte(number, unicode ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS,
                                          character.data(), static_cast<int>(character.size()), buffer,
                                          sizeof buffer, nullptr, unicode ? nullptr : &missing);
    if (count <= 0 || missing) return false;
    bytes.assign(buffer, static_cast<std::size_t>(count));
    return true;
}

#else

bool decodeDos720(std::string_view bytes, std::wstring& text) {
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += byte < 0x80 ? static_cast<wchar_t>(byte) : kDos720[byte - 0x80];
    }
    return true;
}

bool encodeDos720(wchar_t c, std::string& bytes) {
    const auto* const found = std::find(std::begin(kDos720), std::end(kDos720), c);
    if (c >= 0x80 && found == std::end(kDos720)) return false;
    bytes.assign(1, static_cast<char>(c < 0x80 ? c : 0x80 + (found - kDos720)));
    return true;
}

/// A character of a page that the system has elsewhere.
struct Moved {
    int page;
    wchar_t system, own;
};
/// A point that the system's converter of the Hebrew page lacks.
constexpr wchar_t kHolamHaser = 0x05BA;
constexpr char kHolamHaserByte = '\xCA';
constexpr wchar_t kNone = 0xF8FE;  // no character of any page
constexpr Moved kMoved[] = {
    {kMacintosh, 0x0394, 0x2206}, {kMacintosh, 0x03A9, 0x2126}, {kMacintosh, 0xE01E, kNone},
    {kJohab, 0x20A9, L'\\'},      {kIsoGreek, 0x2018, 0x02BD},  {kIsoGreek, 0x2019, 0x02BC},
    {kIsoGreek, 0x20AC, kNone},   {kIsoGreek, 0x20AF, kNone},   {kIsoGreek, 0x037A, kNone},
    {kIsoHebrew, 0x00AF, 0x203E}, {kIsoHebrew, 0x200E, kNone},  {kIsoHebrew, 0x200F, kNone}};

void settle(int page, std::wstring& text, bool toSystem) {
    for (const Moved& moved : kMoved) {
        if (moved.page != page) continue;
        for (wchar_t& c : text)
            if (c == (toSystem ? moved.own : moved.system)) c = toSystem ? moved.system : moved.own;
    }
}

bool decodeWhole(int page, std::string_view bytes, std::wstring& text) {
    std::string raw;
    if (!converter(page, false).run(bytes.data(), bytes.size(), raw)) return false;
    text.append(reinterpret_cast<const wchar_t*>(raw.data()), raw.size() / sizeof(wchar_t));
    settle(page, text, false);
    return true;
}

bool decodeBySystem(int page, std::string_view bytes, std::wstring& text) {
    if (page == kDosArabic) return decodeDos720(bytes, text);
    // These converters join letters and marks, which are characters of their own in files.
    const bool joins = page == kHebrew || page == kVietnamese;
    if (!joins) return decodeWhole(page, bytes, text);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        if (page == kHebrew && bytes[i] == kHolamHaserByte)
            text += kHolamHaser;
        else if (!decodeWhole(page, bytes.substr(i, 1), text))
            return false;
    return true;
}

bool encodeBySystem(int page, std::wstring_view character, std::string& bytes) {
    if (page == kDosArabic) return character.size() == 1 && encodeDos720(character[0], bytes);
    std::wstring own(character);
    if (page == kHebrew && own == std::wstring(1, kHolamHaser)) {
        bytes.assign(1, kHolamHaserByte);
        return true;
    }
    settle(page, own, true);
    return converter(page, true)
        .run(reinterpret_cast<const char*>(own.data()), own.size() * sizeof(wchar_t), bytes);
}

#endif

}  // namespace
