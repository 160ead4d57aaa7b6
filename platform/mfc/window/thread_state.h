// What the window layer keeps per thread: handle maps, the message in hand, hooks, the message cache.
// Internal to the class layer.
#pragma once

#include <exception>
#include <memory>

#include <afxwin.h>
#include <kmfc/handle_map.h>

#include "../gdi/gdi_maps.h"

namespace kmfc {

/// The permanent and temporary CWnd objects of a thread.
using WindowMap = CHandleMap<CWnd>;

/// Remembers which map entry serves a message in a class, so that repeated dispatch walks no map.
class MessageCache {
public:
    /// The handler of `message` in `map` or its bases; null when there is none.
    const AFX_MSGMAP_ENTRY* Find(const AFX_MSGMAP* map, UINT message);

private:
    static constexpr size_t kSlots = 512;  // a power of two
    struct Slot {
        const AFX_MSGMAP* map = nullptr;
        UINT message = 0;
        const AFX_MSGMAP_ENTRY* entry = nullptr;
    };
    Slot m_slots[kSlots];
};

/// State of one thread. Made at first use, freed when the thread or the module ends.
struct ThreadState {
    ThreadState();
    ~ThreadState();
    ThreadState(const ThreadState&) = delete;
    ThreadState& operator=(const ThreadState&) = delete;

    CWinThread* m_pCurrentWinThread = nullptr;
    WindowMap m_windows;
    GdiMaps m_gdi;
    MessageCache m_cache;
    MSG m_msgCur = {};       ///< last message taken from the queue
    MSG m_lastSentMsg = {};  ///< message in hand of the innermost window procedure

    CWnd* m_pWndInit = nullptr;  ///< waiting for its handle, see AfxHookWindowCreate
    HHOOK m_hHookCreate = nullptr;

    HWND m_hToolTip = nullptr;       ///< the framework's own tip control, owned by m_hToolTipOwner
    HWND m_hToolTipOwner = nullptr;  ///< window whose tools it shows
    INT_PTR m_nToolTipHit = -1;      ///< id of the tool under the pointer, -1 without one
    TOOLINFO m_toolTipInfo = {};     ///< that tool as registered with the control

    HWND m_focusBeforePreview = nullptr;  ///< what had the focus when the last print preview began

    UINT m_cModalLoops = 0;                ///< modal loops on the stack
    HHOOK m_hHookMessageFilter = nullptr;  ///< see install_message_filter
    std::exception_ptr m_carried;          ///< see carry_exception

    /// Calls `action` with each handle map.
    template <class Action>
    void for_each_map(Action action) {
        action(m_windows);
        m_gdi.for_each(action);
    }
};

/// The calling thread's state; never null.
ThreadState& thread_state();

// An exception must not cross the system's code between a window procedure and the call that led to it: the
// system may swallow it, or end the program. So it is kept at the window procedure, and thrown again where
// the class layer has control: by the message pump, and by what creates dialogs.

/// Keeps the exception in hand for throw_carried, unless one is kept already. Wakes the pump. To be called in
/// a catch clause.
void carry_exception();
/// Throws the exception that is kept, if any.
void throw_carried();

/// From here on the thread's CWinThread::ProcessMessageFilter sees the messages of the system's own loops.
void install_message_filter();

}  // namespace kmfc
