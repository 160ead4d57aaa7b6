// What the two pages of the find dialog share: keys go to the dialog, and controls have tips. Private to the
// library.
#pragma once

#include <afxcmn.h>

#include <ktui/tips/kb_tool_tip_ctrl.h>

class FindPage : public CDialog {
public:
    BOOL PreTranslateMessage(MSG* message) override {
        if (m_toolTip.m_hWnd != nullptr) m_toolTip.RelayEvent(message);
        // Not the page's own handling of keys, for which Enter and Escape would end the page.
        return CWnd::PreTranslateMessage(message);
    }

protected:
    void OnOK() override {}
    void OnCancel() override {}

    /// Gives a control its tip, the string `id` or `text`.
    void addTip(int control, UINT id, const wchar_t* text);

    CKbToolTipCtrl m_toolTip;
};
