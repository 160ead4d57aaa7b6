// The toolkit with a resource library that has no strings, so that its built-in texts show.
#pragma once

#include <gtest/gtest.h>

#include "replaced_import.h"

namespace ui_test {

/// For as long as it lives; units of the toolkit that a test program links itself find none either.
class WithoutStrings {
public:
    WithoutStrings() { EXPECT_TRUE(m_toolkit.isThere()); }

private:
    static int WINAPI none(HINSTANCE, UINT, LPWSTR, int) { return 0; }

    ReplacedImport m_toolkit{::GetModuleHandleW(L"ktui.dll"), "LoadStringW", &none};
    ReplacedImport m_program{::GetModuleHandleW(nullptr), "LoadStringW", &none};
};

}  // namespace ui_test
