// Windows, menus, drawing, applications, frames, dialogs and the standard controls.
#pragma once
#define __AFXWIN_H__  ///< what programs test to see that this header was there

#include <afx.h>
#include <afxcoll.h>
#include <afxtempl.h>

#include <shellapi.h>

#include <kmfc/app.h>
#include <kmfc/archive_geometry.h>
#include <kmfc/cmd_target.h>
#include <kmfc/command_line_info.h>
#include <kmfc/data_exchange.h>
#include <kmfc/dialog.h>
#include <kmfc/doc_manager.h>
#include <kmfc/doc_template.h>
#include <kmfc/document.h>
#include <kmfc/frame.h>
#include <kmfc/gdi.h>
#include <kmfc/mdi_frame.h>
#include <kmfc/mini_frame.h>
#include <kmfc/menu.h>
#include <kmfc/module_state.h>
#include <kmfc/scroll_view.h>
#include <kmfc/shortcut.h>
#include <kmfc/standard_controls.h>
#include <kmfc/thread.h>
#include <kmfc/view.h>
#include <kmfc/wnd.h>
