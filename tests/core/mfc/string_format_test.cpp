// CString::Format: every letter, flag and size, against the C library where the two agree.
#include <afx.h>
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdarg>

namespace {

template <class... Args>
CString formatted(LPCWSTR format, Args... args) {
    CString s;
    s.Format(format, args...);
    return s;
}

CString formatted_list(LPCWSTR format, ...) {
    CString s;
    va_list args;
    va_start(args, format);
    s.FormatV(format, args);
    va_end(args);
    return s;
}

}  // namespace

TEST(StringFormat, PrintsStringsOfBothWidths) {
    EXPECT_EQ(formatted(L"%s|%S|%hs|%ls|%ws", L"wide", "narrow", "hs", L"ls", L"ws"),
              L"wide|narrow|hs|ls|ws");
    EXPECT_EQ(formatted(L"%c%C%hc%lc", L'a', 'b', 'c', L'd'), L"abcd");
    CStringA narrow;
    narrow.Format("%s|%S", "narrow", L"wide");
    EXPECT_EQ(narrow, "narrow|wide");
}

TEST(StringFormat, TakesStringObjectsAsTheyAre) {
    const CString name(L"Layer1");
    EXPECT_EQ(formatted(L"<%s> %d", name, 7), L"<Layer1> 7");
    EXPECT_EQ(formatted(L"%hs", CStringA("narrow")), L"narrow");
}

TEST(StringFormat, MayPrintTheStringItself) {
    CString s(L"abc");
    s.Format(L"%s-%s", s, s.GetString());
    EXPECT_EQ(s, L"abc-abc");
    s.AppendFormat(L"(%s)", s);
    EXPECT_EQ(s, L"abc-abc(abc-abc)");
}

TEST(StringFormat, NullTextsAndMissingArgumentsAreSafe) {
    EXPECT_EQ(formatted(L"%s", static_cast<LPCWSTR>(nullptr)), L"(null)");
    EXPECT_EQ(formatted(L"%.3s", static_cast<LPCWSTR>(nullptr)), L"(nu");
    EXPECT_EQ(formatted(L"%s %d"), L"(null) 0");
    EXPECT_EQ(formatted(L"%s", 42), L"(null)");
    EXPECT_EQ(formatted(L"%d%n%d", 1, nullptr, 2), L"12");
}

TEST(StringFormat, ATextOfTheOtherWidthIsPrintedAsWhatItIs) {
    EXPECT_EQ(formatted(L"%s %S", "narrow", L"wide"), L"narrow wide");
}

TEST(StringFormat, BadLettersAreCopied) {
    EXPECT_EQ(formatted(L"%y %", 1), L"%y %");
    EXPECT_EQ(formatted(L"100%% %5", 1), L"100% %5");
    EXPECT_EQ(formatted(L"%-+ #0*.*", 3, 4), L"%-+ #0*.*");
}

TEST(StringFormat, PrecisionBoundsWhatIsReadOfAText) {
    const wchar_t open_end[3] = {L'a', L'b', L'c'};
    EXPECT_EQ(formatted(L"%.3s", static_cast<const wchar_t*>(open_end)), L"abc");
    EXPECT_EQ(formatted(L"[%5.2s][%-5.2s]", L"xyz", L"xyz"), L"[   xy][xy   ]");
}

TEST(StringFormat, IntegerSizesAreThoseOfThePlatform) {
    EXPECT_EQ(formatted(L"%d %ld %i", -1, 0x1'0000'0002LL, 3), L"-1 2 3");
    EXPECT_EQ(formatted(L"%I64d %lld %I32d", LLONG_MIN, LLONG_MAX, -5),
              L"-9223372036854775808 9223372036854775807 -5");
    EXPECT_EQ(formatted(L"%u %I64u", -1, -1LL), L"4294967295 18446744073709551615");
    EXPECT_EQ(formatted(L"%hd %hhd %hu", 70000, 300, 70000), L"4464 44 4464");
    EXPECT_EQ(formatted(L"%zu %Iu %tx", size_t{1} << 40, size_t{1} << 40, ptrdiff_t{1} << 36),
              L"1099511627776 1099511627776 1000000000");
    EXPECT_EQ(formatted(L"%p", reinterpret_cast<void*>(0xABCD)), L"000000000000ABCD");
}

TEST(StringFormat, AgreesWithTheCLibraryOnIntegers) {
    for (const char* letters : {"d",  "5d", "-5d|", "05d", "+d", " d",    ".3d", "8.3d",  "08.3d", ".0d", "x",
                                "#x", "X",  "#X",   "o",   "#o", "#010x", "u",   "-#8x|", "+.0d",  "+05d"}) {
        const std::string format = std::string("%") + letters;
        for (int value : {0, 1, -1, 42, -12345, INT_MAX, INT_MIN}) {
            char expected[64];
            std::snprintf(expected, sizeof expected, format.c_str(), value);
            EXPECT_EQ(formatted(CString(format.c_str()), value), CString(expected))
                << format << " of " << value;
        }
    }
}

TEST(StringFormat, AlternateOctalOfNothingIsStillAZero) { EXPECT_EQ(formatted(L"%#.0o|%.0o", 0, 0), L"0|"); }

TEST(StringFormat, AgreesWithTheCLibraryOnReals) {
    for (const char* letters : {"f",   ".0f",  "#.0f", "10.3f",  "-10.3f|", "+f",    " f",    "010.2f", "e",
                                ".0e", "#.0e", "E",    ".10e",   "g",       "#g",    ".3g",   "#.3g",   ".0g",
                                "G",   "012g", ".17g", "20.12f", "+.3e",    ".200f", "015.4e"}) {
        const std::string format = std::string("%") + letters;
        for (double value :
             {0.0, -0.0, 1.0, -1.5, 0.1, 123456.789, 1e-5, 9.9995, 1e100, 1.7976931348623157e308,
              4.9406564584124654e-324, 100000.0, 999998.5, 0.0001, HUGE_VAL, -HUGE_VAL}) {
            char expected[1024];
            std::snprintf(expected, sizeof expected, format.c_str(), value);
            EXPECT_EQ(formatted(CString(format.c_str()), value), CString(expected))
                << format << " of " << value;
        }
    }
}

TEST(StringFormat, RoundingUpToAnotherDigitPicksTheStyleOfTheRoundedNumber) {
    EXPECT_EQ(formatted(L"%g %#g", 999999.5, 999999.5), L"1e+06 1.00000e+06");
}

TEST(StringFormat, HexadecimalRealsHaveThirteenDigitsUnlessTold) {
    EXPECT_EQ(formatted(L"%a", 1.5), L"0x1.8000000000000p+0");
    EXPECT_EQ(formatted(L"%.0a %A", 1.0, 0.5), L"0x1p+0 0X1.0000000000000P-1");
}

TEST(StringFormat, StarTakesWidthAndPrecisionFromTheArguments) {
    EXPECT_EQ(formatted(L"[%*d][%-*d][%*d]", 4, 1, 4, 2, -4, 3), L"[   1][2   ][3   ]");
    EXPECT_EQ(formatted(L"%.*f %.*f", 2, 1.239, -1, 1.5), L"1.24 1.500000");
}

TEST(StringFormat, ResultsHaveNoLengthLimit) {
    const CString text(L'x', 100000);
    EXPECT_EQ(formatted(L"%s%s", text, text).GetLength(), 200000);
    EXPECT_EQ(formatted(L"%50000d", 1).GetLength(), 50000);
    EXPECT_EQ(formatted(L"%.3000f", 1.0).GetLength(), 3002);
    EXPECT_THROW(formatted(L"%2000000000d", 1), CMemoryException*);
}

TEST(StringFormat, AnArgumentListPrintsTheSame) {
    EXPECT_EQ(formatted_list(L"%s %S %d %I64d %.2f %c %p %%", L"w", "n", -3, 5LL, 2.5, L'c', nullptr),
              L"w n -3 5 2.50 c 0000000000000000 %");
    EXPECT_EQ(formatted_list(L"%*d|%hd|%llx", 3, 7, 65537, 255LL), L"  7|1|ff");
}
