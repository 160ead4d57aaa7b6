#include <ktui/docking/quarter_turn.h>

#include <gtest/gtest.h>

using Pixels = std::vector<std::uint32_t>;

TEST(QuarterTurn, WhatReadsToTheRightReadsUpward) {
    // 1 2 3        3 6
    // 4 5 6  gives 2 5
    //              1 4
    EXPECT_EQ(TurnedToReadUpward(Pixels{1, 2, 3, 4, 5, 6}, 3, 2), (Pixels{3, 6, 2, 5, 1, 4}));
}

TEST(QuarterTurn, FourTurnsGiveThePictureBack) {
    const Pixels picture = {1, 2, 3, 4, 5, 6, 7, 8};
    Pixels turned = picture;
    int width = 4, height = 2;
    for (int turn = 0; turn < 4; ++turn, std::swap(width, height))
        turned = TurnedToReadUpward(turned, width, height);
    EXPECT_EQ(turned, picture);
}

TEST(QuarterTurn, AnEmptyPictureStaysEmpty) { EXPECT_TRUE(TurnedToReadUpward({}, 0, 5).empty()); }
