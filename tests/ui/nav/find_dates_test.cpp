// The dates of the find dialog.
#include <ctime>

#include "find_fixture.h"
#include "replaced_import.h"

namespace {

/// What the toolkit takes for the present time, local.
__time64_t presentTime = 0;

__time64_t __cdecl present(__time64_t* time) {
    if (time != nullptr) *time = presentTime;
    return presentTime;
}

__time64_t at(int year, int month, int day, int hour = 12) {
    tm parts = {};
    parts.tm_year = year - 1900;
    parts.tm_mon = month - 1;
    parts.tm_mday = day;
    parts.tm_hour = hour;
    parts.tm_isdst = -1;
    return _mktime64(&parts);
}

class FindDatesTest : public FindTest {
protected:
    FindDatesTest() : m_present(::GetModuleHandleW(L"ktui.dll"), "_time64", &present) {
        EXPECT_TRUE(m_present.isThere());
        presentTime = at(2026, 5, 20);
    }
    void written(const wchar_t* name, __time64_t time) {
        makeFile(name);
        setWritten(name, time);
    }
    SYSTEMTIME picked(int id) const {
        SYSTEMTIME time = {};
        ::SendMessageW(item(id), DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time));
        return time;
    }
    void pick(int id, __time64_t moment) const {
        tm parts = {};
        _localtime64_s(&parts, &moment);
        SYSTEMTIME time = {};
        time.wYear = static_cast<WORD>(parts.tm_year + 1900);
        time.wMonth = static_cast<WORD>(parts.tm_mon + 1);
        time.wDay = static_cast<WORD>(parts.tm_mday);
        time.wHour = static_cast<WORD>(parts.tm_hour);
        ::SendMessageW(item(id), DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&time));
    }
    /// What the system says of a failure.
    static std::wstring textOfSystem(HRESULT failure) {
        wchar_t text[512] = {};
        ::FormatMessageW(
            FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
            nullptr, static_cast<DWORD>(failure), 0, text, 512, nullptr);
        return text;
    }
    /// Starts the search, and answers what the message says that comes up instead.
    std::wstring toldAtStart() {
        std::wstring told;
        ui_test::when_window([](HWND window) { return ::GetDlgItem(window, 0xFFFF) != nullptr; },
                             [&](HWND box) {
                                 told = ui_test::text_of(::GetDlgItem(box, 0xFFFF)).GetString();
                                 ::PostMessageW(box, WM_COMMAND, IDOK, 0);
                             });
        command(IDC_FIND_START);
        return told;
    }
    /// Which of the fields are enabled: both pickers, the months, the days.
    FoundTexts enabled() const {
        FoundTexts names;
        if (isEnabled(IDC_FIND_FROM_DATE)) names.push_back(L"from");
        if (isEnabled(IDC_FIND_TO_DATE)) names.push_back(L"to");
        if (isEnabled(IDC_FIND_MONTH_COUNT)) names.push_back(L"months");
        if (isEnabled(IDC_FIND_DAY_COUNT)) names.push_back(L"days");
        return names;
    }

private:
    ui_test::ReplacedImport m_present;
};

TEST_F(FindDatesTest, AtFirstThereIsNoFilter) {
    run([&] {
        EXPECT_TRUE(isChecked(IDC_FIND_ANY_DATE));
        EXPECT_FALSE(isChecked(IDC_FIND_BY_DATE));
        for (const int range : {IDC_FIND_BETWEEN, IDC_FIND_MONTHS, IDC_FIND_DAYS})
            EXPECT_EQ(isChecked(range), range == IDC_FIND_BETWEEN) << range;
        EXPECT_EQ(text(IDC_FIND_MONTH_COUNT), L"1");
        EXPECT_EQ(text(IDC_FIND_DAY_COUNT), L"1");
        EXPECT_EQ(picked(IDC_FIND_TO_DATE).wYear, 2026);
        EXPECT_EQ(picked(IDC_FIND_TO_DATE).wMonth, 5);
        EXPECT_EQ(picked(IDC_FIND_TO_DATE).wDay, 20);
        EXPECT_EQ(picked(IDC_FIND_FROM_DATE).wMonth, 2);
        EXPECT_EQ(picked(IDC_FIND_FROM_DATE).wDay, 19);
        EXPECT_EQ(enabled(), FoundTexts{});
        for (const int spin : {IDC_FIND_MONTH_SPIN, IDC_FIND_DAY_SPIN}) {
            int least = 0, most = 0;
            ::SendMessageW(item(spin), UDM_GETRANGE32, reinterpret_cast<WPARAM>(&least),
                           reinterpret_cast<LPARAM>(&most));
            EXPECT_EQ(least, 1);
            EXPECT_EQ(most, 999);
        }
        EXPECT_EQ(::SendMessageW(item(IDC_FIND_MONTH_SPIN), UDM_GETBUDDY, 0, 0),
                  reinterpret_cast<LRESULT>(item(IDC_FIND_MONTH_COUNT)));
        EXPECT_EQ(::SendMessageW(item(IDC_FIND_DAY_SPIN), UDM_GETBUDDY, 0, 0),
                  reinterpret_cast<LRESULT>(item(IDC_FIND_DAY_COUNT)));
        cancel();
    });
}

TEST_F(FindDatesTest, TheChosenRangeHasItsFieldsEnabled) {
    run([&] {
        ::SendMessageW(item(IDC_FIND_TABS), TCM_SETCURFOCUS, 1, 0);
        click(IDC_FIND_BETWEEN);
        EXPECT_TRUE(isChecked(IDC_FIND_BY_DATE));
        EXPECT_FALSE(isChecked(IDC_FIND_ANY_DATE));
        EXPECT_EQ(enabled(), (FoundTexts{L"from", L"to"}));
        click(IDC_FIND_MONTHS);
        EXPECT_EQ(enabled(), (FoundTexts{L"months"}));
        click(IDC_FIND_DAYS);
        EXPECT_EQ(enabled(), (FoundTexts{L"days"}));
        click(IDC_FIND_ANY_DATE);
        EXPECT_EQ(enabled(), FoundTexts{});
        EXPECT_TRUE(isChecked(IDC_FIND_DAYS)) << "the kind of range stays";
        click(IDC_FIND_BY_DATE);
        EXPECT_EQ(enabled(), (FoundTexts{L"days"}));
        click(IDC_FIND_ANY_DATE);
        click(IDC_FIND_MONTHS);
        EXPECT_TRUE(isChecked(IDC_FIND_BY_DATE)) << "a range switches the filter on";
        EXPECT_FALSE(isChecked(IDC_FIND_ANY_DATE));
        cancel();
    });
}

TEST_F(FindDatesTest, TheLastDaysCountInSeconds) {
    written(L"in.dwg", presentTime - 2 * 86400);
    written(L"out.dwg", presentTime - 2 * 86400 - 1);
    written(L"now.dwg", presentTime);
    written(L"later.dwg", presentTime + 1);
    run([&] {
        click(IDC_FIND_DAYS);
        setText(IDC_FIND_DAY_COUNT, L"2");
        search();
        EXPECT_EQ(sortedColumn(0), (FoundTexts{L"in.dwg", L"now.dwg"}));
        click(IDC_FIND_ANY_DATE);
        search();
        EXPECT_EQ(rows(), 4);
        cancel();
    });
}

TEST_F(FindDatesTest, TheLastMonthsCountByTheCalendar) {
    written(L"in.dwg", at(2026, 3, 20));
    written(L"out.dwg", at(2026, 3, 20) - 1);
    written(L"year.dwg", at(2025, 3, 20));
    run([&] {
        click(IDC_FIND_MONTHS);
        setText(IDC_FIND_MONTH_COUNT, L"2");
        search();
        EXPECT_EQ(sortedColumn(0), (FoundTexts{L"in.dwg"}));
        setText(IDC_FIND_MONTH_COUNT, L"14");
        search();
        EXPECT_EQ(sortedColumn(0), (FoundTexts{L"in.dwg", L"out.dwg", L"year.dwg"}));
        setText(IDC_FIND_MONTH_COUNT, L"13");
        search();
        EXPECT_EQ(sortedColumn(0), (FoundTexts{L"in.dwg", L"out.dwg"}));
        cancel();
    });
}

TEST_F(FindDatesTest, ADayBeyondTheMonthsEndBelongsToTheNextMonth) {
    presentTime = at(2026, 3, 31);
    written(L"first.dwg", at(2026, 3, 3, 12));  // the 31st of February
    written(L"before.dwg", at(2026, 3, 3, 11));
    run([&] {
        click(IDC_FIND_MONTHS);
        search();
        EXPECT_EQ(sortedColumn(0), (FoundTexts{L"first.dwg"}));
        cancel();
    });
}

TEST_F(FindDatesTest, BetweenTwoDatesCountsBothDays) {
    written(L"a.dwg", at(2026, 2, 10, 8));
    written(L"b.dwg", at(2026, 2, 12, 8));
    written(L"c.dwg", at(2026, 2, 14, 13));
    run([&] {
        click(IDC_FIND_BETWEEN);
        pick(IDC_FIND_FROM_DATE, at(2026, 2, 10, 8));
        pick(IDC_FIND_TO_DATE, at(2026, 2, 14, 12));
        search();
        EXPECT_EQ(sortedColumn(0), (FoundTexts{L"a.dwg", L"b.dwg"}));
        pick(IDC_FIND_TO_DATE, at(2026, 2, 14, 13));
        search();
        EXPECT_EQ(rows(), 3);
        cancel();
    });
}

TEST_F(FindDatesTest, OneAndTheSameMomentIsNoFilter) {
    written(L"a.dwg", at(2020, 1, 1));
    run([&] {
        click(IDC_FIND_BETWEEN);
        pick(IDC_FIND_FROM_DATE, at(2026, 2, 10));
        pick(IDC_FIND_TO_DATE, at(2026, 2, 10));
        search();
        EXPECT_EQ(rows(), 1);
        click(IDC_FIND_DAYS);
        setText(IDC_FIND_DAY_COUNT, L"0");
        search();
        EXPECT_EQ(rows(), 1) << "no days are no filter either";
        cancel();
    });
}

TEST_F(FindDatesTest, AMonthThatTheClockCannotTellRaisesTheOtherException) {
    written(L"a.dwg", at(2026, 5, 10));
    run([&] {
        click(IDC_FIND_MONTHS);
        setText(IDC_FIND_MONTH_COUNT, L"999");  // 1943
        EXPECT_EQ(toldAtStart(), textOfSystem(E_INVALIDARG));
        EXPECT_FALSE(isSearching());
        EXPECT_EQ(rows(), 0);
        cancel();
    });
}

TEST_F(FindDatesTest, TheLastMonthInJanuaryRaisesTheExceptionBeforeTheSearch) {
    presentTime = at(2026, 1, 15);
    written(L"a.dwg", at(2026, 1, 10));
    run([&] {
        search();
        EXPECT_EQ(rows(), 1);
        click(IDC_FIND_MONTHS);
        setText(IDC_FIND_NAME, L"q");
        EXPECT_EQ(toldAtStart(), textOfSystem(E_FAIL));
        EXPECT_FALSE(isSearching());
        EXPECT_EQ(rows(), 1) << "the rows of the search before stay";
        EXPECT_EQ(caption(), L"Find: Files named *q*.*") << "the caption comes before the dates";
        EXPECT_TRUE(isEnabled(IDC_FIND_NAME));
        EXPECT_TRUE(isEnabled(IDOK));
        cancel();
    });
}

}  // namespace
