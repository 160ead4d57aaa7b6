// Sizes in status bars, pixels at 96 dots an inch.
#pragma once

#include <kmfc/global_data.h>

#include "core/picture_pixels.h"

namespace kmfc {

constexpr int kStatusMargin = 5;        ///< beside the text of a pane
constexpr int kStatusMarginAcross = 4;  ///< above and below it
constexpr int kStatusEnd = 2;           ///< before the first pane and behind the last
constexpr int kStatusPictureGap = 4;    ///< between a picture and the text
constexpr int kStatusGrip = 14;         ///< the corner that sizes the frame

constexpr int kStatusInside = 2;  ///< above and below pictures and progress bars

/// How large a picture is drawn in a pane of that height: smaller where it is higher than what is inside.
/// Pixels of the screen.
inline CSize shown_size(const PicturePixels& picture, int paneHeight) {
    const CSize size(afxGlobalData.scaled(picture.size.cx), afxGlobalData.scaled(picture.size.cy));
    const int room = paneHeight - 2 * afxGlobalData.scaled(kStatusInside);
    if (size.cy <= room || room < 1) return size;
    return CSize(std::max(1, ::MulDiv(size.cx, room, size.cy)), room);
}

}  // namespace kmfc
