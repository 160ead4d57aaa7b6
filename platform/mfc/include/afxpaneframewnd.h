// Floating frames.
#pragma once

#include <afxwin.h>

#include <kmfc/pane_frame_wnd.h>
