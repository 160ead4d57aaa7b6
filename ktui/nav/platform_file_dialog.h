// What the platform's file dialog is made of, and how its view of files is reached. Private to the library.
#pragma once

#include <afxwin.h>
#include <shlobj.h>

#include <ktui/host/com_reference.h>

// Its controls.
constexpr int kPlatformReadOnly = 1040;
constexpr int kPlatformTypeLabel = 1089;
constexpr int kPlatformNameLabel = 1090;
constexpr int kPlatformView = 1121;  ///< its first child is the list of files
constexpr int kPlatformTypeBox = 1136;
constexpr int kPlatformNameBox = 1148;
constexpr int kPlatformNameEdit = 1152;
constexpr int kPlatformPlacesBar = 1184;

/// Whether the system counts as one of major version 6 or later.
bool IsLaterSystem();

/// The view of files that `dialog` shows now, or none.
void FindShellView(HWND dialog, ComReference<IShellView>& view);
/// The same by the interface that counts its items.
void FindFolderView(HWND dialog, ComReference<IFolderView>& view);

/// The list of files that `dialog` shows now, or null.
HWND FindFileList(HWND dialog);
