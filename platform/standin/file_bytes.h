// Whole files into memory, up to a size. Internal to the module.
#pragma once

#include <cstddef>
#include <string>

/// Reads all bytes of the file at `path`; false if it can't be opened or read, or is longer than `most`.
bool ReadFileBytes(const wchar_t* path, std::size_t most, std::string& bytes);
