#include <ktui/input/combo_face.h>

#include <gtest/gtest.h>

namespace {

struct FaceCase {
    ComboCondition condition;
    int partState;
    unsigned itemState;
};

}  // namespace

TEST(ComboFace, StatesInTheOrderInWhichTheyDecide) {
    const FaceCase cases[] = {
        {{true, true, true, true}, 4, 4100},    {{true, false, false, false}, 4, 4100},
        {{false, true, false, true}, 3, 4097},  {{false, false, true, true}, 3, 4097},
        {{false, false, false, true}, 2, 4160}, {{false, false, false, false}, 1, 4096},
    };
    for (const FaceCase& one : cases) {
        const ComboFace face = ChooseComboFace(one.condition);
        EXPECT_EQ(face.partState, one.partState);
        EXPECT_EQ(face.itemState, one.itemState);
    }
}

TEST(ComboFace, OnlyPlainFaceStatesCountAsInTheEdit) {
    EXPECT_TRUE(IsFaceItemState(0));
    EXPECT_TRUE(IsFaceItemState(0x1000));
    EXPECT_FALSE(IsFaceItemState(0x1001));
    EXPECT_FALSE(IsFaceItemState(1));
}
