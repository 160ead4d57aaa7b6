#include <ktui/nav/place_dlg.h>

#include <shlwapi.h>

#include <ktdsres/places_ids.h>

#include <ktui/host/loaded_module.h>
#include <ktui/host/message_box.h>
#include <ktui/host/string_resources.h>

IMPLEMENT_DYNAMIC(CPlaceDlg, CKtUiDialog)

CPlaceDlg::CPlaceDlg(CWnd* parent, const CString& display, const CString& path)
    : CKtUiDialog(IDD_PLACE, parent, LoadedToolkit().resourceLibrary), m_display(display), m_path(path) {}

CPlaceDlg::~CPlaceDlg() = default;

BOOL CPlaceDlg::OnInitDialog() {
    const BOOL result = CKtUiDialog::OnInitDialog();
    if (!m_display.IsEmpty())
        SetWindowText(LoadToolkitString(IDS_PLACE_PROPERTIES, L"Places Item Properties"));
    SetDlgItemText(IDC_PLACE_DISPLAY, m_display);
    SetDlgItemText(IDC_PLACE_PATH, m_path);
    return result;
}

void CPlaceDlg::OnOK() {
    GetDlgItemText(IDC_PLACE_DISPLAY, m_display);
    GetDlgItemText(IDC_PLACE_PATH, m_path);
    if (m_path.IsEmpty() || !::PathIsDirectoryW(m_path)) {
        KtUiMessageBox(
            nullptr,
            LoadToolkitString(IDS_PLACE_PATH_INVALID,
                              L"The path entered is invalid. It must be a full path to an existing folder."),
            MB_OK);
        GetDlgItem(IDC_PLACE_PATH)->SetFocus();
        return;
    }
    // Kept: of a root too.
    if (m_path.Right(1) == L"\\") m_path.Truncate(m_path.GetLength() - 1);
    CKtUiDialog::OnOK();
}
