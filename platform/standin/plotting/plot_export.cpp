#include "plotting/plot_export.h"

#include <kh_plot_service.h>
#include <ktut.h>

#include "own_resources.h"
#include "plotting/glyph_outlines.h"
#include "plotting/plot_options.h"
#include "resource.h"

namespace {

constexpr UINT kWasStopped = 1;  // the number of an empty text
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

/// What the profile says of the line at the foot of pages.
PlotStamp stampOfProfile() {
    if (!getExportOption(kExportStamp)) return {};
    return {getExportOption(kStampDrawing) != 0, getExportOption(kStampLayout) != 0,
            getExportOption(kStampDate) != 0};
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

/// The format that a file of this name would have and that nobody writes; null if there is none.
const wchar_t* unwrittenFormat(const CString& path) {
    const CString extension = extensionOf(path);
    if (extension.CompareNoCase(L".dwf") == 0) return L"DWF";
    return extension.CompareNoCase(L".dwfx") == 0 ? L"DWFx" : nullptr;
}

}  // namespace

DrawingExport::DrawingExport(OdDbDatabase& drawing, const ExportRequest& request, const CString& path)
    : m_drawing(drawing),
      m_request(request),
      m_path(path),
      m_family(BackgroundFamilies(drawing)),
      m_stamp(stampOfProfile()),
      m_overrides(getExportOption(kExportOverride) != 0),
      m_isOneFile(getExportOption(kExportMultiSheet) != 0) {
    m_look.layers = getExportOption(kExportLayers) != 0;
    m_look.merges = getExportOption(kExportMerge) != 0;
    m_files = BackgroundSceneOptions(drawing);
    m_files.textWidth = {};
}

void DrawingExport::write(std::stop_token stop) {
    // Fonts that are traced are made on this thread, and go with it.
    GlyphOutlines outlines(m_family);
    m_faces = [&outlines](const SceneFont& font) { return outlines.face(font); };
    try {
        m_problem = writeFiles(stop);
    } catch (const std::bad_alloc&) {
        m_problem = IDS_EXPORT_NO_MEMORY;
    }
    m_faces = {};
}

int DrawingExport::percent() const {
    const int pages = m_pages, page = m_page;
    return (page * 100 + m_percent) / pages;
}

CString DrawingExport::message() const {
    if (m_problem != 0) return textOf(m_problem, m_told);
    return m_isCut ? textOf(IDS_EXPORT_CUT) : CString();
}

bool DrawingExport::wasStopped() const { return m_problem == kWasStopped; }

UINT DrawingExport::writeFiles(const std::stop_token& stop) {
    if (const wchar_t* const format = unwrittenFormat(m_path)) {
        m_told = format;
        return IDS_EXPORT_NO_DWF;
    }
    if (m_request.area == kAllLayoutsArea) return writeLayouts(LayoutsOnPaper(m_drawing), false, stop);
    if (m_request.area == kCurrentLayoutArea) return writeLayouts({currentLayout()}, m_overrides, stop);
    if (m_request.area != kExtentsArea && !m_request.picked) return IDS_EXPORT_NO_AREA;
    return writeModel(stop);
}

UINT DrawingExport::writeModel(const std::stop_token& stop) {
    const OdDbLayoutPtr layout = currentLayout();
    if (!layout) return IDS_EXPORT_NO_DRAWING;
    const SceneExtents shown =
        m_request.area == kExtentsArea ? ModelExtents(m_drawing, stop) : *m_request.picked;
    if (stop.stop_requested()) return kWasStopped;
    if (shown.isEmpty()) return IDS_EXPORT_NOTHING;
    DrawingPlot plot = start(stop);
    plot.addModel(shown, *PlotSettingsOf(*layout, m_overrides), m_overrides);
    plot.stamp(stampOf(*layout).GetString());
    return finish(plot, m_path, stop);
}

UINT DrawingExport::writeLayouts(const std::vector<OdDbLayoutPtr>& layouts, bool overrides,
                                 const std::stop_token& stop) {
    if (layouts.empty()) return IDS_EXPORT_NOTHING;
    const bool isOneFile = layouts.size() == 1 || m_isOneFile;
    m_pages = static_cast<int>(layouts.size());
    std::optional<DrawingPlot> plot;
    for (const OdDbLayoutPtr& layout : layouts) {
        if (!plot || !isOneFile) plot.emplace(start(stop));
        plot->addLayout(*layout, *PlotSettingsOf(*layout, overrides));
        plot->stamp(stampOf(*layout).GetString());
        if (stop.stop_requested()) return kWasStopped;
        m_percent = 0;
        ++m_page;
        if (isOneFile) continue;
        if (const UINT problem = finish(*plot, besides(m_path, layout->getLayoutName().c_str()), stop))
            return problem;
    }
    return isOneFile ? finish(*plot, m_path, stop) : 0;
}

DrawingPlot DrawingExport::start(const std::stop_token& stop) {
    DrawingPlot plot(m_drawing, m_faces, m_look);
    plot.setFiles(m_files);
    plot.setProgress(stop, &m_percent);
    return plot;
}

UINT DrawingExport::finish(DrawingPlot& plot, const CString& path, const std::stop_token& stop) {
    const CString title = drawingName(m_drawing);
    const std::string bytes = plot.write(title.GetString());
    if (stop.stop_requested()) return kWasStopped;
    if (!replaceFile(path, bytes)) {
        m_told = path;
        return IDS_EXPORT_NOT_WRITTEN;
    }
    m_isCut = m_isCut || plot.isCut();
    m_written.push_back(path);
    return 0;
}

/// The line at the foot of a page; empty if none is wanted.
CString DrawingExport::stampOf(const OdDbLayout& layout) const {
    CString text;
    const auto add = [&](bool isWanted, const CString& part) {
        if (!isWanted || part.IsEmpty()) return;
        if (!text.IsEmpty()) text += L"  |  ";
        text += part;
    };
    add(m_stamp.drawing, drawingName(m_drawing));
    add(m_stamp.layout, layout.getLayoutName().c_str());
    add(m_stamp.date, dateAndTime());
    return text;
}
