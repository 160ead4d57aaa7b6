#include "plotting/drawing_plot.h"

#include <map>

namespace {

constexpr double kStampHeight = 2.5;  // millimetres, of capitals
constexpr double kStampPlace = 5;     // millimetres from the left and the lower edge

/// Widths of texts by the advances of their letters, each of which is asked for once.
class PlotTextWidths {
public:
    explicit PlotTextWidths(const PlotFaces& faces) : m_faces(faces) {}

    /// In the height of capitals.
    double of(const SceneFont& font, std::wstring_view text) {
        constexpr double kEm = 1000;
        const PlotFace face = m_faces(font);
        std::map<wchar_t, double>& advances = m_advances[face.name];
        double width = 0;
        for (const wchar_t letter : text) {
            const auto [place, isNew] = advances.try_emplace(letter, 0.0);
            if (isNew) place->second = face.source(static_cast<char32_t>(letter)).advance;
            width += place->second;
        }
        return width / kEm / kCapitalShare;
    }

private:
    const PlotFaces& m_faces;
    std::map<std::string, std::map<wchar_t, double>> m_advances;
};

OdDbObjectId modelSpace(OdDbDatabase& drawing) {
    OdDbBlockTablePtr blocks;
    drawing.getBlockTable(blocks);
    return blocks->getAt(L"*Model_Space");
}

}  // namespace

OdDbPlotSettingsPtr PlotSettingsOf(const OdDbLayout& layout, bool overrides) {
    if (overrides)
        if (const auto dictionary = layout.extensionDictionary().open<OdDbDictionary>())
            if (auto settings = dictionary->getAt(kPlotOverrideName).open<OdDbPlotSettings>())
                return settings;
    return OdDbPlotSettingsPtr(const_cast<OdDbLayout*>(&layout));
}

SceneExtents ModelExtents(OdDbDatabase& drawing, std::stop_token stop) {
    SceneOptions options;
    options.use = SceneUse::kPaper;
    options.stop = std::move(stop);
    return BuildScene(drawing, modelSpace(drawing), options).extents();
}

Scene DrawingPlot::scene(const OdDbObjectId& block) {
    SceneOptions options = m_files;
    options.use = SceneUse::kPaper;
    PlotTextWidths widths(m_faces);
    options.textWidth = [&widths](const SceneFont& font, std::wstring_view text) {
        return widths.of(font, text);
    };
    options.stop = m_stop;
    options.percent = m_percent;
    Scene scene = BuildScene(m_drawing, block, options);
    m_isCut = m_isCut || scene.isCut;
    return scene;
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
    PlotScene(m_file, page, scene(modelSpace(m_drawing)), place, m_faces, m_look);
    page.restoreState();
}

void DrawingPlot::addLayout(const OdDbLayout& layout, const OdDbPlotSettings& settings) {
    const OdDbObjectId block = layout.getBlockTableRecordId();
    const Scene sheet = scene(block);
    const PaperPlace place = PlaceLayout(settings, sheet.extents());
    PdfPage& page = m_file.addPage(place.width, place.height);
    m_last = &page;
    PlotScene(m_file, page, sheet, place, m_faces, m_look);
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
