// Panes in tabs.
#pragma once

#include <afxwin.h>

#include <kmfc/tabbed_pane.h>
