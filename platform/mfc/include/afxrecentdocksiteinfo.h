// Where panes were docked last.
#pragma once

#include <afxwin.h>

#include <kmfc/recent_dock_info.h>
#include <kmfc/pane.h>
