// Numbers at the ends of their types and ranges: what is taken, what is refused and by which words.
#include <afxcmn.h>

#include <limits>

#include "exchange_dialog.h"

namespace {

constexpr int kEdit = 1001, kOtherEdit = 1002, kCheck = 1003, kRadio = 1004;

struct DataRanges : ui_test::Exchange<400> {
    DataRanges() {
        dialog.ShowWindow(SW_SHOW);
        ui_test::pump();
    }
    /// The value of a text that is taken.
    template <class T>
    T read(const wchar_t* text) {
        dialog.SetDlgItemText(kEdit, text);
        T value = 7;
        EXPECT_TRUE(exchanges(TRUE, [&](CDataExchange* dx) { DDX_Text(dx, kEdit, value); }));
        return value;
    }
    /// What the user is told of a text that is none of a T.
    template <class T>
    CString refused(const wchar_t* text) {
        dialog.SetDlgItemText(kEdit, text);
        T value = 7;
        const CString message = told([&](CDataExchange* dx) { DDX_Text(dx, kEdit, value); });
        EXPECT_EQ(value, T{7}) << "as it was";
        return message;
    }
    template <class T>
    CString shown(T value) {
        exchanges(FALSE, [&](CDataExchange* dx) { DDX_Text(dx, kEdit, value); });
        CString text;
        dialog.GetDlgItemText(kEdit, text);
        return text;
    }
};

const wchar_t* const kWhole = L"Enter a whole number.";
const wchar_t* const kByte = L"Enter a whole number from 0 to 255.";
const wchar_t* const kNumber = L"Enter a number.";
const wchar_t* const kNotNegative = L"Enter a whole number of 0 or more.";

}  // namespace

TEST_F(DataRanges, SmallNumbersAtTheirEnds) {
    EXPECT_EQ(read<BYTE>(L"0"), 0);
    EXPECT_EQ(read<BYTE>(L"255"), 255);
    EXPECT_EQ(refused<BYTE>(L"256"), kByte);
    EXPECT_EQ(refused<BYTE>(L"-1"), kByte);
    EXPECT_EQ(read<short>(L"32767"), 32767);
    EXPECT_EQ(read<short>(L"-32768"), -32768);
    EXPECT_EQ(refused<short>(L"32768"), kWhole);
    EXPECT_EQ(refused<short>(L"-32769"), kWhole);
}

TEST_F(DataRanges, LargeNumbersAtTheirEnds) {
    EXPECT_EQ(read<int>(L"2147483647"), 2147483647);
    EXPECT_EQ(refused<int>(L"2147483648"), kWhole);
    EXPECT_EQ(refused<int>(L"-2147483649"), kWhole);
    EXPECT_EQ(read<long>(L"-2147483648"), std::numeric_limits<long>::min());
    EXPECT_EQ(refused<long>(L"2147483648"), kWhole);
    EXPECT_EQ(read<UINT>(L"4294967295"), 4294967295U);
    EXPECT_EQ(refused<UINT>(L"4294967296"), kNotNegative);
    EXPECT_EQ(refused<UINT>(L"-1"), kNotNegative);
    EXPECT_EQ(read<DWORD>(L"4294967295"), 4294967295UL);
    EXPECT_EQ(refused<DWORD>(L"-1"), kNotNegative);
    EXPECT_EQ(read<LONGLONG>(L"-9223372036854775808"), std::numeric_limits<LONGLONG>::min());
    EXPECT_EQ(read<LONGLONG>(L"9223372036854775807"), std::numeric_limits<LONGLONG>::max());
    EXPECT_EQ(refused<LONGLONG>(L"9223372036854775808"), kWhole);
    EXPECT_EQ(read<ULONGLONG>(L"18446744073709551615"), std::numeric_limits<ULONGLONG>::max());
    EXPECT_EQ(refused<ULONGLONG>(L"18446744073709551616"), kNotNegative);
    EXPECT_EQ(refused<ULONGLONG>(L"-1"), kNotNegative);
}

TEST_F(DataRanges, RealNumbersAtTheirEnds) {
    EXPECT_EQ(read<float>(L"3.4e38"), 3.4e38F);
    EXPECT_EQ(refused<float>(L"3.5e38"), kNumber);
    EXPECT_EQ(refused<float>(L"-3.5e38"), kNumber);
    EXPECT_EQ(read<double>(L"1e308"), 1e308);
    EXPECT_EQ(refused<double>(L"1e309"), kNumber);
    EXPECT_EQ(refused<double>(L"inf"), kNumber);
    EXPECT_EQ(refused<double>(L"nan"), kNumber);
    EXPECT_EQ(refused<double>(L""), kNumber);
    EXPECT_EQ(read<double>(L" 2.5 "), 2.5);
    EXPECT_EQ(refused<double>(L"2.5m"), kNumber);
}

TEST_F(DataRanges, NumbersAreShownWithTheDigitsTheyHave) {
    EXPECT_EQ(shown<BYTE>(255), L"255");
    EXPECT_EQ(shown<short>(-7), L"-7");
    EXPECT_EQ(shown<int>(-2147483647), L"-2147483647");
    EXPECT_EQ(shown<UINT>(4294967295U), L"4294967295");
    EXPECT_EQ(shown<long>(-5), L"-5");
    EXPECT_EQ(shown<DWORD>(4294967295UL), L"4294967295");
    EXPECT_EQ(shown<LONGLONG>(-9000000000LL), L"-9000000000");
    EXPECT_EQ(shown<ULONGLONG>(18446744073709551615ULL), L"18446744073709551615");
    EXPECT_EQ(shown<float>(1.0F / 3), L"0.333333");
    EXPECT_EQ(shown<double>(1.0 / 3), L"0.333333333333333");
}

TEST_F(DataRanges, RangesTakeTheirEndsAndNameThemOtherwise) {
    const auto checked = [](auto check, auto value, auto least, auto most) {
        return [=](CDataExchange* dx) {
            dx->PrepareEditCtrl(kEdit);
            check(dx, value, least, most);
        };
    };
    const auto takes = [&](auto... arguments) { return exchanges(TRUE, checked(arguments...)); };
    const auto said = [&](auto... arguments) { return told(checked(arguments...)); };
    const wchar_t* const whole = L"Enter a whole number from 10 to 20.";
    const auto all_of = [&](auto check, auto type) {
        using T = decltype(type);
        EXPECT_TRUE(takes(check, T{10}, T{10}, T{20}));
        EXPECT_TRUE(takes(check, T{20}, T{10}, T{20}));
        EXPECT_EQ(said(check, T{9}, T{10}, T{20}), whole);
        EXPECT_EQ(said(check, T{21}, T{10}, T{20}), whole);
    };
    all_of(&DDV_MinMaxByte, BYTE{});
    all_of(&DDV_MinMaxShort, short{});
    all_of(&DDV_MinMaxInt, int{});
    all_of(&DDV_MinMaxLong, long{});
    all_of(&DDV_MinMaxUInt, UINT{});
    all_of(&DDV_MinMaxDWord, DWORD{});
    all_of(&DDV_MinMaxUnsigned, DWORD{});
    all_of(&DDV_MinMaxLongLong, LONGLONG{});
    all_of(&DDV_MinMaxULongLong, ULONGLONG{});
    EXPECT_TRUE(takes(&DDV_MinMaxFloat, 0.5F, 0.5F, 1.5F));
    EXPECT_EQ(said(&DDV_MinMaxFloat, 1.75F, 0.5F, 1.5F), L"Enter a number from 0.5 to 1.5.");
    EXPECT_TRUE(takes(&DDV_MinMaxDouble, 1.5, 0.5, 1.5));
    EXPECT_EQ(said(&DDV_MinMaxDouble, 0.25, 1.0 / 3, 1.5), L"Enter a number from 0.333333333333333 to 1.5.");
    EXPECT_EQ(said(&DDV_MinMaxInt, -21, -20, -10), L"Enter a whole number from -20 to -10.");
}

TEST_F(DataRanges, NothingIsCheckedWhileValuesAreShown) {
    EXPECT_TRUE(exchanges(FALSE, [](CDataExchange* dx) {
        dx->PrepareEditCtrl(kEdit);
        DDV_MinMaxInt(dx, 99, 10, 20);
        DDV_MinMaxDouble(dx, 99, 10, 20);
    }));
}

TEST_F(DataRanges, TextsHaveALimit) {
    CString text(L"seven");
    EXPECT_TRUE(exchanges(FALSE, [&](CDataExchange* dx) {
        DDX_Text(dx, kEdit, text);
        DDV_MaxChars(dx, text, 5);
    }));
    EXPECT_EQ(dialog.SendDlgItemMessage(kEdit, EM_GETLIMITTEXT), 5);
    const auto check = [&](CDataExchange* dx) {
        DDX_Text(dx, kEdit, text);
        DDV_MaxChars(dx, text, 5);
    };
    EXPECT_TRUE(exchanges(TRUE, check));
    dialog.SetDlgItemText(kEdit, L"eleven");
    EXPECT_EQ(told(check), L"Enter no more than 5 characters.");
}

TEST_F(DataRanges, ChecksAndRadioButtonsByNumber) {
    int check = BST_CHECKED, radio = 1;
    EXPECT_TRUE(exchanges(FALSE, [&](CDataExchange* dx) {
        DDX_Check(dx, kCheck, check);
        DDX_Radio(dx, kRadio, radio);
    }));
    EXPECT_EQ(dialog.IsDlgButtonChecked(kCheck), static_cast<UINT>(BST_CHECKED));
    EXPECT_EQ(dialog.IsDlgButtonChecked(kRadio), 0U);
    EXPECT_EQ(dialog.IsDlgButtonChecked(kRadio + 1), 1U);
    for (const int wrong : {-1, 3}) {
        check = wrong;
        exchanges(FALSE, [&](CDataExchange* dx) { DDX_Check(dx, kCheck, check); });
        EXPECT_EQ(check, 0) << "no such state";
        EXPECT_EQ(dialog.IsDlgButtonChecked(kCheck), 0U);
    }
    radio = -1;
    exchanges(FALSE, [&](CDataExchange* dx) { DDX_Radio(dx, kRadio, radio); });
    EXPECT_EQ(dialog.IsDlgButtonChecked(kRadio + 1), 0U) << "none of them";
    radio = 5;
    exchanges(TRUE, [&](CDataExchange* dx) { DDX_Radio(dx, kRadio, radio); });
    EXPECT_EQ(radio, -1);
}

TEST_F(DataRanges, AListIsAskedForExactlyTheText) {
    constexpr int kList = 1008;
    dialog.SendDlgItemMessage(kList, LB_RESETCONTENT);
    for (const wchar_t* text : {L"layers", L"layer", L"line"})
        dialog.SendDlgItemMessage(kList, LB_INSERTSTRING, static_cast<WPARAM>(-1),
                                  reinterpret_cast<LPARAM>(text));
    CString value(L"layer");
    const auto exchange = [&](CDataExchange* dx) { DDX_LBStringExact(dx, kList, value); };
    EXPECT_TRUE(exchanges(FALSE, exchange));
    EXPECT_EQ(dialog.SendDlgItemMessage(kList, LB_GETCURSEL), 1) << "not the first that begins so";
    EXPECT_EQ(value, L"layer");
    dialog.SendDlgItemMessage(kList, LB_SETCURSEL, 2);
    EXPECT_TRUE(exchanges(TRUE, exchange));
    EXPECT_EQ(value, L"line");
}
