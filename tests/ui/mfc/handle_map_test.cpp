// The map between handles and objects: permanent, temporary, reused.
#include <afxcmn.h>
#include <kmfc/handle_map.h>

#include <cstdlib>
#include <new>

#include <gtest/gtest.h>

namespace {

/// An object of a made-up handle that counts itself.
struct Item {
    Item() { ++live; }
    ~Item() { --live; }
    int note = 0;
    HMENU m_hMenu = nullptr;
    static inline int live = 0;
};

HMENU handle(UINT_PTR number) { return reinterpret_cast<HMENU>(number); }

thread_local int allocations = -1;  // counted while not negative

}  // namespace

// Kept out of line: inlined, the compiler takes malloc and free for a mismatched pair.
[[gnu::noinline]] void* operator new(std::size_t size) {
    if (allocations >= 0) ++allocations;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

TEST(HandleMap, AHandleKeepsItsTemporaryObjectUntilIdle) {
    CHandleMap<Item> map;
    Item* first = map.FromHandle(handle(1));
    EXPECT_EQ(first->m_hMenu, handle(1));
    EXPECT_EQ(map.FromHandle(handle(1)), first);
    EXPECT_NE(map.FromHandle(handle(2)), first);
    EXPECT_EQ(map.FromHandle(nullptr), nullptr);
    EXPECT_EQ(map.TemporaryCount(), 2u);
    map.DeleteTemp();
    EXPECT_EQ(map.TemporaryCount(), 0u);
    EXPECT_EQ(map.LookupTemporary(handle(1)), nullptr);
}

TEST(HandleMap, ThePermanentObjectComesFirst) {
    CHandleMap<Item> map;
    Item mine;
    map.SetPermanent(handle(5), &mine);
    EXPECT_EQ(map.FromHandle(handle(5)), &mine);
    map.DeleteTemp();
    EXPECT_EQ(map.LookupPermanent(handle(5)), &mine);
    Item other;
    map.RemoveHandle(handle(5), &other);
    EXPECT_EQ(map.LookupPermanent(handle(5)), &mine) << "whoever is not the object can't remove it";
    map.RemoveHandle(handle(5), &mine);
    EXPECT_EQ(map.LookupPermanent(handle(5)), nullptr);
    EXPECT_NE(map.FromHandle(handle(5)), &mine);
}

TEST(HandleMap, OnlyTheLowerHalfOfAHandleCounts) {
    // Two spellings of one handle, as functions of a system of 64 bits give them.
    const HMENU filled = handle(0xFFFFFFFF80100056), bare = handle(0x80100056);
    CHandleMap<Item> map;
    Item mine;
    map.SetPermanent(filled, &mine);
    EXPECT_EQ(map.LookupPermanent(bare), &mine);
    EXPECT_EQ(map.FromHandle(bare), &mine);
    map.RemoveHandle(bare, &mine);
    EXPECT_EQ(map.LookupPermanent(filled), nullptr);
    Item* temporary = map.FromHandle(bare);
    EXPECT_EQ(map.FromHandle(filled), temporary);
    EXPECT_EQ(map.LookupTemporary(filled), temporary);
    EXPECT_EQ(map.TemporaryCount(), 1u);
    map.DeleteTemp();
    EXPECT_EQ(map.FromHandle(filled), map.FromHandle(bare)) << "a reused one too";
}

TEST(HandleMap, AScopeEndsItsOwnTemporaryObjectsOnly) {
    CHandleMap<Item> map;
    Item* outer = map.FromHandle(handle(1));
    map.BeginScope();
    EXPECT_EQ(map.FromHandle(handle(1)), outer);
    map.FromHandle(handle(2));
    map.BeginScope();
    map.FromHandle(handle(3));
    map.DeleteTemp();
    EXPECT_EQ(map.LookupTemporary(handle(3)), nullptr);
    EXPECT_NE(map.LookupTemporary(handle(2)), nullptr);
    map.FromHandle(handle(4));
    map.EndScope();
    map.DeleteTemp();
    EXPECT_EQ(map.TemporaryCount(), 1u) << "what an inner scope left is the outer one's";
    EXPECT_EQ(map.LookupTemporary(handle(1)), outer);
    map.EndScope();
    map.DeleteTemp();
    EXPECT_EQ(map.TemporaryCount(), 0u);
}

TEST(HandleMap, AReusedObjectRemembersNothing) {
    CHandleMap<Item> map;
    map.FromHandle(handle(1))->note = 7;
    map.DeleteTemp();
    EXPECT_EQ(map.FromHandle(handle(9))->note, 0);
}

TEST(HandleMap, FreesItsObjects) {
    {
        CHandleMap<Item> map;
        for (UINT_PTR i = 1; i <= 10; ++i) map.FromHandle(handle(i));
        map.DeleteTemp();
        map.FromHandle(handle(3));
        EXPECT_EQ(Item::live, 10);
    }
    EXPECT_EQ(Item::live, 0);
}

TEST(HandleMap, ATemporaryObjectPerMessageCostsNoAllocationOnceWarm) {
    CHandleMap<Item> map;
    for (UINT_PTR i = 1; i <= 8; ++i) map.FromHandle(handle(i));
    map.DeleteTemp();
    allocations = 0;
    for (UINT_PTR round = 0; round < 100; ++round) {
        for (UINT_PTR i = 1; i <= 8; ++i) map.FromHandle(handle(round * 8 + i));
        map.DeleteTemp();
    }
    const int counted = allocations;
    allocations = -1;
    EXPECT_EQ(counted, 0);
}
