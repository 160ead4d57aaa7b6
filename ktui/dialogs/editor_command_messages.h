// What a dialog sends when the user begins or ends work in the drawing. Private to the library.
#pragma once

#include <afxwin.h>

#include <ktui/host/notification.h>

/// The dialog's id as its notifications carry it.
inline unsigned EditorCommandId(const CWnd& dialog) {
    return static_cast<unsigned>(dialog.GetDlgCtrlID()) & 0xFFFF;
}

/// Tells `main` of the dialog's editor command: 1 began, 0 completed, -1 cancelled.
inline void TellMainWindow(CWnd* main, const CWnd& dialog, LPARAM state) {
    KbUiNotify(main, EditorCommandId(dialog), kKbUiNotifyEditorCommand, static_cast<unsigned __int64>(state));
}

/// Sends `notification` to every parent of the dialog, up to and without `main` and `desktop` (which may be
/// null).
inline void TellParents(const CWnd& dialog, KBUI_NOTIFY notification, HWND main, HWND desktop) {
    const WPARAM word = PackKbUiNotification(EditorCommandId(dialog), notification);
    for (HWND parent = ::GetParent(dialog.m_hWnd); parent != nullptr && parent != main && parent != desktop;
         parent = ::GetParent(parent))
        ::SendMessageW(parent, KbUiMessage(), word, 0);
}
