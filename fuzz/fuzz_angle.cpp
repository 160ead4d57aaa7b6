// Any number as an angle comes back as the same text; any text is read or refused, and what is read can be
// written.
#include <cmath>

#include "number_input.h"

namespace {

void expectStable(double value, int mode, int precision) {
    wchar_t first[kKtdbBufferSize], second[kKtdbBufferSize];
    if (ktdbAngToS(value, mode, precision, first) != kKtdbOk) {
        if (std::isfinite(value)) fail("a finite angle has no text", first, L"");
        return;
    }
    double back = 0;
    if (ktdbAngToF2(1, first, mode, &back) != kKtdbOk) fail("a text isn't read again", first, L"");
    ktdbAngToS(back, mode, precision, second);
    if (std::wcscmp(first, second) != 0) fail("a text doesn't come back", first, second);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const NumberInput input(data, size);
    expectStable(input.number, input.mode, input.precision);
    double value = 0;
    if (ktdbAngToF2(1, input.text.c_str(), input.mode, &value) == kKtdbOk) {
        if (!std::isfinite(value)) fail("a text was read as no angle", input.text.c_str(), L"");
        expectStable(value, input.mode, input.precision);
    }
    return 0;
}
