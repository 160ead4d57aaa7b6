// Panes that hold others in tabs.
#pragma once

#include <afxwin.h>

#include <kmfc/base_tabbed_pane.h>
