// The check of a typed value against the C library's conversion there and back. Native.
#include <cstdlib>
#include <cwchar>
#include <new>

#include <ktui/input/value_validation.h>

#include "measure.h"

namespace {

constexpr int kCalls = 20000;
constexpr int kRounds = 41;
const wchar_t* const kTyped[] = {L"12.5", L"0.0625", L"1000", L"-3.75"};
const char* const kTypedNarrow[] = {"12.5", "0.0625", "1000", "-3.75"};

long long allocations;
double kept;  // keeps the peer's work from being optimised away

double time_ours() {
    return bench::seconds_of([] {
        CString text;
        for (int i = 0; i < kCalls; ++i) {
            text = kTyped[i % 4];
            ValidateValue(kKtUiEditNumeric, 0, 0, text);
        }
        kept += text.GetLength();
    });
}

double time_peer() {
    return bench::seconds_of([] {
        char text[64];
        for (int i = 0; i < kCalls; ++i) {
            const double value = std::strtod(kTypedNarrow[i % 4], nullptr);
            kept += std::snprintf(text, sizeof text, "%.4f", value);
        }
    });
}

/// Heap blocks that `calls` validations take, the assignment of the text before each counted apart.
double blocks_beyond_assignment() {
    CString text;
    long long assigning = 0, validating = 0;
    for (int i = 0; i < kCalls; ++i) {
        const long long before = allocations;
        text = kTyped[i % 4];
        const long long between = allocations;
        ValidateValue(kKtUiEditNumeric, 0, 0, text);
        assigning += between - before;
        validating += allocations - between;
    }
    std::printf("note\theap blocks in %d validations: %lld, in the assignments before them: %lld\n", kCalls,
                validating, assigning);
    return static_cast<double>(validating) / kCalls;
}

}  // namespace

void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

int main() {
    bench::report("validating a typed number", bench::compare(kRounds, kCalls, time_ours, time_peer), 0);
    std::printf("note\theap blocks per validation: %.3f\n", blocks_beyond_assignment());
    return 0;
}
