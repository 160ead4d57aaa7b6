// CSceneBuild: the scene of a block, built on a thread of its own while the windows go on. The drawing must
// not change before it has ended (od_db_shared_reading.h).
#pragma once

#include <atomic>
#include <thread>

#include <afxwin.h>

#include "scene_bounds.h"
#include "scene_options.h"

class CSceneBuild {
public:
    /// Begins to build `space` of `drawing`. When the scene is there, `message` is posted to `listener`, with
    /// number() as its wParam. `options` go with the thread.
    CSceneBuild(OdDbDatabase& drawing, const OdDbObjectId& space, SceneOptions options, HWND listener,
                UINT message);
    /// Stops building, and waits until it has ended: as long as the piece at hand takes.
    ~CSceneBuild() = default;

    /// Has the building end where it is; the scene is cut then, and comes as usual.
    void Stop() { m_thread.request_stop(); }
    /// Tells builds apart.
    WPARAM number() const { return m_number; }
    /// How far it has come.
    int percent() const { return m_percent.load(std::memory_order_relaxed); }
    /// Waits for the end, and gives the scene with its bounds away.
    void Take(Scene& scene, SceneBounds& bounds);

private:
    WPARAM m_number;
    std::atomic<int> m_percent = 0;
    Scene m_scene;
    SceneBounds m_bounds;
    std::jthread m_thread;
};
