// A navigation dialog that chooses a folder.
#include <shlobj.h>

#include "in_language.h"
#include "shown_fixture.h"
#include "told_message.h"
#include "without_strings.h"

namespace {

class FileDialogFolders : public ShownTest {
protected:
    FileDialogFolders() { dialog.SetFoldersOnly(1); }
    void look(std::function<void(HWND)> at) {
        run([&](HWND window) {
            at(window);
            press(window, IDCANCEL);
        });
    }
    /// The platform tells the dialog something.
    void notify(HWND window, UINT code) {
        OFNOTIFYW notice = {};
        notice.hdr = {window, 0, code};
        notice.lpOFN = &dialog.GetImpObject()->m_fileDialog->GetOFN();
        ::SendMessageW(own(window), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notice));
    }
    static constexpr UINT kFolderChange = static_cast<UINT>(CDN_FOLDERCHANGE);
    static constexpr UINT kNameChange = static_cast<UINT>(CDN_SELCHANGE);
};

TEST_F(FileDialogFolders, HidesWhatIsForFiles) {
    std::vector<int> order;
    std::vector<int> texts;
    ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
        if (message.message == CDM_HIDECONTROL) order.push_back(static_cast<int>(message.wParam));
        if (message.message == CDM_SETCONTROLTEXT) {
            texts.push_back(static_cast<int>(message.wParam));
            EXPECT_EQ(order.size(), 6u);
        }
    });
    look([&](HWND window) {
        for (const int id : {1089, 1090, 1136, 1148, 1040})
            EXPECT_FALSE(isShown(::GetDlgItem(window, id))) << id;
        wchar_t text[100] = {};
        EXPECT_GT(::LoadStringW(::GetModuleHandleW(L"ktdsres.dll"), 54051, text, 100), 0);
        EXPECT_EQ(text_of(::GetDlgItem(window, 1090)), text);
        EXPECT_EQ(::GetDlgItem(own(window), 57015), nullptr);
    });
    EXPECT_EQ(order, (std::vector<int>{1089, 1090, 1136, 1148, 1152, 1040}));
    EXPECT_EQ(texts, std::vector<int>{1090});
}

TEST_F(FileDialogFolders, TheirLabelHasADefault) {
    const ui_test::WithoutStrings strings;
    look([&](HWND window) { EXPECT_EQ(text_of(::GetDlgItem(window, 1090)), L"文件夹"); });
}

TEST_F(FileDialogFolders, ASaveDialogShowsItsFiles) {
    dialog.SetCreatingFile(1);
    look([&](HWND window) { EXPECT_TRUE(isShown(::GetDlgItem(window, 1148))); });
}

TEST_F(FileDialogFolders, OkChoosesTheFolderShown) {
    const INT_PTR result = run([&](HWND window) { press(window, IDOK); });
    EXPECT_EQ(result, IDOK);
    ASSERT_EQ(data.GetCount(), 1);
    EXPECT_EQ(CString(data.GetData(0)->GetText()) + L"\\", folder);
    EXPECT_EQ(dialog.count("ok"), 0);
    CString stored;
    EXPECT_EQ(dialog.GetDialogData(L"InitialDirectory", stored), 1);
    EXPECT_EQ(stored + L"\\", folder) << "the whole path";
    EXPECT_EQ(CString(dialog.GetImpObject()->m_fileDialog->GetOFN().lpstrFile) + L"\\", folder);
}

TEST_F(FileDialogFolders, OkChoosesTheFolderNamed) {
    run([&](HWND window) {
        ::SetDlgItemTextW(window, kNameBox, L"templates");
        press(window, IDOK);
    });
    ASSERT_EQ(data.GetCount(), 1);
    EXPECT_EQ(CString(data.GetData(0)->GetText()), folder + L"templates");
}

TEST_F(FileDialogFolders, AFolderThatIsNotThereIsToldAndTheDialogStays) {
    look([&](HWND window) {
        answerMessage();
        ::SetDlgItemTextW(window, kNameBox, L"missing");
        EXPECT_EQ(::SendMessageW(window, WM_COMMAND, IDOK, 0), 0);
        EXPECT_TRUE(::IsWindowVisible(window));
    });
    wchar_t text[100] = {};
    ::LoadStringW(::GetModuleHandleW(L"ktdsres.dll"), 54059, text, 100);
    EXPECT_EQ(messages, std::vector<std::wstring>{text});
    EXPECT_EQ(data.GetCount(), 0);
}

TEST_F(FileDialogFolders, TheWordsForItHaveADefault) {
    const ui_test::WithoutStrings strings;
    look([&](HWND window) {
        answerMessage();
        ::SetDlgItemTextW(window, kNameBox, L"missing");
        ::SendMessageW(window, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(messages, std::vector<std::wstring>{L"Cannot use the location specified."});
}

/// The buttons of a message.
std::vector<std::wstring> buttonsOf(HWND box) {
    std::vector<std::wstring> texts;
    for (HWND child = ::GetWindow(box, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        wchar_t name[16] = {};
        ::GetClassNameW(child, name, 16);
        if (::lstrcmpiW(name, L"button") == 0 && ::IsWindowVisible(child))
            texts.push_back(text_of(child).GetString());
    }
    return texts;
}

TEST_F(FileDialogFolders, ItIsSaidInABoxWithNothingButOk) {
    std::vector<std::wstring> buttons;
    look([&](HWND window) {
        when_dialog(L"Test Caption", [&](HWND box) {
            buttons = buttonsOf(box);
            ::PostMessageW(box, WM_COMMAND, IDOK, 0);
        });
        ::SetDlgItemTextW(window, kNameBox, L"missing");
        ::SendMessageW(window, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(buttons.size(), 1u);
}

TEST_F(FileDialogFolders, ItIsSaidInTheUsersLanguageWithAWarningSign) {
    const std::pair<LANGID, const wchar_t*> texts[] = {
        {ui_test::kEnglish, L"Cannot use the location specified."},
        {ui_test::kChinese, L"无法使用指定的位置。"}};
    for (const auto& [language, text] : texts) {
        const ui_test::InLanguage user(language);
        ForgetMessages();
        look([&](HWND window) {
            answerMessage();
            ::SetDlgItemTextW(window, kNameBox, L"missing");
            ::SendMessageW(window, WM_COMMAND, IDOK, 0);
        });
        EXPECT_EQ(ToldMessages(),
                  (std::vector<ToldMessage>{{L"Test Caption", text, kToldOk, WarningSign()}}));
    }
}

TEST_F(FileDialogFolders, TheirLabelSpeaksTheUsersLanguage) {
    look([&](HWND window) { EXPECT_EQ(text_of(::GetDlgItem(window, 1090)), L"Folder"); });
    const ui_test::InLanguage chinese(ui_test::kChinese);
    look([&](HWND window) { EXPECT_EQ(text_of(::GetDlgItem(window, 1090)), L"文件夹"); });
}

TEST_F(FileDialogFolders, OnlyThePressOfOkCounts) {
    look([&](HWND window) {
        ::SendMessageW(window, WM_COMMAND, MAKEWPARAM(IDOK, BN_SETFOCUS), 0);
        EXPECT_TRUE(::IsWindowVisible(window));
        EXPECT_EQ(data.GetCount(), 0);
    });
}

/// Counts presses of OK as long as it lives.
struct Presses {
    explicit Presses(HWND window)
        : watch([this, window](const CWPSTRUCT& message) {
              count += message.message == WM_LBUTTONUP && message.hwnd == ::GetDlgItem(window, IDOK);
          }) {}
    int count = 0;
    ui_test::SentMessages watch;
};

TEST_F(FileDialogFolders, AChangedFolderIsEnteredAtTheNextName) {
    look([&](HWND window) {
        const Presses presses(window);
        notify(window, kNameChange);
        EXPECT_EQ(presses.count, 0) << "the first folder is the one that it begins with";
        ::SetDlgItemTextW(window, kNameBox, L"typed");
        notify(window, kFolderChange);
        EXPECT_EQ(presses.count, 0);
        dialog.calls.clear();
        notify(window, kNameChange);
        EXPECT_EQ(presses.count, 1);
        EXPECT_EQ(dialog.calls, std::vector<std::string>{"name"});
        EXPECT_EQ(typed(window), L"typed");
        EXPECT_EQ(data.GetCount(), 0) << "that press doesn't choose it";
        EXPECT_TRUE(::IsWindowVisible(window));
        notify(window, kNameChange);
        EXPECT_EQ(presses.count, 1) << "once";
        notify(window, kFolderChange);
        notify(window, kNameChange);
        EXPECT_EQ(presses.count, 2);
    });
}

TEST_F(FileDialogFolders, TheFolderThatItBeginsWithIsNotEntered) {
    int presses = 0;
    ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
        presses += message.message == WM_LBUTTONUP && ::GetDlgCtrlID(message.hwnd) == IDOK;
    });
    look([&](HWND window) { notify(window, kNameChange); });
    EXPECT_EQ(presses, 0);
}

TEST_F(FileDialogFolders, AFolderThatWasEnteredCanBeChosen) {
    const INT_PTR result = run([&](HWND window) {
        notify(window, kFolderChange);
        notify(window, kNameChange);
        EXPECT_EQ(::SendMessageW(window, WM_COMMAND, IDOK, 0), 0);
        EXPECT_EQ(data.GetCount(), 1);
        if (data.GetCount() == 0) press(window, IDCANCEL);
    });
    EXPECT_EQ(result, IDOK);
}

TEST_F(FileDialogFolders, TheItemWithTheFocusIsUnmarkedForIt) {
    ::CreateDirectoryW(folder + L"templates\\inner", nullptr);
    const SystemOfMajor system(5);  // a later one refreshes the view, which unmarks all
    look([&](HWND window) {
        const HWND list = fileList(window);
        ASSERT_GT(::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0), 0);
        LVITEMW item = {};
        item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
        ::SendMessageW(list, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(::SendMessageW(list, LVM_GETSELECTEDCOUNT, 0, 0), 1);
        notify(window, kFolderChange);
        notify(window, kNameChange);
        EXPECT_EQ(::SendMessageW(fileList(window), LVM_GETSELECTEDCOUNT, 0, 0), 0);
    });
    ::RemoveDirectoryW(folder + L"templates\\inner");
}

TEST_F(FileDialogFolders, OtherItemsStayMarkedForIt) {
    ::CreateDirectoryW(folder + L"another", nullptr);
    const SystemOfMajor system(5);
    look([&](HWND window) {
        const auto mark = [&](int row, UINT state) {
            LVITEMW item = {};
            item.state = state;
            item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
            ::SendMessageW(fileList(window), LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                           reinterpret_cast<LPARAM>(&item));
        };
        const auto marked = [&] {
            std::vector<int> rows;
            for (LRESULT row = -1; (row = ::SendMessageW(fileList(window), LVM_GETNEXTITEM,
                                                         static_cast<WPARAM>(row), LVNI_SELECTED)) >= 0;)
                rows.push_back(static_cast<int>(row));
            return rows;
        };
        ASSERT_GE(::SendMessageW(fileList(window), LVM_GETITEMCOUNT, 0, 0), 2);
        mark(-1, 0);
        mark(1, LVIS_SELECTED);
        ASSERT_EQ(::SendMessageW(fileList(window), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED),
                  -1);
        notify(window, kFolderChange);
        notify(window, kNameChange);
        EXPECT_EQ(marked(), std::vector<int>{1}) << "none has the focus";
        mark(0, LVIS_FOCUSED);
        notify(window, kFolderChange);
        notify(window, kNameChange);
        EXPECT_EQ(marked(), std::vector<int>{1}) << "another has the focus";
    });
    ::RemoveDirectoryW(folder + L"another");
}

TEST_F(FileDialogFolders, InADialogForFilesNoFolderIsEntered) {
    dialog.SetFoldersOnly(0);
    look([&](HWND window) {
        const Presses presses(window);
        notify(window, kFolderChange);
        notify(window, kFolderChange);
        notify(window, kNameChange);
        EXPECT_EQ(presses.count, 0);
    });
}

}  // namespace
