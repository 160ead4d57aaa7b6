// What lays out the panes of a frame.
#pragma once

#include <afxwin.h>

#include <kmfc/docking_manager.h>
