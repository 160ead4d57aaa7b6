#include <ktui/host/string_resources.h>

#include <ktui/host/loaded_module.h>

namespace {

constexpr int kTextSize = 1000;  // characters, terminator included

}  // namespace

CString LoadToolkitString(UINT id, const wchar_t* fallback) {
    wchar_t text[kTextSize];
    const HMODULE library = StringLibrary();
    const int length = library ? ::LoadStringW(library, id, text, kTextSize) : 0;
    return length > 0 ? CString(text, length) : CString(fallback);
}
