// The common controls.
#pragma once
#define __AFXCMN_H__  ///< what programs test to see that this header was there

#include <afxwin.h>

#include <kmfc/combo_box_ex.h>
#include <kmfc/drag_list_box.h>
#include <kmfc/header_ctrl.h>
#include <kmfc/hot_key_ctrl.h>
#include <kmfc/image_list.h>
#include <kmfc/link_ctrl.h>
#include <kmfc/list_ctrl.h>
#include <kmfc/range_controls.h>
#include <kmfc/split_button.h>
#include <kmfc/status_bar_ctrl.h>
#include <kmfc/tab_ctrl.h>
#include <kmfc/tool_bar_ctrl.h>
#include <kmfc/tool_tip_ctrl.h>
#include <kmfc/tree_ctrl.h>
