// What CDC draws, beside the system's own functions: lines, figures, bitmaps, texts, paths.
#include "drawn_beside.h"

namespace {

using ui_test::expect_drawn_beside;
using ui_test::expect_shown_beside;
using ui_test::kCanvasSize;
using ui_test::ReadyCanvas;

constexpr COLORREF kGreen = RGB(0, 200, 0), kYellow = RGB(255, 255, 0), kGrey = RGB(90, 100, 110);
const CRect kBox(13, 17, 71, 59);
const POINT kStart = {90, 11}, kEnd = {5, 83};
const POINT kPoints[] = {{12, 8}, {88, 21}, {63, 77}, {9, 49}, {40, 3}, {81, 90}, {22, 95}};
constexpr int kPointCount = static_cast<int>(std::size(kPoints));

/// A picture of four quarters to copy from.
struct Source : ReadyCanvas {
    Source() {
        dc.FillSolidRect(0, 0, 50, 50, kGreen);
        dc.FillSolidRect(50, 0, 50, 50, kYellow);
        dc.FillSolidRect(0, 50, 50, 50, kGrey);
        dc.FillSolidRect(20, 30, 5, 9, RGB(1, 2, 3));
    }
};

/// A mask of 16 by 16 pixels whose rows differ.
void make_mask(CBitmap& mask) {
    const WORD rows[16] = {0xFF0F, 0x00FF, 0x0FF0, 0x3333, 0x5555, 0xFFFF, 0x8001, 0x1234,
                           0x4321, 0xF0F0, 0x0001, 0x7FFF, 0xCCCC, 0x00F0, 0x0F00, 0xAAAA};
    mask.CreateBitmap(16, 16, 1, 1, rows);
}

}  // namespace

TEST(DcDrawing, Arcs) {
    expect_drawn_beside(
        "Arc", [](CDC& dc) { return dc.Arc(13, 17, 71, 59, 90, 11, 5, 83); },
        [](HDC dc) { return ::Arc(dc, 13, 17, 71, 59, 90, 11, 5, 83); });
    expect_drawn_beside(
        "Arc in a rectangle", [](CDC& dc) { return dc.Arc(kBox, kStart, kEnd); },
        [](HDC dc) { return ::Arc(dc, 13, 17, 71, 59, 90, 11, 5, 83); });
    expect_drawn_beside(
        "ArcTo", [](CDC& dc) { return dc.ArcTo(13, 17, 71, 59, 90, 11, 5, 83) && dc.LineTo(99, 50); },
        [](HDC dc) { return ::ArcTo(dc, 13, 17, 71, 59, 90, 11, 5, 83) && ::LineTo(dc, 99, 50); });
    expect_drawn_beside(
        "AngleArc", [](CDC& dc) { return dc.AngleArc(45, 52, 31, 20.0F, 130.0F); },
        [](HDC dc) { return ::AngleArc(dc, 45, 52, 31, 20.0F, 130.0F); });
    expect_drawn_beside(
        "Chord", [](CDC& dc) { return dc.Chord(13, 17, 71, 59, 90, 11, 5, 83); },
        [](HDC dc) { return ::Chord(dc, 13, 17, 71, 59, 90, 11, 5, 83); });
    expect_drawn_beside(
        "Pie", [](CDC& dc) { return dc.Pie(13, 17, 71, 59, 90, 11, 5, 83); },
        [](HDC dc) { return ::Pie(dc, 13, 17, 71, 59, 90, 11, 5, 83); });
}

TEST(DcDrawing, ArcsTheOtherWayRound) {
    expect_drawn_beside(
        "SetArcDirection",
        [](CDC& dc) {
            EXPECT_EQ(dc.SetArcDirection(AD_CLOCKWISE), AD_COUNTERCLOCKWISE);
            EXPECT_EQ(dc.GetArcDirection(), AD_CLOCKWISE);
            return dc.Arc(kBox, kStart, kEnd);
        },
        [](HDC dc) {
            ::SetArcDirection(dc, AD_CLOCKWISE);
            return ::Arc(dc, 13, 17, 71, 59, 90, 11, 5, 83);
        });
}

TEST(DcDrawing, Lines) {
    expect_drawn_beside(
        "LineTo", [](CDC& dc) { return dc.LineTo(60, 33) && dc.LineTo(CPoint(2, 80)); },
        [](HDC dc) { return ::LineTo(dc, 60, 33) && ::LineTo(dc, 2, 80); });
    expect_drawn_beside(
        "Polyline", [](CDC& dc) { return dc.Polyline(kPoints, 5); },
        [](HDC dc) { return ::Polyline(dc, kPoints, 5); });
    expect_drawn_beside(
        "PolylineTo", [](CDC& dc) { return dc.PolylineTo(kPoints, 3) && dc.LineTo(50, 99); },
        [](HDC dc) { return ::PolylineTo(dc, kPoints, 3) && ::LineTo(dc, 50, 99); });
    const DWORD counts[] = {3, 4};
    expect_drawn_beside(
        "PolyPolyline", [&](CDC& dc) { return dc.PolyPolyline(kPoints, counts, 2); },
        [&](HDC dc) { return ::PolyPolyline(dc, kPoints, counts, 2); });
    expect_drawn_beside(
        "PolyBezier", [](CDC& dc) { return dc.PolyBezier(kPoints, kPointCount); },
        [](HDC dc) { return ::PolyBezier(dc, kPoints, kPointCount); });
    expect_drawn_beside(
        "PolyBezierTo", [](CDC& dc) { return dc.PolyBezierTo(kPoints, 6) && dc.LineTo(50, 99); },
        [](HDC dc) { return ::PolyBezierTo(dc, kPoints, 6) && ::LineTo(dc, 50, 99); });
    const BYTE types[] = {PT_MOVETO,   PT_LINETO,   PT_BEZIERTO,
                          PT_BEZIERTO, PT_BEZIERTO, PT_LINETO | PT_CLOSEFIGURE};
    expect_drawn_beside(
        "PolyDraw", [&](CDC& dc) { return dc.PolyDraw(kPoints, types, 6) && dc.LineTo(50, 99); },
        [&](HDC dc) { return ::PolyDraw(dc, kPoints, types, 6) && ::LineTo(dc, 50, 99); });
}

TEST(DcDrawing, WhereALineBeginsIsAnswered) {
    ReadyCanvas canvas;
    EXPECT_EQ(canvas.dc.MoveTo(30, 40), CPoint(7, 9));
    EXPECT_EQ(canvas.dc.GetCurrentPosition(), CPoint(30, 40));
    EXPECT_EQ(canvas.dc.MoveTo(CPoint(50, 61)), CPoint(30, 40));
    EXPECT_EQ(canvas.dc.GetCurrentPosition(), CPoint(50, 61));
}

TEST(DcDrawing, Figures) {
    expect_drawn_beside(
        "Rectangle", [](CDC& dc) { return dc.Rectangle(13, 17, 71, 59); },
        [](HDC dc) { return ::Rectangle(dc, 13, 17, 71, 59); });
    expect_drawn_beside(
        "Rectangle of a rectangle", [](CDC& dc) { return dc.Rectangle(kBox); },
        [](HDC dc) { return ::Rectangle(dc, 13, 17, 71, 59); });
    expect_drawn_beside(
        "RoundRect", [](CDC& dc) { return dc.RoundRect(13, 17, 71, 59, 24, 11); },
        [](HDC dc) { return ::RoundRect(dc, 13, 17, 71, 59, 24, 11); });
    expect_drawn_beside(
        "RoundRect of a rectangle", [](CDC& dc) { return dc.RoundRect(kBox, CPoint(24, 11)); },
        [](HDC dc) { return ::RoundRect(dc, 13, 17, 71, 59, 24, 11); });
    expect_drawn_beside(
        "Ellipse", [](CDC& dc) { return dc.Ellipse(13, 17, 71, 59); },
        [](HDC dc) { return ::Ellipse(dc, 13, 17, 71, 59); });
    expect_drawn_beside(
        "Ellipse in a rectangle", [](CDC& dc) { return dc.Ellipse(kBox); },
        [](HDC dc) { return ::Ellipse(dc, 13, 17, 71, 59); });
    expect_drawn_beside(
        "Polygon", [](CDC& dc) { return dc.Polygon(kPoints, 5); },
        [](HDC dc) { return ::Polygon(dc, kPoints, 5); });
    const INT counts[] = {3, 4};
    expect_drawn_beside(
        "PolyPolygon", [&](CDC& dc) { return dc.PolyPolygon(kPoints, counts, 2); },
        [&](HDC dc) { return ::PolyPolygon(dc, kPoints, counts, 2); });
}

TEST(DcDrawing, FilledAndFramedRectangles) {
    CBrush green(kGreen);
    expect_shown_beside(
        "FillRect", [&](CDC& dc) { dc.FillRect(kBox, &green); },
        [&](HDC dc) { ::FillRect(dc, kBox, green); });
    expect_shown_beside(
        "FrameRect", [&](CDC& dc) { dc.FrameRect(kBox, &green); },
        [&](HDC dc) { ::FrameRect(dc, kBox, green); });
    expect_shown_beside(
        "InvertRect", [](CDC& dc) { dc.InvertRect(kBox); }, [](HDC dc) { ::InvertRect(dc, kBox); });
    expect_shown_beside(
        "DrawFocusRect", [](CDC& dc) { dc.DrawFocusRect(kBox); }, [](HDC dc) { ::DrawFocusRect(dc, kBox); });
    expect_drawn_beside(
        "DrawEdge",
        [](CDC& dc) { return dc.DrawEdge(CRect(kBox), EDGE_RAISED, BF_LEFT | BF_BOTTOM | BF_MIDDLE); },
        [](HDC dc) { return ::DrawEdge(dc, CRect(kBox), EDGE_RAISED, BF_LEFT | BF_BOTTOM | BF_MIDDLE); });
    expect_drawn_beside(
        "DrawFrameControl",
        [](CDC& dc) { return dc.DrawFrameControl(CRect(kBox), DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED); },
        [](HDC dc) {
            return ::DrawFrameControl(dc, CRect(kBox), DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED);
        });
    expect_drawn_beside(
        "PatBlt", [](CDC& dc) { return dc.PatBlt(13, 17, 58, 42, PATCOPY); },
        [](HDC dc) { return ::PatBlt(dc, 13, 17, 58, 42, PATCOPY); });
}

TEST(DcDrawing, AnEmptyBrushFillsAsTheSystemDoes) {
    ReadyCanvas mine, system;
    mine.dc.FillRect(kBox, nullptr);
    ::FillRect(system.dc.m_hDC, kBox, nullptr);
    mine.dc.FrameRect(kBox, nullptr);
    ::FrameRect(system.dc.m_hDC, kBox, nullptr);
    EXPECT_TRUE(mine == system);
}

TEST(DcDrawing, SolidRectanglesHaveTheirMeasures) {
    ReadyCanvas canvas;
    canvas.dc.FillSolidRect(3, 5, 20, 10, kGreen);
    EXPECT_EQ(canvas.count(kGreen), 20 * 10);
    EXPECT_EQ(canvas.at(3, 5), kGreen);
    EXPECT_EQ(canvas.at(22, 14), kGreen);
    canvas.dc.Draw3dRect(40, 50, 30, 12, kYellow, kGrey);
    EXPECT_EQ(canvas.count(kYellow), 29 + 10)
        << "the upper right and the lower left corner are of the other color";
    EXPECT_EQ(canvas.count(kGrey), 30 + 11);
    for (const CPoint& corner : {CPoint(40, 50), CPoint(68, 50), CPoint(40, 60)})
        EXPECT_EQ(canvas.at(corner.x, corner.y), kYellow);
    for (const CPoint& corner : {CPoint(69, 50), CPoint(40, 61), CPoint(69, 61)})
        EXPECT_EQ(canvas.at(corner.x, corner.y), kGrey);
}

TEST(DcDrawing, Regions) {
    CRgn region;
    region.CreateEllipticRgn(13, 17, 71, 59);
    CBrush green(kGreen);
    expect_drawn_beside(
        "FillRgn", [&](CDC& dc) { return dc.FillRgn(&region, &green); },
        [&](HDC dc) { return ::FillRgn(dc, region, green); });
    expect_drawn_beside(
        "FrameRgn", [&](CDC& dc) { return dc.FrameRgn(&region, &green, 5, 2); },
        [&](HDC dc) { return ::FrameRgn(dc, region, green, 5, 2); });
    expect_drawn_beside(
        "InvertRgn", [&](CDC& dc) { return dc.InvertRgn(&region); },
        [&](HDC dc) { return ::InvertRgn(dc, region); });
    expect_drawn_beside(
        "PaintRgn", [&](CDC& dc) { return dc.PaintRgn(&region); },
        [&](HDC dc) { return ::PaintRgn(dc, region); });
}

TEST(DcDrawing, PixelsAndFloods) {
    expect_drawn_beside(
        "SetPixel", [](CDC& dc) { return dc.SetPixel(14, 61, kGreen); },
        [](HDC dc) { return ::SetPixel(dc, 14, 61, kGreen); });
    expect_drawn_beside(
        "SetPixel at a point", [](CDC& dc) { return dc.SetPixel(CPoint(14, 61), kGreen); },
        [](HDC dc) { return ::SetPixel(dc, 14, 61, kGreen); });
    expect_drawn_beside(
        "SetPixelV", [](CDC& dc) { return dc.SetPixelV(14, 61, kGreen); },
        [](HDC dc) { return ::SetPixelV(dc, 14, 61, kGreen); });
    expect_drawn_beside(
        "ExtFloodFill",
        [](CDC& dc) {
            ::Ellipse(dc, 13, 17, 71, 59);
            return dc.ExtFloodFill(30, 5, RGB(255, 0, 0), FLOODFILLBORDER);
        },
        [](HDC dc) {
            ::Ellipse(dc, 13, 17, 71, 59);
            return ::ExtFloodFill(dc, 30, 5, RGB(255, 0, 0), FLOODFILLBORDER);
        });
    Source source;
    EXPECT_EQ(source.dc.GetPixel(60, 3), kYellow);
    EXPECT_EQ(source.dc.GetPixel(CPoint(3, 60)), kGrey);
}

TEST(DcDrawing, CopiesOfBitmaps) {
    Source from;
    CBitmap mask;
    make_mask(mask);
    expect_drawn_beside(
        "BitBlt", [&](CDC& dc) { return dc.BitBlt(11, 23, 45, 37, &from.dc, 19, 28, SRCINVERT); },
        [&](HDC dc) { return ::BitBlt(dc, 11, 23, 45, 37, from.dc, 19, 28, SRCINVERT); });
    expect_drawn_beside(
        "BitBlt without a source",
        [](CDC& dc) { return dc.BitBlt(11, 23, 45, 37, nullptr, 0, 0, BLACKNESS); },
        [](HDC dc) { return ::BitBlt(dc, 11, 23, 45, 37, nullptr, 0, 0, BLACKNESS); });
    expect_drawn_beside(
        "StretchBlt",
        [&](CDC& dc) { return dc.StretchBlt(11, 23, 45, 37, &from.dc, 19, 28, 40, 31, SRCCOPY); },
        [&](HDC dc) { return ::StretchBlt(dc, 11, 23, 45, 37, from.dc, 19, 28, 40, 31, SRCCOPY); });
    expect_drawn_beside(
        "MaskBlt",
        [&](CDC& dc) {
            return dc.MaskBlt(11, 23, 9, 7, &from.dc, 19, 28, mask, 3, 5, MAKEROP4(SRCCOPY, BLACKNESS));
        },
        [&](HDC dc) {
            return ::MaskBlt(dc, 11, 23, 9, 7, from.dc, 19, 28, mask, 3, 5, MAKEROP4(SRCCOPY, BLACKNESS));
        });
    expect_drawn_beside(
        "TransparentBlt",
        [&](CDC& dc) { return dc.TransparentBlt(11, 23, 45, 37, &from.dc, 19, 28, 40, 31, kYellow); },
        [&](HDC dc) { return ::TransparentBlt(dc, 11, 23, 45, 37, from.dc, 19, 28, 40, 31, kYellow); });
    const BLENDFUNCTION half = {AC_SRC_OVER, 0, 100, 0};
    expect_drawn_beside(
        "AlphaBlend", [&](CDC& dc) { return dc.AlphaBlend(11, 23, 45, 37, &from.dc, 19, 28, 40, 31, half); },
        [&](HDC dc) { return ::AlphaBlend(dc, 11, 23, 45, 37, from.dc, 19, 28, 40, 31, half); });
    POINT corners[] = {{80, 10}, {80, 70}, {10, 10}};  // a quarter turn
    expect_drawn_beside(
        "PlgBlt", [&](CDC& dc) { return dc.PlgBlt(corners, &from.dc, 19, 28, 40, 31, mask, 3, 5); },
        [&](HDC dc) { return ::PlgBlt(dc, corners, from.dc, 19, 28, 40, 31, mask, 3, 5); });
}

TEST(DcDrawing, Gradients) {
    TRIVERTEX corners[] = {{13, 17, 0xFF00, 0, 0, 0}, {71, 59, 0, 0, 0xFF00, 0}, {30, 90, 0, 0xFF00, 0, 0}};
    GRADIENT_RECT sides[] = {{0, 1}, {0, 2}};
    GRADIENT_TRIANGLE triangle = {0, 1, 2};
    expect_drawn_beside(
        "GradientFill", [&](CDC& dc) { return dc.GradientFill(corners, 3, sides, 2, GRADIENT_FILL_RECT_V); },
        [&](HDC dc) { return ::GradientFill(dc, corners, 3, sides, 2, GRADIENT_FILL_RECT_V); });
    expect_drawn_beside(
        "GradientFill of a triangle",
        [&](CDC& dc) { return dc.GradientFill(corners, 3, &triangle, 1, GRADIENT_FILL_TRIANGLE); },
        [&](HDC dc) { return ::GradientFill(dc, corners, 3, &triangle, 1, GRADIENT_FILL_TRIANGLE); });
}

TEST(DcDrawing, ScrollingTellsWhatIsBare) {
    Source mine, system;
    CRgn bare, bareToo;
    bare.CreateRectRgn(0, 0, 0, 0);
    bareToo.CreateRectRgn(0, 0, 0, 0);
    CRect box, boxToo;
    EXPECT_TRUE(mine.dc.ScrollDC(6, -11, kBox, CRect(10, 10, 65, 65), &bare, &box));
    EXPECT_TRUE(::ScrollDC(system.dc, 6, -11, kBox, CRect(10, 10, 65, 65), bareToo, &boxToo));
    EXPECT_TRUE(mine == system);
    EXPECT_EQ(box, boxToo);
    EXPECT_FALSE(box.IsRectEmpty());
    EXPECT_TRUE(bare.EqualRgn(&bareToo));
    EXPECT_TRUE(mine.dc.ScrollDC(1, 1, nullptr, nullptr, nullptr, nullptr));
}

TEST(DcDrawing, IconsAndStates) {
    const HICON icon = ::LoadIconW(nullptr, IDI_WARNING);
    expect_drawn_beside(
        "DrawIcon", [&](CDC& dc) { return dc.DrawIcon(21, 34, icon); },
        [&](HDC dc) { return ::DrawIcon(dc, 21, 34, icon); });
    expect_drawn_beside(
        "DrawIcon at a point", [&](CDC& dc) { return dc.DrawIcon(CPoint(21, 34), icon); },
        [&](HDC dc) { return ::DrawIcon(dc, 21, 34, icon); });
    CBitmap rows;
    make_mask(rows);
    CBrush green(kGreen);
    const CPoint at(21, 34);
    const CSize size(31, 23);
    const auto bitmap = [&](HDC dc) {
        return ::DrawStateW(dc, green, nullptr, reinterpret_cast<LPARAM>(HBITMAP(rows)), 0, 21, 34, 31, 23,
                            DST_BITMAP | DSS_MONO);
    };
    expect_drawn_beside(
        "DrawState of a bitmap's handle",
        [&](CDC& dc) { return dc.DrawState(at, size, HBITMAP(rows), DSS_MONO, HBRUSH(green)); }, bitmap);
    expect_drawn_beside(
        "DrawState of a bitmap", [&](CDC& dc) { return dc.DrawState(at, size, &rows, DSS_MONO, &green); },
        bitmap);
    const auto drawn = [&](HDC dc) {
        return ::DrawStateW(dc, green, nullptr, reinterpret_cast<LPARAM>(icon), 0, 21, 34, 31, 23,
                            DST_ICON | DSS_MONO);
    };
    expect_drawn_beside(
        "DrawState of an icon",
        [&](CDC& dc) { return dc.DrawState(at, size, icon, DSS_MONO, HBRUSH(green)); }, drawn);
    expect_drawn_beside(
        "DrawState of an icon with a brush",
        [&](CDC& dc) { return dc.DrawState(at, size, icon, DSS_MONO, &green); }, drawn);
}

TEST(DcDrawing, StatesOfTextsAndOfWhatACallbackDraws) {
    CBrush green(kGreen);
    const CPoint at(21, 34);
    const CSize size(61, 23);
    const auto text = [&](UINT kind) {
        return [&, kind](HDC dc) {
            return ::DrawStateW(dc, green, nullptr, reinterpret_cast<LPARAM>(L"a&bcd"), 4, 21, 34, 61, 23,
                                kind | DSS_MONO);
        };
    };
    expect_drawn_beside(
        "with a prefix",
        [&](CDC& dc) { return dc.DrawState(at, size, L"a&bcd", DSS_MONO, TRUE, 4, HBRUSH(green)); },
        text(DST_PREFIXTEXT));
    expect_drawn_beside(
        "without",
        [&](CDC& dc) { return dc.DrawState(at, size, L"a&bcd", DSS_MONO, FALSE, 4, HBRUSH(green)); },
        text(DST_TEXT));
    expect_drawn_beside(
        "with a brush", [&](CDC& dc) { return dc.DrawState(at, size, L"a&bcd", DSS_MONO, FALSE, 4, &green); },
        text(DST_TEXT));
    static LPARAM told;
    const DRAWSTATEPROC draw = [](HDC dc, LPARAM data, WPARAM, int cx, int cy) -> BOOL {
        told = data;
        return ::Rectangle(dc, 2, 3, cx, cy);
    };
    expect_drawn_beside(
        "by a callback", [&](CDC& dc) { return dc.DrawState(at, size, draw, 77, DSS_MONO, HBRUSH(green)); },
        [&](HDC dc) { return ::DrawStateW(dc, green, draw, 77, 0, 21, 34, 61, 23, DST_COMPLEX | DSS_MONO); });
    EXPECT_EQ(told, 77);
}

TEST(DcDrawing, Texts) {
    expect_drawn_beside(
        "TextOut", [](CDC& dc) { return dc.TextOut(8, 31, L"texts", 4); },
        [](HDC dc) { return ::TextOutW(dc, 8, 31, L"texts", 4); });
    expect_drawn_beside(
        "TextOut to the end", [](CDC& dc) { return dc.TextOut(8, 31, L"texts", -1); },
        [](HDC dc) { return ::TextOutW(dc, 8, 31, L"texts", 5); });
    expect_drawn_beside(
        "TextOut of nothing, and of a string",
        [](CDC& dc) { return dc.TextOut(8, 31, L"texts", 0) && dc.TextOut(8, 31, CString(L"texts")); },
        [](HDC dc) { return ::TextOutW(dc, 8, 31, L"texts", 5); });
    INT widths[] = {9, 14, 20, 7, 11};
    expect_drawn_beside(
        "ExtTextOut",
        [&](CDC& dc) {
            return dc.ExtTextOut(8, 31, ETO_OPAQUE | ETO_CLIPPED, CRect(5, 33, 60, 40), L"texts", 4, widths);
        },
        [&](HDC dc) {
            return ::ExtTextOutW(dc, 8, 31, ETO_OPAQUE | ETO_CLIPPED, CRect(5, 33, 60, 40), L"texts", 4,
                                 widths);
        });
    expect_drawn_beside(
        "ExtTextOut of a string",
        [&](CDC& dc) {
            return dc.ExtTextOut(8, 31, ETO_CLIPPED, CRect(5, 33, 60, 40), CString(L"texts"), widths);
        },
        [&](HDC dc) {
            return ::ExtTextOutW(dc, 8, 31, ETO_CLIPPED, CRect(5, 33, 60, 40), L"texts", 5, widths);
        });
    INT stops[] = {25, 61};
    const auto as_size = [](LONG both) { return CSize(LOWORD(both), HIWORD(both)); };
    expect_drawn_beside(
        "TabbedTextOut", [&](CDC& dc) { return dc.TabbedTextOut(8, 31, L"a\tb\tcd", 5, 2, stops, 3).cx; },
        [&](HDC dc) { return as_size(::TabbedTextOutW(dc, 8, 31, L"a\tb\tcd", 5, 2, stops, 3)).cx; });
    expect_drawn_beside(
        "TabbedTextOut to the end",
        [&](CDC& dc) { return dc.TabbedTextOut(8, 31, L"a\tb\tcd", -1, 1, stops, 0).cy; },
        [&](HDC dc) { return as_size(::TabbedTextOutW(dc, 8, 31, L"a\tb\tcd", 6, 1, stops, 0)).cy; });
}

TEST(DcDrawing, TextsInRectangles) {
    CRect mine(kBox), system(kBox);
    expect_drawn_beside(
        "DrawText",
        [](CDC& dc) { return dc.DrawText(L"texts", 4, CRect(kBox), DT_RIGHT | DT_BOTTOM | DT_SINGLELINE); },
        [](HDC dc) {
            return ::DrawTextW(dc, L"texts", 4, CRect(kBox), DT_RIGHT | DT_BOTTOM | DT_SINGLELINE);
        });
    expect_drawn_beside(
        "DrawText of a string",
        [](CDC& dc) { return dc.DrawText(CString(L"texts"), CRect(kBox), DT_CENTER | DT_SINGLELINE); },
        [](HDC dc) { return ::DrawTextW(dc, L"texts", 5, CRect(kBox), DT_CENTER | DT_SINGLELINE); });
    DRAWTEXTPARAMS margins = {sizeof margins, 4, 9, 5, 0};
    wchar_t text[] = L"te\tts";
    expect_drawn_beside(
        "DrawTextEx",
        [&](CDC& dc) { return dc.DrawTextEx(text, 4, CRect(kBox), DT_EXPANDTABS | DT_TABSTOP, &margins); },
        [&](HDC dc) {
            return ::DrawTextExW(dc, text, 4, CRect(kBox), DT_EXPANDTABS | DT_TABSTOP, &margins);
        });
}

TEST(DcDrawing, AStringStaysWhatItWasWhenItIsCutShort) {
    const CString text(L"a text that is far too long for its rectangle");
    expect_drawn_beside(
        "DrawText",
        [&](CDC& dc) {
            return dc.DrawText(text, CRect(kBox), DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING);
        },
        [&](HDC dc) { return ::DrawTextW(dc, text, -1, CRect(kBox), DT_SINGLELINE | DT_END_ELLIPSIS); });
    EXPECT_EQ(text, L"a text that is far too long for its rectangle");
}

TEST(DcDrawing, Paths) {
    const auto outline = [](HDC dc) {
        ::MoveToEx(dc, 12, 8, nullptr);
        ::LineTo(dc, 88, 21);
        ::LineTo(dc, 63, 77);
    };
    const auto beside = [&](const char* name, BOOL (CDC::*ours)(), BOOL(WINAPI * bare)(HDC)) {
        expect_drawn_beside(
            name,
            [&](CDC& dc) {
                EXPECT_TRUE(dc.BeginPath());
                outline(dc);
                EXPECT_TRUE(dc.CloseFigure());
                EXPECT_TRUE(dc.EndPath());
                return (dc.*ours)();
            },
            [&](HDC dc) {
                ::BeginPath(dc);
                outline(dc);
                ::CloseFigure(dc);
                ::EndPath(dc);
                return bare(dc);
            });
    };
    beside("FillPath", &CDC::FillPath, &::FillPath);
    beside("StrokePath", &CDC::StrokePath, &::StrokePath);
    beside("StrokeAndFillPath", &CDC::StrokeAndFillPath, &::StrokeAndFillPath);
}

TEST(DcDrawing, APathIsReadFlattenedWidenedAndGivenUp) {
    ReadyCanvas canvas;
    CDC& dc = canvas.dc;
    const auto curve = [&] {
        dc.BeginPath();
        dc.PolyBezier(kPoints, 4);
        dc.EndPath();
    };
    POINT points[4] = {};
    BYTE types[4] = {};
    curve();
    EXPECT_EQ(dc.GetPath(nullptr, nullptr, 0), 4);
    EXPECT_EQ(dc.GetPath(points, types, 4), 4);
    EXPECT_EQ(CPoint(points[3]), CPoint(kPoints[3]));
    EXPECT_EQ(types[0], PT_MOVETO);
    EXPECT_EQ(types[3], PT_BEZIERTO);
    EXPECT_TRUE(dc.FlattenPath());
    EXPECT_GT(dc.GetPath(nullptr, nullptr, 0), 4) << "pieces of straight lines";
    curve();
    CPen wide(PS_SOLID, 9, kGreen);
    CPen* const former = dc.SelectObject(&wide);
    EXPECT_TRUE(dc.WidenPath());
    EXPECT_GT(dc.GetPath(nullptr, nullptr, 0), 4) << "both sides";
    dc.SelectObject(former);
    curve();
    EXPECT_TRUE(dc.AbortPath());
    EXPECT_EQ(dc.GetPath(nullptr, nullptr, 0), -1) << "there is none";
    EXPECT_FALSE(dc.StrokePath());
    EXPECT_TRUE(canvas.isAll(RGB(255, 255, 255)));
}

TEST(DcDrawing, APathClipsAndIsARegion) {
    ReadyCanvas canvas;
    const auto corner = [&] {
        canvas.dc.BeginPath();
        canvas.dc.Rectangle(CRect(10, 20, 40, 60));
        canvas.dc.EndPath();
    };
    corner();
    CRgn region;
    ASSERT_TRUE(region.CreateFromPath(&canvas.dc));
    CRect box;
    region.GetRgnBox(&box);
    EXPECT_EQ(box.TopLeft(), CPoint(10, 20));
    corner();
    EXPECT_TRUE(canvas.dc.SelectClipPath(RGN_COPY));
    canvas.dc.FillSolidRect(0, 0, 100, 100, kGreen);
    EXPECT_EQ(canvas.at(9, 30), RGB(255, 255, 255));
    EXPECT_EQ(canvas.at(12, 30), kGreen);
    EXPECT_FALSE(canvas.dc.SelectClipPath(RGN_COPY)) << "the path has gone";
}
