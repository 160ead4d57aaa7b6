#include "plotting/plot_export.h"

#include <kh_plot_service.h>
#include <ktut.h>

#include "own_resources.h"
#include "plotting/drawing_plot.h"
#include "screen_scene.h"
#include "plotting/glyph_outlines.h"
#include "plotting/plot_options.h"
#include "resource.h"

namespace {

constexpr int kExtentsArea = 1, kCurrentLayoutArea = 3, kAllLayoutsArea = 4;

CString textOf(UINT id, const CString& first = {}) {
    const OwnResources resources;
    CString text;
    text.LoadString(id);
    text.Replace(L"%1", first);
    return text;
}

CString extensionOf(const CString& path) {
    OdString extension;
    ktutSplitPath(path, nullptr, nullptr, nullptr, &extension);
    return extension.c_str();
}

/// A file's name may not hold what a layout's may.
CString fileNameOf(const CString& layout) {
    CString name = layout;
    for (const wchar_t each : {L'\\', L'/', L':', L'*', L'?', L'"', L'<', L'>', L'|'})
        name.Replace(each, L'_');
    return name;
}

CString besides(const CString& path, const CString& layout) {
    const CString extension = extensionOf(path);
    return path.Left(path.GetLength() - extension.GetLength()) + L"-" + fileNameOf(layout) + extension;
}

CString drawingName(const OdDbDatabase& drawing) {
    OdString name, extension;
    ktutSplitPath(drawing.getFilename(), nullptr, nullptr, &name, &extension);
    return (name + extension).c_str();
}

CString dateAndTime() {
    wchar_t date[80] = {}, time[80] = {};
    ::GetDateFormatW(LOCALE_USER_DEFAULT, DATE_SHORTDATE, nullptr, nullptr, date, 80);
    ::GetTimeFormatW(LOCALE_USER_DEFAULT, TIME_NOSECONDS, nullptr, nullptr, time, 80);
    return CString(date) + L" " + time;
}

/// The line at the foot of a page; empty if none is wanted.
CString stampOf(const OdDbDatabase& drawing, const OdDbLayout& layout) {
    CString text;
    const auto add = [&](const ExportOption& option, const CString& part) {
        if (!getExportOption(option) || part.IsEmpty()) return;
        if (!text.IsEmpty()) text += L"  |  ";
        text += part;
    };
    if (!getExportOption(kExportStamp)) return text;
    add(kStampDrawing, drawingName(drawing));
    add(kStampLayout, layout.getLayoutName().c_str());
    add(kStampDate, dateAndTime());
    return text;
}

bool writeAll(const CString& path, const std::string& bytes) {
    const HANDLE file =
        ::CreateFileW(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    DWORD written = 0;
    const bool isWhole =
        ::WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
        written == bytes.size();
    ::CloseHandle(file);
    return isWhole;
}

/// What was there stays until the new file is whole.
bool replaceFile(const CString& path, const std::string& bytes) {
    const CString beside = path + L".new";
    if (writeAll(beside, bytes) && ::MoveFileExW(beside, path, MOVEFILE_REPLACE_EXISTING)) return true;
    ::DeleteFileW(beside);
    return false;
}

/// Exports one drawing; each file is a plot of its own.
class Export {
public:
    Export(OdDbDatabase& drawing, std::vector<CString>& written)
        : m_drawing(drawing), m_written(written), m_overrides(getExportOption(kExportOverride) != 0) {
        m_look.layers = getExportOption(kExportLayers) != 0;
        m_look.merges = getExportOption(kExportMerge) != 0;
    }

    UINT model(const std::optional<SceneExtents>& area, const CString& path);
    UINT layouts(const std::vector<OdDbLayoutPtr>& layouts, const CString& path, bool overrides);
    const CString& failed() const { return m_failed; }
    OdDbLayoutPtr currentLayout() const { return m_drawing.currentLayoutId().open<OdDbLayout>(); }

private:
    DrawingPlot start() {
        DrawingPlot plot(
            m_drawing, [this](const SceneFont& font) { return m_outlines.face(font); }, m_look);
        SceneOptions screen = ScreenSceneOptions(m_drawing);
        plot.setFiles(std::move(screen.shapeFile), std::move(screen.picture));
        return plot;
    }
    UINT finish(DrawingPlot& plot, const CString& path);

    OdDbDatabase& m_drawing;
    std::vector<CString>& m_written;
    bool m_overrides;
    PlotLook m_look;
    GlyphOutlines m_outlines;
    CString m_failed;
};

UINT Export::finish(DrawingPlot& plot, const CString& path) {
    const CString title = drawingName(m_drawing);
    if (replaceFile(path, plot.write(title.GetString()))) {
        m_written.push_back(path);
        return 0;
    }
    m_failed = path;
    return IDS_EXPORT_NOT_WRITTEN;
}

UINT Export::model(const std::optional<SceneExtents>& area, const CString& path) {
    const OdDbLayoutPtr layout = currentLayout();
    if (!layout) return IDS_EXPORT_NO_DRAWING;
    const SceneExtents shown = area ? *area : ModelExtents(m_drawing);
    if (shown.isEmpty()) return IDS_EXPORT_NOTHING;
    DrawingPlot plot = start();
    plot.addModel(shown, *PlotSettingsOf(*layout, m_overrides), m_overrides);
    plot.stamp(stampOf(m_drawing, *layout).GetString());
    return finish(plot, path);
}

UINT Export::layouts(const std::vector<OdDbLayoutPtr>& layouts, const CString& path, bool overrides) {
    if (layouts.empty()) return IDS_EXPORT_NOTHING;
    const bool isOneFile = layouts.size() == 1 || getExportOption(kExportMultiSheet) != 0;
    std::optional<DrawingPlot> plot;
    for (const OdDbLayoutPtr& layout : layouts) {
        if (!plot || !isOneFile) plot.emplace(start());
        plot->addLayout(*layout, *PlotSettingsOf(*layout, overrides));
        plot->stamp(stampOf(m_drawing, *layout).GetString());
        if (isOneFile) continue;
        if (const UINT problem = finish(*plot, besides(path, layout->getLayoutName().c_str())))
            return problem;
    }
    return isOneFile ? finish(*plot, path) : 0;
}

}  // namespace

bool ExportDrawingTo(OdDbDatabase& drawing, const ExportRequest& request, const CString& path,
                     std::vector<CString>& written, CString& message) {
    const CString extension = extensionOf(path);
    for (const wchar_t* each : {L".dwf", L".dwfx"})
        if (extension.CompareNoCase(each) == 0) {
            message = textOf(IDS_EXPORT_NO_DWF, each == CString(L".dwf") ? L"DWF" : L"DWFx");
            return false;
        }
    Export run(drawing, written);
    UINT problem = 0;
    if (request.area == kAllLayoutsArea)
        problem = run.layouts(LayoutsOnPaper(drawing), path, false);
    else if (request.area == kCurrentLayoutArea)
        problem = run.layouts({run.currentLayout()}, path, getExportOption(kExportOverride) != 0);
    else if (request.area == kExtentsArea)
        problem = run.model({}, path);
    else
        problem = request.picked ? run.model(request.picked, path) : IDS_EXPORT_NO_AREA;
    if (problem != 0) message = textOf(problem, run.failed());
    return problem == 0;
}
