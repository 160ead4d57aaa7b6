#include <ktui/nav/place_list.h>

CPlaceList::CPlaceList(CNavFileDlg* dialog, const wchar_t* rootKey, const wchar_t* recentFolder)
    : m_fileDialog(dialog), m_rootKey(rootKey), m_recentFolder(recentFolder) {}

CPlaceList::~CPlaceList() = default;

int CPlaceList::SavePlaces(int) { return 1; }

void CPlaceList::SyncSelection() {}

void CPlaceList::FreePlaces() {
    if (m_hWnd != nullptr) UnsubclassWindow();
}
