// What a change of the file type brings about in the application's navigation dialogs. Without any window.
// Private to the library; its tests link it by itself.
#pragma once

#include <optional>

#include <ktui/nav/nav_filter.h>

/// The folder to go to, with a backslash at its end, for the path where templates lie; nothing for none.
std::optional<CString> FolderToEnter(const CString& templatePath);

/// The pattern that names the extension of a file to be saved by `filter` (null is none); nothing if the
/// filter has no patterns, or its first one is empty or stands for all files.
std::optional<CString> PatternForSaving(const CNavFilter* filter);

/// `typed` by its name alone, with the extension of `pattern`; nothing if nothing is typed.
std::optional<CString> NameForPattern(const CString& typed, const CString& pattern);
