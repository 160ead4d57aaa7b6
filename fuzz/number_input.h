// What the number fuzzers make of their bytes: a mode, a precision, a number, and a text.
#pragma once

#include <ktdb.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

struct NumberInput {
    int mode, precision;
    double number = 0;
    std::wstring text;

    NumberInput(const std::uint8_t* data, std::size_t size) {
        mode = size > 0 ? data[0] % 5 : 0;
        precision = size > 1 ? data[1] % 9 : 0;
        if (size >= 2 + sizeof number) std::memcpy(&number, data + 2, sizeof number);
        for (std::size_t i = 2; i < size && data[i]; ++i) text += static_cast<wchar_t>(data[i]);
    }
};

inline void fail(const char* what, const wchar_t* first, const wchar_t* second) {
    std::fprintf(stderr, "%s: \"%ls\" and \"%ls\"\n", what, first, second);
    std::abort();
}
