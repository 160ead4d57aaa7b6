// What the status line tells of a drawing that isn't shown whole, or not in its own fonts.
#pragma once

#include <afxwin.h>

#include "scene.h"

/// How many objects of which kinds have no look, whether drawing ended before the end, and which fonts
/// weren't found: the first few by their files' names, the others by their count. For one line; empty where
/// everything is shown as the drawing has it.
CString UndrawnText(const Scene& scene);
