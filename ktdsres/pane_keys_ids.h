// Ids of pane_keys.rc: what names the parts of a main window when the keyboard goes through them. Shared by
// the toolkit's code and the script; numbers are fixed.
#pragma once

#define IDS_PANE_KEYS_MIDDLE 54641
