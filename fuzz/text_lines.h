// What fuzzers of texts share: lines of the input as wide text, and failing with words.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

[[noreturn]] inline void fail(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

/// The lines of the input; a byte is a character, and 0 is left out. At least one line.
inline std::vector<std::wstring> linesOf(const std::uint8_t* data, std::size_t size) {
    std::vector<std::wstring> lines(1);
    for (std::size_t i = 0; i < size; ++i)
        if (data[i] == '\n')
            lines.emplace_back();
        else if (data[i] != 0)
            lines.back() += static_cast<wchar_t>(data[i]);
    return lines;
}
