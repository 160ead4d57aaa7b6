// Previews of files: drawings carry their own, other files have the shell's.
#pragma once

#include <windows.h>

#include <ktui/ktui_api.h>

/// The preview of the file at `path` as a bitmap for the caller to delete, at most about `width` by `height`
/// pixels where the shell makes it; null for a folder, a file that isn't there and one without preview. Reads
/// the file.
KTUI_API HBITMAP ktuiGetThumbnail(const wchar_t* path, int width, int height);

/// Paints the preview of a file into the middle of `width` by `height` pixels at the origin of `dc`: made
/// smaller to fit, never larger. Whether there was one.
KTUI_API bool ktuiDisplayThumbnail(const wchar_t* path, HDC dc, int width, int height);
