// Panes that hide at an edge of the frame.
#pragma once

#include <afxwin.h>

#include <kmfc/auto_hide_bar.h>
