// Where the pieces of a scene lie, so that what is seen of it, or lies near a place, is found without a look
// at every point.
#pragma once

#include <cstddef>
#include <vector>

#include "scene.h"

class KTSCENE_API SceneBounds {
public:
    SceneBounds() = default;
    /// Of a scene as it is now; what is added to it later is not in them.
    explicit SceneBounds(const Scene& scene);

    /// What the points of the scene's path `number` take up, whatever clips hide of it.
    const SceneExtents& path(std::size_t number) const { return m_paths[number]; }
    /// What the scene's text `number` may take up in any font: more than is estimated for it.
    const SceneExtents& text(std::size_t number) const { return m_texts[number]; }
    /// What the whole of the scene's image `number` takes up, whatever clips hide of it.
    const SceneExtents& image(std::size_t number) const { return m_images[number]; }

private:
    std::vector<SceneExtents> m_paths, m_texts, m_images;
};
