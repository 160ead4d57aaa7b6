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

/// How large a picture is drawn, pixels of the screen.
inline CSize shown_size(const PicturePixels& picture) {
    return CSize(afxGlobalData.scaled(picture.size.cx), afxGlobalData.scaled(picture.size.cy));
}

}  // namespace kmfc
