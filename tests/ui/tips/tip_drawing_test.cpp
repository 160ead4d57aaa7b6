// What a tip paints, read back from a memory device context.
#include <ktui/host/appearance.h>
#include <ktui/host/contrast.h>

#include "canvas.h"
#include "tip_fixture.h"

namespace {

constexpr COLORREF kUntouched = RGB(255, 0, 255);
constexpr COLORREF kInk = 0x4B4846;
constexpr COLORREF kPaper = 0xF9F9F9;
constexpr int kWidth = 240, kHeight = 60;

/// A picture of one colour to paint on, in the mode that a device context comes with.
struct Canvas : ui_test::Canvas {
    Canvas() : ui_test::Canvas(kWidth, kHeight, kUntouched) { dc.SetBkMode(OPAQUE); }
};

class DrawnTip : public ui_test::TipOverControl<CKbUiTextTip> {
protected:
    DrawnTip() {
        font.CreatePointFont(150, L"Tahoma");
        target.SetFont(&font, FALSE);
        tip.SetUseText(1);
    }

    CFont font;
    Canvas canvas;
};

/// A tip that writes down what it is asked to draw.
class AskedTip : public CKbUiTextTip {
public:
    std::vector<CRect> border, content;

    void DrawBorder(CDC& dc, CRect& rect, CRect& inner) override {
        border.push_back(rect);
        CKbUiTextTip::DrawBorder(dc, rect, inner);
    }
    void DrawContent(CDC&, CRect& rect) override {
        EXPECT_EQ(border.size(), content.size() + 1) << "behind the border";
        content.push_back(rect);
    }
};

/// The control font that a window answers.
class FontOwner : public ui_test::ParentWindow {
public:
    HFONT font = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETFONT) return reinterpret_cast<LRESULT>(font);
        return ParentWindow::WindowProc(message, wParam, lParam);
    }
};

/// The target answers `font` as its own.
class FontTarget : public CWnd {
public:
    HFONT font = nullptr;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETFONT) return reinterpret_cast<LRESULT>(font);
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

}  // namespace

TEST_F(DrawnTip, BorderIsOnePixelInInkAndLeavesTwoOnTheLeftAndTop) {
    CRect rect(10, 5, 110, 45), inner;
    tip.DrawBorder(canvas.dc, rect, inner);
    EXPECT_EQ(rect, CRect(10, 5, 110, 45));
    EXPECT_EQ(inner, CRect(12, 7, 110, 45));
    for (const POINT& point : {POINT{10, 5}, POINT{109, 5}, POINT{10, 44}, POINT{109, 44}, POINT{60, 5},
                               POINT{10, 25}, POINT{109, 25}, POINT{60, 44}})
        EXPECT_EQ(canvas.at(point.x, point.y), kInk) << point.x << ", " << point.y;
    EXPECT_EQ(canvas.count(kInk), 2 * 100 + 2 * 38) << "one pixel all round";
    EXPECT_EQ(canvas.count(kUntouched), kWidth * kHeight - canvas.count(kInk));
}

TEST_F(DrawnTip, ContentIsPaperInsideTheBorder) {
    CRect inner(12, 7, 110, 45);
    tip.DrawContent(canvas.dc, inner);
    EXPECT_EQ(inner, CRect(11, 6, 109, 44));
    EXPECT_EQ(canvas.count(kPaper), 98 * 38);
    for (const POINT& point : {POINT{11, 6}, POINT{108, 6}, POINT{11, 43}, POINT{108, 43}})
        EXPECT_EQ(canvas.at(point.x, point.y), kPaper);
}

TEST_F(DrawnTip, TextIsOneLineCentredInInkWithItsAmpersands) {
    FontTarget control;
    control.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), &parent, 8);
    control.font = static_cast<HFONT>(font.m_hObject);
    tip.SetControl(&control);
    tip.SetWindowText(L"H&g\nW");
    const HGDIOBJ before = ::GetCurrentObject(canvas.dc.m_hDC, OBJ_FONT);
    CRect inner(12, 7, 210, 55);
    tip.DrawContent(canvas.dc, inner);
    EXPECT_EQ(::GetCurrentObject(canvas.dc.m_hDC, OBJ_FONT), before) << "the font is put back";

    Canvas expected;
    RECT text = {11, 6, 209, 54};
    expected.dc.FillSolidRect(&text, kPaper);
    const HGDIOBJ former = ::SelectObject(expected.dc.m_hDC, font.m_hObject);
    ::SetBkMode(expected.dc.m_hDC, TRANSPARENT);
    ::SetTextColor(expected.dc.m_hDC, kInk);
    ::DrawTextW(expected.dc.m_hDC, L"H&g\nW", -1, &text, 0x824);
    ::SelectObject(expected.dc.m_hDC, former);
    EXPECT_GT(expected.count(kInk), 10);
    EXPECT_TRUE(canvas == expected);
    tip.SetControl(&target);
}

TEST_F(DrawnTip, TextHasNoGroundOfItsOwn) {
    tip.SetWindowText(L"HHHH");
    canvas.dc.SetBkColor(RGB(0, 255, 0));
    CRect inner(12, 7, 210, 55);
    tip.DrawContent(canvas.dc, inner);
    EXPECT_EQ(canvas.dc.GetBkMode(), TRANSPARENT);
    EXPECT_EQ(canvas.dc.GetTextColor(), kInk);
    EXPECT_EQ(canvas.count(RGB(0, 255, 0)), 0);
}

TEST_F(DrawnTip, WithoutTextOrControlNothingIsDrawn) {
    tip.SetWindowText(L"HHHH");
    CRect inner(12, 7, 210, 55);
    for (const int useText : {0, 2}) {
        tip.SetUseText(useText);
        tip.DrawContent(canvas.dc, inner);
    }
    tip.SetUseText(1);
    tip.SetControl(nullptr);
    tip.DrawContent(canvas.dc, inner);
    EXPECT_EQ(inner, CRect(12, 7, 210, 55));
    EXPECT_EQ(canvas.count(kUntouched), kWidth * kHeight);
    tip.SetControl(&target);
}

TEST_F(DrawnTip, PaintAsksForTheBorderOfTheClientAreaAndThenForWhatIsInside) {
    AskedTip asked;
    asked.Create(&parent);
    asked.SetControl(&target);
    asked.MoveWindow(&area, FALSE);
    asked.Show();
    asked.border.clear();
    asked.content.clear();
    asked.Invalidate();
    asked.UpdateWindow();
    ASSERT_EQ(asked.border.size(), 1u);
    ASSERT_EQ(asked.content.size(), 1u);
    EXPECT_EQ(asked.border[0], CRect(0, 0, area.Width(), area.Height()));
    EXPECT_EQ(asked.content[0], CRect(2, 2, area.Width(), area.Height()));
    RECT pending;
    EXPECT_FALSE(::GetUpdateRect(asked.m_hWnd, &pending, FALSE)) << "the paint context was taken";
    asked.DestroyWindow();
}

TEST(TipText, IsMeasuredInTheOwnersFont) {
    FontOwner owner;
    CKbUiTextTip tip;
    tip.Create(&owner);
    CClientDC dc(&owner);
    for (const int tenths : {80, 300}) {
        CFont font;
        font.CreatePointFont(tenths, L"Tahoma");
        owner.font = static_cast<HFONT>(font.m_hObject);
        const HGDIOBJ former = ::SelectObject(dc.m_hDC, font.m_hObject);
        SIZE expected = {};
        ::GetTextExtentPoint32W(dc.m_hDC, L"distance", 8, &expected);
        ::SelectObject(dc.m_hDC, former);
        int width = 0, height = 0;
        tip.GetTextExtent(L"distance", width, height);
        EXPECT_EQ(width, expected.cx) << tenths;
        EXPECT_EQ(height, expected.cy) << tenths;
    }
    owner.font = nullptr;
    tip.DestroyWindow();
}

namespace {

/// Tips in the system's colours for tips, which are those of a dark scheme for as long as the object lives.
class DarkTip : public DrawnTip {
protected:
    static constexpr COLORREF kDarkPaper = RGB(32, 34, 40), kLightInk = RGB(240, 236, 220);
    static constexpr int kParts[] = {COLOR_INFOBK, COLOR_INFOTEXT};

    DarkTip() {
        for (int i = 0; i < 2; ++i) former[i] = ::GetSysColor(kParts[i]);
        const COLORREF dark[] = {kDarkPaper, kLightInk};
        ::SetSysColors(2, kParts, dark);
        KtUiFollowSystemAppearance(TRUE);
    }
    ~DarkTip() override {
        KtUiFollowSystemAppearance(FALSE);
        ::SetSysColors(2, kParts, former);
    }

private:
    COLORREF former[2];
};

}  // namespace

TEST_F(DarkTip, BorderPaperAndTextAreTheSystems) {
    tip.SetWindowText(L"HHHH");
    CRect rect(10, 5, 210, 55), inner;
    tip.DrawBorder(canvas.dc, rect, inner);
    EXPECT_EQ(canvas.at(10, 5), kLightInk);
    EXPECT_EQ(canvas.count(kLightInk), 2 * 200 + 2 * 48);
    tip.DrawContent(canvas.dc, inner);
    EXPECT_EQ(canvas.at(205, 50), kDarkPaper);
    EXPECT_EQ(canvas.dc.GetTextColor(), kLightInk);
    EXPECT_GE(ContrastRatio(canvas.dc.GetTextColor(), canvas.at(205, 50)), kTextContrast);
    EXPECT_EQ(canvas.count(kInk) + canvas.count(kPaper), 0) << "nothing of the agreed colours";
}
