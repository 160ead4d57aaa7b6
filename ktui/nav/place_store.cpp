#include <ktui/nav/place_store.h>

#include <ktui/text/registry_access.h>

namespace {

constexpr const wchar_t* kPlacesKey = L"AllAnavDialogs";

}  // namespace

std::vector<StoredPlace> LoadStoredPlaces(const CString& rootKey) {
    const CKbUiRegistryAccess key(HKEY_CURRENT_USER, rootKey + kPlacesKey);
    return PlacesIn([&key](const CString& name) { return key.GetString(name); });
}

bool SaveStoredPlaces(const CString& rootKey, const std::vector<StoredPlace>& places) {
    {
        // Kept: where this fails, the new values go over the old ones.
        CKbUiRegistryDeleteAccess parent(HKEY_CURRENT_USER, rootKey);
        parent.DeleteKey(kPlacesKey);
    }
    CKbUiRegistryWriteAccess key(HKEY_CURRENT_USER, rootKey + kPlacesKey);
    if (!key.IsOpen()) return false;
    PutPlaces(places, [&key](const CString& name, const CString& text) { key.SetString(name, text); });
    return true;
}
