// How the Places list looks, and what it shows under the mouse.
#include "place_fixture.h"

#include "canvas.h"
#include "color_scheme.h"
#include "fake_resolution.h"
#include "picture.h"
#include "scheme_in_force.h"
#include "sent_messages.h"

namespace {

using ui_test::Canvas;
using ui_test::Picture;

constexpr COLORREF kGround = RGB(191, 205, 219);
constexpr COLORREF kDarkEdge = RGB(16, 0, 0);
constexpr COLORREF kWhite = RGB(255, 255, 255);

class PlaceListPaint : public PlacesTest {
protected:
    /// Paints what is to be painted.
    void show() {
        ui_test::pump();
        list->UpdateWindow();
    }
    /// A row drawn on a canvas with a place of its own.
    void draw(Canvas& canvas, int row, UINT state, CRect place) {
        DRAWITEMSTRUCT drawn = {};
        drawn.CtlType = ODT_LISTBOX;
        drawn.CtlID = 57015;
        drawn.itemID = static_cast<UINT>(row);
        drawn.itemAction = ODA_DRAWENTIRE;
        drawn.itemState = state;
        drawn.hwndItem = list->m_hWnd;
        drawn.hDC = canvas.dc.m_hDC;
        drawn.rcItem = place;
        drawn.itemData = row >= 0 ? list->GetItemData(row) : 0;
        list->DrawItem(&drawn);
    }
    /// What such a row looks like, drawn with the system's calls alone.
    void drawExpected(Canvas& canvas, int row, CRect place, COLORREF topLeft = CLR_INVALID,
                      COLORREF bottomRight = CLR_INVALID) {
        const HDC dc = canvas.dc.m_hDC;
        const int middle = (place.left + place.right) / 2, top = place.top + 5;
        if (topLeft != CLR_INVALID) {
            const int left = middle - 21;
            fill(dc, {left, top, left + 41, top + 1}, topLeft);
            fill(dc, {left, top, left + 1, top + 41}, topLeft);
            fill(dc, {left + 41, top, left + 42, top + 42}, bottomRight);
            fill(dc, {left, top + 41, left + 42, top + 42}, bottomRight);
        }
        ::DrawIcon(dc, middle - 16, top + 5, item(row).m_icon);
        RECT text = {place.left + 7, top, place.right - 7, place.bottom - 5};
        const HGDIOBJ former = ::SelectObject(dc, font.m_hObject);
        ::SetTextColor(dc, kWhite);
        ::SetBkMode(dc, TRANSPARENT);
        ::DrawTextW(dc, item(row).m_display, -1, &text,
                    DT_CENTER | DT_BOTTOM | DT_SINGLELINE | DT_END_ELLIPSIS);
        ::SelectObject(dc, former);
    }
    static void fill(HDC dc, RECT rect, COLORREF color) {
        const HBRUSH brush = ::CreateSolidBrush(color);
        ::FillRect(dc, &rect, brush);
        ::DeleteObject(brush);
    }
    /// The colours of the frame of a row on the screen: its top left and its bottom right edge.
    std::pair<COLORREF, COLORREF> frameOf(int row) {
        show();
        const Picture picture(*list);
        const CRect place = rectOf(row);
        const int middle = (place.left + place.right) / 2, top = place.top + 5;
        return {picture.at(middle - 21, top + 20), picture.at(middle + 20, top + 20)};
    }
    static std::pair<COLORREF, COLORREF> none() { return {kGround, kGround}; }
    static std::pair<COLORREF, COLORREF> sunken() { return {kDarkEdge, ::GetSysColor(COLOR_BTNHIGHLIGHT)}; }
    static std::pair<COLORREF, COLORREF> raised() { return {::GetSysColor(COLOR_BTNHIGHLIGHT), kDarkEdge}; }

    static CRect place() { return {10, 20, 111, 95}; }
};

TEST_F(PlaceListPaint, ARowIsAnIconOverItsWhiteCaption) {
    openWith({L"one"});
    ASSERT_NE(item(0).m_icon, nullptr);
    Canvas drawn(130, 110, kGround), expected(130, 110, kGround);
    draw(drawn, 0, 0, place());
    drawExpected(expected, 0, place());
    EXPECT_TRUE(drawn == expected);
    EXPECT_GT(drawn.count(kWhite), 0);
    EXPECT_LT(drawn.count(kGround), 130 * 110);
}

TEST_F(PlaceListPaint, AtOneAndAHalfTheSizeAHostThatFollowsItGetsAllOfItLarger) {
    const ui_test::FakeResolution larger(144);
    openWith({L"one"});
    ASSERT_NE(item(0).m_icon, nullptr);
    const CRect row(10, 20, 161, 130);
    Canvas drawn(180, 150, kGround), expected(180, 150, kGround);
    draw(drawn, 0, ODS_SELECTED, row);
    const HDC dc = expected.dc.m_hDC;
    const int middle = (row.left + row.right) / 2, top = row.top + 8, left = middle - 31;
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    fill(dc, {left, top, left + 62, top + 1}, kDarkEdge);
    fill(dc, {left, top, left + 1, top + 62}, kDarkEdge);
    fill(dc, {left + 62, top, left + 63, top + 63}, light);
    fill(dc, {left, top + 62, left + 63, top + 63}, light);
    ::DrawIconEx(dc, middle - 24, top + 8, item(0).m_icon, 48, 48, 0, nullptr, DI_NORMAL);
    RECT text = {row.left + 3 + 8, top, row.right - 3 - 8, row.bottom - 8};
    const HGDIOBJ former = ::SelectObject(dc, font.m_hObject);
    ::SetTextColor(dc, kWhite);
    ::SetBkMode(dc, TRANSPARENT);
    ::DrawTextW(dc, item(0).m_display, -1, &text, DT_CENTER | DT_BOTTOM | DT_SINGLELINE | DT_END_ELLIPSIS);
    ::SelectObject(dc, former);
    EXPECT_TRUE(drawn == expected);
}

TEST_F(PlaceListPaint, InDarkColorsAHostThatFollowsThemGetsThem) {
    const ui_test::SchemeInForce dark(TRUE);
    openWith({L"one"});
    show();
    const Picture picture(*list);
    EXPECT_EQ(picture.commonest(), ui_test::scheme::kWindow);
    EXPECT_EQ(picture.count(kGround), 0);
    EXPECT_EQ(picture.count(kWhite), 0);
    EXPECT_GT(picture.count(ui_test::scheme::kWindowText), 0);
    CClientDC dc(list.get());
    const LRESULT brush = list->GetParent()->SendMessage(
        WM_CTLCOLORLISTBOX, reinterpret_cast<WPARAM>(dc.m_hDC), reinterpret_cast<LPARAM>(list->m_hWnd));
    EXPECT_EQ(reinterpret_cast<HBRUSH>(brush), ::GetSysColorBrush(COLOR_WINDOW));
    EXPECT_EQ(dc.GetBkColor(), ui_test::scheme::kWindow);
}

TEST_F(PlaceListPaint, InDarkColorsAHostThatKeepsTheAgreedOnesKeepsThem) {
    const ui_test::SchemeInForce dark(FALSE);
    openWith({L"one"});
    show();
    const Picture picture(*list);
    EXPECT_EQ(picture.commonest(), kGround);
    EXPECT_GT(picture.count(kWhite), 0);
}

TEST_F(PlaceListPaint, InLightColorsAHostThatFollowsThemKeepsTheAgreedOnes) {
    const ui_test::ColorsOfScheme standard(ui_test::kSchemes[0]);
    const ui_test::FakeResolution resolution(96);
    openWith({L"one"});
    show();
    const Picture picture(*list);
    EXPECT_EQ(picture.commonest(), kGround);
    EXPECT_GT(picture.count(kWhite), 0);
}

TEST_F(PlaceListPaint, ASelectedRowIsSunken) {
    openWith({L"one"});
    Canvas drawn(130, 110, kGround), expected(130, 110, kGround);
    draw(drawn, 0, ODS_SELECTED | ODS_FOCUS, place());
    drawExpected(expected, 0, place(), kDarkEdge, ::GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_TRUE(drawn == expected);
    EXPECT_GE(drawn.count(kDarkEdge), 81);
}

TEST_F(PlaceListPaint, ALongCaptionEndsInAnEllipsisWithinItsMargins) {
    openWith({L"one"});
    list->AddPlace(folder(L"two"), L"a caption that is much longer than its row && wide", 0, -1);
    Canvas drawn(130, 110, kGround), expected(130, 110, kGround);
    draw(drawn, 1, 0, place());
    drawExpected(expected, 1, place());
    EXPECT_TRUE(drawn == expected);
    for (int y = 60; y < 110; ++y)
        for (const int x : {10, 11, 12, 13, 14, 15, 16, 104, 105, 106, 107, 108, 109, 110})
            EXPECT_EQ(drawn.at(x, y), kGround) << x << " " << y;
}

TEST_F(PlaceListPaint, ARowWithoutAnIconIsItsCaption) {
    openWith({L"gone"});
    const_cast<PlaceItem&>(item(0)).TakeIcon(nullptr);
    Canvas drawn(130, 110, kGround), expected(130, 110, kGround);
    draw(drawn, 0, 0, place());
    drawExpected(expected, 0, place());
    EXPECT_TRUE(drawn == expected);
}

TEST_F(PlaceListPaint, NoRowIsNotDrawn) {
    openWith({L"one"});
    Canvas drawn(130, 110, kGround);
    draw(drawn, -1, ODS_SELECTED, place());
    EXPECT_TRUE(drawn.isAll(kGround));
}

TEST_F(PlaceListPaint, DrawingLeavesTheContextAsItWas) {
    openWith({L"one"});
    Canvas drawn(130, 110, kGround);
    drawn.dc.SetTextColor(RGB(1, 2, 3));
    drawn.dc.SetBkMode(OPAQUE);
    const HGDIOBJ before = ::GetCurrentObject(drawn.dc.m_hDC, OBJ_FONT);
    draw(drawn, 0, ODS_SELECTED, place());
    EXPECT_EQ(::GetCurrentObject(drawn.dc.m_hDC, OBJ_FONT), before);
    EXPECT_EQ(drawn.dc.GetTextColor(), static_cast<COLORREF>(RGB(1, 2, 3)));
    EXPECT_EQ(drawn.dc.GetBkMode(), OPAQUE);
}

TEST_F(PlaceListPaint, TheGroundHasOneColourBesideAndBeneathTheRows) {
    openWith({L"one", L"two"});
    pointAt({200, 100});
    list->Invalidate();
    show();
    const Picture picture(*list);
    EXPECT_EQ(picture.at(0, 0), kGround);
    EXPECT_EQ(picture.at(picture.width() - 1, rectOf(0).bottom), kGround);
    const int end = rectOf(1).bottom;
    for (int y = end; y < picture.height(); y += 7)
        for (int x = 0; x < picture.width(); x += 7) EXPECT_EQ(picture.at(x, y), kGround) << x << " " << y;
}

TEST_F(PlaceListPaint, TheSystemIsGivenOneBrushOfTheGround) {
    openWith({L"one"});
    CClientDC dc(list.get());
    const auto brushFor = [&] {
        dc.SetBkColor(RGB(1, 2, 3));
        return list->GetParent()->SendMessage(WM_CTLCOLORLISTBOX, reinterpret_cast<WPARAM>(dc.m_hDC),
                                              reinterpret_cast<LPARAM>(list->m_hWnd));
    };
    const LRESULT brush = brushFor();
    LOGBRUSH ground = {};
    ASSERT_NE(::GetObjectW(reinterpret_cast<HBRUSH>(brush), sizeof ground, &ground), 0);
    EXPECT_EQ(ground.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(ground.lbColor, kGround);
    EXPECT_EQ(dc.GetBkColor(), kGround);
    EXPECT_EQ(brushFor(), brush);
    EXPECT_EQ(dc.GetBkColor(), kGround);
}

TEST_F(PlaceListPaint, ErasingFillsAllOfIt) {
    openWith({L"one"});
    CRect client;
    list->GetClientRect(&client);
    Canvas canvas(client.Width(), client.Height(), RGB(1, 1, 1));
    EXPECT_EQ(list->SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.dc.m_hDC), 0), 1);
    EXPECT_TRUE(canvas.isAll(kGround));
}

TEST_F(PlaceListPaint, TheRowUnderTheMouseIsRaised) {
    openWith({L"one", L"two", L"Three"});
    pointAt({200, 100});
    EXPECT_EQ(frameOf(1), none());
    pointAt(in(1));
    EXPECT_EQ(frameOf(1), raised());
    EXPECT_EQ(frameOf(0), none());
    pointAt(in(0));
    EXPECT_EQ(frameOf(0), raised());
    EXPECT_EQ(frameOf(1), none());
    pointAt(beneath());
    EXPECT_EQ(frameOf(0), none());
    EXPECT_EQ(frameOf(2), none()) << "the space beneath is no part of the last row";
}

TEST_F(PlaceListPaint, ASelectedRowUnderTheMouseStaysSunken) {
    openWith({L"one", L"two"});
    click(1);
    pointAt(in(1));
    EXPECT_EQ(frameOf(1), sunken());
    pointAt(in(0));
    EXPECT_EQ(frameOf(1), sunken());
    EXPECT_EQ(frameOf(0), raised());
}

TEST_F(PlaceListPaint, WithTheButtonDownNoOtherRowGetsHot) {
    openWith({L"one", L"two"});
    pointAt(in(0));
    setTold(in(1));
    send(WM_MOUSEMOVE, in(1), MK_LBUTTON);
    ::ReleaseCapture();
    EXPECT_EQ(frameOf(0), raised());
    EXPECT_EQ(frameOf(1), none());
    send(WM_MOUSEMOVE, in(1));
    EXPECT_EQ(frameOf(0), none());
    EXPECT_EQ(frameOf(1), raised());
}

TEST_F(PlaceListPaint, ARowThatTheMouseLeavesIsPlain) {
    openWith({L"one", L"two"});
    pointAt(in(0));
    EXPECT_EQ(frameOf(0), raised());
    list->SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(frameOf(0), none());
    EXPECT_EQ(frameOf(1), none());
}

TEST_F(PlaceListPaint, TheRealMouseMakesARowHotAndPlainAgain) {
    openWith({L"one", L"two"});
    EXPECT_TRUE(restAt(in(1), [this] { return frameOf(1) == raised(); }));
    EXPECT_TRUE(restAt({300, 100}, [this] { return frameOf(1) == none(); }));
}

TEST_F(PlaceListPaint, ARowUnselectedByAKeyLosesItsFrame) {
    openWith({L"one", L"two"});
    pointAt({200, 100});
    list->SetFocus();
    list->SetCurSel(0);
    list->Invalidate();
    EXPECT_EQ(frameOf(0), sunken());
    list->SendMessage(WM_KEYDOWN, VK_DOWN);
    EXPECT_EQ(list->GetCurSel(), 1);
    EXPECT_EQ(frameOf(0), none());
    EXPECT_EQ(frameOf(1), sunken());
}

TEST_F(PlaceListPaint, EachMoveWithoutTheButtonAsksForHoveringAndLeaving) {
    openWith({L"one", L"two"});
    auto& tracked = trackedMouse();
    tracked.clear();
    send(WM_MOUSEMOVE, in(0));
    ASSERT_EQ(tracked.size(), 1u);
    EXPECT_EQ(tracked[0].cbSize, sizeof(TRACKMOUSEEVENT));
    EXPECT_EQ(tracked[0].dwFlags, static_cast<DWORD>(TME_HOVER | TME_LEAVE));
    EXPECT_EQ(tracked[0].hwndTrack, list->m_hWnd);
    EXPECT_EQ(tracked[0].dwHoverTime, 0u);
    send(WM_MOUSEMOVE, in(0));
    EXPECT_EQ(tracked.size(), 2u);
    send(WM_MOUSEMOVE, in(0), MK_LBUTTON);
    ::ReleaseCapture();
    ASSERT_EQ(tracked.size(), 3u);
    EXPECT_TRUE(tracked[2].dwFlags & TME_CANCEL) << "of the drag";
}

/// The tip of the list: its window, and what it says.
class PlaceListTip : public PlaceListPaint {
protected:
    HWND tip() {
        HWND found = nullptr;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM result) -> BOOL {
                wchar_t name[64] = {};
                ::GetClassNameW(window, name, 64);
                if (::lstrcmpiW(name, TOOLTIPS_CLASSW) != 0) return TRUE;
                TOOLINFOW tool = {};
                tool.cbSize = sizeof tool;
                if (!::SendMessageW(window, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool))) return TRUE;
                auto& search = *reinterpret_cast<std::pair<HWND, HWND>*>(result);
                if (reinterpret_cast<HWND>(tool.uId) != search.first) return TRUE;
                search.second = window;
                return FALSE;
            },
            reinterpret_cast<LPARAM>(&(m_search = {list->m_hWnd, nullptr})));
        found = m_search.second;
        return found;
    }
    std::wstring tipText() {
        wchar_t text[256] = {};
        TOOLINFOW tool = {};
        tool.cbSize = sizeof tool;
        tool.hwnd = child;
        tool.uId = reinterpret_cast<UINT_PTR>(list->m_hWnd);
        tool.lpszText = text;
        ::SendMessageW(tip(), TTM_GETTEXTW, 256, reinterpret_cast<LPARAM>(&tool));
        return text;
    }
    bool tipShows() { return ::IsWindowVisible(tip()) != FALSE; }

private:
    std::pair<HWND, HWND> m_search;
};

TEST_F(PlaceListTip, RestingOnARowShowsItsCaption) {
    openWith({L"one", L"two"});
    ASSERT_NE(tip(), nullptr);
    EXPECT_TRUE(restAt(in(1), [this] { return tipShows(); }));
    EXPECT_EQ(tipText(), L"two");
    EXPECT_TRUE(restAt(in(0), [this] { return tipText() == L"one" && tipShows(); }));
    EXPECT_TRUE(restAt(beneath(), [this] { return !tipShows(); }));
}

/// What is sent to the tip, by name.
class TipMessages {
public:
    explicit TipMessages(HWND tip)
        : m_watch([this, tip](const CWPSTRUCT& message) {
              if (message.hwnd != tip) return;
              if (message.message == TTM_UPDATETIPTEXTW)
                  said.push_back(std::wstring(L"text ") +
                                 reinterpret_cast<const TOOLINFOW*>(message.lParam)->lpszText);
              if (message.message == TTM_ACTIVATE) said.push_back(message.wParam ? L"on" : L"off");
              if (message.message == TTM_RELAYEVENT) {
                  const MSG& relayed = *reinterpret_cast<const MSG*>(message.lParam);
                  said.push_back(L"relay " + std::to_wstring(relayed.message) + L" " +
                                 std::to_wstring(relayed.lParam));
                  relayedTo = relayed.hwnd;
              }
          }) {}
    std::vector<std::wstring> said;
    HWND relayedTo = nullptr;

private:
    ui_test::SentMessages m_watch;
};

TEST_F(PlaceListTip, HoveringSetsTheTextThenTurnsItOnAndRelaysAMove) {
    openWith({L"one", L"two"});
    pointAt(in(1));
    TipMessages seen(tip());
    send(WM_MOUSEHOVER, in(1));
    EXPECT_EQ(seen.said, (std::vector<std::wstring>{L"text two", L"on",
                                                    L"relay " + std::to_wstring(WM_MOUSEMOVE) + L" " +
                                                        std::to_wstring(MAKELPARAM(in(1).x, in(1).y))}));
    EXPECT_EQ(seen.relayedTo, list->m_hWnd);
}

TEST_F(PlaceListTip, ATipThatShowsForItsRowIsLeftAlone) {
    openWith({L"one", L"two"});
    ASSERT_TRUE(restAt(in(1), [this] { return tipShows(); }));
    setTold(in(1));
    TipMessages seen(tip());
    send(WM_MOUSEHOVER, in(1));
    EXPECT_TRUE(seen.said.empty());
    pointAt(in(0));
    seen.said.clear();
    send(WM_MOUSEHOVER, in(0));
    ASSERT_FALSE(seen.said.empty());
    EXPECT_EQ(seen.said[0], L"text one");
}

TEST_F(PlaceListTip, OverNoRowItIsTurnedOffAndForgotten) {
    openWith({L"one", L"two"});
    ASSERT_TRUE(restAt(in(1), [this] { return tipShows(); }));
    pointAt(beneath());
    TipMessages seen(tip());
    send(WM_MOUSEHOVER, beneath());
    EXPECT_EQ(seen.said, (std::vector<std::wstring>{L"off"}));
    EXPECT_FALSE(tipShows());
    pointAt(in(1));
    seen.said.clear();
    send(WM_MOUSEHOVER, in(1));
    EXPECT_EQ(seen.said.size(), 3u);
}

TEST_F(PlaceListTip, GoesWithTheList) {
    openWith({L"one"});
    const HWND window = tip();
    ASSERT_NE(window, nullptr);
    list->FreePlaces();
    EXPECT_FALSE(::IsWindow(window));
}

}  // namespace
