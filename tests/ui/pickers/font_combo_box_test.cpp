#include <ktui/pickers/font_combo_box.h>

#include <ktui/host/appearance.h>
#include <ktui/res/resource_ids.h>

#include "font_fixture.h"
#include "picker_fixture.h"
#include "replaced_import.h"
#include "scheme_color.h"

using ui_test::Canvas;
using ui_test::FakeFonts;
using ui_test::FontKind;
using ui_test::InHolder;

namespace {

using Texts = std::vector<std::wstring>;

std::vector<HWND> contextsTaken, contextsReleased;

HDC WINAPI NoteContext(HWND window) {
    contextsTaken.push_back(window);
    return ::GetDC(window);
}

int WINAPI NoteRelease(HWND window, HDC dc) {
    contextsReleased.push_back(window);
    return ::ReleaseDC(window, dc);
}

constexpr COLORREF kUntouched = RGB(200, 100, 50);

class Picker : public CKtUiFontComboBox {
public:
    unsigned flags() const { return m_mruFlags; }
    bool hidesFlagged() const { return m_hideFlaggedStyles; }
    CComboBox* buddy() const { return m_buddy; }
    HICON trueTypeIcon() const { return m_trueTypeIcon; }
    HICON shxIcon() const { return m_shxIcon; }

    std::vector<int> droppedWidths;  ///< as the control was told

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == CB_SETDROPPEDWIDTH) droppedWidths.push_back(static_cast<int>(wParam));
        return CKtUiFontComboBox::WindowProc(message, wParam, lParam);
    }
};

/// A picker over the fake fonts, with a buddy beside it.
struct FontPickerInHolder {
    FakeFonts fonts;
    InHolder<Picker> in;
    CComboBox buddy;
    Picker& picker = in.picker;

    explicit FontPickerInHolder(bool hide = true) {
        in.host.fonts = &fonts;
        picker.AddItems();
        const CRect rect(10, 250, 210, 380);
        buddy.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, rect, &in.holder, 62);
        picker.setBuddy(&buddy, hide);
    }

    /// Selects item `index` and says so to the parent, as the control does when a user selects it.
    void pick(int index) {
        picker.SetCurSel(index);
        in.holder.SendMessage(WM_COMMAND, MAKEWPARAM(ui_test::kPickerId, CBN_SELCHANGE),
                              reinterpret_cast<LPARAM>(picker.m_hWnd));
    }
    Texts styles() const {
        Texts all;
        for (int i = 0; i < buddy.GetCount(); ++i) {
            CString text;
            buddy.GetLBText(i, text);
            all.emplace_back(text.GetString());
        }
        return all;
    }
    std::wstring current() {
        CString name = L"untouched";
        picker.getCurrentFont(name);
        return name.GetString();
    }
};

// Where the fonts stand in the list.
constexpr int kArial = 0;
constexpr int kTxt = 1;
constexpr int kBare = 2;
constexpr int kSecret = 3;

CSize sizeOf(HICON icon) {
    ICONINFO info = {};
    if (!::GetIconInfo(icon, &info)) return {};
    BITMAP bitmap = {};
    ::GetObjectW(info.hbmColor, sizeof bitmap, &bitmap);
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    return CSize(static_cast<int>(bitmap.bmWidth), static_cast<int>(bitmap.bmHeight));
}

/// Whether both canvases of 30 by 30 pixels show the same.
bool isSame(Canvas& a, Canvas& b) {
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 30; ++x)
            if (a.dc.GetPixel(x, y) != b.dc.GetPixel(x, y)) return false;
    return true;
}

/// Whether the image of `cargo` is `icon` at 3, 4; null for nothing.
bool showsIcon(Picker& picker, __int64 cargo, HICON icon) {
    Canvas drawn(30, 30, kUntouched);
    CRect rect(3, 4, 29, 29);
    picker.DrawItemImage(drawn.dc, rect, cargo);
    Canvas wanted(30, 30, kUntouched);
    if (icon) ::DrawIconEx(wanted.dc.m_hDC, 3, 4, icon, 15, 15, 0, nullptr, DI_NORMAL);
    return isSame(drawn, wanted);
}

}  // namespace

TEST(FontPicker, StartsWithoutABuddyAndHidesFlaggedStyles) {
    const Picker picker;
    EXPECT_EQ(picker.flags(), 0u);
    EXPECT_TRUE(picker.hidesFlagged());
    EXPECT_EQ(picker.buddy(), nullptr);
}

TEST(FontPicker, IconsAre15PixelsAndDiffer) {
    const Picker picker;
    EXPECT_EQ(IDI_TRUE_TYPE_FONT, 1018);
    EXPECT_EQ(IDI_SHX_FONT, 1019);
    EXPECT_EQ(sizeOf(picker.trueTypeIcon()), CSize(15, 15));
    EXPECT_EQ(sizeOf(picker.shxIcon()), CSize(15, 15));
    EXPECT_NE(picker.trueTypeIcon(), picker.shxIcon());
}

TEST(FontPicker, IconsOutliveTheControl) {
    HICON icon = nullptr;
    {
        const Picker picker;
        icon = picker.shxIcon();
    }
    EXPECT_EQ(sizeOf(icon), CSize(15, 15));
}

TEST(FontPicker, ListsEveryFontButTheBigOnesWithTheFontAsCargo) {
    FontPickerInHolder of;
    EXPECT_EQ(of.in.texts(), (Texts{L"Arial", L"txt.shx", L"Bare", L"Secret", L"Odd"}));
    EXPECT_EQ(reinterpret_cast<CKhFont*>(of.picker.GetItemCargo(kTxt)), of.fonts.at(1));
    EXPECT_EQ(reinterpret_cast<CKhFont*>(of.picker.GetItemCargo(4)), of.fonts.at(5));
}

TEST(FontPicker, IsFilledWhenItIsCreated) {
    FakeFonts fonts;
    ui_test::TestHost host;
    host.fonts = &fonts;
    ui_test::RecordingHolder holder;
    Picker picker;
    picker.Create(WS_CHILD | ui_test::kPickerStyle, CRect(0, 0, 100, 100), &holder, 61);
    EXPECT_EQ(picker.GetCount(), 5);
}

TEST(FontPicker, WithoutAFontListItStaysEmpty) {
    InHolder<Picker> in;
    in.picker.setCurrentFont(L"arial.ttf");
    EXPECT_EQ(in.picker.GetCount(), 0);
    EXPECT_EQ(in.picker.GetCurSel(), -1);
}

TEST(FontPicker, NoOtherItemAppears) {
    FontPickerInHolder of;
    of.picker.SetUseOther(1);
    of.in.dropDown();
    of.in.closeUp();
    EXPECT_EQ(of.picker.GetCount(), 5) << "not even when asked for";
    EXPECT_EQ(of.in.holder.dropDowns, 1) << "the parent hears of it";
}

TEST(FontPicker, ItemsAre15PixelsHighUntilTheListHasAHeight) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.CalcItemHeight(), 15);
    in.picker.AddItemToList(L"a", 0);
    in.picker.SetItemHeight(0, 23);
    EXPECT_EQ(in.picker.CalcItemHeight(), 23);
    EXPECT_EQ(in.picker.ImageWidth(), 15) << "as last calculated";
}

TEST(FontPicker, IconTellsAShapeFontFromEveryOther) {
    FontPickerInHolder of;
    EXPECT_TRUE(showsIcon(of.picker, of.picker.GetItemCargo(kArial), of.picker.trueTypeIcon()));
    EXPECT_TRUE(showsIcon(of.picker, of.picker.GetItemCargo(kTxt), of.picker.shxIcon()));
    EXPECT_TRUE(showsIcon(of.picker, of.picker.GetItemCargo(4), of.picker.trueTypeIcon()));
    EXPECT_FALSE(showsIcon(of.picker, of.picker.GetItemCargo(kTxt), nullptr));
}

TEST(FontPicker, SortStyleOfTheControlOrdersTheNamesWithTheirFonts) {
    FakeFonts fonts;
    ui_test::TestHost host;
    host.fonts = &fonts;
    ui_test::RecordingHolder holder;
    Picker picker;
    picker.Create(WS_CHILD | ui_test::kPickerStyle | CBS_SORT, CRect(0, 0, 100, 100), &holder, 61);
    Texts names;
    for (int i = 0; i < picker.GetCount(); ++i) {
        CString name;
        picker.GetLBText(i, name);
        names.emplace_back(name.GetString());
        EXPECT_STREQ(reinterpret_cast<CKhFont*>(picker.GetItemCargo(i))->name(), name);
    }
    EXPECT_EQ(names, (Texts{L"Arial", L"Bare", L"Odd", L"Secret", L"txt.shx"}));
}

TEST(FontPicker, ItemsWithoutAFontShowNoIcon) {
    FontPickerInHolder of;
    for (const int cargo : {0, -1, kCargoOther, kCargoOption1})
        EXPECT_TRUE(showsIcon(of.picker, cargo, nullptr));
}

TEST(FontPicker, DropWidthFollowsTheWidestNameAndTheImage) {
    FontPickerInHolder of;
    of.fonts.add(L"A font whose name is so long that the list has to be wider than the field",
                 FontKind::kShx);
    of.picker.ResetContent();
    of.picker.AddItems();
    of.in.dropDown();
    of.in.closeUp();
    int text = 0;
    int height = 0;
    of.picker.GetTextExtent(of.in.texts().back().c_str(), text, height);
    EXPECT_GT(text, 200);
    EXPECT_EQ(of.picker.GetDroppedWidth(), text + of.picker.ImageWidth());
}

TEST(FontPicker, ItsDeviceContextIsTakenOnceForAllNames) {
    FontPickerInHolder of;
    ASSERT_GT(of.picker.GetCount(), 3);
    contextsTaken.clear();
    contextsReleased.clear();
    const ui_test::ReplacedImport get(::GetModuleHandleW(L"kmfc.dll"), "GetDC", &NoteContext);
    const ui_test::ReplacedImport release(::GetModuleHandleW(L"kmfc.dll"), "ReleaseDC", &NoteRelease);
    ASSERT_TRUE(get.isThere() && release.isThere());
    of.picker.GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(of.picker.GetDlgCtrlID(), CBN_DROPDOWN),
                                       reinterpret_cast<LPARAM>(of.picker.m_hWnd));
    const std::vector<HWND> onlyOnce = {of.picker.m_hWnd};
    EXPECT_EQ(contextsTaken, onlyOnce);
    EXPECT_EQ(contextsReleased, onlyOnce);
}

TEST(FontPicker, DropWidthOfAnEmptyListIsZero) {
    InHolder<Picker> in;
    in.dropDown();
    in.closeUp();
    EXPECT_EQ(in.picker.droppedWidths, std::vector<int>{0});
}

TEST(FontPickerBuddy, ListsTheStylesOfTheChosenFont) {
    FontPickerInHolder of;
    of.pick(kArial);
    EXPECT_EQ(of.styles(), (Texts{L"Regular", L"Bold"})) << "the flagged one is hidden";
    EXPECT_EQ(of.buddy.GetCurSel(), 0);
    EXPECT_TRUE(of.buddy.IsWindowEnabled());
}

TEST(FontPickerBuddy, ListsFlaggedStylesUnlessTheyAreHidden) {
    FontPickerInHolder of(false);
    of.pick(kArial);
    EXPECT_EQ(of.styles(), (Texts{L"Regular", L"Narrow", L"Bold"}));
}

TEST(FontPickerBuddy, IsDisabledAndEmptyForAShapeFont) {
    FontPickerInHolder of;
    of.pick(kArial);
    of.pick(kTxt);
    EXPECT_FALSE(of.buddy.IsWindowEnabled());
    EXPECT_EQ(of.buddy.GetCount(), 0);
    of.pick(kArial);
    EXPECT_TRUE(of.buddy.IsWindowEnabled());
}

TEST(FontPickerBuddy, IsDisabledForAFontWithoutStyles) {
    FontPickerInHolder of;
    of.pick(kArial);
    of.pick(kBare);
    EXPECT_FALSE(of.buddy.IsWindowEnabled());
    EXPECT_EQ(of.buddy.GetCount(), 0);
}

TEST(FontPickerBuddy, StaysEnabledAndEmptyWhenEveryStyleIsHidden) {
    FontPickerInHolder of;
    of.pick(kArial);
    of.pick(kSecret);
    EXPECT_TRUE(of.buddy.IsWindowEnabled());
    EXPECT_EQ(of.buddy.GetCount(), 0);
    EXPECT_EQ(of.buddy.GetCurSel(), -1);
}

TEST(FontPickerCurrent, WithoutASelectionTheNameStays) {
    FontPickerInHolder of;
    EXPECT_EQ(of.current(), L"untouched");
}

TEST(FontPickerCurrent, IsTheFileOfTheSelectedStyle) {
    FontPickerInHolder of;
    of.pick(kArial);
    EXPECT_EQ(of.current(), L"arial.ttf");
    of.buddy.SetCurSel(1);
    EXPECT_EQ(of.current(), L"arialbd.ttf");
}

TEST(FontPickerCurrent, IsTheNameOfTheFontWhenTheBuddyIsDisabled) {
    FontPickerInHolder of;
    of.pick(kTxt);
    EXPECT_EQ(of.current(), L"txt.shx");
    of.pick(kArial);
    of.buddy.EnableWindow(FALSE);
    EXPECT_EQ(of.current(), L"Arial");
}

TEST(FontPickerCurrent, IsTheNameOfTheFontWithoutABuddyOrAStyle) {
    FontPickerInHolder of;
    of.pick(kArial);
    of.buddy.SetCurSel(-1);
    EXPECT_EQ(of.current(), L"Arial");
    of.buddy.SetCurSel(of.buddy.AddString(L"a style of the owner's"));
    EXPECT_EQ(of.current(), L"Arial");
    of.picker.setBuddy(nullptr, true);
    EXPECT_EQ(of.current(), L"Arial");
}

TEST(FontPickerCurrent, SettingSelectsFontAndStyle) {
    FontPickerInHolder of;
    of.picker.setCurrentFont(L"arialbd.ttf");
    EXPECT_EQ(of.picker.GetCurSel(), kArial);
    EXPECT_EQ(of.styles(), (Texts{L"Regular", L"Bold"}));
    EXPECT_EQ(of.buddy.GetCurSel(), 1);
    EXPECT_EQ(of.current(), L"arialbd.ttf");
}

TEST(FontPickerCurrent, SettingAHiddenStyleLeavesNoneSelected) {
    FontPickerInHolder of;
    of.picker.setCurrentFont(L"arialn.ttf");
    EXPECT_EQ(of.picker.GetCurSel(), kArial);
    EXPECT_EQ(of.buddy.GetCurSel(), -1);
    EXPECT_EQ(of.current(), L"Arial");
}

TEST(FontPickerCurrent, SettingAnUnknownNameChangesNothing) {
    FontPickerInHolder of;
    of.picker.setCurrentFont(L"arialbd.ttf");
    of.picker.setCurrentFont(L"unknown.ttf");
    EXPECT_EQ(of.current(), L"arialbd.ttf");
    EXPECT_EQ(of.buddy.GetCount(), 2);
}

TEST(FontPickerCurrent, SettingABigFontClearsTheSelectionAndKeepsTheStyles) {
    FontPickerInHolder of;
    of.picker.setCurrentFont(L"arialbd.ttf");
    of.picker.setCurrentFont(L"big.shx");
    EXPECT_EQ(of.picker.GetCurSel(), -1);
    EXPECT_EQ(of.buddy.GetCount(), 2);
    EXPECT_EQ(of.buddy.GetCurSel(), -1);
}

TEST(FontPickerCurrent, SettingWorksWithoutABuddy) {
    FontPickerInHolder of;
    of.picker.setBuddy(nullptr, false);
    EXPECT_FALSE(of.picker.hidesFlagged());
    of.picker.setCurrentFont(L"odd.pfb");
    EXPECT_EQ(of.picker.GetCurSel(), 4);
    EXPECT_EQ(of.buddy.GetCount(), 0);
}

TEST(FontPicker, OpeningAndClosingLeavesNothingBehind) {
    const auto openAndClose = [] {
        FontPickerInHolder of;
        of.pick(kArial);
    };
    ui_test::expectNothingLeft(openAndClose);
}

TEST(FontPicker, AStyleWithoutANameIsNotThatOfNoSelection) {
    FontPickerInHolder of;
    of.fonts.add(L"Nameless", FontKind::kTrueType).withStyle(L"", L"nameless.ttf");
    of.picker.ResetContent();
    of.picker.AddItems();
    of.pick(of.picker.GetCount() - 1);
    EXPECT_EQ(of.current(), L"nameless.ttf");
    of.buddy.SetCurSel(-1);
    EXPECT_EQ(of.current(), L"Nameless");
}

namespace {

/// The picture of a shape font on `paper`, for a host that follows a scheme of these colours.
void drawFollowing(Picker& picker, Canvas& drawn, COLORREF paper, COLORREF ink) {
    const ui_test::SchemeColor window(COLOR_WINDOW, paper), text(COLOR_WINDOWTEXT, ink);
    KtUiFollowSystemAppearance(TRUE);
    CRect rect(3, 4, 29, 29);
    picker.DrawItemImage(drawn.dc, rect, picker.GetItemCargo(kTxt));
    KtUiFollowSystemAppearance(FALSE);
}

}  // namespace

TEST(FontIcons, StayAsTheyAreWhereTheyAreSeenWell) {
    FontPickerInHolder of;
    Canvas drawn(30, 30, kUntouched), wanted(30, 30, kUntouched);
    drawFollowing(of.picker, drawn, RGB(255, 255, 255), RGB(0, 0, 0));
    ::DrawIconEx(wanted.dc.m_hDC, 3, 4, of.picker.shxIcon(), 15, 15, 0, nullptr, DI_NORMAL);
    EXPECT_TRUE(isSame(drawn, wanted));
}

TEST(FontIcons, TakeTheColourOfTextsOnDarkWindowsAndKeepTheirShape) {
    constexpr COLORREF kPaper = RGB(20, 22, 26), kInk = RGB(230, 228, 220);
    FontPickerInHolder of;
    Canvas drawn(30, 30, kPaper), onBlack(30, 30, RGB(0, 0, 0)), onWhite(30, 30, RGB(255, 255, 255));
    drawFollowing(of.picker, drawn, kPaper, kInk);
    for (Canvas* each : {&onBlack, &onWhite})
        ::DrawIconEx(each->dc.m_hDC, 3, 4, of.picker.shxIcon(), 15, 15, 0, nullptr, DI_NORMAL);
    int opaque = 0, clear = 0;
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 30; ++x) {
            const int cover =
                255 - (GetGValue(onWhite.dc.GetPixel(x, y)) - GetGValue(onBlack.dc.GetPixel(x, y)));
            const int wanted = (GetGValue(kInk) * cover + GetGValue(kPaper) * (255 - cover)) / 255;
            EXPECT_NEAR(GetGValue(drawn.dc.GetPixel(x, y)), wanted, 2) << x << ", " << y;
            opaque += cover == 255;
            clear += cover == 0;
        }
    EXPECT_GT(opaque, 10);
    EXPECT_GT(clear, 30 * 30 - 15 * 15);
}
