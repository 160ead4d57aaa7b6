// Floating frames of several panes.
#pragma once

#include <afxwin.h>

#include <kmfc/pane_frame_wnd.h>
