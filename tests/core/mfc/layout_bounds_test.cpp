// The least and the greatest of each number in a stored layout of panes, and what is refused beyond.
#include <gtest/gtest.h>

#include <docking/core/layout_record.h>

namespace {

using namespace kmfc::docking;
using Numbers = std::vector<std::int32_t>;

constexpr std::int32_t kVersion = 0x444B0002, kMost = 100000;

bool taken(Numbers body) {
    std::uint32_t sum = 2166136261u;
    for (const std::int32_t number : body) sum = (sum ^ static_cast<std::uint32_t>(number)) * 16777619u;
    body.push_back(static_cast<std::int32_t>(sum));
    LayoutRecord record;
    return decode(body, record);
}

/// A layout with one docked pane at a side.
Numbers docked(std::int32_t side, std::int32_t extent, std::int32_t pane = 7, std::int32_t shown = 1) {
    return {kVersion, 1, side, extent, 1, pane, shown, 0, 0, 0};
}

Numbers floating(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
    return {kVersion, 0, 1, left, top, right, bottom, 1, 7, 1, 0, 0};
}

/// Two docked panes with a divider.
Numbers divided(std::int32_t upright, std::int32_t share) {
    return {kVersion, 1, 0, 100, 2, upright, share, 1, 7, 1, 1, 8, 1, 0, 0, 0};
}

/// A docked group of two tabs.
Numbers group(std::int32_t id, std::int32_t tabs, std::int32_t active, std::int32_t first,
              std::int32_t shown) {
    return {kVersion, 1,     0, 100, 1, static_cast<std::int32_t>(kFirstGroup), 1, 0, 1, id, tabs, active,
            first,    shown, 9, 1,   0};
}

}  // namespace

TEST(LayoutBounds, OfDockedRows) {
    EXPECT_TRUE(taken(docked(0, 0)));
    EXPECT_TRUE(taken(docked(3, kMost)));
    EXPECT_FALSE(taken(docked(-1, 5)));
    EXPECT_FALSE(taken(docked(4, 5)));
    EXPECT_FALSE(taken(docked(0, -1)));
    EXPECT_FALSE(taken(docked(0, kMost + 1)));
    EXPECT_FALSE(taken(docked(0, 5, 0)));
    EXPECT_FALSE(taken(docked(0, 5, -1)));
    EXPECT_FALSE(taken(docked(0, 5, 7, 2)));
    EXPECT_FALSE(taken(docked(0, 5, 7, -1)));
    EXPECT_TRUE(taken({kVersion, 0, 0, 0, 0}));
    EXPECT_FALSE(taken({kVersion, -1, 0, 0, 0}));
    EXPECT_FALSE(taken({kVersion - 1, 0, 0, 0, 0}));
    EXPECT_FALSE(taken({kVersion + 1, 0, 0, 0, 0}));
}

TEST(LayoutBounds, OfDividers) {
    LayoutRecord record;
    SplitTree two(7);
    two.insert(8, 7, Side::right, 0, 0);
    record.docked.dock(two, Side::left, 100, false);
    const Numbers numbers = encode(record);
    const std::int32_t half = numbers[6];
    EXPECT_TRUE(taken(divided(1, half)));
    EXPECT_TRUE(taken(divided(0, 0)));
    EXPECT_FALSE(taken(divided(2, half)));
    EXPECT_FALSE(taken(divided(-1, half)));
    EXPECT_FALSE(taken(divided(1, -1)));
    EXPECT_TRUE(taken(divided(1, 2 * half))) << "all of it";
    EXPECT_FALSE(taken(divided(1, 2 * half + 1)));
}

TEST(LayoutBounds, OfFloatingFrames) {
    EXPECT_TRUE(taken(floating(-kMost, -kMost, -kMost, -kMost)));
    EXPECT_TRUE(taken(floating(kMost, kMost, 2 * kMost, 2 * kMost)));
    EXPECT_FALSE(taken(floating(-kMost - 1, 0, 10, 10)));
    EXPECT_FALSE(taken(floating(0, -kMost - 1, 10, 10)));
    EXPECT_FALSE(taken(floating(kMost + 1, 0, kMost + 2, 10)));
    EXPECT_FALSE(taken(floating(0, kMost + 1, 10, kMost + 2)));
    EXPECT_FALSE(taken(floating(0, 0, 2 * kMost + 1, 10)));
    EXPECT_FALSE(taken(floating(0, 0, 10, 2 * kMost + 1)));
    EXPECT_FALSE(taken(floating(10, 0, 9, 10))) << "the right edge before the left one";
    EXPECT_FALSE(taken(floating(0, 10, 10, 9)));
}

TEST(LayoutBounds, OfGroups) {
    const auto first = static_cast<std::int32_t>(kFirstGroup);
    EXPECT_TRUE(taken(group(first, 2, 1, 8, 1)));
    EXPECT_TRUE(taken(group(first, 2, 0, 8, 0)));
    EXPECT_FALSE(taken(group(first, 2, 2, 8, 1))) << "no such tab is active";
    EXPECT_FALSE(taken(group(first, 2, -1, 8, 1)));
    EXPECT_FALSE(taken(group(first, 0, 0, 8, 1)));
    EXPECT_FALSE(taken(group(first, 2, 0, 9, 1))) << "the same pane twice";
    EXPECT_FALSE(taken(group(first, 2, 0, 0, 1)));
    EXPECT_FALSE(taken(group(first, 2, 0, first, 1))) << "a group in a group";
    EXPECT_TRUE(taken(group(first, 2, 0, first - 1, 1)));
    EXPECT_FALSE(taken(group(first, 2, 0, 8, 2)));
    EXPECT_FALSE(taken(group(first + 1, 2, 0, 8, 1))) << "that stands nowhere";
    EXPECT_FALSE(taken(group(8, 2, 0, 8, 1))) << "no group's number";
}

TEST(LayoutBounds, OfDepth) {
    const auto nested = [](int depth) {
        Numbers numbers = {kVersion, 1, 0, 100};
        for (int i = 0; i < depth; ++i) {
            numbers.insert(numbers.end(), {2, 1, 500});
            numbers.insert(numbers.end(), {1, 100 + i, 1});
        }
        numbers.insert(numbers.end(), {1, 99, 1, 0, 0, 0});
        return numbers;
    };
    EXPECT_TRUE(taken(nested(1)));
    EXPECT_TRUE(taken(nested(64)));
    EXPECT_FALSE(taken(nested(65)));
}
