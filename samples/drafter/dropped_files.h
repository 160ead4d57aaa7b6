// What was dropped on a window.
#pragma once

#include <vector>

#include <afxwin.h>
#include <shellapi.h>

/// The paths of the files dropped, after which the drop is over.
std::vector<CString> TakeDroppedFiles(HDROP drop);

/// Why a dropped file can't be a drawing, as a string with a place for its path; 0 if it may be one.
UINT WhyNoDrawing(const CString& path);
