// Any bytes as a drawing: where they are read, the scenes of model space, of the sheet and of each block end
// within the work limit, hold only finite places, and what they say of themselves fits together.
#include <pictures/scene_picture.h>
#include <scene_options.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::size_t kWorkLimit = 200000;
constexpr std::size_t kPieceCost = 40;

void require(bool condition, const char* what) {
    if (condition) return;
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

bool isFinite(const OdGePoint2d& point) { return std::isfinite(point.x) && std::isfinite(point.y); }

void look(const Scene& scene, const ScenePath& path) {
    require(!path.points.empty(), "a path without points");
    for (const OdGePoint2d& point : path.points) require(isFinite(point), "a point that is nowhere");
    std::size_t last = 0;
    for (const std::size_t at : path.breaks) {
        require(at > last && at < path.points.size(), "breaks that don't ascend");
        last = at;
    }
    for (const SceneArc& arc : path.arcs)
        require(arc.first <= arc.last && arc.last < path.points.size(), "an arc beyond its points");
    require(path.clip < static_cast<int>(scene.clips.size()), "a clip that isn't there");
    require(!path.style.color.isByLayer() && !path.style.color.isByBlock(), "a colour that isn't resolved");
}

void look(const Scene& scene, const SceneText& text) {
    require(isFinite(text.position) && std::isfinite(text.rotation) && std::isfinite(text.widthFactor),
            "a text that is nowhere");
    require(text.height > 0 && std::isfinite(text.height), "a text without height");
    require(text.pathsBelow <= scene.paths.size(), "a text above more than there is");
    require(text.clip < static_cast<int>(scene.clips.size()), "a clip that isn't there");
}

void look(const Scene& scene, const SceneImage& image) {
    require(image.picture != nullptr, "an image without a picture");
    for (const OdGePoint2d& corner : CornersOf(image)) require(isFinite(corner), "a corner that is nowhere");
    require(image.pathsBelow <= scene.paths.size() && image.textsBelow <= scene.texts.size(),
            "an image above more than there is");
    require(image.clip < static_cast<int>(scene.clips.size()), "a clip that isn't there");
    const std::vector<PicturePixel> pixels =
        PicturePixels(image, {0, 0, 2, 2, image.origin, image.across, image.up}, {});
    require(pixels.size() == 4, "pixels that aren't four");
}

void look(OdDbDatabase& drawing, const OdDbObjectId& block, SceneUse use, double tolerance) {
    SceneOptions options;
    options.use = use;
    options.tolerance = tolerance;
    options.workLimit = kWorkLimit;
    options.shapeFile = [](const OdString&) {
        // A font whose letters are a dash, of which there are A and the blank.
        return std::string(
            "AutoCAD-86 shapes "
            "V1.0\r\n\x1A\x00\x00\x41\x00\x03\x00\x00\x00\x06\x00\x20\x00\x05\x00\x41\x00\x05\x00"
            "F\x00\x06\x02\x00\x00"
            "B\x00\x10\x24\x00"
            "A\x00\x10\x24\x00",
            59);
    };
    const auto picture = std::make_shared<ScenePicture>(1, 1, std::vector<PicturePixel>{0});
    options.picture = [&picture](const OdString&) { return FoundPicture{picture, false}; };
    const Scene scene = BuildScene(drawing, block, options);
    require(scene.paths.size() + scene.texts.size() <= kWorkLimit / kPieceCost + 1,
            "more work than the limit");
    for (const ScenePath& path : scene.paths) look(scene, path);
    for (const SceneText& text : scene.texts) look(scene, text);
    for (const SceneImage& image : scene.images) look(scene, image);
    for (std::size_t i = 0; i < scene.clips.size(); ++i)
        require(scene.clips[i].within < static_cast<int>(i), "a clip within a later one");
    scene.extents();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    if (drawing->readDxfBytes(std::string_view(reinterpret_cast<const char*>(data), size)) != kOdOk) return 0;
    look(*drawing, drawing->modelSpaceId(), SceneUse::kScreen, 0);
    look(*drawing, drawing->modelSpaceId(), SceneUse::kPaper, 0.01);
    look(*drawing, drawing->paperSpaceId(), SceneUse::kPaper, 0);
    return 0;
}
