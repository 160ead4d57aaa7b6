// Whether the toolkit takes every colour and size from the system, or keeps to those of the standard scheme
// at 96 dots an inch.
//
// Some colours and sizes in pixels are agreed with hosts of long standing: black samples on white, pictures
// of 15 pixels. They hold until a host asks for the system's, once at its start:
//
//     KtUiFollowSystemAppearance(TRUE);
#pragma once

#include <windows.h>

#include <ktui/ktui_api.h>

/// From now on the toolkit's controls draw samples, pictures and texts in the colours of the system, and in
/// sizes that suit the resolution of their window: pickers show dark and high-contrast schemes, and nothing
/// is too small at 150 %. In the standard scheme at 96 dots an inch everything looks the same. FALSE, as at
/// first, keeps the agreed colours and pixels. Controls take it up when they are made; call it before the
/// first one. Notifies nobody.
KTUI_API void KtUiFollowSystemAppearance(BOOL follow);

/// What was asked for; FALSE at first.
KTUI_API BOOL KtUiFollowsSystemAppearance();

/// `agreed`, or the system colour `index` (COLOR_...) for a host that follows the system.
KTUI_API COLORREF KtUiAppearanceColor(COLORREF agreed, int index);

/// `pixels` at 96 dots an inch, or as many as they are at the resolution of `window` for a host that follows
/// the system.
KTUI_API int KtUiAppearancePixels(HWND window, int pixels);

/// Dots an inch of the monitor that `window` is on; of the screen for none, or where windows can't be told
/// apart.
KTUI_API UINT KtUiWindowDpi(HWND window);

/// Puts another source of KtUiWindowDpi in force, null for the system's own, and answers the one before, so
/// that many resolutions can be shown on one monitor.
using KtUiDpiSource = UINT (*)(HWND window);
KTUI_API KtUiDpiSource KtUiExchangeDpiSource(KtUiDpiSource source);
