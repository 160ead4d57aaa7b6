// Date pickers and calendars, hot keys, links, split buttons, lists of checks, and the exchange of their
// values.
#include <ATLComTime.h>
#include <afxcmn.h>
#include <afxdtctl.h>

#include <functional>
#include <string>
#include <vector>

#include "picture.h"
#include "ui_test.h"

namespace {

constexpr int kDate = 1201, kMonth = 1202, kSlider = 1203, kEdit = 1204, kAddress = 1205;

class MoreControls : public ::testing::Test {
protected:
    ui_test::ParentWindow parent;
};

SYSTEMTIME day(WORD year, WORD month, WORD dayOfMonth, WORD hour = 0, WORD minute = 0, WORD second = 0) {
    return {year, month, 0, dayOfMonth, hour, minute, second, 0};
}

TEST(Times, AreSeenInLocalTime) {
    const CTime time(1999, 12, 31, 23, 58, 57);
    EXPECT_EQ(time.GetYear(), 1999);
    EXPECT_EQ(time.GetMonth(), 12);
    EXPECT_EQ(time.GetDay(), 31);
    EXPECT_EQ(time.GetHour(), 23);
    EXPECT_EQ(time.GetMinute(), 58);
    EXPECT_EQ(time.GetSecond(), 57);
    EXPECT_EQ(time.GetDayOfWeek(), 6);
    EXPECT_EQ(time.Format(L"%Y-%m-%d %H:%M:%S"), L"1999-12-31 23:58:57");
    EXPECT_EQ(CTime(86400).FormatGmt(L"%Y-%m-%d"), L"1970-01-02");
    EXPECT_EQ(time.Format(L""), L"");
    EXPECT_EQ(time.Format(static_cast<LPCTSTR>(nullptr)), L"");
    SYSTEMTIME parts;
    ASSERT_TRUE(time.GetAsSystemTime(parts));
    EXPECT_EQ(parts.wYear, 1999);
    EXPECT_EQ(parts.wDayOfWeek, 5);
    EXPECT_EQ(CTime(parts), time);
    EXPECT_EQ(CTime(day(1800, 1, 1)).GetTime(), 0);
    EXPECT_THROW(CTime(2000, 13, 1, 0, 0, 0), CInvalidArgException*);
    EXPECT_THROW(CTime(2000, 1, 32, 0, 0, 0), CInvalidArgException*);
    EXPECT_THROW(CTime(2000, 1, 1, 24, 0, 0), CInvalidArgException*);
    EXPECT_EQ(CTime(-100).GetYear(), 1900) << "no time that the library shows";
    FILETIME file;
    ::SystemTimeToFileTime(&parts, &file);
    FILETIME utc;
    ::LocalFileTimeToFileTime(&file, &utc);
    EXPECT_EQ(CTime(utc), time);
    EXPECT_TRUE(CTime::IsValidFILETIME(utc));
    EXPECT_EQ(
        CTime(static_cast<WORD>((2001 - 1980) << 9 | 2 << 5 | 3), static_cast<WORD>(4 << 11 | 5 << 5 | 3)),
        CTime(2001, 2, 3, 4, 5, 6));
    EXPECT_GE(CTime::GetCurrentTime(), time);
}

TEST(Times, DifferByDistances) {
    const CTimeSpan span(2, 3, 4, 5);
    EXPECT_EQ(span.GetTotalSeconds(), 2 * 86400 + 3 * 3600 + 4 * 60 + 5);
    EXPECT_EQ(span.GetDays(), 2);
    EXPECT_EQ(span.GetHours(), 3);
    EXPECT_EQ(span.GetMinutes(), 4);
    EXPECT_EQ(span.GetSeconds(), 5);
    EXPECT_EQ(span.GetTotalHours(), 51);
    EXPECT_EQ(span.GetTotalMinutes(), 51 * 60 + 4);
    EXPECT_EQ(span.Format(L"%D d %H:%M:%S %%"), L"2 d 03:04:05 %");
    const CTime start(2000, 1, 1, 0, 0, 0);
    CTime end = start + span;
    EXPECT_EQ(end - start, span);
    EXPECT_EQ(end - span, start);
    EXPECT_LT(start, end);
    end -= CTimeSpan(1, 0, 0, 0);
    EXPECT_EQ((end - start).GetDays(), 1);
    EXPECT_EQ((CTimeSpan(60) - CTimeSpan(90)).GetTotalSeconds(), -30);
}

TEST(OleDates, AreDaysWithAStatus) {
    const COleDateTime date(2024, 2, 29, 6, 30, 15);
    EXPECT_EQ(date.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(date.GetYear(), 2024);
    EXPECT_EQ(date.GetMonth(), 2);
    EXPECT_EQ(date.GetDay(), 29);
    EXPECT_EQ(date.GetHour(), 6);
    EXPECT_EQ(date.GetMinute(), 30);
    EXPECT_EQ(date.GetSecond(), 15);
    EXPECT_EQ(date.GetDayOfWeek(), 5);
    EXPECT_EQ(date.GetDayOfYear(), 60);
    EXPECT_EQ(date.Format(L"%Y/%m/%d %j"), L"2024/02/29 060");
    EXPECT_EQ(COleDateTime(1899, 12, 31, 0, 0, 0).m_dt, 1.0);
    for (const COleDateTime& wrong : {COleDateTime(2023, 2, 29, 0, 0, 0), COleDateTime(2024, 13, 1, 0, 0, 0),
                                      COleDateTime(99, 1, 1, 0, 0, 0), COleDateTime(2024, 1, 1, 0, 60, 0),
                                      COleDateTime(1900, 2, 29, 0, 0, 0)}) {
        EXPECT_EQ(wrong.GetStatus(), COleDateTime::invalid);
        EXPECT_EQ(wrong.GetYear(), COleDateTime::error);
        EXPECT_EQ(wrong.GetDayOfYear(), COleDateTime::error);
        EXPECT_EQ(wrong.Format(), L"");
    }
    COleDateTime parsed;
    EXPECT_FALSE(parsed.ParseDateTime(L"no date at all"));
    EXPECT_EQ(parsed.GetStatus(), COleDateTime::invalid);
    EXPECT_FALSE(parsed.ParseDateTime(nullptr));
    EXPECT_TRUE(parsed.ParseDateTime(date.Format()));
    EXPECT_EQ(parsed, date);
    EXPECT_LT(date, COleDateTime(2024, 3, 1, 0, 0, 0));
    EXPECT_FALSE(date < COleDateTime(2024, 13, 1, 0, 0, 0));
    EXPECT_EQ((date + COleDateTimeSpan(1, 0, 0, 0)).GetMonth(), 3);
    EXPECT_DOUBLE_EQ((COleDateTime(2024, 3, 1, 0, 0, 0) - COleDateTime(2024, 2, 1, 0, 0, 0)).GetTotalDays(),
                     29);
    COleDateTime time;
    EXPECT_EQ(time.SetTime(12, 0, 0), 0);
    EXPECT_DOUBLE_EQ(time.m_dt, 0.5);
    EXPECT_EQ(COleDateTime(CTime(2001, 2, 3, 4, 5, 6).GetTime()), COleDateTime(2001, 2, 3, 4, 5, 6));
}

TEST_F(MoreControls, ADatePickerTakesTimesOfEachKind) {
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.Create(WS_CHILD | WS_VISIBLE | DTS_SHOWNONE, CRect(5, 5, 150, 30), &parent, kDate));
    const CTime time(2003, 4, 5, 6, 7, 8);
    EXPECT_TRUE(picker.SetTime(&time));
    CTime asTime;
    COleDateTime asDate;
    SYSTEMTIME parts;
    EXPECT_EQ(picker.GetTime(asTime), static_cast<DWORD>(GDT_VALID));
    EXPECT_EQ(asTime, time);
    EXPECT_TRUE(picker.GetTime(asDate));
    EXPECT_EQ(asDate, COleDateTime(2003, 4, 5, 6, 7, 8));
    EXPECT_EQ(picker.GetTime(&parts), static_cast<DWORD>(GDT_VALID));
    EXPECT_EQ(parts.wDay, 5);
    EXPECT_TRUE(picker.SetTime(COleDateTime(2010, 11, 12, 0, 0, 0)));
    picker.GetTime(asTime);
    EXPECT_EQ(asTime, CTime(2010, 11, 12, 0, 0, 0));
    EXPECT_TRUE(picker.SetTime());
    EXPECT_EQ(picker.GetTime(&parts), static_cast<DWORD>(GDT_NONE));
    EXPECT_FALSE(picker.GetTime(asDate));
    EXPECT_EQ(asDate.GetStatus(), COleDateTime::null);
    EXPECT_EQ(asDate.m_dt, 0);
    EXPECT_EQ(picker.GetTime(asTime), static_cast<DWORD>(GDT_NONE));
    EXPECT_EQ(asTime, CTime(2010, 11, 12, 0, 0, 0)) << "what is not given stays";
    EXPECT_TRUE(picker.SetTime(COleDateTime(1975, 6, 7, 0, 0, 0)));
    picker.GetTime(asTime);
    EXPECT_EQ(asTime, CTime(1975, 6, 7, 0, 0, 0));
    const CTime none;
    EXPECT_TRUE(picker.SetTime(&none));
    EXPECT_EQ(picker.GetTime(&parts), static_cast<DWORD>(GDT_NONE));
}

TEST_F(MoreControls, ADatePickerHasARange) {
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.Create(WS_CHILD | WS_VISIBLE, CRect(5, 5, 150, 30), &parent, kDate));
    CTime low, high;
    EXPECT_EQ(picker.GetRange(&low, &high), 0u);
    const CTime first(2000, 1, 1, 0, 0, 0), last(2001, 1, 1, 0, 0, 0);
    EXPECT_TRUE(picker.SetRange(&first, &last));
    EXPECT_EQ(picker.GetRange(&low, &high), static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_EQ(low, first);
    EXPECT_EQ(high, last);
    const COleDateTime only(1999, 5, 5, 0, 0, 0);
    EXPECT_TRUE(picker.SetRange(nullptr, &only));
    COleDateTime from, to;
    EXPECT_EQ(picker.GetRange(&from, &to), static_cast<DWORD>(GDTR_MAX));
    EXPECT_EQ(from.GetStatus(), COleDateTime::null);
    EXPECT_EQ(to, only);
    EXPECT_TRUE(picker.SetFormat(L"yyyy"));
    const CTime year(1998, 1, 1, 0, 0, 0);
    picker.SetTime(&year);
    EXPECT_EQ(ui_test::text_of(picker.m_hWnd), L"1998");
    EXPECT_EQ(picker.GetMonthCalCtrl(), nullptr);
    picker.SetMonthCalColor(MCSC_TEXT, RGB(1, 2, 3));
    EXPECT_EQ(picker.GetMonthCalColor(MCSC_TEXT), RGB(1, 2, 3));
    EXPECT_FALSE(picker.GetDateTimePickerInfo(nullptr));
}

TEST_F(MoreControls, ACalendarHasASelectionAndARange) {
    CMonthCalCtrl calendar;
    ASSERT_TRUE(calendar.Create(WS_CHILD | WS_VISIBLE, CPoint(5, 5), &parent, kMonth));
    CRect needed, place;
    ASSERT_TRUE(calendar.GetMinReqRect(&needed));
    calendar.GetWindowRect(&place);
    EXPECT_EQ(place.Size(), needed.Size());
    EXPECT_TRUE(calendar.SetCurSel(CTime(2004, 5, 6, 7, 8, 9)));
    CTime time;
    COleDateTime date;
    EXPECT_TRUE(calendar.GetCurSel(time));
    EXPECT_EQ(time, CTime(2004, 5, 6, 0, 0, 0));
    EXPECT_TRUE(calendar.SetCurSel(COleDateTime(2005, 6, 7, 0, 0, 0)));
    EXPECT_TRUE(calendar.GetCurSel(date));
    EXPECT_EQ(date.Format(L"%Y%m%d"), L"20050607");
    EXPECT_FALSE(calendar.SetCurSel(CTime())) << "no date";
    EXPECT_FALSE(calendar.GetSelRange(time, time)) << "one day only";
    const CTime first(2005, 1, 2, 0, 0, 0), last(2006, 3, 4, 0, 0, 0);
    EXPECT_TRUE(calendar.SetRange(&first, &last));
    CTime low, high;
    EXPECT_EQ(calendar.GetRange(&low, &high), static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_EQ(low, first);
    EXPECT_EQ(high, last);
    EXPECT_EQ(calendar.GetMonthRange(low, high, GMR_VISIBLE), 1);
    EXPECT_EQ(low.Format(L"%Y%m%d"), L"20050601");
    calendar.SetToday(COleDateTime(2005, 7, 8, 0, 0, 0));
    EXPECT_TRUE(calendar.GetToday(date));
    EXPECT_EQ(date.GetDay(), 8);
    int former = -1;
    calendar.SetFirstDayOfWeek(2);
    EXPECT_EQ(calendar.GetFirstDayOfWeek(), 2);
    calendar.SetFirstDayOfWeek(3, &former);
    EXPECT_EQ(former, 2);
    calendar.SetMonthDelta(4);
    EXPECT_EQ(calendar.GetMonthDelta(), 4);
    calendar.SetColor(MCSC_TEXT, RGB(4, 5, 6));
    EXPECT_EQ(calendar.GetColor(MCSC_TEXT), RGB(4, 5, 6));
    MCHITTESTINFO hit = {};
    hit.pt = {needed.Width() / 2, needed.Height() / 2};
    EXPECT_TRUE(calendar.HitTest(&hit) & MCHT_CALENDAR);
}

TEST_F(MoreControls, ACalendarOfSeveralDays) {
    CMonthCalCtrl calendar;
    ASSERT_TRUE(calendar.Create(WS_CHILD | WS_VISIBLE | MCS_MULTISELECT, CPoint(5, 5), &parent, kMonth));
    EXPECT_TRUE(calendar.SetMaxSelCount(10));
    EXPECT_EQ(calendar.GetMaxSelCount(), 10);
    EXPECT_TRUE(calendar.SetSelRange(COleDateTime(2005, 6, 7, 0, 0, 0), COleDateTime(2005, 6, 9, 0, 0, 0)));
    COleDateTime low, high;
    EXPECT_TRUE(calendar.GetSelRange(low, high));
    EXPECT_EQ(low.GetDay(), 7);
    EXPECT_EQ(high.GetDay(), 9);
    EXPECT_FALSE(calendar.SetSelRange(CTime(), CTime(2005, 1, 1, 0, 0, 0)));
    SYSTEMTIME unused;
    EXPECT_FALSE(calendar.GetCurSel(&unused));
}

TEST_F(MoreControls, AHotKeyHasAKeyAndModifiers) {
    CHotKeyCtrl box;
    ASSERT_TRUE(box.Create(WS_CHILD | WS_VISIBLE, CRect(5, 5, 150, 30), &parent, 1));
    EXPECT_EQ(box.GetHotKeyName(), L"");
    box.SetHotKey('K', HOTKEYF_CONTROL | HOTKEYF_ALT);
    WORD key = 0, modifiers = 0;
    box.GetHotKey(key, modifiers);
    EXPECT_EQ(key, 'K');
    EXPECT_EQ(modifiers, HOTKEYF_CONTROL | HOTKEYF_ALT);
    EXPECT_EQ(LOWORD(box.GetHotKey()), MAKEWORD('K', HOTKEYF_CONTROL | HOTKEYF_ALT));
    const CString control = CHotKeyCtrl::GetKeyName(VK_CONTROL, FALSE),
                  alt = CHotKeyCtrl::GetKeyName(VK_MENU, FALSE);
    EXPECT_FALSE(control.IsEmpty());
    EXPECT_EQ(box.GetHotKeyName(), control + L" + " + alt + L" + " + CHotKeyCtrl::GetKeyName('K', FALSE));
    EXPECT_EQ(CHotKeyCtrl::GetKeyName(0, FALSE), L"");
    box.SetHotKey(VK_HOME, HOTKEYF_SHIFT | HOTKEYF_EXT);
    EXPECT_EQ(box.GetHotKeyName(),
              CHotKeyCtrl::GetKeyName(VK_SHIFT, FALSE) + L" + " + CHotKeyCtrl::GetKeyName(VK_HOME, TRUE));
    EXPECT_NE(CHotKeyCtrl::GetKeyName(VK_HOME, TRUE), CHotKeyCtrl::GetKeyName(VK_HOME, FALSE));
    box.SetHotKey(0, HOTKEYF_CONTROL);
    EXPECT_EQ(box.GetHotKeyName(), control) << "a modifier alone";
    box.SetRules(HKCOMB_NONE, HOTKEYF_SHIFT);
    box.SendMessage(WM_KEYDOWN, 'J', 1);
    box.GetHotKey(key, modifiers);
    EXPECT_EQ(modifiers, HOTKEYF_SHIFT);
}

TEST_F(MoreControls, LinksHaveIdsAddressesAndStates) {
    CLinkCtrl links;
    ASSERT_TRUE(links.Create(L"see <a id=\"one\" href=\"http://one\">this</a> or <a id=\"two\">that</a>",
                             WS_CHILD | WS_VISIBLE, CRect(5, 5, 300, 60), &parent, 1));
    CString text;
    EXPECT_TRUE(links.GetItemID(0, text));
    EXPECT_EQ(text, L"one");
    EXPECT_TRUE(links.GetItemUrl(0, text));
    EXPECT_EQ(text, L"http://one");
    wchar_t few[4] = {};
    EXPECT_TRUE(links.GetItemUrl(0, few, 4));
    EXPECT_STREQ(few, L"htt");
    EXPECT_FALSE(links.GetItemID(2, text));
    EXPECT_FALSE(links.GetItemID(0, nullptr, 0));
    EXPECT_TRUE(links.SetItemID(1, L"changed"));
    EXPECT_TRUE(links.GetItemID(1, text));
    EXPECT_EQ(text, L"changed");
    EXPECT_TRUE(links.SetItemUrl(1, L"http://two"));
    EXPECT_TRUE(links.GetItemUrl(1, text));
    EXPECT_EQ(text, L"http://two");
    EXPECT_TRUE(links.SetItemState(1, LIS_VISITED, LIS_VISITED));
    UINT state = 0;
    EXPECT_TRUE(links.GetItemState(1, &state, LIS_VISITED));
    EXPECT_EQ(state, static_cast<UINT>(LIS_VISITED));
    EXPECT_FALSE(links.GetItemState(1, nullptr));
    EXPECT_TRUE(links.SetItemState(0, 0, LIS_ENABLED));
    EXPECT_TRUE(links.SetItemState(0, LIS_VISITED | LIS_ENABLED, LIS_VISITED));
    EXPECT_TRUE(links.GetItemState(0, &state, LIS_VISITED | LIS_ENABLED));
    EXPECT_EQ(state, static_cast<UINT>(LIS_VISITED)) << "what the mask leaves out stays";
    EXPECT_FALSE(links.GetItemID(0, few, 0));
    EXPECT_GT(links.GetIdealHeight(), 5);
    EXPECT_FALSE(links.SetItemUrl(0, CString(L'x', 5000)) && links.GetItemUrl(0, text) &&
                 text.GetLength() > 4096);
}

TEST_F(MoreControls, ASplitButtonDropsItsMenu) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 77, L"entry");
    CSplitButton button;
    ASSERT_TRUE(button.Create(L"split", WS_CHILD | WS_VISIBLE, CRect(5, 5, 150, 30), &parent, 9));
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_SPLITBUTTON));
    button.SetDropDownMenu(&menu);
    std::vector<HMENU> opened;
    ui_test::on_message_filter([&](int code, const MSG&) {
        if (code == MSGF_MENU) opened.push_back(menu.m_hMenu);
    });
    ui_test::later(
        [] {
            GUITHREADINFO info = {};
            info.cbSize = sizeof info;
            ::GetGUIThreadInfo(::GetCurrentThreadId(), &info);
            EXPECT_TRUE(info.flags & GUI_INMENUMODE);
            ::EndMenu();
        },
        50);
    NMBCDROPDOWN arrow = {};
    arrow.hdr = {button.m_hWnd, 9, static_cast<UINT>(BCN_DROPDOWN)};
    button.GetClientRect(&arrow.rcButton);
    parent.SendMessage(WM_NOTIFY, 9, reinterpret_cast<LPARAM>(&arrow));
    ui_test::on_message_filter(nullptr);
    EXPECT_EQ(menu.GetMenuItemCount(), 1) << "the menu stays the caller's";
    button.SetDropDownMenu(static_cast<CMenu*>(nullptr));
    parent.SendMessage(WM_NOTIFY, 9, reinterpret_cast<LPARAM>(&arrow));
}

/// A parent that hears of clicks on checks.
class Listener : public CWnd {
public:
    int clicks = 0;
    std::vector<DWORD_PTR> gone;
    Listener() {
        CreateEx(0, AfxRegisterWndClass(0), L"listener", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                 CRect(50, 50, 350, 250), nullptr, 0);
    }
    ~Listener() override { DestroyWindow(); }

protected:
    afx_msg void OnCheck() { ++clicks; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Listener, CWnd)
    ON_CLBN_CHKCHANGE(5, &Listener::OnCheck)
END_MESSAGE_MAP()

class ListOfChecks : public ::testing::Test {
protected:
    ListOfChecks() {
        list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY,
                    CRect(10, 10, 160, 120), &parent, 5);
        for (const wchar_t* text : {L"one", L"two", L"three"}) list.AddString(text);
    }
    void click(int index) {
        CRect place;
        list.GetItemRect(index, &place);
        const LPARAM at = MAKELPARAM(place.left + 6, place.CenterPoint().y);
        list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, at);
        list.SendMessage(WM_LBUTTONUP, 0, at);
    }
    Listener parent;
    CCheckListBox list;
};

TEST_F(ListOfChecks, KeepsTheChecksBesideTheTexts) {
    EXPECT_EQ(list.GetCheck(1), 0);
    list.SetCheck(1, 1);
    EXPECT_EQ(list.GetCheck(1), 1);
    list.SetItemData(1, 1234);
    EXPECT_EQ(list.GetItemData(1), 1234u);
    EXPECT_EQ(list.GetCheck(1), 1);
    EXPECT_EQ(list.GetItemData(0), 0u);
    list.InsertString(0, L"zero");
    EXPECT_EQ(list.GetCheck(2), 1);
    EXPECT_EQ(list.GetCheck(1), 0);
    CString text;
    list.GetText(2, text);
    EXPECT_EQ(text, L"two");
    list.DeleteString(0);
    list.DeleteString(1);
    EXPECT_EQ(list.GetCheck(1), 0);
    list.SetCheck(9, 1);
    list.Enable(-1, FALSE);
    EXPECT_EQ(list.GetCheck(9), 0);
    EXPECT_EQ(list.GetItemData(9), static_cast<DWORD_PTR>(LB_ERR));
    list.SetCheck(0, 2);
    EXPECT_EQ(list.GetCheck(0), 0) << "two states only";
    list.SetCheck(0, -1);
    EXPECT_EQ(list.GetCheck(0), 0);
    list.ResetContent();
    list.AddString(L"again");
    EXPECT_EQ(list.GetCheck(0), 0);
}

TEST_F(ListOfChecks, AClickOnTheBoxChecksAndTellsTheParent) {
    click(1);
    EXPECT_EQ(list.GetCheck(1), 1);
    EXPECT_EQ(parent.clicks, 1);
    click(1);
    EXPECT_EQ(list.GetCheck(1), 0);
    list.SetCheckStyle(BS_AUTO3STATE);
    for (const int state : {1, 2, 0}) {
        click(1);
        EXPECT_EQ(list.GetCheck(1), state);
    }
    const int before = parent.clicks;
    list.Enable(1, FALSE);
    click(1);
    EXPECT_EQ(list.GetCheck(1), 0);
    EXPECT_EQ(parent.clicks, before);
    list.Enable(1);
    EXPECT_TRUE(list.IsEnabled(1));
    list.SetCheckStyle(BS_CHECKBOX);
    EXPECT_EQ(list.GetCheckStyle(), static_cast<UINT>(BS_CHECKBOX));
    click(1);
    EXPECT_EQ(list.GetCheck(1), 0) << "the owner decides";
    EXPECT_EQ(parent.clicks, before + 1);
    CRect place;
    list.GetItemRect(0, &place);
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(place.left + 80, place.CenterPoint().y));
    list.SendMessage(WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(parent.clicks, before + 1) << "beside the box";
    EXPECT_EQ(list.GetCurSel(), 0);
}

TEST_F(ListOfChecks, TheSpaceKeyChecks) {
    list.SetFocus();
    list.SetCurSel(2);
    list.SendMessage(WM_KEYDOWN, VK_SPACE, 1);
    EXPECT_EQ(list.GetCheck(2), 1);
    EXPECT_EQ(parent.clicks, 1);
    list.SendMessage(WM_KEYDOWN, VK_UP, 1);
    EXPECT_EQ(list.GetCurSel(), 1);
}

TEST_F(ListOfChecks, DrawsEachStateOtherwise) {
    const auto look = [&] {
        list.RedrawWindow();
        CRect place;
        list.GetItemRect(0, &place);
        return ui_test::Picture(list, place);
    };
    const ui_test::Picture off = look();
    list.SetCheck(0, 1);
    const ui_test::Picture on = look();
    EXPECT_FALSE(on == off);
    EXPECT_LT(on.difference(off).right, 25) << "only the box differs";
    list.Enable(0, FALSE);
    EXPECT_FALSE(look() == on);
}

TEST_F(ListOfChecks, DataThatIsNoItemOfItsOwnIsLeftAlone) {
    CCheckListBox plain;
    plain.Create(WS_CHILD | LBS_OWNERDRAWFIXED, CRect(0, 0, 50, 50), &parent, 6);
    plain.SendMessage(LB_ADDSTRING, 0, 0x1234);
    EXPECT_EQ(plain.GetItemData(0), 0x1234u);
    EXPECT_EQ(plain.GetCheck(0), 0);
    plain.SetCheck(0, 1);
    EXPECT_EQ(plain.GetCheck(0), 1);
    EXPECT_EQ(plain.GetItemData(0), 0x1234u);
}

/// A dialog of date and range controls.
class Dialog : public CDialog {
public:
    explicit Dialog(CWnd* parent) : CDialog(450, parent) {}
    std::function<void(CDataExchange*)> exchange;
    bool exchanges(BOOL save) { return UpdateData(save) != FALSE; }

protected:
    void DoDataExchange(CDataExchange* context) override {
        if (exchange) exchange(context);
    }
};

class Exchange : public MoreControls {
protected:
    Exchange() : dialog(&parent) { made = dialog.Create(450, &parent); }
    ~Exchange() override { dialog.DestroyWindow(); }
    /// Takes the values over while a message box is expected.
    bool takesOverWithBox() {
        bool seen = false;
        ui_test::when_dialog(L"ui_test", [&](HWND box) {
            seen = true;
            ::PostMessageW(box, WM_COMMAND, IDOK, 0);
        });
        const bool taken = dialog.exchanges(TRUE);
        EXPECT_TRUE(seen);
        return taken;
    }
    Dialog dialog;
    BOOL made;
};

TEST_F(Exchange, MovesDates) {
    ASSERT_TRUE(made);
    CTime time(2001, 2, 3, 4, 5, 6), month(2002, 3, 4, 0, 0, 0);
    dialog.exchange = [&](CDataExchange* context) {
        DDX_DateTimeCtrl(context, kDate, time);
        DDX_MonthCalCtrl(context, kMonth, month);
    };
    ASSERT_TRUE(dialog.exchanges(FALSE));
    time = month = CTime();
    ASSERT_TRUE(dialog.exchanges(TRUE));
    EXPECT_EQ(time, CTime(2001, 2, 3, 4, 5, 6));
    EXPECT_EQ(month, CTime(2002, 3, 4, 0, 0, 0));
    COleDateTime date, calendar;
    SYSTEMTIME none = day(2000, 1, 1);
    dialog.exchange = [&](CDataExchange* context) {
        DDX_DateTimeCtrl(context, kDate, date);
        DDX_MonthCalCtrl(context, kMonth, calendar);
    };
    ASSERT_TRUE(dialog.exchanges(TRUE));
    EXPECT_EQ(date, COleDateTime(2001, 2, 3, 4, 5, 6));
    EXPECT_EQ(calendar.GetDay(), 4);
    dialog.SendDlgItemMessage(kDate, DTM_SETSYSTEMTIME, GDT_NONE, reinterpret_cast<LPARAM>(&none));
    ASSERT_TRUE(dialog.exchanges(TRUE));
    EXPECT_EQ(date.GetStatus(), COleDateTime::null);
    CString text = L"x", day;
    dialog.exchange = [&](CDataExchange* context) {
        DDX_DateTimeCtrl(context, kDate, text);
        DDX_MonthCalCtrl(context, kMonth, day);
    };
    ASSERT_TRUE(dialog.exchanges(TRUE));
    EXPECT_EQ(text, L"");
    COleDateTime parsed;
    ASSERT_TRUE(parsed.ParseDateTime(day));
    EXPECT_EQ(parsed, COleDateTime(2002, 3, 4, 0, 0, 0));
    text = COleDateTime(2009, 8, 7, 0, 0, 0).Format(VAR_DATEVALUEONLY);
    ASSERT_TRUE(dialog.exchanges(FALSE));
    dialog.exchange = [&](CDataExchange* context) { DDX_DateTimeCtrl(context, kDate, date); };
    ASSERT_TRUE(dialog.exchanges(TRUE));
    EXPECT_EQ(date, COleDateTime(2009, 8, 7, 0, 0, 0));
}

TEST_F(Exchange, ChecksDatesAndSetsTheirRange) {
    const CTime first(2000, 1, 1, 0, 0, 0), last(2000, 12, 31, 0, 0, 0);
    CTime time(2000, 6, 1, 0, 0, 0);
    dialog.exchange = [&](CDataExchange* context) {
        DDX_DateTimeCtrl(context, kDate, time);
        DDV_MinMaxDateTime(context, time, &first, &last);
    };
    ASSERT_TRUE(dialog.exchanges(FALSE));
    SYSTEMTIME ends[2], none = day(2000, 1, 1);
    EXPECT_EQ(dialog.SendDlgItemMessage(kDate, DTM_GETRANGE, 0, reinterpret_cast<LPARAM>(ends)),
              GDTR_MIN | GDTR_MAX);
    EXPECT_EQ(ends[1].wMonth, 12);
    EXPECT_TRUE(dialog.exchanges(TRUE));
    dialog.SendDlgItemMessage(kDate, DTM_SETRANGE, 0, reinterpret_cast<LPARAM>(ends));
    SYSTEMTIME late = day(2001, 1, 2);
    dialog.SendDlgItemMessage(kDate, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&late));
    EXPECT_FALSE(takesOverWithBox());
    late = day(1999, 12, 31);
    dialog.SendDlgItemMessage(kDate, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&late));
    EXPECT_FALSE(takesOverWithBox());
    dialog.SendDlgItemMessage(kDate, DTM_SETSYSTEMTIME, GDT_NONE, reinterpret_cast<LPARAM>(&none));
    EXPECT_TRUE(dialog.exchanges(TRUE)) << "no date is in no range";
    const COleDateTime from(2000, 1, 1, 0, 0, 0);
    COleDateTime date(1990, 1, 1, 0, 0, 0);
    dialog.exchange = [&](CDataExchange* context) {
        DDX_MonthCalCtrl(context, kMonth, date);
        DDV_MinMaxMonth(context, date, &from, nullptr);
    };
    late = day(1991, 1, 1);
    dialog.SendDlgItemMessage(kMonth, MCM_SETCURSEL, 0, reinterpret_cast<LPARAM>(&late));
    EXPECT_FALSE(takesOverWithBox());
}

TEST_F(Exchange, MovesAndChecksNumbersOfControls) {
    int position = 30;
    dialog.exchange = [&](CDataExchange* context) {
        DDX_Slider(context, kSlider, position);
        DDV_MinMaxSlider(context, static_cast<DWORD>(position), 10, 300);
    };
    ASSERT_TRUE(dialog.exchanges(FALSE));
    EXPECT_EQ(dialog.SendDlgItemMessage(kSlider, TBM_GETRANGEMIN), 10);
    EXPECT_EQ(dialog.SendDlgItemMessage(kSlider, TBM_GETRANGEMAX), 300);
    EXPECT_EQ(dialog.SendDlgItemMessage(kSlider, TBM_GETPOS), 30);
    position = 250;
    ASSERT_TRUE(dialog.exchanges(FALSE));
    EXPECT_EQ(dialog.SendDlgItemMessage(kSlider, TBM_GETPOS), 250);
    dialog.SendDlgItemMessage(kSlider, TBM_SETPOS, TRUE, 40);
    ASSERT_TRUE(dialog.exchanges(TRUE));
    EXPECT_EQ(position, 40);
    dialog.exchange = [&](CDataExchange* context) {
        DDX_Slider(context, kSlider, position);
        DDV_MinMaxSlider(context, static_cast<DWORD>(position), 100, 200);
    };
    EXPECT_FALSE(takesOverWithBox());
    DWORD address = 0x7F000001;
    dialog.exchange = [&](CDataExchange* context) { DDX_IPAddress(context, kAddress, address); };
    ASSERT_TRUE(dialog.exchanges(FALSE));
    EXPECT_EQ(ui_test::text_of(dialog.GetDlgItem(kAddress)->m_hWnd), L"127.0.0.1");
    address = 0;
    ASSERT_TRUE(dialog.exchanges(TRUE));
    EXPECT_EQ(address, 0x7F000001u);
}

TEST_F(Exchange, MovesLargeNumbersAndBuffers) {
    LONGLONG number = -5000000000ll;
    ULONGLONG large = 18000000000000000000ull;
    dialog.exchange = [&](CDataExchange* context) { DDX_Text(context, kEdit, number); };
    ASSERT_TRUE(dialog.exchanges(FALSE));
    EXPECT_EQ(ui_test::text_of(dialog.GetDlgItem(kEdit)->m_hWnd), L"-5000000000");
    number = 0;
    ASSERT_TRUE(dialog.exchanges(TRUE));
    EXPECT_EQ(number, -5000000000ll);
    dialog.exchange = [&](CDataExchange* context) {
        DDX_Text(context, kEdit, large);
        DDV_MinMaxULongLong(context, large, 1, 18000000000000000000ull);
    };
    EXPECT_FALSE(takesOverWithBox()) << "a sign";
    ASSERT_TRUE(dialog.exchanges(FALSE));
    large = 0;
    ASSERT_TRUE(dialog.exchanges(TRUE));
    EXPECT_EQ(large, 18000000000000000000ull);
    dialog.SetDlgItemText(kEdit, L"18000000000000000001");
    EXPECT_FALSE(takesOverWithBox());
    number = 3;
    dialog.exchange = [&](CDataExchange* context) { DDV_MinMaxLongLong(context, number, 4, 5); };
    EXPECT_FALSE(takesOverWithBox());
    dialog.exchange = [&](CDataExchange* context) { DDV_MinMaxUnsigned(context, 6, 4, 5); };
    EXPECT_FALSE(takesOverWithBox());
    wchar_t buffer[5] = L"abc";
    dialog.exchange = [&](CDataExchange* context) { DDX_Text(context, kEdit, buffer, 5); };
    ASSERT_TRUE(dialog.exchanges(FALSE));
    EXPECT_EQ(ui_test::text_of(dialog.GetDlgItem(kEdit)->m_hWnd), L"abc");
    dialog.SetDlgItemText(kEdit, L"too long");
    ASSERT_TRUE(dialog.exchanges(TRUE));
    EXPECT_STREQ(buffer, L"too ");
    dialog.exchange = [&](CDataExchange* context) { DDX_Text(context, kEdit, nullptr, 5); };
    EXPECT_TRUE(dialog.exchanges(TRUE));
}

TEST_F(MoreControls, RangeControlsHaveTheirLaterMembers) {
    CSliderCtrl slider;
    ASSERT_TRUE(slider.CreateEx(WS_EX_CLIENTEDGE, WS_CHILD | TBS_FIXEDLENGTH | TBS_TOOLTIPS,
                                CRect(0, 0, 100, 30), &parent, 1));
    EXPECT_TRUE(slider.GetExStyle() & WS_EX_CLIENTEDGE);
    slider.SetThumbLength(17);
    EXPECT_EQ(slider.GetThumbLength(), 17);
    EXPECT_NE(slider.GetToolTips(), nullptr);
    slider.SetToolTips(nullptr);
    EXPECT_EQ(slider.GetToolTips(), nullptr);
    CProgressCtrl progress;
    ASSERT_TRUE(progress.CreateEx(0, WS_CHILD, CRect(0, 0, 100, 30), &parent, 2));
    progress.SetStep(7);
    EXPECT_EQ(progress.GetStep(), 7);
    progress.SetBarColor(RGB(1, 2, 3));
    EXPECT_EQ(progress.GetBarColor(), RGB(1, 2, 3));
    progress.SetBkColor(RGB(4, 5, 6));
    EXPECT_EQ(progress.GetBkColor(), RGB(4, 5, 6));
    CSpinButtonCtrl spin;
    EXPECT_TRUE(spin.CreateEx(0, WS_CHILD, CRect(0, 0, 10, 30), &parent, 3));
}

}  // namespace
