// The framed tip that a control paints itself, read back from a memory device context.
#include <ktui/host/appearance.h>
#include <ktui/host/draw_tip_text.h>
#include <ktui/host/notification.h>
#include <ktui/input/kbui_edit.h>

#include <algorithm>

#include "canvas.h"
#include "scheme_color.h"
#include "ui_test.h"

namespace {

constexpr COLORREF kUntouched = RGB(255, 0, 255);
constexpr COLORREF kFill = 0xFBFBFB;
constexpr COLORREF kInk = 0x5C5253;
constexpr int kWidth = 200, kHeight = 60;

/// A picture of one colour that a control paints its tip on.
class Canvas : public ui_test::Canvas {
public:
    Canvas() : ui_test::Canvas(kWidth, kHeight, kUntouched) {}

    /// The box around the pixels inside `area` that differ from the fill; left is above right without any.
    CRect inked(const CRect& area) const {
        CRect box(kWidth, kHeight, -1, -1);
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x)
                if (at(x, y) != kFill)
                    box.SetRect(std::min<int>(box.left, x), std::min<int>(box.top, y),
                                std::max<int>(box.right, x + 1), std::max<int>(box.bottom, y + 1));
        return box;
    }
};

class FramedTip : public ::testing::Test {
protected:
    FramedTip() {
        edit.Create(WS_CHILD, CRect(0, 0, 100, 20), &parent, 7);
        font.CreatePointFont(160, L"Tahoma");
        edit.SetFont(&font, FALSE);
    }

    /// Has the edit paint `text` as a tip into `rect`.
    KBUI_REPLY paint(const wchar_t* text) {
        CKbUiDrawTipText tip(canvas.dc, rect, text);
        return KbUiNotify(edit, 0, kKbUiNotifyDrawTipText, reinterpret_cast<unsigned __int64>(&tip));
    }

    ui_test::ParentWindow parent;
    CKbUiEdit edit;
    CFont font;
    Canvas canvas;
    CRect rect{10, 5, 190, 55};
};

/// The corner pixels and the middles of the edges of a frame.
void expectFrame(Canvas& canvas, const CRect& frame, COLORREF color) {
    const int right = frame.right - 1, bottom = frame.bottom - 1;
    const int middle = frame.left + frame.Width() / 2, half = frame.top + frame.Height() / 2;
    for (const POINT& point : {POINT{frame.left, frame.top}, POINT{right, frame.top},
                               POINT{frame.left, bottom}, POINT{right, bottom}, POINT{middle, frame.top},
                               POINT{middle, bottom}, POINT{frame.left, half}, POINT{right, half}})
        EXPECT_EQ(canvas.at(point.x, point.y), color) << point.x << ", " << point.y;
}

}  // namespace

TEST_F(FramedTip, IsFilledInsideAFrameOfOnePixelAndTouchesNothingElse) {
    EXPECT_EQ(paint(L""), kKbUiReplyHandled);
    const CRect frame(10, 5, 190, 55);
    expectFrame(canvas, frame, kInk);
    CRect inner(frame);
    inner.DeflateRect(1, 1);
    expectFrame(canvas, inner, kFill);
    CRect outer(frame);
    outer.InflateRect(1, 1);
    expectFrame(canvas, outer, kUntouched);
    EXPECT_EQ(canvas.at(100, 30), kFill);
}

TEST_F(FramedTip, TextIsOneLineInTheInkTwoPixelsInsideAndCentred) {
    paint(L"Hg\nHg");
    EXPECT_EQ(rect, CRect(12, 7, 188, 53)) << "what is left inside for the text";
    const CRect ink = canvas.inked(CRect(11, 6, 189, 54));
    ASSERT_LT(ink.left, ink.right);
    CFont* const former = canvas.dc.SelectObject(&font);
    CRect own(0, 0, 0, 0);
    canvas.dc.FillSolidRect(0, 0, kWidth, kHeight, kFill);
    canvas.dc.SetBkMode(TRANSPARENT);
    canvas.dc.SetTextColor(kInk);
    own = CRect(12, 7, 188, 53);
    ::DrawTextW(canvas.dc.m_hDC, L"Hg\nHg", -1, &own, 0x24);
    canvas.dc.SelectObject(former);
    EXPECT_EQ(ink, canvas.inked(CRect(11, 6, 189, 54))) << "the same box in the control's font";
}

TEST_F(FramedTip, TextHasTheColourOfTheFrameAndNoGroundOfItsOwn) {
    canvas.dc.SetBkMode(OPAQUE);
    canvas.dc.SetBkColor(RGB(0, 255, 0));
    paint(L"HHHHHH");
    const CRect ink = canvas.inked(CRect(11, 6, 189, 54));
    int full = 0, green = 0;
    for (int y = ink.top; y < ink.bottom; ++y)
        for (int x = ink.left; x < ink.right; ++x) {
            if (canvas.at(x, y) == kInk) ++full;
            if (canvas.at(x, y) == RGB(0, 255, 0)) ++green;
        }
    EXPECT_GT(full, 20) << "strokes in the ink itself";
    EXPECT_EQ(green, 0) << "the fill shows between the strokes";
}

TEST_F(FramedTip, LeavesTheDeviceContextsToolsAsTheyWere) {
    const HGDIOBJ pen = ::GetCurrentObject(canvas.dc.m_hDC, OBJ_PEN);
    const HGDIOBJ brush = ::GetCurrentObject(canvas.dc.m_hDC, OBJ_BRUSH);
    const HGDIOBJ before = ::GetCurrentObject(canvas.dc.m_hDC, OBJ_FONT);
    paint(L"text");
    EXPECT_EQ(::GetCurrentObject(canvas.dc.m_hDC, OBJ_PEN), pen);
    EXPECT_EQ(::GetCurrentObject(canvas.dc.m_hDC, OBJ_BRUSH), brush);
    EXPECT_EQ(::GetCurrentObject(canvas.dc.m_hDC, OBJ_FONT), before);
}

TEST_F(FramedTip, HasTheSystemsTipColoursForAHostThatFollowsTheSystem) {
    constexpr COLORREF kPaper = RGB(32, 34, 40), kLightInk = RGB(240, 236, 220);
    const ui_test::SchemeColor paper(COLOR_INFOBK, kPaper), ink(COLOR_INFOTEXT, kLightInk);
    KtUiFollowSystemAppearance(TRUE);
    paint(L"");
    KtUiFollowSystemAppearance(FALSE);
    expectFrame(canvas, CRect(10, 5, 190, 55), kLightInk);
    EXPECT_EQ(canvas.at(100, 30), kPaper);
}
