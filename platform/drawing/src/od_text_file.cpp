// The encodings of plain text files.
#include <algorithm>

#include "od_code_page.h"
#include "od_string.h"

namespace {

constexpr wchar_t kReplacement = 0xFFFD;

/// Text of 16-bit units, the high byte first or second.
std::wstring textOfUnits(std::string_view bytes, bool highFirst) {
    std::wstring text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto low = static_cast<unsigned char>(bytes[i + (highFirst ? 1 : 0)]);
        const auto high = static_cast<unsigned char>(bytes[i + (highFirst ? 0 : 1)]);
        text += static_cast<wchar_t>(high << 8 | low);
    }
    // By way of UTF-8, which joins pairs where a wide character holds more than 16 bits.
    return std::wstring(odWide(odUtf8(text)).view());
}

std::wstring decoded(std::string_view bytes, int codePage) {
    if (bytes.starts_with("\xEF\xBB\xBF")) return std::wstring(odWide(bytes.substr(3)).view());
    if (bytes.starts_with("\xFF\xFE")) return textOfUnits(bytes.substr(2), false);
    if (bytes.starts_with("\xFE\xFF")) return textOfUnits(bytes.substr(2), true);
    const OdString asUtf8 = odWide(bytes);
    std::wstring text;
    if (odUtf8(asUtf8.view()) == bytes || !odDecodeBytes(codePage, bytes, text))
        return std::wstring(asUtf8.view());
    return text;
}

}  // namespace

OdString odTextOfBytes(std::string_view bytes, int codePage) {
    std::wstring text = decoded(bytes, codePage);
    std::replace(text.begin(), text.end(), L'\0', kReplacement);
    return OdString(std::move(text));
}
