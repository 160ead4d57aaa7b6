// The toolkit's one message box.
#pragma once

#include <windows.h>

#include <ktui/ktui_api.h>

/// Shows `text`, modally, and answers the id of the button pressed, as MessageBoxW does. `type` is laid out
/// as there: button set and icon. A null or empty `caption` stands for the host's own.
KTUI_API int KtUiMessageBox(const wchar_t* caption, const wchar_t* text, UINT type);
