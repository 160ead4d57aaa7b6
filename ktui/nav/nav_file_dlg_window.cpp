// CNavFileDlg: what reaches the platform's window first.
#include <ktui/nav/nav_file_dlg.h>

#include <algorithm>

#include <ktdsres/nav_file_dialog_ids.h>
#include <ktut.h>

#include <ktui/host/message_box.h>
#include <ktui/host/string_resources.h>
#include <ktui/nav/nav_dialog_imp.h>
#include <ktui/nav/place_list.h>
#include <ktui/nav/platform_file_dialog.h>
#include <ktui/nav/view_memory.h>

namespace {

constexpr LRESULT kNoDialog = 1;

/// Whether a WM_COMMAND is the press of a button or the key for it.
bool isPressOf(int button, WPARAM wParam) { return HIWORD(wParam) == 0 && LOWORD(wParam) == button; }

}  // namespace

LRESULT CALLBACK CNavFileDlg::platformWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* const dialog = reinterpret_cast<CNavFileDlg*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    return dialog != nullptr ? dialog->onPlatformMessage(window, message, wParam, lParam) : kNoDialog;
}

LRESULT CNavFileDlg::onPlatformMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_COMMAND:
            if (m_foldersOnly && isPressOf(IDOK, wParam)) {
                if (!m_navigating) chooseFolder();
                return 0;
            }
            if (isPressOf(IDCANCEL, wParam)) leaveByCancel();
            break;
        case WM_WINDOWPOSCHANGED:
        case WM_EXITSIZEMOVE:
            // Kept: before the platform moves its bar, so that the list follows at the end of a sizing.
            RelayoutPlaces();
            break;
        case WM_DESTROY:
            ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_originalWindowProc));
            break;
        case WM_HELP: return 0;
        default: break;
    }
    return ::CallWindowProcW(m_originalWindowProc, window, message, wParam, lParam);
}

/// The folder named is the result, and the dialog ends.
void CNavFileDlg::chooseFolder() {
    const CString path = GetPathName();
    if (!ktutPathExists(path)) {
        KtUiMessageBox(nullptr,
                       LoadToolkitString(IDS_NAV_LOCATION_NOT_USABLE, L"Cannot use the location specified."),
                       MB_ICONEXCLAMATION);
        return;
    }
    ::lstrcpynW(m_ofn.lpstrFile, path, static_cast<int>(std::min<DWORD>(MAX_PATH, m_ofn.nMaxFile)));
    if (CNavData* const data = m_owner->m_dataArray->AddData()) data->SetText(path);
    ::EndDialog(PlatformWindow(), IDOK);
}

void CNavFileDlg::leaveByCancel() {
    SaveViewState(*this);
    savePlaces(1);
}

void CNavFileDlg::savePlaces(int ask) {
    if (m_placesList) m_placesList->SavePlaces(ask);
}

void CNavFileDlg::RelayoutPlaces() {
    const HWND bar = platformControl(kPlatformPlacesBar);
    if (!m_placesList || m_placesList->m_hWnd == nullptr || bar == nullptr) return;
    CRect target, parent;
    ::GetWindowRect(bar, &target);
    CWnd* const holder = m_placesList->GetParent();
    holder->GetWindowRect(&parent);
    if (parent.bottom < target.bottom)
        holder->SetWindowPos(nullptr, 0, 0, parent.Width(), target.bottom - parent.top,
                             SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    ScreenToClient(&target);
    m_placesList->MoveWindow(&target);
    m_placesList->Invalidate();
}
