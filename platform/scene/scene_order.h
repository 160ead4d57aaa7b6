// The order in which the pieces of a scene lie, from the lowest to what covers it.
#pragma once

#include <algorithm>
#include <cstddef>

#include "scene.h"

/// Calls `path`, `text` and `image` with the number of each piece, in the order in which they lie.
template <class Path, class Text, class Image>
void InOrder(const Scene& scene, Path path, Text text, Image image) {
    std::size_t nextPath = 0, nextText = 0;
    const auto pathsUpTo = [&](std::size_t end) {
        for (; nextPath < std::min(end, scene.paths.size()); ++nextPath) path(nextPath);
    };
    const auto textsUpTo = [&](std::size_t end) {
        for (; nextText < std::min(end, scene.texts.size()); ++nextText) {
            pathsUpTo(scene.texts[nextText].pathsBelow);
            text(nextText);
        }
    };
    for (std::size_t i = 0; i < scene.images.size(); ++i) {
        textsUpTo(scene.images[i].textsBelow);
        pathsUpTo(scene.images[i].pathsBelow);
        image(i);
    }
    textsUpTo(scene.texts.size());
    pathsUpTo(scene.paths.size());
}
