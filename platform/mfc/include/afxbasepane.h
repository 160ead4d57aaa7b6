// The base of all panes.
#pragma once

#include <afxwin.h>

#include <kmfc/base_pane.h>
