// Bitmap buttons: how they get their picture, name and size, and the kinds of them.
#include "fake_resolution.h"
#include "picture_fixture.h"
#include "sent_messages.h"
#include "slot_of.h"

namespace {

using namespace controls;
using ui_test::FakeResolution;
using ui_test::slotOf;

struct BitmapButton : ::testing::Test {
    ui_test::RecordingHolder holder;
    OpenPicture<CKbUiBitmapButton> button;

    CString caption() const { return ui_test::text_of(button.m_hWnd); }
};

TEST_F(BitmapButton, StartsWithItsDefaults) {
    EXPECT_EQ(button.GetAutoSizeToBitmap(), 1);
    EXPECT_EQ(button.m_bitmap.m_hObject, nullptr);
    EXPECT_TRUE(button.m_bitmapName.IsEmpty());
    EXPECT_EQ(button.m_bitmapHeight, 0);
    EXPECT_EQ(button.m_bitmapWidth, 0);
    EXPECT_EQ(button.m_offsetX, 5);
    EXPECT_EQ(button.m_offsetY, 5);
    EXPECT_EQ(button.m_offsetExtra, 3);
    EXPECT_EQ(button.m_buttonFlags, 2u);
}

TEST_F(BitmapButton, TheFirstOffsetIsForBothAxes) {
    button.SetBitmapOffsets(2, 7);
    EXPECT_EQ(button.m_offsetX, 2);
    EXPECT_EQ(button.m_offsetY, 2);
    EXPECT_EQ(button.m_offsetExtra, 7);
}

TEST_F(BitmapButton, ItsOwnOperationStandsBehindThoseOfItsBase) {
    EXPECT_EQ(slotOf(&CKbUiBitmapButton::OnLoadBitmap), slotOf(&CKbUiOwnerDrawButton::ThemeModified) + 1);
}

TEST_F(BitmapButton, ACaptionWithANameLoadsThePictureAndKeepsTheRest) {
    make(button, holder, L"SQUARE|&Square");
    EXPECT_EQ(button.AutoLoad(), 1);
    EXPECT_EQ(button.asked, (std::vector<CString>{L"SQUARE"}));
    EXPECT_EQ(caption(), L"&Square");
    EXPECT_EQ(button.m_bitmapName, L"SQUARE|&Square");
    EXPECT_NE(button.m_bitmap.m_hObject, nullptr);
    EXPECT_EQ(CSize(button.m_bitmapWidth, button.m_bitmapHeight), kSquareSize);
    EXPECT_EQ(sizeOf(button), CSize(20, 18));
}

TEST_F(BitmapButton, OnlyTheFirstStrokeEndsTheName) {
    make(button, holder, L"SQUARE|a|b");
    button.AutoLoad();
    EXPECT_EQ(caption(), L"a|b");
}

TEST_F(BitmapButton, ACaptionWithoutAStrokeIsTheNameAndStays) {
    make(button, holder, L"SQUARE");
    EXPECT_EQ(button.AutoLoad(), 1);
    EXPECT_EQ(button.asked, (std::vector<CString>{L"SQUARE"}));
    EXPECT_EQ(caption(), L"SQUARE");
    EXPECT_EQ(button.m_bitmapName, L"SQUARE");
}

TEST_F(BitmapButton, WithoutANameNothingIsLoaded) {
    for (const wchar_t* caption : {L"", L"|text"}) {
        OpenPicture<CKbUiBitmapButton> other;
        make(other, holder, caption);
        EXPECT_EQ(other.AutoLoad(), 0);
        EXPECT_TRUE(other.asked.empty());
        EXPECT_EQ(ui_test::text_of(other.m_hWnd), caption);
        EXPECT_EQ(sizeOf(other), CSize(kWidth, kHeight));
    }
}

TEST_F(BitmapButton, AMissingPictureIsAnsweredWithOneAndTakesTheFormerAway) {
    make(button, holder, L"SQUARE|text");
    button.AutoLoad();
    button.m_bitmapName = L"NOWHERE";
    button.SetWindowText(L"x|y");
    button.MoveWindow(0, 0, 40, 30);
    EXPECT_EQ(button.AutoLoad(), 1);
    EXPECT_EQ(button.m_bitmap.m_hObject, nullptr);
    EXPECT_EQ(button.m_bitmapName, L"NOWHERE");
    EXPECT_EQ(caption(), L"x|y");
    EXPECT_EQ(sizeOf(button), CSize(40, 30));
}

/// Loads nothing, and leaves what is held alone.
struct Refusing : OpenPicture<CKbUiBitmapButton> {
    int OnLoadBitmap(const wchar_t*) override { return 0; }
};

TEST_F(BitmapButton, APictureIsGoneBeforeTheNewOneIsLoaded) {
    Refusing refusing;
    make(refusing, holder, L"SQUARE");
    refusing.CKbUiBitmapButton::OnLoadBitmap(L"SQUARE");
    ASSERT_NE(refusing.m_bitmap.m_hObject, nullptr);
    EXPECT_EQ(refusing.AutoLoad(), 1);
    EXPECT_EQ(refusing.m_bitmap.m_hObject, nullptr);
}

TEST_F(BitmapButton, ANameThatWasSetGoesBeforeTheCaptionAndThenIsTheCaption) {
    make(button, holder, L"NOWHERE|text");
    button.m_bitmapName = L"SQUARE";
    EXPECT_EQ(button.AutoLoad(), 1);
    EXPECT_EQ(button.asked, (std::vector<CString>{L"SQUARE"}));
    EXPECT_EQ(caption(), L"text");
    EXPECT_EQ(button.m_bitmapName, L"NOWHERE|text");
}

TEST_F(BitmapButton, ASizeOfItsOwnIsLeftAlone) {
    make(button, holder, L"SQUARE|text");
    button.SetAutoSizeToBitmap(0);
    button.AutoLoad();
    EXPECT_EQ(sizeOf(button), CSize(kWidth, kHeight));
    EXPECT_EQ(button.m_bitmapWidth, kSquareSize.cx);
}

TEST_F(BitmapButton, AnyOtherAutoSizeSizesItOnLoadingButNotOnReloading) {
    make(button, holder, L"SQUARE|text");
    button.SetAutoSizeToBitmap(2);
    EXPECT_EQ(button.GetAutoSizeToBitmap(), 2);
    button.AutoLoad();
    EXPECT_EQ(sizeOf(button), CSize(20, 18));
    button.SetBitmapOffsets(9, 0);
    EXPECT_EQ(button.Reload(L"SQUARE"), 1);
    EXPECT_EQ(sizeOf(button), CSize(20, 18));
    button.SetAutoSizeToBitmap(1);
    button.Reload(L"SQUARE");
    EXPECT_EQ(sizeOf(button), CSize(28, 26));
}

TEST_F(BitmapButton, AReloadTakesAnotherNameAndPaintsAnew) {
    make(button, holder, L"text");
    takeDirty(button);
    EXPECT_EQ(button.Reload(L"NOWHERE"), 0);
    EXPECT_FALSE(takeDirty(button));
    EXPECT_TRUE(button.m_bitmapName.IsEmpty());
    EXPECT_EQ(button.Reload(L"SQUARE"), 1);
    EXPECT_TRUE(takeDirty(button));
    EXPECT_EQ(button.m_bitmapName, L"SQUARE");
    EXPECT_EQ(caption(), L"text");
}

/// Says that it has loaded, in a number of its own.
struct OtherYes : OpenPicture<CKbUiBitmapButton> {
    int OnLoadBitmap(const wchar_t*) override { return 7; }
};

TEST_F(BitmapButton, AnyAnswerButZeroToLoadingIsAPicture) {
    OtherYes other;
    make(other, holder, L"text");
    EXPECT_EQ(other.LoadBitmapW(L"ANYTHING"), 1);
    EXPECT_EQ(other.m_bitmapName, L"ANYTHING");
    EXPECT_EQ(other.m_bitmapWidth, 16) << "no bitmap is held";
}

TEST_F(BitmapButton, LoadingRemembersNameAndSizeAndEndsTheFormerPicture) {
    EXPECT_EQ(button.LoadBitmapW(L"SQUARE"), 1);
    const HGDIOBJ first = button.m_bitmap.m_hObject;
    EXPECT_EQ(CSize(button.m_bitmapWidth, button.m_bitmapHeight), kSquareSize);
    EXPECT_EQ(button.LoadBitmapW(L"PICK"), 1);
    EXPECT_EQ(::GetObjectType(first), 0u) << "the first is gone";
    EXPECT_EQ(CSize(button.m_bitmapWidth, button.m_bitmapHeight), CSize(16, 16));
    EXPECT_EQ(button.LoadBitmapW(L"NOWHERE"), 0);
    EXPECT_EQ(button.m_bitmapName, L"PICK");
    EXPECT_EQ(button.m_bitmapWidth, 16);
}

TEST_F(BitmapButton, WithoutAPictureTheSizeIsSixteen) {
    button.CalcBitmapSize();
    EXPECT_EQ(button.m_bitmapWidth, 16);
    EXPECT_EQ(button.m_bitmapHeight, 16);
}

TEST_F(BitmapButton, SizingMovesReordersAndPaintsNothing) {
    make(button, holder, L"SQUARE");
    button.LoadBitmapW(L"SQUARE");
    CRect before;
    button.GetWindowRect(&before);
    std::vector<WINDOWPOS> positions;
    {
        const ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
            if (message.message == WM_WINDOWPOSCHANGING && message.hwnd == button.m_hWnd)
                positions.push_back(*reinterpret_cast<const WINDOWPOS*>(message.lParam));
        });
        button.SizeToBitmap();
    }
    ASSERT_EQ(positions.size(), 1u);
    EXPECT_EQ(positions[0].flags, UINT{SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE});
    EXPECT_EQ(positions[0].x, before.left);
    EXPECT_EQ(positions[0].y, before.top);
    CRect after;
    button.GetWindowRect(&after);
    EXPECT_EQ(after, CRect(before.TopLeft(), CSize(20, 18)));
}

TEST_F(BitmapButton, ABitmapCanBeTakenFromAModuleOrFromTheChain) {
    CBitmap bitmap;
    const HINSTANCE own = ::GetModuleHandleW(nullptr);
    EXPECT_TRUE(button.LoadBitmapResource(L"SQUARE", bitmap, own));
    EXPECT_FALSE(button.LoadBitmapResource(L"PICK", bitmap, own));
    EXPECT_NE(bitmap.m_hObject, nullptr) << "the former stays";
    EXPECT_TRUE(button.LoadBitmapResource(L"PICK", bitmap, nullptr));
    BITMAP size = {};
    bitmap.GetBitmap(&size);
    EXPECT_EQ(size.bmWidth, 16);
    EXPECT_TRUE(button.LoadBitmapResource(MAKEINTRESOURCEW(7001), bitmap, nullptr));
    EXPECT_FALSE(button.LoadBitmapResource(L"NOWHERE", bitmap, nullptr));
}

TEST_F(BitmapButton, TheKindsDifferInTheirFlags) {
    EXPECT_EQ(OpenPicture<CKbUiToolButton>().m_buttonFlags, 2u | 4 | 32);
    EXPECT_EQ(OpenPicture<CKbUiBitmapStatic>().m_buttonFlags, 2u | 16);
    EXPECT_EQ(OpenPicture<CKbUiDropSite>().m_buttonFlags, 2u | 16 | 1);
    EXPECT_EQ(OpenPicture<CKtUiBitmapButton>().m_buttonFlags, 2u);
    EXPECT_EQ(OpenPicture<CKtUiToolButton>().m_buttonFlags, 2u | 4 | 32);
    EXPECT_EQ(OpenPicture<CKtUiBitmapStatic>().m_buttonFlags, 2u | 16);
    EXPECT_EQ(OpenPicture<CKtUiDropSite>().m_buttonFlags, 2u | 16 | 1);
    EXPECT_EQ(OpenPicture<CKtUiPickButton>().m_buttonFlags, 2u);
    EXPECT_EQ(OpenPicture<CKtUiSelectButton>().m_buttonFlags, 2u);
    EXPECT_EQ(OpenPicture<CKtUiPickButton>().m_bitmapName, L"PICK");
    EXPECT_EQ(OpenPicture<CKtUiSelectButton>().m_bitmapName, L"PICKSET");
    EXPECT_TRUE(CKtUiSelectButton().IsKindOf(RUNTIME_CLASS(CKtUiPickButton)));
    EXPECT_TRUE(CKtUiDropSite().IsKindOf(RUNTIME_CLASS(CKbUiBitmapStatic)));
    EXPECT_TRUE(CKtUiToolButton().IsKindOf(RUNTIME_CLASS(CKbUiToolButton)));
}

TEST_F(BitmapButton, PickAndSelectButtonsShowTheToolkitsOwnPictures) {
    OpenPicture<CKtUiPickButton> pick;
    make(pick, holder, L"");
    EXPECT_EQ(pick.AutoLoad(), 1);
    EXPECT_EQ(sizeOf(pick), CSize(26, 26));
    EXPECT_TRUE(pick.m_bitmapName.IsEmpty()) << "the caption as it was";
    OpenPicture<CKtUiSelectButton> select;
    make(select, holder, L"|&Choose");
    EXPECT_EQ(select.AutoLoad(), 1);
    EXPECT_EQ(select.asked, (std::vector<CString>{L"PICKSET"}));
    EXPECT_EQ(ui_test::text_of(select.m_hWnd), L"&Choose");
    EXPECT_EQ(sizeOf(select), CSize(26, 26));
}

TEST_F(BitmapButton, TheLibraryHasItsPicturesInEachSize) {
    for (const wchar_t* name : {L"PICK", L"PICKSET", L"WARNINGBMP"}) {
        const int agreed = wcscmp(name, L"WARNINGBMP") == 0 ? 32 : 16;
        for (const int percent : {100, 125, 150, 200}) {
            CString full = name;
            if (percent != 100) full.Format(L"%s_%d", name, percent);
            CBitmap bitmap;
            ASSERT_TRUE(button.LoadBitmapResource(full, bitmap, ::GetModuleHandleW(L"ktui.dll"))) << percent;
            BITMAP size = {};
            bitmap.GetBitmap(&size);
            EXPECT_EQ(size.bmWidth, agreed * percent / 100);
            EXPECT_EQ(size.bmHeight, agreed * percent / 100);
            CDC dc;
            dc.CreateCompatibleDC(nullptr);
            CBitmap* former = dc.SelectObject(&bitmap);
            int keyed = 0;
            for (int y = 0; y < size.bmHeight; ++y)
                for (int x = 0; x < size.bmWidth; ++x) keyed += dc.GetPixel(x, y) == dc.GetPixel(0, 0);
            dc.SelectObject(former);
            const int all = static_cast<int>(size.bmWidth * size.bmHeight);
            EXPECT_GT(keyed, all / 4);
            EXPECT_LT(keyed, all * 4 / 5);
        }
    }
    EXPECT_NE(::LoadIconW(::GetModuleHandleW(L"ktui.dll"), L"IDI_WIZARD_ICON"), nullptr);
}

TEST_F(BitmapButton, AHostThatFollowsTheSystemGetsTheLargerPictures) {
    struct Case {
        UINT dpi;
        CSize picture, control;
    };
    for (const Case& each :
         {Case{96, {10, 8}, {20, 18}}, Case{120, {10, 8}, {22, 20}}, Case{121, {15, 12}, {27, 24}},
          Case{144, {15, 12}, {31, 28}}, Case{192, {10, 8}, {30, 28}}}) {
        const FakeResolution resolution(each.dpi);
        OpenPicture<CKbUiBitmapButton> other;
        make(other, holder, L"SQUARE|text");
        other.AutoLoad();
        EXPECT_EQ(CSize(other.m_bitmapWidth, other.m_bitmapHeight), each.picture) << each.dpi;
        EXPECT_EQ(sizeOf(other), each.control) << each.dpi;
    }
    struct Pick {
        UINT dpi;
        int size;
    };
    for (const Pick& each :
         {Pick{96, 16}, Pick{120, 20}, Pick{144, 24}, Pick{168, 32}, Pick{192, 32}, Pick{384, 32}}) {
        const FakeResolution resolution(each.dpi);
        OpenPicture<CKtUiPickButton> pick;
        make(pick, holder, L"");
        pick.AutoLoad();
        EXPECT_EQ(pick.m_bitmapWidth, each.size) << each.dpi;
    }
}

TEST_F(BitmapButton, AHostThatKeepsTheAgreedLookGetsTheAgreedPictures) {
    const FakeResolution resolution(144, FALSE);
    make(button, holder, L"SQUARE|text");
    button.AutoLoad();
    EXPECT_EQ(CSize(button.m_bitmapWidth, button.m_bitmapHeight), kSquareSize);
    EXPECT_EQ(sizeOf(button), CSize(20, 18));
}

TEST_F(BitmapButton, APictureByNumberHasNoLargerOnes) {
    const FakeResolution resolution(144);
    EXPECT_TRUE(button.LoadBitmapResource(MAKEINTRESOURCEW(7001), button.m_bitmap, nullptr));
    EXPECT_EQ(button.OnLoadBitmap(L"#7001"), 1);
}

/// A dialog as an application writes it: its buttons have their pictures' names in the template.
class ButtonsDialog : public CDialog {
public:
    ButtonsDialog() : CDialog(IDD_BUTTONS) {}
    OpenPicture<CKbUiBitmapButton> named;
    OpenPicture<CKtUiPickButton> pick;
    OpenPicture<CKtUiSelectButton> select;
    OpenPicture<CKtUiBitmapStatic> picture;
    OpenPicture<CKtUiDropSite> site;

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        attach(named, IDC_NAMED);
        attach(pick, IDC_PICK);
        attach(select, IDC_SELECT);
        attach(picture, IDC_PICTURE);
        attach(site, IDC_SITE);
        return TRUE;
    }

private:
    void attach(CKbUiBitmapButton& button, UINT id) {
        ASSERT_TRUE(button.SubclassDlgItem(id, this));
        EXPECT_EQ(button.AutoLoad(), 1);
    }
};

TEST_F(BitmapButton, ADialogsButtonsLoadWhatTheTemplateNames) {
    ButtonsDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_BUTTONS, &holder));
    EXPECT_EQ(ui_test::text_of(dialog.named.m_hWnd), L"&Square");
    EXPECT_EQ(ui_test::text_of(dialog.select.m_hWnd), L"&Choose");
    EXPECT_EQ(ui_test::text_of(dialog.picture.m_hWnd), L"SQUARE");
    EXPECT_EQ(ui_test::text_of(dialog.site.m_hWnd), L"Drop files here");
    EXPECT_EQ(sizeOf(dialog.named), CSize(20, 18));
    EXPECT_EQ(sizeOf(dialog.pick), CSize(26, 26));
    EXPECT_EQ(dialog.site.GetEnableDragDrop(), -1);
    EXPECT_FALSE(dialog.site.GetExStyle() & WS_EX_ACCEPTFILES) << "the owner enables dropping";
    dialog.DestroyWindow();
}

}  // namespace
