// Geometry of captions: their height, their buttons, and where a floating frame goes.
#pragma once

#include <vector>

#include <kmfc/geometry.h>

namespace kmfc::docking {

/// Height of a caption whose text is `textHeight` pixels high and whose buttons are `buttonHeight`.
KMFC_API int caption_height(int textHeight, int buttonHeight);

/// Where buttons stand in a caption: from its right end leftwards, in the order given, one pixel between
/// them, in the middle of its height. Hidden ones (false) get an empty rectangle and take no room; those that
/// don't fit are hidden too.
KMFC_API std::vector<CRect> place_buttons(const CRect& caption, CSize button, const std::vector<bool>& shown);

/// What is left of a caption for its text.
KMFC_API CRect caption_text(const CRect& caption, const std::vector<CRect>& buttons);

/// The part of a frame's border at a point, both in the same coordinates: HTLEFT to HTBOTTOMRIGHT, or 0
/// inside and outside. Corners reach `corner` pixels along the edges.
KMFC_API int border_hit(const CRect& window, const CPoint& point, int border, int corner);

/// Where a frame goes that the mouse has just torn off: the size is kept, and the mouse holds the caption at
/// the same share of its width as before, `grip` pixels below the frame's top.
KMFC_API CRect torn_off(const CRect& from, CSize size, const CPoint& mouse, int grip);

/// Moves a rectangle so that it lies inside `work`; one that is too large keeps its left and top edge inside.
KMFC_API CRect keep_inside(const CRect& rect, const CRect& work);

}  // namespace kmfc::docking
