#include "command_route.h"

#include <kmfc/thread.h>

BOOL kmfc::route_to_owner(CWnd& window, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) {
    if (code != CN_COMMAND && code != CN_UPDATE_COMMAND_UI) return FALSE;
    if (id < 0x8000 || id >= 0xF000) return FALSE;
    CWnd* owner = window.GetParent();
    if (owner != nullptr && owner->OnCmdMsg(id, code, extra, info)) return TRUE;
    CWinThread* thread = AfxGetThread();
    return thread != nullptr && thread->OnCmdMsg(id, code, extra, info);
}
