// A call of CDC beside the system's own function: the same pixels have to come out, and the same answer.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

#include "canvas.h"

namespace ui_test {

constexpr int kCanvasSize = 100;  // pixels

/// A canvas with a red pen and a blue brush in it, at (7, 9).
class ReadyCanvas : public Canvas {
public:
    ReadyCanvas() : Canvas(kCanvasSize, kCanvasSize) {
        const HDC bare = dc.m_hDC;
        ::SelectObject(bare, ::GetStockObject(DC_PEN));
        ::SelectObject(bare, ::GetStockObject(DC_BRUSH));
        ::SetDCPenColor(bare, RGB(255, 0, 0));
        ::SetDCBrushColor(bare, RGB(0, 0, 255));
        ::MoveToEx(bare, 7, 9, nullptr);
    }
};

/// Runs `ours` on a CDC and `bare` on the handle of another canvas. Both have to answer the same, not 0, and
/// to draw the same, not nothing.
template <class Ours, class Bare>
void expect_drawn_beside(const char* name, Ours ours, Bare bare) {
    ReadyCanvas mine, system;
    const auto answer = ours(mine.dc);
    EXPECT_EQ(answer, bare(system.dc.m_hDC)) << name;
    EXPECT_NE(answer, decltype(answer){}) << name;
    EXPECT_TRUE(mine == system) << name;
    EXPECT_FALSE(mine.isAll(RGB(255, 255, 255))) << name;
}

/// The same where nothing is answered.
template <class Ours, class Bare>
void expect_shown_beside(const char* name, Ours ours, Bare bare) {
    expect_drawn_beside(
        name, [&](CDC& dc) { return ours(dc), 1; }, [&](HDC dc) { return bare(dc), 1; });
}

}  // namespace ui_test
