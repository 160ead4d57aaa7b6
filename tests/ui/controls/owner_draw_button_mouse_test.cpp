// The owner-draw button and the mouse: what its holder hears, when it is pointed at, and its timer.
#include "button_fixture.h"

namespace {

using namespace controls;
using ui_test::Heard;

struct ButtonMouse : ButtonTest<> {
    ButtonMouse() { takeDirty(button); }
    bool isCaptured() const { return ::GetCapture() == button.m_hWnd; }
    /// Moves over the button, which is then pointed at.
    void enter() {
        move(button, 5, 5);
        takeDirty(button);
        button.pointedAt.clear();
        ASSERT_EQ(button.GetIsPointedAt(), -1);
    }
    std::vector<LPARAM> data() const {
        std::vector<LPARAM> all;
        for (const Heard& each : holder.heard) all.push_back(each.datum);
        return all;
    }
};

TEST_F(ButtonMouse, EachNewPlaceIsReportedWithZeroTheFirstTimeAndOneThen) {
    move(button, 5, 5);
    move(button, 5, 5);
    move(button, 6, 5);
    move(button, 6, 6);
    EXPECT_EQ(data(), (std::vector<LPARAM>{0, 1, 1}));
    for (const Heard& each : holder.heard) {
        EXPECT_EQ(each.id, kId);
        EXPECT_EQ(each.notification, kKbUiNotifyGetTipSupport);
    }
    EXPECT_EQ(button.m_lastMousePoint, CPoint(6, 6));
    EXPECT_EQ(button.m_tipState, 1);
}

TEST_F(ButtonMouse, APlaceWhereItAlreadyIsAtFirstIsNotReported) {
    move(button, 0, 0);
    EXPECT_TRUE(holder.heard.empty());
    EXPECT_EQ(button.m_tipState, 0);
    EXPECT_TRUE(isCaptured()) << "the rest goes on";
}

TEST_F(ButtonMouse, AnotherTipStateIsSentAsItIs) {
    button.m_tipState = -5;
    move(button, 5, 5);
    EXPECT_EQ(data(), (std::vector<LPARAM>{-5}));
    EXPECT_EQ(button.m_tipState, -5) << "only zero becomes one";
}

TEST_F(ButtonMouse, AReceiverOfItsOwnHearsInThePlaceOfTheParent) {
    ui_test::RecordingHolder other;
    button.SetKbUiParent(&other);
    EXPECT_EQ(button.GetKbUiParent(), &other);
    move(button, 5, 5);
    EXPECT_TRUE(holder.heard.empty());
    EXPECT_EQ(other.heard.size(), 1u);
    button.SetKbUiParent(nullptr);
    move(button, 6, 5);
    EXPECT_EQ(holder.heard.size(), 1u);
}

TEST_F(ButtonMouse, AStaticOneReportsAndDoesNothingElse) {
    button.SetIsStatic(1);
    move(button, 5, 5);
    EXPECT_EQ(holder.heard.size(), 1u);
    EXPECT_FALSE(isCaptured());
    EXPECT_EQ(button.GetIsPointedAt(), 0);
    EXPECT_FALSE(takeDirty(button));
}

TEST_F(ButtonMouse, TheFirstMoveOverItLightsAndCaptures) {
    move(button, 5, 5);
    EXPECT_EQ(button.GetIsPointedAt(), -1);
    EXPECT_TRUE(isCaptured());
    EXPECT_TRUE(takeDirty(button));
    EXPECT_TRUE(button.pointedAt.empty()) << "OnPointedAt is not called";
}

TEST_F(ButtonMouse, APressThatBeganElsewhereNeitherLightsNorCaptures) {
    move(button, 5, 5, MK_LBUTTON);
    EXPECT_EQ(button.GetIsPointedAt(), 0);
    EXPECT_FALSE(isCaptured());
    EXPECT_FALSE(takeDirty(button));
    EXPECT_EQ(holder.heard.size(), 1u) << "the report comes before";
}

TEST_F(ButtonMouse, MovesInsideChangeNothingMore) {
    enter();
    move(button, 6, 6);
    move(button, kWidth - 1, kHeight - 1);
    EXPECT_TRUE(isCaptured());
    EXPECT_EQ(button.GetIsPointedAt(), -1);
    EXPECT_FALSE(takeDirty(button));
}

TEST_F(ButtonMouse, LeavingIsSeenThroughTheCapture) {
    for (const CPoint& outside : {CPoint(-1, 5), CPoint(5, -1), CPoint(kWidth, 5), CPoint(5, kHeight)}) {
        enter();
        move(button, outside.x, outside.y);
        EXPECT_EQ(button.GetIsPointedAt(), 0);
        EXPECT_FALSE(isCaptured());
        EXPECT_TRUE(takeDirty(button));
        EXPECT_TRUE(button.pointedAt.empty());
    }
}

TEST_F(ButtonMouse, LeavingWithTheButtonDownKeepsTheCapture) {
    enter();
    move(button, -1, 5, MK_LBUTTON);
    EXPECT_EQ(button.GetIsPointedAt(), 0);
    EXPECT_TRUE(isCaptured());
    EXPECT_TRUE(takeDirty(button));
}

TEST_F(ButtonMouse, AnotherPressedButtonDoesNotKeepTheCapture) {
    enter();
    move(button, -1, 5, MK_RBUTTON);
    EXPECT_FALSE(isCaptured());
    EXPECT_EQ(button.GetIsPointedAt(), 0);
}

TEST_F(ButtonMouse, ATakenCaptureIsTakenBackByTheNextMove) {
    enter();
    holder.SetCapture();
    move(button, 6, 6);
    EXPECT_TRUE(isCaptured());
}

TEST_F(ButtonMouse, LeavingAndLosingTheFocusEndIt) {
    for (const UINT message : {UINT{WM_MOUSELEAVE}, UINT{WM_KILLFOCUS}}) {
        enter();
        EXPECT_EQ(button.SendMessage(message), 0);
        EXPECT_EQ(button.GetIsPointedAt(), 0) << message;
        EXPECT_TRUE(takeDirty(button)) << message;
        EXPECT_TRUE(button.pointedAt.empty());
        ::ReleaseCapture();
    }
}

TEST_F(ButtonMouse, LeavingEndsNothingForOneThatIsStatic) {
    for (const UINT message : {UINT{WM_MOUSELEAVE}, UINT{WM_KILLFOCUS}}) {
        button.m_buttonFlags |= 8 | 16;
        button.SendMessage(message);
        EXPECT_EQ(button.GetIsPointedAt(), -1) << message;
    }
}

TEST_F(ButtonMouse, LeavingPaintsNothingAnewForOneThatIsNotPointedAt) {
    button.SendMessage(WM_MOUSELEAVE);
    EXPECT_FALSE(takeDirty(button));
}

TEST_F(ButtonMouse, TheTimerEndsItAgainAndAgainUntilItIsStopped) {
    enter();
    button.StartTimer(10);
    EXPECT_NE(button.m_timerId, 0u);
    ASSERT_TRUE(ui_test::pump_until([&] { return button.pointedAt.size() >= 2; }));
    EXPECT_EQ(button.pointedAt[0], 0);
    EXPECT_EQ(button.GetIsPointedAt(), 0);
    EXPECT_NE(button.m_timerId, 0u);
    button.StopTimer();
    EXPECT_EQ(button.m_timerId, 0u);
    EXPECT_FALSE(::KillTimer(button.m_hWnd, 1)) << "it is gone";
}

TEST_F(ButtonMouse, AnotherTimerEndsNothing) {
    enter();
    button.SendMessage(WM_TIMER, 2);
    EXPECT_EQ(button.GetIsPointedAt(), -1);
    EXPECT_TRUE(button.pointedAt.empty());
    button.SendMessage(WM_TIMER, 1);
    EXPECT_EQ(button.GetIsPointedAt(), 0);
    EXPECT_TRUE(takeDirty(button));
}

TEST_F(ButtonMouse, TheTimerIsNumberOneAndStartingItAnewSetsItsTime) {
    button.StartTimer(USER_TIMER_MAXIMUM);
    button.StartTimer(1);
    ASSERT_TRUE(ui_test::pump_until([&] { return !button.pointedAt.empty(); }));
    EXPECT_TRUE(::KillTimer(button.m_hWnd, 1));
}

TEST_F(ButtonMouse, TheTimerEndsWithTheWindow) {
    button.StartTimer(USER_TIMER_MAXIMUM);
    button.DestroyWindow();
    EXPECT_EQ(button.m_timerId, 0u);
}

TEST_F(ButtonMouse, AClickReachesTheParent) {
    int clicks = 0;
    const ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.message == WM_COMMAND && message.wParam == MAKEWPARAM(kId, BN_CLICKED)) ++clicks;
    });
    move(button, 5, 5);
    button.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    button.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(clicks, 1);
}

}  // namespace
