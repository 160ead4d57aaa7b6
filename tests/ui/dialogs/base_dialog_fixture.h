// A visible modeless dialog whose first control is a button that answers as a test says.
#pragma once

#include <ktui/tips/kbui_text_tip.h>

#include "answering_button.h"
#include "dialog_fixture.h"

class BaseDialog : public DialogTest {
protected:
    BaseDialog() : dialog(IDD_ELASTIC, &parent) {
        dialog.mainWindow = &parent;
        dialog.SetDialogName(L"base");
        dialog.Create(IDD_ELASTIC, &parent);
        button.SubclassDlgItem(IDC_FIRST, &dialog);
        dialog.ShowWindow(SW_SHOW);
        ui_test::pump();
    }
    ~BaseDialog() override { dialog.DestroyWindow(); }

    LRESULT send(KBUI_NOTIFY notification, unsigned id, LPARAM data) {
        return dialog.SendMessage(KbUiMessage(), PackKbUiNotification(id, notification), data);
    }
    /// Answers as a control with a tip of kind `support` does.
    void giveTip(LRESULT support) {
        button.replies = {{kKbUiNotifyGetTipSupport, support},
                          {kKbUiNotifyHitTipRect, 1},
                          {kKbUiNotifyGetTipRect, 1},
                          {kKbUiNotifyGetTipText, 1}};
    }
    bool tipVisible() { return dialog.m_textTip != nullptr && dialog.m_textTip->IsWindowVisible(); }
    LRESULT updateTip() {
        dialog.GetDlgItem(IDOK)->SetFocus();
        CRect rect;
        button.GetWindowRect(&rect);
        ui_test::move_cursor(rect.CenterPoint());
        return send(kKbUiNotifyUpdateTip, 0, reinterpret_cast<LPARAM>(static_cast<CWnd*>(&button)));
    }

    OpenDialog dialog;
    AnsweringButton button;
};
