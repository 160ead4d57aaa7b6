// Writes a drawing to files of the chosen format, on any thread. Internal to the module.
//
//     DrawingExport run(drawing, request, path);    // asks the host for all that it needs
//     run.write(stop);                              // elsewhere, as long as nothing changes the drawing
//     CString problem = run.message();
#pragma once

#include <atomic>
#include <optional>
#include <stop_token>
#include <vector>

#include <afxwin.h>

#include "plotting/drawing_plot.h"
#include "screen_scene.h"

/// What is exported.
struct ExportRequest {
    int area = 0;                        ///< as CKhPlotSvr numbers the plot areas
    std::optional<SceneExtents> picked;  ///< the area of a display or a window
};

/// What a page says of itself at its foot.
struct PlotStamp {
    bool drawing = false, layout = false, date = false;
};

class DrawingExport {
public:
    /// To `path`, or to files named after it and the layouts, with the options of the host's profile. The
    /// host is asked here and never later.
    DrawingExport(OdDbDatabase& drawing, const ExportRequest& request, const CString& path);

    /// Writes the files; called once. After `stop` no further file is begun, and what was begun is taken
    /// back.
    void write(std::stop_token stop);
    /// How far it has come, in per cent; from any thread.
    int percent() const;

    /// The others once it has written. Whether all files are whole.
    bool isDone() const { return m_problem == 0; }
    /// Why not, or what the files lack; a text in the user's language, empty for nothing. On the
    /// user-interface thread.
    CString message() const;
    bool wasStopped() const;
    /// The files that are whole.
    const std::vector<CString>& written() const { return m_written; }

private:
    UINT writeFiles(const std::stop_token& stop);
    UINT writeModel(const std::stop_token& stop);
    UINT writeLayouts(const std::vector<OdDbLayoutPtr>& layouts, bool overrides, const std::stop_token& stop);
    DrawingPlot start(const std::stop_token& stop);
    UINT finish(DrawingPlot& plot, const CString& path, const std::stop_token& stop);
    CString stampOf(const OdDbLayout& layout) const;
    OdDbLayoutPtr currentLayout() const { return m_drawing.currentLayoutId().open<OdDbLayout>(); }

    OdDbDatabase& m_drawing;
    ExportRequest m_request;
    CString m_path;
    SceneOptions m_files;
    SceneFamily m_family;
    PlotFaces m_faces;
    PlotLook m_look;
    PlotStamp m_stamp;
    bool m_overrides;
    bool m_isOneFile;

    std::atomic<int> m_percent = 0, m_page = 0, m_pages = 1;
    UINT m_problem = 0;
    bool m_isCut = false;
    CString m_told;  ///< what the problem's text names
    std::vector<CString> m_written;
};
