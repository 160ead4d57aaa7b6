// Everything about panes that dock.
#pragma once

#include <afxwin.h>

#include <kmfc/auto_hide_bar.h>
#include <kmfc/base_pane.h>
#include <kmfc/base_tabbed_pane.h>
#include <kmfc/caption_button.h>
#include <kmfc/bar_frame_wnd.h>
#include <kmfc/dock_site.h>
#include <kmfc/dockable_pane.h>
#include <kmfc/docking_manager.h>
#include <kmfc/frame_ex.h>
#include <kmfc/mdi_frame_ex.h>
#include <kmfc/menu_bar.h>
#include <kmfc/global_data.h>
#include <kmfc/pane.h>
#include <kmfc/pane_divider.h>
#include <kmfc/pane_frame_wnd.h>
#include <kmfc/settings_store.h>
#include <kmfc/status_bar_ex.h>
#include <kmfc/tabbed_pane.h>
#include <kmfc/tool_bar_ex.h>
#include <kmfc/visual_manager.h>
#include <kmfc/win_app_ex.h>
