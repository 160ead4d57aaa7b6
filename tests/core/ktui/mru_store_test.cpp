#include <ktui/pickers/mru_store.h>

#include <gtest/gtest.h>

namespace {

MruStore FilledStore(int entries) {
    MruStore store;
    for (int i = 0; i < entries; ++i) {
        CString text;
        text.Format(L"entry %d", i);
        store.add(text, 100 + i);
    }
    return store;
}

}  // namespace

TEST(MruStore, StartsWithSlotsMarkedAsNeverUsed) {
    const MruStore store;
    EXPECT_EQ(store.count(), 0);
    for (int slot = 0; slot < MruStore::kCapacity; ++slot) EXPECT_EQ(store.cargo(slot), -101);
    EXPECT_FALSE(store.contains(-101)) << "an unused slot is no entry";
}

TEST(MruStore, SeventhEntryEvictsTheOldest) {
    const MruStore store = FilledStore(7);
    EXPECT_EQ(store.count(), 6);
    EXPECT_FALSE(store.contains(100));
    EXPECT_EQ(store.cargo(0), 101);
    EXPECT_STREQ(store.text(0).GetString(), L"entry 1");
    EXPECT_EQ(store.cargo(5), 106);
    EXPECT_STREQ(store.text(5).GetString(), L"entry 6");
}

TEST(MruStore, RemovalKeepsTheOrderAndFreesTheLastSlot) {
    MruStore store = FilledStore(4);
    store.remove(101);
    EXPECT_EQ(store.count(), 3);
    EXPECT_EQ(store.cargo(0), 100);
    EXPECT_EQ(store.cargo(1), 102);
    EXPECT_EQ(store.cargo(2), 103);
    EXPECT_STREQ(store.text(1).GetString(), L"entry 2");
    EXPECT_EQ(store.cargo(3), -1) << "a freed slot differs from one that was never used";
    EXPECT_TRUE(store.text(3).IsEmpty());
    EXPECT_EQ(store.cargo(4), -101);
}

TEST(MruStore, RemovalOfAnUnknownCargoChangesNothing) {
    MruStore store = FilledStore(2);
    store.remove(999);
    EXPECT_EQ(store.count(), 2);
    MruStore empty;
    empty.remove(-101);
    EXPECT_EQ(empty.count(), 0);
    EXPECT_EQ(empty.cargo(0), -101);
}

TEST(MruStore, UnusedCargoSkipsThoseInTheStore) {
    MruStore store;
    EXPECT_EQ(store.unusedCargo(5), 5);
    store.add(L"six", 6);
    store.add(L"five", 5);
    EXPECT_EQ(store.unusedCargo(5), 7);
    EXPECT_EQ(store.unusedCargo(4), 4);
    EXPECT_EQ(store.unusedCargo(6), 7);
}

TEST(MruStore, OtherItemsAreToldByTheirCargo) {
    EXPECT_TRUE(IsOtherCargo(-102));
    EXPECT_TRUE(IsOtherCargo(-103));
    EXPECT_FALSE(IsOtherCargo(-101));
    EXPECT_FALSE(IsOtherCargo(-104));
    EXPECT_FALSE(IsOtherCargo(-1));
}
