// The frame's line at the bottom: a prompt ends in an ellipsis where there is no room for all of it.
#include "../../../samples/drafter/status_line.h"

#include "ui_test.h"

using namespace ui_test;

namespace {

const wchar_t* const kPrompt = L"Click or draw a window to select; wheel zooms && middle button pans.";

class StatusLine : public ::testing::Test {
protected:
    StatusLine() {
        line.Create(WS_CHILD | WS_VISIBLE | SBARS_TOOLTIPS, CRect(0, 0, 0, 0), &parent, 1);
        part(2000);
    }
    void part(int first) {
        int edges[2] = {first, -1};
        line.Part(2, edges);
    }
    CString shown() { return line.GetText(0); }
    int widthOf(const CString& text) {
        CClientDC dc(&line);
        CFont* former = dc.SelectObject(line.GetFont());
        const int width = dc.GetTextExtent(text).cx;
        dc.SelectObject(former);
        return width;
    }

    ParentWindow parent;
    CStatusLine line;
};

}  // namespace

TEST_F(StatusLine, APromptThatHasRoomStandsWhole) {
    line.Say(kPrompt);
    EXPECT_STREQ(shown(), kPrompt);
    EXPECT_STREQ(line.GetTipText(0), L"");
}

TEST_F(StatusLine, OneThatHasNoneEndsInAnEllipsisAndIsWholeInTheTip) {
    line.Say(kPrompt);
    part(widthOf(kPrompt) / 2);
    const CString text = shown();
    ASSERT_GT(text.GetLength(), 10);
    EXPECT_EQ(text.Right(3), L"...");
    EXPECT_EQ(text.Left(8), CString(kPrompt).Left(8));
    EXPECT_LE(widthOf(text), widthOf(kPrompt) / 2);
    EXPECT_GT(widthOf(text), widthOf(kPrompt) / 4) << "the room is used";
    EXPECT_STREQ(line.GetTipText(0), kPrompt);
    part(2000);
    EXPECT_STREQ(shown(), kPrompt) << "whole again";
    EXPECT_STREQ(line.GetTipText(0), L"");
}

TEST_F(StatusLine, TheTextOfTheWindowIsThePrompt) {
    part(widthOf(kPrompt) / 2);
    line.SetWindowText(kPrompt);
    EXPECT_EQ(shown().Right(3), L"...");
    line.SetWindowText(L"short");
    EXPECT_STREQ(shown(), L"short");
    line.SetWindowText(L"");
    EXPECT_STREQ(shown(), L"");
}

TEST_F(StatusLine, ThePanesBesideItAreLeftAlone) {
    line.SetText(L"12, 34", 1, 0);
    part(60);
    line.Say(kPrompt);
    EXPECT_STREQ(line.GetText(1), L"12, 34");
}
