#include <ktut.h>

#include <string_view>

#include "ktdb.h"

namespace {

constexpr int kGreatestLength = 255;
constexpr std::wstring_view kForbidden = L"<>/\\\":;?*,=`";

struct Reserved {
    int kind;
    const wchar_t* english;
    const wchar_t* chinese;
};

constexpr Reserved kReserved[] = {{kKtdbByLayer, L"ByLayer", L"\x968F\x5C42"},
                                  {kKtdbByBlock, L"ByBlock", L"\x968F\x5757"},
                                  {kKtdbContinuous, L"Continuous", L"\x8FDE\x7EED"},
                                  {kKtdbStandard, L"Standard", L"\x6807\x51C6"},
                                  {kKtdbNormal, L"Normal", L"\x666E\x901A"},
                                  {kKtdbModel, L"Model", L"\x6A21\x578B"},
                                  {kKtdbNone, L"None", L"\x65E0"}};

const Reserved* reservedOf(int kind) {
    for (const Reserved& entry : kReserved)
        if (entry.kind == kind) return &entry;
    return nullptr;
}

bool isControl(wchar_t c) { return static_cast<char32_t>(c) < 0x20 || c == 0x7F; }

bool isSecondHalf(wchar_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

}  // namespace

int ktdbSNValid(const wchar_t* name, int allowVerticalBar) {
    const std::wstring_view text(name ? name : L"");
    if (text.empty() || text.front() == L' ' || text.back() == L' ') return kKtdbInvalid;
    int length = 0;
    for (const wchar_t c : text) {
        if (isControl(c) || kForbidden.find(c) != std::wstring_view::npos) return kKtdbInvalid;
        if (c == L'|' && !allowVerticalBar) return kKtdbInvalid;
        if (!isSecondHalf(c)) ++length;
    }
    return length <= kGreatestLength ? kKtdbOk : kKtdbInvalid;
}

bool ktdbIsReservedString(const wchar_t* name, int kind) {
    const Reserved* entry = reservedOf(kind);
    if (!entry || !name) return false;
    return odCompareFolded(name, entry->english) == 0 || odCompareFolded(name, entry->chinese) == 0;
}

OdString ktdbGetReservedString(int kind, bool localized) {
    const Reserved* entry = reservedOf(kind);
    if (!entry) return {};
    return localized && ktutLanguage() == KtutLanguage::kChinese ? entry->chinese : entry->english;
}
