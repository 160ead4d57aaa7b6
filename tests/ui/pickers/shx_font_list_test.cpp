#include <ktui/pickers/shx_font_list.h>

#include <ktui/host/appearance.h>

#include "font_fixture.h"
#include "picker_fixture.h"
#include "scheme_color.h"

using ui_test::Canvas;
using ui_test::FakeFonts;

namespace {

using Texts = std::vector<std::wstring>;

constexpr COLORREF kUntouched = RGB(200, 100, 50);
constexpr int kWidth = 90;
constexpr int kHeight = 30;

class List : public CKtUiShxFontList {
public:
    HICON icon() const { return m_shxIcon; }
};

struct ListInHolder {
    FakeFonts fonts;
    ui_test::TestHost host;
    ui_test::RecordingHolder holder;
    List list;

    ListInHolder() {
        host.fonts = &fonts;
        const DWORD style = WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;
        list.Create(style, CRect(10, 10, 200, 200), &holder, 63);
    }

    Texts texts() const {
        Texts all;
        for (int i = 0; i < list.GetCount(); ++i) {
            CString text;
            list.GetText(i, text);
            all.emplace_back(text.GetString());
        }
        return all;
    }

    /// Draws item `id` at 5, 6, 80 pixels wide and 20 high.
    void draw(Canvas& canvas, int id, UINT state) {
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_LISTBOX;
        item.itemID = static_cast<UINT>(id);
        item.itemState = state;
        item.hwndItem = list.m_hWnd;
        item.hDC = canvas.dc.m_hDC;
        item.rcItem = CRect(5, 6, 85, 26);
        list.DrawItem(&item);
    }
};

/// What an item should look like, drawn by plain calls.
void drawWanted(Canvas& canvas, COLORREF paper, COLORREF ink, HICON icon, const wchar_t* text) {
    canvas.dc.FillSolidRect(CRect(5, 6, 85, 26), paper);
    if (!icon) return;
    ::DrawIconEx(canvas.dc.m_hDC, 5, 6, icon, 15, 15, 0, nullptr, DI_NORMAL);
    canvas.dc.SetBkMode(TRANSPARENT);
    canvas.dc.SetTextColor(ink);
    canvas.dc.TextOut(20, 7, text);
}

bool isSame(Canvas& a, Canvas& b) {
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            if (a.dc.GetPixel(x, y) != b.dc.GetPixel(x, y)) return false;
    return true;
}

bool isIcon(HICON icon) {
    ICONINFO info = {};
    if (!::GetIconInfo(icon, &info)) return false;
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return true;
}

}  // namespace

TEST(ShxFontList, BigFontsOnly) {
    ListInHolder of;
    of.list.FillList(true);
    EXPECT_EQ(of.texts(), Texts{L"big.shx"});
}

TEST(ShxFontList, WithoutBigFontsMeansEveryFontThatIsNotTrueType) {
    ListInHolder of;
    of.list.FillList(false);
    EXPECT_EQ(of.texts(), (Texts{L"txt.shx", L"big.shx", L"Odd"}));
}

TEST(ShxFontList, FillingStartsAnew) {
    ListInHolder of;
    of.list.FillList(false);
    of.list.FillList(false);
    EXPECT_EQ(of.list.GetCount(), 3);
}

TEST(ShxFontList, WithoutAFontListItStaysAsItIs) {
    ListInHolder of;
    of.list.FillList(false);
    of.host.fonts = nullptr;
    of.list.FillList(true);
    EXPECT_EQ(of.list.GetCount(), 3);
}

TEST(ShxFontList, ItemIsWindowColorIconAndBlackText) {
    ListInHolder of;
    of.list.FillList(false);
    Canvas drawn(kWidth, kHeight, kUntouched);
    of.draw(drawn, 0, 0);
    Canvas wanted(kWidth, kHeight, kUntouched);
    drawWanted(wanted, ::GetSysColor(COLOR_WINDOW), 0, of.list.icon(), L"txt.shx");
    EXPECT_TRUE(isSame(drawn, wanted));
}

TEST(ShxFontList, ItemHasItsIconForAHostThatFollowsTheSystemToo) {
    constexpr COLORREF kInk = RGB(0, 0, 90);
    ListInHolder of;
    of.list.FillList(false);
    const ui_test::SchemeColor window(COLOR_WINDOW, RGB(255, 255, 240)), text(COLOR_WINDOWTEXT, kInk);
    KtUiFollowSystemAppearance(TRUE);
    Canvas drawn(kWidth, kHeight, kUntouched);
    of.draw(drawn, 0, 0);
    KtUiFollowSystemAppearance(FALSE);
    Canvas wanted(kWidth, kHeight, kUntouched);
    drawWanted(wanted, RGB(255, 255, 240), kInk, of.list.icon(), L"txt.shx");
    EXPECT_TRUE(isSame(drawn, wanted));
}

TEST(ShxFontList, SelectedItemIsHighlightedWithWhiteText) {
    ListInHolder of;
    of.list.FillList(false);
    Canvas drawn(kWidth, kHeight, kUntouched);
    of.draw(drawn, 1, ODS_SELECTED);
    Canvas wanted(kWidth, kHeight, kUntouched);
    drawWanted(wanted, ::GetSysColor(COLOR_HIGHLIGHT), 0xFFFFFF, of.list.icon(), L"big.shx");
    EXPECT_TRUE(isSame(drawn, wanted));
}

TEST(ShxFontList, FocusDrawsNoRectangle) {
    ListInHolder of;
    of.list.FillList(false);
    Canvas focused(kWidth, kHeight, kUntouched);
    of.draw(focused, 0, ODS_FOCUS);
    Canvas plain(kWidth, kHeight, kUntouched);
    of.draw(plain, 0, 0);
    EXPECT_TRUE(isSame(focused, plain));
}

TEST(ShxFontList, NoItemFillsTheRectangleOnly) {
    ListInHolder of;
    for (const UINT state : {0u, static_cast<UINT>(ODS_SELECTED)}) {
        Canvas drawn(kWidth, kHeight, kUntouched);
        of.draw(drawn, -1, state);
        Canvas wanted(kWidth, kHeight, kUntouched);
        drawWanted(wanted, ::GetSysColor(state ? COLOR_HIGHLIGHT : COLOR_WINDOW), 0, nullptr, L"");
        EXPECT_TRUE(isSame(drawn, wanted)) << state;
    }
}

TEST(ShxFontList, MeasuringLeavesTheHeightAlone) {
    List list;
    MEASUREITEMSTRUCT item = {};
    item.itemHeight = 77;
    list.MeasureItem(&item);
    EXPECT_EQ(item.itemHeight, 77u);
}

TEST(ShxFontList, ItemsGrowToTheirIconOnlyForAHostThatFollowsTheSystem) {
    const auto heightAfterFilling = [](BOOL follows, UINT before) {
        ListInHolder in;
        in.list.SetItemHeight(0, before);
        KtUiFollowSystemAppearance(follows);
        in.list.FillList(false);
        KtUiFollowSystemAppearance(FALSE);
        return in.list.GetItemHeight(0);
    };
    for (const UINT height : {9u, 15u, 16u, 40u}) EXPECT_EQ(heightAfterFilling(FALSE, height), int(height));
    // The icon has 15 pixels, with a line between it and the next.
    EXPECT_EQ(heightAfterFilling(TRUE, 9), 16);
    EXPECT_EQ(heightAfterFilling(TRUE, 15), 16);
    EXPECT_EQ(heightAfterFilling(TRUE, 16), 16);
    EXPECT_EQ(heightAfterFilling(TRUE, 40), 40);
}

TEST(ShxFontList, IconGoesWithTheList) {
    HICON icon = nullptr;
    {
        const List list;
        icon = list.icon();
        EXPECT_TRUE(isIcon(icon));
    }
    EXPECT_FALSE(isIcon(icon));
}

TEST(ShxFontList, OpeningAndClosingLeavesNothingBehind) {
    const auto openAndClose = [] {
        ListInHolder of;
        of.list.FillList(false);
        ui_test::pump();
    };
    ui_test::expectNothingLeft(openAndClose);
}
