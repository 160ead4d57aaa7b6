// What the toolkit's own task dialog looks like: where its texts stand, its icon, its footer, and its links
// in each state.
#include "task_dialog_fixture.h"

#include <cmath>

#include "canvas.h"
#include "focus_borders.h"
#include "picture.h"
#include "scheme_color.h"
#include "scheme_in_force.h"

using namespace ui_test;

namespace {

constexpr COLORREF kHeadingColor = 0x993300, kLinkColor = 0x551C15, kHoverColor = 0xE84A06;
constexpr COLORREF kIconColor = RGB(1, 200, 3);

/// An icon of 32 by 32 pixels in one colour; whoever gets it destroys it.
HICON PlainIcon() {
    const HDC screen = ::GetDC(nullptr);
    ICONINFO info = {TRUE, 0, 0, ::CreateBitmap(32, 32, 1, 1, nullptr),
                     ::CreateCompatibleBitmap(screen, 32, 32)};
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    HGDIOBJ former = ::SelectObject(dc.m_hDC, info.hbmColor);
    dc.FillSolidRect(CRect(0, 0, 32, 32), kIconColor);
    ::SelectObject(dc.m_hDC, info.hbmMask);
    ::PatBlt(dc.m_hDC, 0, 0, 32, 32, BLACKNESS);
    ::SelectObject(dc.m_hDC, former);
    const HICON icon = ::CreateIconIndirect(&info);
    ::DeleteObject(info.hbmColor);
    ::DeleteObject(info.hbmMask);
    ::ReleaseDC(nullptr, screen);
    return icon;
}

Picture Shown(HWND window) {
    ::RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    return Picture(*CWnd::FromHandle(window));
}

COLORREF Paper() { return ::GetSysColor(COLOR_WINDOW); }

class OwnTaskDialogPaint : public OwnTaskDialog {
protected:
    /// What the dialog shows, once it is up.
    void Look(std::function<void(HWND)> look) {
        Run([&](HWND box) {
            look(box);
            ::PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED), 0);
        });
    }
    OwnTaskDialogPaint() { dialog.SetOptions(0x8); }
};

/// One link, drawn in any state on a canvas.
class LinkPaint : public OwnTaskDialogPaint {
protected:
    LinkPaint() {
        move_cursor({0, 0});  // off every link
        dialog.SetOptions(0x18);
        dialog.AddCommandControl(101, L"Overwrite");
        dialog.SetCommandControlExtend(101, L"The former drawing is lost.");
    }
    static void Draw(HWND box, Canvas& canvas, UINT state) {
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_BUTTON;
        item.CtlID = 101;
        item.itemState = state;
        item.hwndItem = ::GetDlgItem(box, 101);
        item.hDC = canvas.dc.m_hDC;
        ::GetClientRect(item.hwndItem, &item.rcItem);
        ::SendMessageW(box, WM_DRAWITEM, 101, reinterpret_cast<LPARAM>(&item));
    }
    static CSize SizeOf(HWND box) { return child_of(box, 101).rect.Size(); }
};

/// The smallest rectangle around all pixels of `color` in a canvas of that size.
CRect BoxOf(const Canvas& canvas, CSize size, COLORREF color) {
    CRect box(size.cx, size.cy, 0, 0);
    for (int y = 0; y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x)
            if (canvas.at(x, y) == color)
                box = CRect(std::min<int>(box.left, x), std::min<int>(box.top, y),
                            std::max<int>(box.right, x + 1), std::max<int>(box.bottom, y + 1));
    return box;
}

/// Whether one line of `color` runs around `rect`, and nothing of it is inside.
bool IsFrame(const Canvas& canvas, const CRect& rect, COLORREF color) {
    for (int y = static_cast<int>(rect.top); y < rect.bottom; ++y)
        for (int x = static_cast<int>(rect.left); x < rect.right; ++x) {
            const bool onEdge =
                x == rect.left || x == rect.right - 1 || y == rect.top || y == rect.bottom - 1;
            if ((canvas.at(x, y) == color) != onEdge) return false;
        }
    return true;
}

/// Height of `text` as the system breaks it in the font of `window`.
int HeightOf(HWND window, const wchar_t* text, int width, int* textWidth = nullptr) {
    CClientDC dc(CWnd::FromHandle(window));
    CFont* const former =
        dc.SelectObject(CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0))));
    CRect rect(0, 0, width, 0);
    dc.DrawText(text, -1, &rect, DT_CALCRECT | DT_WORDBREAK);
    dc.SelectObject(former);
    if (textWidth != nullptr) *textWidth = rect.Width();
    return rect.Height();
}

}  // namespace

TEST_F(OwnTaskDialogPaint, HeadingIsLargerThanTheBodyBySixTenths) {
    dialog.SetMainInstruction(L"heading");
    dialog.SetContent(L"body");
    int unit = 0, heading = 0, body = 0;
    Look([&](HWND box) {
        unit = font_height(box);
        heading = font_height(children_of(box)[0].window);
        body = font_height(children_of(box)[1].window);
    });
    EXPECT_EQ(heading, std::lround(unit * 1.6));
    EXPECT_EQ(body, unit);
}

TEST_F(OwnTaskDialogPaint, AnAmpersandInATextMarksWhatFollowsAndTwoAreOne) {
    dialog.SetMainInstruction(L"R&&D");
    dialog.SetContent(L"R&D");
    Look([](HWND box) {
        const auto drawn = [&](int child) {
            const HWND text = children_of(box)[static_cast<std::size_t>(child)].window;
            CRect place;
            ::GetClientRect(text, &place);
            Canvas canvas(place.Width(), place.Height(), Paper());
            DRAWITEMSTRUCT item = {};
            item.CtlType = ODT_STATIC;
            item.hwndItem = text;
            item.hDC = canvas.dc.m_hDC;
            item.rcItem = place;
            ::SendMessageW(box, WM_DRAWITEM, static_cast<WPARAM>(::GetDlgCtrlID(text)),
                           reinterpret_cast<LPARAM>(&item));
            return canvas.pixels();
        };
        const auto plain = [&](int child, const wchar_t* words, UINT flags, COLORREF ink) {
            const HWND text = children_of(box)[static_cast<std::size_t>(child)].window;
            CRect place;
            ::GetClientRect(text, &place);
            Canvas canvas(place.Width(), place.Height(), Paper());
            CFont* const former = canvas.dc.SelectObject(
                CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessageW(text, WM_GETFONT, 0, 0))));
            canvas.dc.SetBkMode(TRANSPARENT);
            canvas.dc.SetTextColor(ink);
            canvas.dc.DrawText(words, -1, &place, flags);
            canvas.dc.SelectObject(former);
            return canvas.pixels();
        };
        EXPECT_EQ(drawn(0), plain(0, L"R&D", DT_WORDBREAK | DT_NOPREFIX, kHeadingColor));
        EXPECT_EQ(drawn(1), plain(1, L"R&D", DT_WORDBREAK, ::GetSysColor(COLOR_WINDOWTEXT)));
        EXPECT_NE(drawn(1), plain(1, L"R&D", DT_WORDBREAK | DT_NOPREFIX, ::GetSysColor(COLOR_WINDOWTEXT)));
    });
}

TEST_F(OwnTaskDialogPaint, TextsStandOneUnitFromTheEdgesAndHalfAUnitAndOneApart) {
    const wchar_t* const words = L"The drawing was changed by another program.";
    dialog.SetMainInstruction(words);
    dialog.SetContent(words);
    CRect client, heading, body, ok;
    int unit = 0, headingHeight = 0, bodyHeight = 0;
    Look([&](HWND box) {
        ::GetClientRect(box, &client);
        unit = font_height(box);
        const auto children = children_of(box);
        heading = children[0].rect;
        body = children[1].rect;
        ok = children[2].rect;
        headingHeight = HeightOf(children[0].window, words, client.Width() - 2 * unit);
        bodyHeight = HeightOf(children[1].window, words, client.Width() - 2 * unit);
    });
    const int half = unit / 2;
    EXPECT_EQ(heading, CRect(unit, unit, static_cast<int>(client.right) - unit, unit + headingHeight));
    const int top = unit + headingHeight + half + unit;
    EXPECT_EQ(body, CRect(unit, top, static_cast<int>(client.right) - unit, top + bodyHeight));
    EXPECT_EQ(ok.top, top + bodyHeight + half + half + unit + unit);
    EXPECT_EQ(ok.right, client.right - unit);
}

TEST_F(OwnTaskDialogPaint, TextsAreDrawnInTheirColoursOnTheDialogsPaper) {
    dialog.SetMainInstruction(L"heading");
    dialog.SetContent(L"body");
    const SchemeColor window(COLOR_WINDOW, RGB(250, 250, 210)), text(COLOR_WINDOWTEXT, RGB(70, 0, 90));
    Look([&](HWND box) {
        const Picture heading = Shown(children_of(box)[0].window), body = Shown(children_of(box)[1].window);
        EXPECT_EQ(heading.commonest(), RGB(250, 250, 210));
        EXPECT_GT(heading.count(kHeadingColor), 0);
        EXPECT_EQ(heading.count(RGB(70, 0, 90)), 0);
        EXPECT_EQ(body.commonest(), RGB(250, 250, 210));
        EXPECT_GT(body.count(RGB(70, 0, 90)), 0);
        EXPECT_EQ(body.count(kHeadingColor), 0);
        EXPECT_EQ(Shown(box).at(0, 0), RGB(250, 250, 210));
    });
}

TEST_F(OwnTaskDialogPaint, AHeadingThatTheSystemsGroundSwallowsHasItsTextColour) {
    dialog.SetMainInstruction(L"heading");
    const SchemeInForce dark(TRUE);
    Look([&](HWND box) {
        const Picture heading = Shown(children_of(box)[0].window);
        EXPECT_EQ(heading.commonest(), scheme::kWindow);
        EXPECT_GT(heading.count(scheme::kWindowText), 0);
        EXPECT_EQ(heading.count(kHeadingColor), 0);
    });
}

TEST_F(OwnTaskDialogPaint, LongTextsBreakAtWords) {
    CString words;
    for (int i = 0; i < 60; ++i) words += L"word ";
    dialog.SetContent(words);
    dialog.SetDialogWidth(350);
    Look([&](HWND box) {
        const Child body = children_of(box)[0];
        const Picture picture = Shown(body.window);
        bool lastLineHasInk = false;
        for (int x = 0; x < picture.width(); ++x)
            for (int y = picture.height() - font_height(box); y < picture.height(); ++y)
                lastLineHasInk = lastLineHasInk || picture.at(x, y) != picture.commonest();
        EXPECT_GT(body.rect.Height(), 3 * font_height(box));
        EXPECT_TRUE(lastLineHasInk);
    });
}

TEST_F(OwnTaskDialogPaint, IconTakes32PixelsOneUnitFromTheCorner) {
    dialog.SetContent(L"body");
    dialog.SetMainIcon(PlainIcon());
    Look([&](HWND box) {
        const int unit = font_height(box);
        const Picture picture = Shown(box);
        EXPECT_EQ(picture.count(kIconColor), 32 * 32);
        EXPECT_EQ(picture.at(unit, unit), kIconColor);
        EXPECT_EQ(picture.at(unit + 31, unit + 31), kIconColor);
        EXPECT_EQ(children_of(box)[0].rect.left, 2 * unit + 32);
    });
}

TEST_F(OwnTaskDialogPaint, LinksStandBesideTheIconToo) {
    dialog.SetOptions(0x18);
    dialog.AddCommandControl(101, L"one");
    dialog.SetMainIcon(PlainIcon());
    Look([&](HWND box) { EXPECT_EQ(child_of(box, 101).rect.left, 2 * font_height(box) + 32); });
}

TEST_F(OwnTaskDialogPaint, FooterHasTheFaceColourBelowALineInTheShadowColour) {
    dialog.SetContent(L"body");
    const SchemeColor face(COLOR_3DFACE, RGB(210, 220, 230)), shadow(COLOR_3DSHADOW, RGB(90, 10, 120));
    Look([&](HWND box) {
        const Picture picture = Shown(box);
        const int top = static_cast<int>(child_of(box, IDOK).rect.top) - font_height(box);
        EXPECT_EQ(picture.count(RGB(90, 10, 120)) >= picture.width(), true);
        for (const int x : {0, picture.width() - 1}) {
            EXPECT_EQ(picture.at(x, top - 1), Paper());
            EXPECT_EQ(picture.at(x, top), RGB(90, 10, 120));
            EXPECT_EQ(picture.at(x, top + 1), RGB(210, 220, 230));
            EXPECT_EQ(picture.at(x, picture.height() - 1), RGB(210, 220, 230));
        }
    });
}

TEST_F(OwnTaskDialogPaint, WithoutABoxOrButtonsThereIsNoFooter) {
    dialog.SetOptions(0x28);
    dialog.AddCommandControl(101, L"one");
    const SchemeColor face(COLOR_3DFACE, RGB(210, 220, 230)), shadow(COLOR_3DSHADOW, RGB(90, 10, 120));
    Look([&](HWND box) {
        const Picture picture = Shown(box);
        EXPECT_EQ(picture.count(RGB(210, 220, 230)) + picture.count(RGB(90, 10, 120)), 0);
        const int unit = font_height(box);
        EXPECT_EQ(picture.height(), child_of(box, 101).rect.bottom + unit / 2 + unit / 2);
    });
}

TEST_F(LinkPaint, TitleAndSecondTextHaveTheLinksColour) {
    Look([&](HWND box) {
        const CSize size = SizeOf(box);
        Canvas canvas(size.cx, size.cy, RGB(9, 9, 9));
        Draw(box, canvas, 0);
        EXPECT_EQ(canvas.count(RGB(9, 9, 9)), 0) << "the whole link is painted";
        EXPECT_EQ(canvas.at(0, 0), Paper());
        const CRect ink = BoxOf(canvas, size, kLinkColor);
        const int unit = font_height(box);
        EXPECT_GE(ink.left, 40);
        EXPECT_LE(ink.left, 40 + 4);
        EXPECT_GE(ink.top, unit);
        EXPECT_LE(ink.bottom, size.cy - unit);
        EXPECT_EQ(canvas.count(kHoverColor), 0);
    });
}

TEST_F(LinkPaint, SecondTextStandsFivePixelsBelowTheTitle) {
    Look([&](HWND box) {
        const CSize size = SizeOf(box);
        const int unit = font_height(box);
        Canvas canvas(size.cx, size.cy), alone(size.cx, size.cy);
        Draw(box, canvas, 0);
        // The same words, where they are expected, in the fonts and the colour of a link.
        const HWND link = ::GetDlgItem(box, 101);
        alone.dc.FillSolidRect(CRect(CPoint(0, 0), size), Paper());
        alone.dc.SetBkMode(TRANSPARENT);
        alone.dc.SetTextColor(kLinkColor);
        CRect area(40, unit, static_cast<int>(size.cx) - unit / 2, static_cast<int>(size.cy) - unit);
        CFont* const former = alone.dc.SelectObject(CWnd::FromHandle(link)->GetFont());
        area.top += alone.dc.DrawText(L"Overwrite", -1, &area, DT_WORDBREAK) + 5;
        alone.dc.SelectObject(CWnd::FromHandle(box)->GetFont());
        alone.dc.DrawText(L"The former drawing is lost.", -1, &area, DT_WORDBREAK);
        alone.dc.SelectObject(former);
        int different = 0;
        for (int y = 0; y < size.cy; ++y)
            for (int x = 40; x < size.cx; ++x) different += canvas.at(x, y) != alone.at(x, y);
        EXPECT_EQ(different, 0);
        EXPECT_EQ(font_height(link), std::lround(unit * 1.6));
    });
}

TEST_F(LinkPaint, ArrowStandsInTheMiddleOfFortyPixelsOneUnitDown) {
    Look([&](HWND box) {
        const CSize size = SizeOf(box);
        Canvas canvas(size.cx, size.cy);
        Draw(box, canvas, 0);
        const int unit = font_height(box);
        CRect arrow(size.cx, size.cy, 0, 0);
        for (int y = 0; y < size.cy; ++y)
            for (int x = 0; x < 40; ++x)
                if (canvas.at(x, y) != Paper())
                    arrow = CRect(std::min<int>(arrow.left, x), std::min<int>(arrow.top, y),
                                  std::max<int>(arrow.right, x + 1), std::max<int>(arrow.bottom, y + 1));
        const HBITMAP bitmap = ::LoadBitmapW(toolkit, MAKEINTRESOURCEW(1021));
        BITMAP bits = {};
        ::GetObjectW(bitmap, sizeof bits, &bits);
        const int left = (40 - static_cast<int>(bits.bmWidth)) / 2;
        CDC memory;
        memory.CreateCompatibleDC(nullptr);
        const HGDIOBJ former = ::SelectObject(memory.m_hDC, bitmap);
        for (int y = 0; y < bits.bmHeight; ++y)
            for (int x = 0; x < bits.bmWidth; ++x) {
                const COLORREF source = memory.GetPixel(x, y);
                const COLORREF expected = source == RGB(255, 0, 255) ? Paper() : source;
                ASSERT_EQ(canvas.at(left + x, unit + y), expected) << x << " " << y;
            }
        ::SelectObject(memory.m_hDC, former);
        ::DeleteObject(bitmap);
        EXPECT_GE(arrow.left, left);
        EXPECT_LE(arrow.right, left + static_cast<int>(bits.bmWidth));
        EXPECT_FALSE(arrow.IsRectEmpty());
    });
}

TEST_F(LinkPaint, WithoutTheArrowTheTextBeginsHalfAUnitFromTheEdge) {
    dialog.SetOptions(0x28);
    Look([&](HWND box) {
        const CSize size = SizeOf(box);
        Canvas canvas(size.cx, size.cy);
        Draw(box, canvas, 0);
        const CRect ink = BoxOf(canvas, size, kLinkColor);
        EXPECT_GE(ink.left, font_height(box) / 2);
        EXPECT_LE(ink.left, font_height(box) / 2 + 4);
    });
}

TEST_F(LinkPaint, UnderThePointerItHasTheHoverColourAndAFrameUntilItLeaves) {
    Look([&](HWND box) {
        const HWND link = ::GetDlgItem(box, 101);
        const CSize size = SizeOf(box);
        Canvas plain(size.cx, size.cy), hovered(size.cx, size.cy), left(size.cx, size.cy);
        Draw(box, plain, 0);
        ::ValidateRect(link, nullptr);
        ::SendMessageW(link, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        EXPECT_TRUE(::GetUpdateRect(link, nullptr, FALSE));
        Draw(box, hovered, 0);
        EXPECT_GT(hovered.count(kHoverColor), 0);
        EXPECT_EQ(hovered.count(kLinkColor), 0);
        const COLORREF frame = hovered.at(0, 0);
        EXPECT_NE(frame, Paper());
        EXPECT_TRUE(IsFrame(hovered, CRect(CPoint(0, 0), size), frame));
        ::ValidateRect(link, nullptr);
        ::SendMessageW(link, WM_MOUSELEAVE, 0, 0);
        EXPECT_TRUE(::GetUpdateRect(link, nullptr, FALSE));
        Draw(box, left, 0);
        EXPECT_TRUE(left == plain);
    });
}

namespace {

std::vector<TRACKMOUSEEVENT> tracked;

BOOL WINAPI NoteTracking(TRACKMOUSEEVENT* event) {
    if (event != nullptr) tracked.push_back(*event);
    return TRUE;
}

}  // namespace

TEST_F(LinkPaint, UnderThePointerItAsksToHearThatItLeaves) {
    const ReplacedImport tracking(toolkit, "TrackMouseEvent", &NoteTracking);
    ASSERT_TRUE(tracking.isThere());
    tracked.clear();
    Look([&](HWND box) {
        const HWND link = ::GetDlgItem(box, 101);
        ::SendMessageW(link, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        ASSERT_EQ(tracked.size(), 1u);
        EXPECT_EQ(tracked[0].cbSize, sizeof(TRACKMOUSEEVENT));
        EXPECT_EQ(tracked[0].dwFlags, static_cast<DWORD>(TME_LEAVE));
        EXPECT_EQ(tracked[0].hwndTrack, link);
    });
}

TEST_F(LinkPaint, TheFramesOfHoverAndFocusAreTheSystemsHotAndHighlightColours) {
    const SchemeColor hot(COLOR_HOTLIGHT, RGB(10, 120, 30)), highlight(COLOR_HIGHLIGHT, RGB(140, 20, 60));
    Look([&](HWND box) {
        const CSize size = SizeOf(box);
        Canvas canvas(size.cx, size.cy);
        ::SendDlgItemMessageW(box, 101, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        Draw(box, canvas, ODS_FOCUS);
        EXPECT_EQ(canvas.at(0, 0), RGB(10, 120, 30));
        EXPECT_EQ(canvas.at(1, 1), RGB(140, 20, 60));
    });
}

TEST_F(LinkPaint, LosingTheFocusEndsTheHover) {
    Look([&](HWND box) {
        const HWND link = ::GetDlgItem(box, 101);
        const CSize size = SizeOf(box);
        Canvas plain(size.cx, size.cy), after(size.cx, size.cy);
        Draw(box, plain, 0);
        ::SendMessageW(link, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        ::ValidateRect(link, nullptr);
        ::SetFocus(box);
        EXPECT_TRUE(::GetUpdateRect(link, nullptr, FALSE));
        Draw(box, after, 0);
        EXPECT_TRUE(after == plain);
    });
}

TEST_F(LinkPaint, FocusIsAFrameInsideThatOfTheHover) {
    Look([&](HWND box) {
        const CSize size = SizeOf(box);
        Canvas focused(size.cx, size.cy);
        Draw(box, focused, ODS_FOCUS);
        CRect frame(CPoint(0, 0), size);
        frame.DeflateRect(1, 1);
        EXPECT_EQ(focused.at(0, 0), Paper());
        EXPECT_NE(focused.at(1, 1), Paper());
        EXPECT_TRUE(IsFrame(focused, frame, focused.at(1, 1)));
        Canvas both(size.cx, size.cy);
        ::SendDlgItemMessageW(box, 101, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        Draw(box, both, ODS_FOCUS);
        EXPECT_NE(both.at(0, 0), Paper());
        EXPECT_EQ(both.at(1, 1), focused.at(1, 1));
    });
}

TEST_F(LinkPaint, PressedTheFocusGoesInByTheSystemsBorder) {
    const FocusBorders borders(4, 2);
    Look([&](HWND box) {
        const CSize size = SizeOf(box);
        Canvas pressed(size.cx, size.cy), focused(size.cx, size.cy);
        Draw(box, focused, ODS_FOCUS);
        Draw(box, pressed, ODS_FOCUS | ODS_SELECTED);
        const COLORREF color = focused.at(1, 1);
        CRect frame(CPoint(0, 0), size);
        frame.DeflateRect(1 + 4, 1 + 2);
        EXPECT_EQ(BoxOf(pressed, size, color), frame);
        EXPECT_TRUE(IsFrame(pressed, frame, color));
    });
}

TEST_F(OwnTaskDialogPaint, ClientAreaStandsInTheMiddleOfTheWorkArea) {
    dialog.SetContent(L"body");
    CRect work, window, client;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    Look([&](HWND box) {
        ::GetWindowRect(box, &window);
        ::GetClientRect(box, &client);
    });
    const CSize frame = window.Size() - client.Size();
    EXPECT_EQ(window.left, work.left + (work.Width() - frame.cx - client.Width()) / 2);
    EXPECT_EQ(window.top, work.top + (work.Height() - frame.cy - client.Height()) / 2);
}

TEST_F(OwnTaskDialog, ErasesNothingBeforeItPaints) {
    dialog.SetContent(L"body");
    ui_test::Canvas canvas(50, 50, RGB(1, 2, 3));
    LRESULT answer = 0;
    Run([&](HWND box) {
        answer = ::SendMessageW(box, WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.dc.m_hDC), 0);
        press(box, IDOK);
    });
    EXPECT_EQ(answer, 1);
    EXPECT_TRUE(canvas.isAll(RGB(1, 2, 3)));
}
