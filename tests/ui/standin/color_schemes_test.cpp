// The colours that the stand-in host answers: indexes and schemes.
#include "../../../platform/standin/standin_settings.h"
#include "host_fixture.h"
#include "scheme_color.h"

namespace {

constexpr COLORREF kUntouched = 0x01FE02;

class Schemes : public ui_test::HostTest {
protected:
    CKhColorServices& colors() { return *host.colorServices(); }
    COLORREF colorOf(StandinColorScheme scheme, int role) {
        COLORREF color = kUntouched;
        EXPECT_TRUE(colors().schemeColor(static_cast<int>(scheme), role, color, 0)) << role;
        return color;
    }
    static int brightness(COLORREF color) {
        return (GetRValue(color) * 299 + GetGValue(color) * 587 + GetBValue(color) * 114) / 1000;
    }
    int contrast(StandinColorScheme scheme, int text, int background) {
        return std::abs(brightness(colorOf(scheme, text)) - brightness(colorOf(scheme, background)));
    }
};

}  // namespace

TEST_F(Schemes, EachAnswersEveryRoleAndNoOther) {
    for (const auto scheme :
         {StandinColorScheme::kLight, StandinColorScheme::kDark, StandinColorScheme::kHighContrast}) {
        for (int role = 0; role < kStandinRoleCount; ++role) EXPECT_NE(colorOf(scheme, role), kUntouched);
        for (const int role : {-1, static_cast<int>(kStandinRoleCount)}) {
            COLORREF color = kUntouched;
            EXPECT_FALSE(colors().schemeColor(static_cast<int>(scheme), role, color, 0));
            EXPECT_EQ(color, kUntouched);
        }
    }
    COLORREF color = kUntouched;
    for (const int scheme : {-1, 3, 4}) EXPECT_FALSE(colors().schemeColor(scheme, 8, color, 0)) << scheme;
    EXPECT_EQ(color, kUntouched);
}

TEST_F(Schemes, TextsCanBeReadOnTheirBackgrounds) {
    for (const auto scheme : {StandinColorScheme::kLight, StandinColorScheme::kDark}) {
        EXPECT_GT(contrast(scheme, kStandinRoleWindowText, kStandinRoleWindow), 125);
        EXPECT_GT(contrast(scheme, kStandinRoleFaceText, kStandinRoleFace), 125);
        EXPECT_GT(contrast(scheme, kStandinRoleSelectionText, kStandinRoleSelection), 125);
        EXPECT_GT(contrast(scheme, kKhColorRoleTipText, kKhColorRoleTipBackground), 125);
        EXPECT_GT(contrast(scheme, kStandinRoleLink, kStandinRoleFace), 100);
        EXPECT_GT(contrast(scheme, kStandinRoleCrosshair, kStandinRoleDrawing), 125);
    }
    EXPECT_GT(brightness(colorOf(StandinColorScheme::kLight, kStandinRoleFace)), 200);
    EXPECT_LT(brightness(colorOf(StandinColorScheme::kDark, kStandinRoleFace)), 80);
}

TEST_F(Schemes, EachRoleHasItsColor) {
    // Red, green and blue as web pages write them.
    const auto check = [&](StandinColorScheme scheme, const std::vector<unsigned>& expected) {
        ASSERT_EQ(expected.size(), static_cast<std::size_t>(kStandinRoleCount));
        for (int role = 0; role < kStandinRoleCount; ++role) {
            const unsigned web = expected[static_cast<std::size_t>(role)];
            EXPECT_EQ(colorOf(scheme, role), static_cast<COLORREF>(RGB(web >> 16, web >> 8 & 255, web & 255)))
                << role;
        }
    };
    check(StandinColorScheme::kLight, {0xFFFFFF, 0x202020, 0xF0F0F0, 0x202020, 0x808080, 0x0067C0, 0xFFFFFF,
                                       0xACACAC, 0x46484B, 0x46484B, 0xF9F9F9, 0x0054A6, 0xFFFFFF, 0x202020});
    check(StandinColorScheme::kDark, {0x202225, 0xE8E8E8, 0x2D3034, 0xE8E8E8, 0x909498, 0x266EB2, 0xFFFFFF,
                                      0x5C6066, 0xE8E8E8, 0x787C82, 0x383B40, 0x7AB8F5, 0x212830, 0xE8E8E8});
}

TEST_F(Schemes, HighContrastHasTheColorsOfTheSystem) {
    const int indexes[] = {COLOR_WINDOW,   COLOR_WINDOWTEXT, COLOR_BTNFACE,       COLOR_BTNTEXT,
                           COLOR_GRAYTEXT, COLOR_HIGHLIGHT,  COLOR_HIGHLIGHTTEXT, COLOR_WINDOWFRAME,
                           COLOR_INFOTEXT, COLOR_INFOTEXT,   COLOR_INFOBK,        COLOR_HOTLIGHT,
                           COLOR_WINDOW,   COLOR_WINDOWTEXT};
    for (int role = 0; role < kStandinRoleCount; ++role) {
        const ui_test::SchemeColor changed(indexes[role], RGB(11, 22, 33));
        EXPECT_EQ(colorOf(StandinColorScheme::kHighContrast, role), static_cast<COLORREF>(RGB(11, 22, 33)))
            << role;
    }
}

TEST_F(Schemes, TheOneInForceIsTheSystemsUntilItIsSet) {
    for (const int kind : {0, 1}) EXPECT_EQ(colors().currentColorScheme(kind), 0);
    {
        const ui_test::SchemeColor dark(COLOR_WINDOW, RGB(30, 30, 30));
        EXPECT_EQ(colors().currentColorScheme(1), 1);
        host.SetColorScheme(StandinColorScheme::kLight);
        EXPECT_EQ(colors().currentColorScheme(1), 0);
    }
    {
        const ui_test::SchemeColor dim(COLOR_WINDOW, RGB(127, 127, 127));
        host.SetColorScheme(StandinColorScheme::kSystem);
        EXPECT_EQ(colors().currentColorScheme(1), 1);
    }
    {
        const ui_test::SchemeColor middling(COLOR_WINDOW, RGB(128, 128, 128));
        EXPECT_EQ(colors().currentColorScheme(1), 0);
    }
    {
        // Green looks brighter than red, and blue darker.
        const ui_test::SchemeColor green(COLOR_WINDOW, RGB(0, 255, 0));
        EXPECT_EQ(colors().currentColorScheme(1), 0);
    }
    {
        const ui_test::SchemeColor purple(COLOR_WINDOW, RGB(255, 0, 255));
        EXPECT_EQ(colors().currentColorScheme(1), 1);
    }
    host.SetColorScheme(StandinColorScheme::kHighContrast);
    EXPECT_EQ(colors().currentColorScheme(1), 2);
    host.SetColorScheme(StandinColorScheme::kDark);
    EXPECT_EQ(colors().currentColorScheme(0), 1);
    host.SetColorScheme(StandinColorScheme::kSystem);
    EXPECT_EQ(colors().currentColorScheme(1), 0);
}

TEST_F(Schemes, IndexesHaveTheirColorsAndAnyNumberMayBeAskedFor) {
    EXPECT_EQ(colors().colorOfIndex(1), static_cast<COLORREF>(RGB(255, 0, 0)));
    EXPECT_EQ(colors().colorOfIndex(5), static_cast<COLORREF>(RGB(0, 0, 255)));
    EXPECT_EQ(colors().colorOfIndex(7), static_cast<COLORREF>(RGB(255, 255, 255)));
    for (const int odd : {-1, 0, 256, 257, 100000, -100000})
        EXPECT_LE(colors().colorOfIndex(odd), static_cast<COLORREF>(0xFFFFFF)) << odd;
}
