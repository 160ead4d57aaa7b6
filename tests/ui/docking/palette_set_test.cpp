// The set: palettes in and out, which shows, where it lies, and its fixed answers.
#include <ktui/docking/kbui_palette_set.h>

#include <afxglobals.h>

#include "fake_resolution.h"
#include "in_language.h"
#include "palette_fixture.h"
#include "slot_of.h"

namespace {

using namespace docking_test;
using ui_test::slotOf;

struct PaletteSet : PaletteSetTest {};

TEST_F(PaletteSet, ItsOperationsStandInOrderBehindThoseOfTheBar) {
    using S = CKbUiPaletteSet;
    const std::vector<long long> slots = {slotOf(&CKbUiDockControlBar::OnUserSizing),
                                          slotOf(&S::TitleBarLocationUpdated),
                                          slotOf(&S::NameEditValidation),
                                          slotOf(&S::EditName),
                                          slotOf(&S::AddContextMenuItems),
                                          slotOf(&S::GetMinimumSize),
                                          slotOf(&S::GetMaximumSize),
                                          slotOf(&S::GetTopReservedHeight),
                                          slotOf(&S::GetBottomReservedHeight),
                                          slotOf(&S::AutoRollupChanged),
                                          slotOf(&S::OnTabDrag),
                                          slotOf(&S::PaletteActivated),
                                          slotOf(&S::PaletteAdded),
                                          slotOf(&S::PaletteRemoved),
                                          slotOf(&S::ThemeModified),
                                          slotOf(static_cast<void (S::*)(CWnd*, CPoint)>(&S::OnContextMenu))};
    for (std::size_t i = 1; i < slots.size(); ++i)
        EXPECT_EQ(slots[i], slots[0] + static_cast<long long>(i)) << i;
}

TEST_F(PaletteSet, StartsWithTheAgreedRecord) {
    EXPECT_EQ(set.m_data->m_owner, &set);
    EXPECT_EQ(set.GetPaletteSetStyle(), 0u);
    EXPECT_EQ(set.GetOpacity(), 100);
    EXPECT_EQ(set.m_data->m_contextPalette, -1);
    EXPECT_EQ(set.GetAutoRollup(), 0);
    EXPECT_EQ(set.GetPaletteCount(), 0);
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CKbUiPaletteSet)->CreateObject());
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CKbUiDockControlBar)));
}

TEST_F(PaletteSet, ReportsEachBitOfItsStyle) {
    const std::pair<unsigned long, int (CKbUiPaletteSet::*)() const> bits[] = {
        {2, &CKbUiPaletteSet::AutoRollupStyle},
        {4, &CKbUiPaletteSet::PropertiesMenuStyle},
        {8, &CKbUiPaletteSet::CloseButtonStyle},
        {16, &CKbUiPaletteSet::EditNameStyle},
        {32, &CKbUiPaletteSet::SnapStyle},
        {64, &CKbUiPaletteSet::SinglePaletteTabStyle},
        {128, &CKbUiPaletteSet::UseSinglePaletteTabNameStyle}};
    for (const auto& [bit, reports] : bits) {
        set.SetPaletteSetStyle(bit);
        EXPECT_EQ(set.GetPaletteSetStyle(), bit);
        EXPECT_TRUE((set.*reports)()) << bit;
        set.SetPaletteSetStyle(~bit);
        EXPECT_FALSE((set.*reports)()) << bit;
    }
}

TEST_F(PaletteSet, HasANarrowUprightStrip) {
    make(70);
    EXPECT_EQ(set.GetPaletteSetStyle(), 70u);
    EXPECT_EQ(set.GetDlgCtrlID(), 0);
    EXPECT_EQ(strip().GetParent(), &set);
    EXPECT_EQ(strip().GetDlgCtrlID(), 111);
    EXPECT_EQ(strip().GetStripStyle(), 0x1Eu);
    EXPECT_TRUE(isShown(strip()));
    EXPECT_EQ(strip().GetBackground(), static_cast<COLORREF>(0xEAECED));
    EXPECT_EQ(&set.GetStrip(), &strip());
}

TEST_F(PaletteSet, ItsNameIsTheWindowText) {
    make();
    EXPECT_EQ(set.GetName(), L"Set");
    EXPECT_EQ(set.SetName(L"Tools"), 1);
    EXPECT_EQ(ui_test::text_of(set.m_hWnd), L"Tools");
    EXPECT_EQ(set.GetName(), L"Tools");
}

TEST_F(PaletteSet, TheNewestPaletteHasIndexZero) {
    make();
    auto* first = new TestPalette(L"One");
    auto* second = new TestPalette(L"Two");
    EXPECT_EQ(set.AddPalette(first), 0);
    EXPECT_TRUE(isShown(*first));
    EXPECT_EQ(set.AddPalette(second), 0);
    EXPECT_FALSE(isShown(*second));
    EXPECT_EQ(set.GetPaletteCount(), 2);
    EXPECT_EQ(set.GetPalette(0), second);
    EXPECT_EQ(set.GetPalette(1), first);
    EXPECT_EQ(set.GetTabIndex(first), 1);
    EXPECT_EQ(set.GetTabIndex(second), 0);
    EXPECT_EQ(strip().GetTab(0)->m_text, L"Two");
    EXPECT_EQ(strip().GetTab(0)->m_tip, L"Two");
    EXPECT_EQ(set.GetActivePalette(), second) << "kept: the index stays where it is";
}

TEST_F(PaletteSet, RefusesNoPaletteOneWithoutNameAndOneThatCantBeMade) {
    make();
    EXPECT_EQ(set.AddPalette(nullptr), -1);
    fill({L"One"});
    TestPalette nameless(L"");
    EXPECT_EQ(set.AddPalette(&nameless), -1);
    EXPECT_EQ(set.GetPaletteCount(), 1);
    EXPECT_NE(nameless.m_hWnd, nullptr);
    EXPECT_FALSE(isShown(nameless)) << "kept: it stays hidden";
    struct Failing : CKbUiPalette {
        int Create(CKbUiPaletteSet*) override { return 0; }
    } failing;
    failing.SetName(L"Failing");
    EXPECT_EQ(set.AddPalette(&failing), -1);
    EXPECT_EQ(set.GetPaletteCount(), 1);
    nameless.DestroyWindow();
}

TEST_F(PaletteSet, InsertsCountingFromTheOtherEnd) {
    make();
    TestPalette* palettes[4] = {new TestPalette(L"A"), new TestPalette(L"B"), new TestPalette(L"C"),
                                new TestPalette(L"D")};
    for (TestPalette* each : palettes) ASSERT_TRUE(each->CKbUiPalette::Create(&set));
    EXPECT_EQ(set.InsertPalette(1, palettes[0]), -1) << "above the count";
    EXPECT_EQ(set.InsertPalette(-1, palettes[0]), -1);
    EXPECT_EQ(set.InsertPalette(0, nullptr), -1);
    EXPECT_EQ(set.InsertPalette(0, palettes[0]), 0);
    EXPECT_TRUE(isShown(*palettes[0]));
    EXPECT_EQ(set.InsertPalette(0, palettes[1]), 0);
    EXPECT_FALSE(isShown(*palettes[1]));
    EXPECT_EQ(set.InsertPalette(2, palettes[2]), 0);
    EXPECT_EQ(set.InsertPalette(1, palettes[3]), 0);
    EXPECT_EQ(set.GetPalette(0), palettes[2]);
    EXPECT_EQ(set.GetPalette(1), palettes[0]);
    EXPECT_EQ(set.GetPalette(2), palettes[3]);
    EXPECT_EQ(set.GetPalette(3), palettes[1]);
    palettes[0]->SetName(L"");
    EXPECT_EQ(set.InsertPalette(0, palettes[0]), -1) << "an empty name";
}

TEST_F(PaletteSet, ActivatesByPointer) {
    make();
    fill({L"A", L"B", L"C"});
    CKbUiPalette* wanted = set.GetPalette(2);
    EXPECT_EQ(set.SetActivePalette(wanted), 1);
    EXPECT_EQ(set.GetActivePalette(), wanted);
    EXPECT_EQ(set.GetActivePaletteTabIndex(), 2);
    for (int index = 0; index < 3; ++index) EXPECT_EQ(isShown(*set.GetPalette(index)), index == 2) << index;
    expectRect(placeOf(*wanted), 0, 0, 182, 400);
    expectRect(placeOf(strip()), 182, 0, 200, 400);
    EXPECT_EQ(::GetWindow(set.m_hWnd, GW_CHILD), wanted->m_hWnd) << "on top";
}

TEST_F(PaletteSet, ActivatesByIndexWithoutMovingTheStrip) {
    make();
    fill({L"A", L"B", L"C"});
    strip().MoveWindow(50, 60, 18, 100);
    EXPECT_EQ(set.SetActivePalette(1), 1);
    EXPECT_EQ(set.GetActivePaletteTabIndex(), 1);
    for (int index = 0; index < 3; ++index) EXPECT_EQ(isShown(*set.GetPalette(index)), index == 1) << index;
    expectRect(placeOf(*set.GetPalette(1)), 0, 0, 182, 400);
    expectRect(placeOf(strip()), 50, 60, 68, 160);
    EXPECT_EQ(::GetWindow(set.m_hWnd, GW_CHILD), set.GetPalette(1)->m_hWnd);
}

TEST_F(PaletteSet, TheActivePaletteIsErasedAnew) {
    make();
    fill({L"A", L"B"});
    set.SetActivePalette(0);
    ui_test::pump();
    auto* palette = static_cast<TestPalette*>(set.GetPalette(0));
    palette->erased = 0;
    set.SetActivePalette(0);
    palette->UpdateWindow();
    EXPECT_EQ(palette->erased, 1);
    set.SetActivePalette(palette);
    palette->UpdateWindow();
    EXPECT_EQ(palette->erased, 2);
}

TEST_F(PaletteSet, RefusesToActivateWhatIsntThere) {
    make();
    TestPalette stranger(L"Stranger");
    EXPECT_EQ(set.SetActivePalette(static_cast<CKbUiPalette*>(nullptr)), 0);
    EXPECT_EQ(set.SetActivePalette(&stranger), 1) << "of an empty set";
    EXPECT_EQ(set.SetActivePalette(0), 1);
    EXPECT_EQ(set.SetActivePalette(1), 0);
    EXPECT_EQ(set.SetActivePalette(-1), 0);
    fill({L"A"});
    EXPECT_EQ(set.SetActivePalette(&stranger), 0);
    EXPECT_TRUE(isShown(*set.GetPalette(0)));
    EXPECT_EQ(set.SetActivePalette(2), 0);
    EXPECT_TRUE(isShown(*set.GetPalette(0)));
}

TEST_F(PaletteSet, AnIndexEqualToTheCountHidesThemAll) {
    make();
    fill({L"A", L"B"});
    set.SetActivePalette(1);
    EXPECT_EQ(set.SetActivePalette(2), 1);
    EXPECT_FALSE(isShown(*set.GetPalette(0)));
    EXPECT_FALSE(isShown(*set.GetPalette(1)));
    EXPECT_EQ(set.GetActivePaletteTabIndex(), 1);
}

TEST_F(PaletteSet, ASinglePaletteHidesTheStripAndFillsTheSetAfterASize) {
    make();
    fill({L"A"});
    set.SetActivePalette(set.GetPalette(0));
    expectRect(placeOf(*set.GetPalette(0)), 0, 0, 182, 400);
    EXPECT_TRUE(placeOf(strip()).IsRectEmpty());
    sizeTo(210, 300);
    expectRect(placeOf(*set.GetPalette(0)), 0, 0, 210, 300);
    EXPECT_TRUE(placeOf(strip()).IsRectEmpty());
    EXPECT_TRUE(strip().GetTab(0)->m_rect.IsRectNull()) << "nothing was laid out";
}

TEST_F(PaletteSet, ASinglePaletteWithItsStyleHasAStrip) {
    make(64);
    fill({L"A"});
    sizeTo(210, 300);
    expectRect(placeOf(*set.GetPalette(0)), 0, 0, 192, 300);
    expectRect(placeOf(strip()), 192, 0, 210, 300);
    EXPECT_EQ(strip().GetTab(0)->m_rect.right, 300);
    EXPECT_EQ(::GetWindow(set.m_hWnd, GW_CHILD), strip().m_hWnd) << "the strip on top";
}

TEST_F(PaletteSet, TwoPalettesHaveAStripAfterASize) {
    make();
    fill({L"A", L"B"});
    set.SetActivePalette(0);
    sizeTo(210, 300);
    expectRect(placeOf(*set.GetPalette(0)), 0, 0, 192, 300);
    expectRect(placeOf(strip()), 192, 0, 210, 300);
}

TEST_F(PaletteSet, ASizeBringsTheStripToTheTopAndErasesThePaletteAnew) {
    make();
    for (const wchar_t* name : {L"A", L"B"}) {
        ASSERT_EQ(set.AddPalette(new TestPalette(name)), 0);
        set.SetActivePalette(set.GetPalette(0));
        sizeTo(190, 380);
        ui_test::pump();
        auto* palette = static_cast<TestPalette*>(set.GetPalette(0));
        palette->BringWindowToTop();
        palette->erased = 0;
        set.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(190, 380));
        EXPECT_EQ(::GetWindow(set.m_hWnd, GW_CHILD), strip().m_hWnd) << name;
        palette->UpdateWindow();
        EXPECT_EQ(palette->erased, 1) << name;
    }
}

TEST_F(PaletteSet, ItsStripGrowsWithTheResolutionForAHostThatFollowsIt) {
    const ui_test::FakeResolution resolution(144);
    make();
    sizeTo(200, 600);
    fill({L"A", L"B"});
    set.SetActivePalette(set.GetPalette(0));
    expectRect(placeOf(strip()), 173, 0, 200, 600);
    expectRect(placeOf(*set.GetPalette(0)), 0, 0, 173, 600);
    EXPECT_EQ(strip().GetTab(1)->m_rect.Width(), 180);
}

TEST_F(PaletteSet, AnEmptySetHasNoStripEvenWithItsStyle) {
    make(64);
    sizeTo(210, 300);
    EXPECT_TRUE(placeOf(strip()).IsRectEmpty());
}

TEST_F(PaletteSet, AClickOnATabShowsItsPalette) {
    make();
    fill({L"A", L"B", L"C"});
    set.SetActivePalette(set.GetPalette(0));
    CPoint place = tabPlace(2);
    strip().ScreenToClient(&place);
    strip().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(place.x, place.y));
    EXPECT_EQ(set.GetActivePaletteTabIndex(), 2);
    EXPECT_TRUE(isShown(*set.GetPalette(2)));
    EXPECT_FALSE(isShown(*set.GetPalette(0)));
}

TEST_F(PaletteSet, ARemovedPaletteStaysTheCallersAndHidden) {
    make();
    fill({L"A", L"B", L"C"});
    set.SetActivePalette(2);
    CKbUiPalette* removed = set.GetPalette(2);
    EXPECT_EQ(set.RemovePalette(removed), 1);
    EXPECT_EQ(set.GetPaletteCount(), 2);
    EXPECT_FALSE(isShown(*removed));
    EXPECT_TRUE(::IsWindow(*removed));
    EXPECT_EQ(set.GetActivePaletteTabIndex(), 1);
    EXPECT_FALSE(isShown(*set.GetPalette(1))) << "kept: no other is shown";
    EXPECT_EQ(set.RemovePalette(removed), 0);
    EXPECT_EQ(set.RemovePalette(static_cast<CKbUiPalette*>(nullptr)), 0);
    EXPECT_EQ(set.RemovePalette(2), 0);
    EXPECT_EQ(set.RemovePalette(-1), 0);
    CKbUiPalette* other = set.GetPalette(0);
    EXPECT_EQ(set.RemovePalette(0), 1);
    EXPECT_FALSE(isShown(*other));
    delete removed;
    delete other;
}

TEST_F(PaletteSet, APaletteThatWasThereTwiceIsShownByItsOtherTab) {
    make();
    fill({L"A"});
    CKbUiPalette* twice = set.GetPalette(0);
    set.AddPalette(twice);
    set.SetActivePalette(0);
    EXPECT_EQ(set.RemovePalette(0), 1);
    EXPECT_TRUE(isShown(*twice));
}

TEST_F(PaletteSet, TheActivePaletteMayBeNoneAfterRemoving) {
    make();
    fill({L"A", L"B", L"C"});
    set.SetActivePalette(2);
    CKbUiPalette* removed = set.GetPalette(0);
    set.RemovePalette(0);
    EXPECT_EQ(set.GetActivePalette(), nullptr) << "kept: the index stays and lies outside";
    EXPECT_EQ(set.GetActivePaletteTabIndex(), 2) << "kept: equal to the count";
    CKbUiPalette* second = set.GetPalette(0);
    set.RemovePalette(0);
    EXPECT_EQ(set.GetActivePaletteTabIndex(), -1);
    delete removed;
    delete second;
}

TEST_F(PaletteSet, QueriesOutsideTheListGiveNothing) {
    make();
    EXPECT_EQ(set.GetPalette(0), nullptr);
    EXPECT_EQ(set.GetActivePalette(), nullptr);
    EXPECT_EQ(set.GetActivePaletteTabIndex(), 0);
    fill({L"A"});
    EXPECT_EQ(set.GetPalette(-1), nullptr);
    EXPECT_EQ(set.GetPalette(1), nullptr);
    TestPalette stranger(L"S");
    EXPECT_EQ(set.GetTabIndex(&stranger), -1);
}

TEST_F(PaletteSet, TakesNewNamesOverToItsTabs) {
    struct Renamed : CKbUiPalette {
        void rename(const wchar_t* name) { m_name = name; }
    };
    make();
    auto* palette = new Renamed;
    palette->rename(L"A");
    set.AddPalette(palette);
    palette->rename(L"Z");
    EXPECT_EQ(strip().GetTab(0)->m_text, L"A");
    set.UpdateTabs();
    EXPECT_EQ(strip().GetTab(0)->m_text, L"Z");
}

TEST_F(PaletteSet, FindsTabsAndArrowsByScreenPoints) {
    make();
    sizeTo(200, 250);
    fill({L"A", L"B", L"C", L"D", L"E", L"F", L"G"});
    set.SetActivePalette(set.GetPalette(0));
    EXPECT_EQ(set.hit(tabPlace(1)), 1);
    EXPECT_EQ(set.foundType, 6u);
    EXPECT_EQ(set.foundIndex, 1u);
    CRect area;
    strip().GetWindowRect(&area);
    EXPECT_EQ(set.hit(CPoint(area.left + 5, area.bottom - 60)), 1);
    EXPECT_EQ(set.foundType, 8u);
    EXPECT_EQ(set.foundIndex, 0u);
    EXPECT_EQ(set.hit(CPoint(area.left + 5, area.bottom - 10)), 0);
    EXPECT_EQ(set.foundIndex, 0u);
    EXPECT_EQ(set.hit(CPoint(area.left - 5, area.top + 5)), 0);
}

TEST_F(PaletteSet, SizesAndFontAreThoseAgreed) {
    make();
    CSize size;
    set.GetMinimumSize(size);
    EXPECT_TRUE(size == CSize(100, 140));
    set.GetMaximumSize(size);
    EXPECT_TRUE(size == CSize(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)));
    EXPECT_EQ(set.GetTopReservedHeight(), 5);
    EXPECT_EQ(set.GetBottomReservedHeight(), 0);
    EXPECT_EQ(set.GetWindowFont(), &afxGlobalData.fontRegular);
    CRect full, client, window;
    set.GetFullRect(full);
    set.GetWindowRect(&window);
    EXPECT_TRUE(full == window);
    set.GetAdjustedClientRect(client);
    expectRect(client, 0, 0, 200, 400);
}

TEST_F(PaletteSet, DestroysAndDeletesItsPalettesWithItsWindow) {
    int alive = 0;
    make();
    auto* removed = new TestPalette(L"Removed", &alive);
    set.AddPalette(removed);
    set.AddPalette(new TestPalette(L"B", &alive));
    set.AddPalette(new TestPalette(L"C", &alive));
    set.RemovePalette(removed);
    EXPECT_EQ(alive, 3);
    set.DestroyWindow();
    EXPECT_EQ(alive, 1);
    delete removed;
}

TEST_F(PaletteSet, DeletesItsPalettesWhenItIsDeleted) {
    int alive = 0;
    auto* deleted = new CKbUiPaletteSet(2);
    ASSERT_TRUE(deleted->Create(L"Set", WS_CHILD | CBRS_LEFT, CRect(0, 0, 200, 300), frame, 0));
    deleted->AddPalette(new TestPalette(L"B", &alive));
    deleted->AddPalette(new TestPalette(L"C", &alive));
    delete deleted;
    EXPECT_EQ(alive, 0);
}

TEST_F(PaletteSet, EntryPointsWithoutEffectHaveTheirAnswers) {
    make();
    fill({L"A"});
    set.RollUp();
    EXPECT_EQ(set.RolledUp(), 0);
    set.RollOut(true);
    EXPECT_EQ(set.RolledUp(), 0);
    EXPECT_EQ(set.SetAutoRollup(0), 0);
    EXPECT_EQ(set.SetAutoRollup(1), 1);
    EXPECT_EQ(set.SetAutoRollup(1), 0);
    EXPECT_EQ(set.GetAutoRollup(), 1);
    EXPECT_EQ(set.SetOpacity(101), 0);
    EXPECT_EQ(set.SetOpacity(-1), 0);
    EXPECT_EQ(set.GetOpacity(), 100);
    EXPECT_EQ(set.SetOpacity(100), 1);
    EXPECT_EQ(set.SetOpacity(0), 1);
    EXPECT_EQ(set.GetOpacity(), 0);
    EXPECT_FALSE(set.GetExStyle() & WS_EX_LAYERED);
    EXPECT_FALSE(CKbUiPaletteSet::SetGlobalTransparency(50));
    EXPECT_EQ(CKbUiPaletteSet::GetGlobalTransparency(), 0u);
    EXPECT_FALSE(set.SetAllowTransparency(L"x", true));
    set.SetTitleBarLocation(static_cast<KbUiTitleBarLocation>(0));
    EXPECT_EQ(set.TitleBarLocation(), static_cast<KbUiTitleBarLocation>(1));
    set.OnTogglePin();
    alignas(CKbUiTheme) unsigned char theme[sizeof(CKbUiTheme)] = {};
    EXPECT_EQ(set.GetTheme(), nullptr);
    EXPECT_EQ(set.SetTheme(reinterpret_cast<CKbUiTheme*>(theme)), nullptr);
    EXPECT_EQ(set.GetTheme(), nullptr) << "not kept";
    EXPECT_EQ(set.SetTheme(nullptr), nullptr);
    EXPECT_FALSE(set.CanFrameworkTakeFocus());
    set.OnActivate(0, nullptr, FALSE);
    set.OnLButtonDblClk(0, CPoint());
    set.OnLButtonDown(0, CPoint());
    set.OnLButtonUp(0, CPoint());
    set.OnMouseMove(0, CPoint());
    set.OnMenuClose();
    set.OnMenuMove();
    set.OnMenuSize();
    set.OnNcPaint();
    set.OnOptionTranslucency();
    set.OnSetFocus(nullptr);
    set.OnWindowPosChanging(nullptr);
    EXPECT_EQ(set.OnFloatStatus(0, 0), 0);
    EXPECT_EQ(set.OnNcCalcSize(FALSE, nullptr), 0);
    EXPECT_EQ(set.OnEraseBkgnd(nullptr), 1);
    EXPECT_EQ(set.OnNcHitTest(CPoint()), 1);
    CEdit edit;
    EXPECT_EQ(set.NameEditValidation(&edit), 1);
    EXPECT_EQ(set.NameEditValidation(nullptr), 0);
    EXPECT_TRUE(set.IsWindowVisible());
    EXPECT_EQ(set.GetPaletteCount(), 1);
}

TEST_F(PaletteSet, MessagesOfTheKeptHandlersGoToTheBar) {
    make();
    const int before = host.filledBackgrounds;
    CClientDC dc(&set);
    EXPECT_EQ(set.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC), 0), 1);
    EXPECT_EQ(host.filledBackgrounds, before + 1);
}

}  // namespace
