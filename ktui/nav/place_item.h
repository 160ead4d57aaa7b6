// One row of the Places list, and the standard folders that stand among the user's own. Private to the
// library.
#pragma once

#include <afxwin.h>

/// What a row stands for. The numbers are the standard folders' types.
enum PlaceType : int {
    kUserPlace = 0,
    kHistoryPlace = 1,  ///< the dialog's own folder of recent files
    kPersonalPlace = 2,
    kFavoritesPlace = 3,
    kDesktopPlace = 4,
    kNetworkPlace = 5
};

/// Name of a standard folder in the registry; empty for a user's folder.
const wchar_t* StandardPlaceName(int type);
/// The standard folder with this name, with regard to case; kUserPlace if there is none.
int StandardPlaceType(const CString& name);
/// The system's number (CSIDL_...) of a standard folder; 0 for a user's folder.
int StandardPlaceFolder(int type);

/// A row.
struct PlaceItem {
    PlaceItem(const CString& path, const CString& display, int type);
    ~PlaceItem();
    PlaceItem(const PlaceItem&) = delete;
    PlaceItem& operator=(const PlaceItem&) = delete;

    /// Takes `icon` over and destroys the one before; null for none.
    void TakeIcon(HICON icon);

    CString m_path;     ///< full, or "::" and a class id for a virtual folder; may be empty
    CString m_display;  ///< the caption
    HICON m_icon = nullptr;
    int m_type;                  ///< PlaceType
    unsigned m_iconRequest = 0;  ///< of the icon that is being read; 0 for none
};
