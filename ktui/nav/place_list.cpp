// What the Places list holds: reading, adding, storing and freeing its rows, and going to their folders.
#include <ktui/nav/place_list.h>

#include <memory>
#include <utility>
#include <vector>

#include <ktdsres/places_ids.h>

#include <ktui/host/appearance.h>
#include <ktui/host/message_box.h>
#include <ktui/host/string_resources.h>
#include <ktui/nav/current_folder.h>
#include <ktui/nav/nav_dialog_imp.h>
#include <ktui/nav/nav_file_dlg.h>
#include <ktui/nav/never_blocked.h>
#include <ktui/nav/patient_places.h>
#include <ktui/nav/place_item.h>
#include <ktui/nav/place_shell.h>
#include <ktui/nav/place_store.h>

IMPLEMENT_DYNAMIC(CPlaceList, CDragListBox2)

BEGIN_MESSAGE_MAP(CPlaceList, CDragListBox2)
    ON_WM_DESTROY()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_MOUSEHOVER()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_CONTEXTMENU()
    ON_WM_DROPFILES()
    ON_CONTROL_REFLECT_EX(LBN_SELCHANGE, &CPlaceList::OnSelectionChange)
    ON_COMMAND(IDM_PLACE_REMOVE, &CPlaceList::OnRemove)
    ON_COMMAND(IDM_PLACE_ADD_CURRENT, &CPlaceList::OnAddCurrentFolder)
    ON_COMMAND(IDM_PLACE_ADD, &CPlaceList::OnAdd)
    ON_COMMAND(IDM_PLACE_PROPERTIES, &CPlaceList::OnProperties)
    ON_COMMAND(IDM_PLACE_RESTORE, &CPlaceList::OnRestoreStandardFolders)
END_MESSAGE_MAP()

namespace {

constexpr int kIconRoom = 52;  // pixels of a row beside its line of text

/// The height of a row: that of a line in the font that a device context comes with, and the icon's room.
UINT rowHeight(HWND list) {
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const int height = static_cast<int>(dc.GetTextExtent(L"|", 1).cy) + kIconRoom;
    return static_cast<UINT>(KtUiAppearancePixels(list, height));
}

/// Gives a standard folder its path and caption; answers the path that its icon is asked for.
CString completeStandardPlace(PlaceItem& item, const CString& recentFolder) {
    const int folder = StandardPlaceFolder(item.m_type);
    if (item.m_type == kHistoryPlace) {
        item.m_path = recentFolder;
        item.m_display = LoadToolkitString(IDS_PLACE_HISTORY, L"History");
        CString path, display;
        SystemFolderNames(folder, path, display);
        return path;
    }
    if (item.m_type != kUserPlace) SystemFolderNames(folder, item.m_path, item.m_display);
    return item.m_path;
}

}  // namespace

CPlaceList::CPlaceList(CNavFileDlg* fileDialog, const wchar_t* rootKey, const wchar_t* recentFolder)
    : m_fileDialog(fileDialog), m_rootKey(rootKey), m_recentFolder(recentFolder) {}

CPlaceList::~CPlaceList() {
    // The window's end still frees the rows.
    DestroyWindow();
}

void CPlaceList::PreSubclassWindow() {
    CDragListBox2::PreSubclassWindow();
    DragAcceptFiles();
    loadPlaces();
    m_toolTip.Create(this, TTS_NOPREFIX);
    m_toolTip.AddTool(this, L"");
}

void CPlaceList::OnDestroy() {
    freeRows();
    CDragListBox2::OnDestroy();
}

void CPlaceList::FreePlaces() {
    if (m_hWnd == nullptr) return;
    freeRows();
    UnsubclassWindow();
}

void CPlaceList::freeRows() {
    for (int row = 0; row < GetCount(); ++row) delete itemAt(row);
    ResetContent();
    if (m_patient) m_patient->Forget();
    m_hotItem = m_contextItem = m_tipItem = -1;
    m_toolTip.DestroyWindow();
}

void CPlaceList::loadPlaces() {
    for (const StoredPlace& place : LoadStoredPlaces(m_rootKey))
        AddPlace(place.name, place.display, StandardPlaceType(place.name), -1);
    if (GetCount() == 0) restoreStandardFolders();
}

bool CPlaceList::restoreStandardFolders() {
    bool added = false;
    for (int type = kHistoryPlace; type <= kNetworkPlace; ++type)
        if (!hasType(type) && AddPlace({}, {}, type, -1) >= 0) added = true;
    return added;
}

bool CPlaceList::hasType(int type) const {
    for (int row = 0; row < GetCount(); ++row)
        if (itemAt(row)->m_type == type) return true;
    return false;
}

int CPlaceList::AddPlace(const CString& path, const CString& display, int type, int index) {
    auto item = std::make_unique<PlaceItem>(path, display, type);
    fetchIcon(*item, completeStandardPlace(*item, m_recentFolder));
    const int row = InsertString(index, item->m_display);
    if (row < 0) return -1;
    SetItemData(row, reinterpret_cast<DWORD_PTR>(item.release()));
    SetItemHeight(row, rowHeight(m_hWnd));
    return row;
}

int CPlaceList::SavePlaces(int ask) {
    if (!m_modified && !m_dragModified) return 1;
    const bool keep =
        ask == 0 ||
        KtUiMessageBox(nullptr,
                       LoadToolkitString(IDS_PLACES_SAVE,
                                         L"Would you like to save the changes you made to the Places list?"),
                       MB_YESNO | MB_ICONQUESTION) == IDYES;
    if (keep && !storePlaces()) return 0;
    m_modified = m_dragModified = 0;
    return keep ? 1 : 0;
}

bool CPlaceList::storePlaces() const {
    std::vector<StoredPlace> places;
    for (int row = 0; row < GetCount(); ++row) {
        const PlaceItem& item = *itemAt(row);
        places.push_back({item.m_type == kUserPlace ? item.m_path : CString(StandardPlaceName(item.m_type)),
                          item.m_display});
    }
    return SaveStoredPlaces(m_rootKey, places);
}

void CPlaceList::SyncSelection() {
    const CString folder = currentFolder();
    const int row = folder.IsEmpty() ? -1 : findPath(folder);
    if (row == GetCurSel()) return;
    SetCurSel(row);
    Invalidate();
}

void CPlaceList::OnLButtonUp(UINT flags, CPoint point) {
    const bool isDragging = GetCapture() == this;
    CDragListBox2::OnLButtonUp(flags, point);
    if (!isDragging) goToSelectedPlace();
}

void CPlaceList::goToSelectedPlace() {
    const PlaceItem* const item = itemAt(GetCurSel());
    if (item == nullptr || item->m_path.IsEmpty()) return;
    const CString path = item->m_path;
    if (const unsigned limit = KtUiNeverBlockedLimit())
        askForFolder(path, limit);
    else
        goTo(path, ::GetFileAttributesW(path));
}

void CPlaceList::goTo(const CString& path, DWORD attributes) {
    // Kept: for what has no attributes every bit is set, so virtual folders are gone to, and missing ones
    // are tried.
    if (!(attributes & FILE_ATTRIBUTE_DIRECTORY) || path == currentFolder()) return;
    Invalidate();
    m_fileDialog->NavigateTo(path);
    m_fileDialog->owner()->m_owner->OnFolderChange();
}

PlaceItem* CPlaceList::itemAt(int row) const {
    return row >= 0 && row < GetCount() ? reinterpret_cast<PlaceItem*>(GetItemData(row)) : nullptr;
}

int CPlaceList::findPath(const CString& path) const {
    for (int row = 0; row < GetCount(); ++row)
        if (itemAt(row)->m_path.CompareNoCase(path) == 0) return row;
    return -1;
}

CString CPlaceList::currentFolder() const { return CurrentFolder(::GetParent(m_fileDialog->GetSafeHwnd())); }
