// The signs: what they cover at the sizes that resolutions ask for.
#include "docking/core/sign_shapes.h"

#include <algorithm>
#include <numeric>

#include <gtest/gtest.h>

namespace {

using kmfc::Sign;
constexpr int kSizes[] = {9, 11, 14, 18, 27};

struct Picture {
    Picture(Sign sign, int side) : width(side), bytes(kmfc::sign_coverage(sign, side, side)) {}
    int at(int x, int y) const { return bytes[static_cast<size_t>(y * width + x)]; }
    long ink() const { return std::accumulate(bytes.begin(), bytes.end(), 0L); }
    int width;
    std::vector<BYTE> bytes;
};

void expect_mirrored(Sign one, Sign other, bool across) {
    for (const int side : kSizes) {
        SCOPED_TRACE(side);
        const Picture a(one, side), b(other, side);
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x)
                ASSERT_NEAR(a.at(x, y), across ? b.at(side - 1 - x, y) : b.at(x, side - 1 - y), 4)
                    << x << "," << y;
    }
}

void expect_turned(Sign one, Sign other) {
    for (const int side : kSizes) {
        const Picture a(one, side), b(other, side);
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x) ASSERT_EQ(a.at(x, y), b.at(y, x)) << side << ":" << x << "," << y;
    }
}

}  // namespace

TEST(Signs, AllLeaveInkAndRoom) {
    for (int i = 0; i < static_cast<int>(Sign::count); ++i)
        for (const int side : kSizes) {
            const Picture picture(static_cast<Sign>(i), side);
            const long whole = 255L * side * side;
            EXPECT_GT(picture.ink(), whole / 50) << i << " at " << side;
            EXPECT_LT(picture.ink(), whole * 3 / 4) << i << " at " << side;
        }
}

TEST(Signs, AreEmptyWithoutASize) {
    EXPECT_TRUE(kmfc::sign_coverage(Sign::close, 0, 9).empty());
    EXPECT_TRUE(kmfc::sign_coverage(Sign::close, 9, 0).empty());
    EXPECT_EQ(kmfc::sign_coverage(Sign::close, 7, 3).size(), 21u);
}

TEST(Signs, GrowWithTheirSize) {
    for (int i = 0; i < static_cast<int>(Sign::count); ++i) {
        const double small = static_cast<double>(Picture(static_cast<Sign>(i), 9).ink()) / 81;
        const double large = static_cast<double>(Picture(static_cast<Sign>(i), 27).ink()) / 729;
        EXPECT_NEAR(large / small, 1.0, 0.25) << i;
    }
}

TEST(Arrows, PointWhereTheySay) {
    for (const auto& [sign, dx, dy] :
         {std::tuple(Sign::arrow_down, 0, 1), std::tuple(Sign::arrow_up, 0, -1),
          std::tuple(Sign::arrow_right, 1, 0), std::tuple(Sign::arrow_left, -1, 0),
          std::tuple(Sign::large_arrow_down, 0, 1), std::tuple(Sign::large_arrow_left, -1, 0)}) {
        const Picture picture(sign, 27);
        // The broad end holds more ink than the tip's.
        long tip = 0, base = 0;
        for (int y = 0; y < 27; ++y)
            for (int x = 0; x < 27; ++x) {
                const int side = (x - 13) * dx + (y - 13) * dy;
                (side > 0 ? tip : base) += side == 0 ? 0 : picture.at(x, y);
            }
        EXPECT_GT(base, 2 * tip) << static_cast<int>(sign);
    }
}

TEST(Arrows, AreEachOthersMirrorImages) {
    expect_mirrored(Sign::arrow_down, Sign::arrow_up, false);
    expect_mirrored(Sign::arrow_left, Sign::arrow_right, true);
    expect_mirrored(Sign::large_arrow_down, Sign::large_arrow_up, false);
    expect_turned(Sign::arrow_down, Sign::arrow_right);
    EXPECT_GT(Picture(Sign::large_arrow_down, 18).ink(), Picture(Sign::arrow_down, 18).ink());
}

TEST(Crosses, AreTheSameFromAllSides) {
    for (const Sign sign : {Sign::close, Sign::small_close, Sign::radio}) {
        expect_mirrored(sign, sign, true);
        expect_mirrored(sign, sign, false);
        expect_turned(sign, sign);
    }
    EXPECT_GT(Picture(Sign::close, 18).ink(), Picture(Sign::small_close, 18).ink());
}

TEST(Pins, AreTheSameTurned) {
    expect_turned(Sign::pin_lying, Sign::pin_standing);
    const Picture standing(Sign::pin_standing, 9);
    EXPECT_EQ(standing.at(4, 8), 255) << "the needle";
    EXPECT_EQ(standing.at(3, 8), 0);
    EXPECT_EQ(standing.at(1, 5), 255) << "the collar";
    EXPECT_EQ(standing.at(3, 2), 0) << "the head is hollow";
}

TEST(Strokes, FallOnWholePixels) {
    for (const Sign sign : {Sign::minimize, Sign::maximize, Sign::restore, Sign::more, Sign::pin_standing})
        for (const int side : kSizes)
            for (const BYTE part : Picture(sign, side).bytes)
                ASSERT_TRUE(part == 0 || part == 255) << static_cast<int>(sign) << " at " << side;
}

TEST(WindowSigns, LookAsTheyAlwaysDo) {
    const Picture maximize(Sign::maximize, 9), minimize(Sign::minimize, 9), restore(Sign::restore, 9);
    EXPECT_EQ(maximize.at(0, 0), 255);
    EXPECT_EQ(maximize.at(4, 1), 255) << "its title is thick";
    EXPECT_EQ(maximize.at(4, 4), 0);
    EXPECT_EQ(maximize.at(8, 8), 255);
    EXPECT_EQ(minimize.at(4, 6), 0);
    EXPECT_EQ(minimize.at(4, 8), 255);
    EXPECT_EQ(restore.at(0, 8), 255);
    EXPECT_EQ(restore.at(8, 0), 255);
    EXPECT_EQ(restore.at(0, 0), 0);
    EXPECT_EQ(restore.at(8, 8), 0);
}
