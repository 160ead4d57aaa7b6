// Where this system keeps fonts, and where a program keeps what it has read of them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// The fonts folder of the system and that of the user.
std::vector<std::wstring> systemFontFolders();

/// The files outside these folders that the registry lists as fonts, of the machine and of the user, by their
/// whole paths, sorted. Names without a path mean files in the fonts folder, and are left out.
std::vector<std::wstring> registeredFontFiles();

/// When a list of fonts in the registry was last changed, in units of the system; it only ever matters
/// whether the numbers are the same.
std::vector<std::int64_t> registeredFontTimes();

/// The user's own cache of fonts, below the local application data; empty if the system has no such place.
std::wstring userFontCacheFile();
