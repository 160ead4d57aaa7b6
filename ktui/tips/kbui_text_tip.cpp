#include <ktui/tips/kbui_text_tip.h>

IMPLEMENT_DYNAMIC(CKbUiTextTip, CKbUiTipWindow)

void CKbUiTextTip::Update(CWnd* control, int useText) {
    ShowWindow(SW_HIDE);
    SetControl(control);
    SetUseText(useText);
    ShowWindow(SW_SHOWNOACTIVATE);
}

void CKbUiTextTip::UpdateIfNecessary(CWnd* control, int useText) {
    if (useText == 1) Update(control, useText);
}

void CKbUiTextTip::Hide() {
    ModifyStyleEx(WS_EX_TOPMOST, 0);
    CKbUiTipWindow::Hide();
}
