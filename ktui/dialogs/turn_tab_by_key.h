// Turning the pages of a tabbed dialog by the keys that property sheets have.
#pragma once

#include <ktui/dialogs/kbui_tab.h>

/// Turns to the next page at Ctrl+Tab and Ctrl+PgDn, to the one before at Ctrl+Shift+Tab and Ctrl+PgUp, round
/// at the ends, as a click does: the page in front can refuse, and the focus stays where it was if it does.
/// TRUE if the message was one of these keys. Call it first in PreTranslateMessage of the main dialog and
/// of each page, which has the keys of its controls before the dialog.
KTUI_API BOOL KtUiTurnTabByKey(CKbUiTab& tab, const MSG& message);
