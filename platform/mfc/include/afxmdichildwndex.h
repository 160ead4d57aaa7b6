// Document windows of frames whose panes dock.
#pragma once

#include <afxwin.h>

#include <kmfc/frame_ex.h>
