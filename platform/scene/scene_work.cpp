#include "scene_work.h"

#include <algorithm>
#include <cmath>

#include "geometry/space_transform.h"
#include "rules/text_width.h"

namespace {

constexpr std::size_t kPieceCost = 40;

bool isDrawable(const OdGePoint2d& point) {
    constexpr double kFarthest = 1e100;
    return std::abs(point.x) < kFarthest && std::abs(point.y) < kFarthest;
}

bool isWhole(const SceneText& text) {
    return !text.text.isEmpty() && isDrawable(text.position) && std::isfinite(text.widthFactor) &&
           text.height > 0 && isDrawable({text.height, 0});
}

std::size_t costOf(const SceneText& text) {
    return kPieceCost + static_cast<std::size_t>(text.text.length());
}

}  // namespace

SceneWork::SceneWork(OdDbDatabase& drawing, const SceneOptions& options)
    : m_drawing(drawing), m_options(options), m_shapes(options.shapeFile), m_pictures(options.picture) {
    m_scene.showsLineWeights = options.use == SceneUse::kPaper || drawing.getLWDISPLAY() != 0;
}

bool SceneWork::isStopped() {
    if (m_options.stop.stop_requested()) m_scene.isStopped = m_scene.isCut = true;
    return m_scene.isStopped;
}

bool SceneWork::spend(std::size_t amount) {
    m_spent += amount;
    if (m_spent > m_options.workLimit) m_scene.isCut = true;
    if (m_options.percent != nullptr) showPercent();
    return !isStopped() && !m_scene.isCut;
}

void SceneWork::noteDrawn(std::size_t count, std::size_t ofAll) {
    m_percentDrawn = static_cast<int>(count * 100 / ofAll);
}

void SceneWork::showPercent() const {
    const auto ofLimit = static_cast<int>(m_spent / (m_options.workLimit / 100 + 1));
    m_options.percent->store(std::clamp(ofLimit, m_percentDrawn, 100), std::memory_order_relaxed);
}

int SceneWork::addClip(std::vector<OdGePoint2d> outline) {
    m_scene.clips.push_back({std::move(outline), m_clip});
    return static_cast<int>(m_scene.clips.size()) - 1;
}

void SceneWork::add(ScenePath path) {
    if (path.points.empty() || !std::all_of(path.points.begin(), path.points.end(), isDrawable)) return;
    if (!spend(kPieceCost + path.points.size())) return;
    path.clip = m_clip;
    m_scene.paths.push_back(std::move(path));
}

void SceneWork::add(SceneText text) {
    if (!isWhole(text) || !spend(costOf(text))) return;
    text.clip = m_clip;
    text.pathsBelow = m_scene.paths.size();
    m_scene.texts.push_back(std::move(text));
}

void SceneWork::addStrokeText(SceneText text) {
    if (!isWhole(text) || !spend(costOf(text))) return;
    text.clip = m_clip;
    m_scene.strokeTexts.push_back(std::move(text));
}

void SceneWork::add(SceneImage image) {
    const bool isWhole = isDrawable(image.origin) && isDrawable(image.across) && isDrawable(image.up);
    if (!isWhole || !(std::abs(Cross(image.across, image.up)) > 0) || !spend(kPieceCost)) return;
    image.clip = m_clip;
    image.pathsBelow = m_scene.paths.size();
    image.textsBelow = m_scene.texts.size();
    m_scene.images.push_back(std::move(image));
}

void SceneWork::addEndless(ScenePath path, const OdGePoint2d& base, const OdGePoint2d& direction,
                           bool bothWays) {
    const double length = Length(direction);
    if (!(length > 0) || !isDrawable(base) || !isDrawable(direction)) return;
    path.points = {base, base};
    path.isEndless = true;
    const std::size_t before = m_scene.paths.size();
    add(std::move(path));
    if (m_scene.paths.size() > before)
        m_endless.push_back({before, base, direction * (1 / length), bothWays});
}

double SceneWork::textWidth(const SceneFont& font, std::wstring_view text) {
    // A long paragraph measures many words before it draws the first.
    if (isStopped()) return 0;
    double sum = 0;
    for (const StrokeFonts::Run& run : m_strokes.runs(font, text)) {
        double width = 0;
        if (!run.isWritten || !m_strokes.measure(font, run.text, width))
            width = m_options.textWidth ? m_options.textWidth(font, run.text)
                                        : EstimatedTextWidth(font, run.text);
        sum += width;
    }
    return sum;
}

double SceneWork::markSize(double setting) const {
    constexpr double kUsualShare = 0.05;  // of the height of the view
    if (setting > 0) return setting;
    double height = m_options.viewHeight;
    if (!(height > 0)) {
        const double low = m_drawing.getEXTMIN().y, high = m_drawing.getEXTMAX().y;
        height = high > low ? high - low : 1;
    }
    return height * (setting < 0 ? -setting / 100 : kUsualShare);
}

Scene SceneWork::take() {
    constexpr double kReach = 20;  // times the size of everything else
    SceneExtents all = m_scene.extents();
    for (const Endless& line : m_endless) all.add(line.base);
    const double size = all.isEmpty() ? 0 : Length(all.high - all.low);
    const double reach = (size > 0 ? size : 1) * kReach;
    for (const Endless& line : m_endless) {
        std::vector<OdGePoint2d>& points = m_scene.paths[line.path].points;
        if (line.bothWays) points[0] = line.base - line.direction * reach;
        points[1] = line.base + line.direction * reach;
    }
    m_endless.clear();
    m_scene.missingFonts = m_strokes.missing();
    m_spent = 0;
    return std::exchange(m_scene, {});
}
