// The hot keys of the navigation file dialog, by a keyboard hook of its thread. Private to the library.
//
// Kept: one dialog at a time has them; a second one that is shown takes them over.
#pragma once

class CNavFileDlg;

/// Gives the hot keys to `dialog`, which must take them back (null) before it ends. Sets no hook by itself.
void SetNavHookDialog(CNavFileDlg* dialog);
/// The dialog that has the hot keys, or null.
CNavFileDlg* NavHookDialog();

/// Listens to the keyboard; nothing without a dialog or if it does already.
void SetNavKeyboardHook();
/// Listens no more.
void RemoveNavKeyboardHook();

/// Takes the hot keys away for as long as it lives, so that a dialog shown meanwhile has its keys to itself.
class NavKeyboardHookAside {
public:
    NavKeyboardHookAside() { RemoveNavKeyboardHook(); }
    ~NavKeyboardHookAside() { SetNavKeyboardHook(); }
    NavKeyboardHookAside(const NavKeyboardHookAside&) = delete;
    NavKeyboardHookAside& operator=(const NavKeyboardHookAside&) = delete;
};
