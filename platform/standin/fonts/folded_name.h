// Names of fonts and folders as they are compared.
#pragma once

#include <string>
#include <string_view>

#include <od_string.h>

/// The text with each letter in the case that comparing goes by.
inline std::wstring FoldedName(std::wstring_view text) {
    std::wstring result(text);
    for (wchar_t& c : result) c = odFoldCase(c);
    return result;
}
