// The palette of the colour dialog: its keys, its marks, and the fields that follow it.
#include "../../../platform/standin/resource.h"
#include "picture.h"
#include "standin_fixture.h"

using namespace ui_test;

namespace {

constexpr const wchar_t* kTitle = L"Select Color";

class ColorPalette : public StandinTest {
protected:
    /// Shows the dialog for true colours that starts with `index`, runs `script` in it and cancels it.
    void show(int index, const std::function<void(HWND)>& script, const std::uint32_t* colors = nullptr) {
        OdCmColor color, layer;
        color.setColorIndex(index);
        layer.setColorIndex(1);
        when_dialog(kTitle, [&](HWND dialog) {
            pump();
            script(dialog);
            ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        });
        EXPECT_FALSE(host.uiHost()->showTrueColorDialog(color, false, layer, colors));
    }
    static void key(HWND window, WPARAM key) {
        ::SendMessageW(window, WM_KEYDOWN, key, 1);
        ::SendMessageW(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
        pump();
    }
    static int number(HWND dialog, int id) {
        return static_cast<int>(::GetDlgItemInt(dialog, id, nullptr, FALSE));
    }
    static Picture pictureOf(HWND window) {
        ::UpdateWindow(window);
        return Picture(*CWnd::FromHandle(window));
    }
};

TEST_F(ColorPalette, ArrowKeysGoFromSwatchToSwatch) {
    show(10, [](HWND dialog) {
        const HWND palette = ::GetDlgItem(dialog, IDC_COLOR_PALETTE);
        ::SetFocus(palette);
        EXPECT_TRUE(::SendMessageW(palette, WM_GETDLGCODE, 0, 0) & DLGC_WANTARROWS)
            << "the dialog leaves the arrow keys to it";
        key(palette, VK_RIGHT);
        EXPECT_EQ(number(dialog, IDC_COLOR_INDEX), 20);
        key(palette, VK_DOWN);
        EXPECT_EQ(number(dialog, IDC_COLOR_INDEX), 22);
        key(palette, VK_LEFT);
        key(palette, VK_LEFT);
        EXPECT_EQ(number(dialog, IDC_COLOR_INDEX), 12) << "the edge holds";
        for (int i = 0; i < 12; ++i) key(palette, VK_DOWN);
        EXPECT_EQ(number(dialog, IDC_COLOR_INDEX), 1) << "past the gap to the plain colors";
        EXPECT_EQ(::GetFocus(), palette);
    });
}

TEST_F(ColorPalette, ShowsThatItHasTheFocus) {
    show(30, [](HWND dialog) {
        const HWND palette = ::GetDlgItem(dialog, IDC_COLOR_PALETTE);
        const Picture without = pictureOf(palette);
        ::SetFocus(palette);
        pump();
        const Picture with = pictureOf(palette);
        const CRect mark = with.difference(without);
        EXPECT_EQ(mark, CRect(0, 0, with.width(), with.height()));
        EXPECT_GE(
            std::max(contrast(with.at(0, 0), without.at(0, 0)), contrast(with.at(1, 0), without.at(1, 0))),
            kVisible);
    });
}

TEST_F(ColorPalette, RedGreenAndBlueFollowTheIndex) {
    show(1, [](HWND dialog) {
        ::SetDlgItemTextW(dialog, IDC_COLOR_INDEX, L"5");
        EXPECT_EQ(number(dialog, IDC_COLOR_RED), 0);
        EXPECT_EQ(number(dialog, IDC_COLOR_GREEN), 0);
        EXPECT_EQ(number(dialog, IDC_COLOR_BLUE), 255);
        ::SetDlgItemTextW(dialog, IDC_COLOR_INDEX, L"300");
        EXPECT_EQ(number(dialog, IDC_COLOR_BLUE), 255) << "no index, no other color";
    });
}

TEST_F(ColorPalette, AWhiteSwatchHasAnOutline) {
    show(1, [](HWND dialog) {
        const HWND palette = ::GetDlgItem(dialog, IDC_COLOR_PALETTE);
        const Picture picture = pictureOf(palette);
        const int width = (picture.width() - 2) / 24, height = (picture.height() - 2) / 12;
        // White, index 255, is the last of the greys in the lowest row.
        const int left = 1 + 17 * width, top = 1 + 11 * height;
        EXPECT_EQ(picture.at(left + width / 2, top + height / 2), RGB(255, 255, 255));
        EXPECT_GE(contrast(picture.at(left + 1, top + height / 2), RGB(255, 255, 255)), kVisible);
    });
}

/// 256 colours of which no two are the same, and none is near to white or grey.
std::vector<std::uint32_t> distinctColors() {
    std::vector<std::uint32_t> colors;
    for (unsigned i = 0; i < 256; ++i) colors.push_back(RGB(i, 255 - i, i % 2 * 40));
    return colors;
}

/// The swatch of an index as the user sees it: 24 hues in ten rows from pale to dark, and below them, behind
/// a row that is left free, 1 to 9 and the greys from the thirteenth column on.
CRect swatch(HWND palette, int index) {
    CRect client;
    ::GetClientRect(palette, &client);
    const int width = (client.Width() - 2) / 24, height = (client.Height() - 2) / 12;
    int column = 0, row = 11;
    if (index >= 250) {
        column = 12 + (index - 250);
    } else if (index <= 9) {
        column = index - 1;
    } else {
        constexpr int kRowOfDigit[] = {5, 4, 6, 3, 7, 2, 8, 1, 9, 0};
        column = index / 10 - 1;
        row = kRowOfDigit[index % 10];
    }
    return {CPoint(1 + column * width, 1 + row * height), CSize(width, height)};
}

TEST_F(ColorPalette, EachIndexHasItsSwatch) {
    const std::vector<std::uint32_t> colors = distinctColors();
    show(
        0,
        [&](HWND dialog) {
            const HWND palette = ::GetDlgItem(dialog, IDC_COLOR_PALETTE);
            const Picture picture = pictureOf(palette);
            const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
            for (int index = 1; index < 256; ++index) {
                const CRect cell = swatch(palette, index);
                const COLORREF color = colors[static_cast<std::size_t>(index)];
                ASSERT_EQ(picture.at(cell.left + 1, cell.top + 1), color) << index;
                ASSERT_EQ(picture.at(cell.right - 2, cell.bottom - 2), color) << index;
                ASSERT_EQ(picture.at(cell.left, cell.top), face) << index;
                ASSERT_EQ(picture.at(cell.right - 1, cell.bottom - 1), face) << index;
            }
        },
        colors.data());
}

TEST_F(ColorPalette, TheChosenSwatchHasAFrameWithinAFrame) {
    const std::vector<std::uint32_t> colors = distinctColors();
    show(
        34,
        [&](HWND dialog) {
            const HWND palette = ::GetDlgItem(dialog, IDC_COLOR_PALETTE);
            const Picture picture = pictureOf(palette);
            const CRect cell = swatch(palette, 34);
            const COLORREF expected[] = {::GetSysColor(COLOR_BTNTEXT), ::GetSysColor(COLOR_BTNFACE),
                                         colors[34]};
            for (int inset = 0; inset < 3; ++inset) {
                EXPECT_EQ(picture.at(cell.left + inset, cell.top + inset), expected[inset]);
                EXPECT_EQ(picture.at(cell.right - 1 - inset, cell.bottom - 1 - inset), expected[inset]);
            }
        },
        colors.data());
}

TEST_F(ColorPalette, AColorNearToThatOfTheGroundHasAnOutline) {
    std::vector<std::uint32_t> colors = distinctColors();
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE), ink = ::GetSysColor(COLOR_BTNTEXT);
    const int red = GetRValue(face), green = GetGValue(face), blue = GetBValue(face);
    ASSERT_GT(std::min({red, green, blue}), 60);
    colors[1] = RGB(red - 59, green - 59, blue - 59);
    colors[2] = RGB(red - 60, green, blue);
    colors[3] = RGB(red, green - 60, blue);
    colors[4] = RGB(red, green, blue - 60);
    show(
        0,
        [&](HWND dialog) {
            const HWND palette = ::GetDlgItem(dialog, IDC_COLOR_PALETTE);
            const Picture picture = pictureOf(palette);
            const auto edge = [&](int index) {
                const CRect cell = swatch(palette, index);
                EXPECT_EQ(picture.at(cell.left + 2, cell.top + 2), colors[static_cast<std::size_t>(index)]);
                return picture.at(cell.left + 1, cell.top + 1);
            };
            EXPECT_EQ(edge(1), ink);
            for (const int index : {2, 3, 4}) EXPECT_EQ(edge(index), colors[static_cast<std::size_t>(index)]);
        },
        colors.data());
}

TEST_F(ColorPalette, APressOnASwatchChoosesItAndTakesTheFocus) {
    show(1, [](HWND dialog) {
        const HWND palette = ::GetDlgItem(dialog, IDC_COLOR_PALETTE);
        const auto press = [&](CPoint at) {
            ::SendMessageW(palette, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
            ::SendMessageW(palette, WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
        };
        for (const int index : {9, 10, 19, 128, 249, 250, 255}) {
            press(swatch(palette, index).CenterPoint());
            EXPECT_EQ(number(dialog, IDC_COLOR_INDEX), index);
            EXPECT_EQ(::GetFocus(), palette);
        }
        const CRect hole = swatch(palette, 9);
        press({hole.right + hole.Width() / 2, hole.CenterPoint().y});
        EXPECT_EQ(number(dialog, IDC_COLOR_INDEX), 255) << "between the plain colors and the greys is none";
    });
}

TEST_F(ColorPalette, KeysPassTheGapsAndStartAtTheFirstColor) {
    show(0, [](HWND dialog) {
        const HWND palette = ::GetDlgItem(dialog, IDC_COLOR_PALETTE);
        ::SetFocus(palette);
        key(palette, VK_RIGHT);
        EXPECT_EQ(number(dialog, IDC_COLOR_INDEX), 1) << "with none chosen any arrow begins there";
        for (int i = 0; i < 9; ++i) key(palette, VK_RIGHT);
        EXPECT_EQ(number(dialog, IDC_COLOR_INDEX), 250);
        key(palette, VK_UP);
        EXPECT_EQ(number(dialog, IDC_COLOR_INDEX), 138) << "the darkest of the thirteenth hue";
        key(palette, VK_DOWN);
        EXPECT_EQ(number(dialog, IDC_COLOR_INDEX), 250);
        key(palette, VK_LEFT);
        EXPECT_EQ(number(dialog, IDC_COLOR_INDEX), 9);
        key(palette, VK_DOWN);
        EXPECT_EQ(number(dialog, IDC_COLOR_INDEX), 9);
    });
}

}  // namespace
