// Texts of the resource library, with the literal that serves when it has none. Private to the library.
#pragma once

#include <afxwin.h>

/// The string `id` of the resource library, at most 999 characters of it, or `fallback` if the library is
/// missing or has no such string.
CString LoadToolkitString(UINT id, const wchar_t* fallback);
