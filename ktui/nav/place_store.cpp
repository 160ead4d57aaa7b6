#include <ktui/nav/place_store.h>

#include <ktui/text/registry_access.h>

namespace {

constexpr const wchar_t* kPlacesKey = L"AllAnavDialogs";
constexpr int kMostRead = 99;  // Kept: however many were written.

CString valueName(int index) {
    CString name;
    name.Format(L"PlacesOrder%d", index);
    return name;
}

}  // namespace

std::vector<StoredPlace> LoadStoredPlaces(const CString& rootKey) {
    std::vector<StoredPlace> places;
    const CKbUiRegistryAccess key(HKEY_CURRENT_USER, rootKey + kPlacesKey);
    if (!key.IsOpen()) return places;
    for (int index = 0; index < kMostRead; ++index) {
        const CString value = valueName(index);
        const CString name = key.GetString(value);
        if (name.IsEmpty()) break;
        places.push_back({name, key.GetString(value + L"Display")});
    }
    return places;
}

bool SaveStoredPlaces(const CString& rootKey, const std::vector<StoredPlace>& places) {
    {
        // Kept: where this fails, the new values go over the old ones.
        CKbUiRegistryDeleteAccess parent(HKEY_CURRENT_USER, rootKey);
        parent.DeleteKey(kPlacesKey);
    }
    CKbUiRegistryWriteAccess key(HKEY_CURRENT_USER, rootKey + kPlacesKey);
    if (!key.IsOpen()) return false;
    int index = 0;
    for (const StoredPlace& place : places) {
        const CString value = valueName(index++);
        key.SetString(value, place.name);
        key.SetString(value + L"Display", place.display);
        key.SetString(value + L"Ext", CString());
    }
    key.SetString(valueName(index), CString());
    return true;
}
