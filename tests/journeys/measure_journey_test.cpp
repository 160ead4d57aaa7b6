// A draughtsman measures in the drawing: the dialog goes away, picks are made, the dialog comes back.
#include <cstdlib>

#include "dropped_on.h"
#include "journey_fixture.h"

using namespace journey;

namespace {

constexpr int kStatusBar = 0xE801;
constexpr double kRounding = 0.02;  // of two numbers with two places each

class Measure : public Journey {
protected:
    Measure() : Journey(L"bracket.dxf") {}

    HWND openMeasure() { return dialog = openByKey('M'); }
    std::wstring shown(int id) const { return textOf(item(dialog, id)); }
    double number(int id) const { return std::wcstod(shown(id).c_str(), nullptr); }
    std::wstring prompt() const { return textOf(::GetDlgItem(drafter->frame(), kStatusBar)); }
    bool isAway() const {
        return waitUntil(
            [this] { return !::IsWindowVisible(dialog) && ::IsWindowEnabled(drafter->frame()); });
    }
    bool isBack() const {
        return waitUntil(
            [this] { return ::IsWindowVisible(dialog) && !::IsWindowEnabled(drafter->frame()); });
    }
    /// Clicks in the view once the prompt is another one than `before`; answers it.
    std::wstring clickAfter(const std::wstring& before, POINT at) {
        EXPECT_TRUE(waitUntil([&] { return prompt() != before; })) << "the prompt tells the next place";
        const std::wstring now = prompt();
        drafter->click(drafter->view(), at);
        return now;
    }
    HWND dialog = nullptr;
};

TEST_F(Measure, ByMouseADistanceAnAngleAndObjects) {
    ASSERT_NE(openMeasure(), nullptr);
    picture("journey-measure-empty");
    const std::wstring idle = prompt();
    drafter->click(item(dialog, IDC_PICK_DISTANCE));
    ASSERT_TRUE(isAway());
    const std::wstring first = clickAfter(idle, {100, 100});
    drafter->hover(drafter->view(), {180, 140});
    picture("journey-measure-band");
    clickAfter(first, {200, 100});
    ASSERT_TRUE(isBack());
    const double once = number(IDC_MEASURED_DISTANCE);
    EXPECT_GT(once, 0);
    EXPECT_NEAR(number(IDC_MEASURED_DX), once, kRounding);
    EXPECT_DOUBLE_EQ(number(IDC_MEASURED_DY), 0);
    EXPECT_DOUBLE_EQ(number(IDC_MEASURED_DIRECTION), 0);

    drafter->click(item(dialog, IDC_PICK_DISTANCE));
    ASSERT_TRUE(isAway());
    clickAfter(clickAfter(idle, {100, 100}), {100, 300});
    ASSERT_TRUE(isBack());
    EXPECT_NEAR(number(IDC_MEASURED_DISTANCE), 2 * once, kRounding);
    EXPECT_NEAR(number(IDC_MEASURED_DY), -2 * once, kRounding) << "down on the screen";
    EXPECT_DOUBLE_EQ(number(IDC_MEASURED_DIRECTION), 270);

    drafter->click(item(dialog, IDC_PICK_ANGLE));
    ASSERT_TRUE(isAway());
    clickAfter(clickAfter(clickAfter(idle, {100, 100}), {200, 100}), {100, 200});
    ASSERT_TRUE(isBack());
    EXPECT_DOUBLE_EQ(number(IDC_MEASURED_ANGLE), 90);

    drafter->click(item(dialog, IDC_SELECT_OBJECTS));
    ASSERT_TRUE(isAway());
    drafter->key('A', true);
    drafter->key(VK_RETURN);
    ASSERT_TRUE(isBack());
    EXPECT_GT(number(IDC_MEASURED_COUNT), 1);
    EXPECT_GT(number(IDC_MEASURED_LENGTH), 0);
    picture("journey-measure");
    drafter->click(item(dialog, IDCANCEL));
    EXPECT_TRUE(drafter->waitUntilGone(dialog));
    EXPECT_TRUE(waitUntil([this] { return ::IsWindowEnabled(drafter->frame()) != FALSE; }));
    EXPECT_EQ(textOf(drafter->frame()).find(L'*'), std::wstring::npos) << "measuring changes nothing";
}

TEST_F(Measure, ByKeysADistanceAndObjects) {
    ASSERT_NE(openMeasure(), nullptr);
    EXPECT_EQ(focusOf(dialog), item(dialog, IDC_PICK_DISTANCE));
    drafter->hover(drafter->view(), {150, 150});
    drafter->key(VK_SPACE);
    ASSERT_TRUE(isAway());
    drafter->key(VK_RIGHT);
    drafter->key(VK_RETURN);
    for (int step = 0; step < 4; ++step) drafter->key(VK_RIGHT);
    drafter->key(VK_RETURN);
    ASSERT_TRUE(isBack());
    EXPECT_GT(number(IDC_MEASURED_DISTANCE), 0);
    EXPECT_DOUBLE_EQ(number(IDC_MEASURED_DY), 0);
    drafter->key('S', false, true);
    ASSERT_TRUE(isAway());
    drafter->key('A', true);
    drafter->key(VK_RETURN);
    ASSERT_TRUE(isBack());
    EXPECT_GT(number(IDC_MEASURED_COUNT), 1);
    cancel(dialog);
}

TEST_F(Measure, EscapeGivesUpAndLeavesWhatWasShown) {
    ASSERT_NE(openMeasure(), nullptr);
    for (const int button : {IDC_PICK_DISTANCE, IDC_PICK_ANGLE, IDC_SELECT_OBJECTS}) {
        drafter->click(item(dialog, button));
        ASSERT_TRUE(isAway()) << button;
        if (button != IDC_SELECT_OBJECTS) drafter->click(drafter->view(), {100, 100});
        drafter->key(VK_ESCAPE);
        ASSERT_TRUE(isBack()) << button;
    }
    for (const int id : {IDC_MEASURED_DISTANCE, IDC_MEASURED_ANGLE, IDC_MEASURED_COUNT, IDC_MEASURED_LENGTH})
        EXPECT_EQ(shown(id), L"") << id;
    cancel(dialog);
}

TEST_F(Measure, WhileItPicksTheFrameTakesNoOtherCommandAndClosingGivesUp) {
    ASSERT_NE(openMeasure(), nullptr);
    drafter->click(item(dialog, IDC_PICK_DISTANCE));
    ASSERT_TRUE(isAway());
    drafter->key('M', true);
    drafter->key('1', true);
    drafter->click(drafter->view(), {100, 100});
    EXPECT_FALSE(::IsWindowVisible(dialog));
    ::PostMessageW(drafter->frame(), WM_CLOSE, 0, 0);
    ASSERT_TRUE(isBack());
    EXPECT_TRUE(drafter->isRunning());
    cancel(dialog);
}

TEST_F(Measure, ByKeysNoOtherDrawingComesWhileItPicksAndClosingEndsThePickFirst) {
    ASSERT_NE(openMeasure(), nullptr);
    drafter->key(VK_SPACE);
    ASSERT_TRUE(isAway());
    drafter->key('N', true);
    drafter->key('O', true);
    ASSERT_TRUE(DropOn(drafter->frame(), {scratchCopy(L"site_plan.dxf")}));
    drafter->key(VK_RETURN);
    drafter->key(VK_F4, false, true);
    ASSERT_TRUE(isBack());
    EXPECT_EQ(textOf(drafter->frame()).rfind(L"bracket.dxf - ", 0), 0u);
    EXPECT_EQ(shown(IDC_MEASURED_DISTANCE), L"") << "of one place there is none";
    cancel(dialog);
    drafter->activate(drafter->frame());
    drafter->key(VK_F4, false, true);
    EXPECT_TRUE(waitUntil([this] { return !drafter->isRunning(); }));
}

}  // namespace
