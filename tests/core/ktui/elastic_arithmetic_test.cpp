// The arithmetic of resizing by percentages.
#include <gtest/gtest.h>

#include <ktui/dialogs/elastic_arithmetic.h>

namespace {

_SControlTag tag(unsigned kind, int percentX, int percentY) {
    _SControlTag made;
    made.m_id = 1;
    made.m_kind = kind;
    made.m_percentX = percentX;
    made.m_percentY = percentY;
    return made;
}

TEST(ElasticArithmetic, ATagStartsWithNothing) {
    const _SControlTag fresh;
    EXPECT_EQ(fresh.m_id, 0u);
    EXPECT_EQ(fresh.m_kind, 0u);
    EXPECT_EQ(fresh.m_percentX, 0);
    EXPECT_EQ(fresh.m_percentY, 0);
    EXPECT_EQ(fresh.m_remainderX, 0);
    EXPECT_EQ(fresh.m_remainderY, 0);
}

TEST(ElasticArithmetic, ThreePixelsAtAThirdMoveNothingAndOnePixelTheSecondTime) {
    _SControlTag move = tag(kKbUiMoveX, 33, 0);
    EXPECT_EQ(AdvanceElasticTag(move, 3, 0).cx, 0);
    EXPECT_EQ(move.m_remainderX, 99);
    EXPECT_EQ(AdvanceElasticTag(move, 3, 0).cx, 1);
    EXPECT_EQ(move.m_remainderX, 98);
}

TEST(ElasticArithmetic, RemaindersKeepTheSignOfTheChange) {
    _SControlTag move = tag(kKbUiMoveX, 50, 0);
    EXPECT_EQ(AdvanceElasticTag(move, 1, 0).cx, 0);
    EXPECT_EQ(move.m_remainderX, 50);
    EXPECT_EQ(AdvanceElasticTag(move, 1, 0).cx, 1);
    EXPECT_EQ(move.m_remainderX, 0);
    EXPECT_EQ(AdvanceElasticTag(move, -1, 0).cx, 0);
    EXPECT_EQ(move.m_remainderX, -50);
}

TEST(ElasticArithmetic, ASlowDragLandsAtExactlyTheShareOfTheWholeChange) {
    _SControlTag move = tag(kKbUiMoveXY, 37, 81);
    int x = 0, y = 0;
    for (int i = 0; i < 1000; ++i) {
        const CSize step = AdvanceElasticTag(move, 1, 1);
        x += step.cx;
        y += step.cy;
    }
    EXPECT_EQ(x, 370);
    EXPECT_EQ(y, 810);
}

TEST(ElasticArithmetic, PercentagesMayBeNegativeOrAboveAHundred) {
    _SControlTag odd = tag(kKbUiMoveXY, -50, 250);
    const CSize step = AdvanceElasticTag(odd, 10, 10);
    EXPECT_EQ(step.cx, -5);
    EXPECT_EQ(step.cy, 25);
}

TEST(ElasticArithmetic, EachKindChangesItsOwnSides) {
    const CRect start(10, 20, 30, 40);
    const CSize step(3, 5);
    const struct {
        unsigned kind;
        CRect expected;
    } cases[] = {{kKbUiMoveX, CRect(13, 20, 33, 40)},    {kKbUiMoveY, CRect(10, 25, 30, 45)},
                 {kKbUiMoveXY, CRect(13, 25, 33, 45)},   {kKbUiStretchX, CRect(10, 20, 33, 40)},
                 {kKbUiStretchY, CRect(10, 20, 30, 45)}, {kKbUiStretchXY, CRect(10, 20, 33, 45)}};
    for (const auto& each : cases) {
        CRect rect = start;
        EXPECT_TRUE(ApplyElasticStep(each.kind, step, rect)) << each.kind;
        EXPECT_EQ(rect, each.expected) << each.kind;
    }
}

TEST(ElasticArithmetic, AStepWithoutAPartForTheKindLeavesTheControl) {
    CRect rect(10, 20, 30, 40);
    EXPECT_FALSE(ApplyElasticStep(kKbUiMoveX, CSize(0, 5), rect));
    EXPECT_FALSE(ApplyElasticStep(kKbUiStretchY, CSize(5, 0), rect));
    EXPECT_FALSE(ApplyElasticStep(kKbUiMoveXY, CSize(0, 0), rect));
    EXPECT_EQ(rect, CRect(10, 20, 30, 40));
}

TEST(ElasticArithmetic, AnUnknownKindLeavesTheControl) {
    CRect rect(10, 20, 30, 40);
    EXPECT_FALSE(ApplyElasticStep(5, CSize(3, 5), rect));
    EXPECT_EQ(rect, CRect(10, 20, 30, 40));
}

TEST(ElasticArithmetic, NothingKeepsAControlFromANegativeWidth) {
    CRect rect(10, 20, 30, 40);
    EXPECT_TRUE(ApplyElasticStep(kKbUiStretchX, CSize(-50, 0), rect));
    EXPECT_EQ(rect.Width(), -30);
}

}  // namespace
