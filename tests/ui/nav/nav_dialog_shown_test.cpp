// A navigation dialog over the platform's own file dialog.
#include "shown_fixture.h"

namespace {

TEST_F(ShownTest, AFileChosenIsAResult) {
    const INT_PTR result = run([](HWND window) {
        ::SetDlgItemTextW(window, kNameBox, L"one.dwg");
        press(window, IDOK);
    });
    EXPECT_EQ(result, IDOK);
    ASSERT_EQ(data.GetCount(), 1);
    EXPECT_EQ(CString(data.GetData(0)->GetText()), folder + L"one.dwg");
    EXPECT_EQ(data.GetData(0)->GetDataType(), 0);
    EXPECT_EQ(dialog.count("ok"), 1);
    EXPECT_EQ(host.pops, 1);
    CString stored;
    EXPECT_EQ(dialog.GetDialogData(L"InitialDirectory", stored), 1);
    EXPECT_EQ(stored, folder);
}

TEST_F(ShownTest, SeveralFilesAreSeveralResults) {
    dialog.SetMultiSelectAllowed(1);
    const INT_PTR result = run([](HWND window) {
        ::SetDlgItemTextW(window, kNameBox, L"\"one.dwg\" \"two.dwg\"");
        press(window, IDOK);
    });
    EXPECT_EQ(result, IDOK);
    ASSERT_EQ(data.GetCount(), 2);
    EXPECT_EQ(CString(data.GetData(0)->GetText()), folder + L"one.dwg");
    EXPECT_EQ(CString(data.GetData(1)->GetText()), folder + L"two.dwg");
}

TEST_F(ShownTest, ARefusalKeepsItOpenAndTheResultIn) {
    dialog.refusals = 1;
    const INT_PTR result = run([](HWND window) {
        ::SetDlgItemTextW(window, kNameBox, L"one.dwg");
        ::SendMessageW(window, WM_COMMAND, IDOK, 0);
        EXPECT_TRUE(::IsWindow(window));
        ::SetDlgItemTextW(window, kNameBox, L"two.dwg");
        press(window, IDOK);
    });
    EXPECT_EQ(result, IDOK);
    ASSERT_EQ(data.GetCount(), 2);
    EXPECT_EQ(CString(data.GetData(0)->GetText()), folder + L"one.dwg");
    EXPECT_EQ(CString(data.GetData(1)->GetText()), folder + L"two.dwg");
    EXPECT_EQ(dialog.count("ok"), 2);
}

TEST_F(ShownTest, ACancelledOneHasNoResult) {
    EXPECT_EQ(run([](HWND window) { press(window, IDCANCEL); }), IDCANCEL);
    EXPECT_EQ(data.GetCount(), 0);
    EXPECT_EQ(dialog.count("ok"), 0);
}

TEST_F(ShownTest, StartsWithTheNameAndTheType) {
    dialog.SetInitialFileName(L"C:\\elsewhere\\one.dwg");
    dialog.SetForceFilterIndex(2);
    run([this](HWND window) {
        EXPECT_EQ(typed(window), L"one.dwg");
        EXPECT_EQ(::SendDlgItemMessageW(window, kTypeBox, CB_GETCURSEL, 0, 0), 2);
        EXPECT_EQ(folderOf(window) + L"\\", folder);
        EXPECT_EQ(::SendDlgItemMessageW(window, kTypeBox, CB_GETCOUNT, 0, 0), 3);
        press(window, IDCANCEL);
    });
}

TEST_F(ShownTest, AnotherTypeIsToldAndIsTheCurrentOne) {
    run([this](HWND window) {
        CString extension;
        dialog.onFilterChange = [&] { dialog.GetCurrentFileExtension(extension); };
        choose(window, 2);
        EXPECT_EQ(dialog.count("filter"), 1);
        EXPECT_EQ(extension, L"*.*");
        EXPECT_EQ(dialog.GetFilterIndex(), 2);
        press(window, IDCANCEL);
    });
}

TEST_F(ShownTest, ATypeIsSelectedAsAUserWould) {
    run([this](HWND window) {
        std::vector<std::string> sent;
        ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
            if (message.hwnd == window && message.message == WM_COMMAND && LOWORD(message.wParam) == kTypeBox)
                sent.push_back(HIWORD(message.wParam) == CBN_DROPDOWN  ? "opened"
                               : HIWORD(message.wParam) == CBN_CLOSEUP ? "closed"
                                                                       : "other");
            if (message.message == CB_SETCURSEL) sent.push_back("selected");
        });
        dialog.SetFilterIndex(1);
        ASSERT_GE(sent.size(), 3u);
        EXPECT_EQ(sent[0], "opened");
        EXPECT_EQ(sent[1], "selected");
        EXPECT_EQ(sent[2], "closed");
        EXPECT_EQ(dialog.GetFilterIndex(), 1);
        EXPECT_EQ(dialog.count("filter"), 1);
        sent.clear();
        dialog.SetFilterIndex(1);
        EXPECT_EQ(sent, (std::vector<std::string>{"opened", "selected", "closed"}));
        EXPECT_EQ(dialog.count("filter"), 1) << "it is the type shown";
        dialog.SetFilterIndex(-1);
        EXPECT_EQ(text_of(::GetDlgItem(window, kTypeBox)), L"");
        press(window, IDCANCEL);
    });
}

TEST_F(ShownTest, GoesToAFolderAndKeepsTheNameTyped) {
    run([this](HWND window) {
        ::SetDlgItemTextW(window, kNameBox, L"typed");
        EXPECT_EQ(dialog.NavigateToFolder(folder + L"templates\\"), 1);
        EXPECT_EQ(folderOf(window), folder + L"templates");
        EXPECT_EQ(typed(window), L"typed");
        EXPECT_EQ(dialog.NavigateToFolder(nullptr), 0);
        EXPECT_EQ(data.GetCount(), 0);
        press(window, IDCANCEL);
    });
}

TEST_F(ShownTest, GoesNowhereForTheFolderShownUnlessItsBackslashIsMissing) {
    run([this](HWND window) {
        int pressed = 0;
        ui_test::SentMessages watch(
            [&](const CWPSTRUCT& message) { pressed += message.message == WM_LBUTTONUP; });
        CString same = folder;
        same.MakeUpper();
        EXPECT_EQ(dialog.NavigateToFolder(same), 1);
        EXPECT_EQ(pressed, 0);
        EXPECT_EQ(dialog.NavigateToFolder(folder.Left(folder.GetLength() - 1)), 1);
        EXPECT_EQ(pressed, 1);
        press(window, IDCANCEL);
    });
}

TEST_F(ShownTest, AfterwardsTheFileDialogStandsStill) {
    run([](HWND window) { press(window, IDCANCEL); });
    const int before = dialog.GetFilterIndex();
    dialog.SetFilterIndex(2);
    EXPECT_EQ(dialog.GetFilterIndex(), before);
    EXPECT_EQ(dialog.NavigateToFolder(L"C:\\"), 0);
}

TEST_F(ShownTest, TemplatesAreShownInTheirFolder) {
    host.profileStrings[L"General/TemplatePath"] = (folder + L"templates").GetString();
    run([this](HWND window) {
        CString inFolder;
        dialog.onFilterChange = [&] { inFolder = folderOf(window); };
        choose(window, 2);
        EXPECT_EQ(inFolder + L"\\", folder);
        choose(window, 1);
        EXPECT_EQ(inFolder, folder + L"templates");
        press(window, IDCANCEL);
    });
}

TEST_F(ShownTest, WithoutAPathOfTemplatesTheFolderStays) {
    host.profileStrings[L"General/TemplatePath"] = L"";
    run([this](HWND window) {
        choose(window, 1);
        EXPECT_EQ(folderOf(window) + L"\\", folder);
        press(window, IDCANCEL);
    });
}

TEST_F(ShownTest, ANameToBeSavedTakesTheExtensionOfTheType) {
    dialog.SetCreatingFile(1);
    host.profileStrings[L"General/TemplatePath"] = (folder + L"templates").GetString();
    run([this](HWND window) {
        ::SetDlgItemTextW(window, kNameBox, L"plan.old.dwg");
        ::SetFocus(::GetDlgItem(window, IDCANCEL));
        CString atFilterChange;
        dialog.onFilterChange = [&] { atFilterChange = typed(window); };
        choose(window, 1);
        EXPECT_EQ(typed(window), L"plan.old.dwt");
        EXPECT_EQ(atFilterChange, L"plan.old.dwt");
        EXPECT_EQ(folderOf(window), folder + L"templates");
        EXPECT_TRUE(::IsChild(::GetDlgItem(window, kNameBox), ::GetFocus()) ||
                    ::GetFocus() == ::GetDlgItem(window, kNameBox));
        choose(window, 2);
        EXPECT_EQ(typed(window), L"plan.old.dwt") << "all files have no extension";
        EXPECT_EQ(dialog.count("filter"), 2);
        ::SetDlgItemTextW(window, kNameBox, L"");
        choose(window, 0);
        EXPECT_EQ(typed(window), L"");
        EXPECT_EQ(dialog.count("filter"), 3);
        press(window, IDCANCEL);
    });
}

TEST_F(ShownTest, ANameToBeOpenedKeepsItsExtension) {
    run([this](HWND window) {
        ::SetDlgItemTextW(window, kNameBox, L"plan.dwg");
        choose(window, 1);
        EXPECT_EQ(typed(window), L"plan.dwg");
        EXPECT_EQ(dialog.count("filter"), 1);
        press(window, IDCANCEL);
    });
}

TEST_F(ShownTest, OutsideTheApplicationsModeATypeIsOnlyTold) {
    dialog.SetCreatingFile(1);
    dialog.GetImpObject()->m_applicationMode = 0;
    host.profileStrings[L"General/TemplatePath"] = (folder + L"templates").GetString();
    run([this](HWND window) {
        ::SetDlgItemTextW(window, kNameBox, L"plan.dwg");
        choose(window, 1);
        EXPECT_EQ(typed(window), L"plan.dwg");
        EXPECT_EQ(folderOf(window) + L"\\", folder);
        EXPECT_EQ(dialog.count("filter"), 1);
        press(window, IDCANCEL);
    });
}

TEST_F(ShownTest, AnotherNameIsTold) {
    run([this](HWND window) {
        dialog.calls.clear();
        const HWND view = ::GetDlgItem(window, 1121);
        const HWND list = ::GetWindow(view, GW_CHILD);
        EXPECT_NE(list, nullptr);
        EXPECT_TRUE(ui_test::pump_until([&] { return ::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0) > 0; }));
        LVITEMW item = {};
        item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
        const int last = static_cast<int>(::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0)) - 1;
        ::SendMessageW(list, LVM_SETITEMSTATE, static_cast<WPARAM>(last), reinterpret_cast<LPARAM>(&item));
        EXPECT_TRUE(ui_test::pump_until([&] { return dialog.count("name") > 0; }));
        press(window, IDCANCEL);
    });
}

}  // namespace
