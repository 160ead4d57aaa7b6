// A window that holds controls: it records every "KbUIMessage" that it gets and answers as the test says.
#pragma once

#include <vector>

#include <ktui/host/notification.h>
#include "ui_test.h"

namespace ui_test {

/// One message as it came.
struct Heard {
    unsigned id;
    KBUI_NOTIFY notification;
    LPARAM datum;
};

class RecordingHolder : public ParentWindow {
public:
    std::vector<Heard> heard;
    LRESULT reply = 0;
    int changes = 0;    ///< EN_CHANGE notifications that reached this window
    int closeUps = 0;   ///< CBN_CLOSEUP notifications that reached this window
    int dropDowns = 0;  ///< CBN_DROPDOWN notifications that reached this window

    /// Number of messages about `notification`.
    int count(KBUI_NOTIFY notification) const;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    afx_msg LRESULT OnKbUiMessage(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

/// Moves the mouse over `window` without moving the cursor: sends WM_MOUSEMOVE at a client point.
inline void send_move(const CWnd& window, int x, int y) {
    ::SendMessageW(window.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(x, y));
}

}  // namespace ui_test
