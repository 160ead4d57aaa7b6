// The editor command protocol: a dialog and its parents step aside while the user works in the drawing.
#include <ktui/dialogs/kbui_base_dialog.h>

#include <ktui/dialogs/editor_command_messages.h>
#include <ktui/tips/kbui_text_tip.h>

bool CKbUiBaseDialog::isInModalLoop() {
    CWnd* window = this;
    while (window != nullptr && window->m_hWnd != nullptr && (window->GetStyle() & WS_CHILD))
        window = window->GetParent();
    // Kept: running out of parents counts as modal.
    if (window == nullptr || window->m_hWnd == nullptr) return true;
    constexpr UINT kModal = WF_CONTINUEMODAL | WF_MODALLOOP;
    return (window->m_nFlags & kModal) == kModal;
}

void CKbUiBaseDialog::BeginEditorCommand() {
    m_editorState = 1;
    m_savedFocus = ::GetFocus();
    m_wasEnabled = IsWindowEnabled();
    MakeDialogsVisible(0);
    if (isInModalLoop()) TellMainWindow(AppMainWindow(), *this, 1);
}

void CKbUiBaseDialog::CompleteEditorCommand(int restoreDialogs) {
    m_editorState = 0;
    // Kept: without restoring, the dialogs stay hidden and the main window is not told.
    if (restoreDialogs == 0) return;
    if (isInModalLoop()) TellMainWindow(AppMainWindow(), *this, 0);
    MakeDialogsVisible(1);
    EnableWindow(m_wasEnabled);
    ::SetFocus(m_savedFocus);
    if (m_textTip != nullptr) m_textTip->EnableWindow(m_wasEnabled);
}

void CKbUiBaseDialog::CancelEditorCommand() {
    m_editorState = -1;
    // Kept: a cancel is told even by a modeless dialog.
    TellMainWindow(AppMainWindow(), *this, -1);
    EndDialog(IDCANCEL);
}

void CKbUiBaseDialog::MakeDialogsVisible(int show) {
    if (show == 0) {
        SetWindowPos(&wndTop, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_HIDEWINDOW);
        TellParents(*this, kKbUiNotifyHideDialog, AppMainWindow()->GetSafeHwnd(), ::GetDesktopWindow());
        return;
    }
    // The reverse of hiding, so that this dialog ends on top.
    TellParents(*this, kKbUiNotifyShowDialog, AppMainWindow()->GetSafeHwnd(), ::GetDesktopWindow());
    SetWindowPos(&wndTop, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_SHOWWINDOW | SWP_NOOWNERZORDER);
    SetFocus();
}
