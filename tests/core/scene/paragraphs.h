// Paragraph texts for tests of the scene.
#pragma once

#include "drawn.h"

namespace scene_test {

/// Paragraphs in which every letter is as wide as it is high.
struct Paragraphs {
    explicit Paragraphs(const std::string& entity) : drawing(drawingOf({.entities = entity})) {
        SceneOptions options;
        options.textWidth = [](const SceneFont&, std::wstring_view words) {
            return static_cast<double>(words.size());
        };
        scene = BuildScene(*drawing, drawing->modelSpaceId(), options);
    }
    std::wstring words() const {
        std::wstring all;
        for (const SceneText& each : scene.texts)
            all += (all.empty() ? L"" : L"/") + std::wstring(each.text.view());
        return all;
    }
    OdDbDatabasePtr drawing;
    Scene scene;
};

/// A text at 10, 20 whose letters are 1 high.
inline std::string paragraph(const std::string& contents, const std::string& more = "71 1") {
    return "0 MTEXT|8 0|10 10|20 20|30 0|40 1|" + more + "|1 " + contents;
}

}  // namespace scene_test
