// Buttons of toolbars that dock.
#pragma once

#include <afxwin.h>

#include <kmfc/tool_bar_button.h>
