// How wide the texts of scenes are in the fonts of the screen.
#include <screen_scene.h>

#include "host_fixture.h"

namespace {

class ScreenTextWidth : public ui_test::HostTest {
protected:
    /// The width of a text in pixels in a font whose em has 1000 of them.
    static int pixels(const LOGFONT& look, const wchar_t* text) {
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        CFont font;
        font.CreateFontIndirect(&look);
        CFont* const former = dc.SelectObject(&font);
        const int width = dc.GetTextExtent(text).cx;
        dc.SelectObject(former);
        return width;
    }
    static LOGFONT tahoma(LONG weight) {
        LOGFONT look = {};
        look.lfHeight = -1000;
        look.lfWeight = weight;
        wcscpy(look.lfFaceName, L"Tahoma");
        return look;
    }
};

}  // namespace

TEST_F(ScreenTextWidth, TextsAreAsWideAsTheScreensFontShowsThem) {
    const SceneOptions options = ScreenSceneOptions();
    SceneFont font;
    font.family = L"Tahoma";
    const double one = options.textWidth(font, L"M"), four = options.textWidth(font, L"MMMM");
    EXPECT_GT(one, 0);
    EXPECT_NEAR(four / one, 4, 0.01);
    EXPECT_EQ(options.textWidth(font, L""), 0);
    EXPECT_NEAR(options.textWidth(font, L"iiii") / four,
                static_cast<double>(pixels(tahoma(FW_NORMAL), L"iiii")) / pixels(tahoma(FW_NORMAL), L"MMMM"),
                0.01);
    EXPECT_EQ(options.textWidth(font, std::wstring_view(L"MMMM").substr(0, 1)), one)
        << "no further than it goes";
    font.bold = true;
    EXPECT_NEAR(options.textWidth(font, L"MMMM") / four,
                static_cast<double>(pixels(tahoma(FW_BOLD), L"MMMM")) / pixels(tahoma(FW_NORMAL), L"MMMM"),
                0.01);
}
