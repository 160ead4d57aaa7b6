// A dialog whose exchange of data a test gives.
#pragma once

#include <functional>

#include "ui_test.h"

namespace ui_test {

class ExchangeDialog : public CDialog {
public:
    std::function<void(CDataExchange*)> exchange;

protected:
    void DoDataExchange(CDataExchange* context) override {
        CDialog::DoDataExchange(context);
        if (exchange) exchange(context);
    }
};

/// A modeless one of template `kTemplate`.
template <UINT kTemplate>
class Exchange : public ::testing::Test {
protected:
    Exchange() { EXPECT_TRUE(dialog.Create(kTemplate, &parent)); }
    ~Exchange() override { dialog.DestroyWindow(); }
    bool exchanges(BOOL save, std::function<void(CDataExchange*)> what) {
        dialog.exchange = std::move(what);
        return dialog.UpdateData(save) != FALSE;
    }
    /// What the user is told when something is refused.
    CString told(std::function<void(CDataExchange*)> what) {
        CString message;
        when_dialog(AfxGetAppName(), [&](HWND box) {
            message = text_of(::GetDlgItem(box, 0xFFFF));
            ::PostMessageW(box, WM_COMMAND, IDOK, 0);
        });
        EXPECT_FALSE(exchanges(TRUE, std::move(what)));
        return message;
    }

    ParentWindow parent;
    ExchangeDialog dialog;
};

}  // namespace ui_test
