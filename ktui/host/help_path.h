// Where a help file lies.
#pragma once

#include <afx.h>

#include <ktui/ktui_api.h>

/// Looks a help file up in the application's search folders. Answers 1 with its full path in `path`, or 0
/// with `path` untouched.
KTUI_API int KbUiFindContextHelpFullPath(const wchar_t* name, CString& path);
