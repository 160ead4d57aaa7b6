// The message box as the user sees it: the text, the title, the buttons and which of them is the default.
#include <ktui/host/message_box.h>

#include <vector>

#include "test_host.h"
#include "ui_test.h"

namespace {

constexpr int kTextId = 0xFFFF;

/// What a box showed while it was up.
struct Shown {
    CString title, text;
    std::vector<int> buttons;  ///< ids, in their order
    int defaultButton = 0;     ///< the one that has the focus at first
    bool hasIcon = false;
    int answer = 0;
};

Shown look(HWND box) {
    Shown shown;
    shown.title = ui_test::text_of(box);
    shown.text = ui_test::text_of(::GetDlgItem(box, kTextId));
    shown.defaultButton = ::GetDlgCtrlID(::GetFocus());
    for (HWND child = ::GetWindow(box, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        wchar_t name[16] = {};
        ::GetClassNameW(child, name, 16);
        const bool isVisible = (::GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) != 0;
        if (isVisible && ::lstrcmpiW(name, L"button") == 0) shown.buttons.push_back(::GetDlgCtrlID(child));
        if (isVisible && ::SendMessageW(child, STM_GETICON, 0, 0)) shown.hasIcon = true;
    }
    return shown;
}

/// Shows a box and presses the button `id` when it is up.
Shown showAndPress(const wchar_t* caption, const wchar_t* text, UINT type, int id) {
    ui_test::TestHost host;
    Shown shown;
    ui_test::when_dialog(L"", [&](HWND box) {
        shown = look(box);
        ::PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(id), 0);
    });
    shown.answer = KtUiMessageBox(caption, text, type);
    return shown;
}

}  // namespace

TEST(MessageBox, ShowsItsTextUnderTheApplicationsNameWhateverTheCaption) {
    for (const wchar_t* caption : {L"another caption", L"", static_cast<const wchar_t*>(nullptr)}) {
        const Shown shown = showAndPress(caption, L"Save the drawing?", MB_YESNO | MB_ICONQUESTION, IDNO);
        EXPECT_STREQ(shown.text, L"Save the drawing?");
        EXPECT_STREQ(shown.title, AfxGetAppName());
        EXPECT_FALSE(shown.title.IsEmpty());
    }
}

TEST(MessageBox, HasTheButtonsOfItsTypeAndAnswersTheOnePressed) {
    const Shown asked = showAndPress(L"", L"x", MB_YESNOCANCEL | MB_ICONQUESTION, IDYES);
    EXPECT_EQ(asked.buttons, (std::vector<int>{IDYES, IDNO, IDCANCEL}));
    EXPECT_EQ(asked.answer, IDYES);
    const Shown told = showAndPress(L"", L"x", MB_OKCANCEL | MB_ICONERROR, IDCANCEL);
    EXPECT_EQ(told.buttons, (std::vector<int>{IDOK, IDCANCEL}));
    EXPECT_EQ(told.answer, IDCANCEL);
    EXPECT_TRUE(told.hasIcon);
}

TEST(MessageBox, HasTheDefaultButtonOfItsType) {
    EXPECT_EQ(showAndPress(L"", L"x", MB_YESNO | MB_ICONQUESTION, IDNO).defaultButton, IDYES);
    EXPECT_EQ(showAndPress(L"", L"x", MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2, IDNO).defaultButton, IDNO);
}
