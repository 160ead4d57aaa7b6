// The strip as a window: its tabs, where they lie, what the mouse does, and who deletes what.
#include "slot_of.h"
#include "strip_fixture.h"

namespace {

using namespace docking_test;
using ui_test::slotOf;

struct ToolTabCtrl : StripTest {};

TEST_F(ToolTabCtrl, ItsOperationsStandInOrder) {
    struct Slots : CXToolTabCtrl {
        static std::vector<long long> all() {
            return {
                slotOf(static_cast<int (CXToolTabCtrl::*)(DWORD, const RECT&, CWnd*, UINT)>(&Slots::Create)),
                slotOf(&Slots::HitTest),
                slotOf(&Slots::Recalc),
                slotOf(&Slots::DrawTab),
                slotOf(&Slots::DrawScrollArea),
                slotOf(&Slots::DrawBaseLine),
                slotOf(&Slots::SetActiveTab),
                slotOf(&Slots::MeasureTabs)};
        }
    };
    const std::vector<long long> slots = Slots::all();
    for (std::size_t i = 1; i < slots.size(); ++i)
        EXPECT_EQ(slots[i], slots[0] + static_cast<long long>(i)) << i;
}

TEST_F(ToolTabCtrl, StartsWithTheAgreedSizes) {
    OpenStrip strip;
    EXPECT_EQ(strip.m_style, 29u);
    EXPECT_EQ(strip.m_nextToolId, 0);
    EXPECT_EQ(strip.m_paletteSet, nullptr);
    EXPECT_EQ(strip.m_scrollWidth, 16);
    EXPECT_EQ(strip.m_minTabWidth, 60);
    EXPECT_EQ(strip.m_maxTabWidth, 120);
    EXPECT_EQ(strip.m_activeTab, 0);
    EXPECT_EQ(strip.m_firstVisible, 0);
    EXPECT_EQ(strip.m_marginY, 2);
    EXPECT_EQ(strip.m_marginX, 6);
    EXPECT_TRUE(strip.m_scrollRect.IsRectNull());
    EXPECT_EQ(strip.GetTabCount(), 0);
}

TEST_F(ToolTabCtrl, StartsWithTheSystemsColorsAndFont) {
    struct Plain : CXToolTabCtrl {
        using CXToolTabCtrl::m_background;
        using CXToolTabCtrl::m_darkColor;
        using CXToolTabCtrl::m_font;
        using CXToolTabCtrl::m_shadowColor;
    } strip;
    const COLORREF face = ::GetSysColor(COLOR_3DFACE);
    const auto lighter = [](int channel) { return (channel * 3 + 240) / 4 + 1; };
    EXPECT_EQ(strip.m_background,
              RGB(lighter(GetRValue(face)), lighter(GetGValue(face)), lighter(GetBValue(face))));
    EXPECT_EQ(strip.m_shadowColor, ::GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(strip.m_darkColor, ::GetSysColor(COLOR_3DDKSHADOW));
    LOGFONTW own = {}, system = {};
    strip.m_font.GetLogFont(&own);
    ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof system, &system);
    EXPECT_STREQ(own.lfFaceName, system.lfFaceName);
    EXPECT_EQ(own.lfHeight, system.lfHeight);
    EXPECT_EQ(own.lfWeight, system.lfWeight);
}

TEST_F(ToolTabCtrl, KeepsTheLowEightBitsOfItsStyleAndIsAChildWithoutTitle) {
    OpenStrip strip;
    make(strip, 0x1000001E, 18, 200);
    EXPECT_EQ(strip.m_style, 0x1Eu);
    EXPECT_TRUE(strip.GetStyle() & WS_CHILD);
    EXPECT_TRUE(strip.GetStyle() & WS_VISIBLE);
    EXPECT_EQ(strip.GetDlgCtrlID(), 111);
    EXPECT_EQ(strip.GetParent(), &parent);
    EXPECT_EQ(ui_test::text_of(strip), L"");
    EXPECT_TRUE(strip.IsTurned());
}

TEST_F(ToolTabCtrl, LyingStripsAreNotTurned) {
    OpenStrip strip;
    make(strip, kFlat, 200, 18);
    EXPECT_FALSE(strip.IsTurned());
}

TEST_F(ToolTabCtrl, RefusesATabWithoutText) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    EXPECT_EQ(strip.InsertTab(0, L"", L"tip", nullptr), -1);
    EXPECT_EQ(strip.InsertTab(0, nullptr, L"tip", nullptr), -1);
    EXPECT_EQ(strip.GetTabCount(), 0);
    EXPECT_EQ(strip.m_nextToolId, 0);
}

TEST_F(ToolTabCtrl, InsertsATabBeforeTheOneAtItsIndex) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    CWnd first, second;
    EXPECT_EQ(strip.InsertTab(0, L"One", L"One tip", &first), 0);
    EXPECT_EQ(strip.InsertTab(0, L"Two", L"Two tip", &second), 0);
    ASSERT_EQ(strip.GetTabCount(), 2);
    EXPECT_EQ(strip.GetTab(0)->m_text, L"Two");
    EXPECT_EQ(strip.GetTab(0)->m_tip, L"Two tip");
    EXPECT_EQ(strip.GetTab(0)->m_window, &second);
    EXPECT_EQ(strip.GetTab(1)->m_window, &first);
    EXPECT_EQ(strip.m_lastVisible, 1);
    EXPECT_EQ(strip.GetTab(1)->m_toolId, 1) << "ids count up from 1";
    EXPECT_EQ(strip.GetTab(0)->m_toolId, 2);
    EXPECT_EQ(strip.m_tip.GetToolCount(), 2);
    CString tip;
    strip.m_tip.GetText(tip, &strip, 2);
    EXPECT_EQ(tip, L"Two tip");
    strip.RemoveTab(0), strip.RemoveTab(0);
}

TEST_F(ToolTabCtrl, HasNoTipsWithoutTheirStyle) {
    OpenStrip strip;
    make(strip, WS_VISIBLE | 0x06, 18, 400);
    strip.fill(2);
    EXPECT_EQ(strip.m_tip.m_hWnd, nullptr);
    EXPECT_EQ(strip.m_nextToolId, 0);
    EXPECT_EQ(strip.GetTab(0)->m_tip, L"");
    EXPECT_EQ(strip.RemoveTab(0), 1);
}

TEST_F(ToolTabCtrl, LaysTabsOutFromTheFarEnd) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    strip.fill(3);
    const int height = textHeight() + 4;
    EXPECT_EQ(strip.m_tabHeight, height);
    expectRect(strip.rectOf(0), 97, 0, 198, height);
    expectRect(strip.rectOf(1), 198, 0, 299, height);
    expectRect(strip.rectOf(2), 299, 0, 400, height);
    EXPECT_TRUE(strip.m_scrollRect.IsRectNull());
}

TEST_F(ToolTabCtrl, ALyingStripIsAsLongAsItIsWide) {
    OpenStrip strip;
    make(strip, kFlat, 400, 18);
    strip.fill(2);
    expectRect(strip.rectOf(0), 160, 0, 280, textHeight() + 4);
}

TEST_F(ToolTabCtrl, MeasuresTabsByTheirTextsAtLeastTheMinimum) {
    OpenStrip strip;
    make(strip, kFlat, 400, 18);
    strip.fill(1);
    strip.InsertTab(1, L"A text that is quite a bit longer", L"", nullptr);
    CClientDC dc(&strip);
    CFont* former = dc.SelectObject(&strip.m_font);
    const int wide = static_cast<int>(dc.GetTextExtent(strip.GetTab(1)->m_text).cx);
    strip.MeasureTabs(&dc, 0, 1);
    dc.SelectObject(former);
    ASSERT_GT(wide, 60);
    expectRect(strip.rectOf(0), 0, 0, 60, strip.m_tabHeight);
    expectRect(strip.rectOf(1), 60, 0, 60 + 12 + wide, strip.m_tabHeight);
}

TEST_F(ToolTabCtrl, WithoutTheFittingStyleNothingIsPlaced) {
    OpenStrip strip;
    make(strip, WS_VISIBLE | 0x02, 18, 400);
    strip.fill(2);
    EXPECT_TRUE(strip.rectOf(0).IsRectNull());
    EXPECT_NE(strip.GetTab(0)->m_region.m_hObject, nullptr) << "but every tab has its outline";
}

TEST_F(ToolTabCtrl, OfSevenTabsThreeFitTheActiveOneAmongThem) {
    OpenStrip strip;
    make(strip, kRight, 18, 250);  // 184 available: three of 60
    strip.fill(7);
    for (int active = 0; active < 7; ++active) {
        strip.SetActiveTab(active);
        strip.Recalc();
        EXPECT_EQ(strip.m_lastVisible - strip.m_firstVisible + 1, 3) << active;
        EXPECT_LE(strip.m_firstVisible, active);
        EXPECT_GE(strip.m_lastVisible, active);
        expectRect(strip.m_scrollRect, 51, 0, 67, strip.m_tabHeight);
        expectRect(strip.rectOf(strip.m_lastVisible), 189, 0, 250, strip.m_tabHeight);
    }
}

TEST_F(ToolTabCtrl, TheArrowsGoWhenEveryTabFitsAgain) {
    OpenStrip strip;
    make(strip, kRight, 18, 250);
    strip.fill(4);
    EXPECT_FALSE(strip.m_scrollRect.IsRectEmpty());
    strip.MoveWindow(0, 0, 18, 380);
    EXPECT_EQ(strip.m_firstVisible, 0);
    EXPECT_EQ(strip.m_lastVisible, 3);
    EXPECT_TRUE(strip.m_scrollRect.IsRectEmpty());
}

TEST_F(ToolTabCtrl, AnEnormousOrEmptyClientLeavesTheTabsAsTheyWere) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    strip.fill(2);
    const CRect before = strip.rectOf(0);
    for (const CSize size : {CSize(18, 4097), CSize(4097, 18), CSize(0, 0), CSize(18, 0)}) {
        strip.MoveWindow(0, 0, size.cx, size.cy);
        EXPECT_TRUE(strip.rectOf(0) == before) << size.cx << ' ' << size.cy;
    }
    strip.MoveWindow(0, 0, 18, 4096);
    expectRect(strip.rectOf(1), 3976, 0, 4096, strip.m_tabHeight);
}

TEST_F(ToolTabCtrl, BeforeItsWindowIsMadeItOnlyKeepsTabs) {
    OpenStrip strip;
    strip.fill(2);
    strip.Recalc();
    EXPECT_TRUE(strip.rectOf(0).IsRectNull());
    EXPECT_EQ(strip.m_lastVisible, 1);
}

TEST_F(ToolTabCtrl, OutlinesFollowTheRectanglesInPlacementTwo) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    strip.fill(2);
    const XTTabItem& tab = *strip.GetTab(1);  // from 280 to 400
    const LONG bottom = strip.m_tabHeight;
    const POINT expected[6] = {{280, 0},      {280, bottom - 3}, {283, bottom},
                               {396, bottom}, {399, bottom - 3}, {399, 0}};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(tab.m_points[i].x, expected[i].x) << i;
        EXPECT_EQ(tab.m_points[i].y, expected[i].y) << i;
    }
    EXPECT_TRUE(tab.m_region.PtInRegion(280, 1));
    EXPECT_FALSE(tab.m_region.PtInRegion(280, static_cast<int>(bottom) - 1)) << "a corner is cut off";
}

TEST_F(ToolTabCtrl, FindsWhatAPointMeetsInTurnedCoordinates) {
    OpenStrip strip;
    make(strip, kRight, 18, 250);
    strip.fill(7);
    EXPECT_EQ(strip.hit(5, 10), strip.m_lastVisible) << "the highest index stands at the top";
    EXPECT_EQ(strip.m_hitAnswer, 1);
    EXPECT_EQ(strip.hit(5, 250 - 70), strip.m_firstVisible);
    EXPECT_EQ(strip.hit(5, 250 - 60), -1) << "on the arrows";
    EXPECT_EQ(strip.m_hitAnswer, 2);
    EXPECT_EQ(strip.hit(5, 250 - 40), 77) << "left alone";
    EXPECT_EQ(strip.m_hitAnswer, 0);
}

TEST_F(ToolTabCtrl, FindsWhatAPointMeetsInALyingStrip) {
    OpenStrip strip;
    make(strip, kFlat, 400, 18);
    strip.fill(2);
    EXPECT_EQ(strip.hit(170, 8), 0);
    EXPECT_EQ(strip.hit(390, 8), 1);
    EXPECT_EQ(strip.hit(100, 8), 77);
}

TEST_F(ToolTabCtrl, RemovingATabLeavesItsWindowAlone) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    CWnd window;
    ASSERT_TRUE(window.Create(nullptr, L"page", WS_CHILD, CRect(0, 0, 5, 5), &parent, 5));
    strip.InsertTab(0, L"Page", L"", &window);
    EXPECT_EQ(strip.RemoveTab(-1), 0);
    EXPECT_EQ(strip.RemoveTab(1), 0);
    EXPECT_EQ(strip.GetTabCount(), 1);
    EXPECT_EQ(strip.RemoveTab(0), 1);
    EXPECT_EQ(strip.GetTabCount(), 0);
    EXPECT_EQ(strip.m_tip.GetToolCount(), 0);
    EXPECT_TRUE(::IsWindow(window));
    EXPECT_EQ(strip.RemoveTab(0), 0);
}

TEST_F(ToolTabCtrl, RemovingTheActiveTabMakesTheOneBeforeItActive) {
    OpenStrip strip;
    make(strip, kRight, 18, 600);
    strip.fill(4);
    strip.SetActiveTab(2);
    strip.RemoveTab(2);
    EXPECT_EQ(strip.m_activeTab, 1);
    strip.RemoveTab(0);
    EXPECT_EQ(strip.m_activeTab, 1) << "kept: an earlier tab's going doesn't move it";
    strip.SetActiveTab(0);
    strip.RemoveTab(0);
    EXPECT_EQ(strip.m_activeTab, 0);
    EXPECT_EQ(strip.m_lastVisible, 0);
    expectRect(strip.rectOf(0), 480, 0, 600, strip.m_tabHeight);
}

TEST_F(ToolTabCtrl, RenamesATab) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    strip.fill(2);
    struct Counting : OpenStrip {
        int laidOut = 0;
        void Recalc() override { ++laidOut, OpenStrip::Recalc(); }
    } counting;
    make(counting, kRight, 18, 400);
    counting.fill(2);
    counting.laidOut = 0;
    EXPECT_EQ(counting.SetTabText(2, L"x"), 0);
    EXPECT_EQ(counting.SetTabText(-1, L"x"), 0);
    EXPECT_EQ(counting.SetTabText(1, L"Tab 1"), 1);
    EXPECT_EQ(counting.laidOut, 0) << "the text is that already";
    EXPECT_EQ(counting.SetTabText(1, L"Other"), 1);
    EXPECT_EQ(counting.GetTab(1)->m_text, L"Other");
    EXPECT_EQ(counting.laidOut, 1);
}

TEST_F(ToolTabCtrl, AClickTakesTheFocusAndChoosesTheTab) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    strip.fill(3);
    parent.SetFocus();
    strip.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 10));
    EXPECT_EQ(strip.m_activeTab, 2);
    EXPECT_EQ(::GetFocus(), strip.m_hWnd);
    strip.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 399));
    EXPECT_EQ(strip.m_activeTab, 2) << "beside the tabs";
}

TEST_F(ToolTabCtrl, AClickOnTheArrowsDoesNothing) {
    OpenStrip strip;
    make(strip, kRight, 18, 250);
    strip.fill(7);
    strip.SetActiveTab(1);
    const int first = strip.m_firstVisible, last = strip.m_lastVisible;
    strip.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 250 - 60));
    strip.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 250 - 60));
    EXPECT_EQ(strip.m_activeTab, 1);
    EXPECT_EQ(strip.m_firstVisible, first);
    EXPECT_EQ(strip.m_lastVisible, last);
}

/// Notes the request for a name edit.
class Page : public CWnd {
public:
    explicit Page(bool* gone = nullptr) : m_gone(gone) {}
    ~Page() override {
        if (m_gone) *m_gone = true;
    }
    std::vector<std::pair<WPARAM, LPARAM>> requests;
    int destroyed = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_USER + 101) requests.emplace_back(wParam, lParam);
        if (message == WM_DESTROY) ++destroyed;
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    bool* m_gone;
};

TEST_F(ToolTabCtrl, ADoubleClickAsksTheTabsWindowForANameEdit) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    Page page;
    ASSERT_TRUE(page.Create(nullptr, L"page", WS_CHILD, CRect(0, 0, 5, 5), &parent, 5));
    strip.InsertTab(0, L"Page", L"", &page);
    strip.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 399));
    EXPECT_TRUE(page.requests.empty()) << "beside the tab";
    strip.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 10));
    ASSERT_EQ(page.requests.size(), 1u);
    EXPECT_EQ(page.requests[0], std::make_pair(WPARAM(0), LPARAM(0)));
    strip.RemoveTab(0);
}

TEST_F(ToolTabCtrl, DestroysAndDeletesTheWindowsThatItStillHolds) {
    bool heldGone = false, removedGone = false;
    auto* held = new Page(&heldGone);
    Page removed(&removedGone);
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    ASSERT_TRUE(held->Create(nullptr, L"held", WS_CHILD, CRect(0, 0, 5, 5), &parent, 5));
    ASSERT_TRUE(removed.Create(nullptr, L"removed", WS_CHILD, CRect(0, 0, 5, 5), &parent, 6));
    const HWND heldWindow = held->m_hWnd;
    strip.InsertTab(0, L"Held", L"", held);
    strip.InsertTab(0, L"Removed", L"", &removed);
    strip.InsertTab(0, L"None", L"", nullptr);
    strip.RemoveTab(1);
    strip.DestroyWindow();
    EXPECT_TRUE(heldGone);
    EXPECT_FALSE(::IsWindow(heldWindow));
    EXPECT_FALSE(removedGone);
    EXPECT_TRUE(::IsWindow(removed));
    EXPECT_EQ(strip.GetTabCount(), 0);
}

/// A page that hears of its end while it is whole.
class HearingPage : public CWnd {
public:
    explicit HearingPage(int* heard) : m_heard(heard) {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        *m_heard += message == WM_DESTROY;
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    int* m_heard;
};

TEST_F(ToolTabCtrl, TheWindowsThatItHoldsHearOfTheirEnd) {
    int heard = 0;
    auto* held = new HearingPage(&heard);
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    ASSERT_TRUE(held->Create(nullptr, L"held", WS_CHILD, CRect(0, 0, 5, 5), &parent, 5));
    strip.InsertTab(0, L"Held", L"", held);
    strip.DestroyWindow();
    EXPECT_EQ(heard, 1);
}

/// A strip that measures its tabs itself.
class WideStrip : public OpenStrip {
public:
    int measured = 0;
    void MeasureTabs(CDC* dc, int first, int last) override {
        ++measured;
        OpenStrip::MeasureTabs(dc, first, last);
    }
};

TEST_F(ToolTabCtrl, AStripOfAnothersMeasuresItsTabsItself) {
    WideStrip strip;
    make(strip, kRight, 18, 400);
    strip.fill(2);
    strip.measured = 0;
    strip.Recalc();
    EXPECT_EQ(strip.measured, 1);
}

TEST_F(ToolTabCtrl, LayingTabsOutLeavesTheTipWhereItIs) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    strip.fill(1);
    strip.m_tip.SetWindowPos(nullptr, 210, 120, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    CRect before, after;
    strip.m_tip.GetWindowRect(&before);
    ASSERT_EQ(before.TopLeft(), CPoint(210, 120));
    strip.Recalc();
    strip.m_tip.GetWindowRect(&after);
    EXPECT_EQ(after, before);
}

TEST_F(ToolTabCtrl, ItsDestructorDestroysTheWindowsToo) {
    bool gone = false;
    auto* held = new Page(&gone);
    {
        OpenStrip strip;
        make(strip, kRight, 18, 400);
        ASSERT_TRUE(held->Create(nullptr, L"held", WS_CHILD, CRect(0, 0, 5, 5), &parent, 5));
        strip.InsertTab(0, L"Held", L"", held);
    }
    EXPECT_TRUE(gone);
}

TEST_F(ToolTabCtrl, TheActiveTabIsStoredAndPaintedOnlyWhenItChanges) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    strip.fill(3);
    strip.UpdateWindow();
    struct Painted : OpenStrip {
        int paints = 0, erased = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            paints += message == WM_PAINT, erased += message == WM_ERASEBKGND;
            return OpenStrip::WindowProc(message, wParam, lParam);
        }
    } painted;
    make(painted, kRight, 18, 400);
    painted.fill(3);
    painted.UpdateWindow();
    painted.paints = painted.erased = 0;
    painted.SetActiveTab(0);
    EXPECT_EQ(painted.paints, 0);
    painted.SetActiveTab(2);
    EXPECT_EQ(painted.paints, 1);
    EXPECT_EQ(painted.erased, 0);
    painted.SetBackground(kPaper);
    EXPECT_EQ(painted.paints, 1);
    painted.SetBackground(kDark);
    EXPECT_EQ(painted.paints, 2);
    EXPECT_EQ(painted.erased, 0);
    EXPECT_EQ(painted.GetBackground(), kDark);
}

CRect toolRect(OpenStrip& strip, int tab) {
    TOOLINFOW tool = {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.hwnd = strip;
    tool.uId = static_cast<UINT_PTR>(strip.GetTab(tab)->m_toolId);
    EXPECT_TRUE(strip.m_tip.SendMessage(TTM_GETTOOLINFOW, 0, reinterpret_cast<LPARAM>(&tool)));
    return tool.rect;
}

TEST_F(ToolTabCtrl, TipsLieOnTheTabsInTheWindow) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    strip.fill(2);  // from 160 to 280 and on to 400 along the strip, from below
    expectRect(toolRect(strip, 0), 0, 120, strip.m_tabHeight, 240);
    expectRect(toolRect(strip, 1), 0, 0, strip.m_tabHeight, 120);
    OpenStrip flat;
    make(flat, kFlat, 400, 18);
    flat.fill(2);
    expectRect(toolRect(flat, 0), 160, 0, 280, flat.m_tabHeight);
}

TEST_F(ToolTabCtrl, HiddenTabsHaveNoTip) {
    OpenStrip strip;
    make(strip, kRight, 18, 250);
    strip.fill(7);
    EXPECT_TRUE(toolRect(strip, strip.m_lastVisible + 1).IsRectEmpty());
    EXPECT_FALSE(toolRect(strip, strip.m_lastVisible).IsRectEmpty());
}

int relayed = 0;
WNDPROC formerTipProc = nullptr;
LRESULT CALLBACK countRelays(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    relayed += message == TTM_RELAYEVENT;
    return ::CallWindowProcW(formerTipProc, window, message, wParam, lParam);
}

TEST_F(ToolTabCtrl, ShowsItsTipsTheMovesOfTheMouse) {
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    strip.fill(1);
    formerTipProc = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(strip.m_tip, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(countRelays)));
    relayed = 0;
    MSG message = {};
    message.hwnd = strip;
    message.message = WM_MOUSEMOVE;
    strip.PreTranslateMessage(&message);
    EXPECT_EQ(relayed, 1);
    message.message = WM_LBUTTONDOWN;
    strip.PreTranslateMessage(&message);
    EXPECT_EQ(relayed, 1);
    ::SetWindowLongPtrW(strip.m_tip, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(formerTipProc));
}

std::vector<WPARAM> activations;
LRESULT CALLBACK noteActivations(int code, WPARAM wParam, LPARAM lParam) {
    const auto& call = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && call.message == TTM_ACTIVATE) activations.push_back(call.wParam);
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST_F(ToolTabCtrl, ItsTipIsActivatedAndComesToTheTopWhenTheTabsAreLaidOut) {
    activations.clear();
    const HHOOK hook = ::SetWindowsHookExW(WH_CALLWNDPROC, noteActivations, nullptr, ::GetCurrentThreadId());
    OpenStrip strip;
    make(strip, kRight, 18, 400);
    ::UnhookWindowsHookEx(hook);
    EXPECT_EQ(activations, std::vector<WPARAM>{TRUE});
    EXPECT_EQ(::GetWindow(strip.m_tip, GW_OWNER), parent.m_hWnd);
    strip.fill(1);
    CWnd above;
    ASSERT_TRUE(above.CreateEx(strip.m_tip.GetExStyle() & WS_EX_TOPMOST, L"STATIC", L"above",
                               WS_POPUP | WS_VISIBLE, CRect(0, 0, 20, 20), nullptr, 0));
    const auto isAbove = [](HWND higher, HWND lower) {
        while (lower != nullptr && lower != higher) lower = ::GetWindow(lower, GW_HWNDPREV);
        return lower == higher;
    };
    above.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    ASSERT_TRUE(isAbove(above, strip.m_tip));
    parent.SetFocus();
    strip.Recalc();
    EXPECT_TRUE(isAbove(strip.m_tip, above));
    EXPECT_EQ(::GetFocus(), parent.m_hWnd) << "it takes no focus";
}

}  // namespace
