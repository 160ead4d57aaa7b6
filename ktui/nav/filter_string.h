// What the platform's file dialog is told about file types, from the filters of a navigation dialog. Without
// any window. Private to the library; its tests link it by itself.
#pragma once

#include <ktui/nav/nav_filter.h>

/// Texts and match lists by turns, each with a "|" behind it and one more at the end; empty for no filters.
CString BuildFilterString(const CNavFilterArray& filters);

/// `extension` without the "*." that it may begin with.
CString NormalizeDefaultExtension(const CString& extension);

/// Whether `filter` (null is none) lists drawing templates, by the pattern `*.dwt`.
bool IsTemplateFilter(const CNavFilter* filter);
