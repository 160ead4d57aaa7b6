// Printing previews and floating frames of one's own.
#pragma once
#define __AFXPRIV_H__  ///< what programs test to see that this header was there

#include <afxwin.h>

#include <kmfc/mini_dock_frame.h>
#include <kmfc/preview_view.h>
