// The code pages that big fonts have their letters by. Internal to the module.
#pragma once

#include <string_view>

/// Whether characters of a code page have two bytes.
bool IsEastAsian(int codePage);

/// The code page of a widespread big font by its file's name, with or without folder and extension, for
/// drawings whose own page has no such letters; 0 for another file.
int CodePageOfBigFont(std::wstring_view file);
