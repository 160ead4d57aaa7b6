// Where the sheets of a print preview stand in its window.
#pragma once

#include <vector>

#include <kmfc/geometry.h>

namespace kmfc {

/// A sheet of paper as its printer tells of it, in the printer's pixels.
struct PreviewSheet {
    CSize paper{0, 0};            ///< all of it
    CRect printable{0, 0, 0, 0};  ///< within it
    CSize dotsPerInch{1, 1};
};

enum class PreviewZoom { whole, nearer, actual };

struct PreviewLayout {
    std::vector<CRect> sheets;  ///< side by side, client coordinates
    CSize beyond{0, 0};         ///< pixels that can't be seen at once, across and down: how far to scroll
};

/// `count` sheets in a client area on a screen of so many dots an inch. Whole sheets are as large as fits
/// with room around them; the actual size is that of the paper, but at least twice the whole, and between
/// them is the middle. What doesn't fill the area is centred, what is larger stands `scrolled` pixels back,
/// at most by what is beyond.
KMFC_API PreviewLayout arrange_preview(CSize client, const PreviewSheet& sheet, int count, PreviewZoom zoom,
                                       CPoint scrolled, CSize screenDotsPerInch);

/// The printable part of a sheet that stands there.
KMFC_API CRect printable_part(const CRect& onScreen, const PreviewSheet& sheet);

}  // namespace kmfc
