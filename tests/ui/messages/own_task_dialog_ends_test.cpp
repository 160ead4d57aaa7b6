// How the toolkit's own task dialog is walked through by keys, and how it ends.
#include "task_dialog_fixture.h"

using namespace ui_test;

namespace {

/// Types Tab `count` times and notes who has the focus each time, then presses `last`.
void Walk(HWND box, int count, std::vector<int>& ids, int last) {
    ids.push_back(::GetDlgCtrlID(::GetFocus()));
    if (count == 0) return press(box, last);
    press_key(VK_TAB);
    later([=, &ids] { Walk(box, count - 1, ids, last); });
}

}  // namespace

TEST_F(OwnTaskDialog, EachButtonAndCommandEndsWithItsId) {
    dialog.SetCommonButtons(63);
    dialog.AddCommandControl(101, L"command");
    for (const int id : {IDOK, IDYES, IDNO, IDRETRY, IDCANCEL, IDCLOSE, 101}) {
        EXPECT_EQ(Run([id](HWND box) { press(box, id); }), id);
        EXPECT_EQ(dialog.GetSelectedCommandControlID(), id);
    }
}

TEST_F(OwnTaskDialog, EnterEndsWithTheLinkThatHasTheFocus) {
    dialog.SetOptions(0x10);
    dialog.AddCommandControl(101, L"one");
    dialog.AddCommandControl(102, L"two");
    EXPECT_EQ(Run([](HWND box) {
                  ::SetFocus(::GetDlgItem(box, 102));
                  press_key(VK_RETURN);
              }),
              102);
}

TEST_F(OwnTaskDialog, SpacePressesTheLinkThatHasTheFocus) {
    dialog.SetOptions(0x10);
    dialog.AddCommandControl(101, L"one");
    dialog.AddCommandControl(102, L"two");
    EXPECT_EQ(Run([](HWND box) {
                  ::SetFocus(::GetDlgItem(box, 102));
                  press_key(VK_SPACE);
                  ::PostMessageW(::GetFocus(), WM_KEYUP, VK_SPACE, 1);
              }),
              102);
}

TEST_F(OwnTaskDialog, TheCloseBoxCancels) {
    dialog.SetCommonButtons(1);
    dialog.SetOptions(0x8);
    EXPECT_EQ(Run([](HWND box) { ::PostMessageW(box, WM_SYSCOMMAND, SC_CLOSE, 0); }), IDCANCEL);
}

TEST_F(OwnTaskDialog, CancellingByItsButtonReadsTheBox) {
    dialog.SetCommonButtons(9);
    dialog.SetVerificationCheckboxText(L"again");
    dialog.SetVerificationCheckbox(1);
    EXPECT_EQ(Run([](HWND box) { press(box, IDCANCEL); }), IDCANCEL);
    EXPECT_EQ(dialog.GetVerificationCheckboxState(), 1);
}

TEST_F(OwnTaskDialog, AClickOnTheBoxEndsNothing) {
    dialog.SetCommonButtons(1);
    dialog.SetVerificationCheckboxText(L"again");
    bool stays = false;
    EXPECT_EQ(Run([&](HWND box) {
                  ::SendDlgItemMessageW(box, kCheckBoxId, BM_CLICK, 0, 0);
                  stays = ::IsWindowVisible(box) != FALSE;
                  press(box, IDOK);
              }),
              IDOK);
    EXPECT_TRUE(stays);
    EXPECT_EQ(dialog.clicks, std::vector<int>{1});
}

TEST_F(OwnTaskDialog, TabGoesFromTheDefaultOverTheBoxToTheRest) {
    dialog.SetOptions(0x10);
    dialog.AddCommandControl(101, L"one");
    dialog.SetVerificationCheckboxText(L"again");
    dialog.SetCommonButtons(9);
    std::vector<int> ids;
    EXPECT_EQ(Run([&](HWND box) { Walk(box, 4, ids, IDOK); }), IDOK);
    EXPECT_EQ(ids, (std::vector<int>{101, kCheckBoxId, IDOK, IDCANCEL, 101}));
}

TEST_F(OwnTaskDialog, BoxIsMadeBeforePushButtons) {
    dialog.SetVerificationCheckboxText(L"again");
    dialog.SetCommonButtons(7);
    dialog.AddCommandControl(101, L"one");
    dialog.AddCommandControl(102, L"two");
    std::vector<int> ids, named;
    Run([&](HWND box) {
        ids = ids_of(box);
        press(box, IDOK);
    });
    EXPECT_EQ(ids, (std::vector<int>{kCheckBoxId, 101, 102, IDOK, IDYES, IDNO}));
    dialog.SetDefaultCommandControl(IDYES);
    Run([&](HWND box) {
        named = ids_of(box);
        press(box, IDOK);
    });
    EXPECT_EQ(named, (std::vector<int>{IDYES, IDNO, kCheckBoxId, 101, 102, IDOK}));
}

TEST_F(OwnTaskDialog, FirstButtonOfTheListBeginsTheGroupWhicheverIsMadeFirst) {
    dialog.SetCommonButtons(6);
    dialog.SetDefaultCommandControl(IDNO);
    DWORD yes = 0, no = 0;
    Run([&](HWND box) {
        yes = child_of(box, IDYES).style;
        no = child_of(box, IDNO).style;
        press(box, IDNO);
    });
    EXPECT_TRUE(yes & WS_GROUP);
    EXPECT_FALSE(no & WS_GROUP);
}

TEST_F(OwnTaskDialog, WithABoxAndNoNamedDefaultEnterTakesTheFirstButton) {
    dialog.SetVerificationCheckboxText(L"again");
    dialog.SetCommonButtons(6);
    DWORD yes = 0;
    EXPECT_EQ(Run([&](HWND box) {
                  yes = child_of(box, IDYES).style & BS_TYPEMASK;
                  EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), kCheckBoxId);
                  press_key(VK_RETURN);
              }),
              IDYES);
    EXPECT_EQ(yes, static_cast<DWORD>(BS_DEFPUSHBUTTON));
}

TEST_F(OwnTaskDialog, ANamedPushButtonBehindLinksIsTheDefault) {
    dialog.SetOptions(0x20);
    dialog.AddCommandControl(101, L"one");
    dialog.SetCommonButtons(9);
    dialog.SetDefaultCommandControl(IDCANCEL);
    DWORD cancel = 0;
    EXPECT_EQ(Run([&](HWND box) {
                  cancel = child_of(box, IDCANCEL).style & BS_TYPEMASK;
                  press_key(VK_RETURN);
              }),
              IDCANCEL);
    EXPECT_EQ(cancel, static_cast<DWORD>(BS_DEFPUSHBUTTON));
}

TEST_F(OwnTaskDialog, HasItsTitleAndDisablesItsParent) {
    CString title;
    BOOL enabled = TRUE;
    Run([&](HWND box) {
        title = text_of(box);
        enabled = parent.IsWindowEnabled();
        press(box, IDOK);
    });
    EXPECT_EQ(title, L"task");
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST_F(OwnTaskDialog, ACommandThatIsNobodysIsNotTaken) {
    dialog.SetContent(L"body");
    LRESULT clicked = -1, other = -1;
    Run([&](HWND box) {
        clicked = ::SendMessageW(box, WM_COMMAND, MAKEWPARAM(4242, BN_CLICKED), 0);
        other = ::SendMessageW(box, WM_COMMAND, MAKEWPARAM(4242, BN_SETFOCUS), 0);
        press(box, IDOK);
    });
    EXPECT_EQ(clicked, 0);
    EXPECT_EQ(other, 0);
}

TEST_F(OwnTaskDialog, OnlyAClickOfAButtonEndsIt) {
    dialog.SetCommonButtons(8 | 1);
    bool stays = false;
    Run([&](HWND box) {
        for (const UINT code : {BN_DOUBLECLICKED, BN_SETFOCUS, BN_KILLFOCUS})
            ::SendMessageW(box, WM_COMMAND, MAKEWPARAM(IDOK, code), 0);
        later([&stays, box] {
            stays = ::IsWindow(box) && ::IsWindowVisible(box);
            if (stays) press(box, IDCANCEL);
        });
    });
    EXPECT_TRUE(stays);
}
