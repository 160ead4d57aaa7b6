// Where the data of dialogs lies in the registry, below the current user. Private to the library.
#pragma once

#include <afx.h>

/// The root that all dialogs of the product share, for this user and version, with a backslash at its end.
CString ProductDialogRoot();

/// The key of one dialog's data below `root`, which ends in a backslash as the key does.
CString DialogDataKey(const wchar_t* root, const CString& dialogName);
