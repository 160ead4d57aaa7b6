#include <kmfc/registered_messages.h>

UINT AFX_WM_CHANGING_ACTIVE_TAB = ::RegisterWindowMessageW(L"kmfc: the active tab is to change");
UINT AFX_WM_CHANGE_ACTIVE_TAB = ::RegisterWindowMessageW(L"kmfc: the active tab has changed");
UINT AFX_WM_ON_MOVE_TAB = ::RegisterWindowMessageW(L"kmfc: a tab was moved");
UINT AFX_WM_ON_MOVETOTABGROUP = ::RegisterWindowMessageW(L"kmfc: a document has changed its group");
UINT AFX_WM_POSTSETPREVIEWFRAME = ::RegisterWindowMessageW(L"kmfc: a print preview has begun or ended");
UINT AFX_WM_ON_RENAME_TAB = ::RegisterWindowMessageW(L"kmfc: a tab was renamed");
UINT AFX_WM_ON_GET_TAB_TOOLTIP = ::RegisterWindowMessageW(L"kmfc: what is the tip of a tab");
UINT AFX_WM_ON_CHANGE_VISUAL_MANAGER = ::RegisterWindowMessageW(L"kmfc: the look has changed");
