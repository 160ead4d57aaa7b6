// What every test with real windows starts from: an application object, a parent window, a message pump with
// a deadline, and callbacks that run inside a modal loop.
#pragma once

#include <functional>

#include <afxwin.h>
#include <gtest/gtest.h>

namespace ui_test {

/// Dispatches what is in the queue now.
void pump();

/// Dispatches messages until `done` answers true; false when `milliseconds` have passed first.
bool pump_until(const std::function<bool()>& done, unsigned milliseconds = 3000);

/// Runs `action` once from the message loop that is innermost when `milliseconds` have passed, which is how a
/// test acts on a modal dialog that it is about to open.
void later(std::function<void()> action, unsigned milliseconds = 1);

/// Runs `action` with the first visible top-level window of this thread for which `wanted` holds, as soon as
/// it is there; gives up after `milliseconds` and fails the test.
void when_window(std::function<bool(HWND)> wanted, std::function<void(HWND)> action,
                 unsigned milliseconds = 5000);

/// The same for a message box or dialog by its title ("" fits every dialog).
void when_dialog(const wchar_t* title, std::function<void(HWND)> action);

/// Puts the cursor at a screen position and waits until the system says that it is there.
bool move_cursor(POINT screen);

/// Calls `seen` with what CWinThread::ProcessMessageFilter of the application gets; null ends it.
void on_message_filter(std::function<void(int code, const MSG& message)> seen);

/// Text of a window.
CString text_of(HWND window);

/// A visible overlapped parent window of 600 by 400 pixels, destroyed with the object.
class ParentWindow : public CWnd {
public:
    ParentWindow();
    ~ParentWindow() override;
};

/// The file of the running test program.
CString program_path();

}  // namespace ui_test
