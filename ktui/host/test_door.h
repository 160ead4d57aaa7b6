// The door of the tests: what only they need of the loaded library. Private to the library, and not
// installed.
#pragma once

#include <ktui/host/loaded_module.h>
#include <ktui/host/theme_api.h>

/// Each entry is the library's own function of that name.
struct KtUiTestEntries {
    decltype(&::ExchangeThemeApi) exchangeThemeApi;
    decltype(&::LoadedToolkit) loadedToolkit;
};

/// The one export that no client may call.
KTUI_API const KtUiTestEntries& KtUiTestDoor();
