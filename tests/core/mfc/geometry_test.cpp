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

TEST(Geometry, EverySumAndDifference) {
    const CPoint point(10, 20);
    const CSize size(3, 7);
    const POINT step = {3, 7};
    const CRect box(1, 2, 30, 40);
    EXPECT_EQ(size + point, CPoint(13, 27));
    EXPECT_EQ(size - point, CPoint(-7, -13));
    EXPECT_EQ(size + size, CSize(6, 14));
    EXPECT_EQ(-size, CSize(-3, -7));
    EXPECT_EQ(point + step, CPoint(13, 27));
    EXPECT_EQ(point - size, CPoint(7, 13));
    EXPECT_EQ(size + &box, CRect(4, 9, 33, 47));
    EXPECT_EQ(size - &box, CRect(-2, -5, 27, 33));
    EXPECT_EQ(point + &box, CRect(11, 22, 40, 60));
    EXPECT_EQ(point - &box, CRect(-9, -18, 20, 20));
    EXPECT_EQ(box + size, CRect(4, 9, 33, 47));
    EXPECT_EQ(box - size, CRect(-2, -5, 27, 33));
    EXPECT_EQ(box - point, CRect(-9, -18, 20, 20));
    const CRect sides(1, 2, 3, 4);
    EXPECT_EQ(box + LPCRECT(sides), CRect(0, 0, 33, 44));
    EXPECT_EQ(box - LPCRECT(sides), CRect(2, 4, 27, 36));
    EXPECT_EQ(box & sides, CRect(1, 2, 3, 4));
    EXPECT_EQ(box & CRect(20, 30, 90, 90), CRect(20, 30, 30, 40));
    EXPECT_EQ(box | CRect(20, 30, 90, 95), CRect(1, 2, 90, 95));
}

TEST(Geometry, ValuesChangeInPlace) {
    CSize size(3, 7);
    size += CSize(10, 20);
    EXPECT_EQ(size, CSize(13, 27));
    size -= CSize(1, 2);
    EXPECT_EQ(size, CSize(12, 25));
    size.SetSize(4, 5);
    EXPECT_EQ(size, CSize(4, 5));
    EXPECT_TRUE(size != CSize(4, 6));
    EXPECT_TRUE(size != CSize(3, 5));
    EXPECT_FALSE(size == CSize(4, 6));
    EXPECT_FALSE(size != CSize(4, 5));
    EXPECT_EQ(CSize(POINT{8, 9}), CSize(8, 9));
    CPoint point(1, 2);
    point.Offset(POINT{10, 20});
    EXPECT_EQ(point, CPoint(11, 22));
    point.Offset(SIZE{100, 200});
    EXPECT_EQ(point, CPoint(111, 222));
    point += POINT{1, 2};
    EXPECT_EQ(point, CPoint(112, 224));
    point += SIZE{3, 4};
    EXPECT_EQ(point, CPoint(115, 228));
    point -= POINT{5, 8};
    EXPECT_EQ(point, CPoint(110, 220));
    point -= SIZE{10, 21};
    EXPECT_EQ(point, CPoint(100, 199));
    point.SetPoint(6, 7);
    EXPECT_EQ(point, CPoint(6, 7));
    EXPECT_TRUE(point != CPoint(6, 8));
    EXPECT_FALSE(point != CPoint(6, 7));
    EXPECT_FALSE(point == CPoint(5, 7));
    EXPECT_EQ(CPoint(SIZE{8, 9}), CPoint(8, 9));
}

TEST(Geometry, RectanglesChangeInPlace) {
    CRect r(1, 2, 30, 40);
    r += POINT{10, 20};
    EXPECT_EQ(r, CRect(11, 22, 40, 60));
    r += SIZE{1, 2};
    EXPECT_EQ(r, CRect(12, 24, 41, 62));
    r -= POINT{10, 20};
    EXPECT_EQ(r, CRect(2, 4, 31, 42));
    r -= SIZE{1, 2};
    EXPECT_EQ(r, CRect(1, 2, 30, 40));
    const CRect sides(1, 2, 3, 4);
    r += LPCRECT(sides);
    EXPECT_EQ(r, CRect(0, 0, 33, 44));
    r -= LPCRECT(sides);
    EXPECT_EQ(r, CRect(1, 2, 30, 40));
    r &= CRect(10, 10, 99, 99);
    EXPECT_EQ(r, CRect(10, 10, 30, 40));
    r |= CRect(50, 5, 60, 7);
    EXPECT_EQ(r, CRect(10, 5, 60, 40));
    r.SetRect(1, 2, 3, 4);
    EXPECT_EQ(r, CRect(1, 2, 3, 4));
    r.SetRect(CPoint(5, 6), CPoint(70, 80));
    EXPECT_EQ(r, CRect(5, 6, 70, 80));
    r.MoveToX(10);
    EXPECT_EQ(r, CRect(10, 6, 75, 80));
    r.MoveToY(20);
    EXPECT_EQ(r, CRect(10, 20, 75, 94));
    r.MoveToXY(CPoint(1, 2));
    EXPECT_EQ(r, CRect(1, 2, 66, 76));
    r.InflateRect(CSize(2, 3));
    EXPECT_EQ(r, CRect(-1, -1, 68, 79));
    r.DeflateRect(CSize(3, 4));
    EXPECT_EQ(r, CRect(2, 3, 65, 75));
    r.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(r, CRect(1, 1, 68, 79));
    r.OffsetRect(CPoint(5, 6));
    EXPECT_EQ(r, CRect(6, 7, 73, 85));
    r.OffsetRect(CSize(-6, -7));
    EXPECT_EQ(r, CRect(0, 0, 67, 78));
    EXPECT_EQ(r.Width(), 67);
    EXPECT_EQ(r.Height(), 78);
    r.SetRectEmpty();
    EXPECT_TRUE(r.IsRectNull());
    r.CopyRect(sides);
    EXPECT_EQ(r, sides);
    EXPECT_EQ(r.BottomRight(), CPoint(3, 4));
    CRect::SwapLeftRight(&r);
    EXPECT_EQ(r, CRect(3, 2, 1, 4));
}

TEST(Geometry, EveryEdgeCounts) {
    const CRect r(10, 20, 40, 60);
    for (const CRect& other :
         {CRect(11, 20, 40, 60), CRect(10, 21, 40, 60), CRect(10, 20, 41, 60), CRect(10, 20, 40, 61)}) {
        EXPECT_FALSE(r == other);
        EXPECT_TRUE(r != other);
        EXPECT_FALSE(r.EqualRect(other));
    }
    EXPECT_FALSE(r != CRect(10, 20, 40, 60));
    EXPECT_FALSE(r.PtInRect(CPoint(9, 30)));
    EXPECT_FALSE(r.PtInRect(CPoint(20, 19)));
    EXPECT_TRUE(r.PtInRect(CPoint(39, 59)));
    EXPECT_TRUE(CRect(5, 5, 9, 5).IsRectEmpty());
    EXPECT_TRUE(CRect(9, 5, 5, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 6, 6).IsRectEmpty());
    for (const CRect& other : {CRect(1, 0, 0, 0), CRect(0, 1, 0, 0), CRect(0, 0, 1, 0), CRect(0, 0, 0, 1)})
        EXPECT_FALSE(other.IsRectNull());
    EXPECT_EQ(CRect(1, 2, 3, 4).MulDiv(3, 2), CRect(2, 3, 5, 6));
    EXPECT_EQ(CRect(1, 2, 3, 4).MulDiv(3, 0), CRect(-1, -1, -1, -1));
    CRect upright(10, 40, 30, 20), across(30, 20, 10, 40), fine(1, 2, 3, 4);
    upright.NormalizeRect();
    EXPECT_EQ(upright, CRect(10, 20, 30, 40));
    across.NormalizeRect();
    EXPECT_EQ(across, CRect(10, 20, 30, 40));
    fine.NormalizeRect();
    EXPECT_EQ(fine, CRect(1, 2, 3, 4));
}
