// Captions, their buttons, and where floating frames go.
#include <gtest/gtest.h>

#include <docking/core/caption_layout.h>

namespace {

using namespace kmfc::docking;

TEST(CaptionLayout, is_high_enough_for_text_and_buttons) {
    EXPECT_EQ(caption_height(13, 15), 19);
    EXPECT_EQ(caption_height(10, 20), 23);
}

TEST(CaptionLayout, places_buttons_from_the_right_in_the_middle_of_the_height) {
    const auto places = place_buttons(CRect(10, 20, 110, 40), CSize(16, 14), {true, true, true});
    EXPECT_EQ(places[0], CRect(92, 23, 108, 37));
    EXPECT_EQ(places[1], CRect(75, 23, 91, 37));
    EXPECT_EQ(places[2], CRect(58, 23, 74, 37));
}

TEST(CaptionLayout, gives_hidden_buttons_no_room) {
    const auto places = place_buttons(CRect(0, 0, 100, 20), CSize(16, 14), {true, false, true});
    EXPECT_TRUE(places[1].IsRectEmpty());
    EXPECT_EQ(places[2].right, places[0].left - 1);
}

TEST(CaptionLayout, hides_buttons_that_do_not_fit) {
    const auto places = place_buttons(CRect(0, 0, 36, 20), CSize(16, 14), {true, true, true});
    EXPECT_FALSE(places[0].IsRectEmpty());
    EXPECT_FALSE(places[1].IsRectEmpty() && places[1].left < 0);
    EXPECT_EQ(places[1], CRect(1, 3, 17, 17));
    EXPECT_TRUE(places[2].IsRectEmpty());
}

TEST(CaptionLayout, leaves_the_text_what_the_buttons_leave) {
    const CRect caption(0, 0, 100, 20);
    EXPECT_EQ(caption_text(caption, {}), CRect(6, 0, 98, 20));
    EXPECT_EQ(caption_text(caption, {CRect(82, 3, 98, 17), CRect(0, 0, 0, 0), CRect(65, 3, 81, 17)}),
              CRect(6, 0, 63, 20));
    EXPECT_EQ(caption_text(CRect(0, 0, 4, 20), {}).Width(), 0);
    EXPECT_EQ(caption_text(CRect(0, 0, 20, 20), {CRect(2, 3, 18, 17)}).Width(), 0);
}

TEST(CaptionLayout, finds_the_parts_of_a_border) {
    const CRect window(100, 200, 300, 400);
    const struct {
        int x, y, part;
    } cases[] = {{100, 300, 10}, {103, 300, 10}, {104, 300, 0},  {299, 300, 11}, {296, 300, 11},
                 {295, 300, 0},  {200, 200, 12}, {200, 204, 0},  {100, 200, 13}, {111, 200, 13},
                 {112, 200, 12}, {100, 211, 13}, {299, 200, 14}, {288, 201, 14}, {200, 399, 15},
                 {100, 399, 16}, {111, 399, 16}, {299, 399, 17}, {299, 388, 17}, {299, 387, 11},
                 {99, 300, 0},   {300, 300, 0},  {200, 199, 0},  {200, 400, 0}};
    for (const auto& c : cases)
        EXPECT_EQ(border_hit(window, CPoint(c.x, c.y), 4, 12), c.part) << c.x << "," << c.y;
}

TEST(CaptionLayout, keeps_the_mouse_at_its_share_of_the_caption) {
    const CRect torn = torn_off(CRect(100, 100, 300, 500), CSize(100, 150), CPoint(250, 110), 12);
    EXPECT_EQ(torn, CRect(175, 98, 275, 248));
    EXPECT_EQ(torn_off(CRect(100, 0, 100, 9), CSize(50, 50), CPoint(900, 10), 5), CRect(850, 5, 900, 55));
    EXPECT_EQ(torn_off(CRect(100, 0, 200, 9), CSize(50, 50), CPoint(0, 10), 5).left, 0);
}

TEST(CaptionLayout, keeps_a_rectangle_inside) {
    const CRect work(0, 0, 1000, 800);
    EXPECT_EQ(keep_inside(CRect(950, 700, 1150, 900), work), CRect(800, 600, 1000, 800));
    EXPECT_EQ(keep_inside(CRect(-50, -60, 50, 40), work), CRect(0, 0, 100, 100));
    EXPECT_EQ(keep_inside(CRect(10, 10, 50, 40), work), CRect(10, 10, 50, 40));
    EXPECT_EQ(keep_inside(CRect(100, 100, 3000, 2000), work).TopLeft(), CPoint(0, 0));
}

}  // namespace
