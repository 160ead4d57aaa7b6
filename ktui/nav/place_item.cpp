#include <ktui/nav/place_item.h>

#include <shlobj.h>

namespace {

struct StandardFolder {
    const wchar_t* name;
    int folder;
};

// By type; the first stands for no standard folder.
constexpr StandardFolder kStandardFolders[] = {
    {L"", 0},
    {L"History", CSIDL_RECENT},
    {L"Personal", CSIDL_PERSONAL},
    {L"Favorites", CSIDL_FAVORITES},
    {L"Desktop", CSIDL_DESKTOP},
    {L"Network", CSIDL_NETWORK},
};

const StandardFolder& standardFolder(int type) {
    return kStandardFolders[type >= kHistoryPlace && type <= kNetworkPlace ? type : kUserPlace];
}

}  // namespace

const wchar_t* StandardPlaceName(int type) { return standardFolder(type).name; }

int StandardPlaceType(const CString& name) {
    for (int type = kHistoryPlace; type <= kNetworkPlace; ++type)
        if (name == StandardPlaceName(type)) return type;
    return kUserPlace;
}

int StandardPlaceFolder(int type) { return standardFolder(type).folder; }

PlaceItem::PlaceItem(const CString& path, const CString& display, int type)
    : m_path(path), m_display(display), m_type(type) {}

PlaceItem::~PlaceItem() { TakeIcon(nullptr); }

void PlaceItem::TakeIcon(HICON icon) {
    if (m_icon != nullptr) ::DestroyIcon(m_icon);
    m_icon = icon;
}
