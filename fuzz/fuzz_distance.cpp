// Any number as a distance comes back as the same text; any text is read or refused, and what is read can be
// written.
#include <cmath>

#include "number_input.h"

namespace {

void expectStable(double value, int mode, int precision) {
    wchar_t first[kKtdbBufferSize], second[kKtdbBufferSize];
    if (ktdbRToS(value, mode, precision, first) != kKtdbOk) {
        if (std::isfinite(value)) fail("a finite number has no text", first, L"");
        return;
    }
    double back = 0;
    if (ktdbDisToF(first, mode, &back) != kKtdbOk) fail("a text isn't read again", first, L"");
    ktdbRToS(back, mode, precision, second);
    if (std::wcscmp(first, second) != 0) fail("a text doesn't come back", first, second);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const NumberInput input(data, size);
    expectStable(input.number, input.mode + 1, input.precision);
    double value = 0;
    if (ktdbDisToF(input.text.c_str(), input.mode + 1, &value) == kKtdbOk) {
        if (!std::isfinite(value)) fail("a text was read as no number", input.text.c_str(), L"");
        expectStable(value, input.mode + 1, input.precision);
    }
    ktdbSNValid(input.text.c_str(), 1);
    return 0;
}
