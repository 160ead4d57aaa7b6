// Drag and drop.
#pragma once

#include <afxwin.h>

#include <kmfc/ole_drop.h>
