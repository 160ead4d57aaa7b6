// The list of recently used files.
#pragma once
#define __AFXADV_H__  ///< what programs test to see that this header was there

#include <afxwin.h>

#include <kmfc/dock_state.h>
#include <kmfc/recent_file_list.h>
