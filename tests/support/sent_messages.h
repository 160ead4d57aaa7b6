// Looks at every message that is sent in this thread, just before its window gets it.
#pragma once

#include <functional>
#include <utility>

#include <windows.h>

namespace ui_test {

/// Calls `seen` with each message as long as the object lives; one at a time.
class SentMessages {
public:
    using Seen = std::function<void(const CWPSTRUCT& message)>;

    explicit SentMessages(Seen seen) {
        current() = std::move(seen);
        m_hook = ::SetWindowsHookExW(WH_CALLWNDPROC, &hook, nullptr, ::GetCurrentThreadId());
    }
    ~SentMessages() {
        ::UnhookWindowsHookEx(m_hook);
        current() = nullptr;
    }
    SentMessages(const SentMessages&) = delete;
    SentMessages& operator=(const SentMessages&) = delete;

private:
    static Seen& current() {
        static Seen seen;
        return seen;
    }
    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam) {
        if (code == HC_ACTION && current()) current()(*reinterpret_cast<const CWPSTRUCT*>(lParam));
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }
    HHOOK m_hook;
};

/// The flags (SWP_…) of a WM_WINDOWPOSCHANGING that is being sent.
inline UINT position_flags(const CWPSTRUCT& message) {
    return reinterpret_cast<const WINDOWPOS*>(message.lParam)->flags;
}

}  // namespace ui_test
