// Links of the toolkit's own task dialog on a monitor of a higher resolution than the screen's.
#include <afxglobals.h>
#include <ktui/host/appearance.h>

#include <cmath>

#include "canvas.h"
#include "task_dialog_fixture.h"

using namespace ui_test;

namespace {

constexpr int kArrowColumn = 60, kGap = 8;  // 40 and 5 pixels at 144 dots an inch
constexpr COLORREF kLinkColor = 0x551C15;
constexpr COLORREF kMask = RGB(255, 0, 255);

UINT HigherForWindows(HWND window) { return window != nullptr ? 144 : 96; }

class LinkAtAHigherResolution : public OwnTaskDialog {
protected:
    LinkAtAHigherResolution() {
        KtUiFollowSystemAppearance(TRUE);
        KtUiExchangeDpiSource(HigherForWindows);
        move_cursor({0, 0});
        dialog.SetContent(L"body");
        dialog.SetOptions(0x18);
        dialog.AddCommandControl(101, L"Overwrite");
        dialog.SetCommandControlExtend(101, L"The former drawing is lost.");
    }
    ~LinkAtAHigherResolution() override {
        KtUiExchangeDpiSource(nullptr);
        KtUiFollowSystemAppearance(FALSE);
    }
    /// The window of the body, which has the text font.
    static HWND BodyOf(HWND box) { return children_of(box)[0].window; }
    /// Runs the dialog and compares the columns [left, right) of its link with what `draw` makes.
    void ExpectColumns(int left, int right, const std::function<void(HWND box, Canvas&, CSize)>& draw) {
        int different = -1, inked = 0;
        Run([&](HWND box) {
            const CSize size = child_of(box, 101).rect.Size();
            if (right == 0) right = size.cx;
            Canvas shown(size.cx, size.cy), wanted(size.cx, size.cy, ::GetSysColor(COLOR_WINDOW));
            DRAWITEMSTRUCT item = {};
            item.CtlType = ODT_BUTTON;
            item.CtlID = 101;
            item.hwndItem = ::GetDlgItem(box, 101);
            item.hDC = shown.dc.m_hDC;
            item.rcItem = CRect(CPoint(0, 0), size);
            ::SendMessageW(box, WM_DRAWITEM, 101, reinterpret_cast<LPARAM>(&item));
            draw(box, wanted, size);
            different = 0;
            for (int y = 0; y < size.cy; ++y)
                for (int x = left; x < right; ++x) {
                    different += shown.at(x, y) != wanted.at(x, y);
                    inked += wanted.at(x, y) != ::GetSysColor(COLOR_WINDOW);
                }
            ::PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
        });
        EXPECT_EQ(different, 0);
        EXPECT_GT(inked, 20);
    }
};

}  // namespace

TEST_F(LinkAtAHigherResolution, HasTheArrowOfThirtyPixelsInTheMiddleOfItsColumn) {
    ExpectColumns(0, kArrowColumn, [&](HWND box, Canvas& wanted, CSize) {
        const HBITMAP arrow = ::LoadBitmapW(toolkit, MAKEINTRESOURCEW(3230));
        BITMAP size = {};
        ASSERT_NE(::GetObjectW(arrow, sizeof size, &size), 0);
        CDC memory;
        memory.CreateCompatibleDC(nullptr);
        const HGDIOBJ former = ::SelectObject(memory.m_hDC, arrow);
        const int left = (kArrowColumn - static_cast<int>(size.bmWidth)) / 2;
        for (int y = 0; y < size.bmHeight; ++y)
            for (int x = 0; x < size.bmWidth; ++x)
                if (const COLORREF color = memory.GetPixel(x, y); color != kMask)
                    wanted.dc.SetPixel(left + x, font_height(BodyOf(box)) + y, color);
        ::SelectObject(memory.m_hDC, former);
        ::DeleteObject(arrow);
    });
}

TEST_F(LinkAtAHigherResolution, HasItsTextsBesideAWiderColumnAndFurtherApart) {
    ExpectColumns(kArrowColumn, 0, [&](HWND box, Canvas& wanted, CSize size) {
        const int unit = font_height(BodyOf(box));
        wanted.dc.SetBkMode(TRANSPARENT);
        wanted.dc.SetTextColor(kLinkColor);
        CRect area(kArrowColumn, unit, static_cast<int>(size.cx) - unit / 2,
                   static_cast<int>(size.cy) - unit);
        CFont* const former = wanted.dc.SelectObject(CWnd::FromHandle(::GetDlgItem(box, 101))->GetFont());
        area.top += wanted.dc.DrawText(L"Overwrite", -1, &area, DT_WORDBREAK) + kGap;
        wanted.dc.SelectObject(CWnd::FromHandle(BodyOf(box))->GetFont());
        wanted.dc.DrawText(L"The former drawing is lost.", -1, &area, DT_WORDBREAK);
        wanted.dc.SelectObject(former);
    });
}

TEST_F(LinkAtAHigherResolution, HasLettersOfItsMonitorsResolution) {
    LOGFONT regular = {};
    afxGlobalData.fontRegular.GetLogFont(&regular);
    const int height = std::abs(::MulDiv(static_cast<int>(regular.lfHeight), 144, 96));
    int text = 0, title = 0;
    Run([&](HWND box) {
        text = font_height(BodyOf(box));
        title = font_height(::GetDlgItem(box, 101));
        ::PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
    });
    EXPECT_EQ(text, height);
    EXPECT_EQ(title, std::lround(height * 1.6));
}

TEST_F(LinkAtAHigherResolution, HasButtonsOfItsMonitorsResolution) {
    dialog.SetCommonButtons(1);
    CSize ok;
    Run([&](HWND box) {
        ok = child_of(box, IDOK).rect.Size();
        press(box, IDOK);
    });
    // 36 quarters of 12 pixels, 12 eighths of 24.
    EXPECT_EQ(ok, CSize(108, 36));
}
