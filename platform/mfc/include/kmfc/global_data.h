// AFX_GLOBAL_DATA: what windows of every kind share, taken from the system's settings.
#pragma once

#include <kmfc/gdi_objects.h>

/// One object serves the process; afxGlobalData names it.
struct KMFC_API AFX_GLOBAL_DATA {
    CFont fontRegular;  ///< the system's font of menus, for texts of the framework's own windows
    CFont fontTooltip;  ///< the system's font of tips and status bars

    /// Makes the fonts anew from the system's settings; call it at WM_SETTINGCHANGE.
    void UpdateFonts();
};

/// The process's object, whose fonts are made at the first call.
KMFC_API AFX_GLOBAL_DATA* GetGlobalData();

#define afxGlobalData (*GetGlobalData())
