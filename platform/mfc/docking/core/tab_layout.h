// Where tabs stand on a strip: widths, scrolling, what is under a point, where a dragged tab goes. Pixels
// along the strip; windows don't come into it.
#pragma once

#include <vector>

#include <kmfc/platform.h>

namespace kmfc::tabs {

/// A tab's place from `left` up to `right`, which is outside; both equal for a tab that isn't shown.
struct Place {
    int left = 0;
    int right = 0;
    int width() const { return right - left; }
};

/// Widths cut to share `room`: the widest give first, down to a common width, but none below `least` (or its
/// own width, when that is smaller). Widths of 0 stand for hidden tabs, and stay. When even the least widths
/// don't fit, the answer is wider than `room`.
KMFC_API std::vector<int> share_room(const std::vector<int>& wanted, int room, int least);

/// Tabs side by side from `start` on; each begins `overlap` before the end of the one before it.
KMFC_API std::vector<Place> place_in_row(const std::vector<int>& widths, int start, int overlap);

/// The length of a row of tabs.
KMFC_API int row_length(const std::vector<int>& widths, int overlap);

/// How far a row can be scrolled in `room` until its end shows; 0 when it fits.
KMFC_API int greatest_offset(const std::vector<int>& widths, int overlap, int room);

/// The offset nearest to `offset` at which the tab shows whole, or its beginning if it is wider than `room`.
/// `offset` itself for a hidden tab, for an index out of range and without room.
KMFC_API int offset_to_show(const std::vector<int>& widths, int overlap, int room, int offset, int index);

/// The offset after one step to the right (`direction` 1) or left (-1): the next tab's beginning comes to the
/// start. Within 0 and greatest_offset.
KMFC_API int step_offset(const std::vector<int>& widths, int overlap, int room, int offset, int direction);

/// The first tab whose beginning is not scrolled away; -1 without any.
KMFC_API int first_whole(const std::vector<Place>& places, int start);

/// The tab at `x` among those that show between `start` and `end`; -1 for none. Where two overlap it is the
/// active one, or else the left one.
KMFC_API int tab_at(const std::vector<Place>& places, int start, int end, int x, int active);

/// The place that the dragged tab takes when the mouse is at `x`: that of the tab there, if the dragged one
/// will then lie under the mouse. Otherwise it stays, so that it never jumps to and fro.
KMFC_API int drop_index(const std::vector<int>& widths, int start, int overlap, int dragged, int x);

}  // namespace kmfc::tabs
