#include <ktui/dialogs/kbui_dialog_bar.h>

#include <ktui/dialogs/tip_holder.h>
#include <ktui/host/host_calls.h>
#include <ktui/host/registered_messages.h>

namespace {

constexpr int kTipDelay = 100;  // milliseconds

constexpr TipHolderRules kTipRules = {false, TTM_SETDELAYTIME, TTDT_AUTOMATIC, kTipDelay};

}  // namespace

IMPLEMENT_DYNAMIC(CKbUiDialogBar, CDialogBar)
IMPLEMENT_DYNAMIC(CKtUiDialogBar, CKbUiDialogBar)

BEGIN_MESSAGE_MAP(CKbUiDialogBar, CDialogBar)
    ON_REGISTERED_MESSAGE(kbUiMessage, &CKbUiDialogBar::OnKbUiMessage)
    ON_WM_CREATE()
    ON_WM_CTLCOLOR()
    ON_NOTIFY_EX(TTN_NEEDTEXTW, 0, &CKbUiDialogBar::OnNotify_ToolTipText)
END_MESSAGE_MAP()

CKbUiDialogBar::CKbUiDialogBar() = default;

CKbUiDialogBar::~CKbUiDialogBar() { tips().End(); }

CKtUiDialogBar::CKtUiDialogBar() = default;
CKtUiDialogBar::~CKtUiDialogBar() = default;

TipHolder CKbUiDialogBar::tips() { return TipHolder(*this, m_useTips, m_textTip, m_toolTip, kTipRules); }

void CKbUiDialogBar::SetUseTips(int useTips) { tips().SetUseTips(useTips); }

int CKbUiDialogBar::OnCreate(LPCREATESTRUCT create) {
    if (CDialogBar::OnCreate(create) == -1) return -1;
    if (m_useTips != 0) SetUseTips(1);
    return 0;
}

void CKbUiDialogBar::PostNcDestroy() {
    tips().End();
    CDialogBar::PostNcDestroy();
}

BOOL CKbUiDialogBar::PreTranslateMessage(MSG* message) {
    tips().Relay(*message);
    return CControlBar::PreTranslateMessage(message);
}

LRESULT CKbUiDialogBar::OnKbUiMessage(WPARAM wParam, LPARAM lParam) {
    const LRESULT reply = tips().Route(wParam, lParam);
    if (reply != 0) return reply;
    return DoKbUiMessage(KbUiNotification(wParam), KbUiNotifyId(wParam), lParam);
}

KBUI_REPLY CKbUiDialogBar::DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 data) {
    switch (notification) {
        // Kept: the notification is the verdict, whatever the sender's datum says.
        case kKbUiNotifyControlInvalid: return OnNotifyControlValid(id, FALSE);
        case kKbUiNotifyControlValid: return OnNotifyControlValid(id, TRUE);
        default: return NotificationHolder::Answer(*this, notification, id, data);
    }
}

KBUI_REPLY CKbUiDialogBar::OnNotifyControlChange(unsigned, __int64) { return kKbUiReplyNone; }
KBUI_REPLY CKbUiDialogBar::OnNotifyControlValid(unsigned, int) { return kKbUiReplyNone; }
KBUI_REPLY CKbUiDialogBar::OnNotifyGeneric(unsigned, __int64) { return kKbUiReplyNone; }
KBUI_REPLY CKbUiDialogBar::OnNotifyUpdateTip(CWnd* control) { return tips().UpdateTip(*control); }

CWnd* CKbUiDialogBar::AppMainWindow() { return HostMainWindow(); }
HINSTANCE CKbUiDialogBar::AppResourceInstance() { return AfxGetResourceHandle(); }
const wchar_t* CKbUiDialogBar::AppRootKey() { return m_appRootKey; }

HBRUSH CKbUiDialogBar::OnCtlColor(CDC* dc, CWnd* control, UINT kind) {
    return CDialogBar::OnCtlColor(dc, control, kind);
}

// Kept: the question for a text is left to others here, where a dialog takes it.
BOOL CKbUiDialogBar::OnNotify_ToolTipText(UINT, NMHDR*, LRESULT*) { return 0; }
