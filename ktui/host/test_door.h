// The door of the tests: what only they need of the loaded library. Private to the library, and not
// installed.
#pragma once

#include <ktui/host/loaded_module.h>
#include <ktui/host/theme_api.h>

// Of a room that stands on this one.
struct SplitButtonRecord;
LRESULT SplitButtonMessage(SplitButtonRecord* record, HWND window, UINT message, WPARAM wParam,
                           LPARAM lParam);
LRESULT CALLBACK SplitButtonWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
UINT SplitButtonTextFlags(DWORD style, DWORD exStyle, bool accelHidden);
class OdString;
using FindFileDialogCall = bool (*)(const wchar_t* filter, int filterIndex, const wchar_t* folder,
                                    OdString& outFolder, OdString& outFile);
FindFileDialogCall ExchangeFindFileDialog(FindFileDialogCall dialog);
int AddToRecentFolder(const wchar_t* path, const wchar_t* folder);

/// Each entry is the library's own function of that name.
struct KtUiTestEntries {
    decltype(&::ExchangeThemeApi) exchangeThemeApi;
    decltype(&::LoadedToolkit) loadedToolkit;
    decltype(&::StringLibrary) stringLibrary;
    decltype(&::SplitButtonMessage) splitButtonMessage;
    decltype(&::SplitButtonWndProc) splitButtonWndProc;
    decltype(&::SplitButtonTextFlags) splitButtonTextFlags;
    decltype(&::ExchangeFindFileDialog) exchangeFindFileDialog;
    decltype(&::AddToRecentFolder) addToRecentFolder;
};

/// The one export that no client may call.
KTUI_API const KtUiTestEntries& KtUiTestDoor();
