// What the user does to the Places list: its menu, and folders dropped on it.
#include <ktui/nav/place_list.h>

#include <shellapi.h>
#include <shlwapi.h>

#include <optional>

#include <ktdsres/places_ids.h>

#include <ktui/host/message_box.h>
#include <ktui/host/string_resources.h>
#include <ktui/nav/place_dlg.h>
#include <ktui/nav/place_item.h>
#include <ktui/nav/place_shell.h>

namespace {

/// The names that were dropped, freed at the end.
class DroppedNames {
public:
    explicit DroppedNames(HDROP drop) : m_drop(drop) {}
    ~DroppedNames() { ::DragFinish(m_drop); }
    DroppedNames(const DroppedNames&) = delete;
    DroppedNames& operator=(const DroppedNames&) = delete;

    UINT count() const { return ::DragQueryFileW(m_drop, 0xFFFFFFFF, nullptr, 0); }
    CString at(UINT index) const {
        const UINT length = ::DragQueryFileW(m_drop, index, nullptr, 0);
        CString name;
        ::DragQueryFileW(m_drop, index, name.GetBuffer(static_cast<int>(length)), length + 1);
        name.ReleaseBuffer();
        return name;
    }

private:
    HDROP m_drop;
};

/// What `name` stands for: of a shortcut its target, or none where that is not known.
std::optional<CString> resolved(CWnd& asking, const CString& name) {
    if (name.Right(4).CompareNoCase(L".lnk") != 0) return name;
    wchar_t target[MAX_PATH] = {};
    if (!AfxResolveShortcut(&asking, name, target, MAX_PATH)) return std::nullopt;
    return target;
}

}  // namespace

void CPlaceList::OnContextMenu(CWnd*, CPoint point) {
    m_contextItem = rowUnderCursor();
    const PlaceItem* const item = itemAt(m_contextItem);
    CMenu menu;
    menu.CreatePopupMenu();
    const auto append = [&menu](UINT command, UINT text, const wchar_t* fallback, bool isGrey) {
        menu.AppendMenu(isGrey ? MF_GRAYED : MF_ENABLED, command, LoadToolkitString(text, fallback));
    };
    append(IDM_PLACE_REMOVE, IDS_PLACE_REMOVE, L"R&emove", item == nullptr);
    append(IDM_PLACE_ADD_CURRENT, IDS_PLACE_ADD_CURRENT, L"Add &Current Folder",
           findPath(currentFolder()) >= 0);
    append(IDM_PLACE_ADD, IDS_PLACE_ADD, L"&Add", false);
    append(IDM_PLACE_PROPERTIES, IDS_PLACE_EDIT, L"&Properties",
           item == nullptr || item->m_type != kUserPlace);
    menu.AppendMenu(MF_SEPARATOR);
    append(IDM_PLACE_RESTORE, IDS_PLACES_RESTORE, L"&Restore Standard Folders", false);
    // Asked for by a key, the menu comes where the mouse is, since that is where its row is.
    if (point == CPoint(-1, -1)) ::GetCursorPos(&point);
    menu.TrackPopupMenu(TPM_RIGHTBUTTON, point.x, point.y, this);
}

void CPlaceList::OnRemove() {
    const PlaceItem* const item = itemAt(m_contextItem);
    if (item == nullptr) return;
    CString question;
    question.Format(
        LoadToolkitString(IDS_PLACE_REMOVE_SURE, L"Are you sure you want to remove '%s' from Places?"),
        item->m_path.GetString());
    if (KtUiMessageBox(nullptr, question, MB_YESNO | MB_ICONEXCLAMATION) != IDYES) return;
    delete item;
    DeleteString(static_cast<UINT>(m_contextItem));
    m_modified = 1;
}

void CPlaceList::OnAddCurrentFolder() {
    const CString folder = currentFolder();
    const int row = AddPlace(folder, PlaceDisplayName(folder), kUserPlace, m_contextItem);
    if (row < 0) return;
    SetCurSel(row);
    m_modified = 1;
}

void CPlaceList::OnAdd() {
    CPlaceDlg dialog(this);
    if (dialog.DoModal() != IDOK) return;
    if (AddPlace(dialog.m_path, dialog.m_display, kUserPlace, m_contextItem) >= 0) m_modified = 1;
}

void CPlaceList::OnProperties() {
    PlaceItem* const item = itemAt(m_contextItem);
    if (item == nullptr) return;
    CPlaceDlg dialog(this, item->m_display, item->m_path);
    if (dialog.DoModal() != IDOK) return;
    const bool isElsewhere = item->m_path.CompareNoCase(dialog.m_path) != 0;
    item->m_display = dialog.m_display;
    item->m_path = dialog.m_path;
    if (isElsewhere) fetchIcon(*item, item->m_path);
    redrawRow(m_contextItem);
    m_modified = 1;
}

void CPlaceList::OnRestoreStandardFolders() {
    if (restoreStandardFolders()) m_modified = 1;
}

void CPlaceList::OnDropFiles(HDROP drop) {
    const DroppedNames names(drop);
    int index = rowUnderCursor();
    if (index < 0) index = GetCount();
    for (UINT i = 0; i < names.count(); ++i) {
        const auto folder = resolved(*this, names.at(i));
        if (!folder || !::PathIsDirectoryW(*folder)) continue;
        if (AddPlace(*folder, PlaceDisplayName(*folder), kUserPlace, index) < 0) continue;
        ++index;
        m_modified = 1;
    }
}
