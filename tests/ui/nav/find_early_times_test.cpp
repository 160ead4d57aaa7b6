// When files of the find dialog were written before its calendar begins: how they are sorted.
#include "find_fixture.h"
#include "replaced_import.h"

namespace {

/// The calendar, with other years in the place of some.
BOOL WINAPI earlyCalendar(const FILETIME* time, SYSTEMTIME* fields) {
    const BOOL isTold = ::FileTimeToSystemTime(time, fields);
    switch (fields->wYear) {
        case 2001: fields->wYear = 1893; break;
        case 2002: fields->wYear = 1899; break;
        case 2003: fields->wYear = 1900; break;
        case 2004: fields->wYear = 1969; break;
        case 2005: fields->wYear = 1971; break;
        default: break;
    }
    return isTold;
}

/// Seconds of the middle of a year from 2001 to 2010.
constexpr long long middleOf(int year) { return 994'000'000LL + (year - 2001) * 31'557'600LL; }

class FindEarlyTimesTest : public FindTest {
protected:
    /// The names of the rows after `clicks` clicks on the head of the column of times.
    FoundTexts sortedByTime(int clicks) {
        FoundTexts names;
        const ui_test::ReplacedImport calendar(::GetModuleHandleW(L"ktui.dll"), "FileTimeToSystemTime",
                                               &earlyCalendar);
        EXPECT_TRUE(calendar.isThere());
        run([&] {
            search();
            for (int i = 0; i < clicks; ++i) clickColumn(4);
            names = column(0);
            cancel();
        });
        return names;
    }
    void makeFileOf(const wchar_t* name, int year) {
        makeFile(name);
        setWritten(name, middleOf(year));
    }
};

TEST_F(FindEarlyTimesTest, AYearThatTheClockCannotTellIsNoTime) {
    // By name the other way round than by year, and all of them before the first year that can be told.
    makeFileOf(L"a.dwg", 2004);
    makeFileOf(L"b.dwg", 2003);
    makeFileOf(L"c.dwg", 2002);
    makeFileOf(L"d.dwg", 2001);
    makeFileOf(L"e.dwg", 2005);
    EXPECT_EQ(sortedByTime(1), (FoundTexts{L"e.dwg", L"a.dwg", L"b.dwg", L"c.dwg", L"d.dwg"}));
    EXPECT_EQ(sortedByTime(2), (FoundTexts{L"a.dwg", L"b.dwg", L"c.dwg", L"d.dwg", L"e.dwg"}));
}

TEST_F(FindEarlyTimesTest, NoTimeComesLaterThanNone) {
    makeFileOf(L"a.dwg", 2001);
    makeFileOf(L"b.dwg", 2004);
    EXPECT_EQ(sortedByTime(1), (FoundTexts{L"a.dwg", L"b.dwg"}));
    EXPECT_EQ(sortedByTime(2), (FoundTexts{L"a.dwg", L"b.dwg"}));
}

}  // namespace
