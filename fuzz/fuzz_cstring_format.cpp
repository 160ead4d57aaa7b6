// Any text as a format, with arguments of every kind: no format may read or write out of bounds, and printing
// the same thing twice gives the same text.
#include <afx.h>

#include <cstdint>
#include <cstdlib>

namespace {

/// Widths and precisions of more than five digits are legal but only cost time.
bool asks_for_much(const CString& format) {
    int digits = 0;
    for (int i = 0; i < format.GetLength(); ++i) {
        digits = format[i] >= L'0' && format[i] <= L'9' ? digits + 1 : 0;
        if (digits > 5) return true;
    }
    return false;
}

template <class String>
String print(const String& format, const CString& text) {
    String result;
    result.Format(format.GetString(), text, "narrow", 42, -1LL, 2.5, L"wide", nullptr, L'c', 1e300, 7u);
    return result;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const CStringA narrow(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const CString wide(narrow);
    if (asks_for_much(wide)) return 0;
    const CString once = print(wide, wide);
    if (once != print(wide, wide)) std::abort();
    CString appended(L"x");
    appended.AppendFormat(wide.GetString(), 1, 2.0, L"three");
    if (appended[0] != L'x') std::abort();
    print(narrow, wide);
    return 0;
}
