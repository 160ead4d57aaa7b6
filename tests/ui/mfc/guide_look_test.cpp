// What guides and the shade of a drop look like, and who lies above whom.
#include <algorithm>

#include "docking_fixture.h"

using namespace docking;

namespace {

/// A visible window of this program by its name; null without one.
HWND shown(const wchar_t* name) {
    const HWND window = ::FindWindowW(nullptr, name);
    return window != nullptr && ::IsWindowVisible(window) ? window : nullptr;
}

class GuideLook : public Docking {
protected:
    /// A pane is dragged by the mouse to a place.
    void drag_to(CPoint screen) {
        if (!manager().is_dragging()) {
            press(*dragged, caption_of(*dragged));
            move(caption_of(*dragged) + CSize(-60, 40));
        }
        move(screen);
    }
    /// A pixel of a window, as it shows it, at a point of the screen.
    static COLORREF pixel(HWND window, CPoint screen) {
        ::ScreenToClient(window, &screen);
        const HDC dc = ::GetDC(window);
        const COLORREF color = ::GetPixel(dc, screen.x, screen.y);
        ::ReleaseDC(window, dc);
        return color;
    }
    static bool is_part(HWND window, CPoint screen) {
        CRect place;
        ::GetWindowRect(window, &place);
        HRGN const region = ::CreateRectRgn(0, 0, 0, 0);
        ::GetWindowRgn(window, region);
        const bool part = ::PtInRegion(region, screen.x - place.left, screen.y - place.top) != FALSE;
        ::DeleteObject(region);
        return part;
    }
    static CRect square(CPoint middle) {
        return CRect(middle.x - 16, middle.y - 16, middle.x + 16, middle.y + 16);
    }

    Pane& target = docked(L"target", AFX_IDW_DOCKBAR_LEFT, 200);
    Pane* const dragged = &docked(L"dragged", AFX_IDW_DOCKBAR_RIGHT);
    const COLORREF face = ::GetSysColor(COLOR_WINDOW), line = ::GetSysColor(COLOR_BTNSHADOW),
                   ink = ::GetSysColor(COLOR_WINDOWTEXT), lit = ::GetSysColor(COLOR_HIGHLIGHT),
                   litText = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
};

}  // namespace

TEST_F(GuideLook, each_guide_shows_the_part_that_a_drop_takes) {
    const CPoint middle = on_screen(target).CenterPoint();
    drag_to(middle + CSize(0, 60));
    const HWND guides = shown(L"Dock guides");
    ASSERT_NE(guides, nullptr);
    const struct {
        CSize way;
        CSize taken, free;  // from the middle of the guide, points of the part that is taken and of the other
    } cross[] = {{{-36, 0}, {-5, 4}, {5, 4}},
                 {{36, 0}, {5, 4}, {-5, 4}},
                 {{0, -36}, {4, -5}, {4, 5}},
                 {{0, 36}, {4, 5}, {4, -5}}};
    for (const auto& guide : cross) {
        const CRect rect = square(middle + guide.way);
        EXPECT_TRUE(is_part(guides, rect.CenterPoint()));
        EXPECT_EQ(pixel(guides, rect.TopLeft()), line);
        EXPECT_EQ(pixel(guides, rect.BottomRight() - CSize(1, 1)), line);
        EXPECT_EQ(pixel(guides, rect.TopLeft() + CSize(2, 2)), face);
        EXPECT_EQ(pixel(guides, rect.CenterPoint() + guide.taken), lit);
        EXPECT_EQ(pixel(guides, rect.CenterPoint() + guide.free), face);
        const CRect picture(rect.left + 6, rect.top + 6, rect.right - 6, rect.bottom - 6);
        const CPoint corners[] = {picture.TopLeft(), CPoint(picture.right - 1, picture.bottom - 1)};
        EXPECT_TRUE(pixel(guides, corners[0]) == ink || pixel(guides, corners[1]) == ink)
            << "a frame around the picture";
        EXPECT_EQ(pixel(guides, picture.TopLeft() - CSize(1, 1)), face);
    }
    const CRect tabs = square(middle);
    EXPECT_EQ(pixel(guides, tabs.CenterPoint() + CSize(5, 5)), lit) << "tabs take all of it";
    EXPECT_EQ(pixel(guides, tabs.CenterPoint() - CSize(5, 5)), lit);
    EXPECT_FALSE(is_part(guides, middle + CSize(-18, -18))) << "between them the frame shows";
    EXPECT_FALSE(is_part(guides, middle + CSize(0, 60)));
    key(VK_ESCAPE);
    EXPECT_EQ(shown(L"Dock guides"), nullptr);
}

TEST_F(GuideLook, the_guide_under_the_mouse_stands_out) {
    const CPoint middle = on_screen(target).CenterPoint();
    const CRect upper = square(middle + CSize(0, -36)), lower = square(middle + CSize(0, 36));
    drag_to(upper.CenterPoint());
    const HWND guides = shown(L"Dock guides");
    ASSERT_NE(guides, nullptr);
    EXPECT_EQ(pixel(guides, upper.TopLeft() + CSize(2, 2)), lit);
    EXPECT_EQ(pixel(guides, upper.CenterPoint() + CSize(4, -5)), litText);
    EXPECT_EQ(pixel(guides, upper.CenterPoint() + CSize(4, 5)), lit);
    EXPECT_EQ(pixel(guides, lower.TopLeft() + CSize(2, 2)), face);
    move(lower.CenterPoint());
    EXPECT_EQ(pixel(guides, upper.TopLeft() + CSize(2, 2)), face) << "and no longer";
    EXPECT_EQ(pixel(guides, lower.TopLeft() + CSize(2, 2)), lit);
    key(VK_ESCAPE);
}

TEST_F(GuideLook, the_shade_has_the_colour_that_is_set) {
    CSmartDockingInfo& info = CDockingManager::GetSmartDockingParams();
    const BOOL use = info.m_bUseThemeColorInShading;
    const COLORREF former = info.m_clrToneDest;
    const CPoint upper = on_screen(target).CenterPoint() - CSize(0, 36);
    const auto color = [&](BOOL theme, COLORREF tone) {
        info.m_bUseThemeColorInShading = theme;
        info.m_clrToneDest = tone;
        drag_to(upper + CSize(0, 100));
        EXPECT_EQ(shown(L"Dock target"), nullptr) << "no place, no shade";
        drag_to(upper);
        const HWND shade = shown(L"Dock target");
        CRect place;
        ::GetWindowRect(shade, &place);
        const COLORREF found = pixel(shade, place.CenterPoint());
        key(VK_ESCAPE);
        return found;
    };
    EXPECT_EQ(color(TRUE, RGB(1, 2, 3)), RGB(1, 2, 3));
    EXPECT_EQ(color(FALSE, RGB(1, 2, 3)), lit);
    EXPECT_EQ(color(TRUE, static_cast<COLORREF>(-1)), lit);
    info.m_bUseThemeColorInShading = use;
    info.m_clrToneDest = former;
}

TEST_F(GuideLook, both_are_weak_and_let_the_mouse_through) {
    const CPoint upper = on_screen(target).CenterPoint() - CSize(0, 36);
    drag_to(upper);
    const struct {
        const wchar_t* name;
        BYTE alpha;
    } windows[] = {{L"Dock guides", 235}, {L"Dock target", 110}};
    for (const auto& [name, alpha] : windows) {
        const HWND window = shown(name);
        ASSERT_NE(window, nullptr);
        BYTE found = 0;
        COLORREF key_ = 0;
        DWORD flags = 0;
        ASSERT_TRUE(::GetLayeredWindowAttributes(window, &key_, &found, &flags));
        EXPECT_EQ(found, alpha);
        EXPECT_EQ(flags, static_cast<DWORD>(LWA_ALPHA));
        const auto style = static_cast<DWORD>(::GetWindowLongW(window, GWL_EXSTYLE));
        for (const long long wanted : std::initializer_list<long long>{
                 WS_EX_TOPMOST, WS_EX_TOOLWINDOW, WS_EX_NOACTIVATE, WS_EX_TRANSPARENT, WS_EX_LAYERED})
            EXPECT_NE(style & wanted, 0) << name << ' ' << wanted;
        EXPECT_EQ(::GetWindow(window, GW_OWNER), frame->m_hWnd);
    }
    key(VK_ESCAPE);
    EXPECT_EQ(shown(L"Dock target"), nullptr);
}

TEST_F(GuideLook, a_drop_takes_half_of_the_room_at_most) {
    const CRect room = on_screen(target);
    // The pane that is dragged wants 150; half of the height there is is more, half of the width is less.
    drag_to(room.CenterPoint() - CSize(36, 0));
    CRect left;
    ::GetWindowRect(shown(L"Dock target"), &left);
    EXPECT_NEAR(left.Width(), room.Width() / 2, 4);
    EXPECT_EQ(left.left, room.left);
    EXPECT_EQ(left.Height(), room.Height());
    drag_to(room.CenterPoint() - CSize(0, 36));
    CRect top;
    ::GetWindowRect(shown(L"Dock target"), &top);
    EXPECT_EQ(top.top, room.top);
    EXPECT_EQ(top.Width(), room.Width());
    EXPECT_LE(top.Height(), room.Height() / 2);
    drag_to(room.CenterPoint());
    CRect all;
    ::GetWindowRect(shown(L"Dock target"), &all);
    EXPECT_EQ(all, room) << "as a tab it takes all of it";
    key(VK_ESCAPE);
    EXPECT_TRUE(dragged->IsDocked());
    check_frame();
}
