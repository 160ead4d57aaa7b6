// Named layouts of a main window's panes: saved, applied, kept in the registry.
#include "layouts_fixture.h"

using namespace docking_test;

namespace {

struct PaletteLayouts : LayoutsTest {
    std::wstring names() {
        CStringArray all;
        layouts.GetNames(all);
        std::wstring text;
        for (INT_PTR i = 0; i < all.GetSize(); ++i) text += (i != 0 ? L"|" : L"") + std::wstring(all[i]);
        return text;
    }
    /// That a call failed, said so, and left everything as it was.
    void expectRefused(BOOL answer, const Seen& before, const wchar_t* said) {
        EXPECT_FALSE(answer);
        EXPECT_EQ(seen(), before);
        EXPECT_NE(std::wstring(layouts.GetProblem()).find(said), std::wstring::npos)
            << CStringA(layouts.GetProblem()).GetString();
    }
};

/// `text` with the first `from` exchanged.
std::wstring with(std::wstring text, const std::wstring& from, const std::wstring& to) {
    const std::size_t at = text.find(from);
    EXPECT_NE(at, std::wstring::npos) << CStringA(from.c_str()).GetString();
    return at != std::wstring::npos ? text.replace(at, from.size(), to) : text;
}

}  // namespace

TEST_F(PaletteLayouts, ApplyingWhatWasSavedGivesItBackToThePixel) {
    fillFrame(6);
    RecordProperty("seed", kSeed);
    for (int round = 0; round < 30; ++round) {
        for (int i = upTo(12); i >= 0; --i) doAnything();
        const Seen wanted = seen();
        ASSERT_TRUE(layouts.Save(L"x")) << CStringA(layouts.GetProblem()).GetString();
        const Seen wantedOnReturn = seenOnReturn();
        for (int i = upTo(12); i >= 0; --i) doAnything();
        ASSERT_TRUE(layouts.Apply(L"x")) << "seed " << kSeed << ", round " << round;
        ASSERT_EQ(seen(), wanted) << "seed " << kSeed << ", round " << round;
        ASSERT_EQ(seenOnReturn(), wantedOnReturn) << "seed " << kSeed << ", round " << round;
        ASSERT_TRUE(layouts.Apply(L"x"));
        ASSERT_EQ(seen(), wanted) << "seed " << kSeed << ", round " << round << ", applied again";
    }
}

TEST_F(PaletteLayouts, AreListedRenamedReplacedAndDeleted) {
    fillFrame(2);
    EXPECT_EQ(names(), L"");
    for (const wchar_t* name : {L"review", L"Drafting", L"  printing  "}) ASSERT_TRUE(layouts.Save(name));
    EXPECT_EQ(names(), L"Drafting|printing|review");
    EXPECT_TRUE(layouts.Has(L"DRAFTING "));
    EXPECT_FALSE(layouts.Has(L"Draft"));
    EXPECT_TRUE(layouts.Save(L"Review"));
    EXPECT_EQ(names(), L"Drafting|printing|Review");
    EXPECT_FALSE(layouts.Rename(L"printing", L"REVIEW"));
    EXPECT_FALSE(layouts.Rename(L"missing", L"other"));
    EXPECT_FALSE(layouts.Rename(L"printing", L" "));
    EXPECT_EQ(names(), L"Drafting|printing|Review");
    const std::wstring text = stored(L"printing");
    EXPECT_TRUE(layouts.Rename(L"printing", L"Printing"));
    EXPECT_EQ(names(), L"Drafting|Printing|Review");
    EXPECT_EQ(stored(L"Printing"), text);
    EXPECT_TRUE(layouts.Rename(L"PRINTING", L"Plotting"));
    EXPECT_EQ(names(), L"Drafting|Plotting|Review");
    EXPECT_TRUE(layouts.GetProblem().IsEmpty());
    EXPECT_TRUE(layouts.Apply(L"plotting"));
    EXPECT_TRUE(layouts.Delete(L"plotting"));
    EXPECT_FALSE(layouts.Delete(L"plotting"));
    EXPECT_EQ(names(), L"Drafting|Review");
}

TEST_F(PaletteLayouts, OfAnotherObjectOfTheUserAreTheSame) {
    fillFrame(3);
    const Seen wanted = seen();
    ASSERT_TRUE(layouts.Save(L"kept"));
    layouts.Detach();
    bars[0]->FloatPane(CRect(200, 200, 400, 400));
    CKtUiPaletteLayouts other;
    ASSERT_TRUE(other.Attach(*frame));
    EXPECT_TRUE(other.Apply(L"kept"));
    EXPECT_EQ(seen(), wanted);
    ASSERT_TRUE(other.Attach(*frame, L"OtherLayouts"));
    EXPECT_FALSE(other.Has(L"kept"));
}

TEST_F(PaletteLayouts, NamesThatAreNoneAreRefused) {
    fillFrame(1);
    for (const wchar_t* bad :
         {L"", L"   ", L"a\nb", L"1234567890123456789012345678901234567890123456789012345678901234+"})
        expectRefused(layouts.Save(bad), seen(), L"64");
    EXPECT_EQ(names(), L"");
    EXPECT_TRUE(layouts.Save(L"1234567890123456789012345678901234567890123456789012345678901234"));
    EXPECT_TRUE(layouts.Save(L"back\\slash <&\"'> \u56fe"));
    EXPECT_TRUE(layouts.Apply(L"back\\slash <&\"'> \u56fe"));
}

TEST_F(PaletteLayouts, TheBuiltInOneComesBack) {
    fillFrame(4);
    EXPECT_FALSE(layouts.Reset());
    EXPECT_FALSE(layouts.GetProblem().IsEmpty());
    const Seen wanted = seen();
    ASSERT_TRUE(layouts.KeepBuiltIn());
    for (int i = 0; i < 10; ++i) doAnything();
    ASSERT_NE(seen(), wanted);
    EXPECT_TRUE(layouts.Reset());
    EXPECT_EQ(seen(), wanted);
    EXPECT_EQ(names(), L"");
}

TEST_F(PaletteLayouts, ADamagedOneChangesNothingAndSaysWhatIsWrong) {
    fillFrame(4);
    bars[1]->AttachToTabWnd(bars[0].get(), DM_UNKNOWN);
    bars[2]->FloatPane(CRect(300, 200, 460, 380));
    ASSERT_TRUE(layouts.Save(L"x"));
    const std::wstring good = stored(L"x");
    bars[3]->ShowPane(FALSE, FALSE, FALSE);
    const Seen before = seen();
    const struct {
        std::wstring text;
        const wchar_t* said;
    } bad[] = {
        {good.substr(0, good.size() / 2), L"XML"},
        {L"", L"XML"},
        {with(good, L"Version=\"1\"", L"Version=\"0\""), L"0"},
        {with(good, L"Version=\"1\"", L"Version=\"77\""), L"77"},
        {L"<CAdUiDockControlBar/>", L"CAdUiDockControlBar"},
        {with(good, L"Extent=\"", L"Extent=\"-"), L"Layout[1]/Docked[1]/Row[1]"},
        {with(good, L"Id=\"4003\"", L"Id=\"4004\""), L"4004"},
        {with(good, L"Active=\"4002\"", L"Active=\"4004\""), L"Layout[1]/Tabs[1]/TabGroup[1]"},
        {with(good, L"<Floating>", L"<Fish/><Floating>"), L"Layout[1]/Fish[1]"},
    };
    for (const auto& [text, said] : bad) {
        store(L"x", text);
        expectRefused(layouts.Apply(L"x"), before, said);
    }
    store(L"x", good);
    EXPECT_TRUE(layouts.Apply(L"x"));
    EXPECT_NE(seen(), before);
}

TEST_F(PaletteLayouts, PanesThatItDoesNotKnowKeepTheirPlaces) {
    fillFrame(3);
    ASSERT_TRUE(layouts.Save(L"three"));
    OpenBar& docked = addBar(kFirstBar + 7);
    OpenBar& floating = addBar(kFirstBar + 8);
    OpenBar& hidden = addBar(kFirstBar + 9);
    const CRect strip(0, 0, 100, 77);
    docked.DockToFrameWindow(CBRS_ALIGN_BOTTOM, &strip, DT_DOCK_LAST, nullptr, -1, TRUE);
    floating.FloatPane(CRect(310, 220, 450, 380));
    frame->DockPane(&hidden);
    hidden.ShowPane(FALSE, FALSE, FALSE);
    ui_test::pump();
    const CRect dockedAt = placeOf(docked), floatingAt = placeOf(*floating.GetParentMiniFrame());
    for (const auto& bar : bars)
        if (bar->GetDlgCtrlID() < 4004) bar->FloatPane(CRect(100, 100, 300, 300));
    ASSERT_TRUE(layouts.Apply(L"three"));
    ui_test::pump();
    EXPECT_EQ(textOf(placeOf(docked)), textOf(dockedAt));
    ASSERT_NE(floating.GetParentMiniFrame(), nullptr);
    EXPECT_EQ(textOf(placeOf(*floating.GetParentMiniFrame())), textOf(floatingAt));
    EXPECT_FALSE(hidden.IsPaneVisible());
    EXPECT_TRUE(bars[0]->IsDocked());
}

TEST_F(PaletteLayouts, PanesThatAreGoneReturnToTheirPlaces) {
    fillFrame(4);
    const CRect high(0, 0, 100, 90);
    bars[1]->DockToWindow(bars[0].get(), CBRS_ALIGN_BOTTOM, &high);
    bars[3]->AttachToTabWnd(bars[2].get(), DM_UNKNOWN);
    const Seen wanted = seen();
    ASSERT_TRUE(layouts.Save(L"all"));
    const auto goes = [&](std::size_t index) {
        bars[index]->UndockPane();
        frame->RemovePaneFromDockManager(bars[index].get(), TRUE, TRUE, FALSE, nullptr);
        bars[index] = std::make_unique<OpenBar>();
    };
    const auto returns = [&](std::size_t index) {
        const auto id = static_cast<unsigned>(kFirstBar + index);
        addBar(id);
        bars[index] = std::move(bars.back());
        bars.pop_back();
    };
    goes(1);
    goes(3);
    ASSERT_TRUE(layouts.Apply(L"all"));
    // The places are kept in what is saved meanwhile, too.
    ASSERT_TRUE(layouts.Save(L"meanwhile"));
    for (const wchar_t* name : {L"all", L"meanwhile"}) {
        ASSERT_TRUE(layouts.Apply(name));
        returns(1);
        EXPECT_TRUE(layouts.PlacePane(*bars[1])) << CStringA(layouts.GetProblem()).GetString();
        returns(3);
        EXPECT_TRUE(layouts.PlacePane(*bars[3]));
        EXPECT_EQ(seen(), wanted);
        EXPECT_FALSE(layouts.PlacePane(*bars[3])) << "it stands already";
        goes(1);
        goes(3);
    }
    OpenBar& stranger = addBar(kFirstBar + 20);
    EXPECT_FALSE(layouts.PlacePane(stranger));
    returns(1);
    returns(3);
}

TEST_F(PaletteLayouts, WithoutAMainWindowNothingIsDone) {
    CStringArray all;
    EXPECT_FALSE(layouts.IsAttached());
    for (const BOOL answer : {layouts.Save(L"x"), layouts.Apply(L"x"), layouts.Delete(L"x"), layouts.Reset(),
                              layouts.KeepBuiltIn(), layouts.Rename(L"x", L"y"), layouts.Export(L"x"),
                              layouts.Import(L"x"), layouts.Has(L"x")})
        EXPECT_FALSE(answer);
    EXPECT_FALSE(layouts.GetProblem().IsEmpty());
    layouts.GetNames(all);
    EXPECT_EQ(all.GetSize(), 0);
    CMDIFrameWndEx noWindow;
    EXPECT_FALSE(layouts.Attach(noWindow));
}

TEST_F(PaletteLayouts, AreDetachedWhenTheWindowGoes) {
    auto* other = new Frame;
    ASSERT_TRUE(other->Create(nullptr, L"other"));
    ASSERT_TRUE(layouts.Attach(*other));
    EXPECT_TRUE(layouts.IsAttached());
    EXPECT_TRUE(layouts.Save(L"kept"));
    other->DestroyWindow();
    EXPECT_FALSE(layouts.IsAttached());
    EXPECT_FALSE(layouts.Save(L"x"));
    CStringArray names;
    names.Add(L"former");
    layouts.GetNames(names);
    EXPECT_EQ(names.GetSize(), 0) << "those that are stored are another window's";
}

TEST_F(PaletteLayouts, TheFocusStaysWhereItCanBeSeen) {
    fillFrame(2);
    ASSERT_TRUE(layouts.Save(L"both"));
    bars[1]->ShowPane(FALSE, FALSE, FALSE);
    ASSERT_TRUE(layouts.Save(L"one"));
    ASSERT_TRUE(layouts.Apply(L"both"));
    bars[0]->SetFocus();
    ASSERT_TRUE(layouts.Apply(L"one"));
    EXPECT_EQ(::GetFocus(), bars[0]->m_hWnd);
    ASSERT_TRUE(layouts.Apply(L"both"));
    bars[1]->SetFocus();
    ASSERT_TRUE(layouts.Apply(L"one"));
    EXPECT_TRUE(::GetFocus() != nullptr && ::IsWindowVisible(::GetFocus()));
    EXPECT_EQ(::GetAncestor(::GetFocus(), GA_ROOT), frame->m_hWnd);
}

TEST_F(PaletteLayouts, APaneThatHadNoPlaceAmongTheDockedHasNoneAgain) {
    fillFrame(1);
    OpenBar& bar = addBar(kFirstBar + 5);
    ASSERT_TRUE(bar.FloatPane(CRect(200, 200, 350, 330)));
    ASSERT_TRUE(layouts.Save(L"floating only"));
    frame->DockPane(&bar);
    ASSERT_TRUE(bar.FloatPane(CRect(100, 100, 250, 230)));
    ASSERT_TRUE(layouts.Apply(L"floating only"));
    EXPECT_EQ(textOf(placeOf(*bar.GetParentMiniFrame())), textOf(CRect(200, 200, 350, 330)));
    EXPECT_FALSE(bar.DockToRecentPos());
}

TEST_F(PaletteLayouts, ADockedPaneFloatsWhereItFloatedThen) {
    fillFrame(1);
    const CRect place(210, 220, 370, 390);
    ASSERT_TRUE(bars[0]->FloatPane(place));
    frame->DockPane(bars[0].get());
    ASSERT_TRUE(layouts.Save(L"docked"));
    ASSERT_TRUE(bars[0]->FloatPane(CRect(50, 60, 250, 260)));
    ASSERT_TRUE(layouts.Apply(L"docked"));
    ASSERT_TRUE(bars[0]->IsDocked());
    ASSERT_TRUE(bars[0]->FloatPane(CRect(0, 0, 0, 0)));
    EXPECT_EQ(textOf(placeOf(*bars[0]->GetParentMiniFrame())), textOf(place));
}

TEST_F(PaletteLayouts, APaneThatHadNotFloatedThenFloatsWhereItDidSince) {
    fillFrame(1);
    bars[0]->m_recentDockInfo.m_rectRecentFloatingRect.SetRectEmpty();
    ASSERT_TRUE(layouts.Save(L"before"));
    const CRect place(210, 220, 370, 390);
    ASSERT_TRUE(bars[0]->FloatPane(place));
    frame->DockPane(bars[0].get());
    ASSERT_TRUE(layouts.Apply(L"before"));
    EXPECT_EQ(textOf(CRect(bars[0]->m_recentDockInfo.m_rectRecentFloatingRect)), textOf(place));
}

TEST_F(PaletteLayouts, TabsThatHideGoOnHidingWithoutTheFirst) {
    fillFrame(3);
    for (std::size_t i = 1; i < 3; ++i)
        ASSERT_NE(bars[i]->AttachToTabWnd(bars[0].get(), DM_UNKNOWN), nullptr);
    ASSERT_TRUE(bars[0]->ToggleAutoHide());
    ASSERT_TRUE(layouts.Save(L"hiding"));
    ASSERT_TRUE(bars[1]->ToggleAutoHide());
    bars[0]->UndockPane();
    frame->RemovePaneFromDockManager(bars[0].get(), TRUE, TRUE, FALSE, nullptr);
    ASSERT_TRUE(layouts.Apply(L"hiding"));
    ASSERT_NE(bars[1]->GetParentTabbedPane(), nullptr);
    EXPECT_TRUE(bars[1]->GetParentTabbedPane()->IsAutoHideMode());
}
