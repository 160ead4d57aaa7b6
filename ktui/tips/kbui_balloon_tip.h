// CKbUiBalloonTip: a tip window without focus test and timer, and the balloon functions that clients link.
#pragma once

#include <ktui/tips/kbui_tip_window.h>

class KTUI_API CKbUiBalloonTip : public CKbUiTipWindow {
    DECLARE_DYNAMIC(CKbUiBalloonTip)

public:
    void Hide() override;
    void Show() override;

private:
    void* m_reserved = nullptr;  ///< stays null
};

/// Answers 0 and shows nothing.
KTUI_API int KbUiShowBalloonTip(CWnd* owner, CWnd* control, CRect& rect, const wchar_t* text, int kind);
KTUI_API int KbUiShowBalloonTip(CWnd* owner, CWnd* control, const wchar_t* text, int kind);
/// Deactivates the tool-tip control `tip` (TTM_ACTIVATE with 0); null does nothing.
KTUI_API void KbUiHideBalloonTip(CWnd* tip);
