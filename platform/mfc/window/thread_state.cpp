#include "thread_state.h"

#include <utility>

namespace kmfc {

namespace {

/// The slot that holds each thread's state. A plain TLS index keeps the look-up at a few instructions.
class ThreadSlot {
public:
    ThreadSlot() : m_index(::FlsAlloc(&Free)) {}
    ~ThreadSlot() {
        if (m_index != FLS_OUT_OF_INDEXES) ::FlsFree(m_index);
    }
    ThreadState& Get() {
        auto* state = static_cast<ThreadState*>(::FlsGetValue(m_index));
        if (state == nullptr) {
            state = new ThreadState;
            ::FlsSetValue(m_index, state);
        }
        return *state;
    }

private:
    static void CALLBACK Free(void* state) { delete static_cast<ThreadState*>(state); }
    DWORD m_index;
};

}  // namespace

ThreadState::ThreadState() = default;

ThreadState::~ThreadState() {
    if (m_hHookCreate != nullptr) ::UnhookWindowsHookEx(m_hHookCreate);
    if (m_hHookMessageFilter != nullptr) ::UnhookWindowsHookEx(m_hHookMessageFilter);
}

ThreadState& thread_state() {
    static ThreadSlot slot;
    return slot.Get();
}

void carry_exception() {
    ThreadState& state = thread_state();
    if (state.m_carried) return;
    state.m_carried = std::current_exception();
    // The pump may be waiting for a message while it answers one that was sent.
    ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0);
}

void throw_carried() {
    ThreadState& state = thread_state();
    if (state.m_carried) std::rethrow_exception(std::exchange(state.m_carried, nullptr));
}

namespace {

LRESULT CALLBACK message_filter_hook(int code, WPARAM wParam, LPARAM lParam) {
    if (code >= 0) {
        try {
            CWinThread* thread = AfxGetThread();
            if (thread != nullptr && thread->ProcessMessageFilter(code, reinterpret_cast<LPMSG>(lParam)))
                return TRUE;
        } catch (...) {
            carry_exception();
        }
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

void install_message_filter() {
    ThreadState& state = thread_state();
    if (state.m_hHookMessageFilter == nullptr)
        state.m_hHookMessageFilter =
            ::SetWindowsHookExW(WH_MSGFILTER, message_filter_hook, nullptr, ::GetCurrentThreadId());
}

}  // namespace kmfc
