// Samples and pictures under a scheme of dark colours: for a host that keeps the agreed look they are black
// and white as ever, and for one that follows the system they take its colours.
#include <ktui/pickers/arrow_head_combo_box.h>
#include <ktui/pickers/color_combo_box.h>
#include <ktui/pickers/line_weight_combo_box.h>
#include <ktui/pickers/page_setup_color_combo_box.h>
#include <ktui/pickers/predef_block_combo_box.h>
#include <ktui/pickers/shx_font_list.h>
#include <ktui/pickers/true_color_combo_box.h>

#include "font_fixture.h"
#include "line_type_fixture.h"
#include "scheme_in_force.h"
#include "strip_fixture.h"

using namespace ui_test;

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

/// Pixels of the image of `cargo`, drawn into 40 by 40 pixels.
std::vector<COLORREF> imageOf(CKtUiMRUComboBox& picker, __int64 cargo) {
    Canvas canvas(40, 40, kUntouched);
    CRect rect(0, 0, 40, 40);
    picker.DrawItemImage(canvas.dc, rect, cargo);
    std::vector<COLORREF> pixels;
    for (int i = 0; i < 40 * 40; ++i) pixels.push_back(canvas.dc.GetPixel(i % 40, i / 40));
    return pixels;
}

/// Counts the pixels of `color`.
auto countOf(const std::vector<COLORREF>& pixels, COLORREF color) {
    return std::count(pixels.begin(), pixels.end(), color);
}

COLORREF between(COLORREF ink, COLORREF paper, COLORREF grey) {
    const auto mixed = [](int black, int white, int share) {
        return static_cast<BYTE>((black * (255 - share) + white * share) / 255);
    };
    return RGB(mixed(GetRValue(ink), GetRValue(paper), GetRValue(grey)),
               mixed(GetGValue(ink), GetGValue(paper), GetGValue(grey)),
               mixed(GetBValue(ink), GetBValue(paper), GetBValue(grey)));
}

}  // namespace

TEST(AgreedLook, FrameOfASwatchIsBlack) {
    const SchemeInForce colors(FALSE);
    InHolder<CKtUiColorComboBox> indexed;
    InHolder<CKtUiTrueColorComboBox> full;
    InHolder<CKtUiTrueColorComboBoxForPagesetup> page;
    for (CKtUiMRUComboBox* picker :
         std::vector<CKtUiMRUComboBox*>{&indexed.picker, &full.picker, &page.picker}) {
        const auto image = imageOf(*picker, 3);
        EXPECT_EQ(countOf(image, kBlack), 36 * 36 - 34 * 34);
        EXPECT_EQ(image[2 * 40 + 2], kBlack);
        EXPECT_EQ(image[37 * 40 + 37], kBlack);
        EXPECT_EQ(image[2 * 40 + 38], kUntouched);
    }
}

TEST(SystemLook, FrameOfASwatchIsTheColourOfTexts) {
    const SchemeInForce colors(TRUE);
    InHolder<CKtUiColorComboBox> in;
    const auto image = imageOf(in.picker, 3);
    EXPECT_EQ(countOf(image, scheme::kWindowText), 36 * 36 - 34 * 34);
    EXPECT_EQ(image[2 * 40 + 2], scheme::kWindowText);
}

TEST(AgreedLook, DiagonalIsBlackAndWhiteInEveryLook) {
    for (const BOOL follows : {FALSE, TRUE}) {
        const SchemeInForce colors(follows);
        InHolder<CKtUiColorComboBox> indexed;
        const auto image = imageOf(indexed.picker, 7);
        EXPECT_EQ(image[3 * 40 + 36], kBlack);
        EXPECT_EQ(image[36 * 40 + 3], kWhite);
        InHolder<CKtUiTrueColorComboBox> full;
        EXPECT_EQ(imageOf(full.picker, 8)[3 * 40 + 36], kBlack);
        EXPECT_EQ(imageOf(full.picker, 8)[3 * 40 + 3], kWhite);
    }
}

TEST(AgreedLook, BarOfALineweightIsBlack) {
    const SchemeInForce colors(FALSE);
    InHolder<CKtUiLineWeightComboBox> in;
    const auto image = imageOf(in.picker, 211);
    EXPECT_EQ(countOf(image, kBlack), 34 * 36) << "all but the margins";
    EXPECT_EQ(countOf(image, kUntouched), 40 * 40 - 34 * 36);
}

TEST(SystemLook, BarOfALineweightIsTheColourOfTexts) {
    const SchemeInForce colors(TRUE);
    InHolder<CKtUiLineWeightComboBox> in;
    EXPECT_EQ(countOf(imageOf(in.picker, 211), scheme::kWindowText), 34 * 36);
}

TEST(AgreedLook, LinetypesAreBlackOnWhite) {
    for (const BOOL follows : {FALSE, TRUE}) {
        const SchemeInForce colors(follows);
        LinetypePickerInHolder of;
        OneDocument document(of.drawing.database());
        RecordingView view;
        of.host.document = &document;
        of.host.view = &view;
        Canvas canvas(100, 16, kUntouched);
        CRect rect(10, 1, 60, 15);
        of.picker.DrawItemImage(canvas.dc, rect, of.picker.GetItemCargo(3));
        ASSERT_EQ(view.drawn, 1);
        EXPECT_EQ(view.foreground, follows ? scheme::kWindowText : kBlack);
        EXPECT_EQ(view.background, follows ? scheme::kWindow : kWhite);
    }
}

TEST(AgreedLook, StripsAreShownAsTheyAre) {
    const SchemeInForce colors(FALSE);
    InHolder<CKtUiArrowHeadComboBox> arrows;
    LibraryStrip arrowStrip(1003);
    Canvas canvas(30, 30, kUntouched);
    drawImage(canvas, arrows.picker, 4);
    EXPECT_TRUE(showsPicture(canvas, arrowStrip, CPoint(3, 4), 14 * 19, CSize(15, 15)));
    InHolder<CKtUiPredefBlockComboBox> blocks;
    LibraryStrip blockStrip(1004);
    Canvas other(30, 30, kUntouched);
    drawImage(other, blocks.picker, 2);
    EXPECT_TRUE(showsPicture(other, blockStrip, CPoint(3, 4), 34, CSize(16, 17)));
}

TEST(SystemLook, StripsAreRecoloredPixelByPixel) {
    const SchemeInForce colors(TRUE);
    InHolder<CKtUiArrowHeadComboBox> arrows;
    LibraryStrip strip(1003);
    const auto image = imageOf(arrows.picker, 4);
    for (int y = 0; y < 15; ++y)
        for (int x = 0; x < 15; ++x)
            EXPECT_EQ(image[static_cast<std::size_t>(y * 40 + x)],
                      between(scheme::kWindowText, scheme::kWindow, strip.at(x, 14 * 19 + y)))
                << x << ", " << y;
    EXPECT_GT(countOf(image, scheme::kWindowText), 0);
    EXPECT_GT(countOf(image, scheme::kWindow), 0);
}

TEST(SystemLook, StripsTakeUpAnotherSchemeWhenTheyAreDrawnAgain) {
    InHolder<CKtUiPredefBlockComboBox> in;
    imageOf(in.picker, 2);
    const SchemeInForce colors(TRUE);
    EXPECT_GT(countOf(imageOf(in.picker, 2), scheme::kWindowText), 0);
    EXPECT_EQ(countOf(imageOf(in.picker, 2), kWhite), 0);
    const int index = COLOR_WINDOW;
    const COLORREF paper = RGB(90, 0, 30);
    ::SetSysColors(1, &index, &paper);
    EXPECT_GT(countOf(imageOf(in.picker, 2), paper), 0);
    EXPECT_EQ(countOf(imageOf(in.picker, 2), scheme::kWindow), 0);
}

namespace {

/// A list of shape fonts, and an item of it drawn at 0, 0.
struct ShapeFonts {
    FakeFonts fonts;
    TestHost host;
    RecordingHolder holder;
    CKtUiShxFontList list;

    ShapeFonts() {
        host.fonts = &fonts;
        list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, CRect(10, 10, 200, 200),
                    &holder, 63);
        list.FillList(false);
    }
    /// Colour of the item's background and whether its text has `ink`.
    std::pair<COLORREF, bool> drawn(UINT state, COLORREF ink) {
        Canvas canvas(80, 20, kUntouched);
        DRAWITEMSTRUCT item = {};
        item.itemState = state;
        item.hDC = canvas.dc.m_hDC;
        item.rcItem = CRect(0, 0, 80, 20);
        list.DrawItem(&item);
        bool isInked = false;
        for (int y = 0; y < 20; ++y)
            for (int x = 16; x < 80; ++x) isInked = isInked || canvas.dc.GetPixel(x, y) == ink;
        return {canvas.dc.GetPixel(79, 19), isInked};
    }
};

using Drawn = std::pair<COLORREF, bool>;

}  // namespace

TEST(AgreedLook, NamesOfShapeFontsAreBlackAndWhite) {
    const SchemeInForce colors(FALSE);
    ShapeFonts of;
    EXPECT_EQ(of.drawn(0, kBlack), Drawn(scheme::kWindow, true));
    EXPECT_EQ(of.drawn(ODS_SELECTED, kWhite), Drawn(scheme::kHighlight, true));
    of.list.EnableWindow(FALSE);
    EXPECT_EQ(of.drawn(0, kBlack), Drawn(scheme::kWindow, true)) << "a disabled list looks the same";
}

TEST(SystemLook, NamesOfShapeFontsTakeTheSystemsColours) {
    const SchemeInForce colors(TRUE);
    ShapeFonts of;
    EXPECT_EQ(of.drawn(0, scheme::kWindowText), Drawn(scheme::kWindow, true));
    EXPECT_EQ(of.drawn(ODS_SELECTED, scheme::kHighlightText), Drawn(scheme::kHighlight, true));
    of.list.EnableWindow(FALSE);
    EXPECT_EQ(of.drawn(0, scheme::kGrayText), Drawn(scheme::kFace, true));
    EXPECT_EQ(of.drawn(ODS_SELECTED, scheme::kGrayText), Drawn(scheme::kFace, true));
}
