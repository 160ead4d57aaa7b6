// Frames whose panes dock.
#pragma once

#include <afxwin.h>

#include <kmfc/frame_ex.h>
