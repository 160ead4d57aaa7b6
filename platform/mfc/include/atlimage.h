// CImage, and the names of the types that it saves.
#pragma once

#include <afxwin.h>

#include <algorithm>

#include <objidl.h>

// The system's header takes min and max for macros.
namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus
#include <gdiplus.h>

#include <kmfc/image.h>
