// A part of a menu that lists names.
#pragma once

#include <vector>

#include <afxwin.h>

/// Puts `names` in the place of the menu's entry of the command `item`, which is the first of a range that
/// ends with `last`; those that find no room are left out. The entry of index `checked` is checked, none for
/// -1. Without names the string `none` stands there, disabled. To be called from the update handler of the
/// first command.
void ListNamesInMenu(CCmdUI& item, const std::vector<CString>& names, UINT last, UINT none, int checked = -1);
