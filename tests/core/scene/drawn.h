// Drawings for tests of the scene, written as the groups of a file on few lines, and what is drawn of them.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <string_view>
#include <vector>

#include "file_groups.h"
#include "scene_options.h"

namespace scene_test {

constexpr double kPi = std::numbers::pi;

/// Groups of a file from their short form.
inline std::string groups(std::string_view brief) { return ui_test::fileGroups(brief); }

/// What a drawing is made of, each part in the short form.
struct Parts {
    std::string header = {}, tables = {}, blocks = {}, entities = {}, objects = {};
    const char* version = "AC1032";
};

inline OdDbDatabasePtr drawingOf(const Parts& parts) {
    std::string file = groups("0 SECTION|2 HEADER|9 $ACADVER|1 " + std::string(parts.version));
    file += groups(parts.header) + groups("0 ENDSEC|0 SECTION|2 TABLES");
    file += groups(parts.tables) + groups("0 ENDSEC|0 SECTION|2 BLOCKS");
    file += groups(parts.blocks) + groups("0 ENDSEC|0 SECTION|2 ENTITIES");
    file += groups(parts.entities) + groups("0 ENDSEC|0 SECTION|2 OBJECTS");
    file += groups(parts.objects) + groups("0 ENDSEC|0 EOF");
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDxfError error;
    EXPECT_EQ(drawing->readDxfBytes(file, &error), kOdOk)
        << odUtf8(error.text.view()) << " in line " << error.line;
    return drawing;
}

/// A table of layers, or of another kind of record.
inline std::string table(const std::string& name, const std::string& records) {
    return "0 TABLE|2 " + name + "|" + records + "|0 ENDTAB|";
}

inline std::string block(const std::string& name, const std::string& entities,
                         const std::string& base = "10 0|20 0|30 0") {
    return "0 BLOCK|8 0|2 " + name + "|70 0|" + base + "|3 " + name + "|" + entities + "|0 ENDBLK|8 0|";
}

/// A drawing and what is drawn of its model space.
struct Drawn {
    explicit Drawn(const Parts& parts)
        : drawing(drawingOf(parts)), scene(BuildScene(*drawing, drawing->modelSpaceId())) {}
    explicit Drawn(const std::string& entities) : Drawn(Parts{.entities = entities}) {}

    OdDbDatabasePtr drawing;
    Scene scene;

    const std::vector<ScenePath>& paths() const { return scene.paths; }
    const std::vector<SceneText>& texts() const { return scene.texts; }
    const ScenePath& path(std::size_t index = 0) const {
        static const ScenePath none;
        EXPECT_LT(index, scene.paths.size());
        return index < scene.paths.size() ? scene.paths[index] : none;
    }
    const SceneText& text(std::size_t index = 0) const {
        static const SceneText none;
        EXPECT_LT(index, scene.texts.size());
        return index < scene.texts.size() ? scene.texts[index] : none;
    }
};

inline ::testing::AssertionResult isAt(const OdGePoint2d& point, double x, double y, double reach = 1e-6) {
    if (std::hypot(point.x - x, point.y - y) <= reach) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << "at " << point.x << ", " << point.y << " instead of " << x << ", " << y;
}

/// Whether a path goes through just these points.
inline ::testing::AssertionResult goesThrough(const ScenePath& path, const std::vector<OdGePoint2d>& points,
                                              double reach = 1e-6) {
    std::string all;
    bool same = path.points.size() == points.size();
    for (std::size_t i = 0; i < path.points.size(); ++i) {
        all += " (" + std::to_string(path.points[i].x) + ", " + std::to_string(path.points[i].y) + ")";
        same = same && std::hypot(path.points[i].x - points[i].x, path.points[i].y - points[i].y) <= reach;
    }
    return same ? ::testing::AssertionSuccess() : ::testing::AssertionFailure() << "goes through" << all;
}

/// How far the path is from a place; the path counts as an area's edge if it is filled.
inline double distanceTo(const ScenePath& path, double x, double y) {
    double nearest = 1e300;
    for (std::size_t i = 1; i < path.points.size(); ++i) {
        const OdGePoint2d &a = path.points[i - 1], &b = path.points[i];
        const double dx = b.x - a.x, dy = b.y - a.y, length = dx * dx + dy * dy;
        double t = length > 0 ? ((x - a.x) * dx + (y - a.y) * dy) / length : 0;
        t = std::min(1.0, std::max(0.0, t));
        nearest = std::min(nearest, std::hypot(a.x + t * dx - x, a.y + t * dy - y));
    }
    return nearest;
}

}  // namespace scene_test
