// A CDC whose output and attributes lie in two contexts: what is set reaches both, what is asked comes from
// the second, what is drawn goes to the first.
#include "drawn_beside.h"
#include "ui_test.h"

namespace {

using ui_test::ReadyCanvas;

struct PartedContext : ::testing::Test {
    PartedContext() {
        dc.SetOutputDC(output.dc.m_hDC);
        dc.SetAttribDC(attributes.dc.m_hDC);
    }
    ~PartedContext() override {
        dc.ReleaseAttribDC();
        dc.ReleaseOutputDC();
    }
    HDC out() { return output.dc.m_hDC; }
    HDC asked() { return attributes.dc.m_hDC; }

    ReadyCanvas output, attributes;
    CDC dc;
};

struct Box : CRect {
    explicit Box(HDC dc) { ::GetClipBox(dc, this); }
};

}  // namespace

#define EXPECT_BOTH(question, value)   \
    EXPECT_EQ(question(out()), value); \
    EXPECT_EQ(question(asked()), value)

TEST_F(PartedContext, ColorsAndModesReachBoth) {
    EXPECT_EQ(dc.SetBkColor(RGB(1, 2, 3)), RGB(255, 255, 255));
    EXPECT_BOTH(::GetBkColor, RGB(1, 2, 3));
    EXPECT_EQ(dc.SetBkMode(TRANSPARENT), OPAQUE);
    EXPECT_BOTH(::GetBkMode, TRANSPARENT);
    EXPECT_EQ(dc.SetTextColor(RGB(4, 5, 6)), RGB(0, 0, 0));
    EXPECT_BOTH(::GetTextColor, RGB(4, 5, 6));
    EXPECT_EQ(dc.SetROP2(R2_XORPEN), R2_COPYPEN);
    EXPECT_BOTH(::GetROP2, R2_XORPEN);
    EXPECT_EQ(dc.SetPolyFillMode(WINDING), ALTERNATE);
    EXPECT_BOTH(::GetPolyFillMode, WINDING);
    EXPECT_EQ(dc.SetStretchBltMode(HALFTONE), BLACKONWHITE);
    EXPECT_BOTH(::GetStretchBltMode, HALFTONE);
    EXPECT_EQ(dc.SetTextAlign(TA_RIGHT), static_cast<UINT>(TA_LEFT));
    EXPECT_BOTH(::GetTextAlign, static_cast<UINT>(TA_RIGHT));
    EXPECT_EQ(dc.SetTextCharacterExtra(3), 0);
    EXPECT_BOTH(::GetTextCharacterExtra, 3);
    EXPECT_EQ(dc.SetArcDirection(AD_CLOCKWISE), AD_COUNTERCLOCKWISE);
    EXPECT_BOTH(::GetArcDirection, AD_CLOCKWISE);
    EXPECT_EQ(dc.SetMapMode(MM_LOMETRIC), MM_TEXT);
    EXPECT_BOTH(::GetMapMode, MM_LOMETRIC);
    EXPECT_EQ(dc.SetGraphicsMode(GM_ADVANCED), GM_COMPATIBLE);
    EXPECT_BOTH(::GetGraphicsMode, GM_ADVANCED);
}

TEST_F(PartedContext, QuestionsGoToTheAttributes) {
    const HDC from = asked();
    ::SetBkColor(from, RGB(9, 8, 7));
    EXPECT_EQ(dc.GetBkColor(), RGB(9, 8, 7));
    ::SetBkMode(from, TRANSPARENT);
    EXPECT_EQ(dc.GetBkMode(), TRANSPARENT);
    ::SetROP2(from, R2_NOT);
    EXPECT_EQ(dc.GetROP2(), R2_NOT);
    ::SetPolyFillMode(from, WINDING);
    EXPECT_EQ(dc.GetPolyFillMode(), WINDING);
    ::SetStretchBltMode(from, COLORONCOLOR);
    EXPECT_EQ(dc.GetStretchBltMode(), COLORONCOLOR);
    ::SetTextAlign(from, TA_CENTER);
    EXPECT_EQ(dc.GetTextAlign(), static_cast<UINT>(TA_CENTER));
    ::SetTextCharacterExtra(from, 5);
    EXPECT_EQ(dc.GetTextCharacterExtra(), 5);
    ::SetArcDirection(from, AD_CLOCKWISE);
    EXPECT_EQ(dc.GetArcDirection(), AD_CLOCKWISE);
    ::SetMapMode(from, MM_LOMETRIC);
    EXPECT_EQ(dc.GetMapMode(), MM_LOMETRIC);
    ::SetGraphicsMode(from, GM_ADVANCED);
    EXPECT_EQ(dc.GetGraphicsMode(), GM_ADVANCED);
    ::SetDCBrushColor(from, RGB(11, 12, 13));
    EXPECT_EQ(dc.GetDCBrushColor(), RGB(11, 12, 13));
    ::SetDCPenColor(from, RGB(21, 22, 23));
    EXPECT_EQ(dc.GetDCPenColor(), RGB(21, 22, 23));
    EXPECT_EQ(dc.GetNearestColor(RGB(31, 32, 33)), RGB(31, 32, 33));
    EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSY), ::GetDeviceCaps(from, LOGPIXELSY));
    ::MoveToEx(from, 41, 42, nullptr);
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(41, 42));
}

TEST_F(PartedContext, ColorsOfPenAndBrushAndTheLayoutAreTheOutputs) {
    EXPECT_EQ(dc.SetDCBrushColor(RGB(1, 2, 3)), RGB(0, 0, 255));
    EXPECT_EQ(::GetDCBrushColor(out()), RGB(1, 2, 3));
    EXPECT_EQ(dc.SetDCPenColor(RGB(4, 5, 6)), RGB(255, 0, 0));
    EXPECT_EQ(::GetDCPenColor(out()), RGB(4, 5, 6));
    EXPECT_EQ(dc.SetLayout(LAYOUT_RTL), 0U);
    EXPECT_EQ(::GetLayout(out()), static_cast<DWORD>(LAYOUT_RTL));
    EXPECT_EQ(dc.GetLayout(), 0U);
    ::SetLayout(asked(), LAYOUT_RTL);
    ::SetLayout(out(), 0);
    EXPECT_EQ(dc.GetLayout(), static_cast<DWORD>(LAYOUT_RTL));
    EXPECT_EQ(dc.SetBrushOrg(3, 5), CPoint(0, 0));
    EXPECT_EQ(dc.SetBrushOrg(CPoint(2, 7)), CPoint(3, 5));
    EXPECT_EQ(dc.GetBrushOrg(), CPoint(2, 7));
    POINT origin = {};
    ::GetBrushOrgEx(out(), &origin);
    EXPECT_EQ(CPoint(origin), CPoint(2, 7));
}

TEST_F(PartedContext, OriginsAndExtentsReachBoth) {
    dc.SetMapMode(MM_ANISOTROPIC);
    EXPECT_EQ(dc.SetViewportOrg(5, 6), CPoint(0, 0));
    EXPECT_EQ(dc.SetViewportOrg(CPoint(7, 8)), CPoint(5, 6));
    EXPECT_EQ(dc.OffsetViewportOrg(10, 20), CPoint(7, 8));
    EXPECT_EQ(dc.GetViewportOrg(), CPoint(17, 28));
    EXPECT_EQ(dc.SetWindowOrg(1, 2), CPoint(0, 0));
    EXPECT_EQ(dc.SetWindowOrg(CPoint(3, 4)), CPoint(1, 2));
    EXPECT_EQ(dc.OffsetWindowOrg(30, 40), CPoint(3, 4));
    EXPECT_EQ(dc.GetWindowOrg(), CPoint(33, 44));
    EXPECT_EQ(dc.SetWindowExt(10, 20), CSize(1, 1));
    EXPECT_EQ(dc.SetWindowExt(CSize(12, 24)), CSize(10, 20));
    EXPECT_EQ(dc.ScaleWindowExt(3, 2, 5, 4), CSize(12, 24));
    EXPECT_EQ(dc.GetWindowExt(), CSize(18, 30));
    EXPECT_EQ(dc.SetViewportExt(50, 70), CSize(1, 1));
    EXPECT_EQ(dc.SetViewportExt(CSize(60, 90)), CSize(50, 70));
    EXPECT_EQ(dc.ScaleViewportExt(1, 2, 2, 3), CSize(60, 90));
    EXPECT_EQ(dc.GetViewportExt(), CSize(30, 60));
    for (const HDC each : {out(), asked()}) {
        POINT origin = {};
        SIZE extent = {};
        ::GetViewportOrgEx(each, &origin);
        EXPECT_EQ(CPoint(origin), CPoint(17, 28));
        ::GetWindowOrgEx(each, &origin);
        EXPECT_EQ(CPoint(origin), CPoint(33, 44));
        ::GetWindowExtEx(each, &extent);
        EXPECT_EQ(CSize(extent), CSize(18, 30));
        ::GetViewportExtEx(each, &extent);
        EXPECT_EQ(CSize(extent), CSize(30, 60));
    }
}

TEST_F(PartedContext, TransformsReachBoth) {
    const XFORM twice = {2, 0, 0, 3, 4, 5};
    XFORM found = {};
    EXPECT_FALSE(dc.SetWorldTransform(twice)) << "not before the advanced mode";
    dc.SetGraphicsMode(GM_ADVANCED);
    EXPECT_TRUE(dc.SetWorldTransform(twice));
    for (const HDC each : {out(), asked()}) {
        ::GetWorldTransform(each, &found);
        EXPECT_EQ(found.eM22, 3);
        EXPECT_EQ(found.eDx, 4);
    }
    EXPECT_TRUE(dc.ModifyWorldTransform(twice, MWT_LEFTMULTIPLY));
    ::GetWorldTransform(out(), &found);
    EXPECT_EQ(found.eM11, 4);
    EXPECT_EQ(found.eDy, 5 + 3 * 5);
    EXPECT_TRUE(dc.GetWorldTransform(found));
    EXPECT_EQ(found.eM22, 9);
    ::ModifyWorldTransform(asked(), nullptr, MWT_IDENTITY);
    EXPECT_TRUE(dc.GetWorldTransform(found));
    EXPECT_EQ(found.eM22, 1) << "that of the attributes";
}

TEST_F(PartedContext, ClippingReachesBoth) {
    EXPECT_EQ(dc.IntersectClipRect(10, 12, 70, 80), SIMPLEREGION);
    EXPECT_BOTH(Box, CRect(10, 12, 70, 80));
    EXPECT_EQ(dc.IntersectClipRect(CRect(20, 0, 90, 60)), SIMPLEREGION);
    EXPECT_BOTH(Box, CRect(20, 12, 70, 60));
    EXPECT_EQ(dc.OffsetClipRgn(3, 5), SIMPLEREGION);
    EXPECT_BOTH(Box, CRect(23, 17, 73, 65));
    EXPECT_EQ(dc.OffsetClipRgn(CSize(-3, -5)), SIMPLEREGION);
    EXPECT_BOTH(Box, CRect(20, 12, 70, 60));
    EXPECT_EQ(dc.ExcludeClipRect(0, 0, 30, 100), SIMPLEREGION);
    EXPECT_BOTH(Box, CRect(30, 12, 70, 60));
    EXPECT_EQ(dc.ExcludeClipRect(CRect(30, 12, 40, 22)), COMPLEXREGION);
    CRect box;
    EXPECT_EQ(dc.GetClipBox(&box), COMPLEXREGION);
    EXPECT_EQ(box, CRect(30, 12, 70, 60));
    EXPECT_FALSE(dc.PtVisible(35, 15));
    EXPECT_TRUE(dc.PtVisible(CPoint(35, 25)));
    EXPECT_FALSE(dc.RectVisible(CRect(30, 12, 40, 22)));
    EXPECT_TRUE(dc.RectVisible(CRect(30, 12, 40, 23)));
    CRgn region;
    region.CreateRectRgn(1, 2, 33, 44);
    EXPECT_EQ(dc.SelectClipRgn(&region), SIMPLEREGION);
    EXPECT_BOTH(Box, CRect(1, 2, 33, 44));
    region.SetRectRgn(0, 40, 50, 60);
    EXPECT_EQ(dc.SelectClipRgn(&region, RGN_OR), COMPLEXREGION);
    EXPECT_BOTH(Box, CRect(0, 2, 50, 60));
    EXPECT_EQ(dc.SelectObject(&region), SIMPLEREGION);
    EXPECT_BOTH(Box, CRect(0, 40, 50, 60));
    EXPECT_EQ(dc.SelectClipRgn(nullptr), SIMPLEREGION);
    EXPECT_BOTH(Box, CRect(0, 0, 100, 100));
}

TEST_F(PartedContext, AClipPathReachesBoth) {
    dc.BeginPath();
    dc.Rectangle(10, 20, 40, 60);
    dc.EndPath();
    EXPECT_TRUE(dc.SelectClipPath(RGN_COPY));
    EXPECT_EQ(Box(out()), Box(asked()));
    EXPECT_EQ(Box(asked()).TopLeft(), CPoint(10, 20));
}

TEST_F(PartedContext, ThePositionFollowsWhatIsDrawn) {
    const POINT points[] = {{12, 8}, {88, 21}, {63, 77}};
    const BYTE types[] = {PT_MOVETO, PT_LINETO, PT_LINETO};
    dc.LineTo(31, 32);
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(31, 32));
    dc.PolylineTo(points, 2);
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(88, 21));
    dc.PolyBezierTo(points, 3);
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(63, 77));
    dc.PolyDraw(points, types, 2);
    EXPECT_EQ(dc.GetCurrentPosition(), CPoint(88, 21));
    const auto at_output = [&] {
        POINT at = {};
        ::GetCurrentPositionEx(out(), &at);
        return CPoint(at);
    };
    dc.ArcTo(13, 17, 71, 59, 90, 11, 5, 83);
    EXPECT_EQ(dc.GetCurrentPosition(), at_output());
    EXPECT_NE(dc.GetCurrentPosition(), CPoint(88, 21));
    const CPoint before = dc.GetCurrentPosition();
    dc.AngleArc(45, 52, 31, 20.0F, 130.0F);
    EXPECT_EQ(dc.GetCurrentPosition(), at_output());
    EXPECT_NE(dc.GetCurrentPosition(), before);
    dc.MoveTo(1, 2);
    EXPECT_EQ(at_output(), CPoint(1, 2));
}

TEST_F(PartedContext, DrawingLeavesTheAttributesAlone) {
    dc.Rectangle(CRect(10, 10, 50, 50));
    dc.TextOut(10, 60, CString(L"text"));
    dc.FillSolidRect(60, 60, 20, 20, RGB(1, 2, 3));
    EXPECT_TRUE(attributes.isAll(RGB(255, 255, 255)));
    EXPECT_EQ(output.at(65, 65), RGB(1, 2, 3));
    EXPECT_EQ(output.at(30, 30), RGB(0, 0, 255));
}

TEST_F(PartedContext, SavingAndRestoringCoverBoth) {
    ::SaveDC(out());  // the numbers differ from now on
    ::SetTextColor(out(), RGB(1, 1, 1));
    ::SetTextColor(asked(), RGB(2, 2, 2));
    const int saved = dc.SaveDC();
    EXPECT_EQ(saved, -1);
    dc.SetTextColor(RGB(3, 3, 3));
    EXPECT_TRUE(dc.RestoreDC(saved));
    EXPECT_EQ(::GetTextColor(out()), RGB(1, 1, 1));
    EXPECT_EQ(::GetTextColor(asked()), RGB(2, 2, 2));
    EXPECT_FALSE(dc.RestoreDC(77));
}

TEST_F(PartedContext, SavingOneContextNumbersIt) {
    dc.SetAttribDC(out());
    EXPECT_EQ(dc.SaveDC(), 1);
    EXPECT_EQ(dc.SaveDC(), 2);
    EXPECT_TRUE(dc.RestoreDC(1));
    EXPECT_FALSE(dc.RestoreDC(1));
    dc.SetAttribDC(nullptr);
    EXPECT_EQ(dc.SaveDC(), -1);
    EXPECT_TRUE(dc.RestoreDC(-1)) << "the output alone";
}

TEST_F(PartedContext, PensBrushesAndFontsAreSelectedIntoBoth) {
    CPen pen(PS_SOLID, 1, RGB(1, 2, 3));
    CBrush brush(RGB(4, 5, 6));
    CFont font;
    font.CreatePointFont(200, L"Tahoma");
    dc.SelectObject(&pen);
    dc.SelectObject(&brush);
    dc.SelectObject(&font);
    for (const HDC each : {out(), asked()}) {
        EXPECT_EQ(::GetCurrentObject(each, OBJ_PEN), pen.m_hObject);
        EXPECT_EQ(::GetCurrentObject(each, OBJ_BRUSH), brush.m_hObject);
        EXPECT_EQ(::GetCurrentObject(each, OBJ_FONT), font.m_hObject);
    }
    EXPECT_EQ(dc.GetCurrentFont(), &font);
    EXPECT_EQ(dc.GetCurrentBrush(), &brush);
    EXPECT_EQ(dc.SelectStockObject(WHITE_PEN), &pen);
    EXPECT_EQ(::GetCurrentObject(out(), OBJ_PEN), ::GetStockObject(WHITE_PEN));
    EXPECT_EQ(::GetCurrentObject(asked(), OBJ_PEN), ::GetStockObject(WHITE_PEN));
    EXPECT_EQ(dc.SelectObject(static_cast<CPen*>(nullptr)), nullptr);
    dc.SelectStockObject(NULL_BRUSH);
    dc.SelectStockObject(SYSTEM_FONT);
}

TEST_F(PartedContext, ABitmapIsSelectedIntoTheOutputOnly) {
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&output.dc, 8, 8);
    const HGDIOBJ asking = ::GetCurrentObject(asked(), OBJ_BITMAP);
    const HGDIOBJ writing = ::GetCurrentObject(out(), OBJ_BITMAP);
    CBitmap* const former = dc.SelectObject(&bitmap);
    EXPECT_EQ(former->m_hObject, writing);
    EXPECT_EQ(::GetCurrentObject(out(), OBJ_BITMAP), bitmap.m_hObject);
    EXPECT_EQ(dc.GetCurrentBitmap()->m_hObject, asking);
    EXPECT_EQ(dc.SelectObject(former), &bitmap);
    EXPECT_EQ(dc.SelectObject(static_cast<CBitmap*>(nullptr)), nullptr);
}

TEST_F(PartedContext, TextsAreMeasuredByTheAttributes) {
    CFont large;
    large.CreatePointFont(300, L"Tahoma");
    const HGDIOBJ former = ::SelectObject(asked(), large);
    const CString text(L"measured\ttext");
    SIZE size = {};
    ::GetTextExtentPoint32W(asked(), text, 5, &size);
    EXPECT_EQ(dc.GetTextExtent(text, 5), CSize(size));
    ::GetTextExtentPoint32W(asked(), text, text.GetLength(), &size);
    EXPECT_EQ(dc.GetTextExtent(text), CSize(size));
    EXPECT_EQ(dc.GetTextExtent(static_cast<LPCTSTR>(text), -1), CSize(size));
    EXPECT_EQ(dc.GetTextExtent(text, 0).cx, 0);
    ::GetTextExtentPoint32W(out(), text, 5, &size);
    EXPECT_EQ(dc.GetOutputTextExtent(text, 5), CSize(size));
    ::GetTextExtentPoint32W(out(), text, text.GetLength(), &size);
    EXPECT_EQ(dc.GetOutputTextExtent(text), CSize(size));
    EXPECT_EQ(dc.GetOutputTextExtent(static_cast<LPCTSTR>(text), -1), CSize(size));
    EXPECT_EQ(dc.GetOutputTextExtent(text, 0).cx, 0);
    INT stop = 400;
    const DWORD tabbed = ::GetTabbedTextExtentW(asked(), text, text.GetLength(), 1, &stop);
    EXPECT_EQ(dc.GetTabbedTextExtent(text, text.GetLength(), 1, &stop),
              CSize(LOWORD(tabbed), HIWORD(tabbed)));
    EXPECT_EQ(dc.GetTabbedTextExtent(text, -1, 1, &stop), CSize(LOWORD(tabbed), HIWORD(tabbed)));
    EXPECT_LT(dc.GetTabbedTextExtent(text, 4, 1, &stop).cx, LOWORD(tabbed));
    TEXTMETRICW metrics = {}, expected = {};
    EXPECT_TRUE(dc.GetTextMetrics(&metrics));
    ::GetTextMetricsW(asked(), &expected);
    EXPECT_EQ(metrics.tmHeight, expected.tmHeight);
    CString face;
    EXPECT_EQ(dc.GetTextFace(face), 7);
    EXPECT_EQ(face, L"Tahoma");
    INT widths[3] = {}, wanted[3] = {};
    EXPECT_TRUE(dc.GetCharWidth(L'h', L'j', widths));
    ::GetCharWidth32W(asked(), L'h', L'j', wanted);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(widths[i], wanted[i]);
    ABC parts[2] = {}, wantedParts[2] = {};
    EXPECT_TRUE(dc.GetCharABCWidths(L'W', L'X', parts));
    ::GetCharABCWidthsW(asked(), L'W', L'X', wantedParts);
    for (int i = 0; i < 2; ++i) EXPECT_EQ(parts[i].abcB, wantedParts[i].abcB);
    WORD glyphs[] = {40, 41, 42};
    int fit = 0, fitToo = 0, ends[3] = {}, endsToo[3] = {};
    EXPECT_TRUE(dc.GetTextExtentExPointI(glyphs, 3, 40, &fit, ends, &size));
    SIZE sizeToo = {};
    ::GetTextExtentExPointI(asked(), glyphs, 3, 40, &fitToo, endsToo, &sizeToo);
    EXPECT_EQ(fit, fitToo);
    EXPECT_EQ(ends[0], endsToo[0]);
    EXPECT_EQ(CSize(size), CSize(sizeToo));
    ::SelectObject(asked(), former);
}

TEST_F(PartedContext, JustificationReachesBoth) {
    EXPECT_NE(dc.SetTextJustification(30, 2), 0);
    const CString text(L"a b c");
    SIZE asked_size = {}, out_size = {};
    ::GetTextExtentPoint32W(asked(), text, text.GetLength(), &asked_size);
    ::GetTextExtentPoint32W(out(), text, text.GetLength(), &out_size);
    EXPECT_EQ(asked_size.cx, out_size.cx);
    EXPECT_NE(dc.SetTextJustification(0, 0), 0);
    ::GetTextExtentPoint32W(out(), text, text.GetLength(), &out_size);
    EXPECT_EQ(asked_size.cx - out_size.cx, 30) << "both blanks took their share";
}

TEST_F(PartedContext, PointsAndRectanglesAreMappedByTheAttributes) {
    ::SetMapMode(asked(), MM_ANISOTROPIC);
    ::SetViewportExtEx(asked(), 4, 3, nullptr);
    ::SetViewportOrgEx(asked(), 10, 20, nullptr);
    CPoint point(5, 6);
    dc.LPtoDP(&point);
    EXPECT_EQ(point, CPoint(30, 38));
    dc.DPtoLP(&point);
    EXPECT_EQ(point, CPoint(5, 6));
    CRect rect(1, 2, 3, 4);
    dc.LPtoDP(&rect);
    EXPECT_EQ(rect, CRect(14, 26, 22, 32));
    dc.DPtoLP(&rect);
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    CPoint three[] = {{1, 1}, {2, 2}, {3, 3}};
    dc.LPtoDP(three, 2);
    EXPECT_EQ(three[1], CPoint(18, 26));
    EXPECT_EQ(three[2], CPoint(3, 3)) << "only as many as are told";
    ::SetViewportExtEx(asked(), -4, -3, nullptr);
    CSize size(2, 5);
    dc.LPtoDP(&size);
    EXPECT_EQ(size, CSize(8, 15)) << "a size has no direction";
    dc.DPtoLP(&size);
    EXPECT_EQ(size, CSize(2, 5));
}

TEST_F(PartedContext, HundredthsOfMillimetresGoByTheResolution) {
    const int across = ::GetDeviceCaps(asked(), LOGPIXELSX), down = ::GetDeviceCaps(asked(), LOGPIXELSY);
    CSize size(across, 2 * down);
    dc.DPtoHIMETRIC(&size);
    EXPECT_EQ(size, CSize(2540, 5080)) << "one inch and two";
    dc.HIMETRICtoDP(&size);
    EXPECT_EQ(size, CSize(across, 2 * down));
}

TEST(DeviceContext, IsMadeDeletedAndFound) {
    CDC dc;
    EXPECT_FALSE(dc.DeleteDC());
    EXPECT_FALSE(dc.Attach(nullptr));
    ASSERT_TRUE(dc.CreateDC(L"DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_EQ(dc.GetDeviceCaps(TECHNOLOGY), DT_RASDISPLAY);
    EXPECT_EQ(CDC::FromHandle(dc.m_hDC), &dc);
    const HDC gone = dc.m_hDC;
    EXPECT_TRUE(dc.DeleteDC());
    EXPECT_EQ(dc.GetSafeHdc(), nullptr);
    EXPECT_EQ(dc.m_hAttribDC, nullptr);
    EXPECT_EQ(::GetObjectType(gone), 0U);
    ASSERT_TRUE(dc.CreateIC(L"DISPLAY", nullptr, nullptr, nullptr));
    EXPECT_EQ(::GetDeviceCaps(dc.m_hDC, TECHNOLOGY), DT_RASDISPLAY);
    EXPECT_TRUE(dc.DeleteDC());
    EXPECT_FALSE(dc.CreateDC(L"no such driver", nullptr, nullptr, nullptr));
    EXPECT_FALSE(dc.CreateIC(L"no such driver", nullptr, nullptr, nullptr));
    EXPECT_FALSE(dc.IsPrinting());
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);
}

TEST(DeviceContext, AnotherHandleReplacesTheOneBefore) {
    const HDC first = ::CreateCompatibleDC(nullptr), second = ::CreateCompatibleDC(nullptr);
    CDC dc;
    EXPECT_TRUE(dc.Attach(first));
    EXPECT_TRUE(dc.Attach(second));
    EXPECT_EQ(dc.m_hAttribDC, second);
    EXPECT_NE(CDC::FromHandle(first), &dc);
    EXPECT_EQ(CDC::FromHandle(second), &dc);
    EXPECT_EQ(dc.Detach(), second);
    EXPECT_EQ(dc.Detach(), nullptr);
    EXPECT_NE(CDC::FromHandle(second), &dc);
    EXPECT_TRUE(::DeleteDC(first));
    EXPECT_TRUE(::DeleteDC(second));
}

TEST(DeviceContext, AnotherOutputReplacesTheOneBefore) {
    ui_test::ReadyCanvas one, other;
    const HDC first = ::CreateCompatibleDC(nullptr), second = ::CreateCompatibleDC(nullptr);
    {
        CDC dc;
        dc.SetOutputDC(first);
        EXPECT_EQ(CDC::FromHandle(first), &dc);
        EXPECT_EQ(dc.m_hAttribDC, nullptr) << "the output alone";
        dc.SetOutputDC(second);
        EXPECT_NE(CDC::FromHandle(first), &dc);
        EXPECT_EQ(CDC::FromHandle(second), &dc);
        dc.ReleaseOutputDC();
        EXPECT_NE(CDC::FromHandle(second), &dc);
        EXPECT_EQ(dc.GetSafeHdc(), nullptr);
    }
    EXPECT_TRUE(::DeleteDC(first)) << "nobody deleted it";
    EXPECT_TRUE(::DeleteDC(second));
}

TEST(DeviceContext, BelongsToAWindow) {
    CWnd window;
    window.CreateEx(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, CRect(20, 30, 120, 90), nullptr, 0);
    CClientDC client(&window);
    EXPECT_EQ(client.GetWindow(), &window);
    CRect box;
    client.GetClipBox(&box);
    EXPECT_EQ(box.Size(), CSize(100, 60));
    CWindowDC whole(&window);
    EXPECT_EQ(whole.GetWindow(), &window);
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    EXPECT_EQ(memory.GetWindow(), nullptr);
    ui_test::pump();
    ::ValidateRect(window.m_hWnd, nullptr);
    ::InvalidateRect(window.m_hWnd, CRect(0, 0, 40, 60), FALSE);
    EXPECT_NE(client.ExcludeUpdateRgn(&window), ERROR);
    client.GetClipBox(&box);
    EXPECT_EQ(box, CRect(40, 0, 100, 60)) << "what is to be painted anyway is left out";
    CWnd gone;
    gone.m_hWnd = reinterpret_cast<HWND>(UINT_PTR{0xFFF0});
    EXPECT_THROW(CClientDC{&gone}, CResourceException*) << "of a window that is not there";
    EXPECT_THROW(CWindowDC{&gone}, CResourceException*);
    EXPECT_THROW(CPaintDC{&gone}, CResourceException*);
    gone.m_hWnd = nullptr;
}

TEST(DeviceContext, TheHalftoneBrushIsEveryOtherPixel) {
    ui_test::ReadyCanvas canvas;
    canvas.dc.FillRect(CRect(0, 0, 100, 100), CDC::GetHalftoneBrush());
    EXPECT_EQ(canvas.count(RGB(0, 0, 0)), 5000);
    for (int x = 0; x < 20; ++x)
        for (int y = 0; y < 20; ++y) EXPECT_EQ(canvas.at(x, y), canvas.at((x + y) % 2, 0)) << x << ',' << y;
    EXPECT_NE(canvas.at(0, 0), canvas.at(1, 0));
}

TEST(DeviceContext, ADraggedRectangleIsABorderThatComesOffAgain) {
    ui_test::ReadyCanvas canvas;
    CDC& dc = canvas.dc;
    CBrush white(RGB(255, 255, 255));
    const CRect first(10, 10, 50, 40), second(20, 15, 60, 45);
    dc.DrawDragRect(first, CSize(3, 2), nullptr, CSize(0, 0), &white);
    EXPECT_EQ(canvas.count(RGB(0, 0, 0)), 40 * 30 - 34 * 26);
    EXPECT_EQ(canvas.at(12, 20), RGB(0, 0, 0));
    EXPECT_EQ(canvas.at(13, 20), RGB(255, 255, 255)) << "three pixels at the sides";
    EXPECT_EQ(canvas.at(30, 11), RGB(0, 0, 0));
    EXPECT_EQ(canvas.at(30, 12), RGB(255, 255, 255)) << "two above and below";
    dc.DrawDragRect(second, CSize(4, 5), first, CSize(3, 2), &white, &white);
    EXPECT_EQ(canvas.count(RGB(0, 0, 0)), 40 * 30 - 32 * 20) << "the first one has gone";
    EXPECT_EQ(canvas.at(22, 30), RGB(0, 0, 0));
    CBrush same(RGB(255, 255, 255));
    dc.DrawDragRect(first, CSize(3, 2), second, CSize(4, 5), &white, &same);
    EXPECT_EQ(canvas.count(RGB(0, 0, 0)), 40 * 30 - 34 * 26) << "by two brushes as well";
    CRect box;
    dc.GetClipBox(&box);
    EXPECT_EQ(box, CRect(0, 0, 100, 100)) << "no clipping stays";
    EXPECT_EQ(dc.GetCurrentBrush()->m_hObject, ::GetStockObject(DC_BRUSH));
}

TEST(DeviceContext, ADraggedRectangleAsThickAsItselfIsFull) {
    ui_test::ReadyCanvas canvas;
    canvas.dc.DrawDragRect(CRect(10, 10, 30, 20), CSize(10, 5), nullptr, CSize(0, 0));
    EXPECT_EQ(canvas.count(RGB(0, 0, 0)), 100) << "every other pixel of 20 by 10, by the halftone brush";
}
