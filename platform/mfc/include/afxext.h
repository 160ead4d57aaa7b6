// Buttons with bitmaps, drawing off screen, and bars.
#pragma once
#define __AFXEXT_H__  ///< what programs test to see that this header was there

#include <afxwin.h>

#include <kmfc/bitmap_button.h>
#include <kmfc/control_bar.h>
#include <kmfc/dialog_bar.h>
#include <kmfc/dock_bar.h>
#include <kmfc/edit_view.h>
#include <kmfc/form_view.h>
#include <kmfc/mem_dc.h>
#include <kmfc/mini_dock_frame.h>
#include <kmfc/print_info.h>
#include <kmfc/splitter_wnd.h>
#include <kmfc/status_bar.h>
#include <kmfc/tool_bar.h>
