// CNavFileDlg: what it makes of the platform's dialog before that is shown.
#include <ktui/nav/nav_file_dlg.h>

#include <direct.h>

#include <ktdsres/nav_file_dialog_ids.h>
#include <ktut.h>

#include <ktui/host/loaded_module.h>
#include <ktui/host/string_resources.h>
#include <ktui/nav/nav_dialog_imp.h>
#include <ktui/nav/nav_keyboard_hook.h>
#include <ktui/nav/open_menu.h>
#include <ktui/nav/place_list.h>
#include <ktui/nav/platform_file_dialog.h>
#include <ktui/nav/thumbnail_ctrl.h>
#include <ktui/res/resource_ids.h>

void CNavFileDlg::OnInitDone() {
    dressPlatformWindow();
    hideUnwantedButtons();
    showPreview();
    showPlaces();
    subclassPlatformWindow();
    if (m_foldersOnly) bareForFolders();
    makeOpenMenu();
    if (CWnd* const find = GetDlgItem(IDC_NAV_FIND)) find->ModifyStyle(BS_DEFPUSHBUTTON, 0);
    // Kept: without a folder the base isn't asked.
    if (enterFolder()) CFileDialog::OnInitDone();
    SetNavHookDialog(this);
    SetNavKeyboardHook();
    focusFirst();
}

void CNavFileDlg::dressPlatformWindow() const {
    const HWND window = PlatformWindow();
    const auto icon = reinterpret_cast<LPARAM>(::LoadIconW(KtUiOwnModule(), MAKEINTRESOURCEW(IDI_DIALOG)));
    ::SendMessageW(window, WM_SETICON, ICON_BIG, icon);
    ::SendMessageW(window, WM_SETICON, ICON_SMALL, icon);
    CWnd::FromHandle(window)->ModifyStyleEx(WS_EX_CONTEXTHELP | WS_EX_DLGMODALFRAME, 0, SWP_FRAMECHANGED);
}

void CNavFileDlg::hideUnwantedButtons() const {
    const auto hide = [this](int id) { ::ShowWindow(control(id), SW_HIDE); };
    if (!m_owner->m_optionsButton) hide(IDC_NAV_OPTIONS);
    if (!m_owner->m_securityButton) hide(IDC_NAV_SECURITY);
    if (m_bOpenFileDialog) return;
    hide(IDC_NAV_LOCATE);
    hide(IDC_NAV_FIND);
}

void CNavFileDlg::showPreview() {
    if (control(IDC_NAV_PREVIEW) == nullptr) return;
    m_preview = std::make_unique<CThumbnailCtrl>();
    m_preview->SubclassDlgItem(IDC_NAV_PREVIEW, this);
}

void CNavFileDlg::showPlaces() {
    if (!m_owner->m_applicationMode || control(IDC_NAV_PLACES) == nullptr) return;
    m_placesList = std::make_unique<CPlaceList>(this, m_owner->m_owner->AppRootKey(), recentFolder());
    m_placesList->SubclassDlgItem(IDC_NAV_PLACES, this);
    if (const HWND bar = platformControl(kPlatformPlacesBar)) ::ShowWindow(bar, SW_HIDE);
    RelayoutPlaces();
    m_placesList->ShowWindow(SW_SHOWNA);
}

/// The folder for shortcuts, each dialog's own; empty if there is none.
CString CNavFileDlg::recentFolder() const {
    CString folder, name;
    if (!m_owner->m_owner->GetRecentDirectory(folder)) return {};
    if (!m_owner->m_owner->GetDialogName(name)) return folder;
    const OdString own = ktutCombinePath(folder, name);
    if (!ktutDirectoryExists(own.c_str())) ::_wmkdir(own.c_str());
    return own.c_str();
}

void CNavFileDlg::subclassPlatformWindow() {
    const HWND window = PlatformWindow();
    ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    m_originalWindowProc = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&platformWindowProc)));
}

void CNavFileDlg::bareForFolders() {
    for (const int id : {kPlatformTypeLabel, kPlatformNameLabel, kPlatformTypeBox, kPlatformNameBox,
                         kPlatformNameEdit, kPlatformReadOnly})
        HideControl(id);
    SetControlText(kPlatformNameLabel, LoadToolkitString(IDS_NAV_FOLDER, L"文件夹").GetString());
}

void CNavFileDlg::makeOpenMenu() {
    OpenMenuSettings settings;
    settings.opens = m_bOpenFileDialog != FALSE;
    settings.readOnlyHidden = m_owner->m_readOnlyHidden != 0;
    settings.partialOpen = m_owner->m_partialOpen != 0;
    settings.openWithoutTemplate = m_owner->m_openWithoutTemplate != 0;
    if (!HasOpenMenu(settings)) return;
    for (const OpenMenuEntry& entry : OpenMenuEntries(settings))
        m_menuButton.Menu().AppendMenu(MF_STRING, entry.command, LoadToolkitString(entry.textId, entry.text));
    m_menuButton.Attach(CWnd::FromHandle(PlatformWindow()), m_hWnd);
}

/// Makes the folder shown the process's current one; false if there is none.
bool CNavFileDlg::enterFolder() const {
    const CString folder = GetFolderPath();
    if (folder.IsEmpty()) return false;
    ::SetCurrentDirectoryW(folder);
    return true;
}

void CNavFileDlg::focusFirst() const {
    const HWND name = platformControl(kPlatformNameBox);
    ::SetFocus(name != nullptr ? name : platformControl(kPlatformView));
}
