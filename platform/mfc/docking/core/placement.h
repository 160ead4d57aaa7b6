// Windows that must be reachable: their caption can be grabbed on some screen.
#pragma once

#include <vector>

#include <kmfc/geometry.h>

namespace kmfc {

constexpr int kGrabWidth = 80;   // pixels of a caption that must show to be grabbed
constexpr int kGrabHeight = 24;  // its height, counted from the window's top

/// Whether enough of the caption lies in one of the areas: its whole height, and kGrabWidth of its width (or
/// all of a narrower one).
KMFC_API bool is_reachable(const CRect& window, const std::vector<CRect>& areas);

/// The window itself if it is reachable, otherwise moved into the area that it shares most with, or is
/// nearest to, and cut to that area's size. The window itself without any area.
KMFC_API CRect brought_into_view(const CRect& window, const std::vector<CRect>& areas);

}  // namespace kmfc
