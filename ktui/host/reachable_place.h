// Windows that must be reachable: where one goes that no screen shows any more. Without any window.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <afx.h>

#include <vector>

constexpr int kGrabWidth = 80;  ///< pixels of a caption that must show to be grabbed

/// Where a window goes so that all of it lies in `area`; one that is larger begins at the area's left top
/// corner. Its size stays.
CPoint CornerInside(const RECT& place, const RECT& area);

/// Whether a caption can be grabbed: its whole height and kGrabWidth of its width, or all of a narrower one,
/// lie in one of the areas. An empty caption can't.
bool CanBeGrabbed(const CRect& caption, const std::vector<CRect>& areas);

/// The area that a window shares most with, or is nearest to; null without any.
const CRect* NearestArea(const CRect& place, const std::vector<CRect>& areas);
