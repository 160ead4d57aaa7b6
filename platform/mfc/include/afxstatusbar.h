// The status bar of frames whose panes dock.
#pragma once

#include <afxwin.h>

#include <kmfc/status_bar_ex.h>
