// A file's preview from the shell. Private to the library.
#pragma once

#include <windows.h>

/// What the shell's extractor of previews answers for the file at `path`, asked for `width` by `height`
/// pixels of 24 bits: a bitmap for the caller to delete, or null where any step fails.
HBITMAP ExtractShellThumbnail(const wchar_t* path, int width, int height);
