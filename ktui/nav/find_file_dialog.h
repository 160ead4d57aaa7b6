// The search for files on top of a file dialog.
#pragma once

#include <od_string.h>

#include <ktui/ktui_api.h>

/// Lets the user search for files by name, type, place and date. `filter` is the platform's filter text:
/// zero-terminated strings in pairs, description and patterns, with an empty one at the end; null is none.
/// `filterIndex` is the type at first, from 1; `folder`, if not empty, the place. True if the user chose a
/// file, whose folder and name go to `outFolder` and `outFile`; otherwise these stay as they are.
KTUI_API bool ktuiFindFileDialog(const wchar_t* filter, int filterIndex, const wchar_t* folder,
                                 OdString& outFolder, OdString& outFile);
