// Building that is stopped: what is there is whole in itself, and says that it was stopped.
#include <gtest/gtest.h>

#include <atomic>
#include <semaphore>
#include <stop_token>
#include <thread>

#include "drawn.h"

namespace {

using namespace scene_test;

/// A drawing of many kinds: references with viewless and nested blocks, hatches, clips, dashes, rays. Each
/// text is underlined, so its width is asked for.
std::string text(double y) {
    const std::string at = std::to_string(y);
    return "0 TEXT|8 0|10 0|20 " + at + "|30 0|40 1|1 %%ubetween|72 5|11 5|21 " + at + "|31 0|";
}

Parts manyKinds() {
    Parts parts;
    parts.blocks =
        block("INNER", text(1) + "0 LINE|8 0|10 0|20 0|11 1|21 1|0 CIRCLE|8 0|10 0|20 0|40 2|" + text(2)) +
        block("OUTER", "0 INSERT|8 0|2 INNER|10 1|20 1|70 3|71 2|44 4|45 4|" + text(3));
    parts.entities = text(4) + "0 RAY|8 0|100 AcDbRay|10 0|20 0|30 0|11 1|21 0|31 0|" +
                     "0 INSERT|8 0|2 OUTER|10 0|20 0|" + text(5) +
                     "0 LWPOLYLINE|8 0|90 3|70 1|10 0|20 0|42 1|10 4|20 0|10 4|20 4|" + text(6) +
                     "0 MTEXT|8 0|10 0|20 0|40 1|41 6|71 1|1 a paragraph of several words|" + text(7);
    return parts;
}

struct Counted {
    Scene scene;
    int asked = 0;  ///< for widths
};

/// Builds, and stops when the width of text number `stopAt` is asked for; never for 0.
Counted buildUntil(OdDbDatabase& drawing, int stopAt) {
    Counted built;
    std::stop_source source;
    SceneOptions options;
    options.stop = source.get_token();
    options.textWidth = [&](const SceneFont&, std::wstring_view words) {
        if (++built.asked == stopAt) source.request_stop();
        return static_cast<double>(words.size());
    };
    built.scene = BuildScene(drawing, drawing.modelSpaceId(), options);
    return built;
}

void expectWholeInItself(const Scene& scene) {
    for (const ScenePath& path : scene.paths) {
        EXPECT_FALSE(path.points.empty());
        EXPECT_LT(path.clip, static_cast<int>(scene.clips.size()));
        for (const std::size_t each : path.breaks) EXPECT_LT(each, path.points.size());
        for (const SceneArc& arc : path.arcs) EXPECT_LT(arc.last, path.points.size());
        if (path.isEndless) {
            EXPECT_NE(path.points[0].x, path.points[1].x) << "a line without end has its length";
        }
    }
    for (const SceneText& each : scene.texts) {
        EXPECT_LE(each.pathsBelow, scene.paths.size());
        EXPECT_FALSE(each.text.isEmpty());
    }
}

/// Whether the pieces of `part` are the first ones of `whole`.
bool isBeginningOf(const Scene& part, const Scene& whole) {
    if (part.paths.size() > whole.paths.size() || part.texts.size() > whole.texts.size()) return false;
    for (std::size_t i = 0; i < part.paths.size(); ++i)
        if (part.paths[i].entity != whole.paths[i].entity || part.paths[i].clip != whole.paths[i].clip ||
            part.paths[i].points.size() != whole.paths[i].points.size())
            return false;
    for (std::size_t i = 0; i < part.texts.size(); ++i)
        if (part.texts[i].text != whole.texts[i].text) return false;
    return true;
}

TEST(Stopping, AtAnyTextLeavesTheBeginningWholeInItself) {
    const OdDbDatabasePtr drawing = drawingOf(manyKinds());
    const Counted whole = buildUntil(*drawing, 0);
    ASSERT_FALSE(whole.scene.isCut);
    ASSERT_FALSE(whole.scene.isStopped);
    ASSERT_GT(whole.asked, 15);
    std::size_t before = 0;
    for (int at = 1; at <= whole.asked; ++at) {
        SCOPED_TRACE(at);
        const Counted part = buildUntil(*drawing, at);
        EXPECT_EQ(part.asked, at) << "nobody is asked for more once it is stopped";
        EXPECT_TRUE(part.scene.isCut);
        EXPECT_TRUE(part.scene.isStopped);
        expectWholeInItself(part.scene);
        EXPECT_TRUE(isBeginningOf(part.scene, whole.scene));
        const std::size_t pieces = part.scene.paths.size() + part.scene.texts.size();
        EXPECT_GE(pieces, before);
        EXPECT_LT(pieces, whole.scene.paths.size() + whole.scene.texts.size());
        before = pieces;
    }
    EXPECT_GT(before, 10u);
}

TEST(Stopping, BeforeItBeginsLeavesNothing) {
    const OdDbDatabasePtr drawing = drawingOf(manyKinds());
    std::stop_source source;
    source.request_stop();
    SceneOptions options;
    options.stop = source.get_token();
    const Scene scene = BuildScene(*drawing, drawing->modelSpaceId(), options);
    EXPECT_TRUE(scene.isStopped);
    EXPECT_TRUE(scene.paths.empty() && scene.texts.empty());
}

TEST(Stopping, TheWorkLimitAloneIsNoStop) {
    const OdDbDatabasePtr drawing = drawingOf(manyKinds());
    SceneOptions options;
    options.workLimit = 300;
    const Scene scene = BuildScene(*drawing, drawing->modelSpaceId(), options);
    EXPECT_TRUE(scene.isCut);
    EXPECT_FALSE(scene.isStopped);
}

TEST(Stopping, FromAnotherThreadEndsABlockWithinBlocksWithoutEnd) {
    Parts parts;
    std::string inner = text(1);
    for (int depth = 0; depth < 12; ++depth) {
        const std::string name = "B" + std::to_string(depth);
        parts.blocks += block(name, inner);
        inner = "0 INSERT|8 0|2 " + name + "|70 9|71 9|44 1|45 1|";
    }
    parts.entities = inner;
    const OdDbDatabasePtr drawing = drawingOf(parts);
    std::binary_semaphore begun(0);
    std::atomic<int> percent = 0;
    Scene scene;
    bool isFirst = true;
    std::jthread builder([&](std::stop_token stop) {
        SceneOptions options;
        options.stop = stop;
        options.percent = &percent;
        options.workLimit = static_cast<std::size_t>(-1) / 4;
        options.textWidth = [&](const SceneFont&, std::wstring_view) {
            if (std::exchange(isFirst, false)) begun.release();
            return 1.0;
        };
        scene = BuildScene(*drawing, drawing->modelSpaceId(), options);
    });
    begun.acquire();
    builder.request_stop();
    builder.join();
    EXPECT_TRUE(scene.isStopped);
    expectWholeInItself(scene);
}

TEST(Stopping, HowFarItIsGrowsWithTheEntitiesAndWithTheLimit) {
    Parts parts;
    for (int i = 0; i < 4; ++i) parts.entities += text(i);
    const OdDbDatabasePtr drawing = drawingOf(parts);
    std::atomic<int> percent = -1;
    std::vector<int> seen;
    SceneOptions options;
    options.percent = &percent;
    options.textWidth = [&](const SceneFont&, std::wstring_view) {
        seen.push_back(percent);
        return 1.0;
    };
    BuildScene(*drawing, drawing->modelSpaceId(), options);
    EXPECT_EQ(seen.front(), 0);
    seen.erase(std::unique(seen.begin(), seen.end()), seen.end());
    EXPECT_EQ(seen, (std::vector<int>{0, 25, 50, 75})) << "the entities, far from the limit";
    seen.clear();
    options.workLimit = 200;
    BuildScene(*drawing, drawing->modelSpaceId(), options);
    ASSERT_FALSE(seen.empty());
    EXPECT_GT(seen.front(), 10) << "the limit, before the first entity is drawn";
    EXPECT_LE(seen.back(), 100);
}

}  // namespace
