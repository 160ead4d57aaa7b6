// The flat look's colours on any system's.
#include "docking/core/look_colors.h"

#include <random>
#include <set>

#include <gtest/gtest.h>

namespace {

using namespace kmfc;

constexpr COLORREF rgb(int r, int g, int b) {
    return static_cast<COLORREF>(r) | static_cast<COLORREF>(g) << 8 | static_cast<COLORREF>(b) << 16;
}
constexpr COLORREF kBlack = rgb(0, 0, 0), kWhite = rgb(255, 255, 255);
constexpr SystemColors kLight = {rgb(240, 240, 240), kBlack, kWhite, kBlack, rgb(0, 120, 215), kWhite, false};
constexpr SystemColors kDark = {rgb(43, 43, 43), kWhite, rgb(25, 25, 25), kWhite, rgb(0, 120, 215),
                                kWhite,          false};

void expect_readable(const LookColors& look) {
    EXPECT_GE(contrast(look.captionFill, look.captionText), 4.5);
    EXPECT_GE(contrast(look.activeFill, look.activeText), 4.3);
    EXPECT_GE(contrast(look.hotFill, look.hotText), 4.5);
    EXPECT_GE(contrast(look.pressedFill, look.pressedText), 4.5);
    EXPECT_GE(contrast(look.activeTabFill, look.activeTabText), 4.5);
    EXPECT_GE(contrast(look.bar, look.tabText), 4.5);
}

}  // namespace

TEST(Blend, MixesByHundredths) {
    EXPECT_EQ(blend(kBlack, kWhite, 0), kBlack);
    EXPECT_EQ(blend(kBlack, kWhite, 100), kWhite);
    EXPECT_EQ(blend(kBlack, kWhite, 50), rgb(128, 128, 128));
    EXPECT_EQ(blend(rgb(10, 20, 30), rgb(110, 220, 130), 10), rgb(20, 40, 40));
}

TEST(Contrast, IsThatOfTheGuidelines) {
    EXPECT_NEAR(contrast(kBlack, kWhite), 21.0, 1e-9);
    EXPECT_NEAR(contrast(kWhite, kWhite), 1.0, 1e-9);
    EXPECT_NEAR(contrast(rgb(118, 118, 118), kWhite), 4.54, 0.01);
    EXPECT_NEAR(contrast(rgb(0, 0, 255), kWhite), 8.59, 0.01);
    EXPECT_NEAR(contrast(rgb(255, 0, 0), kWhite), 4.0, 0.01);
    EXPECT_NEAR(contrast(kWhite, rgb(255, 0, 0)), contrast(rgb(255, 0, 0), kWhite), 1e-9);
}

TEST(Dark, IsWhatCallsForLightText) {
    EXPECT_TRUE(is_dark(kBlack));
    EXPECT_TRUE(is_dark(rgb(43, 43, 43)));
    EXPECT_TRUE(is_dark(rgb(0, 0, 255)));
    EXPECT_FALSE(is_dark(kWhite));
    EXPECT_FALSE(is_dark(rgb(0, 255, 0)));
}

TEST(FlatLook, FollowsLightAndDark) {
    const LookColors light = look_colors(kLight), dark = look_colors(kDark);
    EXPECT_EQ(light.bar, kLight.face);
    EXPECT_EQ(light.activeTabFill, kWhite);
    EXPECT_EQ(light.activeFill, kLight.highlight);
    EXPECT_FALSE(is_dark(light.captionFill));
    EXPECT_TRUE(is_dark(dark.captionFill));
    expect_readable(light);
    expect_readable(dark);
}

TEST(FlatLook, TellsItsStatesApart) {
    for (const SystemColors& system : {kLight, kDark}) {
        const LookColors look = look_colors(system);
        const std::set<COLORREF> fills = {look.bar, look.captionFill, look.activeFill, look.hotFill,
                                          look.pressedFill};
        EXPECT_EQ(fills.size(), 5u);
        EXPECT_NE(look.border, look.bar);
        EXPECT_NE(look.disabledText, look.tabText);
    }
}

TEST(FlatLook, TakesOnlyTheSystemsColoursInHighContrast) {
    const SystemColors system = {kBlack,         rgb(255, 255, 0), kBlack, rgb(255, 255, 0),
                                 rgb(0, 255, 0), kBlack,           true};
    const LookColors look = look_colors(system);
    const std::set<COLORREF> own = {system.face, system.text, system.highlight, system.highlightText};
    for (const COLORREF color :
         {look.bar, look.captionFill, look.captionText, look.activeFill, look.activeText, look.border,
          look.hotFill, look.hotText, look.pressedFill, look.pressedText, look.activeTabFill,
          look.activeTabText, look.tabText, look.disabledText})
        EXPECT_TRUE(own.contains(color)) << std::hex << color;
    EXPECT_EQ(look.border, system.text);
    EXPECT_EQ(look.activeTabFill, system.highlight);
    EXPECT_EQ(look.activeTabText, system.highlightText);
}

TEST(FlatLook, CanBeReadOnAnySystem) {
    std::mt19937 engine(7);
    std::uniform_int_distribution<COLORREF> any(0, 0xFFFFFF);
    for (int i = 0; i < 5000; ++i) {
        SystemColors system = {any(engine), any(engine), any(engine), any(engine),
                               any(engine), any(engine), false};
        const LookColors look = look_colors(system);
        EXPECT_GE(contrast(look.captionFill, look.captionText), 4.5);
        EXPECT_GE(contrast(look.activeFill, look.activeText), 4.5);
        EXPECT_GE(contrast(look.hotFill, look.hotText), 4.5);
        EXPECT_GE(contrast(look.pressedFill, look.pressedText), 4.5);
        EXPECT_GE(contrast(look.activeTabFill, look.activeTabText), 4.5);
        EXPECT_GE(contrast(look.bar, look.tabText), 4.5);
        if (HasFailure()) FAIL() << "at " << i;
    }
}
