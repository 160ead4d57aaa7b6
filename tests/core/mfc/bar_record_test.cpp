// Places of toolbars as numbers: what is written comes back, and anything else is refused.
#include <gtest/gtest.h>

#include <docking/core/bar_record.h>
#include <docking/core/stored_numbers.h>

namespace {

using namespace kmfc::docking;

std::vector<BarRecord> two_bars() {
    BarRecord docked{59393, Side::left, {2, false, 140}, true, false, CRect(0, 0, 0, 0)};
    BarRecord floating{701, Side::bottom, {0, true, 0}, false, true, CRect(-20, 30, 180, 90)};
    return {docked, floating};
}

TEST(BarRecord, what_is_written_comes_back) {
    std::vector<BarRecord> read;
    ASSERT_TRUE(decode_bars(encode_bars(two_bars()), read));
    ASSERT_EQ(read.size(), 2u);
    EXPECT_EQ(read[0].id, 59393u);
    EXPECT_EQ(read[0].side, Side::left);
    EXPECT_EQ(read[0].place.row, 2);
    EXPECT_FALSE(read[0].place.isOwnRow);
    EXPECT_EQ(read[0].place.offset, 140);
    EXPECT_TRUE(read[0].shown);
    EXPECT_FALSE(read[0].floats);
    EXPECT_EQ(read[1].side, Side::bottom);
    EXPECT_TRUE(read[1].place.isOwnRow);
    EXPECT_FALSE(read[1].shown);
    EXPECT_TRUE(read[1].floats);
    EXPECT_EQ(read[1].rect, CRect(-20, 30, 180, 90));
    EXPECT_TRUE(decode_bars(encode_bars({}), read));
    EXPECT_TRUE(read.empty());
}

TEST(BarRecord, each_damaged_number_is_refused_and_changes_nothing) {
    const std::vector<std::int32_t> good = encode_bars(two_bars());
    std::vector<BarRecord> kept = two_bars();
    for (size_t i = 0; i < good.size(); ++i) {
        std::vector<std::int32_t> bad(good);
        bad[i] ^= 0x40000000;
        EXPECT_FALSE(decode_bars(bad, kept)) << i;
        EXPECT_FALSE(decode_bars({good.begin(), good.begin() + static_cast<std::ptrdiff_t>(i)}, kept)) << i;
    }
    std::vector<std::int32_t> longer(good);
    longer.push_back(0);
    EXPECT_FALSE(decode_bars(longer, kept));
    EXPECT_FALSE(decode_bars({}, kept));
    EXPECT_EQ(kept.size(), 2u);
    EXPECT_EQ(kept[0].place.offset, 140);
}

TEST(BarRecord, another_version_is_refused_with_a_sum_that_fits) {
    std::vector<std::int32_t> other = encode_bars(two_bars());
    other.pop_back();
    ++other[0];
    other.push_back(sum_of(other));
    std::vector<BarRecord> read;
    EXPECT_FALSE(decode_bars(other, read));
    --other[0];
    other.back() = sum_of({other.begin(), other.end() - 1});
    EXPECT_TRUE(decode_bars(other, read));
}

/// With a sum that fits, so that it is the value itself that is refused.
bool takes(const std::vector<BarRecord>& bars) {
    std::vector<BarRecord> read;
    return decode_bars(encode_bars(bars), read);
}

TEST(BarRecord, values_out_of_range_are_refused_with_a_sum_that_fits) {
    ASSERT_TRUE(takes(two_bars()));
    const auto spoiled = [](auto spoil) {
        std::vector<BarRecord> bars = two_bars();
        spoil(bars[1]);
        return bars;
    };
    EXPECT_FALSE(takes(spoiled([](BarRecord& bar) { bar.id = 0; })));
    EXPECT_FALSE(takes(spoiled([](BarRecord& bar) { bar.id = 0xFFFF; })));
    EXPECT_FALSE(takes(spoiled([](BarRecord& bar) { bar.id = 59393; })));
    EXPECT_FALSE(takes(spoiled([](BarRecord& bar) { bar.side = static_cast<Side>(4); })));
    EXPECT_FALSE(takes(spoiled([](BarRecord& bar) { bar.place.row = -1; })));
    EXPECT_FALSE(takes(spoiled([](BarRecord& bar) { bar.place.row = 1001; })));
    EXPECT_FALSE(takes(spoiled([](BarRecord& bar) { bar.place.offset = -1; })));
    EXPECT_FALSE(takes(spoiled([](BarRecord& bar) { bar.place.offset = 100'001; })));
    EXPECT_FALSE(takes(spoiled([](BarRecord& bar) { bar.rect.right = -21; })));
    EXPECT_FALSE(takes(spoiled([](BarRecord& bar) { bar.rect.bottom = 29; })));
    EXPECT_FALSE(takes(spoiled([](BarRecord& bar) { bar.rect.left = -100'001; })));
    EXPECT_FALSE(takes(spoiled([](BarRecord& bar) { bar.rect.right = 200'001; })));
}

}  // namespace
