// The alert: its texts, its two layouts, its default and its answers.
#include <ktui/tips/messages/alert_dialog.h>

#include <algorithm>
#include <map>

#include "picture.h"
#include "task_dialog_fixture.h"

using namespace ui_test;

namespace {

constexpr int kSign = 57002, kFirst = 57003, kSecond = 57004, kText = 57005;

class Alert : public ::testing::Test {
protected:
    int Ask(unsigned defaultIndex, std::function<void(HWND)> act, const wchar_t* second = L"Rename",
            const wchar_t* first = L"Overwrite", const wchar_t* caption = L"Export") {
        when_dialog(caption != nullptr ? caption : L"", std::move(act));
        return KbUiAlertDialog(caption, L"The file exists.", first, second, defaultIndex);
    }
    /// The answer of Enter, or 4711 if it does nothing.
    int AfterEnter(unsigned defaultIndex, const wchar_t* second = L"Rename") {
        bool stays = false;
        const int answer = Ask(
            defaultIndex,
            [&](HWND box) {
                press_key(VK_RETURN);
                later(
                    [&stays, box] {
                        stays = ::IsWindow(box) && ::IsWindowVisible(box);
                        if (stays) ::PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
                    },
                    50);
            },
            second);
        pump_until([] { return false; }, 60);
        return stays ? 4711 : answer;
    }
    TestHost host;
    ParentWindow parent;
};

}  // namespace

TEST_F(Alert, ShowsTheCallersWordsAndTheSign) {
    CString title, text, first, second;
    int pixels = 0;
    EXPECT_EQ(Ask(0,
                  [&](HWND box) {
                      title = text_of(box);
                      text = child_of(box, kText).text;
                      first = child_of(box, kFirst).text;
                      second = child_of(box, kSecond).text;
                      pixels = child_of(box, kSign).rect.Width();
                      press(box, kFirst);
                  }),
              0);
    EXPECT_EQ(title, L"Export");
    EXPECT_EQ(text, L"The file exists.");
    EXPECT_EQ(first, L"Overwrite");
    EXPECT_EQ(second, L"Rename");
    EXPECT_GT(pixels, 16);
}

namespace {

/// How many pixels of each colour the warning has, without the colour of its ground.
std::map<COLORREF, int> ColorsOfTheWarning() {
    const HBITMAP bitmap = ::LoadBitmapW(::GetModuleHandleW(L"ktui.dll"), L"WARNINGBMP");
    BITMAP size = {};
    ::GetObjectW(bitmap, sizeof size, &size);
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    const HGDIOBJ former = ::SelectObject(memory.m_hDC, bitmap);
    std::map<COLORREF, int> colors;
    for (int y = 0; y < size.bmHeight; ++y)
        for (int x = 0; x < size.bmWidth; ++x) ++colors[memory.GetPixel(x, y)];
    colors.erase(memory.GetPixel(0, 0));
    ::SelectObject(memory.m_hDC, former);
    ::DeleteObject(bitmap);
    return colors;
}

}  // namespace

TEST_F(Alert, TheSignIsTheWarning) {
    const std::map<COLORREF, int> colors = ColorsOfTheWarning();
    ASSERT_FALSE(colors.empty());
    const auto [color, count] = *std::max_element(
        colors.begin(), colors.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
    ASSERT_GT(count, 50);
    int shown = 0;
    Ask(0, [&, wanted = color](HWND box) {
        const HWND sign = ::GetDlgItem(box, kSign);
        ::RedrawWindow(sign, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        shown = Picture(*CWnd::FromHandle(sign)).count(wanted);
        press(box, IDCANCEL);
    });
    EXPECT_EQ(shown, count);
}

TEST_F(Alert, EachButtonHasItsAnswer) {
    EXPECT_EQ(Ask(0, [](HWND box) { press(box, kFirst); }), 0);
    EXPECT_EQ(Ask(0, [](HWND box) { press(box, kSecond); }), 1);
    EXPECT_EQ(Ask(0, [](HWND box) { press(box, IDCANCEL); }), -1);
    EXPECT_EQ(Ask(0, [](HWND) { press_key(VK_ESCAPE); }), -1);
}

TEST_F(Alert, ANullFirstKeepsTheTemplatesWordAndANullCaptionIsEmpty) {
    CString title = L"?", first;
    Ask(
        0,
        [&](HWND box) {
            title = text_of(box);
            first = child_of(box, kFirst).text;
            press(box, IDCANCEL);
        },
        L"Rename", nullptr, nullptr);
    EXPECT_EQ(title, L"");
    EXPECT_EQ(first, L"Yes");
}

TEST_F(Alert, WithoutASecondTwoButtonsAreEvenlySpaced) {
    CRect client, first, cancel, ordinary;
    DWORD second = 0;
    Ask(0, [&](HWND box) {
        ordinary = child_of(box, kFirst).rect;
        press(box, IDCANCEL);
    });
    Ask(
        0,
        [&](HWND box) {
            ::GetClientRect(box, &client);
            first = child_of(box, kFirst).rect;
            cancel = child_of(box, IDCANCEL).rect;
            second = child_of(box, kSecond).style;
            press(box, IDCANCEL);
        },
        nullptr);
    const int width = first.Width(), gap = (client.Width() - 2 * width) / 3;
    EXPECT_EQ(first.left, gap);
    EXPECT_EQ(first.top, ordinary.top) << "only sideways";
    EXPECT_EQ(first.Size(), ordinary.Size());
    EXPECT_EQ(cancel.left, gap + width + gap);
    EXPECT_EQ(cancel.top, first.top);
    EXPECT_EQ(second & (WS_VISIBLE | WS_DISABLED), static_cast<DWORD>(WS_DISABLED));
}

TEST_F(Alert, DefaultButtonIsTheOneNamed) {
    const std::pair<unsigned, int> defaults[] = {{0, kFirst}, {1, kSecond}, {7, IDCANCEL}};
    for (const auto& [index, id] : defaults) {
        DWORD style = 0;
        int focus = 0;
        Ask(index, [&, id = id](HWND box) {
            style = child_of(box, id).style;
            focus = ::GetDlgCtrlID(::GetFocus());
            press(box, IDCANCEL);
        });
        EXPECT_EQ(style & BS_TYPEMASK, static_cast<DWORD>(BS_DEFPUSHBUTTON)) << index;
        EXPECT_EQ(focus, id) << index;
    }
}

TEST_F(Alert, EnterAnswersTheDefault) {
    EXPECT_EQ(AfterEnter(0), 0);
    EXPECT_EQ(AfterEnter(1), 1);
    EXPECT_EQ(AfterEnter(7), -1);
    EXPECT_EQ(AfterEnter(7, nullptr), -1);
}

TEST_F(Alert, EnterDoesNothingIfTheSecondIsTheDefaultAndMissing) { EXPECT_EQ(AfterEnter(1, nullptr), 4711); }

TEST_F(Alert, RunsWithTheResourceLibraryAndPutsTheFormerBack) {
    std::vector<HINSTANCE> during;
    Ask(0, [&](HWND box) {
        during = host.resourceStack;
        press(box, IDCANCEL);
    });
    EXPECT_EQ(during, std::vector<HINSTANCE>{::GetModuleHandleW(L"ktdsres.dll")});
    EXPECT_EQ(host.pushes, 1);
    EXPECT_EQ(host.pops, 1);
}

TEST_F(Alert, OkFromElsewhereIsTheDefault) {
    const auto ok = [](HWND box) { ::PostMessageW(box, WM_COMMAND, IDOK, 0); };
    EXPECT_EQ(Ask(0, ok), 0);
    EXPECT_EQ(Ask(1, ok), 1);
    EXPECT_EQ(Ask(7, ok), -1);
    EXPECT_EQ(Ask(0, ok, nullptr), 0);
    EXPECT_EQ(Ask(7, ok, nullptr), -1);
}
