// Whatever is docked, hidden, taken out, dragged and resized: panes never overlap, never leave the frame,
// keep their least size while there is room, and with dividers and the middle fill it.
#include <gtest/gtest.h>

#include <random>

#include <docking/core/frame_layout.h>
#include <docking/core/layout_record.h>

namespace {

using namespace kmfc::docking;

constexpr int kPanes = 12;

CSize least_of(PaneKey pane) {
    return CSize(10 + static_cast<int>(pane) * 3, 40 - static_cast<int>(pane) * 2);
}

struct Walk {
    std::mt19937 random;
    FrameLayout layout;
    CRect frame{0, 0, 900, 700};
    Rules rules;

    explicit Walk(unsigned seed) : random(seed) {
        rules.center = CSize(30, 30);
        rules.least = least_of;
    }

    int any(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }
    PaneKey pane() { return static_cast<PaneKey>(any(1, kPanes)); }
    Side side() { return static_cast<Side>(any(0, 3)); }

    SplitTree group() {
        SplitTree tree(pane());
        if (any(0, 3) == 0) tree.insert(pane(), 0, side(), any(1, 200), any(1, 400));
        return tree;
    }

    void step() {
        switch (any(0, 7)) {
            case 0: layout.dock(group(), side(), any(1, 400), any(0, 1) != 0); break;
            case 1:
            case 2: layout.dock_beside(group(), pane(), side(), any(0, 300), any(0, 300)); break;
            case 3: layout.remove(pane()); break;
            case 4: layout.set_shown(pane(), any(0, 1) != 0); break;
            case 5:
                frame = CRect(CPoint(any(-50, 50), any(-50, 50)), CSize(any(0, 1600), any(0, 1200)));
                break;
            case 6: layout.replace(pane(), pane()); break;
            default: drag(); break;
        }
    }

    void drag() {
        const Arrangement now = layout.arrange(frame, rules);
        if (now.dividers.empty()) return;
        const PlacedDivider divider =
            now.dividers[static_cast<std::size_t>(any(0, static_cast<int>(now.dividers.size()) - 1))];
        const int delta = any(-300, 300);
        const int moved = layout.move_divider(divider.id, delta, now, rules);
        EXPECT_LE(std::abs(moved), std::abs(delta));
        EXPECT_GE(std::int64_t{moved} * delta, 0);
    }

    void check() const {
        const Arrangement now = layout.arrange(frame, rules);
        std::vector<CRect> all;
        for (const PlacedPane& pane : now.panes) all.push_back(pane.rect);
        for (const PlacedDivider& divider : now.dividers) all.push_back(divider.rect);
        all.push_back(now.center);
        std::int64_t area = 0;
        for (std::size_t i = 0; i < all.size(); ++i) {
            ASSERT_GE(all[i].Width(), 0);
            ASSERT_GE(all[i].Height(), 0);
            ASSERT_TRUE(all[i].left >= frame.left && all[i].top >= frame.top && all[i].right <= frame.right &&
                        all[i].bottom <= frame.bottom);
            area += std::int64_t{all[i].Width()} * all[i].Height();
            for (std::size_t k = 0; k < i; ++k) {
                CRect both;
                ASSERT_FALSE(both.IntersectRect(&all[i], &all[k])) << i << " over " << k;
            }
        }
        ASSERT_EQ(area, std::int64_t{frame.Width()} * frame.Height());
        check_least(now);
    }

    /// Room enough for all least sizes, whatever stands beside what.
    void check_least(const Arrangement& now) const {
        CSize needed = rules.center;
        for (const PlacedPane& pane : now.panes)
            needed += least_of(pane.pane) + CSize(rules.divider, rules.divider);
        if (frame.Width() < needed.cx || frame.Height() < needed.cy) return;
        for (const PlacedPane& pane : now.panes) {
            ASSERT_GE(pane.rect.Width(), least_of(pane.pane).cx) << pane.pane;
            ASSERT_GE(pane.rect.Height(), least_of(pane.pane).cy) << pane.pane;
        }
        ASSERT_GE(now.center.Width(), rules.center.cx);
        ASSERT_GE(now.center.Height(), rules.center.cy);
    }

    void check_stored() const {
        LayoutRecord record, read;
        record.docked = layout;
        ASSERT_TRUE(decode(encode(record), read));
        const Arrangement one = layout.arrange(frame, rules), two = read.docked.arrange(frame, rules);
        ASSERT_EQ(one.panes.size(), two.panes.size());
        for (const PlacedPane& pane : one.panes) {
            ASSERT_NE(two.find(pane.pane), nullptr);
            ASSERT_EQ(*two.find(pane.pane), pane.rect);
        }
    }
};

class RandomWalk : public testing::TestWithParam<unsigned> {};

TEST_P(RandomWalk, keeps_to_the_rules_of_a_layout) {
    Walk walk(GetParam());
    for (int i = 0; i < 400 && !HasFatalFailure(); ++i) {
        walk.step();
        walk.check();
    }
    walk.check_stored();
}

TEST_P(RandomWalk, comes_back_after_hiding_and_resizing) {
    Walk walk(GetParam() + 1000);
    for (int i = 0; i < 60; ++i) walk.step();
    const Arrangement before = walk.layout.arrange(walk.frame, walk.rules);
    std::vector<PaneKey> hidden;
    for (const PlacedPane& pane : before.panes)
        if (walk.any(0, 1) != 0) hidden.push_back(pane.pane);
    for (const PaneKey pane : hidden) walk.layout.set_shown(pane, false);
    walk.layout.arrange(CRect(0, 0, 77, 55), walk.rules);
    for (const PaneKey pane : hidden) walk.layout.set_shown(pane, true);
    const Arrangement after = walk.layout.arrange(walk.frame, walk.rules);
    ASSERT_EQ(after.panes.size(), before.panes.size());
    for (const PlacedPane& pane : before.panes) EXPECT_EQ(*after.find(pane.pane), pane.rect);
    EXPECT_EQ(after.center, before.center);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWalk, testing::Range(1u, 41u));

}  // namespace
