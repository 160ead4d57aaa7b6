// The arithmetic of task dialogs: every length by its number, with a text font of 12 pixels (heading 19, half
// 6), letters 6 and 10 pixels wide, and base units of 8 by 16 (buttons 72 by 24).
#include <ktui/tips/messages/task_dialog_layout.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

constexpr int kLetter = 6, kHeadingLetter = 10;
constexpr int kLineHeight = 12, kHeadingLineHeight = 19;

/// Breaks after as many letters as fit, wherever words end.
class LetterMeasurer final : public TaskDialogMeasurer {
public:
    SIZE Wrapped(const CString& text, TaskDialogFont font, int width) const override {
        const bool heading = font == TaskDialogFont::kHeading;
        const int letter = heading ? kHeadingLetter : kLetter;
        const int fitting = std::max(1, width / letter), length = text.GetLength();
        const int lines = (length + fitting - 1) / fitting;
        return {std::min(length, fitting) * letter, lines * (heading ? kHeadingLineHeight : kLineHeight)};
    }
    SIZE Line(const CString& text) const override { return {text.GetLength() * kLetter, kLineHeight}; }
};

CString Letters(int count) { return CString(L'x', count); }

CTaskDialogButton Command(int id, int letters, int extended = 0) {
    return {id, Letters(letters), extended > 0 ? Letters(extended) : CString(), 0};
}

class TaskDialogLayoutTest : public ::testing::Test {
protected:
    TaskDialogLayoutTest() {
        metrics.fontHeight = kLineHeight;
        metrics.baseX = 8;
        metrics.baseY = 16;
        metrics.workWidth = 1200;
        metrics.workHeight = 900;
    }
    TaskDialogLayout At(int width) const { return LayOutTaskDialog(contents, metrics, measurer, width); }
    TaskDialogLayout Fit() const { return FitTaskDialog(contents, metrics, measurer); }

    TaskDialogContents contents;
    TaskDialogMetrics metrics;
    LetterMeasurer measurer;
};

class TaskDialogFit : public TaskDialogLayoutTest {};
class TaskDialogOrderTest : public TaskDialogLayoutTest {
protected:
    TaskDialogOrder Order(int defaultId) const {
        return OrderTaskDialogChildren(At(600), contents.linksOn(), defaultId);
    }
};

#define EXPECT_RECT(rect, l, t, r, b) \
    do {                              \
        EXPECT_EQ((rect).left, l);    \
        EXPECT_EQ((rect).top, t);     \
        EXPECT_EQ((rect).right, r);   \
        EXPECT_EQ((rect).bottom, b);  \
    } while (false)

}  // namespace

TEST_F(TaskDialogLayoutTest, LengthsFollowTheFont) {
    EXPECT_EQ(metrics.big(), 19);
    EXPECT_EQ(metrics.half(), 6);
    metrics.fontHeight = 13;
    EXPECT_EQ(metrics.big(), 21);  // 20.8
    EXPECT_EQ(metrics.half(), 6);
    EXPECT_EQ(TaskDialogHeadingHeight(-11), -18);  // -17.6
}

TEST_F(TaskDialogLayoutTest, HeadingStandsAboveTheFooter) {
    contents.heading = Letters(10);
    contents.commonButtons = 1;
    const TaskDialogLayout layout = At(350);
    EXPECT_RECT(layout.heading, 12, 12, 338, 31);
    EXPECT_TRUE(layout.body.IsRectEmpty());
    EXPECT_EQ(layout.footerTop, 12 + 19 + 6 + 12 + 6 + 12);
    ASSERT_EQ(layout.buttons.size(), 1u);
    EXPECT_EQ(layout.buttons[0].id, 1);
    EXPECT_RECT(layout.buttons[0].rect, 266, 79, 338, 103);
    EXPECT_EQ(layout.height, 79 + 25 + 6);
    EXPECT_EQ(layout.width, 350);
    EXPECT_EQ(layout.flags, 0u);
}

TEST_F(TaskDialogLayoutTest, BodyStandsBelowTheHeading) {
    contents.heading = Letters(10);
    contents.body = Letters(10);
    contents.commonButtons = 1;
    const TaskDialogLayout layout = At(350);
    EXPECT_RECT(layout.body, 12, 49, 338, 61);
    EXPECT_EQ(layout.footerTop, 61 + 6 + 6 + 12);
}

TEST_F(TaskDialogLayoutTest, BodyWithoutAHeadingKeepsOneGap) {
    contents.body = Letters(10);
    contents.commonButtons = 1;
    const TaskDialogLayout layout = At(350);
    EXPECT_RECT(layout.body, 12, 12, 338, 24);
    EXPECT_EQ(layout.footerTop, 24 + 6 + 6 + 12);
}

TEST_F(TaskDialogLayoutTest, IconMovesTextsAndLinksToTheRight) {
    contents.heading = contents.body = Letters(5);
    contents.hasIcon = true;
    contents.options = kTaskDialogLinks;
    contents.commands = {Command(101, 5)};
    const TaskDialogLayout layout = At(350);
    EXPECT_EQ(layout.textLeft, 2 * 12 + 32);
    EXPECT_EQ(layout.heading.left, 56);
    EXPECT_EQ(layout.body.left, 56);
    EXPECT_EQ(layout.buttons[0].rect.left, 56);
}

TEST_F(TaskDialogLayoutTest, TextsAreTooTallFromTheirThirdLine) {
    contents.heading = Letters(64);  // 32 to the line at 350
    contents.commonButtons = 1;
    EXPECT_EQ(At(350).flags, 0u);
    contents.heading = Letters(65);
    EXPECT_EQ(At(350).flags, kTaskDialogTooTall);
    contents.heading.Empty();
    contents.body = Letters(108);  // 54 to the line
    EXPECT_EQ(At(350).flags, 0u);
    contents.body = Letters(109);
    EXPECT_EQ(At(350).flags, kTaskDialogTooTall);
}

TEST_F(TaskDialogLayoutTest, LinksWithAGlyphStandBelowEachOther) {
    contents.options = kTaskDialogLinks;
    contents.commands = {Command(101, 10), Command(102, 10, 10)};
    const TaskDialogLayout layout = At(420);
    // 12 above, 18 below the absent body, 3 before each link.
    ASSERT_EQ(layout.buttons.size(), 2u);
    EXPECT_RECT(layout.buttons[0].rect, 12, 33, 408, 33 + 19 + 24);
    EXPECT_RECT(layout.buttons[1].rect, 12, 79, 408, 79 + 19 + 5 + 12 + 24);
    EXPECT_TRUE(layout.buttons[0].isLink);
    EXPECT_EQ(layout.buttons[1].command, 1);
    // Without a footer one more half, after the half behind the last link.
    EXPECT_EQ(layout.footerTop, -1);
    EXPECT_EQ(layout.height, 139 + 6 + 6);
}

TEST_F(TaskDialogLayoutTest, GlyphTakesFortyPixelsOfTheLinksText) {
    contents.options = kTaskDialogLinks;
    // From 12 + 40 to 420 - 6 - 12 are 350 pixels: 35 letters to the line.
    contents.commands = {Command(101, 70)};
    EXPECT_EQ(At(420).buttons[0].rect.Height(), 2 * 19 + 24);
    contents.commands = {Command(101, 71)};
    EXPECT_EQ(At(420).buttons[0].rect.Height(), 3 * 19 + 24);
    EXPECT_EQ(At(420).flags, kTaskDialogTooTall);
}

TEST_F(TaskDialogLayoutTest, LinkWithoutAGlyphHasHalfAUnitInstead) {
    contents.options = kTaskDialogPlainLinks;
    // From 12 + 6 to 402 are 384 pixels: 38 letters.
    contents.commands = {Command(101, 76)};
    EXPECT_EQ(At(420).buttons[0].rect.Height(), 2 * 19 + 24);
    contents.commands = {Command(101, 77)};
    EXPECT_EQ(At(420).buttons[0].rect.Height(), 3 * 19 + 24);
}

TEST_F(TaskDialogLayoutTest, SecondTextOfALinkIsTooTallFromItsThirdLine) {
    contents.options = kTaskDialogLinks;
    contents.commands = {Command(101, 5, 116)};  // 350 pixels: 58 letters
    EXPECT_EQ(At(420).flags, 0u);
    contents.commands = {Command(101, 5, 117)};
    EXPECT_EQ(At(420).flags, kTaskDialogTooTall);
}

TEST_F(TaskDialogLayoutTest, FooterNeedsABoxAButtonOrAPushCommand) {
    contents.body = Letters(5);
    EXPECT_EQ(At(350).footerTop, -1);
    EXPECT_EQ(At(350).height, 12 + 12 + 6 + 18 + 6);
    contents.verification = Letters(5);
    EXPECT_EQ(At(350).footerTop, 48);
    contents.verification.Empty();
    contents.commonButtons = 8;
    EXPECT_EQ(At(350).footerTop, 48);
    contents.commonButtons = 0;
    contents.commands = {Command(101, 5)};
    EXPECT_EQ(At(350).footerTop, 48);
    contents.options = kTaskDialogLinks;
    EXPECT_EQ(At(350).footerTop, -1);
}

TEST_F(TaskDialogLayoutTest, CommonButtonsStandInTheirOrderAsABlockAtTheRight) {
    contents.commonButtons = 63;
    const TaskDialogLayout layout = At(600);
    std::vector<int> ids;
    for (const auto& button : layout.buttons) ids.push_back(button.id);
    EXPECT_EQ(ids, (std::vector<int>{1, 6, 7, 4, 2, 8}));
    for (int i = 0; i < 6; ++i) {
        const CRect& rect = layout.buttons[static_cast<std::size_t>(i)].rect;
        EXPECT_RECT(rect, 588 - 72 - (5 - i) * 77, 42, 588 - (5 - i) * 77, 66);
    }
    EXPECT_EQ(layout.flags, 0u);
}

TEST_F(TaskDialogLayoutTest, ButtonSizesComeFromTheBaseUnits) {
    metrics.baseX = 7;
    metrics.baseY = 15;
    contents.commonButtons = 1;
    const TaskDialogLayout layout = At(350);
    EXPECT_EQ(layout.buttons[0].rect.Width(), 63);
    EXPECT_EQ(layout.buttons[0].rect.Height(), 23);  // 22.5
}

TEST_F(TaskDialogLayoutTest, PushCommandsAreAsWideAsTheirTextAndTwoUnits) {
    contents.commands = {Command(101, 10), Command(102, 4)};
    contents.commonButtons = 8;
    const TaskDialogLayout layout = At(420);
    EXPECT_RECT(layout.buttons[2].rect, 408 - 72, 42, 408, 66);
    EXPECT_RECT(layout.buttons[1].rect, 336 - 5 - 48, 42, 331, 66);
    EXPECT_RECT(layout.buttons[0].rect, 283 - 5 - 84, 42, 278, 66);
    EXPECT_FALSE(layout.buttons[0].isLink);
    EXPECT_EQ(layout.buttons[2].common, 4);
}

TEST_F(TaskDialogLayoutTest, PushCommandIsNoWiderThanTheRoom) {
    contents.commands = {Command(101, 100)};
    const TaskDialogLayout layout = At(350);
    // From 12 + 24 + 5 to 338.
    EXPECT_RECT(layout.buttons[0].rect, 41, 42, 338, 66);
    EXPECT_EQ(layout.flags, 0u);
}

TEST_F(TaskDialogLayoutTest, VerificationBoxLiesLeftOfTheButtons) {
    contents.verification = Letters(10);
    contents.commonButtons = 1;
    const TaskDialogLayout layout = At(350);
    // Text of 60 pixels from 36 on; the box itself in the 24 before it.
    EXPECT_RECT(layout.checkBox, 12, 42, 96, 66);
    EXPECT_EQ(layout.height, 42 + 25 + 6);
}

TEST_F(TaskDialogLayoutTest, VerificationTextWrapsAtTheWidthOfTheProbe) {
    contents.verification = Letters(60);
    // The probe has 40 letters: 240 pixels.
    EXPECT_RECT(At(700).checkBox, 12, 42, 36 + 240, 66);
    EXPECT_EQ(At(700).flags, 0u);
    contents.verification = Letters(81);
    const TaskDialogLayout tall = At(700);
    EXPECT_EQ(tall.checkBox.Height(), 36);
    EXPECT_EQ(tall.flags, kTaskDialogTooTall);
    EXPECT_EQ(tall.height, 42 + 36 + 6);
}

TEST_F(TaskDialogLayoutTest, ABoxAsHighAsAButtonIsTooTallForASmallFont) {
    contents.verification = Letters(3);
    metrics.fontHeight = 11;  // two lines are 22, a button 24
    EXPECT_EQ(At(350).checkBox.Height(), 24);
    EXPECT_EQ(At(350).flags, kTaskDialogTooTall);
    metrics.fontHeight = 12;
    EXPECT_EQ(At(350).flags, 0u);
}

TEST_F(TaskDialogLayoutTest, VerificationTextHasNoMoreRoomThanTheDialog) {
    contents.verification = Letters(30);
    // From 36 to 188 are 152 pixels: 25 letters.
    EXPECT_RECT(At(200).checkBox, 12, 42, 36 + 150, 66);
}

TEST_F(TaskDialogLayoutTest, ButtonsBeginRightOfTheBox) {
    contents.verification = Letters(20);
    contents.commonButtons = 15;
    // Box to 156, start 161, limit 488: four buttons need 303 of 327.
    EXPECT_EQ(At(500).flags, 0u);
    // Limit 463: they need one pixel more than the room.
    EXPECT_EQ(At(475).flags, kTaskDialogManyRows);
    EXPECT_EQ(At(476).flags, 0u);
}

TEST_F(TaskDialogLayoutTest, ButtonThatPassesTheLimitStartsARowBelow) {
    contents.commonButtons = 7;
    const TaskDialogLayout layout = At(220);  // start 41, limit 208: two fit
    EXPECT_EQ(layout.flags, kTaskDialogManyRows);
    // The widest row, of two, touches the limit; the second row begins where the first does.
    EXPECT_RECT(layout.buttons[0].rect, 59, 42, 131, 66);
    EXPECT_RECT(layout.buttons[1].rect, 136, 42, 208, 66);
    EXPECT_RECT(layout.buttons[2].rect, 59, 67, 131, 91);
    EXPECT_EQ(layout.height, 42 + 2 * 25 + 6);
}

TEST_F(TaskDialogLayoutTest, AloneInItsRowAButtonIsCut) {
    contents.commonButtons = 3;
    const TaskDialogLayout layout = At(113);  // start 41, limit 101: 60 pixels
    EXPECT_RECT(layout.buttons[0].rect, 41, 42, 101, 66);
    EXPECT_RECT(layout.buttons[1].rect, 41, 67, 101, 91);
    EXPECT_EQ(layout.flags, kTaskDialogManyRows);
}

TEST_F(TaskDialogLayoutTest, LaterButtonsMoveAlongIntoTheNewRow) {
    contents.commonButtons = 31;
    const TaskDialogLayout layout = At(220);
    EXPECT_EQ(layout.buttons[3].rect.top, 67);
    EXPECT_EQ(layout.buttons[3].rect.left, 136);
    EXPECT_EQ(layout.buttons[4].rect.top, 92);
    EXPECT_EQ(layout.buttons[4].rect.left, 59);
    EXPECT_EQ(layout.height, 42 + 3 * 25 + 6);
}

TEST_F(TaskDialogLayoutTest, LowBoxIsCentredBesideItsRows) {
    contents.verification = Letters(5);
    contents.commonButtons = 7;
    const TaskDialogLayout layout = At(250);  // box to 66, start 71, limit 238
    EXPECT_EQ(layout.flags, kTaskDialogManyRows);
    EXPECT_EQ(layout.checkBox.top, 42 + (50 - 24) / 2);
    EXPECT_EQ(layout.checkBox.Height(), 24);
}

TEST_F(TaskDialogLayoutTest, LinksTakeNoPartInTheRows) {
    contents.options = kTaskDialogLinks;
    contents.commands = {Command(101, 5), Command(102, 5)};
    contents.commonButtons = 1;
    const TaskDialogLayout layout = At(350);
    EXPECT_EQ(layout.buttons[0].rect.left, 12);
    EXPECT_EQ(layout.buttons[1].rect.right, 338);
    EXPECT_EQ(layout.buttons[2].rect.left, 266);
    EXPECT_EQ(layout.footerTop, 33 + 43 + 3 + 43 + 6);
}

TEST_F(TaskDialogLayoutTest, FixedLengthsFollowTheResolution) {
    metrics.dpi = 144;
    EXPECT_EQ(metrics.fixed(40), 60);
    EXPECT_EQ(metrics.fixed(3), 5);  // 4.5
    contents.hasIcon = true;
    contents.body = Letters(3);
    EXPECT_EQ(At(600).textLeft, 24 + 48);
    EXPECT_EQ(Fit().width, 525);
}

TEST_F(TaskDialogFit, StartsAtTheWidthOfItsKind) {
    contents.body = Letters(5);
    contents.commonButtons = 1;
    EXPECT_EQ(Fit().width, 350);
    EXPECT_EQ(Fit().trials, 1);
    contents.commands = {Command(101, 5)};
    EXPECT_EQ(Fit().width, 420);
    contents.options = kTaskDialogLinks;
    EXPECT_EQ(Fit().width, 420);
}

TEST_F(TaskDialogFit, GrowsByATenthUntilTextsAreShort) {
    contents.heading = Letters(84);  // two lines of 42 letters need 444
    contents.body = Letters(5000);   // too tall at every width of this test
    contents.commonButtons = 1;
    metrics.workHeight = 1;
    contents.body.Empty();
    const TaskDialogLayout layout = Fit();
    // 350, 385, 424 (423.5), 466 (466.4)
    EXPECT_EQ(layout.width, 466);
    EXPECT_EQ(layout.trials, 4);
    EXPECT_EQ(layout.flags, 0u);
}

TEST_F(TaskDialogFit, StopsGrowingWhenTheShapeIsGood) {
    contents.body = Letters(200);  // four lines: too tall, but not a tall dialog
    contents.commonButtons = 1;
    const TaskDialogLayout layout = Fit();
    EXPECT_EQ(layout.trials, 1);
    EXPECT_EQ(layout.flags, kTaskDialogTooTall);
}

TEST_F(TaskDialogFit, GrowsWhileItIsTallerThanElevenTenthsOfItsWidth) {
    // 54 letters to the line at 350. A height of 385 is good, 397 is not: 66 of it are not text.
    contents.body = Letters(54 * 26);
    ASSERT_EQ(At(350).height, 12 + 26 * 12 + 6 + 18 + 6);
    EXPECT_EQ(Fit().width, 350);
    contents.body = Letters(54 * 29);
    ASSERT_EQ(At(350).height, 390);
    EXPECT_EQ(Fit().width, 385);
}

TEST_F(TaskDialogFit, GrowsWhileItIsTallerThanTheWorkArea) {
    contents.body = Letters(54 * 8);
    const int height = At(350).height;
    metrics.workHeight = height;
    EXPECT_EQ(Fit().width, 350);
    metrics.workHeight = height - 1;
    EXPECT_EQ(Fit().width, 424);  // at 385 it still has eight lines
}

TEST_F(TaskDialogFit, EndsAtTheWorkAreasWidth) {
    contents.body = Letters(5000);
    metrics.workHeight = 10;
    metrics.workWidth = 500;
    const TaskDialogLayout layout = Fit();
    EXPECT_EQ(layout.width, 500);  // 350, 385, 424, 466, then 513 is cut
    EXPECT_EQ(layout.trials, 5);
}

TEST_F(TaskDialogFit, KeepsARequestedWidth) {
    contents.heading = Letters(500);
    contents.commonButtons = 1;
    contents.requestedWidth = 300;
    metrics.workHeight = 10;
    EXPECT_EQ(Fit().width, 300);
    EXPECT_EQ(Fit().trials, 1);
    contents.requestedWidth = 5000;
    EXPECT_EQ(Fit().width, 1200);
    contents.requestedWidth = 1;
    EXPECT_EQ(Fit().width, 1);
    contents.requestedWidth = -7;
    EXPECT_GT(Fit().width, 349);
}

TEST_F(TaskDialogFit, GrowsUntilPushButtonsStandInOneRow) {
    contents.commands = {Command(101, 25), Command(102, 25), Command(103, 25)};
    // 3 * 174 + 10 + 41 + 12 = 585: 420, 462, 508, 559, 615
    const TaskDialogLayout layout = Fit();
    EXPECT_EQ(layout.width, 615);
    EXPECT_EQ(layout.flags, 0u);
}

TEST_F(TaskDialogFit, LinksDoNotMakeItGrowForTheButtonsBelow) {
    contents.options = kTaskDialogLinks;
    contents.commands = {Command(101, 5)};
    contents.verification = Letters(40);
    contents.commonButtons = 63;
    const TaskDialogLayout layout = Fit();
    EXPECT_EQ(layout.width, 420);
    EXPECT_EQ(layout.flags, kTaskDialogManyRows);
    contents.commands.clear();
    EXPECT_GT(Fit().width, 420);
}

TEST_F(TaskDialogOrderTest, WithoutADefaultTheFirstButtonIsIt) {
    contents.commonButtons = 7;
    const TaskDialogOrder order = Order(0);
    EXPECT_EQ(order.children, (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(order.defaultButton, 0);
    EXPECT_FALSE(order.defaultWasNamed);
    EXPECT_EQ(Order(4711).defaultButton, 0);
}

TEST_F(TaskDialogOrderTest, DefaultComesFirstThenThoseAfterThenThoseBefore) {
    contents.commonButtons = 15;  // OK, Yes, No, Cancel
    const TaskDialogOrder order = Order(7);
    EXPECT_EQ(order.children, (std::vector<int>{2, 3, 0, 1}));
    EXPECT_EQ(order.defaultButton, 2);
    EXPECT_TRUE(order.defaultWasNamed);
}

TEST_F(TaskDialogOrderTest, CheckBoxComesBeforePushButtons) {
    contents.verification = Letters(3);
    contents.commonButtons = 3;
    contents.commands = {Command(101, 2)};
    const int box = TaskDialogOrder::kCheckBox;
    EXPECT_EQ(Order(0).children, (std::vector<int>{box, 0, 1, 2}));
    EXPECT_EQ(Order(0).defaultButton, 0);
    EXPECT_EQ(Order(1).children, (std::vector<int>{1, 2, box, 0}));
}

TEST_F(TaskDialogOrderTest, CheckBoxComesBehindTheLinks) {
    contents.options = kTaskDialogPlainLinks;
    contents.verification = Letters(3);
    contents.commonButtons = 8;
    contents.commands = {Command(101, 2), Command(102, 2)};
    const int box = TaskDialogOrder::kCheckBox;
    EXPECT_EQ(Order(0).children, (std::vector<int>{0, 1, box, 2}));
    EXPECT_EQ(Order(102).children, (std::vector<int>{1, box, 2, 0}));
    EXPECT_EQ(Order(102).defaultButton, 1);
}

TEST_F(TaskDialogOrderTest, ABoxAloneHasNoDefault) {
    contents.verification = Letters(3);
    EXPECT_LT(Order(0).defaultButton, 0);
}
