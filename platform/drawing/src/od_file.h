// Whole files in and out, by wide paths on every system.
#pragma once

#include <string>
#include <string_view>
#include "od_group_list.h"

/// Reads all bytes of a file; false if it can't be opened or read.
bool odReadFile(const wchar_t* path, std::string& bytes);

/// Writes `bytes` to a new file beside `path`, and then puts that in the place of `path`. On failure the new
/// file is removed again, and what stood at `path` is as it was.
bool odReplaceFile(const wchar_t* path, std::string_view bytes);

/// The bytes that the hexadecimal texts with `code` spell, in order. Reading stops at the first illegal
/// digit.
std::string odHexToBytes(const OdGroupList& groups, int code);
/// Two hexadecimal digits for each byte, in capitals.
std::string odBytesToHex(std::string_view bytes);
