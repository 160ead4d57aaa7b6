// Tabs: what every tab control keeps.
#pragma once

#include <afxwin.h>

#include <kmfc/base_tab_ctrl.h>
