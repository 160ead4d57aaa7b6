// What the start of an extension module needs: include it in the unit that has its DllMain.
#pragma once

#include <afxwin.h>

#include <kmfc/module_state.h>
