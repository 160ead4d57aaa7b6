#include "shapes/big_font_pages.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace {

constexpr int kJapanese = 932, kSimplifiedChinese = 936, kKorean = 949, kTraditionalChinese = 950,
              kJohab = 1361;

/// How the names of such files begin, and the page of each.
constexpr struct {
    const wchar_t* start;
    int page;
} kNames[] = {
    {L"gbc", kSimplifiedChinese}, {L"hztxt", kSimplifiedChinese}, {L"chineset", kTraditionalChinese},
    {L"bigfont", kJapanese},      {L"extfont", kJapanese},        {L"@extfont", kJapanese},
    {L"whgtxt", kKorean},         {L"whgdtxt", kKorean},          {L"whtgtxt", kKorean},
    {L"whtmtxt", kKorean},
};

}  // namespace

bool IsEastAsian(int codePage) {
    return codePage == kJapanese || codePage == kSimplifiedChinese || codePage == kKorean ||
           codePage == kTraditionalChinese || codePage == kJohab;
}

int CodePageOfBigFont(std::wstring_view file) {
    std::wstring name(file.substr(file.find_last_of(L"/\\") + 1));
    for (wchar_t& c : name)
        if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c - L'A' + L'a');
    const auto found = std::find_if(std::begin(kNames), std::end(kNames),
                                    [&name](const auto& each) { return name.rfind(each.start, 0) == 0; });
    return found != std::end(kNames) ? found->page : 0;
}
