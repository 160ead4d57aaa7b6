// Which engine shows a task dialog, what the system's one is given, and what becomes of its answer.
#include "task_dialog_fixture.h"

using namespace ui_test;

namespace {

std::vector<HICON> destroyed;

BOOL WINAPI NoteDestroyIcon(HICON icon) {
    destroyed.push_back(icon);
    return TRUE;
}

const wchar_t* Resource(int number) { return MAKEINTRESOURCEW(number); }

class PlatformTaskDialog : public TaskDialogTest {
protected:
    /// The request of a DoModal that answers at once.
    TaskDialogRequest Requested(TaskDialogAnswer answer = {S_OK, IDOK, FALSE}) {
        task_dialog_answer = answer;
        task_dialog_requests().clear();
        result = static_cast<int>(dialog.DoModal(parent.m_hWnd));
        task_dialog_answer.reset();
        EXPECT_EQ(task_dialog_requests().size(), 1u);
        return task_dialog_requests().empty() ? TaskDialogRequest() : task_dialog_requests().front();
    }
    int result = 0;
};

}  // namespace

TEST_F(PlatformTaskDialog, GetsTextsButtonsAndOptions) {
    dialog.SetMainInstruction(L"heading");
    dialog.SetContent(L"body");
    dialog.SetCommonButtons(38);
    dialog.SetOptions(0x1018);
    const auto request = Requested();
    EXPECT_EQ(request.title, L"task");
    EXPECT_EQ(request.heading, L"heading");
    EXPECT_EQ(request.content, L"body");
    EXPECT_EQ(request.commonButtons, 38);
    EXPECT_EQ(request.flags, 0x1018);
    EXPECT_EQ(request.parent, parent.m_hWnd);
    EXPECT_EQ(request.width, 0u);
    EXPECT_EQ(request.icon, nullptr);
    EXPECT_FALSE(request.hasVerification);
}

TEST_F(PlatformTaskDialog, GetsTheWidthThatWasAskedFor) {
    dialog.SetDialogWidth(400);
    EXPECT_EQ(Requested().width, 200u);  // dialog units: a quarter of 8 pixels
}

TEST_F(PlatformTaskDialog, GetsCommandsInTheirOrderAndTheFirstAsDefault) {
    dialog.AddCommandControl(103, L"third");
    dialog.AddCommandControl(101, L"first");
    auto request = Requested();
    EXPECT_EQ(request.commands,
              (std::vector<std::pair<int, std::wstring>>{{103, L"third"}, {101, L"first"}}));
    EXPECT_EQ(request.defaultButton, 103);
    dialog.SetDefaultCommandControl(101);
    EXPECT_EQ(Requested().defaultButton, 101);
    dialog.SetDefaultCommandControl(4711);
    EXPECT_EQ(Requested().defaultButton, 103);
}

TEST_F(PlatformTaskDialog, HasNoDefaultWithoutCommands) {
    dialog.SetCommonButtons(6);
    dialog.SetDefaultCommandControl(IDNO);
    EXPECT_EQ(Requested().defaultButton, 0);
}

TEST_F(PlatformTaskDialog, GetsTheVerificationTextAndItsStart) {
    dialog.SetVerificationCheckboxText(L"again");
    EXPECT_EQ(Requested().verification, L"again");
    EXPECT_EQ(Requested().flags & 0x100, 0);
    dialog.SetVerificationCheckbox(1);
    EXPECT_EQ(Requested().flags & 0x100, 0x100);
    dialog.SetVerificationCheckbox(0);
    EXPECT_EQ(Requested().flags & 0x100, 0);
}

TEST_F(PlatformTaskDialog, ItsAnswersAreKept) {
    dialog.AddCommandControl(101, L"x");
    Requested({S_OK, 101, TRUE});
    EXPECT_EQ(result, 101);
    EXPECT_EQ(dialog.GetSelectedCommandControlID(), 101);
    EXPECT_EQ(dialog.GetVerificationCheckboxState(), 1);
    Requested({S_OK, IDCANCEL, FALSE});
    EXPECT_EQ(dialog.GetSelectedCommandControlID(), IDCANCEL);
    EXPECT_EQ(dialog.GetVerificationCheckboxState(), 0);
}

TEST_F(PlatformTaskDialog, FailureLeavesTheVerificationStateAsItWas) {
    Requested({S_OK, IDOK, TRUE});
    Requested({E_OUTOFMEMORY, IDOK, FALSE});
    EXPECT_EQ(result, -1);
    EXPECT_EQ(dialog.GetSelectedCommandControlID(), -1);
    EXPECT_EQ(dialog.GetVerificationCheckboxState(), 1);
}

TEST_F(PlatformTaskDialog, PushesNoResourceModule) {
    Requested();
    EXPECT_EQ(host.pushes, 0);
}

TEST_F(PlatformTaskDialog, SystemIconsHaveTheirNumbers) {
    const std::pair<int, LPCWSTR> icons[] = {{0xFFFB, IDI_QUESTION},
                                             {0xFFFC, IDI_SHIELD},
                                             {0xFFFD, IDI_ASTERISK},
                                             {0xFFFE, IDI_HAND},
                                             {0xFFFF, IDI_EXCLAMATION}};
    for (const auto& [number, name] : icons) {
        dialog.SetMainIcon(Resource(number));
        const auto request = Requested();
        EXPECT_EQ(request.icon, ::LoadIconW(nullptr, name)) << number;
        EXPECT_EQ(request.flags, 0x0002) << number;
    }
}

TEST_F(PlatformTaskDialog, OtherNumbersAreNoIcons) {
    dialog.SetMainIcon(Resource(0xFFFA));
    dialog.SetMainIcon(Resource(1));
    dialog.SetMainIcon(L"name");
    const auto request = Requested();
    EXPECT_EQ(request.icon, nullptr);
    EXPECT_EQ(request.flags, 0);
}

TEST_F(PlatformTaskDialog, OwnsItsIcon) {
    const ReplacedImport destroy(toolkit, "DestroyIcon", &NoteDestroyIcon);
    ASSERT_TRUE(destroy.isThere());
    const HICON first = ::LoadIconW(nullptr, IDI_HAND), second = ::LoadIconW(nullptr, IDI_QUESTION);
    destroyed.clear();
    {
        CKtUiTaskDialog owner;
        owner.SetMainIcon(first);
        EXPECT_TRUE(destroyed.empty());
        owner.SetMainIcon(second);
        EXPECT_EQ(destroyed, std::vector<HICON>{first});
    }
    EXPECT_EQ(destroyed, (std::vector<HICON>{first, second}));
    destroyed.clear();
    {
        CKtUiTaskDialog owner;
        owner.SetMainIcon(first);
        owner.SetMainIcon(static_cast<HICON>(nullptr));
        EXPECT_EQ(destroyed, std::vector<HICON>{first});
    }
    EXPECT_EQ(destroyed.size(), 1u);
}

TEST_F(PlatformTaskDialog, CopiesHaveTheSameContents) {
    dialog.SetMainInstruction(L"heading");
    dialog.AddCommandControl(101, L"x");
    dialog.SetOptions(0x10);
    dialog.SetMainIcon(Resource(0xFFFF));
    CKtUiTaskDialog copy(dialog), assigned;
    assigned = dialog;
    for (CKtUiTaskDialog* each : {&copy, &assigned}) {
        task_dialog_answer = {S_OK, IDOK, FALSE};
        task_dialog_requests().clear();
        each->DoModal(nullptr);
        ASSERT_EQ(task_dialog_requests().size(), 1u);
        EXPECT_EQ(task_dialog_requests()[0].heading, L"heading");
        EXPECT_EQ(task_dialog_requests()[0].commands.size(), 1u);
        EXPECT_EQ(task_dialog_requests()[0].flags, 0x12);
        EXPECT_NE(task_dialog_requests()[0].icon, nullptr);
    }
}

TEST_F(PlatformTaskDialog, TellsItsOwnerOfClicksOnTheBox) {
    dialog.SetVerificationCheckboxText(L"again");
    dialog.SetCommonButtons(1);
    Run([](HWND box) {
        ::SendMessageW(box, TDM_CLICK_VERIFICATION, TRUE, FALSE);
        ::SendMessageW(box, TDM_CLICK_VERIFICATION, FALSE, FALSE);
        ::SendMessageW(box, TDM_CLICK_VERIFICATION, TRUE, FALSE);
        ::PostMessageW(box, TDM_CLICK_BUTTON, IDOK, 0);
    });
    EXPECT_EQ(dialog.clicks, (std::vector<int>{1, 0, 1}));
    EXPECT_EQ(dialog.GetVerificationCheckboxState(), 1);
}

TEST_F(PlatformTaskDialog, ButtonsAreDisabledWhileItRuns) {
    dialog.SetCommonButtons(6);
    dialog.SetCommonButtonOptions(2);  // nothing runs yet
    std::vector<BOOL> enabled;
    const auto look = [&](HWND box) {
        for (const int id : {IDYES, IDNO}) enabled.push_back(::IsWindowEnabled(::GetDlgItem(box, id)));
    };
    Run([&](HWND box) {
        look(box);
        dialog.SetCommonButtonOptions(2);
        look(box);
        dialog.SetCommonButtonOptions(4);
        look(box);
        ::PostMessageW(box, TDM_CLICK_BUTTON, IDYES, 0);
    });
    EXPECT_EQ(enabled, (std::vector<BOOL>{TRUE, TRUE, FALSE, TRUE, TRUE, FALSE}));
    dialog.SetCommonButtonOptions(1);
}

TEST_F(TaskDialogTest, ASecondTextTakesTheOwnEngine) {
    dialog.SetOptions(0x10);
    dialog.AddCommandControl(101, L"title");
    dialog.SetCommandControlExtend(102, L"of another");
    task_dialog_answer = {S_OK, IDOK, FALSE};
    dialog.DoModal(parent.m_hWnd);
    EXPECT_EQ(task_dialog_requests().size(), 1u);
    dialog.SetCommandControlExtend(101, L"second text");
    EXPECT_EQ(Run([](HWND box) { press(box, 101); }), 101);
    EXPECT_EQ(task_dialog_requests().size(), 1u);
    EXPECT_EQ(dialog.GetSelectedCommandControlID(), 101);
}

TEST_F(TaskDialogTest, WithoutTaskDialogsTheOwnEngineRuns) {
    const ReplacedImport support(toolkit, "_ZN11CTaskDialog11IsSupportedEv", &no_task_dialogs);
    dialog.SetCommonButtons(1);
    EXPECT_EQ(Run([](HWND box) { press(box, IDOK); }), IDOK);
    EXPECT_TRUE(task_dialog_requests().empty());
}

TEST_F(TaskDialogTest, ThisClassAnswersZeroToAClickOnTheBox) {
    CKtUiTaskDialog plain;
    EXPECT_EQ(plain.OnVerificationCheckboxClick(1), 0);
}
