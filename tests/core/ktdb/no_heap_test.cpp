// The parsers and formatters run at every keystroke: they take nothing from the heap, and not much time.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <new>

#include "number_cases.h"

namespace {

long g_allocations = 0;

/// Nanoseconds of one call, the best of several runs.
template <class Call>
double timeOf(Call call) {
    constexpr int kCalls = 20000;
    double best = 1e9;
    for (int run = 0; run < 5; ++run) {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < kCalls; ++i) call(i);
        const std::chrono::duration<double, std::nano> spent = std::chrono::steady_clock::now() - start;
        best = std::min(best, spent.count() / kCalls);
    }
    return best;
}

}  // namespace

void* operator new(std::size_t size) {
    ++g_allocations;
    if (void* memory = std::malloc(size ? size : 1)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

TEST(NoHeap, NumbersAndAnglesTakeNothingFromTheHeap) {
    wchar_t buffer[kKtdbBufferSize];
    double value = 0;
    const long before = g_allocations;
    for (int mode = 1; mode <= 5; ++mode)
        for (const double number : {0.0, 15.5, -1e300, 1.0 / 3}) {
            ktdbRToS(number, mode, 8, buffer);
            ktdbDisToF(buffer, mode, &value);
            ktdbAngToS(number, mode - 1, 8, buffer);
            ktdbAngToF2(1, buffer, mode - 1, &value);
        }
    ktdbRToS(15.5, -1, -1, buffer);
    ktdbDisToF(L"not a number", -1, &value);
    ktdbSNValid(L"WALLS", 0);
    EXPECT_EQ(g_allocations - before, 0);
}

TEST(NoHeap, ADecimalTakesWellBelowAKeystroke) {
    wchar_t buffer[kKtdbBufferSize];
    double value = 0;
    const double reading = timeOf([&](int) { ktdbDisToF(L"1234.5678", 2, &value); });
    const double writing = timeOf([&](int i) { ktdbRToS(1234.5678 + i, 2, 4, buffer); });
    RecordProperty("reading_ns", static_cast<int>(reading));
    RecordProperty("writing_ns", static_cast<int>(writing));
    std::printf("reading %.0f ns, writing %.0f ns\n", reading, writing);
#ifdef NDEBUG
    constexpr double kMost = 1000;
#else
    constexpr double kMost = 20000;
#endif
    EXPECT_LT(reading, kMost);
    EXPECT_LT(writing, kMost);
}
