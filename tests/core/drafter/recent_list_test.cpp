// The list of recent drawings.
#include <gtest/gtest.h>

#include "recent_list.h"

namespace {

using Files = std::vector<OdString>;

TEST(RecentList, ANewFileComesFirst) {
    EXPECT_EQ(WithRecent({L"C:\\a.dxf"}, L"C:\\b.dxf"), (Files{L"C:\\b.dxf", L"C:\\a.dxf"}));
    EXPECT_EQ(WithRecent({}, L"C:\\a.dxf"), (Files{L"C:\\a.dxf"}));
}

TEST(RecentList, AFileIsThereOnceUnderItsLatestSpelling) {
    EXPECT_EQ(WithRecent({L"C:\\a.dxf", L"C:\\b.dxf"}, L"c:\\B.DXF"), (Files{L"c:\\B.DXF", L"C:\\a.dxf"}));
}

TEST(RecentList, NoMoreThanNineAreKept) {
    Files files;
    for (int i = 0; i < 12; ++i) files = WithRecent(files, (L"C:\\" + std::to_wstring(i) + L".dxf").c_str());
    ASSERT_EQ(files.size(), 9u);
    EXPECT_EQ(files.front(), L"C:\\11.dxf");
    EXPECT_EQ(files.back(), L"C:\\3.dxf");
}

TEST(RecentList, AFileIsDropped) {
    EXPECT_EQ(WithoutRecent({L"C:\\a.dxf", L"C:\\b.dxf"}, L"C:\\A.dxf"), (Files{L"C:\\b.dxf"}));
    EXPECT_EQ(WithoutRecent({L"C:\\a.dxf"}, L"C:\\x.dxf"), (Files{L"C:\\a.dxf"}));
}

TEST(RecentList, AnEntryHasItsNumberAsKeyAndShowsAmpersands) {
    EXPECT_EQ(RecentEntry(0, L"C:\\a & b.dxf"), L"&1 C:\\a && b.dxf");
    EXPECT_EQ(RecentEntry(8, L"C:\\a.dxf"), L"&9 C:\\a.dxf");
}

TEST(RecentList, ALongPathKeepsItsBeginningAndItsName) {
    const std::wstring deep = L"C:\\" + std::wstring(50, L'f') + L"\\folder\\plan.dxf";
    EXPECT_EQ(RecentEntry(1, deep.c_str()), L"&2 C:\\...\\folder\\plan.dxf");
    const std::wstring name = L"C:\\" + std::wstring(80, L'n') + L".dxf";
    const OdString entry = RecentEntry(0, name.c_str());
    EXPECT_EQ(entry.view().size(), 63u);
    EXPECT_EQ(entry.view().substr(0, 9), L"&1 C:\\...");
    EXPECT_EQ(entry.view().substr(59), L".dxf");
}

}  // namespace
