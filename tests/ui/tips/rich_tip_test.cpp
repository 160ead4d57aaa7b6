// The tip that a host places anywhere: when it waits, when it shows, how large it is and what it looks like.
#include <ktui/tips/kh_tip_ctrl.h>

#include <afxglobals.h>
#include <kh_color_services.h>
#include <ktui/host/appearance.h>

#include "canvas.h"
#include "picture.h"
#include "scheme_color.h"
#include "tip_fixture.h"

using namespace ui_test;

namespace {

class OpenTip : public CKhTipCtrl {
public:
    using CKhTipCtrl::m_keyColor;
    using CKhTipCtrl::m_lineHeight;
    using CKhTipCtrl::m_multiLine;
    using CKhTipCtrl::m_timer;
};

class RichTip : public ::testing::Test {
protected:
    RichTip() { EXPECT_TRUE(tip.Create(&parent)); }
    CRect Place() {
        CRect rect;
        tip.GetWindowRect(&rect);
        return rect;
    }
    /// Lets the delay be over.
    void EndDelay() { tip.SendMessage(WM_TIMER, 1984); }

    TestHost host;
    ParentWindow parent;
    OpenTip tip;
    RecordedTimers timers;
    const OdArray<OdString> lines{OdString(L"Line"), OdString(L"Layer: Walls and doors")};
};

}  // namespace

TEST_F(RichTip, IsALayeredPopupWithAKeyColour) {
    wchar_t name[40] = {};
    ::GetClassNameW(tip.m_hWnd, name, 40);
    EXPECT_STREQ(name, L"Quorvex Velmora tip");
    EXPECT_EQ(tip.GetStyle() & 0x80000004, 0x80000004u);
    EXPECT_EQ(tip.GetExStyle() & (0x10004u | WS_EX_LAYERED), 0x10004u | WS_EX_LAYERED);
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_EQ(tip.m_keyColor, 0x00FF00u);
    EXPECT_EQ(OpenTip().m_keyColor, ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(OpenTip().m_lineHeight, 10);
    COLORREF key = 0;
    BYTE alpha = 0;
    DWORD flags = 0;
    ASSERT_TRUE(::GetLayeredWindowAttributes(tip.m_hWnd, &key, &alpha, &flags));
    EXPECT_EQ(key, 0x00FF00u);
    EXPECT_EQ(alpha, 255);
    EXPECT_EQ(flags, 3u);
    OpenTip second;
    EXPECT_TRUE(second.Create(&parent));  // the class is there already
}

TEST_F(RichTip, LinesWaitOffTheScreenForHalfASecond) {
    tip.Activate(CPoint(200, 150), lines);
    EXPECT_EQ(timerCalls, std::vector<std::string>{"set 1984 500"});
    EXPECT_EQ(tip.m_timer, 1984);
    EXPECT_TRUE(tip.IsWindowVisible());
    EXPECT_EQ(Place(), CRect(-500, -500, -500, -500));
    EndDelay();
    EXPECT_EQ(timerCalls.back(), "kill 1984");
    EXPECT_EQ(tip.m_timer, 0);
    EXPECT_EQ(Place().TopLeft(), CPoint(200, 150));
    EXPECT_FALSE(Place().IsRectEmpty());
}

TEST_F(RichTip, OtherTimersShowNothing) {
    tip.Activate(CPoint(200, 150), lines);
    tip.SendMessage(WM_TIMER, 1);
    EXPECT_EQ(Place().left, -500);
}

TEST_F(RichTip, SameLinesAtTheSamePointRestartNothing) {
    tip.Activate(CPoint(200, 150), lines);
    EndDelay();
    timerCalls.clear();
    tip.Activate(CPoint(200, 150), {OdString(L"others")});
    EXPECT_TRUE(timerCalls.empty());
    tip.Activate(CPoint(201, 150), lines);
    EXPECT_EQ(timerCalls, std::vector<std::string>{"set 1984 500"});
}

TEST_F(RichTip, SameTextAtTheSamePointRestartsNothing) {
    tip.Activate(CPoint(200, 150), L"text", true);
    EndDelay();
    timerCalls.clear();
    tip.Activate(CPoint(200, 150), L"text", true);
    EXPECT_TRUE(timerCalls.empty());
    tip.Activate(CPoint(200, 150), L"another", true);
    EXPECT_EQ(timerCalls, std::vector<std::string>{"set 1984 500"});
}

TEST_F(RichTip, SameTextAtAnotherPointMovesTheTip) {
    tip.Activate(CPoint(200, 150), L"text", false);
    tip.Activate(CPoint(240, 170), L"text", false);
    EXPECT_EQ(Place().TopLeft(), CPoint(240, 170));
}

TEST_F(RichTip, AtOnceTakesNoTimerAndEndsARunningOne) {
    tip.Activate(CPoint(200, 150), L"text", false);
    EXPECT_TRUE(timerCalls.empty());
    EXPECT_EQ(Place().TopLeft(), CPoint(200, 150));
    EXPECT_TRUE(tip.IsWindowVisible());
    tip.Activate(CPoint(210, 150), lines);
    timerCalls.clear();
    tip.Activate(CPoint(220, 150), L"text", false);
    EXPECT_EQ(timerCalls, std::vector<std::string>{"kill 1984"});
    EXPECT_EQ(tip.m_timer, 0);
    EXPECT_EQ(tip.m_multiLine, 0);
}

TEST_F(RichTip, DeactivatingHidesATipThatShowsAndOneThatWaits) {
    tip.Activate(CPoint(200, 150), L"text", false);
    tip.Deactivate();
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_TRUE(timerCalls.empty());
    tip.Activate(CPoint(200, 150), lines);
    tip.Deactivate();
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_EQ(timerCalls.back(), "kill 1984");
    EXPECT_EQ(tip.m_timer, 0);
}

TEST_F(RichTip, TextsAreTwelvePixelsLargerEachWayAsLinesAndSixAsOneText) {
    tip.Activate(CPoint(200, 150), L"Layer", false);
    const CRect single = Place();
    tip.Activate(CPoint(200, 151), {OdString(L"Layer")});
    EndDelay();
    const CRect one = Place();
    // A line adds 6 to its own size, a block of lines 6 more, as the window does for every text.
    EXPECT_EQ(one.Width(), single.Width() + 12);
    EXPECT_EQ(one.Height(), single.Height() + 12);
    EXPECT_EQ(tip.m_lineHeight, single.Height());
    tip.Activate(CPoint(200, 152), {OdString(L"Layer"), OdString(L"x"), OdString()});
    EndDelay();
    EXPECT_EQ(Place().Width(), one.Width());
    EXPECT_EQ(Place().Height(), one.Height() + 2 * tip.m_lineHeight);
}

TEST_F(RichTip, WithoutLinesTheHeightIsTwelve) {
    tip.Activate(CPoint(200, 150), OdArray<OdString>());
    EndDelay();
    EXPECT_EQ(Place().Height(), 12);
    EXPECT_EQ(Place().Width(), 12);
}

TEST_F(RichTip, LinesAreBlackOnWhite) {
    tip.Activate(CPoint(100, 100), lines);
    EndDelay();
    pump();
    const Picture picture(tip);
    EXPECT_EQ(picture.at(0, 0), RGB(0, 0, 0));
    EXPECT_EQ(picture.at(picture.width() - 1, picture.height() - 1), RGB(0, 0, 0));
    EXPECT_EQ(picture.at(1, 1), RGB(255, 255, 255));
    // No stroke before the fifth pixel, and some behind it.
    int first = picture.width();
    for (int y = 1; y < picture.height() - 1; ++y)
        for (int x = 1; x < picture.width() - 1; ++x)
            if (picture.at(x, y) == RGB(0, 0, 0)) first = std::min(first, x);
    EXPECT_GE(first, 5);
    EXPECT_LE(first, 8);
}

TEST_F(RichTip, ATextHasTheColoursOfTheHostsScheme) {
    host.roleColors = {{8, RGB(200, 0, 0)}, {9, RGB(0, 0, 200)}, {10, RGB(250, 250, 10)}};
    tip.Activate(CPoint(100, 100), L"Layer", false);
    pump();
    const Picture picture(tip);
    EXPECT_EQ(picture.at(0, 0), RGB(0, 0, 200));
    EXPECT_EQ(picture.at(1, 1), RGB(250, 250, 10));
    EXPECT_GT(picture.count(RGB(200, 0, 0)), 0);
}

TEST_F(RichTip, IsPaintedBeforeTheCallReturns) {
    tip.Activate(CPoint(100, 100), L"Layer", false);
    EXPECT_FALSE(::GetUpdateRect(tip.m_hWnd, nullptr, FALSE));
    tip.Activate(CPoint(100, 130), lines);
    EndDelay();
    EXPECT_FALSE(::GetUpdateRect(tip.m_hWnd, nullptr, FALSE));
}

TEST_F(RichTip, LeavesItsBackgroundToItsPainting) {
    EXPECT_EQ(tip.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(::GetDC(tip.m_hWnd))), 1);
}

namespace {

/// Whether the picture is a frame of `ink` around `paper` with `words` from (`inset`, `inset`) on, line below
/// line.
void ExpectDrawn(const Picture& picture, const std::vector<CString>& words, int inset, int lineHeight,
                 COLORREF ink, COLORREF text, COLORREF paper) {
    Canvas canvas(picture.width(), picture.height(), ink);
    canvas.dc.FillSolidRect(1, 1, picture.width() - 2, picture.height() - 2, paper);
    CFont* const former = canvas.dc.SelectObject(&afxGlobalData.fontTooltip);
    canvas.dc.SetBkMode(TRANSPARENT);
    canvas.dc.SetTextColor(text);
    int top = inset;
    for (const CString& line : words) {
        canvas.dc.TextOut(inset, top, line);
        top += lineHeight;
    }
    canvas.dc.SelectObject(former);
    int differing = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) differing += canvas.at(x, y) != picture.at(x, y);
    EXPECT_EQ(differing, 0);
}

}  // namespace

TEST_F(RichTip, IsPaintedAnewWhenItsSizeChanges) {
    EXPECT_EQ(::GetClassLongPtrW(tip.m_hWnd, GCL_STYLE), static_cast<ULONG_PTR>(CS_VREDRAW | CS_HREDRAW));
}

TEST_F(RichTip, CannotBeMadeForAWindowThatIsNone) {
    CWnd nowhere;
    nowhere.m_hWnd = reinterpret_cast<HWND>(static_cast<ULONG_PTR>(0x12));
    OpenTip homeless;
    EXPECT_FALSE(homeless.Create(&nowhere));
    EXPECT_EQ(homeless.m_hWnd, nullptr);
    nowhere.m_hWnd = nullptr;
}

TEST_F(RichTip, LinesBeginFivePixelsInsideEachWay) {
    tip.Activate(CPoint(100, 100), lines);
    EndDelay();
    pump();
    ExpectDrawn(Picture(tip), {L"Line", L"Layer: Walls and doors"}, 5, tip.m_lineHeight, RGB(0, 0, 0),
                RGB(0, 0, 0), RGB(255, 255, 255));
}

TEST_F(RichTip, LinesHaveTheSystemsColoursForAHostThatFollowsIt) {
    constexpr COLORREF kPaper = RGB(32, 34, 40), kInk = RGB(240, 236, 220);
    const SchemeColor paper(COLOR_INFOBK, kPaper), ink(COLOR_INFOTEXT, kInk);
    KtUiFollowSystemAppearance(TRUE);
    tip.Activate(CPoint(100, 100), lines);
    EndDelay();
    pump();
    const Picture picture(tip);
    KtUiFollowSystemAppearance(FALSE);
    ExpectDrawn(picture, {L"Line", L"Layer: Walls and doors"}, 5, tip.m_lineHeight, kInk, kInk, kPaper);
}

TEST_F(RichTip, ATextIsBlackOnBlackWithoutAScheme) {
    host.hasColorServices = false;
    tip.Activate(CPoint(100, 100), L"Layer", false);
    pump();
    const Picture picture(tip);
    EXPECT_EQ(picture.count(RGB(0, 0, 0)), picture.width() * picture.height());
}

TEST_F(RichTip, ATextComesBackAfterLinesAtTheSamePoint) {
    tip.Activate(CPoint(200, 150), L"Line", false);
    const CRect asText = Place();
    tip.Activate(CPoint(200, 150), lines);
    EndDelay();
    ASSERT_NE(Place(), asText);
    tip.Activate(CPoint(200, 150), L"Line", false);
    EXPECT_EQ(Place(), asText);
}
