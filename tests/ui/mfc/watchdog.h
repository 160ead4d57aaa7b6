// Keeps a modal loop that never ends from hanging the test.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

namespace ui_test {

/// Ends a loop that hangs, and says so.
class Watchdog {
public:
    Watchdog() : m_timer(::SetTimer(nullptr, 0, 5000, &bite)) { hung = false; }
    ~Watchdog() {
        ::KillTimer(nullptr, m_timer);
        EXPECT_FALSE(hung) << "the modal loop went on without its window";
    }
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;

private:
    static void CALLBACK bite(HWND, UINT, UINT_PTR, DWORD) {
        if (!hung) ::PostQuitMessage(0);
        hung = true;
    }
    static inline bool hung = false;
    UINT_PTR m_timer;
};

}  // namespace ui_test
