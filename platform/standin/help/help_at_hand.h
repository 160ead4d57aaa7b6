// The help topic of whatever the user is at. Internal to the module.
#pragma once

#include <map>

#include <afxwin.h>

/// Topics by the help id of a window's template.
using HelpIds = std::map<DWORD, CString>;

/// The topic of `window`, or of the nearest window around it that has one: the help tag of a dialog of the
/// toolkit, or the topic of `ids` for the window's help id. Owners count as around their windows. Empty if
/// none has one, also for null.
CString HelpTopicOf(HWND window, const HelpIds& ids);
