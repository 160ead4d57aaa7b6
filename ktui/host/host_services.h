// The small services that stand between the toolkit's clients and the host.
#pragma once

#include <afxwin.h>

#include <ktui/ktui_api.h>

/// The frame window that panes dock to, or null. Not the parent of dialogs: see their AppMainWindow.
KTUI_API CWnd* KtUiMainWindow();

/// Puts the product's registry key below the user's root into `key`; leaves it alone while the drawing
/// runtime has no host services.
KTUI_API void KtUiRootKey(CString& key);

/// Answers 2, whatever the state.
KTUI_API int KtUiEnableToolTips();

/// Moves the composition window of the input method to `point` (client coordinates of `window`). Nothing for
/// a null window or one without an input context.
KTUI_API void ktuiSetCompositionWindow(HWND window, const POINT& point);

/// Does nothing. Clients call it; no control depends on it changing a font.
KTUI_API void KbUiSubstituteShellFont(CWnd& window, CFont& font);
