// Writes the working drawing to files of the chosen format. Internal to the module.
#pragma once

#include <optional>
#include <vector>

#include <afxwin.h>

#include "scene.h"

class OdDbDatabase;

/// What is exported.
struct ExportRequest {
    int area = 0;                        ///< as CKhPlotSvr numbers the plot areas
    std::optional<SceneExtents> picked;  ///< the area of a display or a window
};

/// Writes `drawing` to `path`, or to files named after it and the layouts, with the options of the profile.
/// False with the reason in `message`, in the user's language; `written` are the files that are whole.
bool ExportDrawingTo(OdDbDatabase& drawing, const ExportRequest& request, const CString& path,
                     std::vector<CString>& written, CString& message);
