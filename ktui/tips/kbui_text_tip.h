// CKbUiTextTip: the tip window that a dialog shows for its controls.
#pragma once

#include <ktui/tips/kbui_tip_window.h>

class KTUI_API CKbUiTextTip : public CKbUiTipWindow {
    DECLARE_DYNAMIC(CKbUiTextTip)

public:
    /// Hides the tip, then shows it for `control` in the way `useText` tells (see SetUseText).
    void Update(CWnd* control, int useText);
    /// The same if `useText` is 1; otherwise nothing at all happens.
    void UpdateIfNecessary(CWnd* control, int useText);

    void Hide() override;
};
