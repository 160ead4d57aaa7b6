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

/// Previews of a host's own. Asked first for each file that is there: a bitmap for the caller to delete, or
/// null, and then the preview is found as without a provider. Called on the thread that paints, but where a
/// limit is set (never_blocked.h) on threads of the library's own.
using KtUiThumbnailProvider = HBITMAP (*)(const wchar_t* path, int width, int height);
/// Sets the provider, null for none; answers the former one. None is set at first.
KTUI_API KtUiThumbnailProvider KtUiSetThumbnailProvider(KtUiThumbnailProvider provider);
