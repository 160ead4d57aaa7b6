// A file's preview from the shell. Private to the library; its tests link it by itself.
#pragma once

#include <windows.h>

#include <shlobj.h>

/// What the extractor of previews answers for the file at `path`, asked for `width` by `height` pixels of 24
/// bits; null where any step fails. `desktop` leads to the file's folder, `allocator` frees what it names by.
HBITMAP ExtractShellThumbnail(IShellFolder& desktop, IMalloc& allocator, const wchar_t* path, int width,
                              int height);
