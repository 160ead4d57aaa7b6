// The windows of the dividers of an arrangement.
#pragma once

#include "frame_state.h"

namespace kmfc::docking {

/// Makes the windows that an arrangement's dividers need as children of `parent`, adds their moves to the
/// batch and ends those that it doesn't need. With `planned` they are left to move at WM_SIZEPARENT.
HDWP place_dividers(Dividers& dividers, const Arrangement& arrangement, CWnd* parent, bool planned,
                    HDWP batch);

}  // namespace kmfc::docking
