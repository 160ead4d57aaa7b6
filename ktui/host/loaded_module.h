// What the library holds from its load to its unload, and where it takes its resources from.
//
// Everything here is filled while the module is loaded and only read afterwards. Private to the library.
#pragma once

#include <afxwin.h>

#include <ktui/host/module.h>

/// State of the loaded module.
struct ToolkitModule {
    AFX_EXTENSION_MODULE ownModule = {};  ///< the library itself; hModule holds its own bitmaps and icons
    AFX_EXTENSION_MODULE resourceModule = {};  ///< the resource library
    int resourceModuleReady = 0;               ///< 1 once `resourceModule` has joined the module chain
    HMODULE resourceLibrary = nullptr;         ///< dialogs, strings, bitmaps; null if the file is missing
    WNDPROC buttonWndProc = nullptr;           ///< window procedure of the system class "BUTTON"
    HIMAGELIST arrowImageList = nullptr;       ///< drop-down glyphs, 9 by 9 pixels: enabled, disabled
    DWORD osVersionCode = 0;                   ///< platform << 16 | major << 8 | minor
    DWORD commonControlsVersion = 0;           ///< major << 16 | minor
    BOOL(WINAPI* initCommonControlsEx)(const INITCOMMONCONTROLSEX*) = nullptr;  ///< null if it is missing
    HMODULE themeLibrary = nullptr;                                             ///< null while themes are off
};

/// The state of the loaded module.
const ToolkitModule& LoadedToolkit();

/// The resource library as it serves strings; loaded before all else and never freed. Null if the file is
/// missing.
HMODULE StringLibrary();

/// The library itself, which its own bitmaps and icons are loaded from.
HMODULE KtUiOwnModule();
