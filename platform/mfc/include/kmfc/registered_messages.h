// Messages that the docking classes send to windows of the application. Their numbers are the same in every
// process while the system runs; handle them by ON_REGISTERED_MESSAGE.
#pragma once

#include <kmfc/platform.h>

KMFC_API extern UINT AFX_WM_CHANGING_ACTIVE_TAB;  ///< WPARAM the tab that is to be active; TRUE prevents it
KMFC_API extern UINT AFX_WM_CHANGE_ACTIVE_TAB;    ///< WPARAM the active tab, LPARAM the tab control's object
KMFC_API extern UINT AFX_WM_ON_MOVE_TAB;  ///< WPARAM the tab's place before it was moved, LPARAM the one now
/// WPARAM the handle of the strip that a document has left, LPARAM of the one that it has come to.
KMFC_API extern UINT AFX_WM_ON_MOVETOTABGROUP;
KMFC_API extern UINT AFX_WM_POSTSETPREVIEWFRAME;  ///< posted: WPARAM whether a preview stands in the frame
KMFC_API extern UINT
    AFX_WM_ON_RENAME_TAB;  ///< WPARAM the tab whose label the user changed, LPARAM the object
KMFC_API extern UINT AFX_WM_ON_GET_TAB_TOOLTIP;        ///< LPARAM the CMFCTabToolTipInfo to fill
KMFC_API extern UINT AFX_WM_ON_CHANGE_VISUAL_MANAGER;  ///< the look has changed
