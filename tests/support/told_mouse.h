// Answers the class layer when it asks for the mouse. The real one is the machine's, which may be anywhere,
// and its moves get lost under Wine.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

#include <vector>

#include "replaced_import.h"

namespace ui_test {

/// Where the class layer finds the mouse, and which windows asked to hear that it left them; one at a time.
/// The mouse never leaves by itself: a test sends WM_MOUSELEAVE.
class ToldMouse {
public:
    ToldMouse() {
        EXPECT_TRUE(m_place.isThere());
        EXPECT_TRUE(m_leaving.isThere());
        EXPECT_EQ(current(), nullptr);
        current() = this;
    }
    ~ToldMouse() { current() = nullptr; }
    ToldMouse(const ToldMouse&) = delete;
    ToldMouse& operator=(const ToldMouse&) = delete;

    /// On the screen; far from the frames of these tests at first.
    static constexpr POINT kFarAway = {1000, 740};
    CPoint place = kFarAway;
    std::vector<HWND> askedForLeaving;         ///< the client area
    std::vector<HWND> askedForLeavingCaption;  ///< what is around it

private:
    static ToldMouse*& current() {
        static ToldMouse* mouse = nullptr;
        return mouse;
    }
    static BOOL WINAPI tellPlace(POINT* point) {
        *point = current()->place;
        return TRUE;
    }
    static BOOL WINAPI noteTracking(TRACKMOUSEEVENT* event) {
        if (event->dwFlags == TME_LEAVE) current()->askedForLeaving.push_back(event->hwndTrack);
        if (event->dwFlags == (TME_LEAVE | TME_NONCLIENT))
            current()->askedForLeavingCaption.push_back(event->hwndTrack);
        return TRUE;
    }

    ReplacedImport m_place{::GetModuleHandleW(L"kmfc.dll"), "GetCursorPos", &tellPlace};
    ReplacedImport m_leaving{::GetModuleHandleW(L"kmfc.dll"), "TrackMouseEvent", &noteTracking};
};

}  // namespace ui_test
