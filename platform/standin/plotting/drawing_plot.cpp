#include "plotting/drawing_plot.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>

#include "scene_builder.h"

namespace {

constexpr double kStampHeight = 2.5;  // millimetres, of capitals
constexpr double kStampPlace = 5;     // millimetres from the left and the lower edge

Scene plottedScene(OdDbDatabase& drawing, const OdDbObjectId& block, const PlaneTransform& transform = {}) {
    SceneBuilder builder(drawing, SceneUse::kPaper);
    builder.addBlock(block, transform);
    return builder.take();
}

OdDbObjectId modelSpace(OdDbDatabase& drawing) {
    OdDbBlockTablePtr blocks;
    drawing.getBlockTable(blocks);
    return blocks->getAt(L"*Model_Space");
}

/// A window onto model space, from the groups of a viewport.
struct Viewport {
    OdGePoint2d center, view;  // on paper, and in model space
    double width, height, viewHeight, twist;
    bool isShown;
};

Viewport viewportOf(const OdGroupList& groups) {
    Viewport found = {};
    const OdGePoint3d center = groups.point(10), view = groups.point(12), target = groups.point(17);
    found.center = {center.x, center.y};
    found.width = groups.real(40);
    found.height = groups.real(41);
    found.viewHeight = groups.real(45);
    found.twist = groups.real(51) * std::numbers::pi / 180;
    const double c = std::cos(-found.twist), s = std::sin(-found.twist);
    found.view = {view.x * c - view.y * s + target.x, view.x * s + view.y * c + target.y};
    // Number 1 is the paper itself; status 0 is a viewport that is off.
    found.isShown = groups.integer(69) != 1 && groups.integer(68) != 0 && found.viewHeight > 0 &&
                    found.width > 0 && found.height > 0;
    return found;
}

PlaneTransform ontoPaper(const Viewport& viewport) {
    const double scale = viewport.height / viewport.viewHeight;
    const double c = std::cos(viewport.twist) * scale, s = std::sin(viewport.twist) * scale;
    PlaneTransform transform = {c, -s, s, c, 0, 0};
    const OdGePoint2d middle = transform.apply(viewport.view.x, viewport.view.y);
    transform.x = viewport.center.x - middle.x;
    transform.y = viewport.center.y - middle.y;
    return transform;
}

/// The frame of a viewport is drawn on its layer, which is often one that isn't plotted.
bool isViewport(const OdDbEntity& entity) {
    return !entity.isErased() && std::strcmp(entity.dxfName(), "VIEWPORT") == 0 &&
           entity.visibility() != OdDb::kInvisible;
}

SceneExtents sheetExtents(const Scene& scene, const OdDbBlockTableRecord& block) {
    SceneExtents all = scene.extents();
    for (const OdDbEntity* entity : block.entities()) {
        if (!isViewport(*entity)) continue;
        const Viewport viewport = viewportOf(entity->groups());
        if (!viewport.isShown) continue;
        all.add({viewport.center.x - viewport.width / 2, viewport.center.y - viewport.height / 2});
        all.add({viewport.center.x + viewport.width / 2, viewport.center.y + viewport.height / 2});
    }
    return all;
}

}  // namespace

OdDbPlotSettingsPtr PlotSettingsOf(const OdDbLayout& layout, bool overrides) {
    if (overrides)
        if (const auto dictionary = layout.extensionDictionary().open<OdDbDictionary>())
            if (auto settings = dictionary->getAt(kPlotOverrideName).open<OdDbPlotSettings>())
                return settings;
    return OdDbPlotSettingsPtr(const_cast<OdDbLayout*>(&layout));
}

std::vector<OdDbLayoutPtr> LayoutsOnPaper(OdDbDatabase& drawing) {
    std::vector<OdDbLayoutPtr> layouts;
    OdDbDictionaryPtr dictionary;
    if (drawing.getLayoutDictionary(dictionary) != kOdOk) return layouts;
    for (auto each = dictionary->newIterator(); !each->done(); each->next())
        if (auto layout = each->objectId().open<OdDbLayout>(); layout && !layout->modelType())
            layouts.push_back(layout);
    std::stable_sort(layouts.begin(), layouts.end(), [](const OdDbLayoutPtr& a, const OdDbLayoutPtr& b) {
        return a->getTabOrder() < b->getTabOrder();
    });
    return layouts;
}

SceneExtents ModelExtents(OdDbDatabase& drawing) {
    return plottedScene(drawing, modelSpace(drawing)).extents();
}

void DrawingPlot::addModel(const SceneExtents& area, const OdDbPlotSettings& settings, bool keepsScale) {
    const PaperPlace place = PlaceArea(settings, area, keepsScale);
    PdfPage& page = m_file.addPage(place.width, place.height);
    m_last = &page;
    if (area.isEmpty()) return;
    page.saveState();
    const OdGePoint2d low = place.apply(area.low), high = place.apply(area.high);
    // A line on the edge keeps its whole width.
    constexpr double kEdge = 1.5;  // points
    page.clip({low.x - kEdge, low.y - kEdge}, {high.x + kEdge, high.y + kEdge});
    PlotScene(m_file, page, plottedScene(m_drawing, modelSpace(m_drawing)), place, m_faces, m_look);
    page.restoreState();
}

void DrawingPlot::addLayout(const OdDbLayout& layout, const OdDbPlotSettings& settings) {
    const OdDbObjectId block = layout.getBlockTableRecordId();
    const auto record = block.open<OdDbBlockTableRecord>();
    const Scene scene = plottedScene(m_drawing, block);
    const PaperPlace place = PlaceLayout(settings, record ? sheetExtents(scene, *record) : scene.extents());
    PdfPage& page = m_file.addPage(place.width, place.height);
    m_last = &page;
    if (!record) return;
    for (const OdDbEntity* entity : record->entities())
        if (isViewport(*entity)) addViewport(*entity, modelSpace(m_drawing), place, page);
    PlotScene(m_file, page, scene, place, m_faces, m_look);
}

void DrawingPlot::addViewport(const OdDbEntity& entity, const OdDbObjectId& model, const PaperPlace& place,
                              PdfPage& page) {
    const Viewport viewport = viewportOf(entity.groups());
    if (!viewport.isShown) return;
    const OdGePoint2d low = place.apply(
        OdGePoint2d{viewport.center.x - viewport.width / 2, viewport.center.y - viewport.height / 2});
    const OdGePoint2d high = place.apply(
        OdGePoint2d{viewport.center.x + viewport.width / 2, viewport.center.y + viewport.height / 2});
    page.saveState();
    page.clip({low.x, low.y}, {high.x, high.y});
    PlotScene(m_file, page, plottedScene(m_drawing, model, ontoPaper(viewport)), place, m_faces, m_look);
    page.restoreState();
}

void DrawingPlot::stamp(std::wstring_view text) {
    if (m_last == nullptr || text.empty()) return;
    Scene scene;
    SceneText line;
    line.text = OdString(std::wstring(text).c_str());
    line.position = {kStampPlace, kStampPlace};
    line.height = kStampHeight;
    line.style.color.setColorIndex(OdCmColor::kForeground);
    scene.texts.push_back(line);
    PaperPlace millimetres;
    millimetres.scale = kPointsPerMillimetre;
    PlotScene(m_file, *m_last, scene, millimetres, m_faces, {});
}

std::string DrawingPlot::write(std::wstring_view title) {
    m_file.setTitle(title);
    return m_file.write();
}
