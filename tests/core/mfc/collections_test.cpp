// Arrays, lists and maps.
#include <afxcoll.h>
#include <afxtempl.h>
#include <gtest/gtest.h>

#include <set>

namespace {

CString joined(const CStringList& list) {
    CString all;
    for (POSITION at = list.GetHeadPosition(); at;) all += list.GetNext(at);
    return all;
}

}  // namespace

TEST(Array, GrowsAndKeepsWhatItHolds) {
    CArray<int, int> a;
    EXPECT_EQ(a.GetUpperBound(), -1);
    for (int i = 0; i < 1000; ++i) EXPECT_EQ(a.Add(i), i);
    EXPECT_EQ(a.GetSize(), 1000);
    EXPECT_EQ(a[999], 999);
    a.SetAtGrow(1005, 7);
    EXPECT_EQ(a.GetSize(), 1006);
    EXPECT_EQ(a[1003], 0);
    EXPECT_EQ(a[1005], 7);
}

TEST(Array, AnIndexOutOfRangeThrows) {
    CStringArray a;
    a.Add(L"one");
    EXPECT_THROW(a.GetAt(1), CInvalidArgException*);
    EXPECT_THROW(a[-1], CInvalidArgException*);
    EXPECT_THROW(a.SetAt(1, L"x"), CInvalidArgException*);
    EXPECT_THROW(a.RemoveAt(0, 2), CInvalidArgException*);
    EXPECT_THROW(a.RemoveAt(5, 0), CInvalidArgException*);
    EXPECT_THROW(a.InsertAt(-1, L"x"), CInvalidArgException*);
    EXPECT_THROW(a.SetSize(-1), CInvalidArgException*);
}

TEST(Array, InsertsAndRemovesInTheMiddle) {
    CStringArray a;
    for (LPCWSTR text : {L"a", L"b", L"c"}) a.Add(text);
    a.InsertAt(1, L"x", 2);
    EXPECT_EQ(a[0] + a[1] + a[2] + a[3] + a[4], L"axxbc");
    a.RemoveAt(1, 2);
    EXPECT_EQ(a[0] + a[1] + a[2], L"abc");
    a.InsertAt(5, L"z");
    EXPECT_EQ(a.GetSize(), 6);
    EXPECT_EQ(a[4], L"");
    CStringArray more;
    more.Copy(a);
    a.InsertAt(0, &more);
    EXPECT_EQ(a.GetSize(), 12);
    EXPECT_EQ(a.Append(more), 12);
    EXPECT_EQ(a[17], L"z");
}

TEST(Array, MayBeGivenItsOwnElement) {
    CArray<CString, const CString&> a;
    a.Add(L"self");
    for (int i = 0; i < 100; ++i) a.Add(a[0]);
    a.InsertAt(0, a[50]);
    EXPECT_EQ(a[101], L"self");
    EXPECT_EQ(a[0], L"self");
}

TEST(Array, TypedPointerArraysKeepTheType) {
    int one = 1, two = 2;
    CTypedPtrArray<CPtrArray, int*> a;
    a.Add(&one);
    a.SetAtGrow(1, &two);
    EXPECT_EQ(*a[0] + *a[1], 3);
    a[0] = &two;
    EXPECT_EQ(a.GetAt(0), &two);
}

TEST(List, AddsWalksAndRemoves) {
    CStringList list;
    list.AddTail(L"b");
    list.AddHead(L"a");
    POSITION c = list.AddTail(L"c");
    list.InsertBefore(c, L"<");
    list.InsertAfter(c, L">");
    EXPECT_EQ(joined(list), L"ab<c>");
    list.RemoveAt(c);
    EXPECT_EQ(joined(list), L"ab<>");
    EXPECT_EQ(list.RemoveHead(), L"a");
    EXPECT_EQ(list.RemoveTail(), L">");
    EXPECT_EQ(list.GetCount(), 2);
    EXPECT_EQ(list.GetAt(list.Find(L"<")), L"<");
    EXPECT_EQ(list.Find(L"nothing"), nullptr);
    EXPECT_EQ(list.GetAt(list.FindIndex(1)), L"<");
    EXPECT_EQ(list.FindIndex(2), nullptr);
    CStringList other;
    other.AddHead(&list);
    other.AddTail(&list);
    EXPECT_EQ(joined(other), L"b<b<");
}

TEST(List, EndsOfAnEmptyListThrow) {
    CPtrList list;
    EXPECT_THROW(list.GetHead(), CInvalidArgException*);
    EXPECT_THROW(list.RemoveTail(), CInvalidArgException*);
    POSITION none = nullptr;
    EXPECT_THROW(list.GetNext(none), CInvalidArgException*);
    EXPECT_TRUE(list.IsEmpty());
}

TEST(List, AnElementMayBeRemovedWhileWalking) {
    CList<int, int> list(3);
    for (int i = 0; i < 50; ++i) list.AddTail(i);
    for (POSITION at = list.GetHeadPosition(); at;) {
        POSITION here = at;
        if (list.GetNext(at) % 2) list.RemoveAt(here);
    }
    EXPECT_EQ(list.GetCount(), 25);
    EXPECT_EQ(list.GetTail(), 48);
}

TEST(Map, LooksUpSetsAndRemoves) {
    CMap<int, int, CString, LPCTSTR> map;
    map.SetAt(5, L"five");
    map[6] = L"six";
    CString value(L"kept");
    EXPECT_TRUE(map.Lookup(5, value));
    EXPECT_EQ(value, L"five");
    EXPECT_FALSE(map.Lookup(7, value));
    EXPECT_EQ(value, L"five");
    EXPECT_EQ(map.PLookup(6)->value, L"six");
    EXPECT_EQ(map[8], L"");
    EXPECT_EQ(map.GetCount(), 3);
    EXPECT_TRUE(map.RemoveKey(8));
    EXPECT_FALSE(map.RemoveKey(8));
    map.SetAt(5, L"new");
    EXPECT_EQ(map[5], L"new");
    EXPECT_EQ(map.GetCount(), 2);
}

TEST(Map, WalksEveryEntryOnce) {
    CMap<int, int, int, int> map;
    map.InitHashTable(7);
    EXPECT_EQ(map.GetHashTableSize(), 7u);
    for (int i = 0; i < 100; ++i) map[i] = i * i;
    std::set<int> keys;
    for (POSITION at = map.GetStartPosition(); at;) {
        int key = 0, value = 0;
        map.GetNextAssoc(at, key, value);
        EXPECT_EQ(value, key * key);
        keys.insert(key);
    }
    EXPECT_EQ(keys.size(), 100u);
    int walked = 0;
    for (auto* pair = map.PGetFirstAssoc(); pair; pair = map.PGetNextAssoc(pair)) ++walked;
    EXPECT_EQ(walked, 100);
    EXPECT_THROW(map.InitHashTable(5), CInvalidArgException*);
    map.RemoveAll();
    EXPECT_EQ(map.GetStartPosition(), nullptr);
}

TEST(Map, StringKeysGoByTheirCharacters) {
    CMapStringToString map;
    map[L"layer"] = L"0";
    const CString key = CString(L"lay") + L"er";
    CString value;
    EXPECT_TRUE(map.Lookup(key, value));
    LPCTSTR own = nullptr;
    EXPECT_TRUE(map.LookupKey(L"layer", own));
    EXPECT_STREQ(own, L"layer");
    CMap<CString, LPCTSTR, int, int> numbers;
    numbers[L"a"] = 1;
    EXPECT_EQ(numbers[CString(L"a")], 1);
    EXPECT_EQ(HashKey<LPCWSTR>(L"abc"), HashKey<const CString&>(CString(L"abc")));
    EXPECT_EQ(HashKey<LPCSTR>("abc"), HashKey<const CStringA&>(CStringA("abc")));
}

TEST(Map, TypedPointerMapsKeepTheirTypes) {
    int value = 9;
    CTypedPtrMap<CMapStringToPtr, CString, int*> map;
    map.SetAt(L"nine", &value);
    int* found = nullptr;
    EXPECT_TRUE(map.Lookup(L"nine", found));
    EXPECT_EQ(*found, 9);
    POSITION at = map.GetStartPosition();
    CString key;
    map.GetNextAssoc(at, key, found);
    EXPECT_EQ(key, L"nine");
    EXPECT_EQ(at, nullptr);
}
