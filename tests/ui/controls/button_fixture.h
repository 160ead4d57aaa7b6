// A button in a window that records what it hears, with its protected side open to the test.
#pragma once

#include <ktui/controls/kbui_owner_draw_button.h>

#include "canvas.h"
#include "recording_holder.h"
#include "sent_messages.h"

namespace controls {

constexpr UINT kId = 57;
constexpr int kWidth = 60;
constexpr int kHeight = 24;

/// `Button` with everything open, and a record of the operations that its base calls.
template <class Button>
class Opened : public Button {
public:
    using Button::Button;
    std::vector<int> pointedAt;  ///< arguments of OnPointedAt
    std::vector<HDROP> dropped;  ///< arguments of OnDragDrop
    std::vector<int> arguments;  ///< of the last DrawButton, from the width on
    bool keepsPainting = true;   ///< FALSE leaves DrawButton with the record

    void OnPointedAt(int value) override {
        pointedAt.push_back(value);
        Button::OnPointedAt(value);
    }
    void OnDragDrop(HDROP files) override {
        dropped.push_back(files);
        Button::OnDragDrop(files);
    }
    void DrawButton(CDC& dc, int width, int height, int isDefault, int isDisabled, int isPressed,
                    int hasFocus) override {
        arguments = {width, height, isDefault, isDisabled, isPressed, hasFocus};
        if (keepsPainting) Button::DrawButton(dc, width, height, isDefault, isDisabled, isPressed, hasFocus);
    }

    using Button::DrawContentText;
    using Button::m_borderFlags;
    using Button::m_buttonFlags;
    using Button::m_kbUiParent;
    using Button::m_lastMousePoint;
    using Button::m_theme;
    using Button::m_timerId;
    using Button::m_tipRect;
    using Button::m_tipState;
    using Button::m_visualStylesTheme;
    using Button::OnDrawTip;
    using Button::OnDrawTipText;
    using Button::OnGetTipRect;
    using Button::OnGetTipSupport;
    using Button::OnGetTipText;
    using Button::OnHitTipRect;
    using Button::setFlag;
};

/// Sends WM_MOUSEMOVE at a client point with the keys `keys` (MK_...), without moving the cursor.
inline void move(const CWnd& window, int x, int y, WPARAM keys = 0) {
    ::SendMessageW(window.m_hWnd, WM_MOUSEMOVE, keys, MAKELPARAM(x, y));
}

/// Whether `window` is to be painted anew, which is then no longer so.
inline bool takeDirty(CWnd& window) {
    const bool dirty = window.GetUpdateRect(nullptr) != FALSE;
    window.ValidateRect(nullptr);
    return dirty;
}

template <class Button = CKbUiOwnerDrawButton>
struct ButtonTest : ::testing::Test {
    ButtonTest() {
        ui_test::move_cursor({0, 0});
        EXPECT_TRUE(button.Create(L"Caption", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON,
                                  CRect(10, 10, 10 + kWidth, 10 + kHeight), &holder, kId));
        ui_test::pump();
    }
    ~ButtonTest() override { ::ReleaseCapture(); }

    ui_test::RecordingHolder holder;
    Opened<Button> button;
};

}  // namespace controls
