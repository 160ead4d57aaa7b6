// Panes that float.
#pragma once

#include <afxwin.h>

#include <kmfc/pane.h>
