#include <afx.h>
#include <gtest/gtest.h>
TEST(String, IsEmptyAtFirst) {
    CString s;
    EXPECT_TRUE(s.IsEmpty());
    s.Format(L"%d-%s", 5, CString(L"x"));
    EXPECT_EQ(s, L"5-x");
}
