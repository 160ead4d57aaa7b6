// Where the sheets of a print preview stand.
#include <gtest/gtest.h>

#include "view/preview_layout.h"

namespace {

using kmfc::arrange_preview;
using kmfc::PreviewSheet;
using kmfc::PreviewZoom;

// 4 by 5 inches, printable from a quarter of an inch inwards, on a printer of 100 by 200 dots an inch.
const PreviewSheet kSheet{CSize(400, 1000), CRect(25, 50, 375, 950), CSize(100, 200)};
const CSize kScreen(96, 96);

TEST(PreviewLayout, AWholeSheetIsAsLargeAsFitsAndInTheMiddle) {
    // Down there is room for 400 pixels, 80 an inch.
    const auto layout =
        arrange_preview(CSize(620, 420), kSheet, 1, PreviewZoom::whole, CPoint(50, 50), kScreen);
    ASSERT_EQ(layout.sheets.size(), 1U);
    EXPECT_EQ(layout.sheets[0], CRect(CPoint(150, 10), CSize(320, 400)));
    EXPECT_EQ(layout.beyond, CSize(0, 0));
    // Across for 200, 50 an inch.
    const auto narrow =
        arrange_preview(CSize(220, 900), kSheet, 1, PreviewZoom::whole, CPoint(0, 0), kScreen);
    EXPECT_EQ(narrow.sheets[0], CRect(CPoint(10, 325), CSize(200, 250)));
}

TEST(PreviewLayout, TwoSheetsStandBesideEachOther) {
    const auto layout =
        arrange_preview(CSize(430, 900), kSheet, 2, PreviewZoom::whole, CPoint(0, 0), kScreen);
    ASSERT_EQ(layout.sheets.size(), 2U);
    EXPECT_EQ(layout.sheets[0], CRect(CPoint(10, 325), CSize(200, 250)));
    EXPECT_EQ(layout.sheets[1], CRect(CPoint(220, 325), CSize(200, 250)));
}

TEST(PreviewLayout, TheActualSizeIsThatOfThePaper) {
    const CSize client(120, 145);  // whole: 25 pixels an inch
    const auto layout = arrange_preview(client, kSheet, 1, PreviewZoom::actual, CPoint(0, 0), kScreen);
    EXPECT_EQ(layout.sheets[0], CRect(CPoint(10, 10), CSize(384, 480)));
    EXPECT_EQ(layout.beyond, CSize(404 - 120, 500 - 145));
    // A screen whose pixels are not square.
    const auto wide = arrange_preview(client, kSheet, 1, PreviewZoom::actual, CPoint(0, 0), CSize(192, 96));
    EXPECT_EQ(wide.sheets[0].Size(), CSize(768, 480));
    // Between them the middle: (25 + 96) / 2 pixels an inch.
    const auto nearer = arrange_preview(client, kSheet, 1, PreviewZoom::nearer, CPoint(0, 0), kScreen);
    EXPECT_EQ(nearer.sheets[0].Size(), CSize(242, 303));
}

TEST(PreviewLayout, ASheetThatIsLargeAlreadyStillComesNearer) {
    // Whole: 100 pixels an inch, so the actual size is 200 and the middle 150.
    const CSize client(420, 520);
    EXPECT_EQ(arrange_preview(client, kSheet, 1, PreviewZoom::actual, CPoint(0, 0), kScreen).sheets[0].Size(),
              CSize(800, 1000));
    EXPECT_EQ(arrange_preview(client, kSheet, 1, PreviewZoom::nearer, CPoint(0, 0), kScreen).sheets[0].Size(),
              CSize(600, 750));
}

TEST(PreviewLayout, IsScrolledAsFarAsThereIsSomething) {
    const CSize client(120, 145);
    const auto at = [&](int x, int y) {
        return arrange_preview(client, kSheet, 1, PreviewZoom::actual, CPoint(x, y), kScreen)
            .sheets[0]
            .TopLeft();
    };
    EXPECT_EQ(at(30, 40), CPoint(-20, -30));
    EXPECT_EQ(at(-5, 9999), CPoint(10, 10 - (500 - 145)));
    // What fits in one direction is in the middle there.
    const auto high =
        arrange_preview(CSize(604, 145), kSheet, 1, PreviewZoom::actual, CPoint(70, 40), kScreen);
    EXPECT_EQ(high.sheets[0].TopLeft(), CPoint(110, -30));
}

TEST(PreviewLayout, NoRoomIsAPixelAnInchAndNoPaperNothing) {
    EXPECT_EQ(
        arrange_preview(CSize(0, 0), kSheet, 1, PreviewZoom::whole, CPoint(0, 0), kScreen).sheets[0].Size(),
        CSize(4, 5));
    EXPECT_TRUE(arrange_preview(CSize(100, 100), PreviewSheet{}, 1, PreviewZoom::whole, CPoint(0, 0), kScreen)
                    .sheets.empty());
    EXPECT_EQ(
        arrange_preview(CSize(620, 420), kSheet, 0, PreviewZoom::whole, CPoint(0, 0), kScreen).sheets.size(),
        1U);
}

TEST(PreviewLayout, ThePrintablePartIsInScale) {
    EXPECT_EQ(kmfc::printable_part(CRect(CPoint(100, 10), CSize(320, 400)), kSheet),
              CRect(120, 30, 400, 390));
}

}  // namespace
