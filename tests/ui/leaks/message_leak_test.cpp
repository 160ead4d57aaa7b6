// A task dialog of the toolkit, an alert and a rich tip, each shown a thousand times.
#include <ktui/tips/kh_tip_ctrl.h>
#include <ktui/tips/messages/alert_dialog.h>
#include <ktui/tips/messages/ktui_task_dialog.h>

#include "leak_fixture.h"

namespace {

class MessageLeaks : public leaks::Leaks {};

void press(HWND dialog, int id) { ::PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0); }

constexpr UINT kEnd = WM_APP + 1;

INT_PTR CALLBACK bareDialog(HWND dialog, UINT message, WPARAM, LPARAM buttons) {
    if (message == WM_INITDIALOG) {
        for (LPARAM i = 0; i < buttons; ++i) {
            const HWND child =
                ::CreateWindowExW(0, i < 2 ? L"STATIC" : L"BUTTON", L"text",
                                  WS_CHILD | WS_VISIBLE | (i < 2 ? SS_OWNERDRAW : BS_PUSHBUTTON), 0,
                                  static_cast<int>(10 * i), 50, 10, dialog, nullptr, nullptr, nullptr);
            // This Wine keeps a block for each text that is given a font.
            ::SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(::GetStockObject(DEFAULT_GUI_FONT)),
                           FALSE);
        }
        ::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0, 0, dialog, nullptr,
                          nullptr, nullptr);
        ::PostMessageW(dialog, kEnd, 0, 0);
        return TRUE;
    }
    if (message == kEnd) {
        ::RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        return ::EndDialog(dialog, IDCANCEL);
    }
    return FALSE;
}

/// Blocks that the system keeps for a dialog of the same template, with as many children of its own.
size_t growthOfBareDialogs(CWnd& parent, const wchar_t* module, int id, int children) {
    return leaks::heap_growth([&parent, module, id, children] {
        ::DialogBoxParamW(::GetModuleHandleW(module), MAKEINTRESOURCEW(id), parent.m_hWnd, bareDialog,
                          children);
        ui_test::pump();
    });
}

}  // namespace

TEST_F(MessageLeaks, AThousandTaskDialogsLeaveNothing) {
    const size_t systemGrowth = growthOfBareDialogs(parent, L"ktui.dll", 1020, 6);
    int answered = 0;
    leaks::expect_no_growth(
        [&] {
            CKtUiTaskDialog dialog;
            dialog.SetWindowTitle(L"task");
            dialog.SetMainInstruction(L"The drawing was changed by another program");
            dialog.SetContent(L"Which of the two is to be kept?");
            dialog.SetMainIcon(::CopyIcon(::LoadIconW(nullptr, IDI_EXCLAMATION)));
            dialog.SetOptions(0x12);
            dialog.AddCommandControl(101, L"Save");
            dialog.SetCommandControlExtend(101, L"Overwrites the drawing on disk.");
            dialog.SetVerificationCheckboxText(L"Do not ask again");
            dialog.SetCommonButtons(8);
            ui_test::when_dialog(L"task", [](HWND box) {
                ::RedrawWindow(box, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
                press(box, 101);
            });
            answered += dialog.DoModal(parent.m_hWnd) == 101;
        },
        systemGrowth, leaks::kShownGdiSlack);
    EXPECT_EQ(answered, leaks::kTimes + leaks::kWarmUp);
}

TEST_F(MessageLeaks, AThousandAlertsLeaveNothing) {
    const size_t systemGrowth = growthOfBareDialogs(parent, L"ktdsres.dll", 57001, 0);
    int answered = 0;
    leaks::expect_no_growth(
        [&] {
            ui_test::when_dialog(L"alert", [](HWND box) { press(box, 57004); });
            answered += KbUiAlertDialog(L"alert", L"The file exists.", L"Overwrite", L"Rename", 0) == 1;
        },
        systemGrowth, leaks::kShownGdiSlack);
    EXPECT_EQ(answered, leaks::kTimes + leaks::kWarmUp);
}

TEST_F(MessageLeaks, AThousandRichTipsLeaveNothing) {
    int shown = 0;
    leaks::expect_no_growth(
        [&] {
            CKhTipCtrl tip;
            ASSERT_TRUE(tip.Create(&parent));
            tip.Activate(CPoint(100, 100), L"Layer: Walls", false);
            tip.Activate(CPoint(120, 100), OdArray<OdString>{OdString(L"Line"), OdString(L"Layer: Walls")});
            tip.SendMessage(WM_TIMER, 1984);
            shown += tip.IsWindowVisible() != FALSE;
            tip.Deactivate();
            ui_test::pump();
        },
        leaks::heap_growth([this] {
            const HWND bare = ::CreateWindowExW(WS_EX_LAYERED, L"STATIC", L"", WS_POPUP, 0, 0, 50, 20,
                                                parent.m_hWnd, nullptr, nullptr, nullptr);
            ::ShowWindow(bare, SW_SHOWNOACTIVATE);
            ::DestroyWindow(bare);
            ui_test::pump();
        }),
        leaks::kShownGdiSlack);
    EXPECT_EQ(shown, leaks::kTimes + leaks::kWarmUp);
}
