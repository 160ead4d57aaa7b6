// What a navigation dialog gives back: chosen items, and the array that owns them.
#include <ktui/nav/nav_data.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#ifdef _WIN32
#include <objbase.h>
#endif

namespace {

/// Memory as the shell hands out identifier lists.
ITEMIDLIST* newIdList() {
#ifdef _WIN32
    return static_cast<ITEMIDLIST*>(::CoTaskMemAlloc(2));
#else
    return static_cast<ITEMIDLIST*>(std::malloc(2));
#endif
}

NAV_DATA_TYPE typeOf(int number) { return static_cast<NAV_DATA_TYPE>(number); }

/// Counts the items that live.
class CountedData : public CNavData {
public:
    static inline int alive = 0;
    CountedData() { ++alive; }
    ~CountedData() override { --alive; }
};

class CountedArray : public CNavArray<CNavData> {
public:
    bool makesNone = false;

protected:
    CNavData* NewData() override { return makesNone ? nullptr : new CountedData; }
};

}  // namespace

TEST(NavData, StartsEmpty) {
    const CNavData data;
    EXPECT_EQ(data.GetDataType(), 0);
    EXPECT_EQ(data.GetID(), nullptr);
    EXPECT_STREQ(data.GetText(), L"");
    EXPECT_STREQ(data.GetTextInFolder(), L"");
    EXPECT_EQ(data.GetPathname(), nullptr);
    EXPECT_STREQ(data.GetUserNameW(), L"");
    EXPECT_STREQ(data.GetPassword(), L"");
    EXPECT_STREQ(data.GetExtensionName(), L"");
    EXPECT_EQ(data.GetUserData(), nullptr);
}

TEST(NavData, GivesBackWhatWasSet) {
    CNavData data;
    int anything = 0;
    auto* const pathname = reinterpret_cast<GNavPathname*>(&anything);
    data.SetText(L"C:\\a\\b.dwg");
    data.SetTextInFolder(L"b.dwg");
    data.SetPathname(pathname);
    data.SetUserName(L"user");
    data.SetPassword(L"secret");
    data.SetExtensionName(L"extension");
    EXPECT_STREQ(data.GetText(), L"C:\\a\\b.dwg");
    EXPECT_STREQ(data.GetTextInFolder(), L"b.dwg");
    EXPECT_EQ(data.GetPathname(), pathname);
    EXPECT_STREQ(data.GetUserNameW(), L"user");
    EXPECT_STREQ(data.GetPassword(), L"secret");
    EXPECT_STREQ(data.GetExtensionName(), L"extension");
    EXPECT_EQ(data.SetUserData(&anything), &anything);
    EXPECT_EQ(data.GetUserData(), &anything);
    data.SetText(nullptr);
    EXPECT_STREQ(data.GetText(), L"");
}

TEST(NavData, KeepsEveryNumberOfAType) {
    CNavData data;
    for (const int number : {0, 1, 2, 3, 4, 5, 6, -1, 0x7FFFFFFF}) {
        data.SetDataType(typeOf(number));
        EXPECT_EQ(static_cast<int>(data.GetDataType()), number);
    }
}

TEST(NavData, IsRemoteByThreeTypesAndAnExtensionByOne) {
    const std::vector<int> remote = {0, 0, 1, 0, 1, 1, 0};
    const std::vector<int> extension = {0, 0, 0, 0, 1, 0, 0};
    CNavData data;
    for (int number = 0; number < 7; ++number) {
        data.SetDataType(typeOf(number));
        EXPECT_EQ(data.IsRemote(), remote[static_cast<std::size_t>(number)]) << number;
        EXPECT_EQ(data.IsExtension(), extension[static_cast<std::size_t>(number)]) << number;
    }
}

TEST(NavData, GivesAnAddressForRemoteItemsOnly) {
    CNavData data;
    data.SetText(L"http://a/b.dwg");
    for (const int number : {2, 4, 5}) {
        CString url = L"before";
        data.SetDataType(typeOf(number));
        EXPECT_EQ(data.GetURL(url), 1) << number;
        EXPECT_EQ(url, L"http://a/b.dwg");
    }
    for (const int number : {0, 1, 3, 6}) {
        CString url = L"before";
        data.SetDataType(typeOf(number));
        EXPECT_EQ(data.GetURL(url), 0) << number;
        EXPECT_EQ(url, L"before");
    }
}

TEST(NavData, TakesAnIdListOverWithoutFreeingTheFormerOne) {
    ITEMIDLIST* const first = newIdList();
    ITEMIDLIST* const second = newIdList();
    CNavData data;
    data.SetID(first);
    EXPECT_EQ(data.GetID(), first);
    data.SetID(second);
    EXPECT_EQ(data.GetID(), second);
    // Were the first list freed already, or the second freed here, this would free it twice.
    data.SetID(first);
    CNavData other;
    other.SetID(second);
}

TEST(NavArray, CountsAndTellsWhichIndicesThereAre) {
    CNavDataArray array;
    EXPECT_EQ(array.GetCount(), 0);
    EXPECT_FALSE(array.IsIndexValid(0));
    CNavData* const first = array.AddData();
    CNavData* const second = array.AddData();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(array.GetCount(), 2);
    EXPECT_FALSE(array.IsIndexValid(-1));
    EXPECT_TRUE(array.IsIndexValid(0));
    EXPECT_TRUE(array.IsIndexValid(1));
    EXPECT_FALSE(array.IsIndexValid(2));
    EXPECT_EQ(array.GetData(0), first);
    EXPECT_EQ(array.GetData(1), second);
    EXPECT_EQ(array.GetData(-1), nullptr);
    EXPECT_EQ(array.GetData(2), nullptr);
}

TEST(NavArray, RemovesAndDestroysOneElement) {
    CountedArray array;
    array.AddData();
    CNavData* const second = array.AddData();
    ASSERT_EQ(CountedData::alive, 2);
    array.RemoveData(2);
    array.RemoveData(-1);
    EXPECT_EQ(array.GetCount(), 2);
    EXPECT_EQ(CountedData::alive, 2);
    array.RemoveData(0);
    EXPECT_EQ(CountedData::alive, 1);
    EXPECT_EQ(array.GetData(0), second);
    array.RemoveData(0);
    EXPECT_EQ(array.GetCount(), 0);
    EXPECT_EQ(CountedData::alive, 0);
}

TEST(NavArray, DestroysAllElementsAndItsMemory) {
    CountedArray array;
    for (int i = 0; i < 20; ++i) array.AddData();
    EXPECT_EQ(CountedData::alive, 20);
    array.RemoveAllData();
    EXPECT_EQ(CountedData::alive, 0);
    EXPECT_EQ(array.GetCount(), 0);
    EXPECT_EQ(static_cast<CObArray&>(array).GetData(), nullptr);
}

TEST(NavArray, DestroysItsElementsWithItself) {
    {
        CountedArray array;
        array.AddData();
        array.AddData();
    }
    EXPECT_EQ(CountedData::alive, 0);
}

TEST(NavArray, AddsNothingWhenNoElementCouldBeMade) {
    CountedArray array;
    array.makesNone = true;
    EXPECT_EQ(array.AddData(), nullptr);
    EXPECT_EQ(array.GetCount(), 0);
}

TEST(NavArray, TakesANullElementOut) {
    CountedArray array;
    array.Add(nullptr);
    array.AddData();
    EXPECT_EQ(array.GetData(0), nullptr);
    array.RemoveData(0);
    EXPECT_EQ(array.GetCount(), 1);
    array.Add(nullptr);
    array.RemoveAllData();
    EXPECT_EQ(CountedData::alive, 0);
}

TEST(NavArray, AddedAndRemovedAgainWithItsIdList) {
    CNavDataArray array;
    array.AddData()->SetID(newIdList());
    array.RemoveData(0);
    EXPECT_EQ(array.GetCount(), 0);
}

TEST(NavArray, TheTypedOperationsThrowOutOfRange) {
    CNavDataArray array;
    array.AddData()->SetText(L"one");
    EXPECT_STREQ(array[0]->GetText(), L"one");
    EXPECT_STREQ(array.ElementAt(0)->GetText(), L"one");
    for (const int index : {-1, 1}) {
        try {
            array.GetAt(index);
            ADD_FAILURE() << index;
        } catch (CInvalidArgException* exception) {
            exception->Delete();
        }
    }
}
