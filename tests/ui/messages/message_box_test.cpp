// The message box as the user sees it: which surface, the text, the title, the buttons, the answer.
#include <ktui/host/message_box.h>

#include <vector>

#include "platform_task_dialog.h"
#include "replaced_import.h"
#include "test_host.h"
#include "ui_test.h"

namespace {

using ui_test::task_dialog_answer;
using ui_test::task_dialog_requests;

struct PlainCall {
    std::wstring text;
    UINT type = 0, help = 4711;
};

std::vector<PlainCall> plainCalls;
constexpr int kPlainAnswer = 77;

int AFXAPI NotePlainBox(LPCTSTR text, UINT type, UINT help) {
    plainCalls.push_back({text, type, help});
    return kPlainAnswer;
}

BOOL NoTaskDialogs() { return FALSE; }

class MessageBoxTest : public ::testing::Test {
protected:
    MessageBoxTest() {
        plainCalls.clear();
        task_dialog_requests().clear();
    }
    ~MessageBoxTest() override { task_dialog_answer.reset(); }

    /// The request that a box makes whose dialog answers `button` at once.
    ui_test::TaskDialogRequest Requested(const wchar_t* caption, UINT type, int button = IDOK) {
        task_dialog_answer = {S_OK, button, FALSE};
        task_dialog_requests().clear();
        answer = KtUiMessageBox(caption, L"the text", type);
        task_dialog_answer.reset();
        return task_dialog_requests().empty() ? ui_test::TaskDialogRequest() : task_dialog_requests().front();
    }
    int Answer(UINT type, int button) {
        Requested(L"", type, button);
        return answer;
    }

    ui_test::TestHost host;
    int answer = 0;
    HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
};

/// Boxes of the system, with nothing in between.
class ShownMessageBox : public MessageBoxTest {
protected:
    /// Shows a box and does `act` with its window.
    int Show(UINT type, std::function<void(HWND)> act) {
        ui_test::when_dialog(L"Test Caption", std::move(act));
        return KtUiMessageBox(nullptr, L"Save the drawing?", type);
    }
    int PressEscape(UINT type) {
        return Show(type, [](HWND) { ::PostMessageW(::GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1); });
    }
    ui_test::ParentWindow parent;
};

}  // namespace

TEST_F(MessageBoxTest, ThreeSetsNeverShowATaskDialog) {
    const ui_test::ReplacedImport plain(toolkit, "_Z13AfxMessageBoxPKwjj", &NotePlainBox);
    ASSERT_TRUE(plain.isThere());
    for (const UINT set : {MB_ABORTRETRYIGNORE, MB_RETRYCANCEL, MB_CANCELTRYCONTINUE}) {
        EXPECT_EQ(Answer(set | MB_ICONERROR, IDOK), kPlainAnswer);
        ASSERT_EQ(plainCalls.size(), 1u);
        EXPECT_EQ(plainCalls[0].text, L"the text");
        EXPECT_EQ(plainCalls[0].type, set | MB_ICONERROR);
        EXPECT_EQ(plainCalls[0].help, 0u);
        EXPECT_TRUE(task_dialog_requests().empty());
        plainCalls.clear();
    }
}

TEST_F(MessageBoxTest, WithoutTaskDialogsEveryBoxIsPlain) {
    const ui_test::ReplacedImport plain(toolkit, "_Z13AfxMessageBoxPKwjj", &NotePlainBox);
    const ui_test::ReplacedImport support(toolkit, "_ZN11CTaskDialog11IsSupportedEv", &NoTaskDialogs);
    ASSERT_TRUE(support.isThere());
    EXPECT_EQ(Answer(MB_YESNO, IDYES), kPlainAnswer);
    ASSERT_EQ(plainCalls.size(), 1u);
    EXPECT_EQ(plainCalls[0].type, static_cast<UINT>(MB_YESNO));
    EXPECT_TRUE(task_dialog_requests().empty());
}

TEST_F(MessageBoxTest, ButtonsFollowTheSet) {
    const ui_test::ReplacedImport plain(toolkit, "_Z13AfxMessageBoxPKwjj", &NotePlainBox);
    EXPECT_EQ(Requested(L"", MB_OK).commonButtons, 1);
    EXPECT_EQ(Requested(L"", MB_OKCANCEL).commonButtons, 9);
    EXPECT_EQ(Requested(L"", MB_YESNOCANCEL).commonButtons, 14);
    EXPECT_EQ(Requested(L"", MB_YESNO).commonButtons, 6);
    for (const UINT unnamed : {7u, 8u, 15u}) EXPECT_EQ(Requested(L"", unnamed).commonButtons, 1) << unnamed;
    EXPECT_TRUE(plainCalls.empty());
}

TEST_F(MessageBoxTest, OnlyTheLowestFourBitsAreTheSet) {
    EXPECT_EQ(Requested(L"", MB_YESNO | MB_DEFBUTTON2 | MB_TOPMOST).commonButtons, 6);
}

TEST_F(MessageBoxTest, CaptionIsTheCallersOrTheHosts) {
    EXPECT_EQ(Requested(L"Mine", MB_OK).title, L"Mine");
    EXPECT_EQ(Requested(L"", MB_OK).title, L"Test Caption");
    EXPECT_EQ(Requested(nullptr, MB_OK).title, L"Test Caption");
}

TEST_F(MessageBoxTest, WithoutAHostTheCaptionIsEmpty) {
    CKhSystem* const installed = CKhSystem::install(nullptr);
    const auto request = Requested(nullptr, MB_OK);
    CKhSystem::install(installed);
    EXPECT_EQ(request.title, L"");
    EXPECT_EQ(request.heading, L"the text");
}

TEST_F(MessageBoxTest, TextIsTheHeadingWithoutAnIconAndTheBodyWithOne) {
    const auto bare = Requested(L"", MB_OK);
    EXPECT_EQ(bare.heading, L"the text");
    EXPECT_EQ(bare.content, L"");
    const auto withIcon = Requested(L"", MB_OK | MB_ICONHAND);
    EXPECT_EQ(withIcon.heading, L"");
    EXPECT_EQ(withIcon.content, L"the text");
    EXPECT_EQ(Requested(L"", MB_OK | 0x50).content, L"the text");
}

TEST_F(MessageBoxTest, IconIsTheSystemsOfThatNumber) {
    const std::pair<UINT, LPCWSTR> icons[] = {
        {0x10, IDI_HAND}, {0x20, IDI_QUESTION}, {0x30, IDI_EXCLAMATION}, {0x40, IDI_ASTERISK}};
    for (const auto& [nibble, name] : icons) {
        const auto request = Requested(L"", nibble);
        EXPECT_EQ(request.icon, ::LoadIconW(nullptr, name)) << nibble;
        EXPECT_EQ(request.flags, 0x100A) << nibble;
    }
    for (const UINT other : {0x00u, 0x50u, 0xF0u}) {
        EXPECT_EQ(Requested(L"", other).icon, nullptr) << other;
        EXPECT_EQ(Requested(L"", other).flags, 0x1008) << other;
    }
}

TEST_F(MessageBoxTest, ActiveWindowIsTheParent) {
    ui_test::ParentWindow parent;
    ASSERT_EQ(::GetActiveWindow(), parent.m_hWnd);
    EXPECT_EQ(Requested(L"", MB_OK).parent, parent.m_hWnd);
}

TEST_F(MessageBoxTest, AnswersTheButtonPressed) {
    EXPECT_EQ(Answer(MB_OKCANCEL, IDOK), IDOK);
    EXPECT_EQ(Answer(MB_YESNO, IDYES), IDYES);
    EXPECT_EQ(Answer(MB_YESNO, IDNO), IDNO);
}

TEST_F(MessageBoxTest, AnswersNoButtonThatWasNotOffered) {
    EXPECT_EQ(Answer(MB_YESNO, IDCANCEL), IDNO);
    EXPECT_EQ(Answer(MB_OK, IDCANCEL), IDOK);
    EXPECT_EQ(Answer(MB_OKCANCEL, IDCANCEL), IDCANCEL);
    EXPECT_EQ(Answer(MB_YESNOCANCEL, IDCANCEL), IDCANCEL);
}

TEST_F(ShownMessageBox, EscapeAnswersTheMostCautiousButton) {
    EXPECT_EQ(PressEscape(MB_YESNO), IDNO);
    EXPECT_EQ(PressEscape(MB_OK), IDOK);
    EXPECT_EQ(PressEscape(MB_YESNOCANCEL), IDCANCEL);
    EXPECT_EQ(PressEscape(MB_OKCANCEL | MB_ICONWARNING), IDCANCEL);
    EXPECT_EQ(PressEscape(MB_YESNO | MB_ICONQUESTION), IDNO);
}

TEST_F(ShownMessageBox, EachButtonOfEachSetAnswersItself) {
    const std::pair<UINT, std::vector<int>> sets[] = {{MB_OK, {IDOK}},
                                                      {MB_OKCANCEL, {IDOK, IDCANCEL}},
                                                      {MB_YESNOCANCEL, {IDYES, IDNO, IDCANCEL}},
                                                      {MB_YESNO, {IDYES, IDNO}}};
    for (const auto& [set, ids] : sets)
        for (const int id : ids)
            EXPECT_EQ(Show(set,
                           [id = id](HWND box) {
                               ::PostMessageW(box, TDM_CLICK_BUTTON, static_cast<WPARAM>(id), 0);
                           }),
                      id);
}

TEST_F(ShownMessageBox, PlainSetsAreAnsweredToo) {
    for (const auto& [set, id] : {std::pair<UINT, int>{MB_ABORTRETRYIGNORE, IDRETRY},
                                  {MB_RETRYCANCEL, IDCANCEL},
                                  {MB_CANCELTRYCONTINUE, IDCONTINUE}}) {
        ui_test::when_dialog(AfxGetAppName(), [id = id](HWND box) {
            ::PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(id), 0);
        });
        EXPECT_EQ(KtUiMessageBox(L"a caption", L"text", set), id);
    }
}

TEST_F(ShownMessageBox, DisablesItsParentWhileItIsUp) {
    BOOL enabled = TRUE;
    Show(MB_OK, [&](HWND box) {
        enabled = parent.IsWindowEnabled();
        ::PostMessageW(box, TDM_CLICK_BUTTON, IDOK, 0);
    });
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(parent.IsWindowEnabled());
}
