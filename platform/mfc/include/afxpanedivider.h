// Lines between panes.
#pragma once

#include <afxwin.h>

#include <kmfc/pane_divider.h>
