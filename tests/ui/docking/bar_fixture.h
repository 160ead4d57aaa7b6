// Bars to look into.
#pragma once

#include <afxcaptionbutton.h>

#include "docking_fixture.h"
#include "expect_rect.h"

namespace docking_test {

class OpenBar : public CKbUiDockControlBar {
public:
    explicit OpenBar(int flags = 2) : CKbUiDockControlBar(flags) {}
    using CKbUiDockControlBar::m_arrButtons;
    using CKbUiDockControlBar::m_bActive;
    using CKbUiDockControlBar::m_dockFlags;
    using CKbUiDockControlBar::m_dockingRect;
    using CKbUiDockControlBar::m_floatingRect;
    using CKbUiDockControlBar::OnAnchor;
    using CKbUiDockControlBar::OnHideBar;

    bool isBlocked() const { return (m_dockFlags & 0x2000000) != 0; }
    CRect floatingRect() const { return m_floatingRect; }
};

/// Whether the cursor is one of the system's.
inline bool showsCursor(LPCWSTR name) { return ::GetCursor() == ::LoadCursorW(nullptr, name); }

/// A point on the middle of a docked bar's caption, in its client coordinates.
inline CPoint captionPlace(CKbUiDockControlBar& bar) {
    CRect client;
    bar.GetClientRect(&client);
    return CPoint(10, -bar.GetCaptionHeight() / 2);
}

/// The middle of a caption button on the screen, by its hit code.
inline CPoint buttonOnScreen(CKbUiDockControlBar& bar, LRESULT hit) {
    CRect window;
    bar.GetWindowRect(&window);
    return window.TopLeft() + bar.FindButtonByHit(hit)->GetRect().CenterPoint();
}

/// The same in the bar's client coordinates.
inline CPoint buttonPlace(CKbUiDockControlBar& bar, LRESULT hit) {
    CPoint place = buttonOnScreen(bar, hit);
    bar.ScreenToClient(&place);
    return place;
}

/// Sends a message of the mouse outside of the client area at a screen point, with the hit code it has there.
inline void sendNcMouse(CWnd& window, UINT message, CPoint screen) {
    const LPARAM place = MAKELPARAM(screen.x, screen.y);
    window.SendMessage(message, static_cast<WPARAM>(window.SendMessage(WM_NCHITTEST, 0, place)), place);
}

inline LRESULT sendMouse(CWnd& window, UINT message, CPoint place, WPARAM flags = 0) {
    return window.SendMessage(message, flags, MAKELPARAM(place.x, place.y));
}

}  // namespace docking_test
