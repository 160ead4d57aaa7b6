// Views that are a list or a tree.
#pragma once
#define __AFXCVIEW_H__  ///< what programs test to see that this header was there

#include <afxcmn.h>
#include <afxwin.h>

#include <kmfc/list_tree_view.h>
