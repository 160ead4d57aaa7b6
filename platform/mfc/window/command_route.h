// Where commands go that a dialog or a property sheet has no handler for.
#pragma once

#include <kmfc/wnd.h>

namespace kmfc {

/// Offers a command of `window`, or a request about one, to its owner and then to the thread. Notifications
/// of controls and the ids of dialogs' own buttons stay with the window: FALSE for them, and where nobody
/// takes it.
BOOL route_to_owner(CWnd& window, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info);

}  // namespace kmfc
