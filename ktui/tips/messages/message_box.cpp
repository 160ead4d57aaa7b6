#include <ktui/host/message_box.h>

#include <afxtaskdialog.h>
#include <kh_system.h>

#include <ktui/tips/messages/ktui_task_dialog.h>

namespace {

constexpr int kOk = 1, kYes = 2, kNo = 4, kCancel = 8;  // bits of common buttons
constexpr int kMessageOptions = 0x1008;                 // cancellable, placed relative to the parent

/// Button sets that a task dialog can't show.
bool isForMessageBoxAlone(UINT buttons) {
    return buttons == MB_ABORTRETRYIGNORE || buttons == MB_RETRYCANCEL || buttons == MB_CANCELTRYCONTINUE;
}

int commonButtonsOf(UINT buttons) {
    switch (buttons) {
        case MB_OKCANCEL: return kOk | kCancel;
        case MB_YESNOCANCEL: return kYes | kNo | kCancel;
        case MB_YESNO: return kYes | kNo;
        default: return kOk;
    }
}

CString captionOf(const wchar_t* caption) {
    if (caption != nullptr && *caption != 0) return caption;
    CKhSystem* const system = CKhSystem::instance();
    CKhProductInfo* const product = system != nullptr ? system->productInfo() : nullptr;
    return product != nullptr ? CString(product->messageCaption()) : CString();
}

LPCWSTR iconOf(UINT icon) {
    switch (icon) {
        case MB_ICONHAND: return IDI_HAND;
        case MB_ICONQUESTION: return IDI_QUESTION;
        case MB_ICONEXCLAMATION: return IDI_EXCLAMATION;
        case MB_ICONASTERISK: return IDI_ASTERISK;
        default: return nullptr;
    }
}

/// No caller hears of a button that it did not ask for: closing and Escape may answer IDCANCEL.
int answerFor(int result, int buttons) {
    if (result != IDCANCEL || (buttons & kCancel)) return result;
    return buttons & kNo ? IDNO : IDOK;
}

}  // namespace

int KtUiMessageBox(const wchar_t* caption, const wchar_t* text, UINT type) {
    const UINT set = type & MB_TYPEMASK, icon = type & MB_ICONMASK;
    // Kept: the caption doesn't count here.
    if (!CTaskDialog::IsSupported() || isForMessageBoxAlone(set)) return AfxMessageBox(text, type, 0);
    const int buttons = commonButtonsOf(set);
    CKtUiTaskDialog dialog;
    dialog.SetCommonButtons(buttons);
    dialog.SetWindowTitle(captionOf(caption));
    if (icon != 0)
        dialog.SetContent(text);
    else
        dialog.SetMainInstruction(text);
    dialog.SetOptions(kMessageOptions);
    if (LPCWSTR name = iconOf(icon)) dialog.SetMainIcon(::LoadIconW(nullptr, name));
    return answerFor(static_cast<int>(dialog.DoModal(::GetActiveWindow())), buttons);
}
