// Rows of toolbars at the edges of a frame.
#pragma once

#include <afxwin.h>

#include <kmfc/dock_site.h>
