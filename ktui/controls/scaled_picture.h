// Which of the pictures of a name suits a window. Private to the library.
#pragma once

#include <afxwin.h>

/// For a host that follows the system's appearance the name of the larger companion (NAME_125, NAME_150,
/// NAME_200) of the bitmap `name` in `module` that the resolution of `window` asks for, if there is one;
/// otherwise `name`.
CString ScaledPictureName(HWND window, HINSTANCE module, const wchar_t* name);
