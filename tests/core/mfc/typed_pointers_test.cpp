// Collections of pointers that keep the pointers' type, and what the plain ones answer beside.
#include <afxcoll.h>
#include <afxtempl.h>
#include <gtest/gtest.h>

namespace {

using IntArray = CTypedPtrArray<CPtrArray, int*>;
using IntList = CTypedPtrList<CPtrList, int*>;
int numbers[] = {0, 1, 2, 3, 4, 5};

}  // namespace

TEST(TypedPointers, AnArrayAnswersEachPlace) {
    IntArray a;
    EXPECT_EQ(a.Add(&numbers[1]), 0);
    EXPECT_EQ(a.Add(&numbers[2]), 1);
    EXPECT_EQ(a.Add(&numbers[3]), 2);
    const IntArray& same = a;
    EXPECT_EQ(same.GetAt(1), &numbers[2]);
    EXPECT_EQ(same[2], &numbers[3]);
    EXPECT_EQ(a.ElementAt(1), &numbers[2]);
    a.ElementAt(1) = &numbers[4];
    EXPECT_EQ(same[1], &numbers[4]);
    a.SetAt(2, &numbers[5]);
    EXPECT_EQ(same[2], &numbers[5]);
    a.SetAtGrow(4, &numbers[1]);
    EXPECT_EQ(same.GetSize(), 5);
    EXPECT_EQ(same[3], nullptr);
    EXPECT_EQ(same[4], &numbers[1]);
    a.InsertAt(1, &numbers[2], 2);
    EXPECT_EQ(same[1], &numbers[2]);
    EXPECT_EQ(same[2], &numbers[2]);
    EXPECT_EQ(same[3], &numbers[4]);
    a.InsertAt(1, &numbers[3]);
    EXPECT_EQ(same.GetSize(), 8) << "one";
    IntArray copy;
    copy.Copy(a);
    EXPECT_EQ(copy.GetSize(), 8);
    EXPECT_EQ(copy.Append(a), 8);
    EXPECT_EQ(copy[9], &numbers[3]);
    copy.InsertAt(1, &a);
    EXPECT_EQ(copy.GetSize(), 24);
    EXPECT_EQ(copy[2], &numbers[3]);
}

TEST(TypedPointers, AListAnswersBothEnds) {
    IntList list;
    list.AddTail(&numbers[2]);
    list.AddHead(&numbers[1]);
    const POSITION last = list.AddTail(&numbers[3]);
    const IntList& same = list;
    EXPECT_EQ(list.GetHead(), &numbers[1]);
    EXPECT_EQ(same.GetHead(), &numbers[1]);
    EXPECT_EQ(list.GetTail(), &numbers[3]);
    EXPECT_EQ(same.GetTail(), &numbers[3]);
    EXPECT_EQ(same.GetAt(last), &numbers[3]);
    list.GetAt(last) = &numbers[4];
    EXPECT_EQ(same.GetTail(), &numbers[4]);
    list.SetAt(last, &numbers[5]);
    EXPECT_EQ(same.GetTail(), &numbers[5]);
    POSITION at = same.GetHeadPosition();
    EXPECT_EQ(same.GetNext(at), &numbers[1]);
    EXPECT_EQ(list.GetNext(at), &numbers[2]);
    EXPECT_EQ(at, last);
    at = same.GetTailPosition();
    EXPECT_EQ(same.GetPrev(at), &numbers[5]);
    EXPECT_EQ(list.GetPrev(at), &numbers[2]);
    EXPECT_EQ(at, same.GetHeadPosition());
    IntList other;
    other.AddTail(&list);
    other.AddHead(&list);
    EXPECT_EQ(other.GetCount(), 6);
    EXPECT_EQ(other.RemoveHead(), &numbers[1]);
    EXPECT_EQ(other.RemoveTail(), &numbers[5]);
    EXPECT_EQ(other.GetSize(), 4);
    EXPECT_FALSE(other.IsEmpty());
    other.RemoveAll();
    EXPECT_TRUE(other.IsEmpty());
    EXPECT_EQ(other.GetHeadPosition(), nullptr);
    EXPECT_EQ(other.GetTailPosition(), nullptr);
}

TEST(TypedPointers, AMapAnswersItsOwnValues) {
    CTypedPtrMap<CMapPtrToPtr, int*, int*> map;
    map.SetAt(&numbers[1], &numbers[2]);
    map[&numbers[3]] = &numbers[4];
    int* found = &numbers[5];
    EXPECT_FALSE(map.Lookup(&numbers[2], found));
    EXPECT_EQ(found, &numbers[5]) << "as it was";
    EXPECT_TRUE(map.Lookup(&numbers[3], found));
    EXPECT_EQ(found, &numbers[4]);
    EXPECT_TRUE(map.RemoveKey(&numbers[3]));
    EXPECT_FALSE(map.RemoveKey(&numbers[3]));
    EXPECT_EQ(map.GetCount(), 1);
    EXPECT_EQ(map.GetSize(), 1);
    EXPECT_FALSE(map.IsEmpty());
}

TEST(TypedPointers, SearchesGoOnBehindAPlace) {
    CPtrList list;
    for (int i : {1, 2, 1, 3, 1}) list.AddTail(&numbers[i]);
    POSITION at = list.Find(&numbers[1]);
    EXPECT_EQ(at, list.GetHeadPosition());
    at = list.Find(&numbers[1], at);
    EXPECT_EQ(at, list.FindIndex(2));
    at = list.Find(&numbers[1], at);
    EXPECT_EQ(at, list.GetTailPosition());
    EXPECT_EQ(list.Find(&numbers[1], at), nullptr);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
    EXPECT_EQ(list.FindIndex(5), nullptr);
    EXPECT_EQ(list.FindIndex(4), list.GetTailPosition());
    list.InsertBefore(nullptr, &numbers[4]);
    EXPECT_EQ(list.GetHead(), &numbers[4]);
    list.InsertAfter(nullptr, &numbers[5]);
    EXPECT_EQ(list.GetTail(), &numbers[5]);
    EXPECT_THROW(list.AddHead(&list), CInvalidArgException*);
    EXPECT_THROW(list.AddTail(static_cast<CPtrList*>(nullptr)), CInvalidArgException*);
}

TEST(ArrayRoom, GrowsByStepsAndGivesBack) {
    CArray<int, int> a;
    a.SetSize(3, 10);
    const int* const first = a.GetData();
    for (int i = 3; i < 10; ++i) a.Add(i);
    EXPECT_EQ(a.GetData(), first) << "there was room for ten from the start";
    a.Add(10);
    EXPECT_EQ(a.GetSize(), 11);
    EXPECT_EQ(a[10], 10);
    EXPECT_EQ(a[9], 9);
    a.FreeExtra();
    EXPECT_EQ(a[10], 10);
    const int* const tight = a.GetData();
    a.FreeExtra();
    EXPECT_EQ(a.GetData(), tight) << "nothing to free";
    a.SetSize(5);
    EXPECT_EQ(a.GetUpperBound(), 4);
    EXPECT_EQ(a.GetCount(), 5);
    EXPECT_FALSE(a.IsEmpty());
    a.RemoveAll();
    EXPECT_TRUE(a.IsEmpty());
    EXPECT_EQ(a.GetData(), nullptr);
}

TEST(ArrayRoom, WrongPlacesThrowAndLeaveTheArrayAlone) {
    CArray<int, int> a, empty;
    a.Add(1);
    EXPECT_THROW(a.SetAtGrow(-1, 5), CInvalidArgException*);
    EXPECT_THROW(a.InsertAt(0, 5, 0), CInvalidArgException*);
    EXPECT_THROW(a.InsertAt(-1, &empty), CInvalidArgException*);
    EXPECT_THROW(a.InsertAt(0, &a), CInvalidArgException*);
    EXPECT_THROW(a.InsertAt(0, nullptr), CInvalidArgException*);
    EXPECT_THROW(a.Append(a), CInvalidArgException*);
    EXPECT_THROW(a.RemoveAt(-1), CInvalidArgException*);
    EXPECT_THROW(a.RemoveAt(0, -1), CInvalidArgException*);
    EXPECT_THROW(a.RemoveAt(1), CInvalidArgException*);
    EXPECT_THROW(a.SetSize(static_cast<INT_PTR>(1) << 62), CMemoryException*);
    a.InsertAt(0, &empty);
    a.Copy(a);
    EXPECT_EQ(a.GetSize(), 1);
    EXPECT_EQ(a[0], 1);
    a.RemoveAt(0);
    EXPECT_TRUE(a.IsEmpty());
}

TEST(MapRoom, EveryEntryStaysReachable) {
    CMap<int, int, int, int> map;
    EXPECT_EQ(map.GetHashTableSize(), 17U);
    EXPECT_EQ(map.PGetFirstAssoc(), nullptr);
    EXPECT_EQ(map.PLookup(1), nullptr);
    map.InitHashTable(3, FALSE);
    for (int i = 0; i < 20; ++i) map.SetAt(i, i + 100);
    for (int i = 0; i < 20; i += 2) EXPECT_TRUE(map.RemoveKey(i));
    EXPECT_EQ(map.GetCount(), 10);
    for (int i = 0; i < 20; ++i) {
        int value = -1;
        EXPECT_EQ(map.Lookup(i, value), i % 2);
        EXPECT_EQ(value, i % 2 ? i + 100 : -1);
    }
    POSITION at = BEFORE_START_POSITION;
    int key = 0, value = 0, walked = 0;
    for (; at; ++walked) map.GetNextAssoc(at, key, value);
    EXPECT_EQ(walked, 10);
    EXPECT_THROW(map.GetNextAssoc(at, key, value), CInvalidArgException*);
    EXPECT_THROW(map.PGetNextAssoc(nullptr), CInvalidArgException*);
    map.RemoveAll();
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_THROW(map.InitHashTable(0), CInvalidArgException*);
}
