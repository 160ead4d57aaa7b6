// Palette sets to look into.
#pragma once

#include <ktui/docking/kbui_palette.h>
#include <ktui/docking/kbui_palette_set.h>
#include <ktui/docking/kbui_palette_set_data.h>
#include <ktui/docking/name_edit.h>

#include "docking_fixture.h"
#include "expect_rect.h"

namespace docking_test {

/// A palette that tells when it goes, and what it was told.
class TestPalette : public CKbUiPalette {
public:
    explicit TestPalette(const wchar_t* name, int* alive = nullptr) : m_alive(alive) {
        SetName(name);
        if (m_alive) ++*m_alive;
    }
    ~TestPalette() override {
        if (m_alive) --*m_alive;
    }
    int OnKillActive() override {
        ++kills;
        return CKbUiPalette::OnKillActive();
    }
    using CKbUiPalette::m_extra;
    using CKbUiPalette::m_paletteSet;
    int kills = 0;
    int erased = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        erased += message == WM_ERASEBKGND;
        return CKbUiPalette::WindowProc(message, wParam, lParam);
    }

private:
    int* m_alive;
};

class OpenSet : public CKbUiPaletteSet {
public:
    using CKbUiPaletteSet::EditPaletteName;
    using CKbUiPaletteSet::HitTest;
    using CKbUiPaletteSet::m_data;
    using CKbUiPaletteSet::m_dockFlags;

    int hit(CPoint screen) {
        foundType = 99;
        foundIndex = 99;
        return HitTest(screen, foundType, foundIndex);
    }
    unsigned foundType = 0;
    unsigned long foundIndex = 0;
};

/// The popup in which something is renamed at the moment, or null.
inline HWND openNameEdit() {
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM result) -> BOOL {
            wchar_t name[20] = {};
            ::GetClassNameW(window, name, 20);
            if (std::wstring(name).substr(0, 11) != L"KH:NameEdit") return TRUE;
            *reinterpret_cast<HWND*>(result) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}
/// Enters a text in it; null gives it up.
inline void endNameEdit(const wchar_t* text) {
    const HWND popup = openNameEdit();
    ASSERT_NE(popup, nullptr);
    if (text) ::SetWindowTextW(::GetDlgItem(popup, 1127), text);
    MSG message = {};
    message.message = WM_KEYDOWN;
    message.wParam = text ? VK_RETURN : VK_ESCAPE;
    EXPECT_TRUE(CWnd::FromHandlePermanent(popup)->PreTranslateMessage(&message));
    EXPECT_EQ(openNameEdit(), nullptr);
}

/// A set that was made as a child of the frame, 200 by 400 pixels of client area, and not docked yet.
struct PaletteSetTest : DockingTest {
    OpenSet set;

    void make(unsigned long style = 0) {
        ASSERT_TRUE(set.CKbUiPaletteSet::Create(L"Set", WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_FLOAT_MULTI,
                                                CRect(0, 0, 250, 450), frame, style));
        sizeTo(200, 400);
    }
    void sizeTo(int width, int height) {
        set.EnableGripper(FALSE);
        set.CWnd::SetWindowPos(&CWnd::wndTop, 0, 0, width, height, SWP_FRAMECHANGED);
        CRect client;
        set.GetClientRect(&client);
        ASSERT_EQ(client.Width(), width);
        ASSERT_EQ(client.Height(), height);
    }
    /// Puts palettes into the set, the first name first, which gets the highest index.
    void fill(std::initializer_list<const wchar_t*> names) {
        for (const wchar_t* name : names) ASSERT_EQ(set.AddPalette(new TestPalette(name)), 0);
    }
    /// A window's place in the set.
    CRect placeOf(const CWnd& window) {
        CRect rect;
        window.GetWindowRect(&rect);
        set.ScreenToClient(&rect);
        return rect;
    }
    static bool isShown(const CWnd& window) { return (window.GetStyle() & WS_VISIBLE) != 0; }
    CXToolTabCtrl& strip() { return set.m_data->m_tabs; }
    /// The middle of a tab on the screen.
    CPoint tabPlace(int index) {
        CRect client;
        strip().GetClientRect(&client);
        const CRect tab = strip().GetTab(index)->m_rect;
        CPoint place((tab.top + tab.bottom) / 2, client.Height() - (tab.left + tab.right) / 2);
        strip().ClientToScreen(&place);
        return place;
    }
    /// The name edit that is open, or null.
};

}  // namespace docking_test
