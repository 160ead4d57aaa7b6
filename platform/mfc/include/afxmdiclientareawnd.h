// What groups of tabbed documents are to look like.
#pragma once

#include <afxwin.h>

#include <kmfc/mdi_tab_info.h>
