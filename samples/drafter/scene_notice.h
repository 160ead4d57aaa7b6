// What the status line tells of a drawing that isn't shown whole.
#pragma once

#include <afxwin.h>

#include "scene.h"

/// How many objects of which kinds have no look, and whether drawing ended before the end; for one line.
/// Empty where everything is shown.
CString UndrawnText(const Scene& scene);
