#include "scene_build.h"

#include <utility>

namespace {

WPARAM nextNumber() {
    static WPARAM last = 0;
    return ++last;
}

}  // namespace

CSceneBuild::CSceneBuild(OdDbDatabase& drawing, const OdDbObjectId& space, SceneOptions options,
                         HWND listener, UINT message)
    : m_number(nextNumber()) {
    options.percent = &m_percent;
    m_thread = std::jthread([this, &drawing, space, options = std::move(options), listener,
                             message](std::stop_token stop) mutable {
        // Fonts were made here, and go here.
        SceneOptions own = std::exchange(options, {});
        own.stop = std::move(stop);
        try {
            m_scene = BuildScene(drawing, space, own);
            m_bounds = SceneBounds(m_scene);
        } catch (const std::bad_alloc&) {
            m_scene = {};
            m_bounds = {};
            m_scene.isCut = true;
        }
        ::PostMessageW(listener, message, m_number, 0);
    });
}

void CSceneBuild::Take(Scene& scene, SceneBounds& bounds) {
    m_thread.join();
    scene = std::move(m_scene);
    bounds = std::move(m_bounds);
}
