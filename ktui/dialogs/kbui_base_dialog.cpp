#include <ktui/dialogs/kbui_base_dialog.h>

#include <ktui/dialogs/resource_switch.h>
#include <ktui/dialogs/tip_holder.h>
#include <ktui/host/help_path.h>
#include <ktui/host/host_calls.h>
#include <ktui/host/loaded_module.h>
#include <ktui/host/registered_messages.h>
#include <ktui/text/dialog_root.h>

namespace {

constexpr UINT kDialogIcon = 1017;     // of the library's own file
constexpr int kToolTipMaxWidth = 256;  // pixels before a text breaks

constexpr TipHolderRules kTipRules = {true, TTM_SETMAXTIPWIDTH, 0, kToolTipMaxWidth};

/// The icon of dialogs that have none of their own. Shared, so that it needs no freeing; asking the system
/// for it costs a good part of a dialog's creation.
HICON defaultIcon() {
    static const HICON icon = ::LoadIconW(KtUiOwnModule(), MAKEINTRESOURCEW(kDialogIcon));
    return icon;
}

}  // namespace

IMPLEMENT_DYNAMIC(CKbUiBaseDialog, CDialog)

BEGIN_MESSAGE_MAP(CKbUiBaseDialog, CDialog)
    ON_REGISTERED_MESSAGE(kbUiMessage, &CKbUiBaseDialog::OnKbUiMessage)
    ON_WM_HELPINFO()
    ON_COMMAND(IDHELP, &CKbUiBaseDialog::OnHelp)
    ON_NOTIFY_EX(TTN_NEEDTEXTW, 0, &CKbUiBaseDialog::OnNotify_ToolTipText)
    ON_WM_ACTIVATE()
    ON_MESSAGE(WM_TIMER, &CKbUiBaseDialog::OnKbUiTimer)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CKbUiBaseDialog::CKbUiBaseDialog(unsigned templateId, CWnd* parent, HINSTANCE resource)
    : CDialog(templateId, parent), m_resourceInstance(resource), m_appRootKey(ProductDialogRoot()) {}

CKbUiBaseDialog::~CKbUiBaseDialog() { tips().End(); }

TipHolder CKbUiBaseDialog::tips() { return TipHolder(*this, m_useTips, m_textTip, m_toolTip, kTipRules); }

void CKbUiBaseDialog::SetUseTips(int useTips) { tips().SetUseTips(useTips); }

BOOL CKbUiBaseDialog::PreTranslateMessage(MSG* message) {
    tips().Relay(*message);
    return CDialog::PreTranslateMessage(message);
}

KBUI_REPLY CKbUiBaseDialog::OnNotifyUpdateTip(CWnd* control) { return tips().UpdateTip(*control); }

BOOL CKbUiBaseDialog::Create(const wchar_t* templateName, CWnd* parent) {
    const ResourceSwitch resource(m_resourceInstance, m_savedResource);
    return CDialog::Create(templateName, parent);
}

BOOL CKbUiBaseDialog::Create(unsigned templateId, CWnd* parent) {
    return Create(MAKEINTRESOURCEW(templateId), parent);
}

INT_PTR CKbUiBaseDialog::DoModal() {
    m_isModal = 1;
    INT_PTR result = 0;
    {
        const ResourceSwitch resource(m_resourceInstance, m_savedResource);
        EnableFloatingWindows(0);
        EnableMultiDocumentActivation(0);
        result = CDialog::DoModal();
        EnableMultiDocumentActivation(1);
        EnableFloatingWindows(1);
    }
    m_isModal = 0;
    return result;
}

BOOL CKbUiBaseDialog::OnInitDialog() {
    OnInitDialogBegin();
    const BOOL result = CDialog::OnInitDialog();
    OnInitDialogFinish();
    SetUseTips(m_useTips);
    if (m_icon == nullptr) SetDialogIcon(defaultIcon());
    ModifyStyleEx(WS_EX_CONTEXTHELP, 0);
    return result;
}

void CKbUiBaseDialog::SetDialogIcon(HICON icon) {
    m_icon = icon;
    SendMessage(WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(icon));
    SendMessage(WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(icon));
}

BOOL CKbUiBaseDialog::PreCreateWindow(CREATESTRUCT& create) { return CDialog::PreCreateWindow(create); }

void CKbUiBaseDialog::PostNcDestroy() {
    tips().End();
    CDialog::PostNcDestroy();
}

void CKbUiBaseDialog::DoDataExchange(CDataExchange*) {}

LRESULT CKbUiBaseDialog::OnKbUiMessage(WPARAM wParam, LPARAM lParam) {
    const LRESULT reply = tips().Route(wParam, lParam);
    if (reply != 0) return reply;
    return DoKbUiMessage(KbUiNotification(wParam), KbUiNotifyId(wParam), lParam);
}

KBUI_REPLY CKbUiBaseDialog::DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 data) {
    switch (notification) {
        case kKbUiNotifyHideDialog:
            if (IsWindowVisible()) ShowWindow(SW_HIDE);
            return kKbUiReplyHandled;
        case kKbUiNotifyShowDialog:
            // A dialog inside an editor command of its own stays hidden when a child dialog's command ends.
            if (!IsWindowVisible() && m_editorState != 1) ShowWindow(SW_RESTORE);
            return kKbUiReplyHandled;
        case kKbUiNotifyControlInvalid:
        case kKbUiNotifyControlValid:
            // Kept: the sender's datum is the verdict for both notifications.
            return OnNotifyControlValid(id, static_cast<int>(data));
        default: return NotificationHolder::Answer(*this, notification, id, data);
    }
}

KBUI_REPLY CKbUiBaseDialog::OnNotifyControlChange(unsigned, __int64) { return kKbUiReplyNone; }
KBUI_REPLY CKbUiBaseDialog::OnNotifyControlValid(unsigned, int) { return kKbUiReplyNone; }
KBUI_REPLY CKbUiBaseDialog::OnNotifyGeneric(unsigned, __int64) { return kKbUiReplyNone; }

BOOL CKbUiBaseDialog::OnHelpInfo(HELPINFO* info) {
    DoDialogHelp();
    return CWnd::OnHelpInfo(info);
}

void CKbUiBaseDialog::OnHelp() { ShowHostHelp(); }

// Kept: the question for a text is taken and left without one.
BOOL CKbUiBaseDialog::OnNotify_ToolTipText(UINT, NMHDR*, LRESULT*) { return 1; }

void CKbUiBaseDialog::OnActivate(UINT state, CWnd* other, BOOL minimized) {
    CDialog::OnActivate(state, other, minimized);
}

LRESULT CKbUiBaseDialog::OnKbUiTimer(WPARAM, LPARAM) { return Default(); }

HBRUSH CKbUiBaseDialog::OnCtlColor(CDC* dc, CWnd* control, UINT kind) {
    return CWnd::OnCtlColor(dc, control, kind);
}

int CKbUiBaseDialog::FindContextHelpFullPath(const wchar_t* name, CString& path) {
    return KbUiFindContextHelpFullPath(name, path);
}

void CKbUiBaseDialog::OnInitDialogBegin() {}
void CKbUiBaseDialog::OnInitDialogFinish() {}

CWnd* CKbUiBaseDialog::AppMainWindow() { return HostMainWindow(); }

HINSTANCE CKbUiBaseDialog::AppResourceInstance() { return AfxGetResourceHandle(); }
const wchar_t* CKbUiBaseDialog::AppRootKey() { return m_appRootKey; }

// Kept: hooks for a host subclass, which decides what these mean.
void CKbUiBaseDialog::EnableFloatingWindows(int) {}
int CKbUiBaseDialog::IsMultiDocumentActivationEnabled() { return 0; }
int CKbUiBaseDialog::EnableMultiDocumentActivation(int) { return 0; }

int CKbUiBaseDialog::DoDialogHelp() {
    ShowHostHelp();
    return 1;
}

int CKbUiBaseDialog::ExchangeData(int save) { return CWnd::UpdateData(save); }
