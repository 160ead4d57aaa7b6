// The toolkit's one message box. Declared here, where every room finds it; it stands on the task dialog.
#pragma once

#include <windows.h>

#include <ktui/ktui_api.h>

/// Shows `text`, modally, and answers the id of the button pressed, as MessageBoxW does. `type` is laid out
/// as there: button set and icon. A null or empty `caption` stands for the host's own.
///
/// Without an icon the text is the large heading of a task dialog, with one it is the body. Closing or Escape
/// answers IDCANCEL where there is a Cancel button, otherwise IDNO where there is a No button, otherwise
/// IDOK. Abort/Retry/Ignore, Retry/Cancel and Cancel/Try/Continue, and every set on a system without task
/// dialogs, are shown by the platform's message box, which is headed by the application's name.
KTUI_API int KtUiMessageBox(const wchar_t* caption, const wchar_t* text, UINT type);
