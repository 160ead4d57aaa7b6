// The emulation of split buttons: a push button with a drop-down zone at its right end, for systems whose
// common controls lack it, and for any button that carries the record below.
//
// One window procedure. What it doesn't handle goes to the system's own button procedure. A button that is
// subclassed keeps the record itself and calls SplitButtonMessage first; a window class of its own, derived
// from BUTTON with one more pointer of extra bytes, takes SplitButtonWndProc. Private to the library.
#pragma once

#include <windows.h>
#include <uxtheme.h>

/// What the emulation knows of a button.
struct SplitButtonRecord {
    HTHEME m_theme = nullptr;
    DWORD m_word = 0;  ///< the low 28 bits of the window style, and SplitButtonBit
};

enum SplitButtonBit : DWORD {
    kSplitStyleBits = 0x0FFFFFFF,      ///< bits 0 to 3 are the type, bit 27 is WS_DISABLED
    kSplitDropPressed = 1u << 28,      ///< the drop-down zone is pressed
    kSplitAccelHidden = 1u << 29,      ///< accelerators are not underlined
    kSplitFocusHidden = 1u << 30,      ///< no focus rectangle
    kSplitRedrawSuspended = 1u << 31,  ///< WM_SETREDRAW took drawing away
};

constexpr int kSplitZoneWidth = 16;  // pixels at the right end of the client area
constexpr DWORD kSplitType = 12;     // BS_SPLITBUTTON
constexpr DWORD kDefSplitType = 13;  // BS_DEFSPLITBUTTON

/// Handles a message for a button with `record`; null counts as a split button on a system whose common
/// controls are older than version 6. The record stays the caller's.
LRESULT SplitButtonMessage(SplitButtonRecord* record, HWND window, UINT message, WPARAM wParam,
                           LPARAM lParam);

/// The same for a window that keeps its record in the last of its extra words, from WM_NCCREATE to
/// WM_NCDESTROY.
LRESULT CALLBACK SplitButtonWndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Paints the whole button on `dc`. Part of SplitButtonMessage.
void PaintSplitButton(const SplitButtonRecord* record, HWND window, HDC dc);

/// DrawText flags for a button of this style.
UINT SplitButtonTextFlags(DWORD style, DWORD exStyle, bool accelHidden);
