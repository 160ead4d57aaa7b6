#include <ktui/nav/view_memory.h>

#include <afxcmn.h>

#include <ktui/nav/nav_dialog_imp.h>
#include <ktui/nav/nav_file_dlg.h>
#include <ktui/nav/platform_file_dialog.h>
#include <ktui/nav/sort_state_map.h>

static_assert(kSortedUp == HDF_SORTUP && kSortedDown == HDF_SORTDOWN);

namespace {

constexpr const wchar_t* kViewMode = L"ViewMode";

HWND headerOf(HWND list) {
    return list != nullptr ? reinterpret_cast<HWND>(::SendMessageW(list, LVM_GETHEADER, 0, 0)) : nullptr;
}

int columnCount(HWND header) { return static_cast<int>(::SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)); }

int formatOf(HWND header, int column) {
    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    ::SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&item));
    return item.fmt;
}

void keepOrder(const CString& name, HWND header) {
    for (int column = 0; column < columnCount(header); ++column) {
        const int bits = formatOf(header, column) & kSortBits;
        if (bits == 0) continue;
        SortStateMap()[name] = {column, bits};
        return;
    }
}

void click(HWND list, int column) {
    NMLISTVIEW notice = {};
    notice.hdr.hwndFrom = list;
    notice.hdr.idFrom = static_cast<UINT_PTR>(::GetDlgCtrlID(list));
    notice.hdr.code = LVN_COLUMNCLICK;
    notice.iItem = -1;
    notice.iSubItem = column;
    ::SendMessageW(::GetParent(list), WM_NOTIFY, notice.hdr.idFrom, reinterpret_cast<LPARAM>(&notice));
}

void restoreOrder(const CString& name, HWND list) {
    const auto found = SortStateMap().find(name);
    const HWND header = headerOf(list);
    if (found == SortStateMap().end() || header == nullptr) return;
    const SortState state = found->second;
    if (state.column >= columnCount(header)) return;
    for (int clicks = SortClicks(formatOf(header, state.column), state.bits); clicks > 0; --clicks)
        click(list, state.column);
}

}  // namespace

void SaveViewState(const CNavFileDlg& dialog) {
    if (IsLaterSystem()) return;
    const HWND window = dialog.PlatformWindow();
    ComReference<IShellView> view;
    FindShellView(window, view);
    FOLDERSETTINGS settings = {};
    if (!view || FAILED(view->GetCurrentInfo(&settings))) return;
    CNavDialog& owner = *dialog.owner()->m_owner;
    owner.SetDialogData(kViewMode, static_cast<unsigned long>(settings.ViewMode));
    CString name;
    const HWND header = headerOf(FindFileList(window));
    if (settings.ViewMode == FVM_DETAILS && header != nullptr && owner.GetDialogName(name))
        keepOrder(name, header);
}

void ApplyViewState(const CNavFileDlg& dialog, HWND list) {
    CNavDialog& owner = *dialog.owner()->m_owner;
    unsigned long mode = 0;
    if (IsLaterSystem() || !owner.GetDialogData(kViewMode, mode)) return;
    ComReference<IFolderView> view;
    FindFolderView(dialog.PlatformWindow(), view);
    if (!view) return;
    view->SetCurrentViewMode(static_cast<UINT>(mode));
    CString name;
    if (mode == FVM_DETAILS && owner.GetDialogName(name)) restoreOrder(name, list);
}
