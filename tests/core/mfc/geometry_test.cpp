// CPoint, CSize, CRect.
#include <afx.h>
#include <gtest/gtest.h>

TEST(Geometry, PointsAndSizesUnpackSignedWords) {
    const CPoint point(static_cast<LPARAM>(0xFFFE0003));
    EXPECT_EQ(point.x, 3);
    EXPECT_EQ(point.y, -2);
    const CSize size(static_cast<DWORD>(0x0004FFFF));
    EXPECT_EQ(size.cx, -1);
    EXPECT_EQ(size.cy, 4);
}

TEST(Geometry, PointArithmetic) {
    CPoint p(5, 7);
    EXPECT_EQ(p - CPoint(2, 3), CSize(3, 4));
    EXPECT_EQ(p + CSize(1, 1), CPoint(6, 8));
    p.Offset(-5, -7);
    EXPECT_EQ(p, CPoint(0, 0));
    EXPECT_EQ(-CPoint(1, -2), CPoint(-1, 2));
    EXPECT_EQ(CSize(3, 4) - CSize(1, 1), CSize(2, 3));
}

TEST(Geometry, RectangleBasics) {
    CRect r(CPoint(10, 20), CSize(30, 40));
    EXPECT_EQ(r, CRect(10, 20, 40, 60));
    EXPECT_EQ(r.Size(), CSize(30, 40));
    EXPECT_EQ(r.CenterPoint(), CPoint(25, 40));
    EXPECT_TRUE(r.PtInRect(CPoint(10, 20)));
    EXPECT_FALSE(r.PtInRect(CPoint(40, 20)));
    EXPECT_FALSE(r.PtInRect(CPoint(10, 60)));
    r.TopLeft() = CPoint(0, 0);
    EXPECT_EQ(r, CRect(0, 0, 40, 60));
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_TRUE(CRect(0, 0, 0, 0).IsRectNull());
    EXPECT_FALSE(CRect(1, 1, 1, 1).IsRectNull());
}

TEST(Geometry, RectanglesMoveAndGrow) {
    CRect r(10, 10, 20, 30);
    r.InflateRect(1, 2);
    EXPECT_EQ(r, CRect(9, 8, 21, 32));
    r.DeflateRect(1, 2, 3, 4);
    EXPECT_EQ(r, CRect(10, 10, 18, 28));
    r.MoveToXY(0, 0);
    EXPECT_EQ(r, CRect(0, 0, 8, 18));
    EXPECT_EQ(r + CPoint(1, 1), CRect(1, 1, 9, 19));
    CRect turned(30, 40, 10, 20);
    turned.NormalizeRect();
    EXPECT_EQ(turned, CRect(10, 20, 30, 40));
    turned.SwapLeftRight();
    EXPECT_EQ(turned, CRect(30, 20, 10, 40));
    EXPECT_EQ(CRect(0, 0, 10, 20).MulDiv(1, 2), CRect(0, 0, 5, 10));
}

TEST(Geometry, Intersection) {
    CRect r;
    EXPECT_TRUE(r.IntersectRect(CRect(0, 0, 10, 10), CRect(5, 5, 15, 15)));
    EXPECT_EQ(r, CRect(5, 5, 10, 10));
    EXPECT_FALSE(r.IntersectRect(CRect(0, 0, 10, 10), CRect(10, 0, 20, 10)));
    EXPECT_TRUE(r.IsRectNull());
}

TEST(Geometry, UnionIgnoresEmptyRectangles) {
    CRect r;
    EXPECT_TRUE(r.UnionRect(CRect(0, 0, 10, 10), CRect(20, 20, 30, 30)));
    EXPECT_EQ(r, CRect(0, 0, 30, 30));
    EXPECT_TRUE(r.UnionRect(CRect(5, 5, 5, 99), CRect(1, 2, 3, 4)));
    EXPECT_EQ(r, CRect(1, 2, 3, 4));
    EXPECT_FALSE(r.UnionRect(CRect(), CRect()));
    EXPECT_TRUE(r.IsRectNull());
}

TEST(Geometry, SubtractionCutsOnlyWholeSides) {
    CRect r;
    EXPECT_TRUE(r.SubtractRect(CRect(0, 0, 10, 10), CRect(5, 0, 20, 10)));
    EXPECT_EQ(r, CRect(0, 0, 5, 10));
    EXPECT_TRUE(r.SubtractRect(CRect(0, 0, 10, 10), CRect(-5, -5, 20, 4)));
    EXPECT_EQ(r, CRect(0, 4, 10, 10));
    EXPECT_TRUE(r.SubtractRect(CRect(0, 0, 10, 10), CRect(5, 5, 20, 20)));
    EXPECT_EQ(r, CRect(0, 0, 10, 10));
    EXPECT_TRUE(r.SubtractRect(CRect(0, 0, 10, 10), CRect(0, 3, 10, 5)));
    EXPECT_EQ(r, CRect(0, 0, 10, 10));
    EXPECT_FALSE(r.SubtractRect(CRect(0, 0, 10, 10), CRect(0, 0, 10, 10)));
    EXPECT_TRUE(r.IsRectEmpty());
}
