// Validation runs at every keystroke, so what it allocates is counted. Needs AddressSanitizer's hooks.
#include <ktui/input/value_validation.h>

#ifdef __SANITIZE_ADDRESS__
#include <gtest/gtest.h>

#include <cstddef>

extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void*, std::size_t),
                                                         void (*onFree)(const volatile void*));

namespace {

int allocations = 0;

/// Number of heap blocks that one validation of `text` takes.
int AllocationsOf(DWORD mask, const wchar_t* text) {
    static const int installed = __sanitizer_install_malloc_and_free_hooks(
        [](const volatile void*, std::size_t) { ++allocations; }, [](const volatile void*) {});
    EXPECT_GT(installed, 0);
    CString copy = text;
    const int before = allocations;
    ValidateValue(mask, 0, 0, copy);
    return allocations - before;
}

}  // namespace

TEST(ValidationHeap, LegalNumberCostsOneStringAtMost) {
    EXPECT_LE(AllocationsOf(kKtUiEditNumeric, L"12345.6789"), 1);
    EXPECT_LE(AllocationsOf(kKtUiEditAngle, L"45"), 1);
}

TEST(ValidationHeap, RefusedTextCostsNothing) {
    EXPECT_EQ(AllocationsOf(kKtUiEditNumeric, L"nonsense"), 0);
    EXPECT_EQ(AllocationsOf(kKtUiEditAngle, L"nonsense"), 0);
    EXPECT_EQ(AllocationsOf(kKtUiEditSymbol | kKtUiEditNoBlank, L"a<b"), 0);
    EXPECT_EQ(AllocationsOf(kKtUiEditString | kKtUiEditNoBlank, L""), 0);
}

#endif
