// The device context in memory that the strip is drawn in.
#include <ktui/docking/xt_mem_dc.h>

#include <utility>

#include "canvas.h"
#include "replaced_import.h"
#include "slot_of.h"
#include "ui_test.h"

namespace {

constexpr COLORREF kGround = RGB(255, 255, 255), kFill = RGB(10, 20, 30);

struct MemDC : ::testing::Test {
    ui_test::Canvas canvas{40, 30, kGround};
    CSize sizeOf(const CXTMemDC& dc) {
        BITMAP info = {};
        const_cast<CBitmap&>(dc.GetBitmap()).GetBitmap(&info);
        return CSize(info.bmWidth, info.bmHeight);
    }
};

TEST_F(MemDC, MakesAPictureOfTheRectanglesSizeFilledWithTheColor) {
    CXTMemDC dc(&canvas.dc, CRect(0, 0, 12, 7), kFill);
    EXPECT_TRUE(dc.IsValid());
    EXPECT_EQ(dc.GetTarget(), &canvas.dc);
    EXPECT_TRUE(dc.GetRect() == CRect(0, 0, 12, 7));
    EXPECT_TRUE(sizeOf(dc) == CSize(12, 7));
    EXPECT_EQ(dc.GetPixel(0, 0), kFill);
    EXPECT_EQ(dc.GetPixel(11, 6), kFill);
    EXPECT_TRUE(canvas.isAll(kGround)) << "the target is left alone";
}

TEST_F(MemDC, FillsTheRectangleWhereItLies) {
    CXTMemDC dc(&canvas.dc, CRect(4, 2, 12, 8), kFill);
    EXPECT_TRUE(sizeOf(dc) == CSize(8, 6));
    EXPECT_EQ(dc.GetPixel(4, 2), kFill);
    EXPECT_NE(dc.GetPixel(3, 2), kFill);
    EXPECT_NE(dc.GetPixel(4, 1), kFill);
}

TEST_F(MemDC, AnEmptyRectangleStandsForTheClipBox) {
    canvas.dc.IntersectClipRect(0, 0, 25, 11);
    CXTMemDC dc(&canvas.dc, CRect(), kFill);
    EXPECT_TRUE(dc.GetRect() == CRect(0, 0, 25, 11));
    EXPECT_TRUE(sizeOf(dc) == CSize(25, 11));
    EXPECT_EQ(dc.GetPixel(24, 10), kFill);
}

TEST_F(MemDC, WithoutAColorNothingIsFilled) {
    CXTMemDC dc(&canvas.dc, CRect(0, 0, 12, 7));
    CXTMemDC white(&canvas.dc, CRect(0, 0, 12, 7), RGB(255, 255, 255));
    EXPECT_NE(dc.GetPixel(3, 3), white.GetPixel(3, 3)) << "a new picture is black";
}

TEST_F(MemDC, TakesTheTargetsMappingMode) {
    canvas.dc.SetMapMode(MM_LOMETRIC);
    CXTMemDC dc(&canvas.dc, CRect(0, 0, 12, 7));
    EXPECT_EQ(dc.GetMapMode(), MM_LOMETRIC);
    canvas.dc.SetMapMode(MM_TEXT);
}

TEST_F(MemDC, CreatingAgainGivesTheFormerPictureBack) {
    CXTMemDC dc(&canvas.dc, CRect(0, 0, 12, 7), kFill);
    const HGDIOBJ former = dc.GetBitmap().m_hObject;
    const HDC formerContext = dc.m_hDC;
    EXPECT_EQ(dc.Create(&canvas.dc, CRect(0, 0, 5, 5), RGB(1, 2, 3)), 1);
    EXPECT_TRUE(sizeOf(dc) == CSize(5, 5));
    BITMAP info = {};
    if (dc.GetBitmap().m_hObject != former) {
        EXPECT_EQ(::GetObjectW(former, sizeof info, &info), 0);
    }
    if (dc.m_hDC != formerContext) {
        EXPECT_EQ(::GetObjectType(formerContext), 0u);
    }
}

TEST_F(MemDC, GivesPictureAndContextBackAtItsEnd) {
    HGDIOBJ picture;
    HDC context;
    {
        CXTMemDC dc(&canvas.dc, CRect(0, 0, 12, 7), kFill);
        picture = dc.GetBitmap().m_hObject;
        context = dc.m_hDC;
    }
    EXPECT_EQ(::GetObjectType(picture), 0u);
    EXPECT_EQ(::GetObjectType(context), 0u);
}

TEST_F(MemDC, IsNotValidBeforeItWasMade) {
    CXTMemDC dc;
    EXPECT_FALSE(dc.IsValid());
    EXPECT_EQ(dc.m_hDC, nullptr);
    dc.Create(&canvas.dc, CRect(0, 0, 5, 5));
    dc.Release();
    EXPECT_FALSE(dc.IsValid());
    EXPECT_EQ(dc.m_hDC, nullptr);
    EXPECT_EQ(dc.GetBitmap().m_hObject, nullptr);
}

/// Counts the pixels of `dc` that are no longer `ground`.
int drawn(CDC& dc, COLORREF ground, int width, int height) {
    int count = 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) count += dc.GetPixel(x, y) != ground;
    return count;
}

TEST_F(MemDC, TextsGoToItsOwnHandle) {
    for (int kind = 0; kind < 5; ++kind) {
        CXTMemDC own(&canvas.dc, CRect(0, 0, 40, 30), kGround);
        // Where texts of a plain context would look for the attributes.
        own.SetAttribDC(nullptr);
        CDC& dc = own;
        CRect area(0, 0, 40, 30);
        wchar_t text[] = L"Hill";
        switch (kind) {
            case 0: EXPECT_TRUE(dc.TextOut(1, 1, text, 4)); break;
            case 1: EXPECT_TRUE(dc.ExtTextOut(1, 1, 0, nullptr, text, 4, nullptr)); break;
            case 2: EXPECT_GT(dc.TabbedTextOut(1, 1, text, 4, 0, nullptr, 0).cx, 0); break;
            case 3: EXPECT_GT(dc.DrawText(text, 4, &area, DT_LEFT), 0); break;
            default: EXPECT_GT(dc.DrawTextEx(text, 4, &area, DT_LEFT, nullptr), 0); break;
        }
        EXPECT_GT(drawn(own, kGround, 40, 30), 10) << kind;
        own.SetAttribDC(own.m_hDC);
    }
    EXPECT_TRUE(canvas.isAll(kGround));
}

TEST_F(MemDC, VisibilityIsThatOfItsOwnPicture) {
    CXTMemDC own(&canvas.dc, CRect(0, 0, 10, 10), kGround);
    const HDC attributes = own.m_hAttribDC;
    own.SetAttribDC(nullptr);
    const CDC& dc = own;
    EXPECT_TRUE(dc.PtVisible(9, 9));
    EXPECT_FALSE(dc.PtVisible(10, 9));
    EXPECT_TRUE(dc.RectVisible(CRect(8, 8, 20, 20)));
    EXPECT_FALSE(dc.RectVisible(CRect(12, 8, 20, 20)));
    own.SetAttribDC(attributes);
}

TEST_F(MemDC, GreyTextsAndEscapesGoToItsOwnHandle) {
    CXTMemDC dc(&canvas.dc, CRect(0, 0, 40, 30), kGround);
    wchar_t text[] = L"Hill";
    CBrush ink(RGB(0, 0, 0));
    EXPECT_TRUE(dc.GrayString(&ink, nullptr, reinterpret_cast<LPARAM>(text), 4, 1, 1, 30, 20));
    EXPECT_GT(drawn(dc, kGround, 40, 30), 5);
    EXPECT_EQ(dc.Escape(QUERYESCSUPPORT, 0, nullptr, nullptr),
              ::Escape(dc.m_hDC, QUERYESCSUPPORT, 0, nullptr, nullptr));
}

struct EscapeSeen {
    HDC dc;
    int escape, count;
    LPCSTR input;
    LPVOID output;
} escapeSeen;

int WINAPI noteEscape(HDC dc, int escape, int count, LPCSTR input, LPVOID output) {
    escapeSeen = {dc, escape, count, input, output};
    return 77;
}

TEST_F(MemDC, AnEscapeIsHandedOnWhole) {
    const ui_test::ReplacedImport notes(::GetModuleHandleW(L"ktui.dll"), "Escape", &noteEscape);
    ASSERT_TRUE(notes.isThere());
    CXTMemDC dc(&canvas.dc, CRect(0, 0, 40, 30), kGround);
    const char input[] = "in";
    char output[4] = {};
    EXPECT_EQ(dc.Escape(5, 2, input, output), 77);
    EXPECT_EQ(escapeSeen.dc, dc.m_hDC);
    EXPECT_EQ(escapeSeen.escape, 5);
    EXPECT_EQ(escapeSeen.count, 2);
    EXPECT_EQ(escapeSeen.input, input);
    EXPECT_EQ(escapeSeen.output, output);
}

}  // namespace
