// Pixels of small pictures: sizes, the disabled look, the look on dark bars.
#include <gtest/gtest.h>

#include <docking/core/picture_pixels.h>

namespace {

using namespace kmfc;

PicturePixels two_by_two() { return {CSize(2, 2), {0xFF000000, 0xFFFFFFFF, 0xFFFF0000, 0x00000000}}; }

TEST(PicturePixels, a_part_is_cut_out_and_what_is_not_inside_is_refused) {
    EXPECT_EQ(cut_out(two_by_two(), CRect(1, 0, 2, 2)).pixels,
              (std::vector<std::uint32_t>{0xFFFFFFFF, 0x00000000}));
    EXPECT_EQ(cut_out(two_by_two(), CRect(0, 1, 2, 2)).size, CSize(2, 1));
    for (const CRect& wrong :
         {CRect(-1, 0, 1, 1), CRect(0, -1, 1, 1), CRect(0, 0, 3, 1), CRect(0, 0, 1, 3), CRect(1, 1, 1, 2)})
        EXPECT_TRUE(cut_out(two_by_two(), wrong).pixels.empty());
}

TEST(PicturePixels, twice_as_large_repeats_each_pixel_and_half_as_large_takes_the_mean) {
    const PicturePixels large = resized(two_by_two(), CSize(4, 4));
    ASSERT_EQ(large.pixels.size(), 16u);
    EXPECT_EQ(large.pixels[0], 0xFF000000u);
    EXPECT_EQ(large.pixels[5], 0xFF000000u);
    EXPECT_EQ(large.pixels[2], 0xFFFFFFFFu);
    EXPECT_EQ(large.pixels[8], 0xFFFF0000u);
    EXPECT_EQ(large.pixels[15], 0x00000000u);
    const PicturePixels small = resized(two_by_two(), CSize(1, 1));
    ASSERT_EQ(small.pixels.size(), 1u);
    EXPECT_EQ(small.pixels[0], 0xBF804040u);
    // Half of the middle column and row comes from each neighbour.
    EXPECT_EQ(resized(two_by_two(), CSize(3, 3)).pixels[1], 0xFF808080u);
    EXPECT_TRUE(resized(two_by_two(), CSize(0, 5)).pixels.empty());
    EXPECT_TRUE(resized({}, CSize(5, 5)).pixels.empty());
}

TEST(PicturePixels, colours_are_multiplied_by_their_alpha) {
    EXPECT_EQ(premultiplied(0x80FF8000), 0x80804000u);
    EXPECT_EQ(premultiplied(0x00FFFFFF), 0u);
    EXPECT_EQ(premultiplied(0xFF123456), 0xFF123456u);
}

TEST(PicturePixels, what_is_disabled_is_grey_and_weaker) {
    const PicturePixels grey = disabled_look(two_by_two());
    EXPECT_EQ(grey.pixels[0], 0x66000000u);
    EXPECT_EQ(grey.pixels[1], 0x66666666u);
    EXPECT_EQ(grey.pixels[2], 0x661E1E1Eu);
    EXPECT_EQ(grey.pixels[3], 0u);
}

TEST(PicturePixels, on_dark_greys_turn_round_and_colours_stay) {
    PicturePixels picture = two_by_two();
    picture.pixels.push_back(0xFF485468);
    const PicturePixels dark = look_on_dark(picture);
    EXPECT_EQ(dark.pixels[0], 0xFFFFFFFFu);
    EXPECT_EQ(dark.pixels[1], 0xFF000000u);
    EXPECT_EQ(dark.pixels[2], 0xFFFF0000u);
    EXPECT_EQ(dark.pixels[3], 0u);
    EXPECT_EQ(dark.pixels[4], 0xFF97A3B7u);
    EXPECT_EQ(look_on_dark({CSize(1, 1), {0xFF007ACC}}).pixels[0], 0xFF007ACCu);
    // Half transparent black is half transparent white.
    EXPECT_EQ(look_on_dark({CSize(1, 1), {0x80000000}}).pixels[0], 0x80808080u);
}

}  // namespace
