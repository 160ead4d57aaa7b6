#include <ktui/tips/kbui_balloon_tip.h>

#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CKbUiBalloonTip, CKbUiTipWindow)

void CKbUiBalloonTip::Hide() { ShowWindow(SW_HIDE); }
void CKbUiBalloonTip::Show() { ShowWindow(SW_SHOWNOACTIVATE); }

// Kept: balloons are not shown, and the answer is 0.
int KbUiShowBalloonTip(CWnd*, CWnd*, CRect&, const wchar_t*, int) { return 0; }
int KbUiShowBalloonTip(CWnd*, CWnd*, const wchar_t*, int) { return 0; }

void KbUiHideBalloonTip(CWnd* tip) {
    if (tip != nullptr) tip->SendMessage(TTM_ACTIVATE, FALSE, 0);
}
