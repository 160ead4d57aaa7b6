// The toolkit's messages that the system's task dialog shows, a thousand times each.
#include <ktui/host/message_box.h>
#include <ktui/tips/messages/ktui_task_dialog.h>

#include "leak_fixture.h"
#include "system_dialogs.h"

namespace {

class EngineLeaks : public leaks::Leaks {
protected:
    int answered = 0;
};

}  // namespace

TEST_F(EngineLeaks, AThousandTaskDialogsOfTheSystemLeaveNothing) {
    const size_t growth = leaks::heap_growth([&] { leaks::open_bare_task_dialog(parent); });
    leaks::expect_no_growth(
        [&] {
            CKtUiTaskDialog dialog;
            dialog.SetWindowTitle(leaks::kTask);
            dialog.SetMainInstruction(L"heading");
            dialog.SetContent(L"content");
            dialog.SetMainIcon(::CopyIcon(::LoadIconW(nullptr, IDI_EXCLAMATION)));
            dialog.SetVerificationCheckboxText(L"again");
            dialog.AddCommandControl(101, L"first");
            dialog.AddCommandControl(102, L"second");
            dialog.SetCommonButtons(8);
            leaks::click_when_shown(102);
            answered += dialog.DoModal(parent) == 102;
        },
        growth, leaks::kShownGdiSlack);
    EXPECT_EQ(answered, leaks::kTimes + leaks::kWarmUp);
}

TEST_F(EngineLeaks, AThousandMessageBoxesLeaveNothing) {
    const size_t growth = leaks::heap_growth([&] { leaks::open_bare_message(parent, 14, IDNO); });
    leaks::expect_no_growth(
        [&] {
            leaks::click_when_shown(IDNO);
            answered += KtUiMessageBox(leaks::kTask, L"Save?", MB_YESNOCANCEL | MB_ICONWARNING) == IDNO;
        },
        growth, leaks::kShownGdiSlack);
    EXPECT_EQ(answered, leaks::kTimes + leaks::kWarmUp);
}
