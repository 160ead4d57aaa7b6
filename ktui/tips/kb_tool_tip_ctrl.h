// CKbToolTipCtrl: the platform's tool-tip control with the toolkit's delay and width. It obeys the setting of
// the host that turns tips off.
#pragma once

#include <afxcmn.h>

#include <ktui/ktui_api.h>

class KTUI_API CKbToolTipCtrl : public CToolTipCtrl {
public:
    /// The delay (milliseconds) of controls that are made from now on; 500 at first. Only a positive one
    /// counts.
    static void SetDeaultDelayTime(int milliseconds);

protected:
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    static int s_defaultDelay;
};
