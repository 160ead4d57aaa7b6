// Whether bars may be moved: the two locks of KbUiLockPanel and the test that decides every drag.
//
// Private to the library.
#pragma once

#include <afxwin.h>

class CPaneFrameWnd;

/// The locks in force, one of each in the process.
struct PaneLocks {
    bool docked = false;    ///< docked bars stay where they are
    bool floating = false;  ///< floating frames stay where they are, as large as they are
};
const PaneLocks& PaneLocksInForce();

/// Whether the user holds Ctrl, which lifts the locks for the moment.
bool IsCtrlDown();

/// Whether `frame` (null for a docked pane) is a floating frame of the toolkit.
bool IsToolkitFrame(const CPaneFrameWnd* frame);

/// Whether a pane in `frame` (null when docked) is locked at this moment.
bool IsPaneLocked(const CPaneFrameWnd* frame);
