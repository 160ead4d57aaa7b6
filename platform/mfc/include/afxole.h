// Drag and drop.
#pragma once
#define __AFXOLE_H__  ///< what programs test to see that this header was there

#include <afxwin.h>

#include <kmfc/ole_drop.h>
