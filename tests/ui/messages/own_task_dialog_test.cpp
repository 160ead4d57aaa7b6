// The toolkit's own task dialog: its children and their order, how it ends, what it tells.
#include "task_dialog_fixture.h"

#include <algorithm>

using namespace ui_test;

namespace {

int WINAPI NoString(HINSTANCE, UINT, LPWSTR, int) { return 0; }

class OwnTaskDialogKeys : public OwnTaskDialog {
protected:
    OwnTaskDialogKeys() { dialog.SetCommonButtons(6); }
    /// Whether Escape ends the dialog; it is ended by Yes afterwards if not.
    int AfterEscape() {
        return Run([](HWND box) {
            press_key(VK_ESCAPE);
            later(
                [box] {
                    if (::IsWindow(box)) press(box, IDYES);
                },
                50);
        });
    }
};

}  // namespace

TEST_F(OwnTaskDialog, EmptyOneShowsAnOkButton) {
    std::vector<int> ids;
    EXPECT_EQ(Run([&](HWND box) {
                  ids = ids_of(box);
                  press(box, IDOK);
              }),
              IDOK);
    EXPECT_EQ(ids, std::vector<int>{IDOK});
}

TEST_F(OwnTaskDialog, TextsAreDrawnStaticsBeforeTheButtons) {
    dialog.SetMainInstruction(L"heading");
    dialog.SetContent(L"body");
    dialog.SetCommonButtons(9);
    std::vector<Child> children;
    Run([&](HWND box) {
        children = children_of(box);
        press(box, IDOK);
    });
    ASSERT_EQ(children.size(), 4u);
    EXPECT_EQ(children[0].text, L"heading");
    EXPECT_EQ(children[1].text, L"body");
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(children[static_cast<std::size_t>(i)].id, 65535);
        EXPECT_EQ(children[static_cast<std::size_t>(i)].style, 0x5000000Du);
    }
    EXPECT_EQ(children[2].id, IDOK);
    EXPECT_EQ(children[3].id, IDCANCEL);
    EXPECT_EQ(children[2].style & (WS_GROUP | WS_TABSTOP), static_cast<DWORD>(WS_GROUP | WS_TABSTOP));
    EXPECT_EQ(children[3].style & WS_GROUP, 0u);
}

TEST_F(OwnTaskDialog, TextsThatAreEmptyHaveNoWindow) {
    dialog.SetContent(L"body");
    std::vector<int> ids;
    Run([&](HWND box) {
        ids = ids_of(box);
        press(box, IDOK);
    });
    EXPECT_EQ(ids, (std::vector<int>{65535, IDOK}));
}

TEST_F(OwnTaskDialog, ButtonTextsComeFromTheResourceLibrary) {
    dialog.SetCommonButtons(63);
    std::vector<CString> texts;
    Run([&](HWND box) {
        for (const Child& child : children_of(box)) texts.push_back(child.text);
        press(box, IDOK);
    });
    EXPECT_EQ(texts, (std::vector<CString>{L"OK", L"&Yes", L"&No", L"&Retry", L"Cancel", L"&Close"}));
}

TEST_F(OwnTaskDialog, ButtonsHaveChineseTextsWithoutIt) {
    const ReplacedImport strings(toolkit, "LoadStringW", &NoString);
    ASSERT_TRUE(strings.isThere());
    dialog.SetCommonButtons(63);
    std::vector<CString> texts;
    Run([&](HWND box) {
        for (const Child& child : children_of(box)) texts.push_back(child.text);
        press(box, IDOK);
    });
    EXPECT_EQ(texts,
              (std::vector<CString>{L"确定", L"是(&Y)", L"否(&N)", L"重试(&R)", L"取消", L"关闭(&C)"}));
}

TEST_F(OwnTaskDialog, LinksAndTheBoxHaveTheirStyles) {
    dialog.SetOptions(0x10);
    dialog.AddCommandControl(101, L"one");
    dialog.AddCommandControl(102, L"two");
    dialog.SetVerificationCheckboxText(L"again");
    dialog.SetCommonButtons(8);
    std::vector<Child> children;
    Run([&](HWND box) {
        children = children_of(box);
        press(box, 102);
    });
    ASSERT_EQ(children.size(), 4u);
    EXPECT_EQ(children[0].id, 101);
    EXPECT_EQ(children[0].style, 0x5003000Bu);  // the first of the group
    EXPECT_EQ(children[1].style, 0x5001000Bu);
    EXPECT_EQ(children[2].id, kCheckBoxId);
    EXPECT_EQ(children[2].style, 0x50012503u);
    EXPECT_EQ(children[3].id, IDCANCEL);
    EXPECT_EQ(children[3].style & BS_TYPEMASK, static_cast<DWORD>(BS_PUSHBUTTON));
}

TEST_F(OwnTaskDialog, DefaultIsMadeFirstAndHasTheFocus) {
    dialog.SetCommonButtons(14);
    dialog.SetDefaultCommandControl(IDNO);
    std::vector<int> ids;
    int focus = 0;
    DWORD style = 0;
    Run([&](HWND box) {
        ids = ids_of(box);
        focus = ::GetDlgCtrlID(::GetFocus());
        style = child_of(box, IDNO).style;
        press(box, IDNO);
    });
    EXPECT_EQ(ids, (std::vector<int>{IDNO, IDCANCEL, IDYES}));
    EXPECT_EQ(focus, IDNO);
    EXPECT_EQ(style & BS_TYPEMASK, static_cast<DWORD>(BS_DEFPUSHBUTTON));
}

TEST_F(OwnTaskDialog, UnknownDefaultLeavesTheFirstButton) {
    dialog.SetCommonButtons(6);
    dialog.SetDefaultCommandControl(4711);
    DWORD yes = 0, no = 0;
    EXPECT_EQ(Run([&](HWND box) {
                  yes = child_of(box, IDYES).style & BS_TYPEMASK;
                  no = child_of(box, IDNO).style & BS_TYPEMASK;
                  press_key(VK_RETURN);
              }),
              IDYES);
    EXPECT_EQ(yes, static_cast<DWORD>(BS_DEFPUSHBUTTON));
    EXPECT_EQ(no, static_cast<DWORD>(BS_PUSHBUTTON));
}

TEST_F(OwnTaskDialog, BehindLinksNoPushButtonIsTheDefault) {
    dialog.SetOptions(0x20);
    dialog.AddCommandControl(101, L"one");
    dialog.SetCommonButtons(9);
    std::vector<DWORD> types;
    EXPECT_EQ(Run([&](HWND box) {
                  for (const int id : {IDOK, IDCANCEL})
                      types.push_back(child_of(box, id).style & BS_TYPEMASK);
                  press_key(VK_RETURN);
              }),
              101);
    EXPECT_EQ(types, (std::vector<DWORD>{BS_PUSHBUTTON, BS_PUSHBUTTON}));
}

TEST_F(OwnTaskDialogKeys, EnterPressesTheButtonWithTheFocus) {
    EXPECT_EQ(Run([](HWND box) {
                  ::SetFocus(::GetDlgItem(box, IDNO));
                  press_key(VK_RETURN);
              }),
              IDNO);
}

TEST_F(OwnTaskDialogKeys, EnterOnTheBoxPressesTheDefault) {
    dialog.SetVerificationCheckboxText(L"again");
    int focus = 0;
    EXPECT_EQ(Run([&](HWND box) {
                  ::SetFocus(::GetDlgItem(box, kCheckBoxId));
                  focus = ::GetDlgCtrlID(::GetFocus());
                  press_key(VK_RETURN);
              }),
              IDYES);
    EXPECT_EQ(focus, kCheckBoxId);
}

TEST_F(OwnTaskDialogKeys, EscapeDoesNothingWithoutAWayToCancel) { EXPECT_EQ(AfterEscape(), IDYES); }

TEST_F(OwnTaskDialogKeys, EscapeEndsACancellableOne) {
    dialog.SetOptions(0x8);
    EXPECT_EQ(AfterEscape(), IDCANCEL);
}

TEST_F(OwnTaskDialogKeys, EscapeEndsOneWithACancelButton) {
    dialog.SetCommonButtons(14);
    EXPECT_EQ(AfterEscape(), IDCANCEL);
}

TEST_F(OwnTaskDialogKeys, EscapeEndsOneWithACancelCommand) {
    dialog.AddCommandControl(IDCANCEL, L"never mind");
    EXPECT_EQ(AfterEscape(), IDCANCEL);
}

TEST_F(OwnTaskDialogKeys, CloseBoxIsThereForThoseThatCanBeCancelled) {
    const auto hasCloseBox = [this] {
        bool has = false;
        Run([&](HWND box) {
            has = (::GetWindowLongW(box, GWL_STYLE) & WS_SYSMENU) != 0;
            press(box, IDYES);
        });
        return has;
    };
    EXPECT_FALSE(hasCloseBox());
    dialog.SetOptions(0x8);
    EXPECT_TRUE(hasCloseBox());
    dialog.SetOptions(0);
    dialog.SetCommonButtons(14);
    EXPECT_TRUE(hasCloseBox());
    dialog.SetCommonButtons(6);
    dialog.AddCommandControl(IDCANCEL, L"never mind");
    EXPECT_TRUE(hasCloseBox());
}

TEST_F(OwnTaskDialog, CheckBoxStartsAsAskedAndIsReadWhenAButtonEnds) {
    dialog.SetVerificationCheckboxText(L"again");
    dialog.SetVerificationCheckbox(1);
    LRESULT start = 0;
    Run([&](HWND box) {
        start = ::SendDlgItemMessageW(box, kCheckBoxId, BM_GETCHECK, 0, 0);
        press(box, IDOK);
    });
    EXPECT_EQ(start, BST_CHECKED);
    EXPECT_EQ(dialog.GetVerificationCheckboxState(), 1);
    EXPECT_TRUE(dialog.clicks.empty());
    Run([](HWND box) {
        ::SendDlgItemMessageW(box, kCheckBoxId, BM_CLICK, 0, 0);
        press(box, IDOK);
    });
    EXPECT_EQ(dialog.GetVerificationCheckboxState(), 0);
    EXPECT_EQ(dialog.clicks, std::vector<int>{0});
    dialog.SetVerificationCheckbox(0);
    Run([](HWND box) {
        ::SendDlgItemMessageW(box, kCheckBoxId, BM_CLICK, 0, 0);
        press_key(VK_RETURN);
    });
    EXPECT_EQ(dialog.GetVerificationCheckboxState(), 1);
    EXPECT_EQ(dialog.clicks, (std::vector<int>{0, 1}));
}

TEST_F(OwnTaskDialog, EscapeWithoutACancelButtonLeavesTheStateAlone) {
    dialog.SetVerificationCheckboxText(L"again");
    dialog.SetVerificationCheckbox(1);
    dialog.SetOptions(0x108);
    EXPECT_EQ(Run([](HWND) { press_key(VK_ESCAPE); }), IDCANCEL);
    EXPECT_EQ(dialog.GetVerificationCheckboxState(), 0);
}

TEST_F(OwnTaskDialog, CommonButtonsAreDisabledWhileItRuns) {
    dialog.SetCommonButtons(7);
    dialog.SetCommonButtonOptions(7);
    std::vector<BOOL> enabled;
    Run([&](HWND box) {
        const auto look = [&] {
            for (const int id : {IDOK, IDYES, IDNO})
                enabled.push_back(::IsWindowEnabled(::GetDlgItem(box, id)));
        };
        look();
        dialog.SetCommonButtonOptions(6);
        look();
        dialog.SetCommonButtonOptions(1);
        look();
        press(box, IDNO);
    });
    EXPECT_EQ(enabled, (std::vector<BOOL>{TRUE, TRUE, TRUE, TRUE, FALSE, FALSE, FALSE, TRUE, TRUE}));
    dialog.SetCommonButtonOptions(1);  // the dialog is gone
}

TEST_F(OwnTaskDialog, RunsWithTheLibrarysOwnResources) {
    std::vector<HINSTANCE> during;
    Run([&](HWND box) {
        during = host.resourceStack;
        press(box, IDOK);
    });
    EXPECT_EQ(during, std::vector<HINSTANCE>{toolkit});
    EXPECT_EQ(host.pushes, 1);
    EXPECT_EQ(host.pops, 1);
}

TEST_F(OwnTaskDialog, RunsAgain) {
    dialog.SetCommonButtons(6);
    EXPECT_EQ(Run([](HWND box) { press(box, IDYES); }), IDYES);
    EXPECT_EQ(Run([](HWND box) { press(box, IDNO); }), IDNO);
    EXPECT_EQ(dialog.GetSelectedCommandControlID(), IDNO);
}

TEST_F(OwnTaskDialog, ThirtyCommandsCanAllBePressed) {
    dialog.SetOptions(0x10);
    for (int i = 0; i < 30; ++i) {
        CString title;
        title.Format(L"Command %d", i);
        dialog.AddCommandControl(200 + i, title);
    }
    for (const int id : {200, 229}) EXPECT_EQ(Run([&](HWND box) { press(box, id); }), id);
}

TEST_F(OwnTaskDialog, FiveThousandCharactersWidenItToNoMoreThanTheWorkArea) {
    CString text;
    for (int i = 0; i < 500; ++i) text += L"nine char ";
    dialog.SetContent(text);
    CRect client, body, work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    CRect window;
    Run([&](HWND box) {
        ::GetClientRect(box, &client);
        ::GetWindowRect(box, &window);
        body = child_of(box, 65535).rect;
        press(box, IDOK);
    });
    EXPECT_GT(client.Width(), 350);
    EXPECT_LE(window.Width(), work.Width());
    EXPECT_LE(window.Height(), work.Height());
    EXPECT_LE(client.Height(), client.Width() * 11 / 10 + 1);
    EXPECT_GT(body.Height(), 200);
}

TEST_F(OwnTaskDialog, WithoutABoxNobodyHearsOfAClickOnIt) {
    dialog.SetContent(L"body");
    Run([&](HWND box) {
        ::SendMessageW(box, WM_COMMAND, MAKEWPARAM(ui_test::kCheckBoxId, BN_CLICKED), 0);
        press(box, IDOK);
    });
    EXPECT_TRUE(dialog.clicks.empty());
}
