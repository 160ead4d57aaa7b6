// A task dialog of the toolkit with more commands than the screen has room for: it stays on the screen and is
// scrolled by keys, wheel and bar.
#include "task_dialog_fixture.h"

#include <algorithm>

using namespace ui_test;

namespace {

constexpr int kFirst = 200, kCommands = 30, kLast = kFirst + kCommands - 1;

class TallTaskDialog : public OwnTaskDialog {
protected:
    TallTaskDialog() {
        dialog.SetMainInstruction(L"heading");
        dialog.SetOptions(0x18);
        for (int i = 0; i < kCommands; ++i) {
            CString title;
            title.Format(L"Command %d", i);
            dialog.AddCommandControl(kFirst + i, title);
        }
        dialog.SetCommonButtons(8);
    }
    void Look(std::function<void(HWND)> look) {
        Run([&](HWND box) {
            look(box);
            press(box, IDCANCEL);
        });
    }
    static bool IsSeen(HWND box, int id) {
        CRect client;
        ::GetClientRect(box, &client);
        const CRect rect = child_of(box, id).rect;
        return rect.top >= client.top && rect.bottom <= client.bottom;
    }
    static int HeadingTop(HWND box) { return static_cast<int>(child_of(box, 65535).rect.top); }
    static int Position(HWND box) { return ::GetScrollPos(box, SB_VERT); }
    static void Scroll(HWND box, UINT code) { ::SendMessageW(box, WM_VSCROLL, code, 0); }
};

}  // namespace

TEST_F(TallTaskDialog, StaysOnTheScreenWithItsTopInView) {
    CRect work;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    Look([&](HWND box) {
        CRect window, client;
        ::GetWindowRect(box, &window);
        ::GetClientRect(box, &client);
        EXPECT_GE(window.top, work.top);
        EXPECT_LE(window.bottom, work.bottom);
        EXPECT_TRUE(::GetWindowLongW(box, GWL_STYLE) & WS_VSCROLL);
        SCROLLINFO info = {sizeof info, SIF_RANGE | SIF_PAGE, 0, 0, 0, 0, 0};
        ASSERT_TRUE(::GetScrollInfo(box, SB_VERT, &info));
        EXPECT_EQ(info.nMin, 0);
        EXPECT_EQ(info.nPage, static_cast<UINT>(client.Height()));
        EXPECT_GT(info.nMax, client.Height());
        EXPECT_EQ(client.Width(), 420) << "the bar stands beside what was laid out";
        EXPECT_EQ(Position(box), 0);
        EXPECT_EQ(HeadingTop(box), font_height(box));
        EXPECT_TRUE(IsSeen(box, kFirst));
        EXPECT_FALSE(IsSeen(box, kLast));
    });
}

TEST_F(TallTaskDialog, OneThatFitsHasNoBar) {
    CKtUiTaskDialog small;
    small.SetWindowTitle(L"task");
    small.SetContent(L"body");
    small.SetOptions(0x18);
    small.SetCommonButtons(8);
    DWORD style = WS_VSCROLL, tall = 0;
    when_dialog(L"task", [&](HWND box) {
        style = static_cast<DWORD>(::GetWindowLongW(box, GWL_STYLE));
        press(box, IDCANCEL);
    });
    small.DoModal(parent.m_hWnd);
    EXPECT_EQ(style & WS_VSCROLL, 0u);
    Look([&](HWND box) { tall = static_cast<DWORD>(::GetWindowLongW(box, GWL_STYLE)); });
    EXPECT_EQ(tall & ~static_cast<DWORD>(WS_SYSMENU), (style | WS_VSCROLL) & ~static_cast<DWORD>(WS_SYSMENU))
        << "beside the close box the bar is all that is added";
}

TEST_F(TallTaskDialog, KeysBringTheCommandThatGetsTheFocusIntoView) {
    std::vector<int> unseen;
    int steps = 0, atEnd = 0, backAtTop = 1;
    std::function<void(HWND)> walk = [&](HWND box) {
        const int id = ::GetDlgCtrlID(::GetFocus());
        if (!IsSeen(box, id)) unseen.push_back(id);
        if (id == kLast) atEnd = Position(box);
        if (++steps == kCommands + 2) {
            backAtTop = Position(box);
            return press(box, IDCANCEL);
        }
        press_key(VK_TAB);
        later([&walk, box] { walk(box); });
    };
    Run([&](HWND box) { walk(box); });
    EXPECT_EQ(unseen, std::vector<int>());
    EXPECT_GT(atEnd, 0);
    EXPECT_EQ(backAtTop, 0) << "from Cancel to the first command, and the heading above it";
}

TEST_F(TallTaskDialog, ADefaultFarDownIsInViewAtFirst) {
    dialog.SetDefaultCommandControl(kLast);
    Look([&](HWND box) {
        EXPECT_EQ(::GetDlgCtrlID(::GetFocus()), kLast);
        EXPECT_TRUE(IsSeen(box, kLast));
    });
}

TEST_F(TallTaskDialog, TheBarScrollsByLinesAndPagesAndNoFurtherThanTheEnds) {
    Look([&](HWND box) {
        CRect client;
        ::GetClientRect(box, &client);
        const int unit = font_height(box), top = HeadingTop(box);
        Scroll(box, SB_BOTTOM);
        const int end = Position(box);
        Scroll(box, SB_TOP);
        Scroll(box, SB_LINEUP);
        EXPECT_EQ(Position(box), 0);
        Scroll(box, SB_LINEDOWN);
        EXPECT_EQ(Position(box), unit);
        EXPECT_EQ(HeadingTop(box), top - unit);
        Scroll(box, SB_PAGEDOWN);
        const int further = std::min(unit + client.Height(), end);
        EXPECT_EQ(Position(box), further);
        Scroll(box, SB_PAGEUP);
        EXPECT_EQ(Position(box), std::max(further - client.Height(), 0));
        Scroll(box, SB_BOTTOM);
        EXPECT_TRUE(IsSeen(box, IDCANCEL));
        EXPECT_EQ(Position(box), end);
        EXPECT_EQ(child_of(box, IDCANCEL).rect.bottom + 1 + unit / 2, client.bottom)
            << "no gap below the end";
        Scroll(box, SB_LINEDOWN);
        EXPECT_EQ(Position(box), end);
        Scroll(box, SB_TOP);
        EXPECT_EQ(HeadingTop(box), top);
    });
}

TEST_F(TallTaskDialog, TheWheelScrollsWhereverThePointerIs) {
    Look([&](HWND box) {
        const int unit = font_height(box);
        ::SendMessageW(box, WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
        EXPECT_EQ(Position(box), 3 * unit);
        ::SendMessageW(::GetDlgItem(box, kFirst), WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), 0);
        EXPECT_EQ(Position(box), 6 * unit);
        ::SendMessageW(box, WM_MOUSEWHEEL, MAKEWPARAM(0, 3 * WHEEL_DELTA), 0);
        EXPECT_EQ(Position(box), 0);
    });
}

TEST_F(TallTaskDialog, ACommandThatWasScrolledToIsPressed) {
    EXPECT_EQ(Run([](HWND box) {
                  ::SendMessageW(box, WM_VSCROLL, SB_BOTTOM, 0);
                  press(box, kLast);
              }),
              kLast);
}

TEST_F(TallTaskDialog, IconAndFooterAreScrolledAlong) {
    dialog.SetMainIcon(::CopyIcon(::LoadIconW(nullptr, IDI_HAND)));
    const auto isPaper = [](HWND box, int x, int y) {
        const HDC dc = ::GetDC(box);
        const COLORREF color = ::GetPixel(dc, x, y);
        ::ReleaseDC(box, dc);
        return color == ::GetSysColor(COLOR_WINDOW);
    };
    Look([&](HWND box) {
        ::UpdateWindow(box);
        CRect client;
        ::GetClientRect(box, &client);
        const int unit = font_height(box), last = static_cast<int>(client.bottom) - 1;
        EXPECT_FALSE(isPaper(box, unit + 16, unit + 16));
        EXPECT_TRUE(isPaper(box, 1, last));
        Scroll(box, SB_BOTTOM);
        EXPECT_TRUE(isPaper(box, unit + 16, unit + 16));
        EXPECT_FALSE(isPaper(box, 1, last));
    });
}

TEST_F(TallTaskDialog, ACommandAboveComesIntoViewAtTheTop) {
    constexpr int kMany = 100;
    for (int i = kCommands; i < kMany; ++i) dialog.AddCommandControl(kFirst + i, L"one more");
    Look([&](HWND box) {
        Scroll(box, SB_BOTTOM);
        int above = kFirst + kMany - 1;
        while (child_of(box, above).rect.top >= 0) --above;
        ::SetFocus(::GetDlgItem(box, above + 1));
        MSG key = {::GetDlgItem(box, above + 1), WM_KEYDOWN, VK_UP, 1, 0, {}};
        CWnd::FromHandle(box)->PreTranslateMessage(&key);
        ASSERT_EQ(::GetDlgCtrlID(::GetFocus()), above);
        EXPECT_EQ(child_of(box, above).rect.top, 0);
        EXPECT_GT(Position(box), 0);
    });
}

TEST_F(TallTaskDialog, ScrollingLeavesEachChildItsPlaceAcrossAndItsSize) {
    Look([&](HWND box) {
        const std::vector<Child> before = children_of(box);
        Scroll(box, SB_PAGEDOWN);
        const int down = Position(box);
        EXPECT_GT(down, 0);
        const std::vector<Child> after = children_of(box);
        ASSERT_EQ(after.size(), before.size());
        for (std::size_t i = 0; i < before.size(); ++i)
            EXPECT_EQ(after[i].rect, before[i].rect - CPoint(0, down)) << after[i].id;
    });
}

TEST_F(TallTaskDialog, TheWheelIsItsOwnOnlyWhereThereIsSomethingToScroll) {
    const auto turned = [](HWND box) { return ::SendMessageW(box, WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0); };
    LRESULT tall = 0, small = 1;
    Look([&](HWND box) { tall = turned(box); });
    CKtUiTaskDialog one;
    one.SetWindowTitle(L"task");
    one.SetContent(L"body");
    one.SetCommonButtons(8);
    when_dialog(L"task", [&](HWND box) {
        small = turned(box);
        press(box, IDCANCEL);
    });
    one.DoModal(parent.m_hWnd);
    EXPECT_EQ(tall, 1);
    EXPECT_EQ(small, 0);
}
