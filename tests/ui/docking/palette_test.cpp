// One page of a palette set: its window, its name and how it is edited, its settings.
#include <ktui/docking/kbui_palette.h>

#include <regex>

#include "palette_fixture.h"
#include "slot_of.h"

namespace {

using namespace docking_test;
using ui_test::slotOf;

struct Palette : PaletteSetTest {
    TestPalette* palette = new TestPalette(L"Layers");

    void make() {
        PaletteSetTest::make();
        ASSERT_TRUE(palette->CKbUiPalette::Create(&set));
        ASSERT_EQ(set.AddPalette(palette), 0);
        ASSERT_EQ(set.AddPalette(new TestPalette(L"Blocks")), 0);
        set.SetActivePalette(palette);
    }
    ~Palette() override {
        if (palette && set.m_hWnd == nullptr) delete palette;
    }
};

TEST_F(Palette, ItsOperationsStandInOrder) {
    using P = CKbUiPalette;
    const std::vector<long long> slots = {slotOf(static_cast<int (P::*)(CKbUiPaletteSet*)>(&P::Create)),
                                          slotOf(&P::Load),
                                          slotOf(&P::Save),
                                          slotOf(&P::OnSetActive),
                                          slotOf(&P::OnKillActive),
                                          slotOf(&P::GetClassName),
                                          slotOf(&P::GetMinimumSize),
                                          slotOf(&P::GetMaximumSize),
                                          slotOf(&P::CanFrameworkTakeFocus),
                                          slotOf(static_cast<void (P::*)()>(&P::EditName)),
                                          slotOf(static_cast<void (P::*)(CPoint&)>(&P::EditName)),
                                          slotOf(&P::NameEditValidation)};
    for (std::size_t i = 1; i < slots.size(); ++i)
        EXPECT_EQ(slots[i], slots[0] + static_cast<long long>(i)) << i;
}

TEST_F(Palette, StartsWithoutNameSetAndStyle) {
    CKbUiPalette fresh;
    EXPECT_EQ(fresh.GetName(), L"");
    EXPECT_EQ(fresh.GetPaletteStyle(), 0u);
    EXPECT_FALSE(fresh.EditNameStyle());
    CSize size(7, 8);
    EXPECT_EQ(fresh.GetMinimumSize(size), 0);
    EXPECT_EQ(fresh.GetMaximumSize(size), 0);
    EXPECT_TRUE(size == CSize(7, 8));
    EXPECT_EQ(fresh.OnKillActive(), 0);
    EXPECT_FALSE(fresh.CanFrameworkTakeFocus());
}

TEST_F(Palette, IsMadeByTheFrameworkToo) {
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CKbUiPalette)->CreateObject());
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CKbUiPalette)));
}

TEST_F(Palette, NeedsASet) {
    EXPECT_EQ(palette->CKbUiPalette::Create(nullptr), 0);
    EXPECT_EQ(palette->CKbUiPalette::Create(WS_CHILD, L"Name", nullptr, 1), 0);
    EXPECT_EQ(palette->m_hWnd, nullptr);
    EXPECT_EQ(palette->GetPaletteStyle(), 0u);
    EXPECT_EQ(palette->GetName(), L"Layers");
}

TEST_F(Palette, WithoutASetItsNameIsNotEdited) {
    ASSERT_TRUE(palette->CWnd::Create(nullptr, L"alone", WS_CHILD, CRect(0, 0, 5, 5), frame, 5));
    EXPECT_EQ(palette->SendMessage(WM_USER + 101, 0, 0), 0);
}

TEST_F(Palette, IsAChildOfItsSetWithStyleOne) {
    PaletteSetTest::make();
    ASSERT_TRUE(palette->CKbUiPalette::Create(&set));
    EXPECT_EQ(palette->GetParent(), &set);
    EXPECT_EQ(palette->GetStyle() & (WS_CHILD | WS_VISIBLE), static_cast<DWORD>(WS_CHILD | WS_VISIBLE));
    EXPECT_EQ(palette->GetDlgCtrlID(), 0);
    EXPECT_EQ(ui_test::text_of(palette->m_hWnd), L"Layers");
    EXPECT_EQ(palette->m_paletteSet, &set);
    EXPECT_EQ(palette->GetPaletteStyle(), 1u);
    EXPECT_TRUE(palette->EditNameStyle());
    expectRect(placeOf(*palette), 0, 0, 1, 1);
    EXPECT_EQ(palette->GetClassName().Left(3), L"Afx");
    delete palette;
    palette = nullptr;
}

TEST_F(Palette, TheLongFormTakesStyleAndNameButNoPaletteStyle) {
    PaletteSetTest::make();
    ASSERT_TRUE(palette->CKbUiPalette::Create(WS_CHILD, L"Other", &set, 0));
    EXPECT_FALSE(isShown(*palette));
    EXPECT_EQ(palette->GetName(), L"Other");
    EXPECT_EQ(palette->GetPaletteStyle(), 1u);
    delete palette;
    palette = nullptr;
}

TEST_F(Palette, ItsStyleBecomesOneWhateverIsGiven) {
    palette->SetPaletteStyle(0);
    EXPECT_EQ(palette->GetPaletteStyle(), 1u);
    palette->SetPaletteStyle(6);
    EXPECT_EQ(palette->GetPaletteStyle(), 1u);
}

TEST_F(Palette, DeletesWhatIsHangingOnIt) {
    struct Extra : CObject {
        explicit Extra(bool& flag) : gone(flag) {}
        ~Extra() override { gone = true; }
        bool& gone;
    };
    bool gone = false;
    palette->m_extra = new Extra(gone);
    delete palette;
    palette = nullptr;
    EXPECT_TRUE(gone);
}

TEST_F(Palette, ANewNameShowsOnItsTab) {
    make();
    strip().UpdateWindow();
    palette->SetName(L"Walls");
    EXPECT_EQ(palette->GetName(), L"Walls");
    EXPECT_EQ(strip().GetTab(1)->m_text, L"Walls");
    EXPECT_EQ(strip().GetTab(0)->m_text, L"Blocks");
    EXPECT_FALSE(strip().GetUpdateRect(nullptr)) << "painted at once";
}

TEST_F(Palette, ANameWithoutATabIsOnlyStored) {
    make();
    TestPalette loose(L"Loose");
    loose.SetName(L"Free");
    EXPECT_EQ(loose.GetName(), L"Free");
    ASSERT_TRUE(loose.CKbUiPalette::Create(&set));
    loose.SetName(L"Freer");
    EXPECT_EQ(strip().GetTab(0)->m_text, L"Blocks");
    EXPECT_EQ(strip().GetTab(1)->m_text, L"Layers");
}

TEST_F(Palette, BecomesTheActiveOneAndTheOneBeforeHearsIt) {
    make();
    auto* other = static_cast<TestPalette*>(set.GetPalette(0));
    other->OnSetActive();
    EXPECT_EQ(set.GetActivePalette(), other);
    EXPECT_EQ(palette->kills, 1);
    other->OnSetActive();
    EXPECT_EQ(other->kills, 0) << "it is active already";
    EXPECT_EQ(palette->kills, 1);
}

TEST_F(Palette, WithoutASetNothingBecomesActive) {
    palette->OnSetActive();
    EXPECT_EQ(palette->kills, 0);
}

TEST_F(Palette, SizesAreThoseOfItsSet) {
    make();
    CSize size;
    EXPECT_EQ(palette->GetMinimumSize(size), 1);
    EXPECT_TRUE(size == CSize(100, 140));
    EXPECT_EQ(palette->GetMaximumSize(size), 1);
    EXPECT_TRUE(size == CSize(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)));
}

TEST_F(Palette, TheFrameworkMayTakeTheFocusWhileTheSetFloats) {
    make();
    EXPECT_TRUE(palette->CanFrameworkTakeFocus()) << "not docked yet";
    set.EnableGripper(TRUE);
    set.EnableDocking(CBRS_ALIGN_ANY);
    frame->DockPane(&set);
    ASSERT_TRUE(set.IsDocked());
    EXPECT_FALSE(palette->CanFrameworkTakeFocus());
}

TEST_F(Palette, TheHostPaintsItsBackground) {
    make();
    const int before = host.filledBackgrounds;
    CClientDC dc(palette);
    EXPECT_EQ(palette->SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC), 0), 1);
    EXPECT_EQ(host.filledBackgrounds, before + 1);
    CRect client;
    palette->GetClientRect(&client);
    EXPECT_EQ(host.filledDc, dc.m_hDC);
    EXPECT_TRUE(host.filledRect == client);
    EXPECT_FALSE(client.IsRectEmpty());
}

TEST_F(Palette, AnswersWhetherAnEditIsThere) {
    CEdit edit;
    EXPECT_EQ(palette->NameEditValidation(&edit), 1);
    EXPECT_EQ(palette->NameEditValidation(nullptr), 0);
}

TEST_F(Palette, NoNameIsEditedBeforeItWasMade) {
    palette->EditName();
    CPoint point(3, 3);
    palette->EditName(point);
    EXPECT_EQ(openNameEdit(), nullptr);
}

TEST_F(Palette, IsRenamedOverTheMiddleOfItsTab) {
    make();
    palette->EditName();
    const HWND popup = openNameEdit();
    ASSERT_NE(popup, nullptr);
    CRect place;
    ::GetWindowRect(popup, &place);
    EXPECT_TRUE(place.TopLeft() == tabPlace(1));
    EXPECT_EQ(ui_test::text_of(popup), L"Layers");
    EXPECT_EQ(::GetWindow(popup, GW_OWNER), frame->m_hWnd);
    endNameEdit(L"Walls");
    EXPECT_EQ(palette->GetName(), L"Walls");
    EXPECT_EQ(strip().GetTab(1)->m_text, L"Walls");
}

TEST_F(Palette, WithoutATabItIsRenamedAtTheStripsCorner) {
    make();
    TestPalette loose(L"Loose");
    ASSERT_TRUE(loose.CKbUiPalette::Create(&set));
    loose.EditName();
    CRect place, area;
    ::GetWindowRect(openNameEdit(), &place);
    strip().GetWindowRect(&area);
    EXPECT_TRUE(place.TopLeft() == area.TopLeft());
    endNameEdit(nullptr);
    EXPECT_EQ(loose.GetName(), L"Loose");
}

TEST_F(Palette, ANameEditNearTheStripsEdgesIsPushedBack) {
    make();
    CRect area;
    strip().GetWindowRect(&area);
    const auto placeFor = [&](CPoint screen) {
        palette->ScreenToClient(&screen);
        palette->EditName(screen);
        CRect place;
        ::GetWindowRect(openNameEdit(), &place);
        endNameEdit(nullptr);
        return place.TopLeft() - area.TopLeft();
    };
    // The strip is narrower than the edit, so the left edge has the last word.
    EXPECT_TRUE(placeFor(area.TopLeft() + CSize(10, 50)) == CSize(0, 50));
    EXPECT_TRUE(placeFor(area.TopLeft() + CSize(-50, 379)) == CSize(0, 379));
    EXPECT_TRUE(placeFor(area.TopLeft() + CSize(-50, 381)) == CSize(0, 380));
    EXPECT_TRUE(placeFor(area.TopLeft() + CSize(-50, -7)) == CSize(0, 0));
    strip().MoveWindow(0, 0, 150, 15);
    strip().GetWindowRect(&area);
    EXPECT_TRUE(placeFor(area.TopLeft() + CSize(49, 3)) == CSize(49, 0));
    EXPECT_TRUE(placeFor(area.TopLeft() + CSize(51, 3)) == CSize(50, 0));
}

TEST_F(Palette, EscapeKeepsTheName) {
    make();
    palette->EditName();
    endNameEdit(nullptr);
    EXPECT_EQ(palette->GetName(), L"Layers");
}

TEST_F(Palette, AnEmptyNameIsTaken) {
    make();
    palette->EditName();
    endNameEdit(L"");
    EXPECT_EQ(palette->GetName(), L"");
}

TEST_F(Palette, AClickElsewhereTakesTheName) {
    make();
    palette->EditName();
    ::SetWindowTextW(::GetDlgItem(openNameEdit(), 1127), L"Walls");
    frame->SetFocus();
    EXPECT_EQ(openNameEdit(), nullptr);
    EXPECT_EQ(palette->GetName(), L"Walls");
}

TEST_F(Palette, AnswersWhetherTheNameEditBeganAndEnded) {
    make();
    EXPECT_EQ(palette->SendMessage(WM_USER + 102, 0, 0), 0) << "no edit";
    EXPECT_EQ(palette->SendMessage(WM_USER + 101, 0, 0), 1);
    auto* edit = static_cast<CNameEdit*>(CWnd::FromHandlePermanent(openNameEdit()));
    EXPECT_EQ(palette->SendMessage(WM_USER + 102, reinterpret_cast<WPARAM>(edit),
                                   reinterpret_cast<LPARAM>(L"Direct")),
              1);
    EXPECT_EQ(palette->GetName(), L"Direct");
    EXPECT_EQ(openNameEdit(), nullptr);
}

TEST_F(Palette, ADoubleClickOnItsTabRenamesIt) {
    make();
    CPoint place = tabPlace(1);
    strip().ScreenToClient(&place);
    strip().SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(place.x, place.y));
    EXPECT_EQ(ui_test::text_of(openNameEdit()), L"Layers");
    endNameEdit(L"Walls");
    EXPECT_EQ(palette->GetName(), L"Walls");
}

TEST_F(Palette, ItsSettingsStandUnderAnAddress) {
    make();
    ::SetWindowLongPtrW(*palette, GWLP_ID, 42);
    const NotedSettings::InForce settings;
    EXPECT_EQ(palette->Save(nullptr), 1);
    ASSERT_EQ(NotedSettings::requests().size(), 1u);
    EXPECT_TRUE(std::regex_match(NotedSettings::requests()[0], std::wregex(L"create [0-9A-F]{16}alette-42")))
        << CStringA(NotedSettings::requests()[0].c_str()).GetString();
    EXPECT_EQ(NotedSettings::values()[L"Name"], L"Layers");
}

TEST_F(Palette, ReadsItsNameFromItsSettings) {
    make();
    const NotedSettings::InForce settings;
    NotedSettings::values()[L"Name"] = L"Stored";
    EXPECT_EQ(palette->Load(nullptr), 1);
    ASSERT_EQ(NotedSettings::requests().size(), 1u);
    EXPECT_TRUE(
        std::regex_match(NotedSettings::requests()[0], std::wregex(L"open [0-9A-F]{16}alette-0 readonly")));
    EXPECT_EQ(palette->GetName(), L"Stored");
    EXPECT_EQ(strip().GetTab(1)->m_text, L"Stored");
}

TEST_F(Palette, SettingsThatCantBeOpenedChangeNothing) {
    make();
    const NotedSettings::InForce settings;
    NotedSettings::refusesKeys() = true;
    NotedSettings::values()[L"Name"] = L"Stored";
    EXPECT_EQ(palette->Load(nullptr), 1);
    EXPECT_EQ(palette->GetName(), L"Layers");
    EXPECT_EQ(palette->Save(nullptr), 1);
    EXPECT_EQ(NotedSettings::values()[L"Name"], L"Stored");
    NotedSettings::refusesKeys() = false;
    NotedSettings::values().clear();
    EXPECT_EQ(palette->Load(nullptr), 1);
    EXPECT_EQ(palette->GetName(), L"Layers");
}

}  // namespace
