#include <ktui/nav/stored_values.h>

namespace {

constexpr int kMostRead = 99;  // Kept: however many were written.

CString placeName(int index) {
    CString name;
    name.Format(L"PlacesOrder%d", index);
    return name;
}

}  // namespace

std::vector<StoredPlace> PlacesIn(const TextOfValue& textOf) {
    std::vector<StoredPlace> places;
    for (int index = 0; index < kMostRead; ++index) {
        const CString value = placeName(index);
        const CString name = textOf(value);
        if (name.IsEmpty()) break;
        places.push_back({name, textOf(value + L"Display")});
    }
    return places;
}

void PutPlaces(const std::vector<StoredPlace>& places, const SetTextOfValue& set) {
    int index = 0;
    for (const StoredPlace& place : places) {
        const CString value = placeName(index++);
        set(value, place.name);
        set(value + L"Display", place.display);
        set(value + L"Ext", CString());
    }
    set(placeName(index), CString());
}

std::vector<CString> HistoryIn(const CString& format, int maximum, const TextOfValue& textOf) {
    std::vector<CString> items;
    for (int index = 0; index < maximum; ++index) {
        CString name;
        name.Format(format, index);
        const CString text = textOf(name);
        if (!text.IsEmpty()) items.push_back(text);  // Kept: a gap doesn't end the list.
    }
    return items;
}
