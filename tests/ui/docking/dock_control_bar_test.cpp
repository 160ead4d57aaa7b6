// The toolkit's dockable pane: its creation, its flags, its places, and its fixed answers.
#include <comdef.h>
#include <msxml.h>

#include "bar_fixture.h"
#include "slot_of.h"

namespace {

using namespace docking_test;
using ui_test::slotOf;

struct DockControlBar : DockingTest {
    OpenBar bar;
};

TEST_F(DockControlBar, ItsOperationsStandInOrder) {
    using B = CKbUiDockControlBar;
    const std::vector<long long> slots = {slotOf(&B::CanFrameworkTakeFocus),
                                          slotOf(&B::Load),
                                          slotOf(&B::Save),
                                          slotOf(&B::PaintControlBar),
                                          slotOf(&B::CreateControlBar),
                                          slotOf(&B::SizeChanged),
                                          slotOf(&B::OnClosing),
                                          slotOf(&B::GetFloatingMinSize),
                                          slotOf(&B::AddCustomMenuItems),
                                          slotOf(&B::OnUserSizing)};
    for (std::size_t i = 1; i < slots.size(); ++i)
        EXPECT_EQ(slots[i], slots[0] + static_cast<long long>(i)) << i;
}

TEST_F(DockControlBar, StartsWithItsFlagsAndWithoutPlaces) {
    EXPECT_EQ(bar.m_dockFlags, 2u);
    EXPECT_FALSE(bar.isVisible());
    EXPECT_TRUE(bar.AllowDockingMenuItemState());
    CRect rect(1, 1, 1, 1);
    bar.GetFloatingRect(rect);
    EXPECT_TRUE(rect.IsRectNull());
    bar.GetPersistedDockingRect(rect);
    EXPECT_TRUE(rect.IsRectNull());
    EXPECT_TRUE(bar.m_recentDockInfo.GetRecentDockedRect(TRUE) == CRect(0, 0, 100, 140));
    EXPECT_EQ(OpenBar(0x3000005).m_dockFlags, 0x2000005u) << "the visible flag is cleared";
}

TEST_F(DockControlBar, IsMadeByTheFramework) {
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(CKbUiDockControlBar)->CreateObject());
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CDockablePane)));
}

TEST_F(DockControlBar, FixedAnswers) {
    long width = 7, height = 8;
    bar.SetMinSize(CSize(120, 90));
    bar.GetFloatingMinSize(&width, nullptr);
    bar.GetFloatingMinSize(nullptr, &height);
    EXPECT_EQ(width, 120);
    EXPECT_EQ(height, 90);
    EXPECT_FALSE(bar.CanFrameworkTakeFocus());
    EXPECT_FALSE(bar.OnClosing());
    EXPECT_EQ(bar.CreateControlBar(nullptr), 1);
    EXPECT_EQ(bar.AddCustomMenuItems(5), 0);
    bar.PaintControlBar(nullptr);
    bar.SizeChanged(nullptr, 1, 0);
    bar.OnUserSizing(1, nullptr);
    EXPECT_EQ(KbUiRegisterTool("a", "b", nullptr), 0);
    EXPECT_EQ(KbUiSetFloatingFrameClass(nullptr), 0);
    KbUiRegisterFloatingFrameClassAddress(nullptr);
    EXPECT_EQ(bar.AddMenuItems(nullptr), 0);
    EXPECT_EQ(CKbUiDockControlBar::MouseProc(0, 0, 0), 0);
    EXPECT_EQ(bar.GetTitleBarSize(), 0);
    EXPECT_EQ(bar.AdjustVertDockedBarHeight(5), 0);
    EXPECT_FALSE(CKbUiDockControlBar::HidePalettes());
    EXPECT_FALSE(CKbUiDockControlBar::ShowPalettes());
    CKbUiDockControlBar::RemoveBars();
    bar.Draw3DRect(nullptr, CRect());
    bar.LoadDefaultLocation();
    bar.PaintBar(nullptr);
    bar.Resized();
    bar.OnAllowDock();
    bar.OnAnchorLeft();
    bar.OnAnchorRight();
    bar.RepositionOrHideButtons();
    bar.TileInRow();
    EXPECT_EQ(bar.m_hWnd, nullptr);
}

TEST_F(DockControlBar, KeepsWhatItIsTold) {
    bar.SetAllowDockingMenuItemState(false);
    EXPECT_FALSE(bar.AllowDockingMenuItemState());
    bar.SetDockFlag(0x1000011);
    EXPECT_EQ(bar.m_dockFlags, 0x1000011u);
    EXPECT_TRUE(bar.isVisible());
    bar.setVisible(false);
    EXPECT_EQ(bar.m_dockFlags, 0x11u);
    bar.setVisible(true);
    EXPECT_EQ(bar.m_dockFlags, 0x1000011u);
    GUID id = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
    bar.SetToolID(&id);
    EXPECT_TRUE(*bar.GetToolID() == id);
    bar.SetToolID(nullptr);
    EXPECT_TRUE(*bar.GetToolID() == id);
    bar.ShowCloseButton(true);
    EXPECT_TRUE(bar.CloseButtonVisible());
    bar.ShowCloseButton(false);
    EXPECT_FALSE(bar.CloseButtonVisible());
    CRect place(1, 2, 3, 4), read;
    bar.InitFloatingPosition(&place);
    bar.InitFloatingPosition(nullptr);
    bar.GetFloatingRect(read);
    EXPECT_TRUE(read == place);
    bar.GetPersistedFloatingRect(read);
    EXPECT_TRUE(read == place);
    CKbUiDockControlBar::SetToolsRestartMode(true);
    EXPECT_TRUE(CKbUiDockControlBar::GetToolsRestartMode());
    CKbUiDockControlBar::SetToolsRestartMode(false);
    EXPECT_FALSE(CKbUiDockControlBar::GetToolsRestartMode());
}

TEST_F(DockControlBar, IsMadeAsAChildThatNeverStandsAtTheTop) {
    ASSERT_TRUE(bar.CKbUiDockControlBar::Create(frame, L"Layers", 4001, WS_VISIBLE | CBRS_TOP,
                                                CRect(0, 0, 150, 200)));
    EXPECT_TRUE(bar.GetStyle() & WS_CHILD);
    EXPECT_EQ(bar.GetPaneStyle() & CBRS_ALIGN_TOP, 0u);
    EXPECT_EQ(bar.GetDlgCtrlID(), 4001);
    EXPECT_EQ(ui_test::text_of(bar.m_hWnd), L"Layers");
    EXPECT_EQ(bar.GetControlBarStyle(), 15u);
    EXPECT_STREQ(bar.GetTabbedPaneRTC()->m_lpszClassName, "CTabbedPaneEx");
    EXPECT_EQ(bar.GetExStyle() & WS_EX_TOPMOST, 0u);
    EXPECT_FALSE(bar.IsDocked());
    EXPECT_TRUE(bar.IsFloating());
}

TEST_F(DockControlBar, ARectangleBelowTheMinimumGrowsFromItsCorner) {
    struct Noting : OpenBar {
        CRect made;
        int CreateControlBar(CREATESTRUCT* create) override {
            made = CRect(CPoint(create->x, create->y), CSize(create->cx, create->cy));
            return 1;
        }
    } noting;
    noting.SetMinSize(CSize(120, 90));
    ASSERT_TRUE(noting.CKbUiDockControlBar::Create(frame, L"Bar", 4001, WS_VISIBLE | CBRS_LEFT,
                                                   CRect(10, 20, 60, 400)));
    EXPECT_TRUE(noting.made.TopLeft() == CPoint(10, 20));
    EXPECT_EQ(noting.made.Width(), 120);
    EXPECT_EQ(noting.made.Height(), 380);
    Noting low;
    low.SetMinSize(CSize(120, 90));
    ASSERT_TRUE(
        low.CKbUiDockControlBar::Create(frame, L"Bar", 4002, WS_VISIBLE | CBRS_LEFT, CRect(10, 20, 310, 50)));
    EXPECT_TRUE(low.made.TopLeft() == CPoint(10, 20));
    EXPECT_EQ(low.made.Width(), 300);
    EXPECT_EQ(low.made.Height(), 90);
}

TEST_F(DockControlBar, ItsCreationFailsWithThatOfItsContents) {
    struct Failing : OpenBar {
        int answer;
        explicit Failing(int result) : answer(result) {}
        int CreateControlBar(CREATESTRUCT*) override { return answer; }
    };
    for (const int answer : {0, -1}) {
        Failing failing(answer);
        EXPECT_FALSE(
            failing.CKbUiDockControlBar::Create(frame, L"Bar", 4001, WS_VISIBLE, CRect(0, 0, 150, 200)));
        EXPECT_EQ(failing.m_hWnd, nullptr);
    }
}

TEST_F(DockControlBar, NothingIsDockedAtTheTop) {
    ASSERT_TRUE(
        bar.CKbUiDockControlBar::Create(frame, L"Bar", 4001, WS_VISIBLE | CBRS_LEFT, CRect(0, 0, 150, 200)));
    bar.EnableDocking(CBRS_ALIGN_ANY);
    EXPECT_EQ(bar.GetEnabledAlignment(), 0xD000u);
    bar.SetPaneAlignment(CBRS_ALIGN_BOTTOM);
    EXPECT_EQ(bar.GetDockStyle(), 0x8000u);
    bar.SetPaneAlignment(CBRS_ALIGN_RIGHT);
    EXPECT_EQ(bar.GetDockStyle(), 0x4000u);
    const DWORD others = bar.GetPaneStyle() & ~CBRS_ALIGN_ANY;
    bar.SetPaneAlignment(CBRS_ALIGN_TOP);
    EXPECT_EQ(bar.GetDockStyle(), 0u) << "no alignment at all";
    EXPECT_EQ(bar.GetPaneStyle() & ~CBRS_ALIGN_ANY, others);
}

TEST_F(DockControlBar, DocksAtASideOfTheHostsMainFrame) {
    ASSERT_TRUE(bar.CKbUiDockControlBar::Create(frame, L"Bar", 4001, WS_CHILD | WS_VISIBLE | CBRS_LEFT,
                                                CRect(0, 0, 150, 200)));
    bar.EnableDocking(CBRS_ALIGN_ANY);
    host.frame = nullptr;
    bar.DockControlBar(CBRS_ALIGN_LEFT, nullptr);
    EXPECT_FALSE(bar.IsDocked()) << "without a frame";
    CMDIFrameWndEx windowless;
    host.frame = &windowless;
    bar.DockControlBar(CBRS_ALIGN_LEFT, nullptr);
    EXPECT_FALSE(bar.IsDocked()) << "a frame without a window";
    host.hasUiHost = false;
    bar.DockControlBar(CBRS_ALIGN_LEFT, nullptr);
    EXPECT_FALSE(bar.IsDocked()) << "without a host";
    host.hasUiHost = true;
    host.frame = frame;
    bar.DockControlBar(CBRS_ALIGN_RIGHT, nullptr);
    ASSERT_TRUE(bar.IsDocked());
    EXPECT_FALSE(bar.IsFloating());
    EXPECT_EQ(bar.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_RIGHT));
    ui_test::pump();
    CRect place, area;
    bar.GetWindowRect(&place);
    frame->GetWindowRect(&area);
    EXPECT_GT(place.left, area.CenterPoint().x);
}

TEST_F(DockControlBar, ComesBackShownAndOutOfHiding) {
    dock(bar, CBRS_ALIGN_LEFT);
    bar.ShowPane(FALSE, FALSE, FALSE);
    ASSERT_FALSE(bar.IsVisible());
    bar.RestoreControlBar(CBRS_ALIGN_LEFT, nullptr);
    EXPECT_TRUE(bar.IsVisible());
    EXPECT_TRUE(bar.IsDocked());
}

TEST_F(DockControlBar, AVisibleBarThatComesBackIsNotShownBefore) {
    struct Counting : OpenBar {
        int shown = 0;
        void ShowPane(BOOL show, BOOL delay, BOOL activate) override {
            ++shown;
            OpenBar::ShowPane(show, delay, activate);
        }
    } counting;
    dock(counting, CBRS_ALIGN_LEFT);
    counting.shown = 0;
    counting.setVisible(true);
    counting.RestoreControlBar(CBRS_ALIGN_LEFT, nullptr);
    EXPECT_EQ(counting.shown, 0);
    counting.setVisible(false);
    counting.RestoreControlBar(CBRS_ALIGN_LEFT, nullptr);
    EXPECT_EQ(counting.shown, 1);
}

TEST_F(DockControlBar, NotesWhereItWasDockedAndWhereItFloated) {
    struct Noting : OpenBar {
        std::vector<std::pair<CRect, int>> told;
        std::vector<bool> storedBefore;
        std::vector<int> order;  ///< messages of the default processing, 0 for being told
        int lastFlags = 0;
        void SizeChanged(CRect* rect, int floating, int flags) override {
            told.emplace_back(*rect, floating);
            order.push_back(0);
            lastFlags = flags;
            storedBefore.push_back((floating ? m_floatingRect : m_dockingRect) == *rect);
        }
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_SIZE || message == WM_MOVE) order.push_back(static_cast<int>(message));
            return OpenBar::WindowProc(message, wParam, lParam);
        }
    } noting;
    dock(noting, CBRS_ALIGN_LEFT);
    WINDOWPOS place = {};
    place.x = 5, place.y = 6, place.cx = 70, place.cy = 80;
    place.flags = SWP_NOSIZE | SWP_NOMOVE;
    noting.told.clear();
    noting.storedBefore.clear();
    noting.order.clear();
    noting.SendMessage(WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&place));
    expectRect(noting.m_dockingRect, 5, 6, 75, 86);
    ASSERT_EQ(noting.told.size(), 1u);
    expectRect(noting.told[0].first, 5, 6, 75, 86);
    EXPECT_EQ(noting.told[0].second, 0);
    EXPECT_FALSE(noting.storedBefore[0]) << "told first";
    EXPECT_EQ(noting.lastFlags, SWP_NOSIZE | SWP_NOMOVE);
    EXPECT_EQ(noting.order, (std::vector<int>{WM_MOVE, WM_SIZE, 0})) << "after the default processing";
    floatBar(noting);
    noting.told.clear();
    const CRect docked = noting.m_dockingRect;
    noting.SendMessage(WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&place));
    expectRect(noting.m_floatingRect, 5, 6, 75, 86);
    EXPECT_TRUE(noting.m_dockingRect == docked);
    ASSERT_EQ(noting.told.size(), 1u);
    EXPECT_EQ(noting.told[0].second, 1);
}

TEST_F(DockControlBar, TheHostPaintsItsBackgroundAndTheBarItself) {
    struct Painting : OpenBar {
        int paints = 0;
        void PaintControlBar(CDC* dc) override { paints += dc->m_hDC != nullptr; }
    } painting;
    dock(painting, CBRS_ALIGN_LEFT);
    const int before = host.filledBackgrounds;
    painting.paints = 0;
    painting.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_EQ(host.filledBackgrounds, before + 1);
    EXPECT_EQ(painting.paints, 1);
    CClientDC dc(&painting);
    EXPECT_EQ(painting.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC), 0), 1);
    CRect client;
    painting.GetClientRect(&client);
    EXPECT_EQ(host.filledDc, dc.m_hDC);
    EXPECT_TRUE(host.filledRect == client);
    EXPECT_FALSE(client.IsRectEmpty());
}

TEST_F(DockControlBar, TheCloseButtonClearsTheVisibleFlag) {
    dock(bar, CBRS_ALIGN_LEFT);
    bar.setVisible(true);
    bar.OnPressCloseButton();
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(bar.IsVisible()) << "and hides the bar";
}

TEST_F(DockControlBar, ShowingTheBarLeavesItsOwnFlagAlone) {
    dock(bar, CBRS_ALIGN_LEFT);
    bar.ShowPane(FALSE, FALSE, FALSE);
    bar.ShowPane(TRUE, FALSE, TRUE);
    EXPECT_FALSE(bar.isVisible());
}

TEST_F(DockControlBar, HidesAtAnEdgeAndComesBackFromThere) {
    bar.OnAnchor();
    EXPECT_FALSE(bar.Anchored()) << "not docked";
    dock(bar, CBRS_ALIGN_LEFT);
    EXPECT_FALSE(bar.Anchored());
    bar.OnAnchor();
    EXPECT_TRUE(bar.Anchored());
    bar.OnAnchor();
    EXPECT_TRUE(bar.Anchored()) << "it hides already";
    bar.setVisible(true);
    bar.RestoreControlBar(CBRS_ALIGN_LEFT, nullptr);
    EXPECT_FALSE(bar.Anchored());
    EXPECT_TRUE(bar.IsDocked());
}

TEST_F(DockControlBar, HidesAltogether) {
    dock(bar, CBRS_ALIGN_LEFT);
    bar.OnHideBar();
    EXPECT_TRUE(ui_test::pump_until([this] { return !bar.IsVisible(); }));
}

TEST_F(DockControlBar, ItsDestructorDestroysTheWindow) {
    HWND window;
    {
        OpenBar passing;
        ASSERT_TRUE(
            passing.CKbUiDockControlBar::Create(frame, L"Bar", 4003, WS_VISIBLE, CRect(0, 0, 150, 200)));
        window = passing.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(window));
}

// XML.

_COM_SMARTPTR_TYPEDEF(IXMLDOMElement, IID_IXMLDOMElement);
_COM_SMARTPTR_TYPEDEF(IXMLDOMDocument, IID_IXMLDOMDocument);

struct DockControlBarXml : DockControlBar {
    HRESULT com = ::CoInitialize(nullptr);
    IXMLDOMDocumentPtr document;
    IXMLDOMElementPtr root;

    DockControlBarXml() {
        const CLSID clsid = {0x2933BF90, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};
        EXPECT_EQ(document.CreateInstance(clsid), S_OK);
        VARIANT_BOOL loaded = VARIANT_FALSE;
        document->loadXML(_bstr_t(L"<bars/>"), &loaded);
        document->get_documentElement(&root);
        EXPECT_TRUE(bar.CKbUiDockControlBar::Create(frame, L"Bar", 4001, WS_CHILD | WS_VISIBLE | CBRS_LEFT,
                                                    CRect(0, 0, 150, 200)));
        bar.EnableDocking(CBRS_ALIGN_ANY);
    }
    ~DockControlBarXml() override {
        root = nullptr;
        document = nullptr;
        if (SUCCEEDED(com)) ::CoUninitialize();
    }
};

TEST_F(DockControlBarXml, AFloatingBarComesBackWithoutAlignment) {
    bar.m_floatingRect = CRect(10, 20, 110, 220);
    bar.m_dockingRect = CRect(1, 2, 31, 42);
    bar.SetAllowDockingMenuItemState(false);
    ASSERT_TRUE(bar.IsFloating());
    EXPECT_EQ(bar.Save(root), 1);
    bar.m_floatingRect = bar.m_dockingRect = CRect();
    bar.SetAllowDockingMenuItemState(true);
    bar.setVisible(true);
    EXPECT_EQ(bar.Load(root), 1);
    EXPECT_EQ(bar.GetDockStyle(), 0u);
    EXPECT_EQ(bar.GetPaneStyle() & 1, 1u);
    EXPECT_TRUE(bar.m_floatingRect == CRect(10, 20, 110, 220));
    EXPECT_TRUE(bar.m_dockingRect == CRect(1, 2, 40, 60)) << "read from the floating corner";
    EXPECT_FALSE(bar.AllowDockingMenuItemState());
    EXPECT_EQ(bar.m_dockFlags, 0x1000u) << "the alignment takes the word's place";
}

TEST_F(DockControlBarXml, ADockedBarComesBackWithItsAlignment) {
    bar.SetPaneAlignment(CBRS_ALIGN_BOTTOM);
    frame->DockPane(&bar);
    ASSERT_TRUE(bar.IsDocked());
    EXPECT_EQ(bar.Save(root), 1);
    bar.SetPaneAlignment(CBRS_ALIGN_LEFT);
    EXPECT_EQ(bar.Load(root), 1);
    EXPECT_EQ(bar.GetDockStyle(), 0x8000u);
    EXPECT_EQ(bar.m_dockFlags, 0x8000u);
}

TEST_F(DockControlBarXml, AVisibleFlagInTheRecordPutsTheBarOnTheScreen) {
    bar.m_floatingRect = CRect(310, 205, 550, 435);
    // Read from the floating corner, this becomes 234 wide.
    bar.m_dockingRect = CRect(310, 205, 544, 405);
    EXPECT_EQ(bar.Save(root), 1);
    IXMLDOMElementPtr info;
    IXMLDOMNode* found = nullptr;
    root->selectSingleNode(_bstr_t(L"CAdUiDockControlBar/DockInfo"), &found);
    info = found;
    found->Release();
    info->setAttribute(_bstr_t(L"MRUDockID"), _variant_t(L"16777216"));
    IXMLDOMNode* element = nullptr;
    root->selectSingleNode(_bstr_t(L"CAdUiDockControlBar"), &element);
    IXMLDOMElementPtr barElement(element);
    element->Release();
    barElement->setAttribute(_bstr_t(L"Orientation"), _variant_t(L"16384"));
    EXPECT_EQ(bar.Load(root), 1);
    EXPECT_TRUE(bar.isVisible());
    ASSERT_TRUE(bar.IsDocked());
    EXPECT_EQ(bar.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_RIGHT));
    CRect place;
    bar.GetWindowRect(&place);
    EXPECT_EQ(place.Width(), 234) << "the docked place's";
    barElement->setAttribute(_bstr_t(L"Orientation"), _variant_t(L"1"));
    EXPECT_EQ(bar.Load(root), 1);
    EXPECT_FALSE(bar.IsDocked());
    ASSERT_NE(bar.GetParentMiniFrame(), nullptr);
    bar.GetParentMiniFrame()->GetWindowRect(&place);
    expectRect(place, 310, 205, 550, 435);
}

TEST_F(DockControlBarXml, WithoutANodeNothingIsKept) {
    EXPECT_EQ(bar.Save(nullptr), 0);
    EXPECT_EQ(bar.Load(nullptr), 0);
    EXPECT_EQ(bar.Load(root), 0) << "an empty node";
    EXPECT_EQ(bar.GetDockStyle(), 0x1000u);
}

}  // namespace
