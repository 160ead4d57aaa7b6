// The tip that a window of the class layer shows for its children, a thousand times.
#include <afxcmn.h>

#include "leak_growth.h"

namespace {

using namespace leaks;

/// A window whose children have tips.
class TippedWindow : public ui_test::ParentWindow {
public:
    TippedWindow() {
        m_button.Create(L"button", WS_CHILD | WS_VISIBLE, CRect(10, 10, 90, 40), this, 61);
        EnableToolTips();
    }
    /// What a mouse move to the button leads to.
    void hover() {
        MSG move = {m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(20, 20), 0, CPoint(20, 20)};
        ClientToScreen(&move.pt);
        FilterToolTipMessage(&move);
    }
    /// The tools of the tip; 0 without one.
    int tools() const {
        HWND tip = nullptr;
        while ((tip = ::FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr)
            if (::GetWindow(tip, GW_OWNER) == m_hWnd)
                return static_cast<int>(::SendMessageW(tip, TTM_GETTOOLCOUNT, 0, 0));
        return 0;
    }

private:
    CButton m_button;
};

class WindowTipLeaks : public ::testing::Test {
protected:
    int done = 0;
};

}  // namespace

TEST_F(WindowTipLeaks, AThousandTipsOfAWindowLeaveNothing) {
    const size_t growth = heap_growth([&] {
        ui_test::ParentWindow window;
        const HWND button = ::CreateWindowExW(0, L"BUTTON", L"button", WS_CHILD | WS_VISIBLE, 10, 10, 80, 30,
                                              window, nullptr, nullptr, nullptr);
        const HWND tip = ::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0, 0,
                                           window, nullptr, nullptr, nullptr);
        ::SetFocus(button);
        ui_test::pump();
        ::DestroyWindow(tip);
    });
    expect_no_growth(
        [&] {
            TippedWindow window;
            window.hover();
            done += window.tools() == 1;
            window.CancelToolTips();
            ui_test::pump();
        },
        growth, kShownGdiSlack);
    EXPECT_EQ(done, kTimes + kWarmUp);
}
