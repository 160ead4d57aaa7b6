// Lines between panes and the middle of a frame.
#pragma once

#include <afxwin.h>

#include <kmfc/pane_divider.h>
