// CMFCMenuBar, and what it derives from.
#pragma once

#include <afxwin.h>

#include <kmfc/menu_bar.h>
