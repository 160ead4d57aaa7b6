// The edit box over a tab's label.
#pragma once

#include <kmfc/platform.h>

namespace kmfc {

constexpr UINT kLabelEditId = 100;  // its control id in the tab control

}  // namespace kmfc
