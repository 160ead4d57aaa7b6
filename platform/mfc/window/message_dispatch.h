// Turns a message and a map entry into a call of the handler. Internal to the class layer.
#pragma once

#include <kmfc/wnd.h>

namespace kmfc {

/// Calls the window handler of `entry`. `message` is the message as it arrived (WM_CTLCOLOREDIT, not
/// WM_CTLCOLOR).
LRESULT invoke_window_handler(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, UINT message, WPARAM wParam,
                              LPARAM lParam);

/// A notification in flight through OnCmdMsg.
struct NotifyContext {
    NMHDR* pNMHDR;
    LRESULT* pResult;
};

/// Calls a command, notification or update-command-UI handler, or only reports it in `info`.
/// TRUE when the handler says the command is done.
BOOL invoke_command_handler(CCmdTarget* target, UINT id, int code, const AFX_MSGMAP_ENTRY& entry, void* extra,
                            AFX_CMDHANDLERINFO* info);

/// First entry of `entries` for `message`, control notification `code` and control `id`; null when none fits.
const AFX_MSGMAP_ENTRY* find_command_entry(const AFX_MSGMAP_ENTRY* entries, UINT message, UINT code, UINT id);

}  // namespace kmfc
