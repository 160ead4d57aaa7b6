// Pens, brushes, fonts, bitmaps, palettes and regions: what comes out of each way to make one.
#include <afxext.h>

#include "drawn_beside.h"

namespace {

constexpr COLORREF kColor = RGB(10, 120, 230);

/// How a region looks: its box and what kind it is.
struct Shape {
    explicit Shape(CRgn& region) { kind = region.GetRgnBox(&box); }
    CRect box;
    int kind;
};

}  // namespace

TEST(GdiObjects, PensSayWhatTheyAre) {
    LOGPEN info = {};
    CPen pen(PS_DOT, 3, kColor);
    EXPECT_EQ(pen.GetLogPen(&info), static_cast<int>(sizeof info));
    EXPECT_EQ(info.lopnStyle, static_cast<UINT>(PS_DOT));
    EXPECT_EQ(info.lopnWidth.x, 3);
    EXPECT_EQ(info.lopnColor, kColor);
    CPen copy;
    EXPECT_TRUE(copy.CreatePenIndirect(&info));
    LOGPEN again = {};
    copy.GetLogPen(&again);
    EXPECT_EQ(again.lopnColor, kColor);
    EXPECT_EQ(again.lopnStyle, static_cast<UINT>(PS_DOT));
    CPen made;
    EXPECT_TRUE(made.CreatePen(PS_DASH, 2, RGB(1, 2, 3)));
    made.GetLogPen(&info);
    EXPECT_EQ(info.lopnStyle, static_cast<UINT>(PS_DASH));
    EXPECT_EQ(info.lopnWidth.x, 2);
    EXPECT_EQ(info.lopnColor, RGB(1, 2, 3));
    EXPECT_EQ(made.GetObjectType(), static_cast<UINT>(OBJ_PEN));
    EXPECT_TRUE(made == *CPen::FromHandle(made));
    EXPECT_FALSE(made == pen);
}

TEST(GdiObjects, GeometricPensHaveABrushAndDashes) {
    const LOGBRUSH brush = {BS_SOLID, kColor, 0};
    const DWORD dashes[] = {7, 3, 2};
    CPen pen(PS_GEOMETRIC | PS_USERSTYLE, 5, &brush, 3, dashes);
    BYTE bytes[sizeof(EXTLOGPEN) + 2 * sizeof(DWORD)] = {};
    auto& info = *reinterpret_cast<EXTLOGPEN*>(bytes);
    EXPECT_GT(pen.GetObject(sizeof bytes, bytes), 0);
    EXPECT_EQ(info.elpWidth, 5U);
    EXPECT_EQ(info.elpColor, kColor);
    EXPECT_EQ(info.elpNumEntries, 3U);
    EXPECT_EQ(info.elpStyleEntry[0], 7U);
    EXPECT_EQ(info.elpStyleEntry[2], 2U);
    CPen plain;
    EXPECT_TRUE(plain.CreatePen(PS_GEOMETRIC | PS_DOT, 4, &brush));
    EXTLOGPEN said = {};
    EXPECT_GT(plain.GetExtLogPen(&said), 0);
    EXPECT_EQ(said.elpPenStyle, static_cast<DWORD>(PS_GEOMETRIC | PS_DOT));
    EXPECT_EQ(said.elpNumEntries, 0U);
}

TEST(GdiObjects, BrushesSayWhatTheyAre) {
    LOGBRUSH info = {};
    CBrush solid(kColor);
    EXPECT_EQ(solid.GetLogBrush(&info), static_cast<int>(sizeof info));
    EXPECT_EQ(info.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(info.lbColor, kColor);
    CBrush hatched(HS_CROSS, kColor);
    hatched.GetLogBrush(&info);
    EXPECT_EQ(info.lbStyle, static_cast<UINT>(BS_HATCHED));
    EXPECT_EQ(info.lbHatch, static_cast<ULONG_PTR>(HS_CROSS));
    EXPECT_EQ(info.lbColor, kColor);
    CBrush made;
    EXPECT_TRUE(made.CreateHatchBrush(HS_VERTICAL, RGB(1, 2, 3)));
    made.GetLogBrush(&info);
    EXPECT_EQ(info.lbHatch, static_cast<ULONG_PTR>(HS_VERTICAL));
    EXPECT_EQ(info.lbColor, RGB(1, 2, 3));
    CBrush copy;
    EXPECT_TRUE(copy.CreateBrushIndirect(&info));
    LOGBRUSH again = {};
    copy.GetLogBrush(&again);
    EXPECT_EQ(again.lbHatch, static_cast<ULONG_PTR>(HS_VERTICAL));
    CBrush ofTheSystem;
    EXPECT_TRUE(ofTheSystem.CreateSysColorBrush(COLOR_HIGHLIGHT));
    ofTheSystem.GetLogBrush(&info);
    EXPECT_EQ(info.lbColor, ::GetSysColor(COLOR_HIGHLIGHT));
    ofTheSystem.Detach();
}

TEST(GdiObjects, PatternsAreBitmaps) {
    const WORD rows[8] = {0xF0, 0xF0, 0xF0, 0xF0, 0x0F, 0x0F, 0x0F, 0x0F};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(8, 8, 1, 1, rows));
    CBrush brush(&bitmap);
    ui_test::Canvas canvas(8, 8);
    canvas.dc.SetTextColor(RGB(255, 0, 0));
    canvas.dc.FillRect(CRect(0, 0, 8, 8), &brush);
    EXPECT_EQ(canvas.at(1, 1), RGB(255, 255, 255));
    EXPECT_EQ(canvas.at(6, 1), RGB(255, 0, 0));
    EXPECT_EQ(canvas.at(1, 6), RGB(255, 0, 0));
    struct {
        BITMAPINFOHEADER header = {sizeof header, 8, 1, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        DWORD pixels[8] = {0xFF0000, 0xFF0000, 0xFF0000, 0xFF0000, 0, 0, 0, 0};
    } packed;
    CBrush device;
    ASSERT_TRUE(device.CreateDIBPatternBrush(&packed, DIB_RGB_COLORS));
    canvas.dc.FillRect(CRect(0, 0, 8, 8), &device);
    EXPECT_EQ(canvas.at(3, 5), RGB(255, 0, 0));
    EXPECT_EQ(canvas.at(4, 5), RGB(0, 0, 0));
}

TEST(GdiObjects, FontsHaveWhatTheyWereMadeWith) {
    CFont font;
    ASSERT_TRUE(font.CreateFont(-21, 9, 300, 310, FW_BOLD, 1, 1, 1, RUSSIAN_CHARSET, OUT_TT_PRECIS,
                                CLIP_LH_ANGLES, PROOF_QUALITY, FIXED_PITCH | FF_MODERN, L"Tahoma"));
    LOGFONTW info = {};
    EXPECT_EQ(font.GetLogFont(&info), static_cast<int>(sizeof info));
    EXPECT_EQ(info.lfHeight, -21);
    EXPECT_EQ(info.lfWidth, 9);
    EXPECT_EQ(info.lfEscapement, 300);
    EXPECT_EQ(info.lfOrientation, 310);
    EXPECT_EQ(info.lfWeight, FW_BOLD);
    EXPECT_EQ(info.lfItalic, 1);
    EXPECT_EQ(info.lfUnderline, 1);
    EXPECT_EQ(info.lfStrikeOut, 1);
    EXPECT_EQ(info.lfCharSet, RUSSIAN_CHARSET);
    EXPECT_EQ(info.lfOutPrecision, OUT_TT_PRECIS);
    EXPECT_EQ(info.lfClipPrecision, CLIP_LH_ANGLES);
    EXPECT_EQ(info.lfQuality, PROOF_QUALITY);
    EXPECT_EQ(info.lfPitchAndFamily, FIXED_PITCH | FF_MODERN);
    EXPECT_STREQ(info.lfFaceName, L"Tahoma");
    CFont copy;
    ASSERT_TRUE(copy.CreateFontIndirect(&info));
    LOGFONTW again = {};
    copy.GetLogFont(&again);
    EXPECT_EQ(again.lfOrientation, 310);
}

TEST(GdiObjects, PointsAreMeasuredInTheContextsMapping) {
    ui_test::Canvas canvas(8, 8);
    CDC& dc = canvas.dc;
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(1, 4);
    dc.SetViewportExt(1, -1);
    dc.SetViewportOrg(5, 77);
    LOGFONTW info = {};
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(240, L"Tahoma", &dc));
    font.GetLogFont(&info);
    EXPECT_EQ(info.lfHeight, -4 * ::MulDiv(24, dc.GetDeviceCaps(LOGPIXELSY), 72));
    EXPECT_EQ(info.lfCharSet, DEFAULT_CHARSET);
    LOGFONTW wanted = {};
    wanted.lfHeight = 480;
    wanted.lfItalic = 1;
    CFont slanted;
    ASSERT_TRUE(slanted.CreatePointFontIndirect(&wanted));
    slanted.GetLogFont(&info);
    EXPECT_EQ(info.lfHeight, -::MulDiv(48, dc.GetDeviceCaps(LOGPIXELSY), 72));
    EXPECT_EQ(info.lfItalic, 1);
    EXPECT_EQ(wanted.lfHeight, 480) << "the caller's description stays";
}

TEST(GdiObjects, ALongFaceNameIsCutOff) {
    CFont font;
    const CString name(L'n', 40);
    ASSERT_TRUE(font.CreatePointFont(100, name));
    LOGFONTW info = {};
    font.GetLogFont(&info);
    EXPECT_EQ(CString(info.lfFaceName), name.Left(LF_FACESIZE - 1));
}

TEST(GdiObjects, BitmapsHoldTheirBits) {
    const BYTE rows[4] = {0x12, 0x34, 0x56, 0x78};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(16, 2, 1, 1, rows));
    BITMAP info = {};
    EXPECT_EQ(bitmap.GetBitmap(&info), static_cast<int>(sizeof info));
    EXPECT_EQ(info.bmWidth, 16);
    EXPECT_EQ(info.bmHeight, 2);
    EXPECT_EQ(info.bmBitsPixel, 1);
    BYTE found[4] = {};
    EXPECT_EQ(bitmap.GetBitmapBits(4, found), 4U);
    EXPECT_EQ(found[3], 0x78);
    const BYTE others[4] = {1, 2, 3, 4};
    EXPECT_EQ(bitmap.SetBitmapBits(4, others), 4U);
    bitmap.GetBitmapBits(4, found);
    EXPECT_EQ(found[0], 1);
    EXPECT_EQ(bitmap.SetBitmapDimension(300, 200), CSize(0, 0));
    EXPECT_EQ(bitmap.GetBitmapDimension(), CSize(300, 200));
    EXPECT_EQ(bitmap.SetBitmapDimension(30, 20), CSize(300, 200));
    CBitmap copy;
    info.bmBits = const_cast<BYTE*>(rows);
    ASSERT_TRUE(copy.CreateBitmapIndirect(&info));
    copy.GetBitmapBits(4, found);
    EXPECT_EQ(found[1], 0x34);
}

TEST(GdiObjects, BitmapsForAContextHaveItsDepth) {
    CClientDC screen(nullptr);
    BITMAP info = {};
    CBitmap compatible, discardable, mono;
    ASSERT_TRUE(compatible.CreateCompatibleBitmap(&screen, 5, 9));
    compatible.GetBitmap(&info);
    EXPECT_EQ(info.bmWidth, 5);
    EXPECT_EQ(info.bmHeight, 9);
    EXPECT_EQ(info.bmBitsPixel, screen.GetDeviceCaps(BITSPIXEL));
    ASSERT_TRUE(discardable.CreateDiscardableBitmap(&screen, 6, 11));
    discardable.GetBitmap(&info);
    EXPECT_EQ(info.bmWidth, 6);
    EXPECT_EQ(info.bmHeight, 11);
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    ASSERT_TRUE(mono.CreateCompatibleBitmap(&memory, 5, 9));
    mono.GetBitmap(&info);
    EXPECT_EQ(info.bmBitsPixel, 1) << "a new memory context has one bit";
}

TEST(GdiObjects, BitmapsAreLoadedWithOtherColors) {
    COLORMAP red_to_green = {RGB(255, 0, 0), RGB(0, 128, 0)};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadMappedBitmap(300, 0, &red_to_green, 1));
    BITMAP info = {};
    bitmap.GetBitmap(&info);
    EXPECT_EQ(info.bmWidth, 4);
    CBitmap missing, arrow;
    EXPECT_FALSE(missing.LoadMappedBitmap(999));
    EXPECT_TRUE(arrow.LoadOEMBitmap(32760)) << "the check mark of the system";
    EXPECT_FALSE(missing.LoadOEMBitmap(1));
}

TEST(GdiObjects, PalettesHaveEntries) {
    struct {
        WORD version = 0x300, count = 3;
        PALETTEENTRY entries[3] = {{255, 0, 0, 0}, {0, 255, 0, 0}, {0, 0, 255, 0}};
    } wanted;
    CPalette palette;
    ASSERT_TRUE(palette.CreatePalette(reinterpret_cast<LOGPALETTE*>(&wanted)));
    EXPECT_EQ(palette.GetEntryCount(), 3);
    PALETTEENTRY found[2] = {};
    EXPECT_EQ(palette.GetPaletteEntries(1, 2, found), 2U);
    EXPECT_EQ(found[0].peGreen, 255);
    EXPECT_EQ(found[1].peBlue, 255);
    EXPECT_EQ(palette.GetNearestPaletteIndex(RGB(0, 10, 240)), 2U);
    PALETTEENTRY white = {255, 255, 255, 0};
    EXPECT_EQ(palette.SetPaletteEntries(1, 1, &white), 1U);
    palette.GetPaletteEntries(1, 1, found);
    EXPECT_EQ(found[0].peRed, 255);
    EXPECT_TRUE(palette.ResizePalette(7));
    EXPECT_EQ(palette.GetEntryCount(), 7);
    EXPECT_TRUE(palette.UnrealizeObject());
    EXPECT_EQ(CPalette::FromHandle(palette), &palette);
    CPalette halftone;
    CClientDC screen(nullptr);
    EXPECT_TRUE(halftone.CreateHalftonePalette(&screen));
    EXPECT_GT(halftone.GetEntryCount(), 100);
    CPalette without;
    EXPECT_TRUE(without.CreateHalftonePalette(nullptr));
    CPalette* const former = screen.SelectPalette(&palette, FALSE);
    ASSERT_NE(former, nullptr);
    EXPECT_EQ(screen.GetCurrentPalette(), &palette);
    EXPECT_EQ(screen.SelectPalette(former, FALSE), &palette);
}

TEST(GdiObjects, RegionsOfEachShape) {
    CRgn rect, box, round, oval, oval_box, polygon, two;
    ASSERT_TRUE(rect.CreateRectRgn(1, 2, 30, 40));
    EXPECT_EQ(Shape(rect).box, CRect(1, 2, 30, 40));
    ASSERT_TRUE(box.CreateRectRgnIndirect(CRect(3, 4, 50, 60)));
    EXPECT_EQ(Shape(box).box, CRect(3, 4, 50, 60));
    ASSERT_TRUE(round.CreateRoundRectRgn(0, 0, 40, 30, 20, 10));
    EXPECT_FALSE(round.PtInRegion(1, 1));
    EXPECT_TRUE(round.PtInRegion(CPoint(20, 1)));
    CRgn round_beside;
    round_beside.Attach(::CreateRoundRectRgn(0, 0, 40, 30, 20, 10));
    EXPECT_TRUE(round.EqualRgn(&round_beside));
    ASSERT_TRUE(oval.CreateEllipticRgn(0, 3, 40, 33));
    ASSERT_TRUE(oval_box.CreateEllipticRgnIndirect(CRect(0, 3, 40, 33)));
    EXPECT_TRUE(oval.EqualRgn(&oval_box));
    EXPECT_FALSE(oval.EqualRgn(&rect));
    const POINT corners[] = {{0, 0}, {40, 0}, {0, 40}, {60, 60}, {90, 60}, {60, 90}};
    ASSERT_TRUE(polygon.CreatePolygonRgn(corners, 3, ALTERNATE));
    EXPECT_TRUE(polygon.PtInRegion(5, 5));
    EXPECT_FALSE(polygon.PtInRegion(30, 30));
    const INT counts[] = {3, 3};
    ASSERT_TRUE(two.CreatePolyPolygonRgn(corners, counts, 2, WINDING));
    EXPECT_TRUE(two.PtInRegion(5, 5));
    EXPECT_TRUE(two.PtInRegion(65, 65));
    EXPECT_FALSE(two.PtInRegion(50, 50));
    EXPECT_TRUE(two.RectInRegion(CRect(62, 62, 200, 200)));
    EXPECT_FALSE(two.RectInRegion(CRect(42, 42, 55, 55)));
}

TEST(GdiObjects, WindingAndAlternateRegionsDiffer) {
    const POINT corners[] = {{0, 0}, {60, 0}, {60, 60}, {0, 60}, {20, 20}, {40, 20}, {40, 40}, {20, 40}};
    const INT counts[] = {4, 4};
    CRgn odd, all;
    ASSERT_TRUE(odd.CreatePolyPolygonRgn(corners, counts, 2, ALTERNATE));
    ASSERT_TRUE(all.CreatePolyPolygonRgn(corners, counts, 2, WINDING));
    EXPECT_FALSE(odd.PtInRegion(30, 30));
    EXPECT_TRUE(all.PtInRegion(30, 30));
}

TEST(GdiObjects, RegionsMoveCombineAndAreCopied) {
    CRgn first, second, result;
    first.CreateRectRgn(0, 0, 10, 20);
    second.CreateRectRgn(5, 0, 30, 20);
    result.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(result.CombineRgn(&first, &second, RGN_DIFF), SIMPLEREGION);
    EXPECT_EQ(Shape(result).box, CRect(0, 0, 5, 20));
    EXPECT_EQ(result.CombineRgn(&second, &first, RGN_DIFF), SIMPLEREGION);
    EXPECT_EQ(Shape(result).box, CRect(10, 0, 30, 20));
    EXPECT_EQ(result.CopyRgn(&first), SIMPLEREGION);
    EXPECT_TRUE(result.EqualRgn(&first));
    EXPECT_EQ(result.OffsetRgn(3, 7), SIMPLEREGION);
    EXPECT_EQ(Shape(result).box, CRect(3, 7, 13, 27));
    EXPECT_EQ(result.OffsetRgn(CPoint(-3, -7)), SIMPLEREGION);
    EXPECT_TRUE(result.EqualRgn(&first));
    result.SetRectRgn(1, 2, 3, 4);
    EXPECT_EQ(Shape(result).box, CRect(1, 2, 3, 4));
    result.SetRectRgn(CRect(5, 6, 17, 28));
    EXPECT_EQ(Shape(result).box, CRect(5, 6, 17, 28));
    result.SetRectRgn(0, 0, 0, 0);
    EXPECT_EQ(Shape(result).kind, NULLREGION);
}

TEST(GdiObjects, RegionsAreReadAndMadeAgain) {
    CRgn corner;
    CRgn cut;
    corner.CreateRectRgn(0, 0, 30, 30);
    cut.CreateRectRgn(10, 10, 30, 30);
    EXPECT_EQ(corner.CombineRgn(&corner, &cut, RGN_DIFF), COMPLEXREGION);
    const int size = corner.GetRegionData(nullptr, 0);
    ASSERT_GT(size, static_cast<int>(sizeof(RGNDATAHEADER)));
    std::vector<BYTE> bytes(static_cast<std::size_t>(size));
    auto* const data = reinterpret_cast<RGNDATA*>(bytes.data());
    EXPECT_EQ(corner.GetRegionData(data, size), size);
    CRgn again, moved;
    ASSERT_TRUE(again.CreateFromData(nullptr, size, data));
    EXPECT_TRUE(again.EqualRgn(&corner));
    const XFORM shift = {1, 0, 0, 1, 100, 50};
    ASSERT_TRUE(moved.CreateFromData(&shift, size, data));
    EXPECT_EQ(Shape(moved).box, CRect(100, 50, 130, 80));
}

TEST(GdiObjects, EveryHandleGetsAnObjectOfItsClass) {
    const LOGBRUSH brush = {BS_SOLID, kColor, 0};
    CPen geometric(PS_GEOMETRIC | PS_SOLID, 4, &brush);
    const HGDIOBJ extended = geometric.Detach();
    const HGDIOBJ region = ::CreateRectRgn(0, 0, 1, 1), bitmap = ::CreateBitmap(1, 1, 1, 1, nullptr);
    EXPECT_TRUE(CGdiObject::FromHandle(extended)->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_TRUE(CGdiObject::FromHandle(region)->IsKindOf(RUNTIME_CLASS(CRgn)));
    EXPECT_TRUE(CGdiObject::FromHandle(bitmap)->IsKindOf(RUNTIME_CLASS(CBitmap)));
    const HDC memory = ::CreateCompatibleDC(nullptr);
    CGdiObject* const other = CGdiObject::FromHandle(memory);
    EXPECT_EQ(other->m_hObject, static_cast<HGDIOBJ>(memory));
    EXPECT_EQ(other->GetRuntimeClass(), RUNTIME_CLASS(CGdiObject));
    CGdiObject::DeleteTempMap();
    ::DeleteDC(memory);
    for (const HGDIOBJ each : {extended, region, bitmap})
        EXPECT_TRUE(::DeleteObject(each)) << "nobody deleted it";
    EXPECT_EQ(CGdiObject::FromHandle(nullptr), nullptr);
}

TEST(GdiObjects, StockObjectsAndDeletedOnes) {
    CBrush stock;
    EXPECT_TRUE(stock.CreateStockObject(GRAY_BRUSH));
    EXPECT_EQ(stock.m_hObject, ::GetStockObject(GRAY_BRUSH));
    stock.Detach();
    CBrush brush(kColor);
    const HGDIOBJ gone = brush.m_hObject;
    EXPECT_TRUE(brush.DeleteObject());
    EXPECT_EQ(brush.GetSafeHandle(), nullptr);
    EXPECT_EQ(::GetObjectType(gone), 0U);
    EXPECT_FALSE(brush.DeleteObject()) << "there is none left";
    CBrush first(kColor), second;
    const HGDIOBJ one = first.m_hObject;
    const HGDIOBJ two = ::CreateSolidBrush(RGB(1, 1, 1));
    EXPECT_TRUE(first.Attach(two));
    EXPECT_NE(CGdiObject::FromHandle(one), &first);
    EXPECT_EQ(CGdiObject::FromHandle(two), &first);
    EXPECT_TRUE(first.Attach(two)) << "the same again";
    EXPECT_EQ(CGdiObject::FromHandle(two), &first);
    EXPECT_TRUE(::DeleteObject(one));
}

TEST(GdiObjects, ConstructorsThatFailThrow) {
    const LOGBRUSH none = {0xFFFF, 0, 0};
    EXPECT_THROW(CPen(PS_GEOMETRIC | PS_USERSTYLE, 1, &none, 0, nullptr), CResourceException*);
    EXPECT_THROW(CBrush(77, kColor), CResourceException*);
    CBitmap empty;
    EXPECT_THROW(CBrush{&empty}, CResourceException*);
}
