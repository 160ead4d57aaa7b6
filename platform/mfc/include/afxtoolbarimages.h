// Pictures of toolbar buttons.
#pragma once

#include <afxwin.h>

#include <kmfc/tool_bar_images.h>
