// How the files were last shown: the view mode, kept with the dialog's data, and the order, kept until the
// process ends. On systems below major version 6 only; later ones remember by themselves. Private to the
// library.
#pragma once

#include <windows.h>

class CNavFileDlg;

/// Keeps how the dialog shows its files. Nothing for what can't be asked.
void SaveViewState(const CNavFileDlg& dialog);
/// Shows the files in `list` as they were kept.
void ApplyViewState(const CNavFileDlg& dialog, HWND list);
