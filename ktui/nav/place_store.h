// The Places list as the registry keeps it, one for all navigation dialogs of an application. Private to the
// library.
//
// Values are numbered without gaps; behind the last place stands one more name, an empty one.
#pragma once

#include <afxwin.h>

#include <vector>

#include <ktui/nav/stored_values.h>

/// The places below `rootKey` (of the current user, with its backslash) up to the first empty name, 99 at
/// most. None without the key.
std::vector<StoredPlace> LoadStoredPlaces(const CString& rootKey);

/// Puts `places` in the place of those stored; false, with none stored any more, if the key can't be made.
bool SaveStoredPlaces(const CString& rootKey, const std::vector<StoredPlace>& places);
