// What numbered values of the registry say: the places of the file dialogs, and the texts that a box
// remembers. Without the registry itself. Private to the library; its tests link it by itself.
#pragma once

#include <afx.h>

#include <functional>
#include <vector>

/// Answers the text of a value by its name; empty for none.
using TextOfValue = std::function<CString(const CString& name)>;
/// Sets a value.
using SetTextOfValue = std::function<void(const CString& name, const CString& text)>;

/// One place.
struct StoredPlace {
    CString name;     ///< of a standard folder, or else the path
    CString display;  ///< the caption
};

/// The places up to the first empty name, 99 at most.
std::vector<StoredPlace> PlacesIn(const TextOfValue& textOf);
/// Sets the values of all places, and the empty name behind them.
void PutPlaces(const std::vector<StoredPlace>& places, const SetTextOfValue& set);

/// The texts of the values 0 to `maximum` - 1 that aren't empty. `format` is a value's name with one %d.
std::vector<CString> HistoryIn(const CString& format, int maximum, const TextOfValue& textOf);
