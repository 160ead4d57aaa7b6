#include <gtest/gtest.h>

#include <ktut.h>

#include <algorithm>

TEST(CompareString, SaysOneWhenTheFirstComesFirst) {
    EXPECT_EQ(ktutCompareString(L"a", L"b"), 1);
    EXPECT_EQ(ktutCompareString(L"b", L"a"), -1);
    EXPECT_EQ(ktutCompareString(L"a", L"a"), 0);
    EXPECT_EQ(ktutCompareString(nullptr, L""), 0);
    EXPECT_EQ(ktutCompareString(L"", L"a"), 1);
}

TEST(CompareString, RunsOfDigitsCompareAsNumbers) {
    EXPECT_EQ(ktutCompareString(L"A2", L"A10"), 1);
    EXPECT_EQ(ktutCompareString(L"A2B3", L"A2B20"), 1);
    EXPECT_EQ(ktutCompareString(L"A99999999999999999999", L"A100000000000000000000"), 1);
    EXPECT_EQ(ktutCompareString(L"A1", L"A01"), 1) << "fewer leading zeros first";
    EXPECT_EQ(ktutCompareString(L"A01B2", L"A1B3"), 1) << "zeros count only when nothing else differs";
}

TEST(CompareString, AnswersOneMinusOneOrZeroAndNothingElse) {
    EXPECT_EQ(ktutCompareString(L"abc", L"x"), 1);
    EXPECT_EQ(ktutCompareString(L"x", L"abc"), -1);
    EXPECT_EQ(ktutCompareString(L"A100", L"A2"), -1) << "more digits, a greater number";
    EXPECT_EQ(ktutCompareString(L"A2", L"A100"), 1);
    EXPECT_EQ(ktutCompareString(L"A01", L"A1"), -1) << "more leading zeros come behind";
    EXPECT_EQ(ktutCompareString(L"A001", L"A01"), -1);
    EXPECT_EQ(ktutCompareString(L"A0", L"A00"), 1) << "zero is a number too";
    EXPECT_EQ(ktutCompareString(L"A00", L"A0"), -1);
    EXPECT_EQ(ktutCompareString(L"A", L"A1"), 1) << "a text before what continues it";
    EXPECT_EQ(ktutCompareString(L"A1", L"A"), -1);
    EXPECT_EQ(ktutCompareString(L"A", L""), -1);
}

TEST(CompareString, DigitsOfEqualNumbersAndEqualZerosLeaveTheRestToDecide) {
    EXPECT_EQ(ktutCompareString(L"A01B2", L"A01B3"), 1);
    EXPECT_EQ(ktutCompareString(L"A01B3", L"A01B2"), -1);
    EXPECT_EQ(ktutCompareString(L"A01B01", L"A1B001"), -1) << "the first difference in zeros decides";
    EXPECT_EQ(ktutCompareString(L"A1B001", L"A01B01"), 1);
    EXPECT_EQ(ktutCompareString(L"A12", L"A12"), 0) << "digits at the very end";
    EXPECT_EQ(ktutCompareString(L"12", L"B"), 1) << "a digit against a letter compares as a character";
}

TEST(CompareString, CaseCountsLast) {
    EXPECT_EQ(ktutCompareString(L"dashed", L"DASHED2"), 1);
    EXPECT_EQ(ktutCompareString(L"DASHED", L"dashed"), 1);
    EXPECT_EQ(ktutCompareString(L"\x00E9"
                                L"a",
                                L"\x00C9"
                                L"b"),
              1);
}

TEST(CompareString, OrdersAListWithoutContradiction) {
    std::vector<std::wstring> names = {L"Hidden", L"CENTER2", L"center10", L"Center",        L"a1",
                                       L"a01",    L"A1",      L"",         L"ACAD_ISO02W100"};
    for (const auto& a : names)
        for (const auto& b : names) {
            EXPECT_EQ(ktutCompareString(a.c_str(), b.c_str()), -ktutCompareString(b.c_str(), a.c_str()));
            for (const auto& c : names)
                if (ktutCompareString(a.c_str(), b.c_str()) == 1 &&
                    ktutCompareString(b.c_str(), c.c_str()) == 1) {
                    EXPECT_EQ(ktutCompareString(a.c_str(), c.c_str()), 1);
                }
        }
    std::sort(names.begin(), names.end(),
              [](const auto& a, const auto& b) { return ktutCompareString(a.c_str(), b.c_str()) == 1; });
    EXPECT_EQ(names, (std::vector<std::wstring>{L"", L"A1", L"a1", L"a01", L"ACAD_ISO02W100", L"Center",
                                                L"CENTER2", L"center10", L"Hidden"}));
}

TEST(CompareString, NullIsEmpty) {
    EXPECT_EQ(ktutCompareString(nullptr, nullptr), 0);
    EXPECT_EQ(ktutCompareString(nullptr, L""), 0);
    EXPECT_EQ(ktutCompareString(L"", nullptr), 0);
    EXPECT_EQ(ktutCompareString(L"a", nullptr), -1);
}
