#include <string_view>

#include "ktut.h"

namespace {

/// Takes the run of digits at the start of `text` off it.
std::wstring_view takeDigits(std::wstring_view& text) {
    std::size_t count = 0;
    while (count < text.size() && ktutIsDigit(text[count])) ++count;
    const std::wstring_view digits = text.substr(0, count);
    text.remove_prefix(count);
    return digits;
}

std::wstring_view withoutZeros(std::wstring_view digits) {
    while (digits.size() > 1 && digits.front() == L'0') digits.remove_prefix(1);
    return digits;
}

/// Below, equal to or above 0 by the value of two runs of digits of any length.
int compareNumbers(std::wstring_view a, std::wstring_view b) {
    a = withoutZeros(a);
    b = withoutZeros(b);
    if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
    return a.compare(b);
}

/// The first difference that counts before case does: letters folded, runs of digits by value.
int compareNatural(std::wstring_view a, std::wstring_view b) {
    int zeros = 0;
    while (!a.empty() && !b.empty()) {
        if (ktutIsDigit(a.front()) && ktutIsDigit(b.front())) {
            const std::wstring_view x = takeDigits(a);
            const std::wstring_view y = takeDigits(b);
            if (const int order = compareNumbers(x, y)) return order;
            if (!zeros && x.size() != y.size()) zeros = x.size() < y.size() ? -1 : 1;
            continue;
        }
        if (a.front() != b.front()) {
            const wchar_t x = odFoldCase(a.front());
            const wchar_t y = odFoldCase(b.front());
            if (x != y) return x < y ? -1 : 1;
        }
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
    if (a.empty() != b.empty()) return a.empty() ? -1 : 1;
    return zeros;
}

}  // namespace

bool ktutIsDigit(wchar_t character) { return character >= L'0' && character <= L'9'; }

int ktutCompareString(const wchar_t* a, const wchar_t* b) {
    const std::wstring_view x(a ? a : L"");
    const std::wstring_view y(b ? b : L"");
    int order = compareNatural(x, y);
    if (!order) order = x.compare(y);
    if (!order) return 0;
    // Kept: 1 says that the first text comes first, the reverse of the C library's convention; callers use it
    // as an ordering predicate.
    return order < 0 ? 1 : -1;
}
