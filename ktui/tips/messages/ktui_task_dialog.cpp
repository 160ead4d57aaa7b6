#include <ktui/tips/messages/ktui_task_dialog.h>

#include <afxtaskdialog.h>

#include <ktui/host/loaded_module.h>
#include <ktui/host/resource_scope.h>
#include <ktui/tips/messages/task_dialog_impl.h>
#include <ktui/tips/messages/ui_task_dialog.h>

#include <utility>

namespace {

/// The system's dialog, which tells the owner of clicks on the verification box.
class CTaskDialogInstance : public CTaskDialog {
public:
    CTaskDialogInstance(CKtUiTaskDialog& owner, const CTaskDialogImpl& impl)
        : CTaskDialog(impl.m_content, impl.m_mainInstruction, impl.m_windowTitle, impl.m_commonButtons,
                      impl.m_options),
          m_owner(owner) {}

protected:
    HRESULT OnVerificationCheckboxClick(BOOL checked) override {
        return m_owner.OnVerificationCheckboxClick(checked);
    }

private:
    CKtUiTaskDialog& m_owner;
};

/// Tells the record what runs, for as long as the object lives.
template <class Dialog>
class Running {
public:
    Running(Dialog*& place, Dialog* dialog) : m_place(place) { m_place = dialog; }
    ~Running() { m_place = nullptr; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

private:
    Dialog*& m_place;
};

void addCommands(CTaskDialog& dialog, const CTaskDialogImpl& impl) {
    if (impl.m_commands.empty()) return;
    int defaultId = impl.m_commands.front().m_id;
    for (const CTaskDialogButton& command : impl.m_commands) {
        dialog.AddCommandControl(command.m_id, command.m_text);
        if (command.m_id == impl.m_defaultCommand) defaultId = command.m_id;
    }
    dialog.SetDefaultCommandControl(defaultId);
}

__int64 runPlatformDialog(CTaskDialogImpl& impl, HWND parent) {
    CTaskDialogInstance dialog(*impl.m_owner, impl);
    dialog.SetCommonButtons(impl.m_commonButtons);
    if (impl.m_width != 0) dialog.SetDialogWidth(impl.m_width);
    if (impl.m_mainIcon != nullptr) dialog.SetMainIcon(impl.m_mainIcon);
    dialog.SetOptions(impl.m_options);
    addCommands(dialog, impl);
    if (!impl.m_verificationText.IsEmpty()) dialog.SetVerificationCheckboxText(impl.m_verificationText);
    const Running<CTaskDialog> running(impl.m_platformDialog, &dialog);
    const INT_PTR result = dialog.DoModal(parent);
    if (result != -1) impl.m_verificationState = dialog.GetVerificationCheckboxState();
    return result;
}

__int64 runOwnDialog(CTaskDialogImpl& impl, HWND parent) {
    const HMODULE own = KtUiOwnModule();
    const ResourceScope scope(own != nullptr ? own : LoadedToolkit().resourceLibrary);
    CUiTaskDialog dialog(impl, CWnd::FromHandle(parent));
    const Running<CUiTaskDialog> running(impl.m_ownDialog, &dialog);
    return dialog.DoModal();
}

}  // namespace

CKtUiTaskDialog::CKtUiTaskDialog() : m_impl(new CTaskDialogImpl(this)) {}

CKtUiTaskDialog::~CKtUiTaskDialog() { delete m_impl; }

CKtUiTaskDialog::CKtUiTaskDialog(const CKtUiTaskDialog& other) : CKtUiTaskDialog() {
    m_impl->copyContents(*other.m_impl);
}

CKtUiTaskDialog& CKtUiTaskDialog::operator=(const CKtUiTaskDialog& other) {
    m_impl->copyContents(*other.m_impl);
    return *this;
}

long CKtUiTaskDialog::OnVerificationCheckboxClick(int) { return 0; }

void CKtUiTaskDialog::SetWindowTitle(const CString& title) { m_impl->m_windowTitle = title; }
void CKtUiTaskDialog::SetMainInstruction(const CString& text) { m_impl->m_mainInstruction = text; }
void CKtUiTaskDialog::SetContent(const CString& text) { m_impl->m_content = text; }
void CKtUiTaskDialog::SetMainIcon(HICON icon) { m_impl->setMainIcon(icon); }

void CKtUiTaskDialog::SetMainIcon(const wchar_t* resource) {
    LPCWSTR icon = nullptr;
    switch (reinterpret_cast<ULONG_PTR>(resource)) {
        case 0xFFFB: icon = IDI_QUESTION; break;
        case 0xFFFC: icon = IDI_SHIELD; break;
        case 0xFFFD: icon = IDI_ASTERISK; break;
        case 0xFFFE: icon = IDI_HAND; break;
        case 0xFFFF: icon = IDI_EXCLAMATION; break;
        default: return;
    }
    m_impl->setMainIcon(::LoadIconW(nullptr, icon));
}

void CKtUiTaskDialog::SetDialogWidth(int width) { m_impl->m_width = width; }
void CKtUiTaskDialog::SetOptions(int options) { m_impl->m_options = options; }
void CKtUiTaskDialog::SetCommonButtons(int buttons) { m_impl->m_commonButtons = buttons; }

void CKtUiTaskDialog::SetCommonButtonOptions(int disabledMask) {
    if (m_impl->m_platformDialog != nullptr)
        m_impl->m_platformDialog->SetCommonButtonOptions(disabledMask);
    else if (m_impl->m_ownDialog != nullptr)
        m_impl->m_ownDialog->SetCommonButtonOptions(disabledMask);
}

void CKtUiTaskDialog::AddCommandControl(int id, const CString& text) {
    m_impl->m_commands.push_back({id, text, CString(), 0});
}

void CKtUiTaskDialog::SetCommandControlExtend(int id, const CString& extended) {
    for (CTaskDialogButton& command : m_impl->m_commands)
        if (command.m_id == id) command.m_extendedText = extended;
}

void CKtUiTaskDialog::SetDefaultCommandControl(int id) { m_impl->m_defaultCommand = id; }
int CKtUiTaskDialog::GetSelectedCommandControlID() { return m_impl->m_selectedCommand; }
void CKtUiTaskDialog::SetVerificationCheckboxText(const CString& text) { m_impl->m_verificationText = text; }

void CKtUiTaskDialog::SetVerificationCheckbox(int checked) {
    int& options = m_impl->m_options;
    options = checked ? options | kTaskDialogVerified : options & ~static_cast<int>(kTaskDialogVerified);
}

int CKtUiTaskDialog::GetVerificationCheckboxState() { return m_impl->m_verificationState; }

__int64 CKtUiTaskDialog::DoModal(HWND parent) {
    const bool fitsPlatform = CTaskDialog::IsSupported() && !m_impl->hasExtendedText();
    const __int64 result = fitsPlatform ? runPlatformDialog(*m_impl, parent) : runOwnDialog(*m_impl, parent);
    m_impl->m_selectedCommand = static_cast<int>(result);
    return result;
}
