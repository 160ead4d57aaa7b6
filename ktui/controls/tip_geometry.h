// Where the tip of a clipped entry lies, and whether there is one.
//
// All rectangles are in client coordinates of the control, all sizes in pixels. Without any window, so that
// the rules of the three list-like controls can be told apart and tested by themselves.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <afx.h>

/// A rectangle of the tip, and whether the entry wants one.
struct TipPlace {
    RECT rect;
    bool wanted;
};

/// The tip of a list box row: wanted if the text is wider than the row. The height alone never asks for a
/// tip, but a wanted tip is as high as the text needs.
TipPlace PlaceRowTip(const RECT& row, int textWidth, int textHeight);

/// The tip of a cell of a list control or header: wanted unless the text fits in width and in height. Its
/// size is the text's. Without a tip the rectangle comes back as it was.
TipPlace PlaceCellTip(const RECT& cell, int textWidth, int textHeight);

/// Where a header item's tip starts: below the header and 20 pixels to the right.
RECT HeaderTipArea(const RECT& item);

/// The area of a list control's label that counts for the fit.
RECT TrimSubItemLabel(const RECT& label, int column);
