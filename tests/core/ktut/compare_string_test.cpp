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
