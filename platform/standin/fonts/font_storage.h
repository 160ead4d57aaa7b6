// What the font list asks of the file system: the font files of a folder with their stamps, and a file
// written in one step.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "font_cache.h"

/// The font files of `folder`, by their extensions, in the order of their names. A folder that is missing or
/// can't be read has none. Folders below it aren't looked at.
STANDIN_API std::vector<FontFileStamp> listFontFolder(const std::wstring& folder);

/// The stamp of one file; false if there is no such file.
STANDIN_API bool stampOfFile(const std::wstring& path, FontFileStamp& stamp);

/// When something was last added to, or taken from, `folder`, in units of the system; 0 if there is no such
/// folder.
STANDIN_API std::int64_t timeOfFolder(const std::wstring& folder);

/// Writes `bytes` to a new file beside `path` and puts that in its place; the folder is made if it is
/// missing. On failure the new file is removed again, and what stood at `path` is as it was.
STANDIN_API bool replaceFile(const std::wstring& path, std::string_view bytes);
