// A user meets messages in the gallery by keys alone: boxes of each set of buttons, and task dialogs with
// more than fits into the usual size.
#include <set>

#include <gtest/gtest.h>

#include "gallery_program.h"

using namespace journey;

namespace {

constexpr int kFirst = 101, kCommands = 30;  // ids of the commands from here on

class Gallery : public GalleryProgram {
public:
    /// Goes to the page number `index` from 1 of the messages, which has a button `command`.
    bool openMessages(int index, const std::wstring& command) {
        return openPage(L"Messages", command, index);
    }
    /// Goes to a button by the Tab key and presses it.
    void press(const std::wstring& text) {
        HWND wanted = button(text);
        for (int i = 0; i < 60 && focusOf(frame()) != wanted; ++i) key(VK_TAB);
        EXPECT_EQ(focusOf(frame()), wanted);
        key(VK_SPACE);
    }
    /// The same, and the dialog that comes up.
    HWND ask(const std::wstring& text) {
        press(text);
        return waitForDialogOf(frame());
    }
    /// The last line of what the page was told.
    std::wstring told() const {
        HWND log = item(frame(), IDC_LOG);
        const LRESULT count = ::SendMessageW(log, LB_GETCOUNT, 0, 0);
        wchar_t line[200] = {};
        if (count > 0)
            ::SendMessageW(log, LB_GETTEXT, static_cast<WPARAM>(count - 1), reinterpret_cast<LPARAM>(line));
        return line;
    }
    bool tells(const std::wstring& line) const {
        return waitUntil([&] { return told() == line; });
    }
};

/// Whether all of a dialog is on the screen.
bool isOnScreen(HWND box) {
    RECT work = {}, both = {};
    const RECT window = rectOf(box);
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    ::UnionRect(&both, &work, &window);
    return ::EqualRect(&both, &work) != FALSE;
}

/// Whether all of a control is in sight in its dialog.
bool isSeen(HWND box, HWND control) {
    RECT client = {}, both = {};
    ::GetClientRect(box, &client);
    ::MapWindowPoints(box, nullptr, reinterpret_cast<POINT*>(&client), 2);
    const RECT rect = rectOf(control);
    ::UnionRect(&both, &client, &rect);
    return ::EqualRect(&both, &client) != FALSE;
}

/// The text field of a dialog that has the longest text.
HWND longestText(HWND box) {
    HWND longest = nullptr;
    for (HWND child = ::GetWindow(box, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        if (longest == nullptr ||
            ::SendMessageW(child, WM_GETTEXTLENGTH, 0, 0) > ::SendMessageW(longest, WM_GETTEXTLENGTH, 0, 0))
            longest = child;
    return longest;
}

class Messages : public ::testing::Test {
protected:
    Gallery gallery;
};

TEST_F(Messages, BoxesOfEachSetAreClosedByEscape) {
    ASSERT_TRUE(gallery.openMessages(1, L"Yes, No, Cancel"));
    const struct {
        const wchar_t* set;
        int answer;
    } sets[] = {{L"OK", IDOK},
                {L"OK, Cancel", IDCANCEL},
                {L"Yes, No", IDNO},
                {L"Yes, No, Cancel", IDCANCEL},
                {L"Retry, Cancel", IDCANCEL},
                {L"Abort, Retry, Ignore", IDCANCEL}};
    for (const auto& each : sets) {
        HWND box = gallery.ask(each.set);
        ASSERT_NE(box, nullptr) << std::string(each.set, each.set + wcslen(each.set));
        gallery.key(VK_ESCAPE);
        EXPECT_TRUE(gallery.waitUntilGone(box));
        EXPECT_TRUE(gallery.tells(each.set + (L": " + std::to_wstring(each.answer)))) << each.answer;
        EXPECT_TRUE(waitUntil([&] { return focusOf(gallery.frame()) == gallery.button(each.set); }))
            << "the focus is back";
    }
}

TEST_F(Messages, OfThirtyCommandsEachIsReachedByKeys) {
    ASSERT_TRUE(gallery.openMessages(3, L"Ask"));
    gallery.press(L"Thirty commands");
    HWND box = gallery.ask(L"Ask");
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(isOnScreen(box));
    picture("journey-thirty-commands");
    std::set<HWND> reached;
    for (HWND at = focusOf(box); reached.insert(at).second; at = focusOf(box)) {
        EXPECT_TRUE(isSeen(box, at)) << ::GetDlgCtrlID(at);
        gallery.key(VK_TAB);
    }
    for (int i = 0; i < kCommands; ++i) EXPECT_EQ(reached.count(item(box, kFirst + i)), 1u) << i;
    EXPECT_EQ(reached.count(item(box, IDCANCEL)), 1u);
    EXPECT_EQ(reached.size(), std::size_t{kCommands} + 2) << "and the box not to be asked again";
    for (int i = 0; i < 60 && focusOf(box) != item(box, kFirst + kCommands - 1); ++i) gallery.key(VK_TAB);
    picture("journey-thirty-commands-end");
    gallery.key(VK_RETURN);
    EXPECT_TRUE(gallery.waitUntilGone(box));
    EXPECT_TRUE(gallery.tells(L"Ask: 130"));
}

TEST_F(Messages, ATextOfFiveThousandCharactersIsReadToItsEnd) {
    constexpr LRESULT kLong = 5000;
    ASSERT_TRUE(gallery.openMessages(3, L"Ask"));
    gallery.press(L"A long text");
    HWND box = gallery.ask(L"Ask");
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(isOnScreen(box));
    HWND text = longestText(box);
    EXPECT_GE(::SendMessageW(text, WM_GETTEXTLENGTH, 0, 0), kLong);
    picture("journey-long-text");
    EXPECT_TRUE(isSeen(box, text));
    for (const int id : {kFirst, kFirst + 1, IDCANCEL}) {
        for (int i = 0; i < 10 && focusOf(box) != item(box, id); ++i) gallery.key(VK_TAB);
        EXPECT_EQ(focusOf(box), item(box, id));
        EXPECT_TRUE(isSeen(box, item(box, id))) << id << ", as it has the focus";
    }
    gallery.key(VK_ESCAPE);
    EXPECT_TRUE(gallery.waitUntilGone(box));
    EXPECT_TRUE(gallery.tells(L"Ask: 2"));
}

}  // namespace
