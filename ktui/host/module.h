// The library as its clients see it: nothing has to be called for it to work.
#pragma once

#include <windows.h>

#include <ktui/ktui_api.h>

/// Creates a link-time dependency on the library and does nothing. May be called at any time, any number of
/// times.
KTUI_API void InitKtUiDLL();
/// The same.
KTUI_API void InitKbUiDLL();

/// The module that resources are taken from at this moment: the resource library, unless the host or a
/// ResourceScope has pushed another.
KTUI_API HINSTANCE KtUiAppResourceInstance();
