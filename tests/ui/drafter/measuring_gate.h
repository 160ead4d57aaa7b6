// A gate that holds whoever builds a scene on another thread.
#pragma once

#include <condition_variable>
#include <mutex>

#include <afxwin.h>

#include "scene_options.h"

namespace ui_test {

/// Measures texts for scenes. Threads other than the one that made it wait at the gate while it is shut.
class MeasuringGate {
public:
    double measure() {
        std::unique_lock lock(m_mutex);
        if (::GetCurrentThreadId() == m_home) return 4;
        ++m_waiting;
        m_opened.wait(lock, [this] { return m_isOpen; });
        --m_waiting;
        return 4;
    }
    void shut() {
        const std::lock_guard lock(m_mutex);
        m_isOpen = false;
    }
    void open() {
        const std::lock_guard lock(m_mutex);
        m_isOpen = true;
        m_opened.notify_all();
    }
    /// Whether so many threads wait.
    bool holds(int count) {
        const std::lock_guard lock(m_mutex);
        return m_waiting == count;
    }
    SceneOptions options() {
        SceneOptions made;
        made.textWidth = [this](const SceneFont&, std::wstring_view) { return measure(); };
        made.workLimit = static_cast<std::size_t>(-1) / 4;
        return made;
    }

private:
    const DWORD m_home = ::GetCurrentThreadId();
    std::mutex m_mutex;
    std::condition_variable m_opened;
    bool m_isOpen = true;
    int m_waiting = 0;
};

}  // namespace ui_test
