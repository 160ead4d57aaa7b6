#include "thread_state.h"

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
}

ThreadState& thread_state() {
    static ThreadSlot slot;
    return slot.Get();
}

}  // namespace kmfc
