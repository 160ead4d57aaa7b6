// Tells which rectangle was found in the place of the expected one.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

namespace docking_test {

inline void expectRect(const CRect& rect, int left, int top, int right, int bottom) {
    EXPECT_TRUE(rect == CRect(left, top, right, bottom))
        << rect.left << ' ' << rect.top << ' ' << rect.right << ' ' << rect.bottom;
}

}  // namespace docking_test
