#include <ktui/nav/nav_file_dlg.h>

#include <ktdsres/nav_file_dialog_ids.h>
#include <ktut.h>

#include <ktui/nav/file_dialog_rules.h>
#include <ktui/nav/list_ctrl_ex.h>
#include <ktui/nav/nav_dialog_imp.h>
#include <ktui/nav/nav_keyboard_hook.h>
#include <ktui/nav/open_menu.h>
#include <ktui/nav/place_list.h>
#include <ktui/nav/platform_file_dialog.h>
#include <ktui/nav/thumbnail_ctrl.h>

namespace {

/// Two zeros behind the only text: its match list is empty, and the list ends.
constexpr wchar_t kFoldersOnlyFilter[] = L"Folders Only\0\0";

}  // namespace

IMPLEMENT_DYNAMIC(CNavFileDlg, CFileDialog)

BEGIN_MESSAGE_MAP(CNavFileDlg, CFileDialog)
    ON_WM_CTLCOLOR()
    ON_WM_DESTROY()
    ON_COMMAND_RANGE(kMenuOpen, kMenuOpenMetric, &CNavFileDlg::OnOpenMenuCommand)
    ON_COMMAND(IDC_NAV_LOCATE, &CNavFileDlg::Locate)
    ON_COMMAND(IDC_NAV_FIND, &CNavFileDlg::FindFile)
    ON_COMMAND(IDC_NAV_OPTIONS, &CNavFileDlg::ShowSaveOptions)
    ON_COMMAND(IDC_NAV_SECURITY, &CNavFileDlg::ShowSecurityOptions)
END_MESSAGE_MAP()

CNavFileDlg::CNavFileDlg(CNavDialogImp* owner, int open, const wchar_t* fileName, unsigned long flags,
                         const wchar_t* filter)
    : CFileDialog(open, nullptr, fileName, flags | OFN_HIDEREADONLY | OFN_EXPLORER | OFN_ENABLESIZING, filter,
                  nullptr),
      m_owner(owner) {
    m_foldersOnly = open && owner->m_foldersOnly;
    if (m_foldersOnly) m_ofn.lpstrFilter = kFoldersOnlyFilter;
    TemplateSettings settings;
    settings.opens = open != 0;
    settings.foldersOnly = m_foldersOnly;
    settings.previewVisible = owner->m_previewVisible != 0;
    settings.securityButton = owner->m_securityButton != 0;
    settings.applicationMode = owner->m_applicationMode != 0;
    if (const unsigned id = FileDialogTemplate(settings)) SetTemplate(0, id);
}

CNavFileDlg::~CNavFileDlg() = default;

unsigned CNavFileDlg::TemplateId() const {
    return IS_INTRESOURCE(m_ofn.lpTemplateName) ? LOWORD(reinterpret_cast<ULONG_PTR>(m_ofn.lpTemplateName))
                                                : 0;
}

HWND CNavFileDlg::platformControl(int id) const {
    const HWND window = PlatformWindow();
    return window != nullptr ? ::GetDlgItem(window, id) : nullptr;
}

HBRUSH CNavFileDlg::OnCtlColor(CDC* dc, CWnd* control, UINT kind) {
    const HWND list = m_fileList == nullptr ? FindFileList(PlatformWindow()) : nullptr;
    if (list != nullptr) {
        auto* const extended = new CListCtrlEx(this);
        m_fileList = extended;
        extended->SubclassWindow(list);
        extended->ShowFirst();
    }
    return CFileDialog::OnCtlColor(dc, control, kind);
}

void CNavFileDlg::OnDestroy() {
    SetNavHookDialog(nullptr);
    RemoveNavKeyboardHook();
    if (m_preview) m_preview->UnsubclassWindow();
    m_preview.reset();
    if (m_placesList) m_placesList->FreePlaces();
    m_placesList.reset();
    m_menuButton.Release();
    CFileDialog::OnDestroy();
}

/// An entry acts as a click on OK.
void CNavFileDlg::OnOpenMenuCommand(UINT command) {
    m_chosenMenuCommand = command;
    const HWND ok = platformControl(IDOK);
    ::PostMessageW(ok, WM_LBUTTONDOWN, 0, 0);
    ::PostMessageW(ok, WM_LBUTTONUP, 0, 0);
}

void CNavFileDlg::OnFileNameChange() {
    showInPreview();
    enterChangedFolder();
    m_owner->m_owner->OnFileNameChange();
    selectTypedName();
    CFileDialog::OnFileNameChange();
}

void CNavFileDlg::showInPreview() {
    if (!m_preview) return;
    m_preview->m_path = FirstPath(GetPathName());
    m_preview->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
}

void CNavFileDlg::enterChangedFolder() {
    if (!m_foldersOnly || !m_folderChangePending) return;
    const CString folder = GetFolderPath();
    if (ktutPathExists(folder)) {
        unmarkFocusedItem();
        m_navigating = true;
        NavigateTo(folder);
        m_navigating = false;
    }
    m_folderChangePending = false;
}

void CNavFileDlg::unmarkFocusedItem() const {
    ComReference<IFolderView> view;
    FindFolderView(PlatformWindow(), view);
    int focused = -1;
    if (view && SUCCEEDED(view->GetFocusedItem(&focused)) && focused >= 0)
        view->SelectItem(focused, SVSI_NOTAKEFOCUS);
}

void CNavFileDlg::selectTypedName() const {
    const HWND focus = ::GetFocus();
    if (focus == nullptr || !::IsChild(platformControl(kPlatformNameBox), focus)) return;
    ::SendMessageW(focus, EM_SETSEL, 0, -1);
    ::SendMessageW(focus, EM_SCROLLCARET, 0, 0);
}

void CNavFileDlg::OnFolderChange() {
    if (m_placesList) m_placesList->SyncSelection();
    if (m_foldersOnly) {
        if (m_firstFolderSeen) m_folderChangePending = true;
        m_firstFolderSeen = true;
    }
    CFileDialog::OnFolderChange();
}

void CNavFileDlg::OnTypeChange() {
    SelectFilterIndex(static_cast<int>(m_ofn.nFilterIndex) - 1);
    m_owner->ReactToTypeChange();
    CFileDialog::OnTypeChange();
}
