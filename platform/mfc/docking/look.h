// The colours of the flat look at this moment.
#pragma once

#include <kmfc/global_data.h>

#include "core/look_colors.h"

namespace kmfc {

inline LookColors present_look() {
    const AFX_GLOBAL_DATA& data = afxGlobalData;
    return look_colors({data.clrBarFace, data.clrBarText, data.clrBarWindow, data.clrWindowText,
                        data.clrHilite, data.clrTextHilite, data.IsHighContrastMode() != FALSE});
}

}  // namespace kmfc
