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
    void show(int index, const std::function<void(HWND)>& script) {
        OdCmColor color, layer;
        color.setColorIndex(index);
        layer.setColorIndex(1);
        when_dialog(kTitle, [&](HWND dialog) {
            pump();
            script(dialog);
            ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        });
        EXPECT_FALSE(host.uiHost()->showTrueColorDialog(color, false, layer, nullptr));
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

}  // namespace
