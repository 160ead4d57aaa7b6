// Windows with a strip of tabs.
#pragma once

#include <afxwin.h>

#include <kmfc/tab_window.h>
