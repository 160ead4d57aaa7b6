// Document windows of frames whose panes dock.
#pragma once

#include <afxwin.h>

#include <kmfc/mdi_frame_ex.h>
