// What dimensions without a block say: units, zeros, tolerances, limits, other units; and the kinds that
// measure arcs.
#include "drawn.h"

namespace {

using namespace scene_test;

/// A dimension of 20 units with settings of its style.
Drawn dimension(
    const std::string& style, const std::string& more = "",
    const std::string& kind = "0 DIMENSION|8 0|70 0|10 20|20 10|30 0|13 0|23 0|33 0|14 20|24 4|34 0") {
    return Drawn(Parts{.tables = table("DIMSTYLE", "0 DIMSTYLE|105 27|2 Standard|70 0" + style +
                                                       "|40 1|41 1|42 0.5|44 2|140 3|147 1|271 2|78 0"),
                       .entities = kind + "|3 Standard" + more});
}

/// The texts one behind the other; those of less than the usual height in brackets with their height.
std::wstring said(const Drawn& drawn) {
    std::wstring all;
    for (const SceneText& text : drawn.texts()) {
        const std::wstring words(text.text.view());
        all += std::abs(text.height - 3) < 1e-6
                   ? words
                   : L"(" + std::to_wstring(static_cast<int>(std::lround(text.height * 10))) + L":" + words +
                         L")";
    }
    return all;
}

std::wstring said(const std::string& style, const std::string& more = "") {
    return said(dimension(style, more));
}

/// The same for a length of `inches`, written in one line.
std::wstring feet(const char* inches, const char* units, const char* zeros, const char* decimals = "4") {
    const double factor = std::stod(inches) / 20;
    return said("|277 " + std::string(units) + "|276 2|144 " + std::to_string(factor) + "|271 " + decimals +
                "|78 " + zeros);
}

TEST(DimensionTexts, UnitsAreThoseOfTheStyle) {
    EXPECT_EQ(said("|277 1"), L"2.00E+01");
    EXPECT_EQ(said("|277 2"), L"20.00");
    EXPECT_EQ(said("|277 6"), L"20.00") << "those of the system";
    EXPECT_EQ(feet("15.64", "3", "3", "2"), L"1'-3.64\"");
    EXPECT_EQ(feet("15.625", "4", "3"), L"1'-3 5/8\"");
    EXPECT_EQ(feet("15.625", "5", "3"), L"15 5/8");
    EXPECT_EQ(feet("15.625", "4", "3", "1"), L"1'-3 1/2\"") << "halves";
    EXPECT_EQ(said("|270 1"), L"2.00E+01") << "as styles had it before";
    EXPECT_EQ(said("|270 6|144 .78125|271 4"), L"1'-3 5/8\"");
    EXPECT_EQ(said("|270 7|144 .78125|271 4"), L"15 5/8");
    EXPECT_EQ(said("|270 4|277 2"), L"20.00") << "the newer setting counts";
}

TEST(DimensionTexts, ZerosOfFeetAndInchesAreLeftOutAsTheStyleSays) {
    const char* const lengths[] = {"0.5", "6", "12", "12.75"};
    const std::wstring expected[4][4] = {{L"1/2\"", L"6\"", L"1'", L"1'-0 3/4\""},
                                         {L"0'-0 1/2\"", L"0'-6\"", L"1'-0\"", L"1'-0 3/4\""},
                                         {L"0'-0 1/2\"", L"0'-6\"", L"1'", L"1'-0 3/4\""},
                                         {L"1/2\"", L"6\"", L"1'-0\"", L"1'-0 3/4\""}};
    for (int zeros = 0; zeros < 4; ++zeros)
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(feet(lengths[i], "4", std::to_string(zeros).c_str()), expected[zeros][i])
                << lengths[i] << " with " << zeros;
    EXPECT_EQ(feet("6.5", "3", "8", "3"), L"6.5\"");
    EXPECT_EQ(feet("12", "3", "0", "3"), L"1'");
    EXPECT_EQ(feet("0.5", "3", "5", "2"), L"0'-.50\"");
}

TEST(DimensionTexts, DecimalsLoseTheirZerosAndHaveTheirSeparator) {
    EXPECT_EQ(said("|144 .025|78 4"), L".50");
    EXPECT_EQ(said("|144 .025|78 8"), L"0.5");
    EXPECT_EQ(said("|144 .025|78 12|278 44"), L",5");
    EXPECT_EQ(said("|144 .5|78 4"), L"10.00") << "its zero isn't a leading one";
    EXPECT_EQ(said("|78 8"), L"20");
    EXPECT_EQ(said("|277 1|78 8"), L"2E+01");
    EXPECT_EQ(said("|45 15"), L"15.00");
}

TEST(DimensionTexts, FractionsAreStacked) {
    const Drawn level = dimension("|277 4|276 0|144 .78125|271 4");
    EXPECT_EQ(said(level), L"1'-358\"");
    EXPECT_EQ(level.paths().size(), 6u) << "with a bar";
    const Drawn slanted = dimension("|277 5|276 1|144 .78125|271 4");
    EXPECT_EQ(said(slanted), L"1558");
    EXPECT_EQ(said("|277 4|276 0|144 .78125|271 4|146 .5"), L"1'-3(15:5)(15:8)\"") << "smaller numbers";
    // Numbers of 3 with 0.45 on either side of the bar, around the middle of the whole number.
    EXPECT_NEAR(level.text(1).position.y - level.text(0).position.y, 1.5 + 0.45, 1e-9);
    EXPECT_NEAR(level.text(2).position.y - level.text(0).position.y, 1.5 - 0.45 - 3, 1e-9);
    EXPECT_NE(slanted.paths().back().points.front().y, slanted.paths().back().points.back().y);
    EXPECT_EQ(level.paths().back().points.front().y, level.paths().back().points.back().y);
}

TEST(DimensionTexts, TolerancesAreEqualOrStacked) {
    EXPECT_EQ(said("|71 1|47 .1|48 .1|272 1"), L"20.00\u00B10.1");
    EXPECT_EQ(said("|71 1|47 .1|48 .1|272 1|146 .5"), L"20.00(15:\u00B10.1)");
    EXPECT_EQ(said("|71 1|47 .25|48 .1|272 2|284 8"), L"20.00+0.25-0.1");
    EXPECT_EQ(said("|71 1|47 .25|48 .1|272 2|146 .5"), L"20.00(15:+0.25)(15:-0.10)");
    EXPECT_EQ(said("|71 1|47 0|48 .1|272 1"), L"20.000.0-0.1") << "none above";
    EXPECT_EQ(said("|71 1|47 0|48 0"), L"20.00");
    EXPECT_EQ(said("|71 0|47 1|48 1"), L"20.00");
    EXPECT_EQ(said("|71 1|47 .1|48 .1|272 1|3 <> mm"), L"20.00 mm\u00B10.1 mm");
    const Drawn stacked = dimension("|71 1|47 .25|48 .1");
    EXPECT_GT(stacked.text(1).position.y, stacked.text(2).position.y) << "plus above minus";
    EXPECT_EQ(stacked.paths().size(), 5u) << "no bar between them";
    // Half as high: 1.5 each and 0.45 between them beside 3, below, in the middle and above.
    const double lower[] = {0, 1.5 - 0.225 - 1.5, 3 - 3.45};
    for (int row = 0; row < 3; ++row) {
        const Drawn beside = dimension("|71 1|47 .25|48 .1|146 .5|283 " + std::to_string(row));
        EXPECT_NEAR(beside.text(2).position.y - beside.text(0).position.y, lower[row], 1e-9) << row;
        EXPECT_NEAR(beside.text(1).position.y - beside.text(2).position.y, 1.5 + 0.45, 1e-9) << row;
    }
}

TEST(DimensionTexts, LimitsStandInPlaceOfTheNumber) {
    EXPECT_EQ(said("|72 1|47 .25|48 .1"), L"20.2519.90");
    EXPECT_EQ(said("|72 1|47 .25|48 .1|146 .5|3 A<>B"), L"(15:A20.25B)(15:A19.90B)");
    EXPECT_EQ(said("|72 1|47 .25|48 .1|277 4|276 0|271 2"), L"1'-8 1/4\"1'-8\"") << "no stack in a stack";
}

TEST(DimensionTexts, OtherUnitsStandBehind) {
    EXPECT_EQ(said("|170 1|143 25.4|171 1"), L"20.00 [508.0]");
    EXPECT_EQ(said("|170 1|143 2|171 0|4 ca. [] mm"), L"20.00 [ca. 40 mm]");
    EXPECT_EQ(said("|170 1|143 2|171 0|148 25"), L"20.00 [50]");
    EXPECT_EQ(said("|170 1|143 .78125|171 4|273 6"), L"20.00 [1'-3 5/8\"]");
    EXPECT_EQ(said("|170 1|143 .025|171 2|285 12"), L"20.00 [.5]");
    EXPECT_EQ(said("|170 1|143 25.4|171 0", "|1 about <>"), L"about 20.00 [508]");
    EXPECT_EQ(said("|170 1|143 25.4|171 0", "|1 [] is <>"), L"[508] is 20.00");
    EXPECT_EQ(said("|170 0|143 25.4|171 0", "|1 [] is <>"), L" is 20.00");
}

TEST(DimensionTexts, OtherUnitsHaveTheToleranceToo) {
    const std::string millimetres = "|170 1|143 10|171 1|272 2";
    EXPECT_EQ(said(millimetres + "|71 1|47 .25|48 .25"), L"20.00\u00B10.25 [200.0\u00B12.5]");
    EXPECT_EQ(said(millimetres + "|71 1|47 .25|48 .1|274 2|286 8"), L"20.00+0.25-0.10 [200.0+2.5-1]");
    EXPECT_EQ(said(millimetres + "|71 1|47 .25|48 .25|4 ca. [] mm"),
              L"20.00\u00B10.25 [ca. 200.0 mm\u00B12.5 mm]");
    EXPECT_EQ(said(millimetres + "|72 1|47 .25|48 .1"), L"20.2519.90 [202.5199.0]") << "limits";
    EXPECT_EQ(said(millimetres + "|47 .25|48 .1"), L"20.00 [200.0]") << "not asked for";
}

TEST(DimensionTexts, AnglesHaveUnitsOfTheirOwn) {
    const auto angle = [](const std::string& style) {
        return said(
            dimension(style, "",
                      "0 DIMENSION|8 0|70 5|10 7.0710678118|20 7.0710678118|30 0|13 5|23 0|33 0|14 0|24 5|34 "
                      "0|15 0|25 0|35 0"));
    };
    EXPECT_EQ(angle("|179 0"), L"90\u00B0");
    EXPECT_EQ(angle("|179 2"), L"90.00\u00B0");
    EXPECT_EQ(angle("|179 2|79 2"), L"90\u00B0");
    EXPECT_EQ(angle("|179 -1|271 1"), L"90.0\u00B0") << "as many as lengths have";
    EXPECT_EQ(angle("|275 1|179 4"), L"90\u00B00'0\"");
    EXPECT_EQ(angle("|275 2|179 0"), L"100g");
    EXPECT_EQ(angle("|275 3|179 3"), L"1.571r");
    EXPECT_EQ(angle("|179 0|71 1|47 2|48 2"), L"90\u00B0\u00B12\u00B0");
}

constexpr const char* kQuarter =
    "0 ARC_DIMENSION|8 0|100 AcDbDimension|70 37|10 0|20 12|30 0|100 AcDbArcDimension|13 10|23 0|33 0|14 "
    "0|24 10|34 "
    "0|15 0|25 0|35 0|40 0|41 1.5707963|70 0";

TEST(DimensionTexts, AnArcLengthIsThatOfTheMeasuredArc) {
    const Drawn drawn = dimension("", "", kQuarter);
    EXPECT_EQ(said(drawn), L"\u231215.71") << "ten times a quarter turn";
    ASSERT_EQ(drawn.path(2).arcs.size(), 1u);
    EXPECT_NEAR(drawn.path(2).arcs[0].sweep, kPi / 2, 1e-6);
    EXPECT_NEAR(drawn.path(2).arcs[0].axisX.x, 12, 1e-9);
    EXPECT_TRUE(goesThrough(drawn.path(0), {{10.5, 0}, {14, 0}}));
    EXPECT_EQ(said(dimension("|90 2", "", kQuarter)), L"15.71") << "without its sign";
    EXPECT_TRUE(drawn.scene.notDrawn.empty());
}

TEST(DimensionTexts, AJoggedRadiusGoesRoundItsCentre) {
    // The centre far to the left stands at 40, 10 of the sheet; the jog is at 60, 5, upright.
    const Drawn drawn =
        dimension("", "",
                  "0 LARGE_RADIAL_DIMENSION|8 0|100 AcDbDimension|70 41|10 0|20 0|30 0|100 "
                  "AcDbRadialDimensionLarge|15 100|25 0|35 0|13 40|23 10|33 0|14 60|24 5|34 0|40 "
                  "1.5707963267948966");
    EXPECT_TRUE(goesThrough(drawn.path(0), {{40, 10}, {60, 10}, {60, 0}, {100, 0}}));
    EXPECT_EQ(said(drawn), L"R100.00");
    EXPECT_TRUE(drawn.path(1).filled);
    EXPECT_TRUE(isAt(drawn.path(1).points.at(0), 100, 0)) << "the arrow at the arc";
    const Drawn slanted =
        dimension("", "",
                  "0 LARGE_RADIAL_DIMENSION|8 0|100 AcDbDimension|70 41|10 0|20 0|30 0|100 "
                  "AcDbRadialDimensionLarge|15 100|25 0|35 0|13 40|23 10|33 0|14 60|24 5|34 0|40 "
                  "0.7853981633974483");
    EXPECT_TRUE(goesThrough(slanted.path(0), {{40, 10}, {65, 10}, {55, 0}, {100, 0}}));
}

}  // namespace
