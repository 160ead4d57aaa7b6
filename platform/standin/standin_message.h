// The messages of the host's own dialogs, all by the toolkit's message box. Internal to the module.
#pragma once

#include <afxwin.h>

#include <ktui/host/message_box.h>

/// Shows `text` under the host's caption; the button's id. `type` as for MessageBoxW.
inline int ShowStandinMessage(const CString& text, UINT type) { return KtUiMessageBox(nullptr, text, type); }

/// The same for a text of the module in force.
inline int ShowStandinMessage(UINT textId, UINT type) {
    CString text;
    text.LoadString(textId);
    return ShowStandinMessage(text, type);
}
