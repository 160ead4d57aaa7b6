#include <ktui/dialogs/kbui_file_dialog.h>

#include <ktui/dialogs/editor_command_messages.h>
#include <ktui/dialogs/resource_switch.h>
#include <ktui/dialogs/tip_holder.h>
#include <ktui/host/help_path.h>
#include <ktui/host/host_calls.h>
#include <ktui/host/loaded_module.h>
#include <ktui/host/module.h>
#include <ktui/host/registered_messages.h>

namespace {

constexpr UINT kDialogIcon = 1017;  // of the library's own file

}  // namespace

IMPLEMENT_DYNAMIC(CKbUiFileDialog, CFileDialog)
IMPLEMENT_DYNAMIC(CKtUiFileDialog, CKbUiFileDialog)

BEGIN_MESSAGE_MAP(CKbUiFileDialog, CFileDialog)
    ON_REGISTERED_MESSAGE(kbUiMessage, &CKbUiFileDialog::OnKbUiMessage)
END_MESSAGE_MAP()

CKbUiFileDialog::CKbUiFileDialog(int open, const wchar_t* defaultExtension, const wchar_t* fileName,
                                 unsigned long flags, const wchar_t* filter, CWnd* parent, HINSTANCE resource)
    : CFileDialog(open, defaultExtension, fileName, flags, filter, parent), m_resourceInstance(resource) {}

CKbUiFileDialog::~CKbUiFileDialog() = default;

INT_PTR CKbUiFileDialog::DoModal() {
    const ResourceSwitch resource(m_resourceInstance, m_savedResource);
    EnableFloatingWindows(0);
    const INT_PTR result = CFileDialog::DoModal();
    EnableFloatingWindows(1);
    return result;
}

BOOL CKbUiFileDialog::OnInitDialog() {
    OnInitDialogBegin();
    const BOOL result = CDialog::OnInitDialog();
    OnInitDialogFinish();
    if (m_icon == nullptr) {
        m_icon = ::LoadIconW(KtUiOwnModule(), MAKEINTRESOURCEW(kDialogIcon));
        SendMessage(WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(m_icon));
        SendMessage(WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(m_icon));
    }
    return result;
}

BOOL CKbUiFileDialog::PreTranslateMessage(MSG* message) { return CDialog::PreTranslateMessage(message); }

LRESULT CKbUiFileDialog::OnKbUiMessage(WPARAM wParam, LPARAM lParam) {
    const int reply = static_cast<int>(OfferKbUiMessageToChild(*this, wParam, lParam));
    if (reply != 0) return reply;
    return DoKbUiMessage(KbUiNotification(wParam), KbUiNotifyId(wParam), lParam);
}

KBUI_REPLY CKbUiFileDialog::DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 data) {
    switch (notification) {
        // Kept: whatever the dialog's state is.
        case kKbUiNotifyHideDialog: ShowWindow(SW_HIDE); return kKbUiReplyHandled;
        case kKbUiNotifyShowDialog: ShowWindow(SW_RESTORE); return kKbUiReplyHandled;
        case kKbUiNotifyControlInvalid:
        case kKbUiNotifyControlValid:
            // Kept: the sender's datum is the verdict for both notifications.
            return OnNotifyControlValid(id, static_cast<int>(data));
        default: return NotificationHolder::Answer(*this, notification, id, data);
    }
}

KBUI_REPLY CKbUiFileDialog::OnNotifyControlChange(unsigned, __int64) { return kKbUiReplyNone; }
KBUI_REPLY CKbUiFileDialog::OnNotifyControlValid(unsigned, int) { return kKbUiReplyNone; }
KBUI_REPLY CKbUiFileDialog::OnNotifyGeneric(unsigned, __int64) { return kKbUiReplyNone; }
KBUI_REPLY CKbUiFileDialog::OnNotifyUpdateTip(CWnd*) { return kKbUiReplyNone; }

int CKbUiFileDialog::FindContextHelpFullPath(const wchar_t* name, CString& path) {
    return KbUiFindContextHelpFullPath(name, path);
}

CWnd* CKbUiFileDialog::AppMainWindow() { return HostMainWindow(); }
HINSTANCE CKbUiFileDialog::AppResourceInstance() { return AfxGetResourceHandle(); }
const wchar_t* CKbUiFileDialog::AppRootKey() { return nullptr; }

int CKbUiFileDialog::DoDialogHelp() {
    ShowHostHelp();
    return 1;
}

BOOL CKbUiFileDialog::OnHelpInfo(HELPINFO* info) { return CCommonDialog::OnHelpInfo(info); }
BOOL CKbUiFileDialog::OnNotify_ToolTipText(UINT, NMHDR*, LRESULT*) { return 1; }

void CKbUiFileDialog::BeginEditorCommand() {
    m_editorState = 1;
    m_savedFocus = ::GetFocus();
    m_wasEnabled = IsWindowEnabled();
    MakeDialogsVisible(0);
    // Kept: told whether the dialog is modal or not.
    TellMainWindow(AppMainWindow(), *this, 1);
}

void CKbUiFileDialog::CompleteEditorCommand(int restoreDialogs) {
    m_editorState = 0;
    // Kept: without restoring, the dialogs stay hidden and the main window is not told.
    if (restoreDialogs == 0) return;
    TellMainWindow(AppMainWindow(), *this, 0);
    MakeDialogsVisible(1);
    EnableWindow(m_wasEnabled);
    ::SetFocus(m_savedFocus);
}

void CKbUiFileDialog::CancelEditorCommand() {
    m_editorState = -1;
    TellMainWindow(AppMainWindow(), *this, -1);
    EndDialog(IDCANCEL);
}

void CKbUiFileDialog::MakeDialogsVisible(int show) {
    const HWND main = AppMainWindow()->GetSafeHwnd();
    if (show == 0) {
        ShowWindow(SW_HIDE);
        TellParents(*this, kKbUiNotifyHideDialog, main, nullptr);
        return;
    }
    TellParents(*this, kKbUiNotifyShowDialog, main, nullptr);
    ShowWindow(SW_RESTORE);
    SetFocus();
}

// Kept: these do nothing.
void CKbUiFileDialog::OnInitDialogBegin() {}
void CKbUiFileDialog::OnInitDialogFinish() {}
void CKbUiFileDialog::EnableFloatingWindows(int) {}
void CKbUiFileDialog::OnDialogHelp() {}
void CKbUiFileDialog::SetUseTips(int) {}
void CKbUiFileDialog::SetDialogIcon(HICON) {}
void CKbUiFileDialog::SetDialogName(const wchar_t*) {}
void CKbUiFileDialog::SetContextHelpFileName(const wchar_t*) {}
void CKbUiFileDialog::SetContextHelpFullPathName(const wchar_t*) {}
void CKbUiFileDialog::SetContextHelpPrefix(const wchar_t*) {}

CKtUiFileDialog::CKtUiFileDialog(int open, const wchar_t* defaultExtension, const wchar_t* fileName,
                                 unsigned long flags, const wchar_t* filter, CWnd* parent)
    : CKbUiFileDialog(open, defaultExtension, fileName, flags, filter, parent, nullptr) {}

CKtUiFileDialog::~CKtUiFileDialog() = default;

CWnd* CKtUiFileDialog::AppMainWindow() { return HostMainWindow(); }
HINSTANCE CKtUiFileDialog::AppResourceInstance() { return KtUiAppResourceInstance(); }
void CKtUiFileDialog::OnOK() { CCommonDialog::OnOK(); }
void CKtUiFileDialog::OnCancel() { CCommonDialog::OnCancel(); }
