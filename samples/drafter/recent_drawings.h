// The application's recent files, which several drafters share: each reads the list before it changes it.
#pragma once

#include <afxwin.h>

/// The drawing of an entry of the menu, counted from 0; empty if there is none.
CString RecentDrawing(int index);
/// The folder of the newest one; empty without any.
CString RecentFolder();
/// Makes a drawing the newest one, or takes it away.
void KeepRecent(const CString& path);
void ForgetRecent(const CString& path);
