// The buttons of the navigation file dialog: Locate, Find, Options.
#include <od_string.h>

#include "in_language.h"
#include "open_drawing.h"
#include "shown_fixture.h"
#include "told_message.h"
#include "without_strings.h"

namespace {

/// What the find dialog was given, and what it answers.
struct Finding {
    std::wstring filter, folder;
    int index = 0;
    bool answer = false;
    std::wstring foundFolder, foundFile;
} finding;

bool findFile(const wchar_t* filter, int index, const wchar_t* folder, OdString& outFolder,
              OdString& outFile) {
    finding.filter = filter;
    finding.index = index;
    finding.folder = folder;
    outFolder = finding.foundFolder.c_str();
    outFile = finding.foundFile.c_str();
    return finding.answer;
}

class FileDialogCommands : public ShownTest {
protected:
    FileDialogCommands() {
        finding = {};
        m_formerFind = KtUiTestDoor().exchangeFindFileDialog(&findFile);
        for (const wchar_t* each : {L"first", L"second"}) ::CreateDirectoryW(folder + each, nullptr);
        host.supportFolders = {(folder + L"first").GetString(), (folder + L"second").GetString()};
        dialog.ConvertFlagsToState(0x8080);
    }
    ~FileDialogCommands() override {
        KtUiTestDoor().exchangeFindFileDialog(m_formerFind);
        ::DeleteFileW(folder + L"second\\pattern.pat");
        ::DeleteFileW(folder + L"first\\pattern.pat");
        ::RemoveDirectoryW(folder + L"first\\pattern.pat");
        for (const wchar_t* each : {L"first", L"second"}) ::RemoveDirectoryW(folder + each);
    }
    void look(std::function<void(HWND)> at) {
        run([&](HWND window) {
            at(window);
            press(window, IDCANCEL);
        });
    }
    void makeFile(const wchar_t* name) const {
        ::CloseHandle(::CreateFileW(folder + name, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    }
    void locate(HWND window, const wchar_t* name) {
        ::SetDlgItemTextW(window, kNameBox, name);
        click(window, 57011);
    }
    FindFileDialogCall m_formerFind;
};

TEST_F(FileDialogCommands, LocateGoesToTheFirstFolderThatHasTheFile) {
    makeFile(L"second\\pattern.pat");
    look([&](HWND window) {
        locate(window, L"  pattern.pat ");
        EXPECT_EQ(folderOf(window), folder + L"second");
        EXPECT_EQ(typed(window), L"  pattern.pat ");
        makeFile(L"first\\pattern.pat");
        locate(window, L"pattern.pat");
        EXPECT_EQ(folderOf(window), folder + L"first");
    });
}

TEST_F(FileDialogCommands, AFolderOfThatNameIsNoFile) {
    ::CreateDirectoryW(folder + L"first\\pattern.pat", nullptr);
    makeFile(L"second\\pattern.pat");
    look([&](HWND window) {
        locate(window, L"pattern.pat");
        EXPECT_EQ(folderOf(window), folder + L"second");
    });
}

TEST_F(FileDialogCommands, ANameThatIsNowhereIsToldWithTheFolders) {
    ::CreateDirectoryW(folder + L"first\\pattern.pat", nullptr);
    look([&](HWND window) {
        answerMessage();
        locate(window, L" pattern.pat ");
        EXPECT_EQ(folderOf(window) + L"\\", folder);
    });
    const CString expected = CString(L"\"pattern.pat\"\n") + folder + L"first\\\n" + folder + L"second\\\n";
    EXPECT_EQ(messages, (std::vector<std::wstring>{expected.GetString()}));
}

TEST_F(FileDialogCommands, WithoutFoldersOnlyTheNameIsTold) {
    host.supportFolders.clear();
    look([&](HWND window) {
        answerMessage();
        locate(window, L"a");
    });
    EXPECT_EQ(messages, (std::vector<std::wstring>{L"\"a\"\n"}));
}

TEST_F(FileDialogCommands, ANameOfNothingIsNotValid) {
    wchar_t text[100] = {};
    look([&](HWND window) {
        for (const wchar_t* name : {L"   ", L" . "}) {
            answerMessage();
            locate(window, name);
        }
    });
    EXPECT_GT(::LoadStringW(::GetModuleHandleW(L"ktdsres.dll"), 54058, text, 100), 0);
    CString empty, point;
    empty.Format(text, L"");
    point.Format(text, L".");
    EXPECT_EQ(messages, (std::vector<std::wstring>{empty.GetString(), point.GetString()}));
}

TEST_F(FileDialogCommands, WhatLocateTellsHasAWarningSignAndTheUsersLanguage) {
    const auto toldFor = [this](const wchar_t* name) {
        ForgetMessages();
        look([&, name](HWND window) {
            answerMessage();
            locate(window, name);
        });
        return ToldMessages();
    };
    host.supportFolders.clear();
    EXPECT_EQ(toldFor(L"a"),
              (std::vector<ToldMessage>{{L"Test Caption", L"\"a\"\n", kToldOk, WarningSign()}}));
    EXPECT_EQ(toldFor(L"."), (std::vector<ToldMessage>{{L"Test Caption", L"The file name is not valid: \".\"",
                                                        kToldOk, WarningSign()}}));
    const ui_test::InLanguage chinese(ui_test::kChinese);
    EXPECT_EQ(toldFor(L"."),
              (std::vector<ToldMessage>{{L"Test Caption", L"文件名无效：\".\"", kToldOk, WarningSign()}}));
}

TEST_F(FileDialogCommands, TheWordsForItHaveADefault) {
    const ui_test::WithoutStrings strings;
    look([&](HWND window) {
        answerMessage();
        locate(window, L".");
    });
    EXPECT_EQ(messages, (std::vector<std::wstring>{L"文件名无效：\".\""}));
}

TEST_F(FileDialogCommands, LocateWithoutANameIsSilent) {
    look([&](HWND window) {
        locate(window, L"");
        EXPECT_EQ(folderOf(window) + L"\\", folder);
    });
    EXPECT_TRUE(messages.empty());
}

TEST_F(FileDialogCommands, FindKnowsWhatTheDialogShows) {
    dialog.SetForceFilterIndex(2);
    look([&](HWND window) {
        ::SetDlgItemTextW(window, kNameBox, L"typed");
        click(window, 57012);
        EXPECT_EQ(finding.filter, L"Drawing(*.dwg)");
        EXPECT_EQ(finding.index, 3);
        EXPECT_EQ(finding.folder + L"\\", folder.GetString());
        EXPECT_EQ(typed(window), L"typed") << "nothing was found";
        EXPECT_EQ(folderOf(window) + L"\\", folder);
    });
}

TEST_F(FileDialogCommands, WhatIsFoundIsTypedInItsFolder) {
    finding.answer = true;
    finding.foundFolder = (folder + L"second").GetString();
    finding.foundFile = L"pattern.pat";
    look([&](HWND window) {
        ::SetFocus(::GetDlgItem(window, IDCANCEL));
        bool dispatched = false;
        CString typedThen = L"?", folderThen;
        ui_test::later([&] {
            dispatched = true;
            typedThen = typed(window);
            folderThen = folderOf(window);
        });
        const ULONGLONG begin = ::GetTickCount64();
        while (::GetTickCount64() < begin + 20) {  // the timer is due, and waits for the loop
        }
        click(window, 57012);
        EXPECT_EQ(folderOf(window), folder + L"second");
        EXPECT_EQ(typed(window), L"pattern.pat");
        EXPECT_TRUE(dispatched);
        EXPECT_EQ(typedThen, L"") << "what waits comes before the name";
        EXPECT_EQ(folderThen, folder + L"second") << "and behind the folder";
        const HWND focus = ::GetFocus(), box = ::GetDlgItem(window, kNameBox);
        EXPECT_TRUE(focus == box || ::IsChild(box, focus));
        EXPECT_EQ(data.GetCount(), 0);
    });
}

/// What a window is told of a pressed key, which it answers with a message of its own.
class PressedKey : public CWnd {
public:
    static constexpr UINT kAnswer = WM_APP + 7;
    PressedKey() {
        CreateEx(0, AfxRegisterWndClass(0), L"chooser", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
    }
    ~PressedKey() override { DestroyWindow(); }
    std::vector<UINT> heard;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_KEYDOWN) PostMessage(kAnswer);
        if (message == WM_KEYDOWN || message == WM_CHAR || message == kAnswer) heard.push_back(message);
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST_F(FileDialogCommands, AKeyThatWaitsWhileTheFolderIsShownHasItsLetterFirst) {
    finding.answer = true;
    finding.foundFolder = (folder + L"second").GetString();
    finding.foundFile = L"pattern.pat";
    look([&](HWND window) {
        PressedKey other;
        other.PostMessage(WM_KEYDOWN, 'A', 0x001E0001);
        click(window, 57012);
        EXPECT_EQ(other.heard, (std::vector<UINT>{WM_KEYDOWN, WM_CHAR, PressedKey::kAnswer}));
        EXPECT_EQ(typed(window), L"pattern.pat");
    });
}

/// Puts `format` into the settings while the options are shown, and ends them with `button`.
void chooseFormat(ui_test::TestHost& host, int format, int button) {
    ui_test::when_window(
        [](HWND window) { return text_of(window) != L"chooser" && text_of(window) != L"parent"; },
        [&host, format, button](HWND window) {
            ::SendMessageW(window, PSM_PRESSBUTTON,
                           static_cast<WPARAM>(button == IDOK ? PSBTN_OK : PSBTN_CANCEL), 0);
            host.profileInts[L"General/DefaultFormatForSave"] = format;
        });
}

class FileDialogOptions : public FileDialogCommands {
protected:
    /// The selections that the box of types is sent while the options go from `before` to `after`.
    std::vector<int> selectedBy(std::optional<int> before, int after, int button) {
        host.profileInts.clear();
        if (before) host.profileInts[L"General/DefaultFormatForSave"] = *before;
        std::vector<int> selections;
        look([&](HWND window) {
            ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
                if (message.message == CB_SETCURSEL && ::GetDlgCtrlID(message.hwnd) == kTypeBox)
                    selections.push_back(static_cast<int>(message.wParam));
            });
            chooseFormat(host, after, button);
            click(window, 57013);
            textOfType = text_of(::GetDlgItem(window, kTypeBox));
        });
        return selections;
    }
    ui_test::OpenDrawing open{host};
    CString textOfType;
};

using Selections = std::vector<int>;

TEST_F(FileDialogOptions, ANewFormatSelectsItsPlaceInTheList) {
    host.saveFormats = {{1001, L"first"}, {1060, L"second"}, {1012, L"third"}};
    EXPECT_EQ(selectedBy(60, 1060, IDOK), (Selections{1, 1})) << "and once more for the change";
    EXPECT_EQ(textOfType, L"Template(*.dwt)");
    EXPECT_EQ(selectedBy(60, 1001, IDOK), Selections{0});
}

TEST_F(FileDialogOptions, AFormatThatIsNotInTheListEmptiesTheBox) {
    EXPECT_EQ(selectedBy(60, 777, IDOK), Selections{-1});
    EXPECT_EQ(textOfType, L"");
}

TEST_F(FileDialogOptions, TheSameFormatSelectsNothing) {
    EXPECT_EQ(selectedBy(1060, 1060, IDOK), Selections{});
    EXPECT_EQ(selectedBy(std::nullopt, 60, IDOK), Selections{}) << "60 is the default";
    EXPECT_EQ(selectedBy(std::nullopt, 777, IDOK), Selections{-1});
}

TEST_F(FileDialogOptions, CancelledTheySelectNothing) {
    EXPECT_EQ(selectedBy(60, 777, IDCANCEL), Selections{});
}

}  // namespace
