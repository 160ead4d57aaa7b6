// How docking bars, captions and tabs are painted.
#pragma once

#include <afxwin.h>

#include <kmfc/visual_manager.h>
