// What a picker paints for an item: every pixel of it, beside what plain calls paint.
#include <ktui/pickers/color_combo_box.h>
#include <ktui/pickers/true_color_combo_box.h>

#include "picker_fixture.h"
#include "scheme_in_force.h"

using namespace ui_test;

namespace {

constexpr int kWidth = 120;
constexpr int kHeight = 40;
constexpr int kImageWidth = 21;
constexpr COLORREF kUntouched = RGB(200, 100, 50);
constexpr COLORREF kImage = RGB(1, 200, 3);
const CRect kItem(6, 5, 110, 33);

/// A picker whose image column is 21 pixels wide and whose images are as a test wants them.
class Painted : public CKtUiMRUComboBox {
public:
    int imageOverlap = -100;  ///< pixels that an image reaches into the text; -100 draws none
    std::wstring suffix;
    std::vector<__int64> imagesDrawn;

    int ImageWidth() override { return kImageWidth; }
    void OnAddItems() override {
        AddItemToList(L"first", 11);
        AddItemToList(L"R&D,\nsecond line", 12);
        AddItemToList(L"", 13);
        AddItemToList(L"a text that is much longer than the item is wide", 14);
    }
    void DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) override {
        imagesDrawn.push_back(cargo);
        if (imageOverlap == -100) return;
        CRect image = rect;
        image.right += imageOverlap;
        dc.FillSolidRect(&image, kImage);
    }
    void GetLBString(int index, CString& text) override {
        CKtUiMRUComboBox::GetLBString(index, text);
        text += suffix.c_str();
    }
};

DRAWITEMSTRUCT itemOf(const Canvas& canvas, int index, UINT state) {
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_COMBOBOX;
    item.itemID = static_cast<UINT>(index);
    item.itemState = state;
    item.hDC = canvas.dc.m_hDC;
    item.rcItem = kItem;
    return item;
}

std::vector<COLORREF> pixelsOf(const Canvas& canvas) {
    std::vector<COLORREF> pixels;
    for (int i = 0; i < kWidth * kHeight; ++i) pixels.push_back(canvas.dc.GetPixel(i % kWidth, i / kWidth));
    return pixels;
}

std::vector<COLORREF> drawn(CKtUiMRUComboBox& picker, int index, UINT state) {
    Canvas canvas(kWidth, kHeight, kUntouched);
    DRAWITEMSTRUCT item = itemOf(canvas, index, state);
    picker.DrawItem(&item);
    return pixelsOf(canvas);
}

/// The item as plain calls draw it: filled with `paper` unless that is CLR_NONE, and `text` in `ink`.
std::vector<COLORREF> wanted(COLORREF paper, COLORREF ink, const wchar_t* text) {
    Canvas canvas(kWidth, kHeight, kUntouched);
    CRect area = kItem;
    area.left += kImageWidth;
    if (paper != CLR_NONE) canvas.dc.FillSolidRect(&area, paper);
    ::SetTextColor(canvas.dc.m_hDC, ink);
    ::SetBkMode(canvas.dc.m_hDC, TRANSPARENT);
    ::DrawTextW(canvas.dc.m_hDC, text, -1, &area, DT_SINGLELINE | DT_VCENTER);
    return pixelsOf(canvas);
}

/// Counts what differs, so that a failure doesn't print thousands of pixels.
int differences(const std::vector<COLORREF>& a, const std::vector<COLORREF>& b) {
    int count = 0;
    for (std::size_t i = 0; i < a.size(); ++i) count += a[i] != b[i] ? 1 : 0;
    return count;
}

}  // namespace

TEST(PickerItem, IsTextOfWindowsOnTheirBackground) {
    const SchemeInForce colors(FALSE);
    InHolder<Painted> in;
    EXPECT_EQ(differences(drawn(in.picker, 0, 0), wanted(scheme::kWindow, scheme::kWindowText, L"first")), 0);
    EXPECT_GT(differences(drawn(in.picker, 0, 0), wanted(scheme::kWindow, scheme::kWindowText, L"")), 10);
}

TEST(PickerItem, IsHighlightedWhenSelected) {
    const SchemeInForce colors(FALSE);
    InHolder<Painted> in;
    EXPECT_EQ(differences(drawn(in.picker, 0, ODS_SELECTED),
                          wanted(scheme::kHighlight, scheme::kHighlightText, L"first")),
              0);
}

TEST(PickerItem, InTheFieldHasTheTextOfWindowsAndIsNeverFilled) {
    const SchemeInForce colors(FALSE);
    InHolder<Painted> in;
    const auto plain = wanted(CLR_NONE, scheme::kWindowText, L"first");
    EXPECT_EQ(differences(drawn(in.picker, 0, ODS_COMBOBOXEDIT), plain), 0);
    EXPECT_EQ(differences(drawn(in.picker, 0, ODS_COMBOBOXEDIT | ODS_SELECTED), plain), 0);
}

TEST(PickerItem, ShowsNoFocus) {
    const SchemeInForce colors(FALSE);
    InHolder<Painted> in;
    for (const UINT state : {0u, UINT{ODS_SELECTED}, UINT{ODS_COMBOBOXEDIT}})
        EXPECT_EQ(differences(drawn(in.picker, 0, state | ODS_FOCUS), drawn(in.picker, 0, state)), 0);
}

TEST(PickerItem, IsOneLineCutOffAtItsEnd) {
    const SchemeInForce colors(FALSE);
    InHolder<Painted> in;
    EXPECT_EQ(differences(drawn(in.picker, 1, 0),
                          wanted(scheme::kWindow, scheme::kWindowText, L"R&D,\nsecond line")),
              0);
    const wchar_t* longText = L"a text that is much longer than the item is wide";
    EXPECT_EQ(differences(drawn(in.picker, 3, 0), wanted(scheme::kWindow, scheme::kWindowText, longText)), 0);
}

TEST(PickerItem, TextIsTheOneWithItsSuffix) {
    const SchemeInForce colors(FALSE);
    InHolder<Painted> in;
    in.picker.suffix = L" (VP)";
    EXPECT_EQ(
        differences(drawn(in.picker, 0, 0), wanted(scheme::kWindow, scheme::kWindowText, L"first (VP)")), 0);
}

TEST(PickerItem, WithoutATextIsFilledOnly) {
    const SchemeInForce colors(FALSE);
    InHolder<Painted> in;
    EXPECT_EQ(differences(drawn(in.picker, 2, 0), wanted(scheme::kWindow, 0, L"")), 0);
    EXPECT_EQ(differences(drawn(in.picker, 2, ODS_COMBOBOXEDIT), wanted(CLR_NONE, 0, L"")), 0);
}

TEST(PickerItem, OutsideTheListHasNoCargoAndNoText) {
    const SchemeInForce colors(FALSE);
    InHolder<Painted> in;
    EXPECT_EQ(differences(drawn(in.picker, 99, 0), wanted(scheme::kWindow, 0, L"")), 0);
    EXPECT_EQ(in.picker.imagesDrawn.back(), -1);
}

TEST(PickerItem, NoItemIsNotDrawnAtAll) {
    InHolder<Painted> in;
    in.picker.imageOverlap = 0;
    EXPECT_EQ(differences(drawn(in.picker, -1, ODS_SELECTED), wanted(CLR_NONE, 0, L"")), 0);
}

TEST(PickerItem, TextLiesOverAnImageThatIsTooWide) {
    const SchemeInForce colors(FALSE);
    InHolder<Painted> in;
    in.picker.imageOverlap = 9;
    constexpr int kRow = 8 * kWidth;
    const auto inList = drawn(in.picker, 2, 0);
    EXPECT_EQ(inList[kRow + kItem.left - 1], kUntouched);
    EXPECT_EQ(inList[kRow + kItem.left], kImage);
    EXPECT_EQ(inList[kRow + kItem.left + kImageWidth - 1], kImage);
    EXPECT_EQ(inList[kRow + kItem.left + kImageWidth], scheme::kWindow) << "filled behind the image";
    const auto inField = drawn(in.picker, 2, ODS_COMBOBOXEDIT);
    EXPECT_EQ(inField[kRow + kItem.left + kImageWidth], kImage);
}

TEST(PickerItem, DisabledOneLooksLikeAnyOtherUnlessTheHostFollowsTheSystem) {
    InHolder<Painted> in;
    {
        const SchemeInForce colors(FALSE);
        EXPECT_EQ(differences(drawn(in.picker, 0, ODS_COMBOBOXEDIT | ODS_DISABLED),
                              wanted(CLR_NONE, scheme::kWindowText, L"first")),
                  0);
    }
    const SchemeInForce colors(TRUE);
    EXPECT_EQ(differences(drawn(in.picker, 0, ODS_COMBOBOXEDIT | ODS_DISABLED),
                          wanted(CLR_NONE, scheme::kGrayText, L"first")),
              0);
    EXPECT_EQ(
        differences(drawn(in.picker, 0, ODS_COMBOBOXEDIT), wanted(CLR_NONE, scheme::kWindowText, L"first")),
        0);
}

TEST(PickerItem, LeavesTheContextAsItWas) {
    InHolder<Painted> in;
    Canvas canvas(kWidth, kHeight, kUntouched);
    canvas.dc.SetTextColor(RGB(9, 8, 7));
    canvas.dc.SetBkColor(RGB(6, 5, 4));
    canvas.dc.SetBkMode(OPAQUE);
    DRAWITEMSTRUCT item = itemOf(canvas, 0, ODS_SELECTED);
    in.picker.DrawItem(&item);
    EXPECT_EQ(canvas.dc.GetTextColor(), RGB(9, 8, 7));
    EXPECT_EQ(canvas.dc.GetBkColor(), RGB(6, 5, 4));
    EXPECT_EQ(canvas.dc.GetBkMode(), OPAQUE);
}

TEST(PickerItem, ItsPartsAreDrawnInTheColoursGiven) {
    InHolder<Painted> in;
    Canvas canvas(kWidth, kHeight, kUntouched);
    DRAWITEMSTRUCT item = itemOf(canvas, 2, 0);
    CRect rect = kItem;
    DWORD ink = RGB(70, 80, 90);
    DWORD paper = RGB(10, 20, 30);
    in.picker.DrawTextAndFocusRect(&item, &canvas.dc, rect, 0, ink, paper);
    EXPECT_EQ(differences(pixelsOf(canvas), wanted(RGB(10, 20, 30), RGB(70, 80, 90), L"first")), 0)
        << "the index decides, not the item";
    EXPECT_EQ(rect, kItem);
    in.picker.DrawItemImageFromCargo(&canvas.dc, rect, 1);
    in.picker.DrawItemImageFromCargo(&canvas.dc, rect, 4);
    EXPECT_EQ(in.picker.imagesDrawn, (std::vector<__int64>{12, -1}));
}

TEST(PickerItem, SetUpTellsTheRectanglesAndBothColours) {
    const SchemeInForce colors(FALSE);
    InHolder<Painted> in;
    struct Row {
        UINT state;
        COLORREF ink;
        COLORREF paper;
    };
    const Row rows[] = {{0, scheme::kWindowText, scheme::kWindow},
                        {ODS_SELECTED, scheme::kHighlightText, scheme::kHighlight},
                        {ODS_COMBOBOXEDIT, scheme::kWindowText, scheme::kWindow},
                        {ODS_COMBOBOXEDIT | ODS_SELECTED, scheme::kWindowText, scheme::kHighlight},
                        {ODS_DISABLED, scheme::kWindowText, scheme::kWindow},
                        {ODS_FOCUS, scheme::kWindowText, scheme::kWindow}};
    for (const Row& row : rows) {
        DRAWITEMSTRUCT item = {};
        item.rcItem = kItem;
        item.itemState = row.state;
        CRect whole;
        CRect image;
        DWORD ink = 0;
        DWORD paper = 0;
        in.picker.SetupForImageDraw(&item, nullptr, whole, image, ink, paper);
        EXPECT_EQ(whole, kItem);
        EXPECT_EQ(image, CRect(kItem.left, kItem.top, kItem.left + kImageWidth, kItem.bottom));
        EXPECT_EQ(ink, row.ink) << row.state;
        EXPECT_EQ(paper, row.paper) << row.state;
    }
}

TEST(PickerItem, SwatchAndNameStandSideBySide) {
    const SchemeInForce colors(FALSE);
    InHolder<CKtUiColorComboBox> in;
    const int height = in.picker.ItemHeight();
    const auto pixels = drawn(in.picker, 4, 0);
    const auto at = [&](int x, int y) { return pixels[static_cast<std::size_t>(y * kWidth + x)]; };
    const int left = static_cast<int>(kItem.left);
    const int top = static_cast<int>(kItem.top);
    EXPECT_EQ(at(left + 1, top + 1), kUntouched) << "no background under the image";
    EXPECT_EQ(at(left + 2, top + 2), RGB(0, 0, 0)) << "the frame";
    EXPECT_EQ(at(left + 3, top + 3), in.host.colorOf(3));
    EXPECT_EQ(at(left + height - 4, static_cast<int>(kItem.bottom) - 4), in.host.colorOf(3));
    EXPECT_EQ(at(left + height - 1, top + 5), kUntouched);
    EXPECT_EQ(at(left + height, top), scheme::kWindow);
}
