// Panes that dock.
#pragma once

#include <afxwin.h>

#include <kmfc/dockable_pane.h>
