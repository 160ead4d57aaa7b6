// Layouts as they are stored, and what is refused.
#include <gtest/gtest.h>

#include <random>

#include <docking/core/layout_record.h>

namespace {

using namespace kmfc::docking;

LayoutRecord sample() {
    LayoutRecord record;
    SplitTree column(11);
    column.insert(12, 11, Side::bottom, 40, 100);
    column.insert(13, 12, Side::right, 0, 0);
    record.docked.dock(column, Side::left, 180, false);
    record.docked.dock(SplitTree(14), Side::bottom, 90, false);
    record.docked.set_shown(14, false);
    FloatingRecord frame;
    frame.rect = CRect(-20, 30, 280, 230);
    frame.panes = SplitTree(14);
    frame.panes.insert(15, 14, Side::top, 0, 0);
    record.floating.push_back(frame);
    record.docked.dock(SplitTree(kFirstGroup + 3), Side::top, 70, false);
    record.groups.push_back({kFirstGroup + 3, 1, {{21, true}, {22, false}}});
    record.docked.dock(SplitTree(16), Side::right, 60, false);
    for (const PaneKey pane : {PaneKey{16}, kFirstGroup + 3}) record.docked.set_shown(pane, false);
    record.hidden.push_back({kFirstGroup + 3, Side::top, CSize(500, 70)});
    record.hidden.push_back({16, Side::right, CSize(60, 400)});
    return record;
}

/// Numbers with the sum that belongs to them.
std::vector<std::int32_t> summed(std::vector<std::int32_t> body) {
    std::uint32_t sum = 2166136261u;
    for (const std::int32_t number : body) sum = (sum ^ static_cast<std::uint32_t>(number)) * 16777619u;
    body.push_back(static_cast<std::int32_t>(sum));
    return body;
}

bool refused(const std::vector<std::int32_t>& numbers) {
    LayoutRecord record;
    record.docked.dock(SplitTree(99), Side::top, 5, false);
    const bool taken = decode(numbers, record);
    // What is refused changes nothing.
    EXPECT_NE(record.docked.contains(99), taken);
    return !taken;
}

constexpr std::int32_t kVersion = 0x444B0002;

TEST(LayoutRecord, comes_back_as_it_was) {
    const LayoutRecord record = sample();
    LayoutRecord read;
    ASSERT_TRUE(decode(encode(record), read));
    EXPECT_EQ(encode(read), encode(record));
    EXPECT_EQ(read.docked.panes(), (std::vector<PaneKey>{11, 12, 13, 14, kFirstGroup + 3, 16}));
    ASSERT_NE(read.find_group(kFirstGroup + 3), nullptr);
    EXPECT_EQ(read.find_group(kFirstGroup + 3)->active, 1);
    EXPECT_EQ(read.find_group(kFirstGroup + 3)->tabs[1].pane, 22u);
    EXPECT_FALSE(read.find_group(kFirstGroup + 3)->tabs[1].shown);
    EXPECT_EQ(read.find_group(kFirstGroup), nullptr);
    EXPECT_FALSE(read.docked.shows(14));
    EXPECT_EQ(read.docked.side_of(14), Side::bottom);
    EXPECT_EQ(read.docked.rows()[0].extent, 180);
    ASSERT_EQ(read.floating.size(), 1u);
    EXPECT_EQ(read.floating[0].rect, CRect(-20, 30, 280, 230));
    EXPECT_EQ(read.floating[0].panes.panes(), (std::vector<PaneKey>{15, 14}));
    ASSERT_EQ(read.hidden.size(), 2u);
    EXPECT_EQ(read.hidden[0].pane, kFirstGroup + 3) << "in their order";
    EXPECT_EQ(read.hidden[1].pane, 16u);
    EXPECT_EQ(read.hidden[1].side, Side::right);
    EXPECT_EQ(read.hidden[1].size, CSize(60, 400));
    // What was read can be worked with.
    EXPECT_TRUE(read.docked.remove(12));
    EXPECT_TRUE(read.docked.dock_beside(SplitTree(12), 13, Side::left, 0, 0));
}

TEST(LayoutRecord, has_the_form_that_is_written_down_here) {
    LayoutRecord record;
    record.docked.dock(SplitTree(7), Side::right, 120, false);
    EXPECT_EQ(encode(record), summed({kVersion, 1, 2, 120, 1, 7, 1, 0, 0, 0}));
}

TEST(LayoutRecord, names_hidden_panes_last) {
    LayoutRecord record;
    record.docked.dock(SplitTree(7), Side::left, 120, false);
    record.docked.set_shown(7, false);
    record.hidden.push_back({7, Side::bottom, CSize(120, 300)});
    EXPECT_EQ(encode(record), summed({kVersion, 1, 0, 120, 1, 7, 0, 0, 0, 1, 7, 3, 120, 300}));
}

TEST(LayoutRecord, is_refused_with_a_hidden_pane_that_cannot_be) {
    EXPECT_FALSE(refused(summed({kVersion, 1, 0, 120, 1, 7, 0, 0, 0, 1, 7, 3, 0, 100000})));
    EXPECT_TRUE(refused(summed({kVersion, 1, 0, 120, 1, 7, 1, 0, 0, 1, 7, 3, 120, 300}))) << "it is shown";
    EXPECT_TRUE(refused(summed({kVersion, 1, 0, 120, 1, 7, 0, 0, 0, 1, 8, 3, 120, 300}))) << "no place";
    EXPECT_TRUE(refused(summed({kVersion, 1, 0, 120, 1, 7, 0, 0, 0, 1, 7, 4, 120, 300}))) << "no such side";
    EXPECT_TRUE(refused(summed({kVersion, 1, 0, 120, 1, 7, 0, 0, 0, 1, 7, 3, -1, 300}))) << "negative";
    EXPECT_TRUE(refused(summed({kVersion, 1, 0, 120, 1, 7, 0, 0, 0, 1, 7, 3, 120, -1}))) << "negative";
    EXPECT_TRUE(refused(summed({kVersion, 1, 0, 120, 1, 7, 0, 0, 0, 1, 7, 3, 100001, 1}))) << "enormous";
    EXPECT_TRUE(refused(summed({kVersion, 1, 0, 120, 1, 7, 0, 0, 0, 1, 7, 3, 1, 100001}))) << "enormous";
    EXPECT_TRUE(refused(summed({kVersion, 1, 0, 120, 1, 7, 0, 0, 0, 2, 7, 3, 1, 1, 7, 3, 1, 1}))) << "twice";
    EXPECT_TRUE(refused(summed({kVersion, 1, 0, 120, 1, 7, 0, 1, 0, 0, 9, 9, 1, 7, 1, 0, 1, 7, 3, 1, 1})))
        << "hidden and floating";
    EXPECT_TRUE(refused(summed({kVersion, 0, 0, 0, -1}))) << "negative count";
    EXPECT_TRUE(refused(summed({kVersion, 0, 0, 0, 1001}))) << "enormous count";
}

TEST(LayoutRecord, is_refused_when_cut_off_or_longer) {
    const auto numbers = encode(sample());
    for (std::size_t length = 0; length < numbers.size(); ++length) {
        EXPECT_TRUE(refused({numbers.begin(), numbers.begin() + static_cast<std::ptrdiff_t>(length)}))
            << length;
        // Also with a right sum.
        EXPECT_TRUE(length + 1 == numbers.size() ||
                    refused(summed({numbers.begin(), numbers.begin() + static_cast<std::ptrdiff_t>(length)})))
            << length;
    }
    auto longer = numbers;
    longer.pop_back();
    longer.push_back(0);
    EXPECT_TRUE(refused(summed(longer)));
}

TEST(LayoutRecord, is_refused_when_any_number_was_changed) {
    const auto numbers = encode(sample());
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        auto changed = numbers;
        changed[i] ^= 1;
        EXPECT_TRUE(refused(changed)) << i;
    }
}

TEST(LayoutRecord, is_refused_with_what_no_layout_has) {
    EXPECT_FALSE(refused(summed({kVersion, 1, 2, 120, 1, 7, 1, 0, 0, 0})));
    EXPECT_TRUE(refused(summed({kVersion + 1, 1, 2, 120, 1, 7, 1, 0, 0, 0}))) << "another version";
    EXPECT_TRUE(refused(summed({kVersion, 1, 4, 120, 1, 7, 1, 0, 0, 0}))) << "no such side";
    EXPECT_TRUE(refused(summed({kVersion, 1, -1, 120, 1, 7, 1, 0, 0, 0}))) << "no such side";
    EXPECT_TRUE(refused(summed({kVersion, 1, 2, -1, 1, 7, 1, 0, 0, 0}))) << "negative extent";
    EXPECT_TRUE(refused(summed({kVersion, 1, 2, 100001, 1, 7, 1, 0, 0, 0}))) << "enormous extent";
    EXPECT_TRUE(refused(summed({kVersion, 1, 2, 120, 3, 7, 1, 0, 0, 0}))) << "no such node";
    EXPECT_TRUE(refused(summed({kVersion, 1, 2, 120, 0, 0, 0, 0}))) << "a row without panes";
    EXPECT_TRUE(refused(summed({kVersion, 1, 2, 120, 1, 0, 1, 0, 0, 0}))) << "no id";
    EXPECT_TRUE(refused(summed({kVersion, 1, 2, 120, 1, 7, 2, 0, 0, 0}))) << "shown twice";
    EXPECT_TRUE(refused(summed({kVersion, -1, 0, 0, 0}))) << "negative count";
    EXPECT_TRUE(refused(summed({kVersion, 1, 2, 120, 2, 1, 1000001, 1, 7, 1, 1, 8, 1, 0, 0, 0})))
        << "more than all";
    EXPECT_TRUE(refused(summed({kVersion, 1, 2, 120, 2, 1, 500000, 1, 7, 1, 1, 7, 1, 0, 0, 0})))
        << "the same id twice";
    EXPECT_TRUE(refused(summed({kVersion, 0, 1, 10, 10, 9, 20, 1, 7, 1, 0, 0}))) << "a rectangle turned over";
    EXPECT_TRUE(refused(summed({kVersion, 1, 2, 120, 1, 7, 1, 1, 0, 0, 9, 9, 1, 7, 1, 0, 0})))
        << "docked and floating";
    EXPECT_FALSE(refused(summed({kVersion, 1, 2, 120, 1, 7, 0, 1, 0, 0, 9, 9, 1, 7, 1, 0, 0})))
        << "its place is kept";
}

TEST(LayoutRecord, is_refused_with_groups_that_do_not_fit) {
    constexpr std::int32_t g = 0x10000;
    const auto with = [](std::vector<std::int32_t> groups) {
        std::vector<std::int32_t> body{kVersion, 1, 2, 120, 2, 1, 500000, 1, g, 1, 1, 7, 1, 0};
        body.insert(body.end(), groups.begin(), groups.end());
        body.push_back(0);
        return summed(body);
    };
    EXPECT_FALSE(refused(with({1, g, 2, 1, 8, 1, 9, 0})));
    EXPECT_TRUE(refused(with({0}))) << "a place without its group";
    EXPECT_TRUE(refused(with({1, g + 1, 2, 1, 8, 1, 9, 0}))) << "a group without a place";
    EXPECT_TRUE(refused(with({2, g, 1, 0, 8, 1, g + 1, 1, 0, 9, 1})))
        << "a group without a place beside one with";
    EXPECT_TRUE(refused(with({2, g, 1, 0, 8, 1, g, 1, 0, 9, 1}))) << "the same group twice";
    EXPECT_TRUE(refused(with({1, g, 0, 0}))) << "no tabs";
    EXPECT_TRUE(refused(with({1, g, 2, 2, 8, 1, 9, 0}))) << "no such tab active";
    EXPECT_TRUE(refused(with({1, g, 2, 1, 8, 1, 8, 0}))) << "a pane twice";
    EXPECT_TRUE(refused(with({1, g, 2, 1, 8, 1, 7, 0}))) << "a pane that stands elsewhere";
    EXPECT_TRUE(refused(with({1, g, 2, 1, 8, 1, g, 0}))) << "a group in a group";
}

TEST(LayoutRecord, is_refused_when_too_deep) {
    for (const int depth : {60, 70}) {
        std::vector<std::int32_t> body{kVersion, 1, 0, 100};
        for (int i = 0; i < depth; ++i) body.insert(body.end(), {2, 1, 500000, 1, 100 + i, 1});
        body.insert(body.end(), {1, 50, 1, 0, 0, 0});
        EXPECT_EQ(refused(summed(body)), depth == 70) << depth;
    }
}

TEST(LayoutRecord, survives_any_numbers) {
    std::mt19937 random(20261122);
    const auto numbers = encode(sample());
    for (int i = 0; i < 20000; ++i) {
        std::vector<std::int32_t> body(numbers.begin(), numbers.end() - 1);
        for (int k = 0; k < 3; ++k) {
            const auto at = std::uniform_int_distribution<std::size_t>(1, body.size() - 1)(random);
            body[at] = std::uniform_int_distribution<std::int32_t>(-3, 20)(random);
        }
        LayoutRecord read;
        const bool taken = decode(summed(body), read);
        EXPECT_EQ(taken, taken && encode(read) == summed(body));
    }
}

}  // namespace
